#pragma once

#include "foundation/common_services.h"
#include "foundation/frm_base.h"

#include <optional>

enum class EditingMode
{
    Idle,
    Adding,
    Modifying,
    Deactivating
};

/// What the buttons of a form of two presses say.
struct EditingTexts
{
    Text Cancel = {"&Cancel operation", "A&nnuler l'opération"};
    Text Quit = {"C&lose", "&Fermer"};
    Text Save = {"&Save", "&Enregistrer"}; ///< of Add and Modify in their modes; empty where they keep their captions
};

/// The form of two presses: the first press of Add, Modify or Deactivate opens its mode, the second one does the work.
/// In a mode only its own button and the way out of it can be pressed.
class TwoPressForm : public FormBase
{
public:
    /// In a mode it only leaves the mode.
    void reject() override;

protected:
    TwoPressForm(const char* name, QWidget* parent, const EditingTexts& texts = {});

    EditingMode Mode() const { return mode_; }
    bool IsIdle() const { return mode_ == EditingMode::Idle; }
    bool MayBeLeft() override { return IsIdle() || FormBase::MayBeLeft(); }

    /// The first press: false when there is nothing to work on, which ends the mode again.
    virtual bool Begin(EditingMode mode) = 0;
    /// The second press. A failure that it throws is told and leaves the form in its mode.
    virtual void Finish(EditingMode mode) = 0;
    /// Forgets the record and shows an empty form.
    virtual void ResetVariables() = 0;
    /// A record is chosen: the mode that works on one can be finished.
    virtual bool HasRecord() const = 0;
    /// Why the fields take no entry now; empty while they do.
    Text WhyNoEntry() const;
    /// Why no other record can be chosen now; empty while one can.
    Text WhyNoChoice() const;
    /// Enables fields and lists as the mode asks.
    virtual void EnableControls() = 0;

    /// Lays the foot: `further` commands, which cannot be pressed in a mode, then those of every such form, Add last.
    /// Called when the page is complete.
    void LayCommands(const std::vector<QPushButton*>& further = {});
    /// Shows which buttons can be pressed now, and which one is the main button. What stands in the fields then is the
    /// record as it was.
    void ShowMode();
    virtual void cmdCancelOperation_Click();

    QPushButton* cmdAdd;
    QPushButton* cmdModify;
    QPushButton* cmdDeactivate;
    QPushButton* cmdCancelOperation;
    QPushButton* cmdQuit;

private:
    void Press(EditingMode mode);
    void ShowButton(QPushButton* button, EditingMode its, const Text& caption);

    const Text save_;
    std::vector<QPushButton*> idleOnly_; ///< the buttons that cannot be pressed in a mode
    EditingMode mode_ = EditingMode::Idle;
};

/// A form of two presses over the record `R`: reads it, has it checked and confirmed, and writes it. The calendar is
/// then asked to show what has changed.
template <typename R>
class EditingForm : public TwoPressForm
{
protected:
    using TwoPressForm::TwoPressForm;

    virtual void Show(const R& record) = 0;
    virtual R Read() const = 0;
    /// Brings the record into the form in which it is stored, and checks it.
    virtual std::optional<Fault> Validate(R& record) = 0;
    /// The questions before the record is written.
    virtual bool Confirm(EditingMode mode, const R& record) = 0;
    /// Throws RuntimeError; nothing is written then.
    virtual void Write(EditingMode mode, const R& record) = 0;
    virtual void TellDone(EditingMode mode, const R& record) = 0;

    void Finish(EditingMode mode) override
    {
        R record = Read();
        const auto fault = mode == EditingMode::Deactivating ? std::nullopt : Validate(record);
        Show(record); // with what was filled in, also when something else is wrong
        if (fault)
            return ShowFault(*fault);
        if (!Confirm(mode, record))
            return;
        Write(mode, record);
        SessionState.ReloadCalendar = true;
        TellDone(mode, record);
        cmdCancelOperation_Click();
    }

    R record_; ///< the record chosen
};
