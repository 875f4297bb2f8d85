#pragma once

#include "foundation/common_services.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <array>

/// The screen of a message: a face beside the text, an input box and a check box where they are asked for, up to four
/// buttons. It ends with the code of the button pressed, or with that of Cancel when it is closed without one.
class frmMessageBox : public QDialog
{
public:
    explicit frmMessageBox(const Message& message, QWidget* parent = nullptr);

    /// One of MessageCode, once the box has ended.
    int Code() const;
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void BuildButtons();
    void LoadCaptions();
    QLayout* BodyLayout();
    QLayout* ButtonsLayout();
    void FitText();
    void ShowColumns(int width);
    int HeightOfText(int width) const;
    void ShowFace();
    QPushButton* DefaultButton() const;
    int ButtonWidth(int position) const;
    std::size_t FaceIndex() const { return static_cast<std::size_t>(message_.Picture); }
    void chkStopAsking_Click();

    const Message message_;
    QLabel* imgFace;
    QLabel* lblTitle;
    QPlainTextEdit* txtMessage;
    QLineEdit* txtMsgBxInputBox;
    QCheckBox* chkStopAsking;
    std::array<QPushButton*, 4> cmdButton{};
};

/// From here on ShowMessage shows this box.
void InstallMessageBox();
