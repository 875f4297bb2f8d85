#pragma once

#include "foundation/rows.h"

/// What has become of a request, as its record says.
enum class RequestStatus
{
    OnHold,
    Told, ///< to its first approver
    Approved,
    Denied,
    OutcomeTold ///< to whoever asked
};

/// A record of attendance: an employee, a category and a date. Times and durations are decimal hours, dates serial
/// days.
struct AttendanceRow
{
    int RecordID = 0;
    int FiscalYear = 0;
    int EmployeeID = 0;
    int GroupID = 0; ///< the employee's units at the time
    int DepartmentID = 0;
    int OrganizationID = 0;
    int CategoryID = 0;
    int RecordDate = 0;
    float Duration = 0;  ///< below 0 where time comes off the bank
    float StartTime = 0; ///< 0 none; midnight is 1e-7
    float EndTime = 0;
    float TimeMultiplicator = 0;
    float TotalDuration = 0; ///< with the multiplicator
    int WholeDay = 0;
    QString Comment;
    int Justified = 0;
    int Submitted = 0;           ///< 1: a request that waits for approval
    float SubmittedDateTime = 0; ///< in the file rounded to a whole day
    int SubmittedBy = 0;
    int SubmittedTo_First = 0;
    int SubmittedTo_Second = 0;
    int RequestStatus = 0; ///< a value of that enumeration
    float ApprovedDateTime = 0;
    QString ApprovedBy;
    float DeniedDateTime = 0;
    QString DeniedBy;
    QString ApprovalRefusalMessage;
    QString EnteredBy;
    int EnteredDate = 0;
    QString ModifiedBy;
    int ModifiedDate = 0;
    QString CancelledBy;
    int CancelledDate = 0; ///< 0 live
    QString HourlyRate;    ///< with two decimals
    int UnitCost = 0;      ///< hundredths
    int ExtendedCost = 0;  ///< hundredths
};

inline const std::vector<Column<AttendanceRow>> kAttendanceRecord = {
    COLUMN(AttendanceRow, RecordID),      COLUMN(AttendanceRow, FiscalYear),   COLUMN(AttendanceRow, EmployeeID),
    COLUMN(AttendanceRow, GroupID),       COLUMN(AttendanceRow, DepartmentID), COLUMN(AttendanceRow, OrganizationID),
    COLUMN(AttendanceRow, CategoryID),    COLUMN(AttendanceRow, RecordDate),   COLUMN(AttendanceRow, Duration),
    COLUMN(AttendanceRow, StartTime),     COLUMN(AttendanceRow, EndTime),      COLUMN(AttendanceRow, TimeMultiplicator),
    COLUMN(AttendanceRow, TotalDuration), COLUMN(AttendanceRow, WholeDay),     COLUMN(AttendanceRow, Comment),
    COLUMN(AttendanceRow, Justified)};
inline const std::vector<Column<AttendanceRow>> kAttendanceHistory = {COLUMN(AttendanceRow, Submitted),
                                                                      COLUMN(AttendanceRow, SubmittedDateTime),
                                                                      COLUMN(AttendanceRow, SubmittedBy),
                                                                      COLUMN(AttendanceRow, SubmittedTo_First),
                                                                      COLUMN(AttendanceRow, SubmittedTo_Second),
                                                                      COLUMN(AttendanceRow, RequestStatus),
                                                                      COLUMN(AttendanceRow, ApprovedDateTime),
                                                                      COLUMN(AttendanceRow, ApprovedBy),
                                                                      COLUMN(AttendanceRow, DeniedDateTime),
                                                                      COLUMN(AttendanceRow, DeniedBy),
                                                                      COLUMN(AttendanceRow, ApprovalRefusalMessage),
                                                                      COLUMN(AttendanceRow, EnteredBy),
                                                                      COLUMN(AttendanceRow, EnteredDate),
                                                                      COLUMN(AttendanceRow, ModifiedBy),
                                                                      COLUMN(AttendanceRow, ModifiedDate),
                                                                      COLUMN(AttendanceRow, CancelledBy),
                                                                      COLUMN(AttendanceRow, CancelledDate),
                                                                      COLUMN(AttendanceRow, HourlyRate),
                                                                      COLUMN(AttendanceRow, UnitCost),
                                                                      COLUMN(AttendanceRow, ExtendedCost)};

/// The three costs are not audited, and the server does not know them.
template <>
inline const Table<AttendanceRow> kTable<AttendanceRow> = {"Attendance", Joined(kAttendanceRecord, kAttendanceHistory),
                                                           Twin::Kept, 3};
