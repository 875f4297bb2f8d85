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
#include "foundation/frm_update_admin_info.h"
#include "ledger/frm_entitlement_history.h"
#include "ledger/frm_entitlements.h"
#include "mail/frm_mail.h"
#include "mail/frm_targetted_email.h"
#include "platform/clock.h"
#include "reference/frm_categories.h"
#include "reference/frm_holidays.h"
#include "reference/frm_select_color.h"
#include "reference/frm_unit.h"
#include "reports/frm_lists.h"
#include "selection/frm_get_approver_from_list.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"
#include "selection/frm_select_weekdays.h"
#include "selection/period_choice.h"
#include "setup/frm_set_up_wizard.h"
#include "support/house_test.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

namespace
{
EmployeeRecord newEmployee;

using Maker = std::unique_ptr<QWidget> (*)();

template <typename Form, auto... arguments>
std::unique_ptr<QWidget> Make()
{
    return std::make_unique<Form>(arguments...);
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
    {"frmAttendance",
     [] {
         const AttendanceJob job{SessionState, AttendanceKind::Add, {SerialOfDate({2026, 12, 31})}};
         return std::unique_ptr<QWidget>(new frmAttendance(job));
     }},
    {"frmSelectEmployee", Make<frmSelectEmployee>},
    {"frmSelectDates", [] { return std::unique_ptr<QWidget>(new frmSelectDates(EntireYear(), SessionState)); }},
    {"frmSelectPeriod", Make<frmSelectPeriod>},
    {"frmSelectWeekdays", Make<frmSelectWeekdays>},
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
    {"frmSetUpWizard", Make<frmSetUpWizard>},
};

/// What reads the same in both languages, and who speaks both at once until a language is chosen.
const QStringList kSameInFrench = {"OK",    "&OK",    "Tarvell",       "Global",        "Minutes", "Total",
                                   "ADMIN", "1 date", "Version 1.2.0", "Configuration", "h",       "min"};
const QString kBilingual = "frmSetUpWizard";
/// Whom Escape does not close: the wizard asks first.
const QStringList kStaying = {"frmMain", kBilingual};

class Forms : public HouseTest
{
protected:
    Forms()
    {
        house.Configured().Company();
        house.Hire({"MARIE", "Marie", "Roy", "Production", "Assembly", {"IsAuthorizedToApprove"}});
        house.LogIn("ADMIN");
    }

    QWidget& Open(Maker make)
    {
        form_ = make();
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
            if (isCaption && control->sizeHint().width() > control->width())
                clipped << control->property("text").toString();
        }
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
            if (reader && reader->text(QAccessible::Name).trimmed().isEmpty() &&
                !qobject_cast<const QTabWidget*>(control) && !control->inherits("QTabBar"))
                nameless << control->metaObject()->className() + QString(" ") + control->objectName();
        }
        return nameless;
    }

    static bool FitsTheScreen(const QWidget& form)
    {
        const QSize screen = form.screen()->availableSize();
        return form.frameGeometry().width() <= screen.width() && form.frameGeometry().height() <= screen.height();
    }

    std::unique_ptr<QWidget> form_;
};

TEST_F(Forms, EachSpeaksBothLanguagesNamesItsControlsClipsNothingAndLeavesAtEscape)
{
    for (const auto& [name, make] : kForms) {
        SCOPED_TRACE(name);
        QMap<QString, QString> english;
        for (const bool inEnglish : {true, false}) {
            SessionState.English = inEnglish;
            const QWidget& form = Open(make);
            EXPECT_EQ(form.objectName(), name);
            EXPECT_EQ(Clipped(form), QStringList());
            EXPECT_EQ(Nameless(form), QStringList());
            EXPECT_TRUE(FitsTheScreen(form)) << form.frameGeometry().width() << "x" << form.frameGeometry().height();
            const QMap<QString, QString> captions = Captions(form);
            for (auto caption = captions.begin(); caption != captions.end() && name != kBilingual; ++caption)
                EXPECT_TRUE(caption.value() != english.value(caption.key()) || kSameInFrench.contains(caption.value()))
                    << qPrintable(caption.key()) << ": " << qPrintable(caption.value());
            if (inEnglish)
                english = captions;
            EXPECT_TRUE(kStaying.contains(name) || !user.Presses("", Qt::Key_Escape).The<QWidget>().isVisible());
            form_.reset();
        }
    }
}

/// Twice the letters, and the smallest screen: pages scroll, and the buttons at the foot can be reached.
TEST_F(Forms, WithLettersTwiceAsLargeTheirButtonsStayOnTheScreen)
{
    const QFont font = QApplication::font();
    QFont large = font;
    large.setPointSizeF(2 * font.pointSizeF());
    QApplication::setFont(large);
    for (const auto& [name, make] : kForms) {
        const QWidget& form = Open(make);
        if (!dynamic_cast<const FormBase*>(&form))
            continue;
        EXPECT_TRUE(FitsTheScreen(form)) << name;
        for (const auto* button : form.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly))
            EXPECT_TRUE(!button->isVisible() || form.rect().contains(button->geometry()))
                << name << " " << qPrintable(button->objectName());
    }
    form_.reset();
    QApplication::setFont(font);
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
        if (command.Opens && command.In == Place::Menus)
            try {
                command.Opens(main);
            } catch (const ProgramEnded&) {
                EXPECT_EQ(command.Name, "mnuFileExit");
            }
    EXPECT_TRUE(opened.contains("frmEmployees"));
    for (const auto& [name, make] : kForms)
        opened.removeAll(name);
    EXPECT_EQ(opened, QStringList());
}
} // namespace
