#include "calendar/frm_main_calendar.h"

#include "foundation/frm_captions.h"
#include "platform/controls/flex_grid.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QVBoxLayout>

namespace
{
constexpr int kNoDay = 0xF8F6F5; // cells of a month block that hold no date
constexpr int kSeparatorWidth = 14;
constexpr int kSpacerHeight = 14;
constexpr int kDayColumns = 28;
constexpr int kTextRows = 24;
constexpr int kRecordsWidth = 560;
constexpr int kFewestLines = 2;
constexpr int kMostLines = 9;
const QPoint kHintOffset(18, 22);

/// The pixels of part `index` when `whole` is divided into parts that differ by one pixel at most.
int Share(int whole, int parts, int index)
{
    constexpr int kSmallest = 16;
    return std::max(kSmallest, whole * (index + 1) / parts - whole * index / parts);
}
} // namespace

CalendarPane::CalendarPane(QWidget* parent) : QWidget(parent)
{
    BuildGrid();
    BuildOverlays();
}

void CalendarPane::BuildGrid()
{
    flxCalendar = Named<FlexGrid>("flxCalendar", this);
    flxCalendar->SetSize(YearCalendar::kRows, YearCalendar::kCols);
    SetAccessibleName(flxCalendar, {"Year calendar", "Calendrier de l'année"});
    flxCalendar->SetBordered(false);
    flxCalendar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    flxCalendar->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    flxCalendar->SetRowHidden(YearCalendar::kRows - 1, true);
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col) {
            flxCalendar->SetCellAlignment(row, col, Qt::AlignCenter);
            const bool day = !YearCalendar::IsTitleRow(row) && !YearCalendar::IsWeekdayRow(row) &&
                             !YearCalendar::IsSpacerRow(row) && !YearCalendar::IsSeparatorColumn(col);
            flxCalendar->SetCellLines(row, col, day);
            if (YearCalendar::IsTitleRow(row) && col % YearCalendar::kBlockCols == 0)
                flxCalendar->MergeCells(row, col, 1, YearCalendar::kBlockCols - 1);
        }
    flxCalendar->viewport()->setMouseTracking(true);
    flxCalendar->viewport()->installEventFilter(this);
    connect(flxCalendar, &FlexGrid::CellClicked, this, [this](int row, int col) {
        const int date = shown_ ? shown_->StoredDate(row, col) : 0;
        if (date != 0)
            DateClicked(date);
    });
    connect(flxCalendar, &FlexGrid::CellEntered, this, [this](int, int) { HideRecords(); });
}

void CalendarPane::BuildOverlays()
{
    fraHideCalendar = Named<QFrame>("fraHideCalendar", this);
    pgrLoadingCalendar = Named<QProgressBar>("pgrLoadingCalendar");
    pgrLoadingCalendar->setTextVisible(false);
    pgrLoadingCalendar->setFixedWidth(320);
    const Text loading = {"Loading the calendar...", "Chargement du calendrier..."};
    SetAccessibleName(pgrLoadingCalendar, loading);
    auto* cover = new QVBoxLayout(fraHideCalendar);
    cover->addStretch();
    cover->addWidget(AsCaption(MakeLabel("lblLoading", loading)), 0, Qt::AlignHCenter);
    cover->addWidget(pgrLoadingCalendar, 0, Qt::AlignHCenter);
    cover->addStretch();
    fraHideCalendar->hide();

    lblRecordsDate = AsHead(Named<QLabel>("lblRecordsDate"));
    txtAttendanceRecords = Named<QPlainTextEdit>("txtAttendanceRecords");
    txtAttendanceRecords->setReadOnly(true);
    txtAttendanceRecords->setProperty("look", "bare");
    txtAttendanceRecords->setFocusPolicy(Qt::NoFocus);
    auto* records = new QVBoxLayout;
    records->addWidget(lblRecordsDate);
    records->addWidget(txtAttendanceRecords);
    fraShowRecords = MakeCard(records);
    fraShowRecords->setParent(this);
    fraShowRecords->setObjectName("fraShowRecords");
    fraShowRecords->hide();

    txtSelect = Named<QLabel>("txtSelect", this);
    txtSelect->setWordWrap(true);
    txtSelect->setFixedWidth(300);
    txtSelect->setAttribute(Qt::WA_TransparentForMouseEvents);
    txtSelect->hide();
}

void CalendarPane::Show(const YearCalendar& calendar)
{
    shown_ = &calendar;
    HideRecords();
    flxCalendar->BeginUpdate();
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col)
            ShowCell(calendar, row, col);
    flxCalendar->EndUpdate();
}

void CalendarPane::ShowCell(const YearCalendar& calendar, int row, int col)
{
    if (YearCalendar::IsSpacerRow(row) || YearCalendar::IsSeparatorColumn(col))
        return;
    const CalendarCell& cell = calendar.Cell(row, col);
    const bool empty = cell.BackColor != CalendarColor::Head && calendar.StoredDate(row, col) == 0;
    flxCalendar->SetTextMatrix(row, col, cell.Text);
    flxCalendar->SetCellBackColor(row, col, empty ? kNoDay : cell.BackColor);
    flxCalendar->SetCellForeColor(row, col, cell.ForeColor);
    flxCalendar->SetCellFontBold(row, col, cell.Bold);
}

void CalendarPane::RefreshDate(const YearCalendar& calendar, int date)
{
    const QPoint place = calendar.PlaceOf(date);
    if (place.x() >= 0)
        ShowCell(calendar, place.y(), place.x());
}

void CalendarPane::Cover()
{
    pgrLoadingCalendar->setValue(0);
    fraHideCalendar->setGeometry(rect());
    fraHideCalendar->show();
    fraHideCalendar->raise();
    fraHideCalendar->repaint();
}

void CalendarPane::Uncover()
{
    fraHideCalendar->hide();
}

/// A repaint for each record would cost more than the filling; a hundred steps are enough to see it move.
void CalendarPane::ShowProgress(int done, int all)
{
    const int step = std::max(1, all / 100);
    if (!fraHideCalendar->isVisible() || done % step != 0)
        return;
    pgrLoadingCalendar->setMaximum(all);
    pgrLoadingCalendar->setValue(done);
    pgrLoadingCalendar->repaint();
}

void CalendarPane::ShowRecords(const QString& title, const QString& records)
{
    lblRecordsDate->setText(title);
    txtAttendanceRecords->setPlainText(records);
    PlaceRecords();
    fraShowRecords->show();
    fraShowRecords->raise();
}

/// Beside the clicked cell, but inside the pane.
void CalendarPane::PlaceRecords()
{
    const int lines = std::clamp(txtAttendanceRecords->blockCount(), kFewestLines, kMostLines);
    txtAttendanceRecords->setFixedHeight((lines + 1) * txtAttendanceRecords->fontMetrics().lineSpacing());
    const QSize size(kRecordsWidth, fraShowRecords->sizeHint().height());
    const QRect cell = flxCalendar->CellRect(flxCalendar->Row(), flxCalendar->Col());
    const int left = std::clamp(cell.left() - size.width() / 2, 0, std::max(0, width() - size.width()));
    const bool below = cell.bottom() + size.height() < height();
    const int top = below ? cell.bottom() + 2 : std::max(0, cell.top() - size.height() - 2);
    fraShowRecords->setGeometry(QRect(QPoint(left, top), size));
}

void CalendarPane::HideRecords()
{
    fraShowRecords->hide();
}

void CalendarPane::ShowHint(const QString& hint)
{
    txtSelect->setText(hint);
    txtSelect->adjustSize();
    txtSelect->move(kHintOffset);
    txtSelect->setVisible(!hint.isEmpty() && SessionState.ShowSelectHint);
    txtSelect->raise();
}

bool CalendarPane::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && !txtSelect->isHidden()) {
        const QPoint mouse = flxCalendar->viewport()->mapTo(this, static_cast<QMouseEvent*>(event)->pos());
        const QPoint wanted = mouse + kHintOffset;
        txtSelect->move(std::min(wanted.x(), width() - txtSelect->width()),
                        std::min(wanted.y(), height() - txtSelect->height()));
    }
    return QWidget::eventFilter(target, event);
}

void CalendarPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ResizeScreen();
}

void CalendarPane::ResizeScreen()
{
    flxCalendar->setGeometry(rect());
    fraHideCalendar->setGeometry(rect());
    const int separators = 3 * kSeparatorWidth;
    const int spacers = 2 * kSpacerHeight;
    flxCalendar->BeginUpdate();
    int day = 0;
    for (int col = 0; col < YearCalendar::kCols; ++col)
        flxCalendar->SetColWidth(col, YearCalendar::IsSeparatorColumn(col)
                                          ? kSeparatorWidth
                                          : Share(width() - separators, kDayColumns, day++));
    int text = 0;
    for (int row = 0; row < YearCalendar::kRows; ++row)
        flxCalendar->SetRowHeight(row, YearCalendar::IsSpacerRow(row) ? kSpacerHeight
                                                                      : Share(height() - spacers, kTextRows, text++));
    flxCalendar->EndUpdate();
}
