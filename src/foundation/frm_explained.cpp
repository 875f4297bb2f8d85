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
QString TableOf(const BalanceLines& lines)
{
    QString rows;
    for (const BalanceLine& line : lines)
        rows += QStringLiteral("<tr><td>%1</td><td align='right'>&nbsp;&nbsp;%2</td></tr>")
                    .arg(T(line.Caption).toHtmlEscaped(), DurationText(line.Hours));
    return rows.isEmpty() ? rows : "<table>" + rows + "</table>";
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
            QToolTip::showText(place, TableOf(explain_()), figure_);
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
