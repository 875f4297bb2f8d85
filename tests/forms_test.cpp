#include "attendance/frm_approval.h"
#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "calendar/frm_main_command_table.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_employees.h"
#include "employees/frm_transfer_employees.h"
#include "foundation/frm_about.h"
#include "foundation/frm_base.h"
#include "foundation/frm_change_password.h"
#include "foundation/frm_input_box.h"
#include "foundation/frm_login.h"
#include "foundation/frm_message_box.h"
#include "foundation/frm_splash_screen.h"
#include "foundation/frm_update_admin_info.h"
#include "ledger/frm_entitlement_history.h"
#include "ledger/frm_entitlements.h"
#include "mail/frm_mail.h"
#include "mail/frm_targetted_email.h"
#include "platform/clock.h"
#include "platform/controls/foot_layout.h"
#include "reference/frm_categories.h"
#include "reference/frm_holidays.h"
#include "reference/frm_select_color.h"
#include "reference/frm_unit.h"
#include "reports/frm_lists.h"
#include "selection/frm_get_approved_by.h"
#include "selection/frm_get_approver_from_list.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"
#include "selection/frm_select_weekdays.h"
#include "selection/period_choice.h"
#include "setup/frm_set_up_wizard.h"
#include "support/house_test.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

namespace
{
EmployeeRecord newEmployee;
int marieID = 0, recordID = 0;

using Maker = std::unique_ptr<QWidget> (*)();

template <typename Form, auto... arguments>
std::unique_ptr<QWidget> Make()
{
    return std::make_unique<Form>(arguments...);
}

/// Marie's last day of the year, or the record that she has.
template <AttendanceKind kind>
std::unique_ptr<QWidget> MakeAttendance()
{
    AttendanceJob job{SessionState, kind, {SerialOfDate({2026, 12, 31})}};
    job.EmployeeID = marieID;
    job.RecordToModify = kind == AttendanceKind::Modify ? recordID : 0;
    return std::make_unique<frmAttendance>(job);
}

std::unique_ptr<QWidget> MakeMessage()
{
    return std::make_unique<frmMessageBox>(Message{.Text = T("One\tTwo", "Un\tDeux"), .Set = Buttons::YesNo});
}

/// Every form that can be opened by itself. A form that a command opens must be among them.
const std::pair<const char*, Maker> kForms[] = {
    {"frmMain",
     [] {
         auto main = std::make_unique<frmMain>();
         main->Form_Load();
         main->timAbsence_Timer();
         return std::unique_ptr<QWidget>(std::move(main));
     }},
    {"frmOrganizations", Make<frmOrganizations>},
    {"frmDepartments", Make<frmDepartments>},
    {"frmGroups", Make<frmGroups>},
    {"frmCategories", Make<frmCategories>},
    {"frmSelectColor", [] { return std::unique_ptr<QWidget>(new frmSelectColor(0, "Vacation")); }},
    {"frmHolidays", Make<frmHolidays>},
    {"frmEmployees", Make<frmEmployees>},
    {"frmCloneEmployee", [] { return std::unique_ptr<QWidget>(new frmCloneEmployee(newEmployee)); }},
    {"frmTransferEmployees", Make<frmTransferEmployees>},
    {"frmEntitlements", Make<frmEntitlements>},
    {"frmEntitlementHistory",
     [] { return std::unique_ptr<QWidget>(new frmEntitlementHistory(EntitlementLine(), "")); }},
    {"frmLists", Make<frmLists, ListKind::Categories>},
    {"frmLists", Make<frmLists, ListKind::Employees>},
    {"frmAttendance", MakeAttendance<AttendanceKind::Add>},
    {"frmAttendance", MakeAttendance<AttendanceKind::Submit>},
    {"frmAttendance", MakeAttendance<AttendanceKind::Modify>},
    {"frmApproval",
     [] {
         auto form = std::make_unique<frmApproval>();
         auto* groups = form->findChild<QComboBox*>("cboRecords");
         EXPECT_GT(groups->count(), 0);
         groups->setCurrentIndex(groups->count() - 1);
         return std::unique_ptr<QWidget>(std::move(form));
     }},
    {"frmSelectEmployee", Make<frmSelectEmployee>},
    {"frmSelectDates", [] { return std::unique_ptr<QWidget>(new frmSelectDates(EntireYear(), SessionState)); }},
    {"frmSelectPeriod", Make<frmSelectPeriod, PeriodMode::Range>},
    {"frmSelectPeriod", Make<frmSelectPeriod, PeriodMode::SingleDate>},
    {"frmSelectPeriod", Make<frmSelectPeriod, PeriodMode::Schedule>},
    {"frmSelectWeekdays", Make<frmSelectWeekdays>},
    {"frmGetApprovedBy",
     [] {
         return std::unique_ptr<QWidget>(new frmGetApprovedBy(CalendarSelection{1, 1, 1, 1, "Marie Roy"}));
     }},
    {"frmGetApproverFromList", [] { return std::unique_ptr<QWidget>(new frmGetApproverFromList("Marie Roy")); }},
    {"frmSelectAttendanceRecord",
     [] {
         return std::unique_ptr<QWidget>(new frmSelectAttendanceRecord({{"1", 1}, {"2", 2}}));
     }},
    {"frmTargettedEMail",
     [] { return std::unique_ptr<QWidget>(new frmTargettedEMail({.WebAddress = "http://example.org/2026"})); }},
    {"frmMail", [] { return std::unique_ptr<QWidget>(new frmMail("report.pdf")); }},
    {"frmInputBox", [] { return std::unique_ptr<QWidget>(new frmInputBox(T("A", "B"), T("A", "B"))); }},
    {"frmAbout", Make<frmAbout>},
    {"frmChangePassword", Make<frmChangePassword>},
    {"frmUpdateAdminInfo", Make<frmUpdateAdminInfo>},
    {"frmLogin", [] { return std::unique_ptr<QWidget>(new frmLogin(1, "2027")); }},
    {"frmLogin", Make<frmLogin, 1>},
    {"frmMessageBox", MakeMessage},
    {"frmSplashScreen", Make<frmSplashScreen>},
    {"frmSetUpWizard", Make<frmSetUpWizard>},
};

/// What reads the same in both languages, and who speaks both at once until a language is chosen.
const QStringList kSameInFrench = {"OK",     "&OK",       "Tarvell",       "Global",        "Minutes", "Total", "ADMIN",
                                   "1 date", "Marie Roy", "Version 1.2.0", "Configuration", "h",       "min"};
const QString kBilingual = "frmSetUpWizard";
/// Whom Escape does not close: the wizard asks first.
const QStringList kStaying = {"frmMain", "frmSplashScreen", kBilingual};

/// Larger letters while it lives.
class ScaledLetters
{
public:
    explicit ScaledLetters(double scale)
    {
        QFont scaled = before_;
        scaled.setPointSizeF(scale * before_.pointSizeF());
        QApplication::setFont(scaled);
    }
    ~ScaledLetters() { QApplication::setFont(before_); }
    ScaledLetters(const ScaledLetters&) = delete;
    ScaledLetters& operator=(const ScaledLetters&) = delete;

private:
    const QFont before_ = QApplication::font();
};

class Forms : public HouseTest
{
protected:
    Forms()
    {
        house.Configured().Company();
        marieID = house.Hire({"MARIE", "Marie", "Roy", "Production", "Assembly", {"IsAuthorizedToApprove"}});
        house.LogIn("ADMIN");
        house.Sql("UPDATE Attendance SET SubmittedTo_Second = ? WHERE RecordID = ?",
                  {SessionState.UserID, house.Record(marieID, "Time claimed", {2026, 3, 9}, -7, true)});
        recordID = house.Record(marieID, "Sick", {2026, 12, 31}, 7);
    }

    QWidget& Open(Maker make, bool painted = true)
    {
        form_ = make();
        form_->setUpdatesEnabled(painted); // a third of the time, where nothing is looked at
        form_->show();
        user.Works(*form_);
        return *form_;
    }

    /// The texts of labels, buttons and tabs by what names their place; data and figures are left out.
    static QMap<QString, QString> Captions(const QWidget& form)
    {
        QMap<QString, QString> captions = {{"title", form.windowTitle()}};
        int place = 0;
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            const QString where = QString::number(++place) + control->objectName();
            if (const auto* label = qobject_cast<const QLabel*>(control))
                captions[where] = label->text();
            else if (const auto* button = qobject_cast<const QAbstractButton*>(control))
                captions[where] = button->text();
            else if (const auto* tabs = qobject_cast<const QTabWidget*>(control))
                for (int tab = 0; tab < tabs->count(); ++tab)
                    captions[where + QString::number(tab)] = tabs->tabText(tab);
        }
        captions.removeIf([](const auto& caption) { return !caption.value().contains(QRegularExpression("\\pL")); });
        return captions;
    }

    /// The texts of labels and buttons that have not the room that they ask for.
    static QStringList Clipped(const QWidget& form)
    {
        QStringList clipped;
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            if (!control->isVisible())
                continue;
            const auto* label = qobject_cast<const QLabel*>(control);
            if (label && label->wordWrap() && label->heightForWidth(label->width()) > label->height())
                clipped << label->text();
            const bool isCaption = qobject_cast<const QAbstractButton*>(control) || (label && !label->wordWrap());
            const QSize lacking = control->sizeHint() - control->size();
            if (isCaption && (lacking.width() > 0 || lacking.height() > 0))
                clipped << control->property("text").toString();
        }
        clipped.removeAll(QString()); // the arrows of a row of tabs
        return clipped;
    }

    /// The controls that a person reaches and a screen reader cannot name.
    static QStringList Nameless(const QWidget& form)
    {
        QStringList nameless;
        for (QWidget* control : form.findChildren<QWidget*>()) {
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->focusProxy())
                continue;
            QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(control);
            const bool isList = qobject_cast<const QComboBox*>(control); // the toolkit tells its entry for a name
            const bool hasLabel = reader && isList && !reader->relations(QAccessible::Label).isEmpty();
            const QString name = isList ? control->accessibleName() : reader ? reader->text(QAccessible::Name) : "none";
            if (name.trimmed().isEmpty() && !hasLabel && !qobject_cast<const QTabWidget*>(control) &&
                !control->inherits("QTabBar"))
                nameless << control->metaObject()->className() + QString(" ") + control->objectName();
        }
        return nameless;
    }

    /// What a screen reader says of two controls alike, so that they cannot be told apart.
    static QStringList SaidTwice(const QWidget& form)
    {
        QStringList said, twice;
        for (QWidget* control : form.findChildren<QWidget*>()) {
            QAccessibleInterface* reader =
                control->focusPolicy() & Qt::TabFocus ? QAccessible::queryAccessibleInterface(control) : nullptr;
            if (!reader || control->focusProxy() || !control->isVisible() || control->inherits("QTabWidget") ||
                control->inherits("QTabBar") || control->inherits("QScrollArea") ||
                qobject_cast<QComboBox*>(control->parentWidget()))
                continue;
            const QString own = control->accessibleName(); // of a list the toolkit tells its entry
            const QString name = own.isEmpty() ? reader->text(QAccessible::Name) : own;
            if (said.contains(QString::number(reader->role()) + name))
                twice << name;
            said << QString::number(reader->role()) + name;
        }
        return twice;
    }

    /// The greyed controls of which nobody has said why. A reason of what holds them counts; a tip alone does not.
    static QStringList Unexplained(const QWidget& form)
    {
        QStringList unexplained;
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            if (!control->isVisible() || control->isEnabled() || control->focusPolicy() == Qt::NoFocus)
                continue;
            const QWidget* told = control;
            while (told != &form && told->property(kWhyGreyed).toString().isEmpty())
                told = told->parentWidget();
            if (told == &form || told->isEnabled())
                unexplained << control->metaObject()->className() + QString(" ") + control->objectName();
        }
        return unexplained;
    }

    /// The lists in which an arrow takes an entry before it was seen.
    static QStringList TakenByAnArrow(const QWidget& form)
    {
        QStringList taken;
        for (auto* list : form.findChildren<QComboBox*>()) {
            if (!list->isVisible() || !list->isEnabled() || list->count() == 0)
                continue;
            const int before = list->currentIndex();
            QTest::keyClick(list, before > 0 ? Qt::Key_Up : Qt::Key_Down);
            if (list->currentIndex() != before || !list->view()->isVisible())
                taken << list->objectName();
            list->hidePopup();
        }
        return taken;
    }

    /// The controls in the order of the Tab key that can be reached by it now.
    static QList<QWidget*> TabOrder(QWidget& form)
    {
        QList<QWidget*> order;
        for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain())
            if (next->focusPolicy() & Qt::TabFocus && next->isVisible() && next->isEnabled() && !next->focusProxy() &&
                form.isAncestorOf(next))
                order << next;
        return order;
    }

    /// The letters that stand on several controls which can be used at once: none of them goes off then.
    static QStringList LettersTwice(const QWidget& form)
    {
        QStringList seen, twice;
        for (const QWidget* control : form.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(control);
            const bool usable = control->isVisible() && control->isEnabled() && (!label || label->buddy());
            const QKeySequence letter = QKeySequence::mnemonic(control->property("text").toString());
            const bool isCaption = label || qobject_cast<const QAbstractButton*>(control);
            if (!usable || !isCaption || letter.isEmpty())
                continue;
            if (seen.contains(letter.toString()))
                twice << control->property("text").toString();
            seen << letter.toString();
        }
        return twice;
    }

    /// The controls on which nothing shows that they have the focus.
    static QStringList WithoutFocusShown(QWidget& form)
    {
        QStringList without;
        for (QWidget* control : TabOrder(form)) {
            form.setFocus();
            const QImage before = control->grab().toImage();
            control->setFocus(Qt::TabFocusReason);
            if (control->hasFocus() && control->grab().toImage() == before)
                without << control->metaObject()->className() + QString(" ") + control->objectName();
        }
        return without;
    }

    static bool IsWayOut(const QWidget* control)
    {
        return QStringList{"cmdQuit", "cmdCancel", "cmdCancelOperation"}.contains(control->objectName()) ||
               control->property("wayOut").toBool();
    }

    static bool InFoot(const QWidget& form, const QWidget* control)
    {
        const auto layouts = form.findChildren<QLayout*>();
        return std::any_of(layouts.begin(), layouts.end(), [control](const QLayout* layout) {
            return dynamic_cast<const FootLayout*>(layout) && layout->indexOf(control) >= 0;
        });
    }

    /// Where a control stands to the eye that comes from another one: in a page that scrolls, where that page does.
    static QRect Place(const QWidget& form, const QWidget* control, const QWidget* other)
    {
        for (const QWidget* above = control->parentWidget(); above && above != &form; above = above->parentWidget())
            if (qobject_cast<const QScrollArea*>(above) && !above->isAncestorOf(other))
                control = above;
        return {control->mapTo(&form, QPoint()), control->size()};
    }

    /// Where the Tab key goes up without going right, the lines of the foot left out, whose last one holds the main
    /// button; and the ways out that it meets before a main button that can be pressed.
    static QStringList AgainstTheOrder(QWidget& form)
    {
        QStringList against;
        const QList<QWidget*> order = TabOrder(form);
        const auto isMain = [](const QWidget* control) { return control->property("look") == "main"; };
        bool mainPassed = std::none_of(order.begin(), order.end(), isMain);
        const QWidget* before = nullptr;
        for (const QWidget* control : order) {
            mainPassed = mainPassed || isMain(control);
            if (IsWayOut(control) && !mainPassed)
                against << control->objectName() + " before the main button";
            if (before && !(InFoot(form, before) && InFoot(form, control))) {
                const QRect place = Place(form, control, before), last = Place(form, before, control);
                if (place.bottom() < last.top() && place.left() <= last.left())
                    against << before->objectName() + " then up to " + control->objectName();
            }
            before = control;
        }
        return against;
    }

    /// What stands between the main button and the way out of the form, or beyond it.
    static QStringList AtWrongPlaces(const QWidget& form)
    {
        const QPushButton *main = nullptr, *wayOut = nullptr;
        const QList<QPushButton*> foot = form.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly);
        for (const QPushButton* button : foot)
            if (button->isVisible() && button->property("look") == "main")
                main = button;
            else if (button->isVisible() && IsWayOut(button) && button->objectName() != "cmdCancelOperation")
                wayOut = button;
        QStringList wrong;
        for (const QPushButton* button : foot)
            if (main && button->isVisible() && button->y() == main->y() &&
                (button->x() > main->x() ||
                 (wayOut && button != wayOut && button != main && button->x() > wayOut->x())))
                wrong << button->objectName();
        return wrong;
    }

    /// What stands outside the form, or in its foot below the edge of the screen.
    static QStringList Outside(const QWidget& form)
    {
        QStringList outside;
        const QSize screen = form.screen()->availableSize();
        if (form.frameGeometry().width() > screen.width() || form.frameGeometry().height() > screen.height())
            outside << "the form itself";
        for (const auto* control : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (control->isVisible() && !control->isWindow() && !form.rect().contains(control->geometry()))
                outside << control->objectName();
        return outside;
    }

    /// The pages and rows of tabs that can only be read by scrolling sideways.
    static QStringList Sideways(const QWidget& form)
    {
        QStringList sideways;
        for (const auto* area : form.findChildren<QScrollArea*>())
            if (area->isVisible() && area->horizontalScrollBar()->isVisible())
                sideways << area->widget()->objectName();
        for (const auto* tabs : form.findChildren<QTabBar*>())
            if (tabs->isVisible() && tabs->sizeHint().width() > tabs->parentWidget()->width())
                sideways << "the tabs of " + tabs->parentWidget()->objectName();
        return sideways;
    }

    /// Turns to each tab and each step of a form.
    static void OnEachPage(QWidget& form, const std::function<void()>& check)
    {
        QStackedWidget* pages = nullptr;
        for (auto* stack : form.findChildren<QStackedWidget*>())
            pages = stack;
        for (int page = 0; pages && page < pages->count(); ++page) {
            auto* tabs = qobject_cast<QTabWidget*>(pages->parentWidget());
            tabs ? tabs->setCurrentIndex(page) : pages->setCurrentIndex(page);
            QCoreApplication::processEvents();
            check();
        }
        if (!pages)
            check();
        else if (auto* tabs = qobject_cast<QTabWidget*>(pages->parentWidget()))
            tabs->setCurrentIndex(0);
    }

    bool LeavesAtEscape()
    {
        try {
            return !user.Presses("", Qt::Key_Escape).The<QWidget>().isVisible();
        } catch (const ProgramEnded&) {
            return true;
        }
    }

    /// As if the form had been opened on that screen.
    static void MovesTo(QWidget& form, QScreen* screen)
    {
        form.setScreen(screen);
        form.move(screen->availableGeometry().topLeft() + QPoint(8, 40));
        form.resize(form.sizeHint());
        QCoreApplication::processEvents();
    }

    /// What holds in each mode of a form.
    static void IsInOrder(QWidget& form)
    {
        EXPECT_EQ(Clipped(form), QStringList());
        EXPECT_EQ(Nameless(form), QStringList());
        EXPECT_EQ(Unexplained(form), QStringList());
        EXPECT_EQ(AgainstTheOrder(form), QStringList());
        EXPECT_EQ(AtWrongPlaces(form), QStringList());
    }

    std::unique_ptr<QWidget> form_;
};

TEST_F(Forms, EachSpeaksBothLanguagesNamesItsControlsAndLeavesAtEscape)
{
    for (const auto& [name, make] : kForms) {
        SCOPED_TRACE(name);
        QMap<QString, QString> english;
        for (const bool inEnglish : {true, false}) {
            SessionState.English = inEnglish;
            QWidget& form = Open(make);
            EXPECT_EQ(form.objectName(), name);
            OnEachPage(form, [&form] {
                IsInOrder(form);
                EXPECT_EQ(Outside(form), QStringList());
                EXPECT_EQ(Sideways(form), QStringList());
                EXPECT_EQ(SaidTwice(form), QStringList());
                EXPECT_EQ(TakenByAnArrow(form), QStringList());
                EXPECT_EQ(LettersTwice(form), QStringList());
                EXPECT_EQ(SessionState.English ? WithoutFocusShown(form) : QStringList(), QStringList());
            });
            const QMap<QString, QString> captions = Captions(form);
            for (auto caption = captions.begin(); caption != captions.end() && name != kBilingual; ++caption)
                EXPECT_TRUE(caption.value() != english.value(caption.key()) || kSameInFrench.contains(caption.value()))
                    << qPrintable(caption.key()) << ": " << qPrintable(caption.value());
            if (inEnglish)
                english = captions;
            EXPECT_TRUE(kStaying.contains(name) || LeavesAtEscape());
            form_.reset();
        }
    }
}

TEST_F(Forms, EachModeOfAnEditorIsWalkedToo)
{
    const std::array modes = {"cmdAdd", "cmdModify", "cmdDeactivate"};
    for (const auto& [name, make] : kForms) {
        if (!QString(name).contains(QRegularExpression("Organizations|Departments|Groups|Categories|Employees$")) ||
            QString(name) == "frmTransferEmployees")
            continue;
        for (const char* mode : modes) {
            SCOPED_TRACE(std::string(name) + " " + mode);
            SessionState.English = QLatin1String(mode) != "cmdModify";
            QWidget& form = Open(make);
            if (QString(name) == "frmEmployees")
                mode == modes.front() ? user.WhenOpens<frmCloneEmployee>([](QDialog& clone) { clone.reject(); })
                                      : user.WhenOpens<frmSelectEmployee>([this](QDialog&) {
                                            user.Picks("lstEmployees", "Roy").Clicks("cmdSelect");
                                        });
            user.Clicks(mode);
            QCoreApplication::processEvents();
            OnEachPage(form, [&form] { IsInOrder(form); });
        }
    }
}

TEST_F(Forms, AFormOpensWholeOnTheScreenOfTheWindowThatItBelongsTo)
{
    for (const double scale : {1.0, 1.5})
        for (const QScreen* screen : QApplication::screens()) {
            if (scale > 1 && screen->size().width() < 1920)
                continue;
            const ScaledLetters letters(scale);
            QWidget main;
            main.setGeometry(QRect(screen->availableGeometry().bottomRight() - QPoint(500, 300), QSize(490, 290)));
            main.show();
            for (const auto& [name, make] : kForms) {
                SCOPED_TRACE(
                    QStringLiteral("%1 at %2 on %3").arg(name).arg(scale).arg(screen->size().width()).toStdString());
                const std::unique_ptr<QWidget> form = make();
                if (!dynamic_cast<FormBase*>(form.get()))
                    continue;
                form->setParent(&main, form->windowFlags());
                form->setUpdatesEnabled(false);
                form->show();
                QCoreApplication::processEvents();
                QCoreApplication::processEvents();
                EXPECT_TRUE(screen->availableGeometry().contains(form->frameGeometry()));
                if (screen->size().width() >= 1366)
                    OnEachPage(*form, [&form] { EXPECT_EQ(Sideways(*form), QStringList()); });
            }
        }
}

/// Letters of each size, on each screen down to 1920x1080 at 200 %: pages scroll, nothing is cut, and the buttons at
/// the foot can be reached, in the order of the Tab key.
TEST_F(Forms, AtEachSizeOfLettersAndScreenNothingIsCutAndTheButtonsCanBeReached)
{
    for (const auto& [scale, english] :
         {std::pair(1.0, true), {1.0, false}, {1.5, true}, {1.5, false}, {2.0, true}, {2.0, false}}) {
        SessionState.English = english;
        const ScaledLetters letters(scale);
        for (const auto& [name, make] : kForms) {
            if (make == MakeMessage) // measured for the screen on which it opens
                continue;
            QWidget& form = Open(make, false);
            for (QScreen* screen : QApplication::screens()) {
                MovesTo(form, screen);
                SCOPED_TRACE(QStringLiteral("%1 at %2 on %3 pixels")
                                 .arg(name)
                                 .arg(scale)
                                 .arg(screen->size().width())
                                 .toStdString());
                OnEachPage(form, [&form] {
                    EXPECT_EQ(Outside(form), QStringList());
                    EXPECT_EQ(Clipped(form), QStringList());
                    EXPECT_EQ(Nameless(form), QStringList());
                    EXPECT_EQ(AgainstTheOrder(form), QStringList());
                });
            }
        }
    }
    form_.reset();
}

TEST_F(Forms, AllThatCommandsOpenAreWalked)
{
    QStringList opened;
    SetModalRunner([&opened](const QDialog& form) {
        opened << form.objectName();
        return QDialog::Rejected;
    });
    SetMessagePresenter([](const Message&) { return MessageCode::Cancel; });
    auto& main = dynamic_cast<frmMain&>(Open(kForms[0].second));
    for (const Command& command : Commands())
        if (command.Opens)
            try {
                command.Opens(main);
            } catch (const ProgramEnded&) {
                EXPECT_EQ(command.Name, "mnuFileExit");
            }
    EXPECT_TRUE(opened.contains("frmEmployees") && opened.contains("frmSelectEmployee"));
    for (const auto& [name, make] : kForms)
        opened.removeAll(name);
    EXPECT_EQ(opened, QStringList());
}
} // namespace
