#include "attendance/attendance_guards.h"
#include "attendance/leave_requests.h"
#include "attendance/request_reports.h"
#include "calendar/calendar_records.h"
#include "ledger/allowances.h"
#include "ledger/time_banks.h"
#include "platform/clock.h"
#include "support/company_test.h"

#include <QScopedValueRollback>

namespace
{
/// A record of Anna's in each state of its life, and whoever reads records: which of them count it.
class RequestStates : public CompanyTest
{
protected:
    RequestStates()
    {
        house.Sql("UPDATE Categories SET RequiresMonitoring = 1, TimeBankRelated = 1, ConstitutesAnAbsence = 1");
        house.Sql("UPDATE Employees SET DepartmentID = (SELECT DepartmentID FROM Employees WHERE RecordID = ?)",
                  {anna});
        selection = {anna, 1, 1, 1, "Anna Abel"};
    }
    /// A record of today with these settings, beside a colleague's request for the same day.
    void IsIn(const QString& state)
    {
        house.Sql("DELETE FROM Attendance");
        house.Sql("UPDATE Attendance SET SubmittedTo_First = ?, " + state + " WHERE RecordID = ?",
                  {eva, house.Record(anna, "Vacation", CurrentDateTime().date(), 1)});
        house.Sql("UPDATE Attendance SET SubmittedTo_First = ? WHERE RecordID = ?",
                  {eva, house.Record(dan, "Vacation", CurrentDateTime().date(), 1, true)});
    }
    template <typename Groups>
    static bool HasAnna(const Groups& groups)
    {
        return std::any_of(groups.begin(), groups.end(),
                           [](const RequestGroup& group) { return group.FirstName == "Anna"; });
    }
    QString Sums()
    {
        QStringList counting;
        if (TimeInCategory(datAbsence, anna, house.CategoryID("Vacation"), LiveRecords::Approved) == 1)
            counting << "used";
        if (TimeInCategory(datAbsence, anna, house.CategoryID("Vacation"), LiveRecords::Pending) == 1)
            counting << "waiting";
        if (TimeBankOf(datAbsence, selection) == 1)
            counting << "bank";
        return counting.join(' ');
    }
    QString Views()
    {
        QStringList counting;
        static_cast<CalendarSelection&>(SessionState) = selection;
        for (const bool approved : {true, false}) {
            const QScopedValueRollback<bool> shown(SessionState.ShowApproved, approved);
            const QString view = approved ? "" : "pending-";
            if (!RecordsOfTheYear(datAbsence).isEmpty())
                counting << view + "records";
            if (TotalForTheYear(datAbsence) == 1)
                counting << view + "total";
            if (!DailyAttendance(datAbsence, Today()).isEmpty())
                counting << view + "day";
        }
        if (!ConflictingRecords(datAbsence, Today(), Today()).isEmpty())
            counting << "conflict";
        return counting.join(' ');
    }
    QString Approver()
    {
        house.LogIn("EVA");
        QStringList counting;
        if (HasAnna(LoadRequestGroups(datAbsence)))
            counting << "to-settle";
        if (HasAnna(UntoldRequests(datAbsence)))
            counting << "new";
        const RequestGroup dansGroup{Today(), dan, house.CategoryID("Vacation"), "", "", ""};
        if (LoadRequestedDates(datAbsence, dansGroup).Dates[0].AlsoAbsent.contains("Anna Abel"))
            counting << "absent";
        return counting.join(' ');
    }
    /// The titles under which Anna herself is told of it.
    QString Requester(bool isReported)
    {
        house.LogIn("ANNA");
        QStringList counting;
        user.SeesMessage = [&](const Message& message) {
            if (message.Text.contains("Vacation"))
                counting << message.Title;
        };
        user.WillAnswer("DENIED REQUESTS FOR LEAVE:", "OK");
        TellDeniedRequests(datAbsence);
        if (isReported)
            user.WillAnswer("REQUEST(S) FOR LEAVE STATUS REPORT:", "OK");
        WereRequestsApproved(datAbsence);
        return counting.join(' ');
    }

    CalendarSelection selection;
};

TEST_F(RequestStates, AReasonIsToldOnceBelowTheDatesForWhichItWasGiven)
{
    for (const auto& [day, reason] : {std::pair(4, "Nobody else is here"), {2, "Inventory"}, {3, "Inventory"}})
        house.Sql("UPDATE Attendance SET SubmittedBy = EmployeeID, DeniedBy = 'EVA', CancelledDate = 46083, "
                  "ApprovalRefusalMessage = ? WHERE RecordID = ?",
                  {reason, house.Record(anna, "Vacation", {2026, 3, day}, 7)});
    house.LogIn("ANNA");
    user.WillAnswer("DENIED REQUESTS FOR LEAVE:", "OK",
                    "DATE\tCATEGORY\tDENIED BY\r\nMon 02-Mar-2026\tVacation\tEVA\r\nTue "
                    "03-Mar-2026\tVacation\tEVA\r\nREASON: Inventory\r\n\r\nWed "
                    "04-Mar-2026\tVacation\tEVA\r\nREASON: Nobody else is here");
    TellDeniedRequests(datAbsence);
}

TEST_F(RequestStates, EachReaderCountsWhatItIsAbout)
{
    struct State
    {
        const char* Name;
        const char* Columns;
        const char* Sums;
        const char* Views;
        const char* Approver;
        const char* Requester;
    };
    const char* kShown = "records total day conflict";
    const char* kWaiting = "pending-records pending-total pending-day conflict";
    const char* kReport = "REQUEST(S) FOR LEAVE STATUS REPORT:";
    const char* kDenials = "DENIED REQUESTS FOR LEAVE:";
    const QString by = QString::number(anna);
    const State kStates[] = {
        {"entered", "SubmittedBy = 0", "used bank", kShown, "absent", ""},
        {"submitted", "Submitted = 1", "waiting bank", kWaiting, "to-settle new absent", kReport},
        {"told", "Submitted = 1, RequestStatus = 1", "waiting bank", kWaiting, "to-settle absent", kReport},
        {"approved", "RequestStatus = 2, ApprovedBy = 'EVA'", "used bank", kShown, "absent", kReport},
        {"told of approval", "RequestStatus = 4", "used bank", kShown, "absent", ""},
        {"denied", "RequestStatus = 3, DeniedBy = 'EVA', CancelledDate = 46083", "", "", "", kDenials},
        {"told of denial", "RequestStatus = 4, DeniedBy = 'EVA', CancelledDate = 46083", "", "", "", kDenials},
        {"withdrawn", "RequestStatus = 1, CancelledBy = 'ANNA', CancelledDate = 46083", "", "", "", ""},
        {"cancelled", "RequestStatus = 4, CancelledBy = 'ANNA', CancelledDate = 46083", "", "", "", ""}};
    for (const State& state : kStates) {
        IsIn("SubmittedBy = " + by + ", " + state.Columns);
        house.LogIn("ADMIN");
        EXPECT_EQ(Sums() + "|" + Views() + "|" + Approver(),
                  QStringList({state.Sums, state.Views, state.Approver}).join('|'))
            << state.Name;
        EXPECT_EQ(Requester(state.Requester == kReport), state.Requester) << state.Name;
    }
}
} // namespace
