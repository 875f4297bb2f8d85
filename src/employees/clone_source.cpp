#include "employees/clone_source.h"

#include "employees/security_profile_rules.h"
#include "employees/work_schedule_rules.h"
#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"

namespace
{
/// The employees of one's own unit, whose location goes without saying.
Recordset SelectOfUnit(DataControl& datAbsence, const Level& level)
{
    return datAbsence.Select(QStringLiteral("SELECT FamilyName, FirstName, RecordID, '' AS Location FROM Employees "
                                            "WHERE FiscalYear = ? AND %1 = ? ORDER BY FamilyName ASC, FirstName ASC")
                                 .arg(level.Column),
                             SessionState.FiscalYearID, level.Unit());
}

/// The employees of an organization, or of all when it is 0, with the name of their unit at that level.
Recordset SelectWithLocation(DataControl& datAbsence, const Level& level, int organizationID)
{
    return datAbsence.Select(
        QStringLiteral("SELECT Employees.FamilyName, Employees.FirstName, Employees.RecordID, %1s.%2 AS Location "
                       "FROM Employees, %1s WHERE Employees.%1ID = %1s.RecordID AND Employees.FiscalYear = ?1 AND "
                       "(?2 = 0 OR Employees.OrganizationID = ?2) "
                       "ORDER BY %1s.%2 ASC, Employees.FamilyName ASC, Employees.FirstName ASC")
            .arg(level.Name, NameColumn(level.Name)),
        SessionState.FiscalYearID, organizationID);
}

/// It is the position of the user that counts here, not his rights.
Recordset SelectInReach(DataControl& datAbsence)
{
    for (const Level* own : {&kGroupLevel, &kDepartmentLevel})
        if (own->Unit() != 0)
            return SelectOfUnit(datAbsence, *own);
    const int organization = kOrganizationLevel.Unit();
    return SelectWithLocation(datAbsence, organization != 0 ? kDepartmentLevel : kOrganizationLevel, organization);
}

QString SourceListed(const Recordset& row)
{
    const QString location = row.Text("Location").trimmed();
    return location.isEmpty() ? ListedName(row) : location + " / " + ListedName(row);
}

void TakeWorkplace(const EmployeeRow& source, EmployeeRecord& record)
{
    record.OrganizationID = source.OrganizationID;
    record.DepartmentID = source.DepartmentID;
    record.GroupID = source.GroupID;
    record.ApprovedByMain = source.ApprovedByMain;
    record.ApprovedByBackup = source.ApprovedByBackup;
}

void TakeWeek(const EmployeeRow& source, EmployeeRecord& record)
{
    TakeSchedule(source, record);
    ShowDayLengths(record);
    for (std::size_t day = 0; day < record.HoursWorked.size(); ++day)
        record.HoursSpecified[day] = record.HoursWorked[day] > 0;
}
} // namespace

QVector<ListEntry> LoadCloneSources(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    QVector<ListEntry> sources;
    for (const Recordset& row : SelectInReach(datAbsence))
        sources.append({SourceListed(row), row.Long("RecordID")});
    return sources;
}

void TakeTemplate(DataControl& datAbsence, int sourceEmployeeID, EmployeeRecord& record)
{
    const Connection connection(datAbsence);
    const auto source = Find<EmployeeRow>(datAbsence, sourceEmployeeID);
    if (!source)
        return;
    TakeWorkplace(*source, record);
    TakeWeek(*source, record);
    static_cast<SecurityProfile&>(record) = *source;
    CompleteLoadedRights(record);
}
