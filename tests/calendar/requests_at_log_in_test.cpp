#include "attendance/frm_approval.h"
#include "calendar/main_window_fixture.h"
#include "employees/frm_employees.h"
#include "platform/mail/mail_programs.h"

#include <QToolButton>

namespace
{
/// Marie asks Paul for leave.
class RequestsAtLogIn : public MainWindow
{
protected:
    RequestsAtLogIn()
    {
        house.Hire({"PAUL", "Paul", "Roy", "Production", "", {"IsAuthorizedToApprove", "DepartmentLevelRead"}});
        house.Hire({"EVE", "Ève", "Émond", "Production", "", {"IsAuthorizedToApprove"}});
        Requests(24);
    }
    void Requests(int day)
    {
        house.Sql("UPDATE Attendance SET SubmittedBy = EmployeeID, SubmittedTo_First = 3, SubmittedTo_Second = 4 WHERE "
                  "RecordID = ?",
                  {house.Record(marie, "Vacation", {2026, 11, day}, 7, true)});
    }
    QString Statuses() { return house.Rows("SELECT RequestStatus FROM Attendance").replace('\n', ' '); }
    const QString received = "REQUEST(S) FOR LEAVE RECEIVED:";
    const QString told = "REQUEST(S) FOR LEAVE STATUS REPORT:";
};

TEST_F(RequestsAtLogIn, TheFirstApproverIsAskedOnceAndWhoeverAskedIsTold)
{
    house.Sql("UPDATE Employees SET SelfLevelCreate = 1 WHERE RecordID <> ?", {marie});
    Opens("EVE"); // the second approver is not asked
    EXPECT_EQ(main->findChild<QToolButton*>("imgApprove")->text(), "Approve (1)");
    user.WhenOpens<frmApproval>([this](frmApproval& form) {
        EXPECT_EQ(user.Entries("cboRecords").size(), 1);
        form.reject();
    });
    user.Clicks("imgApprove");
    EXPECT_EQ(Statuses(), "0");

    user.SeesMessage = [this](const Message& message) {
        EXPECT_FALSE(message.Title == received && Statuses().contains('0')) << "noted before the question";
    };
    user.WillAnswer(received, "No",
                    "now?\r\n\r\nSubmitted:\tEmployee\t\tCategory\r\n23-Nov-2026\tBouchard, Marie\tVac");
    Opens("PAUL");
    main->timAbsence_Timer();
    Selects("lstEmployees", "Bouchard, Marie");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "00:00");

    Requests(25);
    {
        const MailOnItsWay mail; // the tick waits, and an idle program lives on
        main->timAbsence_Timer();
        main->IdleSeconds = SessionState.TimeOutSeconds;
        main->timTimeOut_Timer();
        EXPECT_EQ(main->IdleSeconds, 0);
    }
    user.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee& form) {
        main->timAbsence_Timer(); // nobody is asked over an open form
        form.reject();
    });
    user.Clicks("imgUpdateSelection");
    user.WillAnswer(received, "Yes").WhenOpens<frmApproval>([this](frmApproval& form) {
        user.Picks("cboRecords", "26-11-23").Clicks("optApproveAll").WillConfirm().WillBeDone("NOTE: No e-mail");
        user.Clicks("cmdProcess");
        form.reject();
    });
    main->timAbsence_Timer();
    EXPECT_EQ(Statuses(), "2 2");
    EXPECT_EQ(main->findChild<QToolButton*>("imgApprove")->text(), "Approve");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "2 days 00:00") << "the calendar shows what was approved";

    user.WillAnswer(told, "OK", "24-Nov\tRequest approved    \tVacation\r\n25-Nov\tRequest approved    \tVacation\r\n");
    Opens("MBOUCHARD");
    main->timAbsence_Timer();
    EXPECT_EQ(Statuses(), "4 4");
}

TEST_F(RequestsAtLogIn, WhoAsksAndApprovesHearsOfHisOwnFirstAndTheCountFollowsTheUser)
{
    house.FiscalYear("2027", 2027);
    house.Hire({"PAUL", "Paul", "Roy", "Production", "", {"SelfLevelCreate"}}, 2);
    house.Sql("UPDATE Attendance SET SubmittedBy = 3 WHERE RecordID = ?",
              {house.Record(3, "Sick", {2026, 11, 26}, 7, true)});
    user.WillAnswer(told, "OK", "26-Nov").WillAnswer(received, "No", "Bouchard");
    Opens("PAUL");
    EXPECT_EQ(user.Reads("imgApprove"), "Approve (1)");
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("imgApprove"), "Approve");
}

TEST_F(RequestsAtLogIn, InAClosedYearNobodyIsAsked)
{
    house.Sql("UPDATE Employees SET SelfLevelCreate = 1");
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46000");
    user.WillAnswer("FISCAL YEAR CLOSED:", "OK");
    Opens("PAUL");
    EXPECT_EQ(Statuses(), "0");
    EXPECT_FALSE(user.CanUse("imgApprove"));
}
} // namespace
