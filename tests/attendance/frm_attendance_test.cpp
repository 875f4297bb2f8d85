#include "attendance/attendance_fixture.h"
#include "attendance/frm_attendance.h"
#include "selection/frm_get_approved_by.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace
{
const char* const kWholeRows = "SELECT * FROM Attendance ORDER BY RecordID";

class FrmAttendance : public AttendanceTest
{
protected:
    User& Opens() { return user.Opens<frmAttendance>(entry); }

    /// Opens the form on a record that is to be modified.
    void Modify(int record, int employee, const QString& systemName, int day)
    {
        Begin({day}, employee, systemName);
        entry.Kind = AttendanceKind::Modify;
        entry.RecordToModify = record;
        Opens();
    }

    const AttendanceEntry& Entered() { return user.The<frmAttendance>().Entry(); }
};

TEST_F(FrmAttendance, ANewRecordIsAddedOnEverySelectedDate)
{
    Begin({2, 3}, chris, "Vacation");
    Opens();
    EXPECT_EQ(user.ReadsAll({"txtWhen", "lstWho", "cboCategories", "lblEmployeeName"}),
              "Mon   02-Mar-2026\nTue   03-Mar-2026|Davis, Chris /       Northern Works|Vacation|Chris Davis");
    EXPECT_EQ(user.Entries("cboStartTime").size() + user.Entries("lstMultiplicator").size(), 288 + 18);
    user.Checks("chkWholeDay").Picks("lstMultiplicator", " x 1.50");
    EXPECT_EQ(user.ReadsAll({"txtDurationInHours", "txtDurationInMinutes", "txtTotalTime"}), "07|00|21:00");
    user.Types("txtComment", " Don't #\"call").Presses("txtComment", Qt::Key_Return).Checks("chkJustified");
    user.Types("txtHourlyRate", "a30.5").LeavesField("txtHourlyRate");
    EXPECT_EQ(user.Reads("txtHourlyRate"), "30.50");
    user.WillConfirm("Add the following attendance record(s) to your database?\r\n\r\n"
                     "Mon 02-03-2026\tStart: 08:30\tEnd: 16:30   \tDuration: 07:00\r\n"
                     "Tue 03-03-2026\tStart: 08:30\tEnd: 16:30   \tDuration: 07:00\r\n")
        .Clicks("cmdAddOrUpdate");
    const QString row = "%1|1|3|1|1|1|1|%2|7|8.5|16.5|1.5|10.5|1|Don`t call|1|0|0|0|0|0|0|0||0|||ADMIN|46083||0||0|"
                        "30.50|3050|32025";
    EXPECT_EQ(house.Rows(kWholeRows), row.arg(1).arg(46083) + "\n" + row.arg(2).arg(46084));
    EXPECT_EQ(Entered().CurrentSelection, "Chris Davis");
    EXPECT_TRUE(SessionState.ReloadCalendar);
    EXPECT_EQ(user.The<frmAttendance>().result(), QDialog::Accepted);
}

TEST_F(FrmAttendance, ARequestNeedsAnApproverGoesToBothAndBearsTheRoundedMoment)
{
    const int eve = house.Hire({"EVE", "Ève", "Émond", "Sales", ""});
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 0, AttendanceApprovedBy_Backup = ?, EMailAddress = "
              "LOWER(LoginID) || '@example.org'",
              {eve});
    house.Today(2026, 3, 2, 15).LogIn("CHRIS");
    Begin({3}, chris, "Personal time");
    entry.Kind = AttendanceKind::Submit;
    SessionState.English = false;
    Opens();
    EXPECT_EQ(user.Entries("lstWho"), QStringList{"Davis, Chris"});
    EXPECT_EQ(user.Reads("txtHourlyRate"), "") << "no access to the employees' files";
    user.Picks("cboStartTime", "23:00").Picks("cboEndTime", "01:00");
    user.WhenOpens<frmGetApprovedBy>([this](frmGetApprovedBy&) {
        EXPECT_TRUE(user.Entries("lstApprovers").isEmpty()) << "nobody approves yet";
        EXPECT_FALSE(user.CanUse("cmdSelect"));
        user.Clicks("cmdCancel");
    });
    user.Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 0);

    house.Sql("UPDATE Employees SET IsAuthorizedToApprove = 1 WHERE RecordID IN (?, ?)", {marc, chris});
    user.WhenOpens<frmGetApprovedBy>([this](frmGetApprovedBy&) {
        EXPECT_TRUE(user.Reads("lblInstructions").startsWith("SÉLECTIONNEZ LE NOM DE L'EMPLOYÉ(E)"));
        EXPECT_EQ(user.Entries("lstApprovers"), QStringList{"Roy, Marc /          Fabrication"});
        user.Picks("lstApprovers", "Roy").Clicks("cmdSelect");
    });
    house.MailEnds["automation"] = {75, "no server"};
    house.MailEnds["MAPI"] = {3, "no mail program"};
    user.WillAnswer("DEMANDE DE CONGÉ:", "Oui", "\r\n\r\nTue 03-03-2026\tDébut: 23:00\tFin: 01:00   \tDurée: 02:00\r\n")
        .WillAnswer("DEMANDE DE CONGÉ ENREGISTRÉE:", "OK", "à Marc Roy copie conforme à Ève Émond. Si vous")
        .Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Rows(kWholeRows), "1|1|3|1|1|1|3|46084|2|23|25|1|2|0||0|1|46084|3|2|4|0|0||0|||CHRIS|46083||0||0|"
                                      "20.55|2055|4110");
    ASSERT_EQ(house.Mail.size(), 3) << "the request stands, although nobody could be told";
    EXPECT_TRUE(
        house.Mail[0].startsWith("MAPI|smtp:marc@example.org|TARVELL  -  Demande de congé|Chris Davis viens de"));
    EXPECT_TRUE(house.Mail[0].contains("Catégorie: Temps personnel\r\n\r\nDate(s) demandé(e)s:\r\n\r\nTue "
                                       "03-03-2026\tDébut: 23:00\tFin: 01:00   \tDurée: 02:00\r\n"));
    EXPECT_TRUE(house.Mail[2].startsWith("automation|eve@example.org|"));
    EXPECT_TRUE(house.Mail[2].contains("soumise à Marc Roy pour fin"));
    EXPECT_EQ(house.ReadFile("EMailErrors.log").count('\n'), 2);
    entry.FirstApprover.RecordID = entry.SecondApprover.RecordID = marc;
    GetApprovalNames(datAbsence, entry);
    EXPECT_EQ(entry.FirstApprover.Name + "|" + entry.SecondApprover.Name + "|" + entry.SecondApprover.EMailAddress,
              "Marc Roy|Marc Roy|marc@example.org");
}

TEST_F(FrmAttendance, WhoAsksSeesWhichApproversWillNotHearOfIt)
{
    const int eve = house.Hire({"EVE", "Ève", "Émond", "Sales", ""});
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Backup = ?", {eve});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?", {eve});
    house.LogIn("CHRIS");
    Begin({3}, chris, "Vacation");
    Opens();
    EXPECT_FALSE(user.CanUse("lblApprovers")) << "records need no approval";
    entry.Kind = AttendanceKind::Submit;
    Opens();
    EXPECT_EQ(
        user.Reads("lblApprovers"),
        "Marc Roy has no valid e-mail address and will not be told of this request by mail.\nÈve Émond has left and "
        "will not settle this request: see your system administrator.");

    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 0, AttendanceApprovedBy_Backup = 0, EMailAddress = "
              "NULL, IsAuthorizedToApprove = 1");
    Opens();
    EXPECT_FALSE(user.CanUse("lblApprovers"));
    user.WhenOpens<frmGetApprovedBy>(
        [this](frmGetApprovedBy&) { user.Picks("lstApprovers", "Roy").Clicks("cmdSelect"); });
    user.Types("txtDurationInHours", "2").WillAnswer("REQUEST FOR APPROVAL:", "No").Clicks("cmdAddOrUpdate");
    EXPECT_EQ(user.Reads("lblApprovers"),
              "Marc Roy has no valid e-mail address and will not be told of this request by mail.");
}

TEST_F(FrmAttendance, AModifiedRecordIsAuditedAsItWas)
{
    const int record = Record(chris, "Time claimed", 2, -2);
    Record(chris, "Time accumulated", 3, 20);
    house.Sql(
        "UPDATE Attendance SET StartTime = 8.55, EndTime = 10.55, TimeMultiplicator = 1.33, TotalDuration = -2.66,"
        " Comment = ' before ', Justified = 1, WholeDay = 1, HourlyRate = '18.00' WHERE RecordID = ?",
        {record});
    house.Today(2026, 3, 9);
    Modify(record, chris, "Time claimed", 2);
    EXPECT_FALSE(user.CanUse("lstWho"));
    EXPECT_EQ(user.ReadsAll({"cboStartTime", "cboEndTime", "chkWholeDay", "txtDurationInHours", "txtDurationInMinutes",
                             "lstMultiplicator", "txtTotalTime", "txtComment", "chkJustified", "txtHourlyRate"}),
              "08:33|10:33|1|02|00| x 1.33|-(02:40)|before|1|18.00");
    user.Picks("cboEndTime", "11:00").Types("txtHourlyRate", "");
    EXPECT_EQ(user.Entries("cboEndTime").size(), 288) << "a time off the five minutes stands there while it is shown";
    EXPECT_EQ(user.ReadsAll({"txtTotalTime", "chkWholeDay"}), "03:16|0");
    user.WillConfirm("Modify the selected attendance record as follows?\r\n\r\nCategory:\tTime claimed\r\n"
                     "Mon 02-03-2026\tStart: 08:33\tEnd: 11:00   \tDuration: -(02:27)\r\n")
        .WillBeDone("The selected attendance record has been modified.")
        .Clicks("cmdAddOrUpdate");
    const QString row = "SELECT RecordID, ROUND(Duration, 4), EndTime, WholeDay, Comment, EnteredDate, ModifiedBy, "
                        "ModifiedDate, HourlyRate, UnitCost, ExtendedCost FROM ";
    EXPECT_EQ(house.Rows(row + "Attendance_Modifications"), "1|-2|10.55|1| before |46083||0||0|0");
    EXPECT_EQ(house.Rows(row + "Attendance WHERE RecordID = 1"),
              "1|-2.45|11|0|before|46083|ADMIN|46090|20.55|2055|-6696");

    house.Sql("UPDATE Employees SET HourlyRate = 30");
    SessionState.AccessToEmployeesModule = 0;
    Modify(record, chris, "Time claimed", 2);
    EXPECT_EQ(user.Reads("txtHourlyRate"), "");
    user.Types("txtComment", "after").WillConfirm().WillBeDone().Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Rows("SELECT Comment, HourlyRate, UnitCost FROM Attendance WHERE RecordID = 1"), "after|20.55|2055")
        << "a rate that is not seen is not changed";
}

TEST_F(FrmAttendance, AFailureInTheMiddleLeavesTheEarlierRowsAndTheFormAsTyped)
{
    house.Refuses("INSERT ON Attendance WHEN NEW.RecordDate = 46085");
    Record(chris, "Vacation", 2, 1);
    Begin({2, 3, 4, 5, 6}, chris, "Sick");
    entry.ConflictsAccepted = true;
    Opens().Types("txtDurationInHours", "2").Types("txtComment", "flu");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused");
    user.Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Rows("SELECT RecordDate FROM Attendance WHERE Comment = 'flu'"), "46083\n46084");
    EXPECT_TRUE(user.CanUse("cmdAddOrUpdate") && user.CanUse("cmdQuit"));
    EXPECT_EQ(user.ReadsAll({"txtDurationInHours", "txtComment"}), "2|flu");
    EXPECT_TRUE(SessionState.ReloadCalendar) << "the calendar shows the two rows";
}

TEST_F(FrmAttendance, AboveNineDatesTheQuestionsScroll)
{
    QStringList scrolled;
    SetMessagePresenter([&scrolled](const Message& message) {
        scrolled << message.Title + QString::number(message.ScrollBar);
        return MessageCode::Yes;
    });
    const QVector<int> days = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    for (const int count : {9, 10, 10}) {
        Begin(days.first(count), chris, "Sick");
        Opens().Types("txtDurationInHours", "1").Clicks("cmdAddOrUpdate");
    }
    EXPECT_EQ(scrolled.join(' '), "CONFIRM:0 WARNING:0 CONFIRM:1 WARNING:1 CONFIRM:1");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 29);
}

TEST_F(FrmAttendance, DurationBoxesRefuseWhatNoDayHolds)
{
    Begin({2}, chris, "Sick");
    Opens().Checks("chkFirstHalf").Types("txtDurationInHours", "2a4");
    EXPECT_EQ(user.ReadsAll({"chkFirstHalf", "cboStartTime", "txtTotalTime"}), "0||");
    user.LeavesField("txtDurationInHours");
    EXPECT_EQ(user.Reads("txtDurationInHours"), "");
    EXPECT_TRUE(user.HasFocus("txtDurationInHours"));
    user.Types("txtDurationInHours", "23").LeavesField("txtDurationInHours").Types("txtDurationInMinutes", "60");
    user.Presses("txtDurationInMinutes", Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("txtDurationInMinutes"));
    user.Types("txtDurationInMinutes", "59").LeavesField("txtDurationInMinutes");
    EXPECT_EQ(user.Reads("txtTotalTime"), "23:59");

    auto& tabs = *user.The<frmAttendance>().findChild<QTabWidget*>("sstAttendance");
    user.Types("txtDurationInHours", "24");
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(tabs.currentIndex(), 0) << "also when it is left for the other tab";
    EXPECT_TRUE(user.HasFocus("txtDurationInHours"));
}

TEST_F(FrmAttendance, AnotherEmployeeStartsAfresh)
{
    Entitle(chris, "Vacation", 0, 0);
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ? AND DepartmentID = 3",
              {house.CategoryID("Sick")});
    house.Hire({"ZOE", "Zoe", "Abel", "Stores", "", {}, 0, 33, false});
    Begin({2}, chris, "Vacation");
    entry.ConflictsAccepted = true;
    user.WillAnswer("WARNING:", "Yes",
                    "The category «Vacation» involves an annual entitlement! You did not scecify Chris Davis' annual "
                    "entitlement for this category.\r\n\r\nProceed anyway?");
    Opens().Checks("chkWholeDay").Picks("lstWho", "Abel");
    EXPECT_FALSE(Entered().ConflictsAccepted || user.CanUse("chkWholeDay") || user.CanUse("chkFirstHalf"));
    EXPECT_EQ(user.ReadsAll({"cboCategories", "chkWholeDay", "txtTotalTime", "txtHourlyRate"}),
              "(All categories)|0||33.00");
    EXPECT_FALSE(user.Entries("cboCategories").contains("Sick"));
    auto* categories = user.The<frmAttendance>().findChild<QComboBox*>("cboCategories");
    user.Presses("cboCategories", Qt::Key_V); // drops down; the warning waits until one is taken
    EXPECT_EQ(user.Reads("cboCategories"), "(All categories)");
    user.WillAnswer("WARNING:", "No", "You did not scecify Zoe Abel's annual");
    QTest::keyClick(categories->view(), Qt::Key_Return);
    EXPECT_EQ(user.Reads("cboCategories"), "");
    user.WillBeRefused("select a category").Clicks("cmdAddOrUpdate");
    EXPECT_TRUE(user.HasFocus("cboCategories"));

    const auto fails = [this](const QString& table, const QString& list, const QString& entered) {
        house.Sql("ALTER TABLE " + table + " RENAME TO Gone");
        user.WillAnswer("AN ERROR HAS OCCURRED:", "OK").Picks(list, entered);
        house.Sql("ALTER TABLE Gone RENAME TO " + table);
    };
    fails("Entitlements", "cboCategories", "Vacation");
    EXPECT_EQ(user.Reads("cboCategories"), "") << "its limit could not be read";
    fails("Employees", "lstWho", "Davis");
    user.Types("txtDurationInHours", "2").WillBeRefused("select an employee").Clicks("cmdAddOrUpdate");
    user.Picks("lstWho", "Davis");
    EXPECT_TRUE(user.CanUse("chkWholeDay") && user.Entries("cboCategories").contains("Sick"));
    user.WillConfirm("Changes have not been saved!").Leaves();
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 0);
}

TEST_F(FrmAttendance, AGuardThatRefusesEndsTheEntryAndBorrowedTimeIsStoredAsClaimed)
{
    Record(chris, "Time accumulated", 3, 8);
    Entitle(chris, "Vacation", 1, 1);
    Begin({2}, chris, "Vacation");
    Opens().Types("txtDurationInHours", "5");
    user.WillAnswer("WARNING:", "No", "annual entitlement").Clicks("cmdAddOrUpdate");
    user.Picks("cboCategories", "Time paid").Types("txtDurationInHours", "");
    user.WillBeRefused("specify a duration").Clicks("cmdAddOrUpdate");
    user.Types("txtDurationInHours", "9").WillAnswer("OPERATION DENIED!", "OK").Clicks("cmdAddOrUpdate");
    user.Picks("cboCategories", "Time borrowed").Types("txtDurationInHours", "5");
    user.WillConfirm("instead of Time borrowed?").WillAnswer("CONFIRM:", "No", "Duration: -(05:00)");
    user.Clicks("cmdAddOrUpdate");
    EXPECT_EQ(user.Reads("cboCategories"), "") << "nothing fills the name of the category";
    EXPECT_EQ(Entered().SystemName + user.Reads("lblBalance"), "Time claimedTime bank: 08:00") << "it is known again";
    EXPECT_EQ(SessionState.SelectedCategoryID, house.CategoryID("Time claimed"));
    user.Types("txtDurationInHours", "9").WillAnswer("OPERATION DENIED!", "OK").Clicks("cmdAddOrUpdate");
    user.Types("txtDurationInHours", "5").WillConfirm().Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Rows("SELECT CategoryID, Duration, TotalDuration FROM Attendance WHERE RecordDate = 46083"),
              QString::number(house.CategoryID("Time claimed")) + "|-5|-5");
}

TEST_F(FrmAttendance, WhatExplainsItselfShowsTheFocusAndLongNamesAreCut)
{
    Entitle(chris, "Vacation", 0, 35);
    const QString wide(30, 'W');
    house.Sql("UPDATE Employees SET FirstName = ?1, FamilyName = ?1 WHERE RecordID = ?2", {wide, chris});
    Begin({2}, chris, "Vacation");
    Opens();
    const auto& form = user.The<frmAttendance>();
    auto* balance = form.findChild<QLabel*>("lblBalance");
    form.findChild<QWidget*>("cboCategories")->setFocus();
    const QImage before = balance->grab().toImage();
    balance->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(balance->hasFocus() && balance->grab().toImage() != before);
    auto* name = form.findChild<QLabel*>("lblEmployeeName");
    EXPECT_GT(name->x(), form.findChild<QLabel*>("lblWho")->geometry().right());
    name->grab();
    EXPECT_EQ(name->toolTip(), wide + " " + wide);
}

TEST_F(FrmAttendance, TheTabsTurnFromEachListToo)
{
    Begin({2}, chris, "Vacation");
    Opens();
    const auto* tabs = user.The<frmAttendance>().findChild<QTabWidget*>();
    for (const char* list : {"lstWho", "cboCategories", "cboStartTime"}) {
        user.Presses(list, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), 1) << list;
        user.Presses("", Qt::Key_Backtab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), 0) << list;
    }
}

TEST_F(FrmAttendance, WhomOneOnlyViewsGetsNoRecord)
{
    house.LogIn("CHRIS");
    Begin({2}, 0, "Time claimed");
    entry.EmployeeLocked = true;
    Opens();
    EXPECT_TRUE(user.Entries("lstWho").isEmpty()) << "who may add for nobody can only close";
    EXPECT_FALSE(user.CanUse("cmdAddOrUpdate") || user.CanUse("lstWho") || user.CanUse("lblBalance"));
    user.Clicks("cmdQuit");
    EXPECT_TRUE(user.The<frmAttendance>().result() == QDialog::Rejected && !SessionState.ReloadCalendar);

    house.Sql("UPDATE Employees SET GlobalLevelRead = 1, SelfLevelCreate = 1, SelfLevelModify = 1");
    house.LogIn("CHRIS");
    Begin({2}, marc, "Sick");
    Opens().Types("txtDurationInHours", "2");
    user.WillBeRefused("You must select an employee from the list!").Clicks("cmdAddOrUpdate");
    EXPECT_TRUE(user.HasFocus("lstWho"));
    user.Picks("lstWho", "Davis").ClicksWithCtrl("lstWho");
    EXPECT_EQ(user.The<frmAttendance>().findChild<QListWidget*>("lstWho")->selectedItems().size(), 1);
    user.Types("txtDurationInHours", "2").Picks("cboCategories", "Sick").WillConfirm().Clicks("cmdAddOrUpdate");
    EXPECT_EQ(house.Number("SELECT EmployeeID FROM Attendance"), chris);

    Modify(Record(marc, "Sick", 3, 2), marc, "Sick", 3);
    EXPECT_FALSE(user.CanUse("cmdAddOrUpdate"));
    EXPECT_EQ(user.ReadsAll({"lblEmployeeName", "cboStartTime", "cboEndTime", "txtDurationInHours"}), "Marc Roy|||02");
}
} // namespace
