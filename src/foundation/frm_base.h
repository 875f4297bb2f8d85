#pragma once

#include "foundation/fault.h"
#include "foundation/frm_captions.h"
#include "platform/controls/foot_layout.h"
#include "platform/dao/dao.h"

#include <QDialog>

#include <vector>

class QScrollArea;

/// What every form knows: its name, a page that scrolls where the screen is too small for it, a foot of buttons that
/// can always be reached, its data control, and the one catch that tells a failure and leaves the form as it is.
class FormBase : public QDialog
{
public:
    /// `name` is the form's class name; it is the form's object name and stands in the log of connections.
    explicit FormBase(const char* name, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    /// Where cards go, from the top down.
    QVBoxLayout* Page() const { return page_; }
    /// The size in which the form opens, where the screen has room for it; otherwise what its page asks for.
    void SetSize(const QSize& size) { size_ = size; }
    /// A button whose click runs `clicked`; a failure is told.
    QPushButton* AddButton(const char* name, const Text& caption, const std::function<void()>& clicked);
    /// The same for the one main button, which Enter presses.
    QPushButton* AddMainButton(const char* name, const Text& caption, const std::function<void()>& clicked);
    /// The button that leaves the form as Escape does.
    QPushButton* AddWayOut(const Text& caption = {"&Cancel", "&Annuler"}, const char* name = "cmdCancel");
    /// The form's foot: what stands at its left, and at its right, the main button last. The ways out (cmdQuit,
    /// cmdCancel, cmdCancelOperation and those of AddWayOut) stand beside the main button in every form.
    void LayFoot(const std::vector<QWidget*>& left, const std::vector<QWidget*>& right);
    void LayFoot(const std::vector<QWidget*>& right) { LayFoot({}, right); }

    /// Runs `work`. A failure is told, and the form stays as it is: false then.
    bool Attempt(const std::function<void()>& work);
    /// Tells a fault and takes the user to the control to be mended; whatever else is required and missing is marked.
    void ShowFault(const Fault& fault, const Text& title = {"ERROR:", "ERREUR:"});
    /// Puts the focus into a control, its tab in front and in sight. A page of tabs only comes to the front.
    void GoTo(const QString& control);

    /// Called once, when the form has been shown.
    virtual void Form_Activate() {}
    /// From here on the form asks before Escape or the window's own close button throw away what was entered.
    void AskBeforeLosing() { asksBeforeLosing_ = true; }
    /// What stands in the controls now can be thrown away without a question.
    void KeepContents() { kept_ = Contents(); }
    /// Asked when the user leaves by Escape or the window's own close button; the form's buttons do as they are told. A
    /// form with a question of its own for each way out answers true.
    virtual bool MayBeLeft();
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    DataControl datAbsence;
    bool Loading = false; ///< code fills the controls: their handlers stay silent

private:
    QStringList Contents() const;
    void OrderTabs();
    bool TurnTab(const QKeyEvent* event);
    bool PressFocused(const QKeyEvent* event);
    int WidthLackingInTabs() const;
    void GrowToPage();
    void StayOnScreen();

    QScrollArea* scroll_ = nullptr;
    QVBoxLayout* page_ = nullptr;
    FootLayout* foot_ = nullptr;
    QSize size_;
    bool activated_ = false;
    bool asksBeforeLosing_ = false;
    QStringList kept_; ///< the contents that nobody would miss
};
