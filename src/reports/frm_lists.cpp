#include "reports/frm_lists.h"

#include "platform/controls/flex_grid.h"

#include <algorithm>

namespace
{
constexpr int kCellMargin = 28;
constexpr int kWidestColumn = 380;
constexpr int kRowHeight = 26;
constexpr int kLowestGrid = 7 * kRowHeight;
constexpr int kHighestGrid = 17 * kRowHeight;
constexpr int kScrollBar = 20;
constexpr int kHeadingGap = 6;
} // namespace

frmLists::frmLists(ListKind kind, QWidget* parent)
    : FormBase("frmLists", parent), lblHeading(AsHead(MakeLabel("lblHeading"))), flxList(Named<FlexGrid>("flxList"))
{
    const bool employees = kind == ListKind::Employees;
    SetTitle(this, employees ? Text{"Employees", "Employés"} : Text{"Categories", "Catégories"});
    flxList->SetRowSelection(true);
    Page()->addWidget(MakeCard(Stack(kHeadingGap, {lblHeading, flxList})), 1);
    LayFoot({AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); })});
    const BusyPointer busy;
    Attempt([&] { ShowList(employees ? ListOfEmployees(datAbsence) : ListOfCategories(datAbsence)); });
}

void frmLists::ShowList(const ReferenceList& list)
{
    lblHeading->setText(list.Heading);
    flxList->setAccessibleName(list.Heading);
    flxList->BeginUpdate();
    flxList->SetSize(1, static_cast<int>(list.Columns.size()));
    flxList->SetFixedRows(1);
    int width = kScrollBar;
    for (int col = 0; col < flxList->Cols(); ++col) {
        flxList->SetTextMatrix(0, col, list.Columns[col]);
        flxList->SetColAlignment(col, Qt::AlignLeft | Qt::AlignVCenter);
        flxList->SetColWidth(col, WidthOfColumn(list, col));
        width += WidthOfColumn(list, col);
    }
    for (const QStringList& row : list.Rows)
        flxList->AddItem(row.join('\t'));
    flxList->SetColStretch(flxList->Cols() - 1);
    flxList->EndUpdate();
    flxList->setMinimumSize(width, std::clamp((flxList->Rows() + 1) * kRowHeight, kLowestGrid, kHighestGrid));
}

/// Wide enough for its head and its longest entry.
int frmLists::WidthOfColumn(const ReferenceList& list, int col) const
{
    QFont bold = font();
    bold.setBold(true);
    int width = QFontMetrics(bold).horizontalAdvance(list.Columns[col]);
    for (const QStringList& row : list.Rows)
        width = std::max(width, fontMetrics().horizontalAdvance(row[col]));
    return std::min(width + kCellMargin, kWidestColumn);
}
