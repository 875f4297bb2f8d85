#include "calendar/frm_main_calendar.h"

#include "calendar/frm_main_grid.h"
#include "foundation/frm_captions.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace
{
constexpr int kFewestDays = 6; ///< in sight at once, each way; the rest scrolls
constexpr int kRecordsWidth = 560;
constexpr int kFewestLines = 2;
constexpr int kMostLines = 9;
const QPoint kHintOffset(18, 22); ///< where it begins
constexpr int kHintGap = 3;       ///< from a month
} // namespace

CalendarPane::CalendarPane(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(kFewestDays * fontMetrics().horizontalAdvance("000"), kFewestDays * fontMetrics().height());
    BuildGrid();
    BuildOverlays();
}

void CalendarPane::BuildGrid()
{
    flxCalendar = new CalendarGrid(this);
    setFocusProxy(flxCalendar);
    flxCalendar->viewport()->setMouseTracking(true);
    flxCalendar->viewport()->installEventFilter(this);
    connect(flxCalendar, &FlexGrid::CellClicked, this, [this](int row, int col) {
        if (const int date = flxCalendar->DateAt(row, col); date != 0)
            DateClicked(date);
    });
    connect(flxCalendar, &FlexGrid::CellEntered, this, [this](int, int) { HideRecords(); });
    flxCalendar->Moved = [this] { FollowCursor(); };
    connect(flxCalendar->verticalScrollBar(), &QScrollBar::valueChanged, this, &CalendarPane::FollowCursor);
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
    HideRecords();
    flxCalendar->Show(calendar);
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

bool CalendarPane::HideRecords()
{
    const bool shown = !fraShowRecords->isHidden();
    fraShowRecords->hide();
    return shown;
}

/// It grows by the count of the days.
void CalendarPane::ShowHint(const QString& hint)
{
    const bool began = txtSelect->isHidden();
    txtSelect->setText(hint);
    txtSelect->adjustSize();
    if (began)
        txtSelect->move(kHintOffset);
    else
        PlaceHint(flxCalendar->currentIndex());
    txtSelect->setVisible(!hint.isEmpty() && SessionState.ShowSelectHint);
    txtSelect->raise();
}

/// The cursor has come to another day.
void CalendarPane::FollowCursor()
{
    HideRecords();
    PlaceHint(flxCalendar->currentIndex());
}

/// The hint keeps out of the way of the month that is being marked: below it, above it, or beside it in a low window;
/// where no place is free, it stands at the left of it.
void CalendarPane::PlaceHint(const QModelIndex& day)
{
    const QPoint origin = flxCalendar->viewport()->mapTo(this, QPoint());
    const QSize size = txtSelect->size();
    const QRect month = flxCalendar->MonthRect(day).translated(origin).marginsAdded(QMargins() + kHintGap);
    const int left = std::clamp(month.left(), 0, std::max(0, width() - size.width()));
    const int top = std::clamp(month.top(), 0, std::max(0, height() - size.height()));
    const QPoint places[] = {{left, month.bottom()},
                             {left, month.top() - size.height()},
                             {month.right(), top},
                             {std::max(0, month.left() - size.width()), top}};
    const auto fits = [this, size](const QPoint& place) { return rect().contains(QRect(place, size)); };
    const auto* place = std::find_if(std::begin(places), std::end(places) - 1, fits);
    txtSelect->move(*place);
}

bool CalendarPane::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::MouseMove && !txtSelect->isHidden())
        if (const QModelIndex day = flxCalendar->indexAt(static_cast<QMouseEvent*>(event)->pos()); day.isValid())
            PlaceHint(day);
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
    flxCalendar->FitInto(size());
}
