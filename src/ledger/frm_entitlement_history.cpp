#include "ledger/frm_entitlement_history.h"

#include "ledger/entitlement_history.h"
#include "platform/controls/flex_grid.h"

namespace
{
constexpr QSize kHistorySize(860, 380);
constexpr int kHistoryGap = 6;
constexpr Text kHistoryTitle = {"History of the entitlement", "Historique du temps alloué"};

struct HistoryColumn
{
    Text Head;
    int Width;
};
constexpr HistoryColumn kHistoryColumns[] = {
    {{"Date", "Le"}, 130},
    {{"By", "Par"}, 130},
    {{"Carried over", "Solde précédent"}, 150},
    {{"Annual entitlement", "Temps alloué"}, 150},
    {{"Carry over?", "Transférable?"}, 110},
    {{"In force?", "En vigueur?"}, 0},
};
} // namespace

frmEntitlementHistory::frmEntitlementHistory(const EntitlementLine& line, const QString& employee, QWidget* parent)
    : FormBase("frmEntitlementHistory", parent), flxHistory(Named<FlexGrid>("flxHistory"))
{
    SetTitle(this, kHistoryTitle);
    SetAccessibleName(flxHistory, kHistoryTitle);
    auto* heading = AsHead(MakeLabel("lblHeading"));
    heading->setText(employee + " - " + line.Category);
    flxHistory->SetRowSelection(true);
    Page()->addWidget(MakeCard(Stack(kHistoryGap, {heading, flxHistory})), 1);
    LayFoot({AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); })});
    SetSize(kHistorySize);
    Attempt([&] { ShowChanges(line.RecordID); });
}

void frmEntitlementHistory::ShowChanges(int recordID)
{
    flxHistory->BeginUpdate();
    flxHistory->SetSize(1, static_cast<int>(std::size(kHistoryColumns)));
    flxHistory->SetFixedRows(1);
    int col = 0;
    for (const HistoryColumn& column : kHistoryColumns) {
        flxHistory->SetTextMatrix(0, col, T(column.Head));
        if (column.Width > 0)
            flxHistory->SetColWidth(col, column.Width);
        else
            flxHistory->SetColStretch(col);
        ++col;
    }
    for (const EntitlementChange& change : HistoryOfEntitlement(datAbsence, recordID))
        flxHistory->AddItem(CellsOf(change).join('\t'));
    flxHistory->EndUpdate();
}
