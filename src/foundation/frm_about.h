#pragma once

#include <QDialog>

/// The program's name, version and purpose, and the way to the desktop's system information.
class frmAbout : public QDialog
{
public:
    explicit frmAbout(QWidget* parent = nullptr);

private:
    void BuildControls();
    void cmdSysInfo_Click();
};
