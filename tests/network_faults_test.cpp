#include "attendance/attendance_records.h"
#include "attendance/record_cancellation.h"
#include "attendance/request_approval.h"
#include "attendance/request_reports.h"
#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/transfer_employee.h"
#include "foundation/connection.h"
#include "foundation/log_in.h"
#include "platform/clock.h"
#include "reference/frm_unit.h"
#include "support/company_test.h"
#include "support/file_calls.h"

#include <QFile>
#include <QScopeGuard>

#include <sqlite3.h>

namespace
{
/// What a share can do in the middle of a work, and the failures by which it may be told.
struct ShareFault
{
    const char* Name;
    FileCall Call;
    int Code;
    bool ForGood;
    QList<int> Told;
};
const ShareFault kFaults[] = {
    {"read error", FileCall::Read, SQLITE_IOERR_READ, false, {EngineError::ConnectionLost, EngineError::DiskError}},
    {"size unknown", FileCall::Size, SQLITE_IOERR_FSTAT, false, {EngineError::ConnectionLost, EngineError::DiskError}},
    {"write error", FileCall::Write, SQLITE_IOERR_WRITE, false, {EngineError::DiskError}},
    {"disk full", FileCall::Write, SQLITE_FULL, false, {EngineError::DiskFull}},
    {"sync error", FileCall::Sync, SQLITE_IOERR_FSYNC, false, {EngineError::DiskError}},
    {"lock held", FileCall::Lock, SQLITE_BUSY, false, {EngineError::Locked}},
    {"lock error", FileCall::Lock, SQLITE_IOERR_LOCK, false, {EngineError::ConnectionLost, EngineError::DiskError}},
    {"stale file", FileCall::Read, SQLITE_IOERR_READ, true, {EngineError::ConnectionLost, EngineError::DiskError}},
    {"no journal", FileCall::Open, SQLITE_CANTOPEN, false, {EngineError::CannotOpen}},
    {"journal stays", FileCall::Remove, SQLITE_IOERR_DELETE, false, {EngineError::DiskError}},
};

/// An operation, and what it may leave when it fails in the middle.
struct Operation
{
    const char* Name;
    std::function<void()> Work;
    bool KeepsWhatWasWritten = false;
};

class ShareFaults : public CompanyTest
{
protected:
    ShareFaults()
    {
        house.Record(anna, "Vacation", {2026, 3, 4}, 7, true);
        house.Sql("UPDATE Attendance SET SubmittedTo_First = ?", {SessionState.UserID});
        house.Sql("INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, AnnualEntitlement, Active) "
                  "VALUES (1, 1, ?, 70, 1)",
                  {anna});
        entry.EmployeeID = anna;
        entry.SelectedCategoryID = 1;
        entry.Duration = entry.TotalDuration = 2;
        entry.Dates = {SerialOfDate({2026, 4, 1}), SerialOfDate({2026, 4, 2})};
        changed = entry;
        changed.RecordToModify = 1;
        employee.RecordID = anna;
        LoadEmployeeRecord_ACCESS(datAbsence, employee);
        employee.City = "Laval";
        DefaultWorkspace().Forget();
        QFile::copy(house.DatabaseFile(), Sound());
    }
    ~ShareFaults() override { Database::LockWait = wait; }

    QString Sound() const { return house.Folder() + "/sound.mdb"; }
    /// The database as it was, its file as good as never touched.
    void Restore()
    {
        calls.Recover();
        DefaultWorkspace().Forget();
        for (const char* file : {"", "-journal"})
            QFile::remove(house.DatabaseFile() + file);
        QFile::copy(Sound(), house.DatabaseFile());
        SessionState = session;
        const Connection connection(datAbsence); // the file is at hand, as it is in the middle of a day
    }
    /// All but the history of employees, which is kept where it can be.
    QString Rows()
    {
        return house.All({"Attendance", "Attendance_Modifications", "Employees", "Entitlements", "FiscalYears"});
    }
    void SettleRequest()
    {
        RequestedDate date;
        date.RecordID = 1;
        date.Mark = RequestMark::Denied;
        const Settlement settlement = SettleRequests(datAbsence, {date}, "no");
        EXPECT_EQ(settlement.Settled.isEmpty(), bool(settlement.Failure));
        if (settlement.Failure)
            ThrowFailure(settlement);
    }
    void CancelRequest()
    {
        SessionState.ShowApproved = false;
        const CancelledRecords cancelled = CancelRecords(datAbsence, {1});
        EXPECT_EQ(cancelled.Dates.isEmpty(), bool(cancelled.Failure));
        if (cancelled.Failure)
            std::rethrow_exception(cancelled.Failure);
    }
    /// The failure that is told, 0 for none.
    int Attempt(const Operation& operation)
    {
        try {
            operation.Work();
        } catch (const RuntimeError& error) {
            return error.Number;
        }
        return 0;
    }
    void Try(const Operation& operation, const ShareFault& fault);

    AttendanceEntry entry;
    AttendanceEntry changed;
    EmployeeRecord employee;
    Session session = SessionState;
    const int wait = std::exchange(Database::LockWait, 0);
    FileCalls calls;
};

/// Lets each call of the operation fail in turn.
void ShareFaults::Try(const Operation& operation, const ShareFault& fault)
{
    Restore();
    const QString before = Rows();
    operation.Work();
    const QString done = Rows();
    for (int nth = 1;; ++nth) {
        Restore();
        calls.Fail(fault.Call, nth, fault.Code, fault.ForGood);
        const int told = Attempt(operation);
        if (!calls.HasFailed())
            return;
        calls.Recover();
        DefaultWorkspace().Forget();
        const auto where = testing::Message()
                           << operation.Name << ", " << fault.Name << " " << nth << ", told " << told;
        const QString after = Rows();
        EXPECT_EQ(house.Cell("PRAGMA quick_check"), "ok") << where;
        const bool kept = operation.KeepsWhatWasWritten && house.Number("SELECT COUNT(*) FROM Attendance") == 2;
        EXPECT_TRUE(told == 0 ? after == done : after == before || kept) << where;
        EXPECT_TRUE(told == 0 || fault.Told.contains(told)) << where;
    }
}

TEST_F(ShareFaults, WhatIsToldAsDoneIsInTheFileAndWhatIsToldAsFailedIsNot)
{
    const Operation operations[] = {
        {"log-in", [this] { LogInUser(datAbsence, 1); }},
        {"record added", [this] { NewAttendance(datAbsence, entry); }, true},
        {"record changed", [this] { ModifyAttendance(datAbsence, changed); }},
        {"employee saved", [this] { ModifyEmployee(datAbsence, employee); }},
        {"employee transferred",
         [this] {
             TransferEmployee(datAbsence, {anna, "Abel, Anna", {1, 1, 1}, {1, 2, 0}});
         }},
        {"employee deactivated", [this] { DeactivateEmployee(datAbsence, anna, "left"); }},
        {"request told", [this] { TakeNewRequests(datAbsence); }},
        {"request settled", [this] { SettleRequest(); }},
        {"request cancelled", [this] { CancelRequest(); }},
    };
    for (const Operation& operation : operations)
        for (const ShareFault& fault : kFaults)
            Try(operation, fault);
}

TEST_F(ShareFaults, WhatWasTypedOutlastsTheLockOfAnotherUser)
{
    user.Opens<frmOrganizations>();
    user.Clicks("cmdAdd").Enters({{"txtEnglishName", "Eastern Labs"},
                                  {"txtAddressLine1", "12 King's Road"},
                                  {"txtCity", "Moncton"},
                                  {"txtState", "NB"},
                                  {"txtCountry", "Canada"},
                                  {"txtZipCode", "E1A 0B1"}});
    const auto other = Database::Open(house.DatabaseFile(), kDatabasePassword);
    for (const bool isAtHand : {true, false}) {
        if (!isAtHand)
            DefaultWorkspace().Forget();
        other->Execute("BEGIN EXCLUSIVE");
        user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3260: ").Clicks("cmdAdd");
        EXPECT_EQ(user.ReadsAll({"txtEnglishName", "txtCity"}), "Eastern Labs|Moncton");
        other->Execute("COMMIT");
    }
    user.WillConfirm("Eastern Labs").WillBeDone("has been added").Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Organizations WHERE City = 'Moncton'"), 1);
}
} // namespace
