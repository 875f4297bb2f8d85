#include "attendance/attendance_fixture.h"
#include "attendance/frm_approval.h"
#include "attendance/record_cancellation.h"
#include "attendance/request_approval.h"
#include "attendance/request_notice.h"
#include "attendance/request_reports.h"
#include "mail/mail_component.h"
#include "platform/controls/flex_grid.h"
#include "platform/dao/server.h"

#include <QTest>

namespace
{
const char* const kStates = "SELECT Submitted, RequestStatus, ApprovedDateTime, ApprovedBy, DeniedDateTime, DeniedBy, "
                            "ApprovalRefusalMessage, CancelledDate, CancelledBy FROM Attendance ORDER BY RecordID";

/// Chris asks Marc for leave; Ève stands in for Marc, who is logged in.
class Approval : public AttendanceTest
{
protected:
    Approval()
    {
        eve = house.Hire({"EVE", "Ève", "Émond", "Sales"});
        house.Sql("UPDATE Employees SET EMailAddress = 'chris@example.org' WHERE LoginID = 'CHRIS'");
        house.Today(2026, 3, 2, 14, 5).LogIn("MARC");
    }
    int Requests(int day, const QString& systemName = "Vacation", float hours = 7)
    {
        const int record = Record(chris, systemName, day, hours, true);
        house.Sql("UPDATE Attendance SET StartTime = 8.5, EndTime = 16.5, SubmittedBy = ?, SubmittedTo_First = ?, "
                  "SubmittedTo_Second = ? WHERE RecordID = ?",
                  {chris, marc, eve, record});
        return record;
    }
    FlexGrid& Grid() { return *user.The<frmApproval>().findChild<FlexGrid*>("flxRecordsToApprove"); }
    /// The lines of the grid; the cells of one are parted by "|".
    QString Shown()
    {
        QStringList lines;
        for (int row = 1; row < Grid().Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < 8; ++col)
                cells << Grid().TextMatrix(row, col);
            lines << cells.join('|');
        }
        return lines.join('\n');
    }
    void ClicksCell(int row, int col)
    {
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, Grid().CellRect(row, col).center());
    }
    RequestedDates FirstGroup() { return LoadRequestedDates(datAbsence, LoadRequestGroups(datAbsence).first()); }
    QVector<RequestedDate> AllMarked(RequestMark mark)
    {
        QVector<RequestedDate> dates = FirstGroup().Dates;
        for (RequestedDate& date : dates)
            date.Mark = mark;
        return dates;
    }
    QString Statuses()
    {
        return house.Rows("SELECT RequestStatus FROM Attendance ORDER BY RecordID").replace('\n', ' ');
    }
    QStringList Absent() { return FirstGroup().Dates.first().AlsoAbsent; }

    int eve = 0;
};

TEST_F(Approval, PartOfAGroupIsSettledAndTheRestGoesOnWaiting)
{
    for (const int day : {2, 3, 4})
        Requests(day);
    SessionState.LoginID = "MARC-ANTOINE-ROY-JR";
    user.Opens<frmApproval>();
    EXPECT_EQ(user.Entries("cboRecords"), QStringList{"26-03-02  Davis, Chris                              Vacation"});
    EXPECT_EQ(user.Usable({"optApproveAll", "optDenyAll", "cmdProcess", "cmdQuit"}), "cmdQuit");
    user.Picks("cboRecords", "26-03-02").WillBeRefused("You must approve or deny at least one").Clicks("cmdProcess");

    ClicksCell(1, 0);
    ClicksCell(2, 0);
    user.Presses("flxRecordsToApprove", Qt::Key_Right).Presses("flxRecordsToApprove", Qt::Key_Space);
    ClicksCell(3, 1);
    ClicksCell(3, 1);
    EXPECT_EQ(Shown(), "[X]|[ ]|02-Mar|08:30|16:30|07:00|Vacation|\n[ ]|[X]|03-Mar|08:30|16:30|07:00|Vacation|\n"
                       "[ ]|[ ]|04-Mar|08:30|16:30|07:00|Vacation|");
    user.Types("txtReasonForRefusal", " ");
    user.WillBeRefused("You must specify the reason why some of the requests are denied!").Clicks("cmdProcess");
    EXPECT_TRUE(user.HasFocus("txtReasonForRefusal"));
    user.Types("txtReasonForRefusal", " Too").Presses("txtReasonForRefusal", Qt::Key_Return);
    QTest::keyClicks(user.The<frmApproval>().findChild<QWidget*>("txtReasonForRefusal"), "many ");
    user.WillConfirm("Do you wish to process the following requests for leave?\r\n\r\nSTATUS      \tDATE:\tCATEGORY\r\n"
                     "Approved     \t02-Mar\tVacation\r\nDenied        \t03-Mar\tVacation\r\n")
        .WillBeDone("The status of the selected requests has been updated.")
        .Clicks("cmdProcess");

    EXPECT_EQ(house.Rows(kStates), "0|2|46083.5859375|MARC-ANTOINE-RO|0|||0|\n"
                                   "0|3|0||46083.5859375|MARC-ANTOINE-RO|Too many|46083|\n1|0|0||0|||0|");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance_Modifications"), 0);
    ASSERT_EQ(house.Mail.size(), 1);
    EXPECT_TRUE(house.Mail[0].startsWith("MAPI|smtp:chris@example.org|TARVELL  -  Your request for leave|"));
    EXPECT_TRUE(
        house.Mail[0].endsWith("Denied        \t03-Mar\tVacation\r\n\r\n\r\nREASON FOR REFUSAL:\r\n Too many "));
    EXPECT_TRUE(SessionState.ReloadCalendar);
    EXPECT_EQ(user.Entries("cboRecords").size(), 1) << "the day left";
    EXPECT_EQ(Shown() + user.Reads("txtReasonForRefusal"), "");

    user.Picks("cboRecords", "26-03-02").Clicks("optApproveAll").WillConfirm("Changes have not been saved!").Leaves();
}

TEST_F(Approval, AllOfAGroupIsDeniedInFrenchAndWhoeverHasNoAddressMustBeToldOtherwise)
{
    Requests(2);
    Requests(3);
    Requests(4, "Sick");
    house.Sql("UPDATE Employees SET EMailAddress = ' '");
    SessionState.English = false;
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02  Davis, Chris                              Vacances");
    EXPECT_TRUE(user.Entries("cboRecords").first().endsWith("Maladie")) << "in the order of the alphabet";
    user.Clicks("optApproveAll").Clicks("optDenyAll").Types("txtReasonForRefusal", "Trop d'absents");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non", "Vos changements")
        .Picks("cboRecords", "26-03-02  Davis, Chris                              Mal");
    EXPECT_EQ(Shown().count("[ ]|[X]"), 2) << "the marks are not lost";
    user.WillConfirm("STATU         \tDATE:\tCATÉGORIE\r\nRefusée        \t02-Mar\tVacances\r\nRefusée        \t03-Mar")
        .WillBeDone("Vous devrez donc le faire vous-même.")
        .Clicks("cmdProcess");
    EXPECT_TRUE(house.Mail.isEmpty());
    EXPECT_EQ(house.Cell("SELECT ApprovalRefusalMessage FROM Attendance"), "Trop d`absents");

    user.Picks("cboRecords", "26-03-02").Clicks("optApproveAll");
    EXPECT_EQ(user.ReadsAll({"optApproveAll", "optDenyAll"}), "1|0");
    ClicksCell(1, 1);
    EXPECT_EQ(user.ReadsAll({"optApproveAll", "optDenyAll"}), "0|0") << "neither tells any longer what is marked";
    ClicksCell(1, 0);
    user.WillConfirm("Approuvée     \t04-Mar\tMaladie").WillBeDone().Clicks("cmdProcess");
    EXPECT_TRUE(user.CanUse("lblNone") && !user.CanUse("cboRecords")) << "none is left";
}

TEST_F(Approval, AFailureKeepsWhatIsSettledTellsItAndNamesTheDate)
{
    Entitle(chris, "Vacation", 0, 70);
    for (const int day : {2, 4, 3})
        Requests(day);
    house.Refuses("UPDATE ON Attendance WHEN NEW.RecordDate = 46084");
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02").Clicks("optApproveAll");
    user.Types("txtReasonForRefusal", "unused")
        .WillConfirm()
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK",
                    "(refused).\r\n\r\nThe request for 03-Mar-2026 could not be processed.\r\n\r\nThese had been "
                    "processed before:\r\n\r\nSTATUS      \tDATE:\tCATEGORY\r\nApproved     \t02-Mar\tVacation\r\n")
        .Clicks("cmdProcess");
    EXPECT_EQ(Statuses(), "2 0 0");
    EXPECT_EQ(house.Mail.filter("02-Mar").filter("unused").size(), 0) << "a reason goes with a denial only";
    EXPECT_EQ(house.Mail.filter("02-Mar").size(), 1);
    EXPECT_TRUE(SessionState.ReloadCalendar);
    EXPECT_EQ(Shown().count("[X]|[ ]"), 2) << "the marks of the others stay";
    EXPECT_TRUE(Grid().CellFontBold(1, 0));

    house.Sql("DROP TRIGGER Refusing");
    user.SeesMessage = [this](const Message&) { house.Sql("UPDATE FiscalYears SET ClosedDate = 46083"); };
    user.WillConfirm().WillAnswer("FISCAL YEAR CLOSED:", "OK").Clicks("cmdProcess");
    user.SeesMessage = {};
    house.Sql("UPDATE FiscalYears SET ClosedDate = 0");
    EXPECT_EQ(Statuses(), "2 0 0");
    user.WillConfirm().WillBeDone().Clicks("cmdProcess");
    EXPECT_EQ(Statuses(), "2 2 2");
}

TEST_F(Approval, WhatCannotBeReadLeavesTheFormAsItIs)
{
    Requests(2);
    Requests(3, "Sick");
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02  Davis, Chris                              Vac");
    user.Types("txtReasonForRefusal", QString(1001, 'x'));
    EXPECT_EQ(user.Reads("txtReasonForRefusal").size(), 1000);
    house.Sql("ALTER TABLE Categories RENAME TO Gone");
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3078: ").Clicks("cmdCancelOperation");
    ClicksCell(1, 1);
    EXPECT_EQ(Shown().count("[ ]|[X]"), 1);
    EXPECT_THROW(frmApproval(), RuntimeError) << "nobody must think that nothing waits";
    house.Sql("ALTER TABLE Gone RENAME TO Categories");
    ClicksCell(1, 1);
    user.WillConfirm("Changes have not been saved!")
        .Picks("cboRecords", "26-03-02  Davis, Chris                              Sick");
    EXPECT_EQ(user.Reads("txtReasonForRefusal"), "") << "it was the reason for another request";
}

TEST_F(Approval, WhoComesSecondWritesOverWhatWasDecidedFirstButNotOverAWithdrawal)
{
    Requests(2);
    const QVector<RequestedDate> approved = AllMarked(RequestMark::Approved);
    SettleRequests(datAbsence, AllMarked(RequestMark::Denied), "no");
    house.LogIn("EVE");
    EXPECT_FALSE(SettleRequests(datAbsence, approved, "").Failure);
    const QString decided = "0|2|46083.5859375|EVE|46083.5859375|MARC|no|46083|";
    EXPECT_EQ(house.Rows(kStates), decided);
    house.Sql("UPDATE Attendance SET CancelledBy = 'CHRIS'");
    EXPECT_TRUE(SettleRequests(datAbsence, approved, "").Failure);
    EXPECT_EQ(house.Rows(kStates), decided + "CHRIS");
}

TEST_F(Approval, ADateWithdrawnMeanwhileLeavesTheFormAndTheRestIsSettled)
{
    const int withdrawn = Requests(2);
    Requests(3);
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02").Clicks("optApproveAll");
    house.Sql("UPDATE Attendance SET Submitted = 0, CancelledBy = 'CHRIS', CancelledDate = 46083 WHERE RecordID = ?",
              {withdrawn});
    user.WillConfirm("02-Mar").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "changed by another user");
    user.Clicks("cmdProcess");
    EXPECT_TRUE(user.HasFocus("flxRecordsToApprove")) << "not the way out";
    user.WillConfirm().WillBeDone().Clicks("cmdProcess");
    EXPECT_EQ(Statuses(), "0 2");
}

TEST_F(Approval, ColleaguesOfTheRecordsDepartmentWhoAreAwayOrAskToBeAreNamedOnce)
{
    Requests(2);
    const int zoe = house.Hire({"ZOE", "Zoe", "Abel", "Production"});
    const int anna = house.Hire({"ANNA", "Anna", "Zimmer", "Production"});
    Record(zoe, "Sick", 2, 3);
    Record(zoe, "Vacation", 2, 4);
    Record(anna, "Sick", 2, 7, true);
    Record(zoe, "Sick", 3, 7);
    Record(eve, "Sick", 2, 7);
    Record(chris, "Sick", 2, 1);
    Record(marc, "Time accumulated", 2, 2);
    Cancel(Record(marc, "Sick", 2, 7));
    house.Sql("UPDATE Categories SET ConstitutesAnAbsence = TimeBankRelated = 0");
    EXPECT_EQ(Absent(), QStringList({"Anna Zimmer", "Zoe Abel"}));
    house.Sql("UPDATE Employees SET DepartmentID = 2 WHERE LoginID = 'CHRIS'");
    EXPECT_EQ(Absent().size(), 2) << "he was in Production when he asked";
    house.Sql("UPDATE Attendance SET DepartmentID = 2 WHERE Submitted = 1 AND EmployeeID = ?", {chris});
    EXPECT_EQ(Absent(), QStringList("Ève Émond"));
}

TEST_F(Approval, BothApproversSeeTheGroupsThatWaitAndOnlyTheFirstIsToldOnce)
{
    const int withdrawn = Requests(2, "Sick");
    Cancel(withdrawn);
    EXPECT_EQ(TakeNewRequests(datAbsence), "");
    EXPECT_EQ(Statuses(), "0") << "nobody is told of a withdrawn one";
    house.Sql("UPDATE Attendance SET Submitted = 0 WHERE RecordID = ?", {withdrawn});

    for (const int day : {2, 3})
        Requests(day);
    house.Sql("UPDATE Employees SET FamilyName = 'Davis-Montgomery-Hall' WHERE LoginID = 'CHRIS'");
    house.Sql("UPDATE Categories SET CategoryEnglishName = 'Vacation of the year' WHERE RecordID = 1");
    house.LogIn("EVE");
    EXPECT_EQ(TakeNewRequests(datAbsence), "");
    EXPECT_EQ(WaitingRequests(datAbsence), 1);
    EXPECT_EQ(LoadRequestGroups(datAbsence).size(), 1);
    house.LogIn("MARC");
    EXPECT_EQ(TakeNewRequests(datAbsence),
              "Submitted:\tEmployee\t\tCategory\r\n02-Mar-2026\tDavis-Montgomer, Chris\tVacation of the\r\n");
    EXPECT_EQ(Statuses(), "1 1 1") << "the withdrawn one, too";
    EXPECT_EQ(TakeNewRequests(datAbsence), "");
    EXPECT_EQ(WaitingRequests(datAbsence), 1);

    Requests(4);
    house.Refuses("UPDATE ON Attendance");
    EXPECT_THROW(TakeNewRequests(datAbsence), RuntimeError);
    house.Sql("DROP TRIGGER Refusing");
    EXPECT_NE(TakeNewRequests(datAbsence), "") << "what could not be noted is told again";
}

TEST_F(Approval, WhoeverAskedIsToldHowItStandsAndNotAgainWhatIsSettled)
{
    for (const int status : {0, 1, 2, 3})
        house.Sql("UPDATE Attendance SET RequestStatus = ? WHERE RecordID = ?", {status, Requests(5 - status)});
    house.Sql("UPDATE Attendance SET CancelledDate = 46083 WHERE RequestStatus = 3");
    Record(chris, "Sick", 9, 7);
    house.LogIn("CHRIS");
    SessionState.English = false;
    user.SeesMessage = [this](const Message& message) {
        EXPECT_FALSE(message.ScrollBar);
        house.Sql("UPDATE Attendance SET RequestStatus = 2 WHERE RequestStatus = 1"); // while it is read
    };
    user.WillAnswer(
        "STATU DE VOS DEMANDES DE CONGÉ:", "OK",
        "Voici le statu de vos demandes de congé:\r\n\r\nDATE: \tSTATU\t\t\tCATÉGORIE\r\n03-Mar\tRequête "
        "approuvée \tVacances\r\n04-Mar\tResponsable avisé  \tVacances\r\n05-Mar\tRequête en suspens\tVacances\r\n");
    WereRequestsApproved(datAbsence);
    EXPECT_EQ(Statuses(), "0 2 4 4 0");

    user.SeesMessage = {};
    SessionState.English = true;
    user.WillAnswer(
        "REQUEST(S) FOR LEAVE STATUS REPORT:", "OK",
        "DATE: \tSTATUS\t\t\tCATEGORY\r\n04-Mar\tRequest approved    \tVacation\r\n05-Mar\tRequest is on hold  \t");
    WereRequestsApproved(datAbsence);
    house.Sql("UPDATE Attendance SET RequestStatus = 3, CancelledDate = 46083 WHERE RequestStatus = 0");
    WereRequestsApproved(datAbsence);
    EXPECT_EQ(Statuses(), "3 4 4 4 3") << "denials alone are not told";
    for (int day = 1; day <= 10; ++day)
        Requests(day);
    user.SeesMessage = [](const Message& message) { EXPECT_TRUE(message.ScrollBar); };
    user.WillAnswer("REQUEST(S) FOR LEAVE STATUS REPORT:", "OK");
    WereRequestsApproved(datAbsence);
}

TEST_F(Approval, TheApproverSeesWhatARequestWouldLeave)
{
    const QStringList figures{"lblBalance",   "txtLeftBefore",   "txtThisRequest",
                              "txtLeftAfter", "txtOtherPending", "txtLeftAfterAll"};
    Entitle(chris, "Vacation", 3, 32);
    Record(chris, "Vacation", 20, 7);
    house.Today(2026, 3, 1);
    Record(chris, "Vacation", 23, 3.5F, true);
    house.Today(2026, 3, 2);
    Requests(2);
    Requests(3);
    Record(chris, "Time accumulated", 1, 10);
    Requests(2, "Time claimed", -6.5F);
    Requests(2, "Sick");
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02  Davis, Chris                              Vac");
    EXPECT_EQ(user.ReadsAll(figures), "Annual entitlement|28:00|14:00|14:00|03:30|10:30");
    EXPECT_EQ(user.The<frmApproval>().findChild<QWidget*>("txtLeftAfter")->accessibleName(),
              "Left after this request: 14:00");
    user.Picks("cboRecords", "26-03-02  Davis, Chris                              Time");
    EXPECT_EQ(user.ReadsAll(figures), "Time bank|10:00|-(06:30)|03:30|00:00|03:30");
    user.Picks("cboRecords", "26-03-02  Davis, Chris                              Sick");
    EXPECT_FALSE(user.CanUse("lblBalance")) << "no limit, no bank";
}

TEST_F(Approval, WhatIsSentAgainGoesToTheAddressThatIsOnFileByThen)
{
    house.MailEnds = {{"MAPI", {3, "none"}}, {"automation", {75, "no server"}}};
    house.Sql("UPDATE Employees SET EMailAddress = 'a@old.org'");
    Begin({2}, chris, "Vacation");
    entry.FirstApprover.RecordID = marc;
    entry.SecondApprover.RecordID = eve;
    GetApprovalNames(datAbsence, entry);
    EMailRequest(entry);
    EMailRequestCancellation(datAbsence, {"", "", entry.SelectedCategoryID, eve, {}});
    Requests(2);
    user.Opens<frmApproval>().Picks("cboRecords", "26-03-02").Clicks("optApproveAll");
    user.WillConfirm().WillBeDone().Clicks("cmdProcess");
    EXPECT_EQ(UnsentNotices().size(), 4);
    house.MailEnds.clear();
    house.Mail.clear();
    house.Sql("UPDATE Employees SET EMailAddress = LOWER(LoginID) || '@new.org' WHERE LoginID <> 'EVE'");
    house.Sql("UPDATE Employees SET EMailAddress = ' ' WHERE LoginID = 'EVE'");
    SendUnsentNotices(datAbsence);
    EXPECT_EQ(house.Mail.replaceInStrings(QRegularExpression("(?s)@new.org.*"), {}),
              (QStringList{"automation|marc", "automation|chris"}));
    ASSERT_EQ(UnsentNotices().size(), 2) << "whoever has no address any more";
    EXPECT_EQ(UnsentNotices().last().Reason, "The employee has no e-mail address any more");
}

TEST_F(Approval, TheServerIsSentWhatIsSettled)
{
    Requests(2);
    const QVector<RequestedDate> approved = AllMarked(RequestMark::Approved), denied = AllMarked(RequestMark::Denied);
    QStringList sent;
    SetServerSink([&sent](const QString& statement) { sent << statement; });
    SessionState.SQL_Server = true;
    SettleRequests(datAbsence, approved, "");
    SettleRequests(datAbsence, denied, "no ");
    EXPECT_EQ(sent.join('\n'),
              QString("UPDATE Attendance SET Submitted = 0, ApprovedDateTime = 46083.59, ApprovedBy = 'MARC', "
                      "RequestStatus = 2 WHERE RecordID = 1\n"
                      "UPDATE Attendance SET Submitted = 0, DeniedDateTime = 46083.59, RequestStatus = 3, "
                      "DeniedBy = 'MARC', ApprovalRefusalMessage = 'no', CancelledDate = 46083 WHERE RecordID = 1"));
}
} // namespace
