#include "ledger/entitlement_history.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/texts.h"

namespace
{
/// The images in the order in which they were kept, and the row as it stands.
QVector<EntitlementRow> Versions(DataControl& datAbsence, int recordID)
{
    TableShape twin = kTable<EntitlementRow>;
    twin.Name += "_Modifications";
    const Connection connection(datAbsence);
    QVector<EntitlementRow> versions;
    for (const Recordset& image : datAbsence.Select(SelectFrom(twin, "RecordID = ? ORDER BY rowid"), recordID))
        versions.append(RowOf(kTable<EntitlementRow>, image));
    if (const auto row = Find<EntitlementRow>(datAbsence, recordID))
        versions.append(*row);
    return versions;
}

QString FromTo(const QString& from, const QString& to, bool made)
{
    return made || from == to ? to : from + " → " + to;
}

QString FlagText(int flag)
{
    return flag == 1 ? T("YES", "OUI") : T("NO", "NON");
}
} // namespace

QVector<EntitlementChange> HistoryOfEntitlement(DataControl& datAbsence, int recordID)
{
    QVector<EntitlementChange> changes;
    EntitlementRow before;
    for (const EntitlementRow& row : Versions(datAbsence, recordID)) {
        const bool made = changes.isEmpty();
        changes.append({made ? row.EnteredDate : row.ModifiedDate, made ? row.EnteredBy : row.ModifiedBy, before, row});
        before = row;
    }
    return changes;
}

QStringList CellsOf(const EntitlementChange& change)
{
    const EntitlementRow &from = change.From, &to = change.To;
    const bool made = from.RecordID == 0;
    return {FormatDate(change.Date, "ddd dd-mmm-yyyy"),
            change.Who.trimmed(),
            FromTo(DurationText(from.CarriedOver), DurationText(to.CarriedOver), made),
            FromTo(DurationText(from.AnnualEntitlement), DurationText(to.AnnualEntitlement), made),
            FromTo(FlagText(from.MayBeCarriedOver), FlagText(to.MayBeCarriedOver), made),
            FromTo(FlagText(from.Active), FlagText(to.Active), made)};
}
