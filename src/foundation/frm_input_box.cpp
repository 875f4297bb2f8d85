#include "foundation/frm_input_box.h"

namespace
{
constexpr int kPromptWidth = 440;
constexpr int kInputGap = 6;
} // namespace

frmInputBox::frmInputBox(const QString& title, const QString& prompt, QWidget* parent)
    : FormBase("frmInputBox", parent), txtInput(MakeField("txtInput", KeyFilter::FreeText))
{
    setWindowTitle(title);
    AskBeforeLosing();
    auto* lblPrompt = WrappedLabel("lblPrompt");
    lblPrompt->setText(prompt);
    lblPrompt->setFixedWidth(kPromptWidth);
    txtInput->setAccessibleName(prompt);
    Page()->addWidget(MakeCard(Stack(kInputGap, {lblPrompt, txtInput})));
    LayFoot({AddWayOut(), AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); })});
    txtInput->setFocus();
}

QString frmInputBox::Answer() const
{
    return result() == QDialog::Accepted ? txtInput->text().trimmed() : QString();
}

QString AskForText(const QString& title, const QString& prompt, QWidget* parent)
{
    frmInputBox box(title, prompt, parent);
    ShowModal(box);
    return box.Answer();
}
