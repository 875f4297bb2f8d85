#include "platform/controls/program_style.h"

#include "platform/controls/form_kit.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QProxyStyle>
#include <QTabBar>

#include <algorithm>

namespace
{
constexpr int kEntryHeight = 22;

/// The toolkit makes the first entry of a list current without marking it, and the first Down would pass it over.
class FirstRowTaker : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
            return false;
        auto* list = qobject_cast<QListWidget*>(target);
        return list && list->selectedItems().isEmpty() && list->currentRow() <= 0 && TakeFirst(list);
    }

private:
    static bool TakeFirst(QListWidget* list)
    {
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->flags().testFlag(Qt::ItemIsSelectable)) {
                list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
                return true;
            }
        return false;
    }
};

/// Of options none of which is chosen yet, the one that had the focus last stands for all when Tab comes by; the
/// toolkit sees to it only once one is chosen.
class OptionStop : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() != QEvent::FocusIn)
            return false;
        const QList<QAbstractButton*> options = OptionsWith(qobject_cast<QAbstractButton*>(target));
        if (std::none_of(options.begin(), options.end(), [](const auto* option) { return option->isChecked(); }))
            for (QAbstractButton* option : options)
                option->setFocusPolicy(option == target ? Qt::StrongFocus : Qt::ClickFocus);
        return false;
    }

private:
    static QList<QAbstractButton*> OptionsWith(const QAbstractButton* option)
    {
        if (option->group())
            return option->group()->buttons();
        QList<QAbstractButton*> options;
        for (auto* each : option->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
            if (!each->group())
                options << each;
        return options;
    }
};

/// The toolkit's own grey is nearly as dark as the arrows.
QIcon FaintWhenGreyed(QIcon icon, const QAbstractButton* button)
{
    constexpr double kFaint = 0.3;
    const QPixmap full = icon.pixmap(button->iconSize(), button->devicePixelRatio());
    QPixmap faint(full.size());
    faint.setDevicePixelRatio(full.devicePixelRatio());
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(kFaint);
    painter.drawPixmap(0, 0, full);
    painter.end();
    icon.addPixmap(faint, QIcon::Disabled);
    return icon;
}

/// Entries of lists stand at a reader's distance. The style sheet cannot see to it: a list that is filled before it is
/// shown takes its sizes from the style alone.
class ProgramStyle : public QProxyStyle
{
public:
    ProgramStyle() : QProxyStyle("Fusion") {}

    /// The wheel turns the list that has the focus, never one that the pointer passes while a page scrolls.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        if (hint == SH_ComboBox_AllowWheelScrolling && widget)
            return widget->hasFocus() ? 1 : 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

    /// The tab that has the focus is known by its colour; the toolkit's frame would strike its caption through.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element != PE_FrameFocusRect || !qobject_cast<const QTabBar*>(widget))
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    /// Names and texts from the data may look like markup; no label of the program has any.
    void polish(QWidget* widget) override
    {
        QProxyStyle::polish(widget);
        if (auto* label = qobject_cast<QLabel*>(widget))
            label->setTextFormat(Qt::PlainText);
        if (qobject_cast<QListWidget*>(widget))
            widget->installEventFilter(firstRowTaker_);
        if (qobject_cast<QRadioButton*>(widget))
            widget->installEventFilter(optionStop_);
        if (auto* button = qobject_cast<QPushButton*>(widget); button && button->property(kPicture).isValid())
            button->setIcon(FaintWhenGreyed(PictureIcon(button->property(kPicture).toString()), button));
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        QSize room = QProxyStyle::sizeFromContents(type, option, size, widget);
        if (type == CT_ItemViewItem)
            room.setHeight(std::max(room.height(), kEntryHeight));
        return room;
    }

private:
    QObject* firstRowTaker_ = new FirstRowTaker(this);
    QObject* optionStop_ = new OptionStop(this);
};
} // namespace

QStyle* MakeProgramStyle()
{
    return new ProgramStyle;
}
