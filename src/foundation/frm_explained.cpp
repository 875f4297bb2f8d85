#include "foundation/frm_explained.h"

#include "foundation/common_services.h"
#include "platform/controls/form_kit.h"
#include "platform/dao/dao.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace
{
/// A line each, the figures in front and one below the other.
QString TextOf(const BalanceLines& lines, float hoursPerDay)
{
    const QFontMetricsF metrics(QToolTip::font());
    QStringList figures;
    qreal width = 0;
    for (const BalanceLine& line : lines) {
        figures << DurationText(line.Hours, line.Hours != 0 ? hoursPerDay : 0);
        width = std::max(width, metrics.horizontalAdvance(figures.last()));
    }
    const QString hair(QChar(0x200A)); // of all blanks the narrowest: letters are not as wide as digits
    const qreal hairWidth = std::max(1.0, metrics.horizontalAdvance(hair));
    QStringList texts;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const QString& figure = figures[static_cast<int>(i)];
        const qreal room = width - metrics.horizontalAdvance(figure);
        texts << hair.repeated(qRound(room / hairWidth)) + figure + "  " + T(lines[i].Caption);
    }
    return texts.join('\n');
}

class FigureExplainer : public QObject
{
public:
    FigureExplainer(QLabel* figure, std::function<BalanceLines()> explain, std::function<float()> hoursPerDay)
        : QObject(figure), figure_(figure), explain_(std::move(explain)), hoursPerDay_(std::move(hoursPerDay))
    {
        figure->installEventFilter(this);
        figure->setCursor(Qt::PointingHandCursor);
        figure->setFocusPolicy(Qt::StrongFocus); // by a click too: Escape takes the explanation away again
        SetStyled(figure, "explained", true);
        figure->setIndent(0); // its frame would set it off from its caption
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip)
            Show(static_cast<QHelpEvent*>(event)->globalPos());
        else if (event->type() == QEvent::MouseButtonRelease)
            Show(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
        else if (event->type() == QEvent::KeyPress)
            return Press(static_cast<QKeyEvent*>(event)->key());
        else
            return QObject::eventFilter(target, event);
        return true;
    }

private:
    bool Press(int key)
    {
        const bool hides = key == Qt::Key_Escape && QToolTip::isVisible();
        const bool shows = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
        if (hides)
            QToolTip::hideText();
        else if (shows)
            Show(figure_->mapToGlobal(figure_->rect().bottomLeft()));
        return hides || shows;
    }

    void Show(const QPoint& place)
    {
        if (figure_->text().isEmpty())
            return;
        try {
            QToolTip::showText(place, TextOf(explain_(), hoursPerDay_ ? hoursPerDay_() : 0), figure_);
        } catch (const RuntimeError&) {
            QToolTip::hideText();
        }
    }

    QLabel* figure_;
    const std::function<BalanceLines()> explain_;
    const std::function<float()> hoursPerDay_;
};
} // namespace

void ShowFigure(QLabel* figure, const Text& caption, const QString& text)
{
    figure->setText(text);
    figure->setAccessibleName(T(caption) + ": " + text);
    figure->setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

void ExplainFigure(QLabel* figure, const std::function<BalanceLines()>& explain,
                   const std::function<float()>& hoursPerDay)
{
    new FigureExplainer(figure, explain, hoursPerDay);
}
