#include "tour.h"

#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "calendar/frm_program.h"
#include "foundation/connection.h"
#include "foundation/frm_about.h"
#include "foundation/frm_change_password.h"
#include "foundation/frm_login.h"
#include "foundation/frm_message_box.h"
#include "foundation/frm_splash_screen.h"
#include "foundation/frm_update_admin_info.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_employee.h"
#include "setup/frm_set_up_wizard.h"
#include "support/keyboard.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QTextStream>

namespace
{
QString ProgramFolderOf(const QString& folder, bool english)
{
    return QDir(folder).absoluteFilePath(english ? "english" : "french");
}
} // namespace

Tour::Tour(const QString& folder, bool english)
    : folder_(folder), english_(english), house_(ProgramFolderOf(folder, english))
{
    house_.Today(2026, 11, 23);
    SessionState.English = english;
    user_.SeesMessage = [this](const Message& message) { PhotoMessage(message); };
}

Tour::~Tour() = default;

void Tour::Walk()
{
    user_.UsesKeysOnly(!english_); // the first hour in French is one without a mouse
    SetUpWorkstation();
    LogInAsAdministrator();
    AddUnits();
    AddHolidays();
    AddPeople();
    TakeVacation();
    user_.UsesKeysOnly(false);
    TransferEmployee();
    DeactivateEmployee();
    ModifyEmployee();
    ListEmployees();
    MaintainCategories();
    TakePeriod();
    FallSick();
    AccumulateTime();
    ModifyRecord();
    AdjustEntitlement();
    WarnOfExceededEntitlement();
    BorrowTime();
    TakeHiddenLeave();
    VisitSmallForms();
    GiveTheApproverADayOff();
    ChooseMailProgram();
    ChooseLanguages();
    RequestLeave();
    RequestTooMuch();
    WithdrawRequest();
    SettleRequest();
    HearOutcome();
    KeepMail();
    Confirm();
}

void Tour::Say(const QString& what) const
{
    QTextStream(stdout) << (english_ ? "[en] " : "[fr] ") << what << "\n";
}

void Tour::Photo(const QString& name)
{
    for (int pass = 0; pass < 3; ++pass) // nested layouts settle one level at a time
        QCoreApplication::processEvents();
    if (!user_.The<QWidget>().grab().save(QStringLiteral("%1/%2_%3.png").arg(folder_, name, english_ ? "en" : "fr")))
        Complain("cannot save the picture " + name);
}

void Tour::Choose(const char* menu)
{
    auto* entry = main_->findChild<QAction*>(menu);
    if (user_.HasKeysOnly())
        Keyboard::Choose(*main_, *entry);
    else
        entry->trigger();
}

void Tour::PhotoMessage(const Message& message)
{
    frmMessageBox box(message);
    box.show();
    QTest::qWait(20); // the face comes with the first tick
    box.grab().save(QStringLiteral("%1/message_%2_%3.png")
                        .arg(folder_)
                        .arg(++messages_, 2, 10, QLatin1Char('0'))
                        .arg(english_ ? "en" : "fr"));
}

void Tour::Start()
{
    program_ = std::make_unique<Program>();
    program_->Start();
    while (!program_->Main())
        QApplication::processEvents();
    main_ = program_->Main();
    main_->timAbsence_Timer();
    user_.Works(*main_);
}

void Tour::SetUpWorkstation()
{
    Say("An empty folder: the wizard sets the workstation up");
    user_.Opens<frmSplashScreen>();
    Photo("splash");
    user_.Leaves().WhenOpens<frmSetUpWizard>([this](frmSetUpWizard&) { WorkWizard(); });
}

void Tour::WorkWizard()
{
    Photo("wizard_1_language");
    user_.Clicks(english_ ? "optEnglish" : "optFrench").Clicks("cmdNext");
    user_.Clicks("optNewAccessDatabase");
    Photo("wizard_2_kind");
    user_.Clicks("cmdNext");
    Photo("wizard_3_database");
    user_.Clicks("cmdNext").Types("txtFiscalYearName", "2026");
    user_.Picks("cboStartMonth", T("January", "janvier")).Picks("cboStartYear", "2026");
    Photo("wizard_4_fiscal_year");
    user_.Clicks("cmdNext");
    user_.Types("txtHours_Vacation", "105").Types("txtHours_Sick", "35");
    user_.Checks("chkPersonalTime_NoEntitlement").Checks("chkDoctor_EntitlementVaries");
    user_.Checks("chkVacation_CarryOver");
    Photo("wizard_5_categories");
    user_.Clicks("cmdNext");
    user_.Types("txtAdminFamilyName", "Tremblay").Types("txtAdminFirstName", "Alice");
    user_.Types("txtAdminPhoneNumber", "418-555-0100")
        .Types("txtAdminPassword", "secret")
        .LeavesField("txtAdminPassword");
    Photo("wizard_6_administrator");
    user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
    user_.WillAnswer(T("CONFIGURATION COMPLETED SUCCESSFULLY:", "CONFIGURATION INITIALE COMPLÉTÉE:"), "OK");
    user_.WillAnswer(T("SENDING E-MAIL USING TARVELL:", "ENVOI DE COURRIELS AVEC TARVELL:"), // at the first tick
                     T("Outlook Express or others", "Outlook Express ou autres"));
    user_.Clicks("cmdNext");
}

void Tour::LogInAsAdministrator()
{
    Say("The administrator logs in");
    LogInAs("admin", "secret");
    Photo("main_window_start");
}

void Tour::LogInAs(const QString& loginID, const QString& password)
{
    WillLogInAs(loginID, password);
    Start();
}

void Tour::WillLogInAs(const QString& loginID, const QString& password)
{
    user_.WhenOpens<frmLogin>([this, loginID, password](frmLogin&) {
        user_.Types("txtUserName", loginID).Types("txtPassword", password);
        Photo("login");
        user_.Clicks("cmdOK");
    });
}

void Tour::ChooseEmployee(const QString& department, const QString& name)
{
    user_.WhenOpens<frmSelectEmployee>([this, department, name](frmSelectEmployee&) {
        user_.Picks("lstDepartments", department).Picks("lstEmployees", name);
        Photo("select_employee");
        user_.Clicks("cmdSelect");
    });
    user_.Clicks("imgUpdateSelection");
}

void Tour::ClickDays(int month, std::initializer_list<int> days)
{
    auto* grid = main_->findChild<FlexGrid*>("flxCalendar");
    if (user_.HasKeysOnly())
        return MarkByKeys(*grid, month, *days.begin(), *std::prev(days.end()));
    for (const int day : days) {
        const QPoint place = main_->Calendar().PlaceOf(SerialOfDate({2026, month, day}));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->CellRect(place.y(), place.x()).center());
    }
}

/// Goes to the first day and marks up to the last with Shift.
void Tour::MarkByKeys(QWidget& calendar, int month, int first, int last)
{
    const auto press = [&](Qt::Key key, int times, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        while (times-- > 0)
            QTest::keyClick(&calendar, key, modifiers);
    };
    Keyboard::Reach(*main_, calendar);
    press(Qt::Key_Home, 1, Qt::ControlModifier);
    press(Qt::Key_PageDown, month - 1);
    press(Qt::Key_Right, first - 1);
    press(Qt::Key_Right, last - first, Qt::ShiftModifier);
}

void Tour::UseSeveralDates()
{
    if (user_.HasKeysOnly())
        QTest::keyClick(main_->focusWidget(), Qt::Key_2, Qt::ControlModifier);
    else
        user_.Clicks("imgCreateMultiple");
}

void Tour::TakeVacation()
{
    Say("Marie takes vacation on dates marked one by one");
    ChooseEmployee(T("Production", "Fabrication"), "Bouchard, Marie");
    UseSeveralDates();
    ClickDays(12, {14, 15, 16});
    Photo("main_window_marking");
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        Photo("attendance_general");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    UseSeveralDates();
}

void Tour::TakePeriod()
{
    Say("and two summer weeks around a holiday");
    user_.WhenOpens<frmSelectDates>([this](frmSelectDates&) {
        user_.Picks("cboFrom", FormatDate(SerialOfDate({2026, 6, 29}), "ddd dd-mmm-yyyy"));
        user_.Picks("cboTo", FormatDate(SerialOfDate({2026, 7, 10}), "ddd dd-mmm-yyyy"));
        Photo("select_dates");
        user_.Clicks("cmdOK");
    });
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    user_.Clicks("imgCreateConsecutive");
}

void Tour::FallSick()
{
    Say("A morning of sickness and an afternoon at the doctor's share a day");
    const std::pair<QString, QString> halves[] = {{T("Sick", "Maladie"), "chkFirstHalf"},
                                                  {T("Doctor appointments", "Rendez-vous médical"), "chkSecondHalf"}};
    bool first = true;
    for (const auto& [category, half] : halves) {
        user_.Clicks("imgCreateSingle");
        user_.WhenOpens<frmAttendance>([this, category = category, half = half, first](frmAttendance&) {
            if (!first) // nothing has been granted for it
                user_.WillAnswer(T("WARNING:", "ATTENTION:"), T("Yes", "Oui"));
            user_.Picks("cboCategories", category).Checks(half);
            user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
        });
        if (!first)
            user_.WillAnswer(T("WARNING:", "ATTENTION:"), T("Yes", "Oui"));
        ClickDays(10, {22});
        first = false;
    }
}

void Tour::AccumulateTime()
{
    Say("Overtime on a holiday goes into the time bank");
    user_.Clicks("imgCreateSingle");
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Time accumulated", "Temps accumulé"));
        user_.Picks("cboStartTime", "22:30").Picks("cboEndTime", "01:00").Picks("lstMultiplicator", " x 1.50");
        user_.Types("txtComment", "Inventory of the year");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    user_.WillAnswer(T("WARNING!", "ATTENTION!"), T("Yes", "Oui"));
    ClickDays(9, {7});
}

void Tour::ModifyRecord()
{
    Say("A record is changed, the old one is kept");
    user_.Picks("cboCategories", T("Sick", "Maladie")).Clicks("imgModify");
    user_.WhenOpens<frmAttendance>([this](frmAttendance& form) {
        user_.Types("txtDurationInHours", "2").LeavesField("txtDurationInHours");
        user_.Types("txtDurationInMinutes", "15").LeavesField("txtDurationInMinutes");
        form.findChild<QTabWidget*>("sstAttendance")->setCurrentIndex(1);
        user_.Checks("chkJustified").Types("txtComment", T("With a doctor's note", "Avec billet du médecin"));
        Photo("attendance_additional");
        user_.WillAnswer(T("WARNING:", "ATTENTION:"), T("Yes", "Oui"));
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
        user_.WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK").Clicks("cmdAddOrUpdate");
    });
    ClickDays(10, {22});
    user_.Picks("cboCategories", T("(All categories)", "(Toutes les catégories)"));
    Photo("main_window");
    ClickDays(10, {22});
    Photo("main_window_day");
}

void Tour::VisitSmallForms()
{
    Say("The small forms");
    user_.WhenOpens<frmChangePassword>([this](frmChangePassword&) {
        Photo("change_password");
        user_.Clicks("cmdCancel");
    });
    Choose("mnuSpecialChangePassword");
    user_.WhenOpens<frmUpdateAdminInfo>([this](frmUpdateAdminInfo&) {
        Photo("update_admin_info");
        user_.Clicks("cmdCancel");
    });
    Choose("mnuSpecialUpdateAdminInfo");
    user_.WhenOpens<frmAbout>([this](frmAbout&) {
        Photo("about");
        user_.Clicks("cmdOK");
    });
    Choose("mnuHelpAbout");
}

/// What the walk must have left in the database, read back with plain SQL.
void Tour::Confirm()
{
    const std::pair<const char*, const char*> expected[] = {
        {"SELECT COUNT(*) || '|' || SUM(TotalDuration) FROM Attendance A, Categories C WHERE A.CategoryID = C.RecordID "
         "AND "
         "SystemName = 'Vacation' AND Submitted = 0 AND CancelledDate = 0",
         "14|98.0"},
        {"SELECT COUNT(DISTINCT CategoryID) FROM Attendance WHERE RecordDate = 46317", "2"},
        {"SELECT Duration || '|' || TotalDuration || '|' || EndTime FROM Attendance A, Categories C WHERE A.CategoryID "
         "= "
         "C.RecordID AND SystemName = 'Time accumulated'",
         "2.5|3.75|25.0"},
        {"SELECT SUM(TotalDuration) FROM Attendance A, Categories C WHERE A.CategoryID = C.RecordID AND "
         "TimeBankRelated = 1",
         "-3.25"},
        {"SELECT COUNT(*) || '|' || SUM(E.CarriedOver) || '|' || SUM(M.CarriedOver) FROM Entitlements E, "
         "Entitlements_Modifications M WHERE E.RecordID = M.RecordID",
         "1|3.5|0.0"},
        {"SELECT GROUP_CONCAT(CategoryEnglishName || '=' || CategoryFrenchName || '=' || CategoryCode, '|') FROM "
         "Categories WHERE CategoryCode <> ''",
         "Vacation=Vacances=V|Training=Formation=F|Special leave=Congé spécial=X"},
        {"SELECT COUNT(*) || '|' || COUNT(DISTINCT HolidayName) FROM Holidays WHERE CancelledDate = 0", "4|3"},
        {"SELECT GROUP_CONCAT((RecordDate - 46379) || '=' || Submitted || RequestStatus || ApprovedBy || '/' || "
         "DeniedBy "
         "|| '/' || CancelledBy || (CancelledDate > 0), ' ') FROM Attendance WHERE SubmittedBy > 0",
         "0=04LCOTE//0 1=04/LCOTE/1 5=11//0 6=01//PROY1"},
        {"SELECT COUNT(*) || '|' || Duration FROM Attendance_Modifications", "1|3.5"},
        {"SELECT GROUP_CONCAT(DISTINCT UnitCost) FROM Attendance", "2450,2600"},
        {"SELECT COUNT(*) || '|' || SUM(DeactivatedDate > 0) || '|' || COUNT(DISTINCT DepartmentID) FROM Employees "
         "WHERE "
         "FiscalYear = 1",
         "6|1|4"},
        {"SELECT COUNT(*) || '|' || SUM(Active) FROM Entitlements", "34|21"},
        {"SELECT HourlyRate || '|' || AddressLine2 || '|' || (SELECT LoginID FROM Employees A WHERE A.RecordID = "
         "Employees.AttendanceApprovedBy_Main) FROM Employees WHERE LoginID = 'PROY'",
         "26|G1R 2B5|LCOTE"},
    };
    for (const auto& [sql, result] : expected) {
        const QString found = house_.Rows(sql);
        Say(QStringLiteral("%1 = %2").arg(QString(sql).simplified(), found));
        if (found != QString::fromUtf8(result))
            Complain("expected " + QString(result));
    }
}
