#include "attendance/record_cancellation.h"
#include "calendar/main_window_fixture.h"
#include "platform/dao/server.h"
#include "selection/frm_select_attendance_record.h"

namespace
{
class Cancellation : public MainWindow
{
protected:
    Cancellation()
    {
        luc = house.Hire({"LROY", "Luc", "Roy", "Production", "Assembly"});
        for (const char* right : {"GroupLevelRead", "GroupLevelModify"})
            Sets(right, 1);
        house.Sql("UPDATE Employees SET EMailAddress = LOWER(LoginID) || '@example.org'");
    }
    int Request(const QString& systemName, int month, int day, int approver, float hours = 7)
    {
        const int record = house.Record(marie, systemName, {2026, month, day}, hours, true);
        house.Sql("UPDATE Attendance SET SubmittedBy = ?, SubmittedTo_First = ?, SubmittedTo_Second = 1, RequestStatus "
                  "= 1, ApprovedBy = 'X' WHERE RecordID = ?",
                  {marie, approver, record});
        return record;
    }
    void Marks(const QString& category, std::initializer_list<std::pair<int, int>> days)
    {
        user.Picks("cboCategories", category).Clicks("imgRemove");
        for (const auto& [month, day] : days)
            ClicksDay(month, day);
    }
    /// Who cancelled a record when, and what its request has come to.
    QString StateOf(int record)
    {
        return house.Rows("SELECT Submitted, RequestStatus, ApprovedBy, CancelledBy, CancelledDate FROM Attendance "
                          "WHERE RecordID = ?",
                          {record});
    }

    int luc = 0;
};

TEST_F(Cancellation, ARemovedRecordStaysWithWhoAndWhenAndTheBankRecoversAtOnce)
{
    house.Record(luc, "Time accumulated", {2026, 4, 1}, 10);
    const int claimed = house.Record(luc, "Time claimed", {2026, 4, 14}, -4);
    const int chosen = house.Record(luc, "Time claimed", {2026, 4, 15}, -2);
    const int other = house.Record(luc, "Time claimed", {2026, 4, 15}, -1);
    const int pending = house.Record(luc, "Time claimed", {2026, 4, 14}, -1, true);
    house.Sql("UPDATE Attendance SET SubmittedBy = ?, SubmittedTo_First = 1, RequestStatus = 4 WHERE RecordID = ?",
              {luc, claimed});
    Opens("MBOUCHARD");
    Selects("lstEmployees", "Roy, Luc");
    user.WillAnswer("MANAGING EMPLOYEE TIME BANKS", "No");
    user.WhenOpens<frmSelectAttendanceRecord>([this](frmSelectAttendanceRecord&) {
        user.Picks("lstRecords", "From: 00:00  To: 00:00  Duration: -(02:00)").Clicks("cmdSelect");
    });
    Marks("Time claimed", {{4, 14}, {4, 15}});
    EXPECT_EQ(Figures(), "2026|Time claimed|Luc Roy|-(1 days 00:00)|02:00");
    const QString before = house.All({"Attendance"});
    user.WillAnswer("CONFIRM:", "No", "Cancel the selected attendance records?").Clicks("imgRemove");
    EXPECT_EQ(house.All({"Attendance"}), before);
    EXPECT_EQ(Days({{4, 14}}), "14 c0c0c0") << "the marks are gone";

    user.WhenOpens<frmSelectAttendanceRecord>([this](frmSelectAttendanceRecord&) {
        user.Picks("lstRecords", "From: 00:00  To: 00:00  Duration: -(02:00)").Clicks("cmdSelect");
    });
    Marks("Time claimed", {{4, 14}, {4, 15}});
    user.WillAnswer("CONFIRM:", "Yes").Clicks("imgRemove");
    const QString cancelled = QStringLiteral("MBOUCHARD|%1").arg(Today());
    EXPECT_EQ(StateOf(claimed), "0|4||" + cancelled);
    EXPECT_EQ(StateOf(chosen), "0|0||" + cancelled);
    EXPECT_EQ(StateOf(other) + "\n" + StateOf(pending), "0|0|||0\n1|0|||0");
    EXPECT_EQ(Figures(), "2026|Time claimed|Luc Roy|-(0 days 01:00)|08:00");
    EXPECT_EQ(house.Rows("SELECT * FROM Attendance_Modifications"), "");
    EXPECT_TRUE(house.Mail.isEmpty()) << "an effective record is removed without a notice, a former request too";
    EXPECT_FALSE(main->Busy || SessionState.CancellingRecords);
}

TEST_F(Cancellation, WithdrawnRequestsAreToldToTheApproverReadLastInOneMessage)
{
    const int first = Request("Vacation", 12, 21, 1);
    const int last = Request("Vacation", 12, 22, luc);
    Request("Sick", 12, 22, luc);
    Request("Sick", 12, 23, luc);
    user.WillAnswer("REQUEST(S) FOR LEAVE STATUS REPORT:", "OK");
    Opens("MBOUCHARD");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    Marks("Vacation", {{12, 21}, {12, 22}});
    user.WillAnswer("CONFIRM:", "Yes").Clicks("imgRemove");
    const QString withdrawn = QStringLiteral("0|1|X|MBOUCHARD|%1").arg(Today());
    EXPECT_EQ(StateOf(first) + "\n" + StateOf(last), withdrawn + "\n" + withdrawn);
    EXPECT_EQ(house.Mail, QStringList{"MAPI|smtp:lroy@example.org|TARVELL  -  Cancellation of a request for leave|"
                                      "Marie Bouchard has just cancelled the following request for leave which you "
                                      "were required to approve:\r\n\r\nCategory: Vacation\r\n\r\nRecord "
                                      "date(s):\r\n\r\nMon 21-12-2026\r\nTue 22-12-2026\r\n"});
    EXPECT_EQ(Days({{12, 21}, {12, 22}}), "21 ffffff, 22 ffffff");

    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    house.MailEnds["MAPI"] = {2, "no mail program"};
    house.MailEnds["automation"] = {75, "no server"};
    Marks("Maladie", {{12, 22}});
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui", "Souhaitez-vous supprimer les enregistrements sélectionnés?")
        .Clicks("imgRemove");
    EXPECT_EQ(user.Reads("lblUnsent"), "Un courriel destiné à lroy@example.org n'a pu être envoyé (no server).");
    EXPECT_EQ(user.Reads("lblCurrentSelection"), "Demandes non traitées de");
    user.WillAnswer("ATTENTION:", "Non", "Des courriels n'ont pu être envoyés");
    main->close(); // and stays
    house.Sql("ALTER TABLE Employees RENAME TO Gone");
    user.WillAnswer("UNE ERREUR EST SURVENUE:", "OK", "3078: ").Clicks("cmdSendAgain");
    house.Sql("ALTER TABLE Gone RENAME TO Employees");
    user.Clicks("cmdSendAgain");
    EXPECT_TRUE(user.CanUse("cmdForget"));
    house.MailEnds.clear();
    house.Mail.clear();
    house.Sql("UPDATE Employees SET EMailAddress = 'luc@new.org'");
    user.Clicks("cmdSendAgain");
    EXPECT_TRUE(house.Mail.size() == 1 && house.Mail[0].startsWith("automation|luc@new.org|") &&
                house.Mail[0].contains("\r\n\r\nTue 22-12-2026\r\n"));
    EXPECT_FALSE(Visible("fraUnsent"));

    house.Sql("UPDATE Employees SET EMailAddress = ' '");
    Marks("Maladie", {{12, 23}});
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui").Clicks("imgRemove");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance WHERE CancelledDate = 0"), 0);
    EXPECT_TRUE(house.Mail.size() == 1 && !Visible("fraUnsent")) << "nobody can be told";
}

TEST_F(Cancellation, AFailureKeepsAndTellsWhatWasCancelledBeforeItAndAClosedYearKeepsEverything)
{
    const int first = Request("Vacation", 12, 21, luc);
    const int second = Request("Vacation", 12, 22, luc);
    user.WillAnswer("REQUEST(S) FOR LEAVE STATUS REPORT:", "OK");
    Opens("MBOUCHARD");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46000");
    Marks("Vacation", {{12, 21}, {12, 22}});
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("FISCAL YEAR CLOSED:", "OK").Clicks("imgRemove");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance WHERE CancelledDate <> 0"), 0);

    house.Sql("UPDATE FiscalYears SET ClosedDate = 0");
    main->timAbsence_Timer();
    house.Refuses(QStringLiteral("UPDATE ON Attendance WHEN OLD.RecordID = %1").arg(second));
    Marks("Vacation", {{12, 21}, {12, 22}});
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK",
                    "(refused).\r\n\r\nThese records have been cancelled:\r\n\r\nMon 21-12-2026\r\n")
        .Clicks("imgRemove");
    EXPECT_TRUE(StateOf(first).endsWith("|MBOUCHARD|" + QString::number(Today())));
    EXPECT_EQ(StateOf(second), "1|1|X||0");
    EXPECT_EQ(Days({{12, 21}}), "21 ffffff") << "the calendar shows what is left";
    EXPECT_NE(Days({{12, 22}}), "22 ffffff");
    ASSERT_EQ(house.Mail.size(), 1);
    EXPECT_TRUE(house.Mail[0].endsWith("\r\n\r\nMon 21-12-2026\r\n") && user.CanUse("imgRemove"));

    house.Sql("DROP TRIGGER Refusing");
    const std::pair<const char*, const char*> meanwhile[] = {
        {"CancelledBy = 'X', CancelledDate = 46349", "What stood on 22-Dec-2026 has been cancelled meanwhile."},
        {"RequestStatus = 3, CancelledDate = 46349", "The request for 22-Dec-2026 has been settled meanwhile."},
        {"RequestStatus = 2", "The request for 22-Dec-2026 has been settled meanwhile."}};
    for (const auto& [change, told] : meanwhile) {
        house.Sql("UPDATE Attendance SET Submitted = 1, CancelledBy = '', CancelledDate = 0 WHERE RecordID = ?",
                  {second});
        user.ChoosesMenu("mnuSpecialDisplayPending");
        Marks("Vacation", {{12, 22}});
        house.Sql(QStringLiteral("UPDATE Attendance SET Submitted = 0, %1 WHERE RecordID = ?").arg(change), {second});
        user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", told).Clicks("imgRemove");
    }
    EXPECT_EQ(StateOf(second), "0|2|X||0");

    const int third = Request("Vacation", 12, 23, luc);
    user.ChoosesMenu("mnuSpecialDisplayPending");
    Marks("Vacation", {{12, 23}});
    user.SeesMessage = [this](const Message& message) {
        if (message.Title == "CONFIRM:")
            house.Sql("ALTER TABLE Holidays RENAME TO Gone");
    };
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK", "cancelled:\r\n\r\nWed 23-12-2026")
        .Clicks("imgRemove");
    EXPECT_TRUE(StateOf(third).contains("MBOUCHARD") && house.Mail.size() == 2 && user.CanUse("imgRemove"))
        << "a calendar that cannot be read keeps nobody from being told";
}

TEST_F(Cancellation, TheServerIsSentNoMoreThanWhoAndWhen)
{
    house.LogIn("MBOUCHARD");
    SessionState.ShowApproved = false;
    QStringList sent;
    SetServerSink([&sent](const QString& statement) { sent << statement; });
    SessionState.SQL_Server = true;
    DataControl datAbsence("Cancellation");
    EXPECT_EQ(CancelRecords(datAbsence, {5}).Approver, 0);
    EXPECT_EQ(sent.last(), QStringLiteral("UPDATE Attendance SET CancelledBy = 'MBOUCHARD', CancelledDate = %1 WHERE "
                                          "RecordID = 5")
                               .arg(Today()));
}
} // namespace
