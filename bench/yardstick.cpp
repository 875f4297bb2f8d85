#include "yardstick.h"

#include "raw_engine.h"

#include <QImage>
#include <QPainter>

namespace
{
constexpr int kCells = 837;
constexpr int kCellsAcross = 31;
constexpr QSize kCell(40, 24);

void PaintCells()
{
    QImage image(kCellsAcross * kCell.width(), kCells / kCellsAcross * kCell.height(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int cell = 0; cell < kCells; ++cell) {
        const QRect place(QPoint(cell % kCellsAcross * kCell.width(), cell / kCellsAcross * kCell.height()), kCell);
        painter.fillRect(place, QColor::fromHsv(cell % 360, 40, 250));
        painter.drawText(place, Qt::AlignCenter, QString::number(cell));
    }
}
} // namespace

void Yardstick::Run() const
{
    RawEngine(file_).Run("SELECT * FROM Attendance LIMIT 10000");
    PaintCells();
}
