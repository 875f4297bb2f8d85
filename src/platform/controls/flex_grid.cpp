#include "platform/controls/flex_grid.h"

#include "platform/controls/flex_painting.h"

#include <QKeyEvent>
#include <QMetaMethod>

namespace
{
constexpr int kRowHeight = 26;
constexpr int kColWidth = 96;
} // namespace

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent), cells_(new FlexCells(this)), top_(new FlexHeads(this))
{
    setHorizontalHeader(top_);
    top_->setDefaultSectionSize(kColWidth);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    setModel(cells_);
    setItemDelegate(new FlexDelegate(this));
    setShowGrid(false);
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    viewport()->setMouseTracking(true);
    ShowFixed();
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& at) {
        if (cells_->flags(at))
            emit CellClicked(at.row(), at.column());
    });
    connect(this, &QTableView::entered, this,
            [this](const QModelIndex& at) { emit CellEntered(at.row(), at.column()); });
}

void FlexGrid::SetSize(int rows, int cols)
{
    clearSpans();
    cells_->Resize(rows, cols);
    ShowFixed();
}

int FlexGrid::Rows() const
{
    return cells_->Rows();
}

int FlexGrid::Cols() const
{
    return cells_->Cols();
}

void FlexGrid::SetFixedRows(int rows)
{
    for (int row = 0; row < fixedRows_; ++row)
        setRowHidden(row, false);
    for (int row = 0; row < std::min(rows, cells_->ShownRows()); ++row)
        rowHeights_.insert(row, rowHeight(row));
    fixedRows_ = rows;
    ShowFixed();
}

int FlexGrid::AddItem(const QString& cells)
{
    return cells_->Append(cells.split('\t'));
}

void FlexGrid::RemoveItem(int row)
{
    cells_->Remove(row, 1);
}

void FlexGrid::ClearRows()
{
    cells_->Remove(fixedRows_, Rows() - fixedRows_);
    whenShown_.clear();
}

void FlexGrid::SetCell(int row, int col, const std::function<void(FlexCell&)>& change)
{
    FlexCell* cell = cells_->At(row, col);
    if (!cell)
        return;
    change(*cell);
    if (updates_ > 0)
        return;
    cells_->Changed(row, col);
    if (row < fixedRows_)
        top_->viewport()->update();
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    const FlexCell* cell = cells_->At(row, col);
    return cell ? cell->Text : QString();
}

void FlexGrid::SetTextMatrix(int row, int col, const QString& text)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Text = text; });
}

int FlexGrid::RowData(int row) const
{
    return cells_->RowData(row);
}

void FlexGrid::SetRowData(int row, int value)
{
    cells_->SetRowData(row, value);
}

int FlexGrid::CellBackColor(int row, int col) const
{
    const FlexCell* cell = cells_->At(row, col);
    return cell ? cell->Back : -1;
}

void FlexGrid::SetCellBackColor(int row, int col, int color)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Back = color; });
}

int FlexGrid::CellForeColor(int row, int col) const
{
    const FlexCell* cell = cells_->At(row, col);
    return cell ? cell->Fore : -1;
}

void FlexGrid::SetCellForeColor(int row, int col, int color)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Fore = color; });
}

bool FlexGrid::CellFontBold(int row, int col) const
{
    const FlexCell* cell = cells_->At(row, col);
    return cell && cell->Bold;
}

void FlexGrid::SetCellFontBold(int row, int col, bool bold)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Bold = bold; });
}

void FlexGrid::SetCellAlignment(int row, int col, Qt::Alignment alignment)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Alignment = alignment; });
}

void FlexGrid::SetColAlignment(int col, Qt::Alignment alignment)
{
    cells_->SetColAlignment(col, alignment);
    top_->viewport()->update();
}

void FlexGrid::SetCellLines(int row, int col, bool lines)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Lines = lines; });
}

void FlexGrid::SetCellNote(int row, int col, std::shared_ptr<const FlexNote> note)
{
    SetCell(row, col, [&](FlexCell& cell) { cell.Note = std::move(note); });
}

void FlexGrid::SetCellHints(std::function<QStringList(int row, int col)> hints)
{
    cells_->Hints = std::move(hints);
}

void FlexGrid::MergeCells(int row, int col, int rowSpan, int colSpan)
{
    WhenShown(row, [=, this] { setSpan(row, col, rowSpan, colSpan); });
}

/// The view knows a row that was added during an update only at the update's end.
void FlexGrid::WhenShown(int row, const std::function<void()>& change)
{
    if (row < cells_->ShownRows())
        change();
    else
        whenShown_.push_back(change);
}

void FlexGrid::SetColWidth(int col, int pixels)
{
    setColumnWidth(col, pixels);
}

void FlexGrid::SetRowHeight(int row, int pixels)
{
    if (row < fixedRows_) {
        rowHeights_[row] = pixels;
        ShowFixed();
    }
    WhenShown(row, [=, this] { setRowHeight(row, pixels); });
}

void FlexGrid::SetColHidden(int col, bool hidden)
{
    setColumnHidden(col, hidden);
}

void FlexGrid::SetRowHidden(int row, bool hidden)
{
    WhenShown(row, [=, this] { setRowHidden(row, hidden); });
}

void FlexGrid::SetColStretch(int col)
{
    top_->setSectionResizeMode(col, QHeaderView::Stretch);
}

void FlexGrid::SetBordered(bool bordered)
{
    bordered_ = bordered;
    setFrameShape(bordered ? QFrame::StyledPanel : QFrame::NoFrame);
    setProperty("look", bordered ? QVariant() : QVariant("borderless"));
}

int FlexGrid::Row() const
{
    return currentIndex().row();
}

int FlexGrid::Col() const
{
    return currentIndex().column();
}

void FlexGrid::SelectCell(int row, int col)
{
    setCurrentIndex(cells_->index(row, col));
}

void FlexGrid::SetRowSelection(bool wholeRow)
{
    rowSelection_ = wholeRow;
    viewport()->update();
}

QRect FlexGrid::CellRect(int row, int col) const
{
    return visualRect(cells_->index(row, col));
}

void FlexGrid::BeginUpdate()
{
    if (updates_++ > 0)
        return;
    setUpdatesEnabled(false);
    cells_->SetSilent(true);
}

void FlexGrid::EndUpdate()
{
    if (updates_ == 0 || --updates_ > 0)
        return;
    cells_->SetSilent(false);
    for (const auto& change : std::exchange(whenShown_, {}))
        change();
    ShowFixed();
    setUpdatesEnabled(true);
}

void FlexGrid::keyPressEvent(QKeyEvent* event)
{
    if (!currentIndex().isValid() || event->modifiers() & ~Qt::KeypadModifier)
        return QTableView::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!isSignalConnected(QMetaMethod::fromSignal(&FlexGrid::CellClicked)))
            return event->ignore(); // Enter is the form's
        emit CellClicked(Row(), Col());
        return;
    case Qt::Key_Up:
        return StepFrom(Row(), Col(), -1, 0);
    case Qt::Key_Down:
        return StepFrom(Row(), Col(), 1, 0);
    case Qt::Key_Left:
        return StepFrom(Row(), Col(), 0, -1);
    case Qt::Key_Right:
        return StepFrom(Row(), Col(), 0, 1);
    default:
        QTableView::keyPressEvent(event);
    }
}

/// Selects the nearest cell in that direction that can be picked.
void FlexGrid::StepFrom(int row, int col, int rowStep, int colStep)
{
    do {
        row += rowStep;
        col += colStep;
        const FlexCell* cell = cells_->At(row, col);
        if (cell && cell->Lines && !isRowHidden(row) && !isColumnHidden(col))
            return SelectCell(row, col);
    } while (cells_->At(row, col));
}

void FlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (rowSelection_)
        viewport()->update();
}

/// The fixed rows are shown by the heads, so the scrolled cells leave them out.
void FlexGrid::ShowFixed()
{
    for (int row = 0; row < std::min(fixedRows_, cells_->ShownRows()); ++row)
        setRowHidden(row, true);
    top_->setVisible(fixedRows_ > 0);
    updateGeometries();
}

int FlexGrid::HeadHeight(int row) const
{
    return rowHeights_.value(row, kRowHeight);
}

int FlexGrid::HeadsHeight() const
{
    int height = 0;
    for (int row = 0; row < fixedRows_; ++row)
        height += HeadHeight(row);
    return height;
}

QColor ColorOfCode(int code)
{
    return QColor(code & 0xff, (code >> 8) & 0xff, (code >> 16) & 0xff);
}
