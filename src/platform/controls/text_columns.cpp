#include "platform/controls/text_columns.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace
{
/// Widens the columns by one line's entries; the last of a line needs no stop behind it.
void Widen(QList<qreal>& widths, const QString& line, const QFontMetricsF& metrics, qreal widest)
{
    const QStringList entries = line.split('\t');
    for (qsizetype column = 0; column + 1 < entries.size(); ++column) {
        if (column == widths.size())
            widths << 0;
        const qreal width = metrics.horizontalAdvance(entries[column].trimmed());
        if (width <= widest)
            widths[column] = std::max(widths[column], width);
    }
}
} // namespace

TextColumns MeasuredColumns(const QString& text, const QFont& font, qreal widest)
{
    static const QRegularExpression parting(" *\t+");
    const QFontMetricsF metrics(font);
    TextColumns columns{QString(text).replace(parting, "\t"), {}};
    QList<qreal> widths;
    for (const QString& line : columns.Text.split('\n'))
        Widen(widths, line, metrics, widest);
    const qreal gap = metrics.horizontalAdvance(QStringLiteral("    "));
    qreal stop = 0;
    for (const qreal width : widths)
        columns.Stops << (stop += width + gap);
    return columns;
}
