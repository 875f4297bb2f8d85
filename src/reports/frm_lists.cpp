#include "reports/frm_lists.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/form_kit.h"

#include <algorithm>

namespace
{
constexpr int kCellMargin = 28;
constexpr int kWidestColumn = 380;
constexpr int kRowHeight = 26;
constexpr int kLowestGrid = 7 * kRowHeight;
constexpr int kHighestGrid = 17 * kRowHeight;
constexpr int kScrollBar = 20;
} // namespace

frmLists::frmLists(ListKind kind, QWidget* parent) : QDialog(parent), kind_(kind)
{
    BuildControls();
    LoadCaptions();
    LoadRecords();
}

void frmLists::BuildControls()
{
    setObjectName("frmLists");
    lblHeading = AsHead(Named<QLabel>("lblHeading"));
    flxList = Named<FlexGrid>("flxList");
    flxList->SetRowSelection(true);
    cmdOK = AsMainButton(Named<QPushButton>("cmdOK"));
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* content = new QVBoxLayout;
    content->addWidget(lblHeading);
    content->addWidget(flxList, 1);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content), 1);
    page->addLayout(ButtonRow({cmdOK}));
}

void frmLists::LoadCaptions()
{
    setWindowTitle(kind_ == ListKind::Employees ? T("Employees", "Employés") : T("Categories", "Catégories"));
    cmdOK->setText(T("&OK", "&OK"));
}

void frmLists::LoadRecords()
{
    const BusyPointer busy;
    try {
        kind_ == ListKind::Employees ? LoadEmployees() : LoadCategories();
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

void frmLists::LoadEmployees()
{
    ShowList(ListOfEmployees(datAbsence));
}

void frmLists::LoadCategories()
{
    ShowList(ListOfCategories(datAbsence));
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
