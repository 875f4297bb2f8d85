#include "foundation/frm_input_box.h"

#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

namespace
{
constexpr int kPromptWidth = 440;
}

frmInputBox::frmInputBox(const QString& title, const QString& prompt, QWidget* parent) : QDialog(parent)
{
    BuildControls(title, prompt);
}

void frmInputBox::BuildControls(const QString& title, const QString& prompt)
{
    setObjectName("frmInputBox");
    setWindowTitle(title);
    auto* lblPrompt = Named<QLabel>("lblPrompt", prompt);
    lblPrompt->setTextFormat(Qt::PlainText);
    lblPrompt->setWordWrap(true);
    lblPrompt->setFixedWidth(kPromptWidth);
    txtInput = Named<QLineEdit>("txtInput");
    txtInput->setAccessibleName(prompt);
    FilterKeys(txtInput, KeyFilter::MessageInput);
    auto* cmdOK = AsMainButton(Named<QPushButton>("cmdOK", T("&OK", "&OK")));
    auto* cmdCancel = Named<QPushButton>("cmdCancel", T("&Cancel", "&Annuler"));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* content = new QVBoxLayout;
    content->addWidget(lblPrompt);
    content->addWidget(txtInput);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdCancel, cmdOK}));
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
