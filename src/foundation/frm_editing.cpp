#include "foundation/frm_editing.h"

namespace
{
constexpr Text kAdd = {"&Add", "&Ajouter"};
constexpr Text kModify = {"&Modify", "&Modifier"};
constexpr Text kDeactivate = {"&Deactivate", "&Désactiver"};
constexpr Text kNothingToCancel = {"No operation has been started", "Aucune opération n'est en cours"};
constexpr Text kInMode = {"Complete or cancel the operation first", "Complétez ou annulez d'abord l'opération"};
constexpr Text kPressFirst = {"Press Add or Modify first", "Appuyez d'abord sur Ajouter ou Modifier"};
constexpr Text kAsItStands = {"A record is deactivated as it stands", "Un enregistrement est désactivé tel quel"};
constexpr Text kNoRecord = {"Choose a record first", "Choisissez d'abord un enregistrement"};
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
    LayFoot(std::vector<QWidget*>(further.begin(), further.end()));
    LayFoot({cmdDeactivate, cmdModify, cmdCancelOperation, cmdQuit, cmdAdd});
    idleOnly_ = further;
    idleOnly_.push_back(cmdQuit);
    for (QPushButton* button : findChildren<QPushButton*>()) // Enter in a field presses the main button, which changes
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
    EnableOrExplain(cmdCancelOperation, !IsIdle(), kNothingToCancel);
    for (QPushButton* button : idleOnly_)
        EnableOrExplain(button, IsIdle(), kInMode);
    EnableControls();
    ForgetMissing(this);
    KeepContents();
}

void TwoPressForm::ShowButton(QPushButton* button, EditingMode its, const Text& caption)
{
    const bool usable = mode_ == its && (its == EditingMode::Adding || HasRecord());
    const bool saves = mode_ == its && its != EditingMode::Deactivating && !save_.IsEmpty();
    EnableOrExplain(button, IsIdle() || usable, mode_ == its ? kNoRecord : kInMode);
    button->setText(T(saves ? save_ : caption));
    SetMainButton(button, IsIdle() ? button == cmdAdd : mode_ == its);
}

Text TwoPressForm::WhyNoEntry() const
{
    if (mode_ == EditingMode::Modifying)
        return HasRecord() ? Text() : kNoRecord;
    if (mode_ == EditingMode::Adding)
        return {};
    return IsIdle() ? kPressFirst : kAsItStands;
}

Text TwoPressForm::WhyNoChoice() const
{
    return WhyNoEntry().IsEmpty() ? kInMode : Text();
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
