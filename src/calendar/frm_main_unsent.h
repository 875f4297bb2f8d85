#pragma once

#include <QFrame>

#include <functional>

class DataControl;
class QLabel;

/// A line in the main window about the notices that could not be sent by mail; without any it is not there.
class UnsentLine : public QFrame
{
public:
    explicit UnsentLine(DataControl& datAbsence, QWidget* parent = nullptr);

    std::function<void()> Emptied; ///< nothing is left, and the focus that stood in the line needs another place

    /// Says what has not been sent by now.
    void Refresh();

private:
    void cmdSendAgain_Click();
    void cmdForget_Click();

    DataControl& datAbsence_;
    QLabel* lblUnsent;
};
