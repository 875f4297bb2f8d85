#include "platform/controls/elided_label.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace
{
constexpr int kWholeCharacters = 14; ///< a text of so many is not cut before what stands beside it is
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::sizeHint();
    return {std::min(fontMetrics().averageCharWidth() * kWholeCharacters, whole.width()), whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    setToolTip(shown == text() ? QString() : text());
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}
