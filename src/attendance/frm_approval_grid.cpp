#include "attendance/frm_approval_grid.h"

#include "foundation/common_services.h"
#include "foundation/frm_captions.h"

#include <iterator>

namespace
{
constexpr int kLeastHeight = 104; // of three dates

struct DateColumn
{
    Text Head;
    int Width; ///< 0: what the others leave
};
enum DateColumns
{
    kApprovedColumn,
    kDeniedColumn,
    kAbsentColumn = 7,
    kRecordColumn ///< hidden
};
constexpr DateColumn kDateColumns[] = {{{"Approved", "Approuvée"}, 92},
                                       {{"Denied", "Refusée"}, 80},
                                       {{"Date", "Date"}, 80},
                                       {{"From", "De"}, 66},
                                       {{"To", "À"}, 66},
                                       {{"Duration", "Durée"}, 80},
                                       {{"Category", "Catégorie"}, 160},
                                       {{"Will also be absent...", "Seront également absents..."}, 0},
                                       {{"", ""}, 0}};
constexpr int kFirstTextColumn = 6; ///< the columns before it are centred

QString ClockText(float hours)
{
    return hours == 0 ? QString() : DurationText(hours);
}

QStringList CellsOf(const RequestedDate& date)
{
    return {QString(), // the marks are set apart
            QString(),
            FormatDate(date.RecordDate, "dd-mmm"),
            ClockText(date.StartTime),
            ClockText(date.EndTime),
            DurationText(date.TotalDuration),
            date.Category,
            date.AlsoAbsent.join(", "),
            QString::number(date.RecordID)};
}
} // namespace

ApprovalGrid::ApprovalGrid()
{
    SetSize(1, static_cast<int>(std::size(kDateColumns)));
    SetFixedRows(1);
    setSelectionMode(QAbstractItemView::NoSelection); // the ring around the current cell says enough
    setMinimumHeight(kLeastHeight);
    for (int col = 0; col < Cols(); ++col) {
        SetColAlignment(col, col < kFirstTextColumn ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        SetColWidth(col, kDateColumns[col].Width);
    }
    SetColStretch(kAbsentColumn);
    SetColHidden(kRecordColumn, true);
    SetCellHints([this](int row, int col) {
        return col == kAbsentColumn ? TextMatrix(row, col).split(", ", Qt::SkipEmptyParts) : QStringList();
    });
    FollowLanguage(this, [this] { BuildHeads(); });
    connect(this, &FlexGrid::CellClicked, this, [this](int row, int col) {
        if (col == kApprovedColumn || col == kDeniedColumn)
            Clicked(row - 1, col == kApprovedColumn ? RequestMark::Approved : RequestMark::Denied);
    });
}

void ApprovalGrid::BuildHeads()
{
    for (int col = 0; col < Cols(); ++col)
        SetTextMatrix(0, col, T(kDateColumns[col].Head));
}

void ApprovalGrid::Show(const QVector<RequestedDate>& dates)
{
    BeginUpdate();
    ClearRows();
    for (const RequestedDate& date : dates)
        AddItem(CellsOf(date).join('\t'));
    ShowMarks(dates);
    EndUpdate();
    scrollToTop();
    if (!dates.isEmpty())
        SelectCell(1, kApprovedColumn);
}

void ApprovalGrid::ShowMarks(const QVector<RequestedDate>& dates)
{
    for (int row = 0; row < dates.size(); ++row)
        for (const auto& [col, mark] :
             {std::pair(kApprovedColumn, RequestMark::Approved), std::pair(kDeniedColumn, RequestMark::Denied)}) {
            const bool marked = dates[row].Mark == mark;
            SetTextMatrix(row + 1, col, marked ? QStringLiteral("[X]") : QStringLiteral("[ ]"));
            SetCellFontBold(row + 1, col, marked);
        }
}
