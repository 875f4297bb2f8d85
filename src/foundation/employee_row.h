#pragma once

#include "foundation/employee_rights.h"
#include "foundation/rows.h"
#include "foundation/work_schedule.h"

/// An employee of one fiscal year, with rights and weekly schedule. Dates are serial days and ids RecordIDs, 0 none.
struct EmployeeRow : SecurityProfile, WorkSchedule
{
    int RecordID = 0;
    int FiscalYear = 0;
    int OrganizationID = 0;
    int DepartmentID = 0;
    int GroupID = 0;
    QString FamilyName;
    QString FirstName;
    QString EmployeeID; ///< the employer's own number
    QString AddressLine1;
    QString PostalCode; ///< stands in the column AddressLine2
    QString City;
    QString ProvinceState;
    QString Country;
    QString PhoneHome;
    QString PhoneOffice;
    int DateOfBirth = 0;
    int DateOfHire = 0;
    int DateEntered = 0;
    QString EnteredBy;
    int DeactivatedDate = 0; ///< 0 active
    QString DeactivatedBy;
    QString ReasonForDeactivation;
    int EmployeeType = 0;
    double HourlyRate = 0;    ///< money
    int ApprovedByMain = 0;   ///< first approver
    int ApprovedByBackup = 0; ///< second approver
    int PreviousID = 0;       ///< his row in the year before
    int IsAllowedToCarryOverVacation = 0;
    int IsAllowedToCarryOverTimeBanked = 0;
    QString Comment;
    QString EMailAddress;
    QString Username; ///< the first 15 characters of the log-in name
    QString Password;
    QString ModifiedBy;
    int ModifiedDate = 0;
    QString LoginID;
    int ReportTo = 0;
    QString Title;
    int Gender = 0;
    int Language = 0;    ///< 0 English, 1 French
    double LoggedIn = 0; ///< moment of the last log-in, 0 none
};

inline const std::vector<Column<EmployeeRow>> kEmployeePerson = {
    COLUMN(EmployeeRow, RecordID),     COLUMN(EmployeeRow, FiscalYear),    COLUMN(EmployeeRow, OrganizationID),
    COLUMN(EmployeeRow, DepartmentID), COLUMN(EmployeeRow, GroupID),       COLUMN(EmployeeRow, FamilyName),
    COLUMN(EmployeeRow, FirstName),    COLUMN(EmployeeRow, EmployeeID),    COLUMN(EmployeeRow, AddressLine1),
    COLUMN(EmployeeRow, City),         COLUMN(EmployeeRow, ProvinceState), COLUMN(EmployeeRow, Country),
    COLUMN(EmployeeRow, PhoneHome),    COLUMN(EmployeeRow, PhoneOffice)};
inline const std::vector<Column<EmployeeRow>> kEmployeeEmployment = {
    COLUMN(EmployeeRow, DateOfBirth),
    COLUMN(EmployeeRow, DateOfHire),
    COLUMN(EmployeeRow, DateEntered),
    COLUMN(EmployeeRow, EnteredBy),
    COLUMN(EmployeeRow, DeactivatedDate),
    COLUMN(EmployeeRow, DeactivatedBy),
    COLUMN(EmployeeRow, ReasonForDeactivation),
    COLUMN(EmployeeRow, EmployeeType),
    COLUMN(EmployeeRow, HourlyRate),
    COLUMN(EmployeeRow, PreviousID),
    COLUMN(EmployeeRow, IsAllowedToCarryOverVacation),
    COLUMN(EmployeeRow, IsAllowedToCarryOverTimeBanked),
    COLUMN(EmployeeRow, Comment),
    COLUMN(EmployeeRow, EMailAddress)};
inline const std::vector<Column<EmployeeRow>> kEmployeeFurther = {
    COLUMN(EmployeeRow, Username),   COLUMN(EmployeeRow, Password),     COLUMN(EmployeeRow, HoursWorkedDaily),
    COLUMN(EmployeeRow, ModifiedBy), COLUMN(EmployeeRow, ModifiedDate), COLUMN(EmployeeRow, LoginID),
    COLUMN(EmployeeRow, ReportTo),   COLUMN(EmployeeRow, Title),        COLUMN(EmployeeRow, Gender),
    COLUMN(EmployeeRow, Language),   COLUMN(EmployeeRow, LoggedIn)};
/// Those that bear another name than their member.
inline const std::vector<Column<EmployeeRow>> kEmployeeRenamed = {
    {"AddressLine2", &EmployeeRow::PostalCode},
    {"AttendanceApprovedBy_Main", &EmployeeRow::ApprovedByMain},
    {"AttendanceApprovedBy_Backup", &EmployeeRow::ApprovedByBackup}};

template <>
inline const Table<EmployeeRow> kTable<EmployeeRow> = {
    "Employees",
    Joined(kEmployeePerson, kEmployeeEmployment, kEmployeeFurther, kEmployeeRenamed, kRights, kDayLengths, kClockTimes),
    Twin::Tried};
