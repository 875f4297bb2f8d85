#include "foundation/frm_explained.h"

#include "foundation/common_services.h"
#include "platform/dao/dao.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

namespace
{
/// A line each, the figures in front and one below the other.
QString TextOf(const BalanceLines& lines)
{
    const QChar kRoomOfDigit(0x2007);
    constexpr int kFigureWidth = 8;
    QStringList texts;
    for (const BalanceLine& line : lines)
        texts << DurationText(line.Hours).rightJustified(kFigureWidth, kRoomOfDigit) + "  " + T(line.Caption);
    return texts.join('\n');
}

class FigureExplainer : public QObject
{
public:
    FigureExplainer(QLabel* figure, std::function<BalanceLines()> explain)
        : QObject(figure), figure_(figure), explain_(std::move(explain))
    {
        figure->installEventFilter(this);
        figure->setCursor(Qt::PointingHandCursor);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip)
            Show(static_cast<QHelpEvent*>(event)->globalPos());
        else if (event->type() == QEvent::MouseButtonRelease)
            Show(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
        else
            return QObject::eventFilter(target, event);
        return true;
    }

private:
    void Show(const QPoint& place)
    {
        if (figure_->text().isEmpty())
            return;
        try {
            QToolTip::showText(place, TextOf(explain_()), figure_);
        } catch (const RuntimeError&) {
            QToolTip::hideText();
        }
    }

    QLabel* figure_;
    const std::function<BalanceLines()> explain_;
};
} // namespace

void ExplainFigure(QLabel* figure, const std::function<BalanceLines()>& explain)
{
    new FigureExplainer(figure, explain);
}
