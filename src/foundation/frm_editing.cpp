#include "foundation/frm_editing.h"

namespace
{
constexpr Text kAdd = {"&Add", "&Ajouter"};
constexpr Text kModify = {"&Modify", "&Modifier"};
constexpr Text kDeactivate = {"&Deactivate", "&Désactiver"};
} // namespace

TwoPressForm::TwoPressForm(const char* name, QWidget* parent, const EditingTexts& texts)
    : FormBase(name, parent), save_(texts.Save)
{
    AskBeforeLosing();
    cmdAdd = AddButton("cmdAdd", kAdd, [this] { Press(EditingMode::Adding); });
    cmdModify = AddButton("cmdModify", kModify, [this] { Press(EditingMode::Modifying); });
    cmdDeactivate = AddButton("cmdDeactivate", kDeactivate, [this] { Press(EditingMode::Deactivating); });
    cmdCancelOperation = AddButton("cmdCancelOperation", texts.Cancel, [this] { cmdCancelOperation_Click(); });
    cmdQuit = AddButton("cmdQuit", texts.Quit, [this] { reject(); });
}

void TwoPressForm::LayCommands(const std::vector<QPushButton*>& further)
{
    LayFoot({cmdQuit, cmdCancelOperation}, {});
    for (QPushButton* button : further)
        LayFoot({button});
    LayFoot({cmdDeactivate, cmdModify, cmdAdd});
    idleOnly_ = further;
    idleOnly_.push_back(cmdQuit);
    for (QPushButton* button : findChildren<QPushButton*>()) // Enter presses the main button, wherever the focus is
        button->setAutoDefault(false);
}

void TwoPressForm::Press(EditingMode mode)
{
    if (!IsIdle())
        return Finish(mode);
    mode_ = mode;
    ShowMode();
    if (!Begin(mode))
        return cmdCancelOperation_Click();
    ShowMode();
}

void TwoPressForm::ShowMode()
{
    ShowButton(cmdAdd, EditingMode::Adding, kAdd);
    ShowButton(cmdModify, EditingMode::Modifying, kModify);
    ShowButton(cmdDeactivate, EditingMode::Deactivating, kDeactivate);
    cmdCancelOperation->setEnabled(!IsIdle());
    for (QPushButton* button : idleOnly_)
        button->setEnabled(IsIdle());
    EnableControls();
    KeepContents();
}

void TwoPressForm::ShowButton(QPushButton* button, EditingMode its, const Text& caption)
{
    const bool usable = mode_ == its && (its == EditingMode::Adding || HasRecord());
    const bool saves = mode_ == its && its != EditingMode::Deactivating && !save_.IsEmpty();
    button->setEnabled(IsIdle() || usable);
    button->setText(T(saves ? save_ : caption));
    SetMainButton(button, IsIdle() ? button == cmdAdd : mode_ == its);
}

void TwoPressForm::cmdCancelOperation_Click()
{
    mode_ = EditingMode::Idle;
    ResetVariables();
    ShowMode();
}

void TwoPressForm::reject()
{
    if (!IsIdle())
        return cmdCancelOperation_Click();
    QDialog::reject();
}
