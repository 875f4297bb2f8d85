#include "platform/controls/program_style.h"

#include "platform/controls/form_kit.h"

#include <QApplication>
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

/// A group of options as its user takes it: each arrow moves in a column or a row of them, where the toolkit knows but
/// two; and while none is chosen, the one that had the focus last stands for all when Tab comes by.
class OptionKeys : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* target, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            StandForAll(static_cast<QAbstractButton*>(target));
        return event->type() == QEvent::KeyPress && Turn(target, static_cast<QKeyEvent*>(event));
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

    static void StandForAll(const QAbstractButton* focused)
    {
        const QList<QAbstractButton*> options = OptionsWith(focused);
        if (std::none_of(options.begin(), options.end(), [](const auto* option) { return option->isChecked(); }))
            for (QAbstractButton* option : options)
                option->setFocusPolicy(option == focused ? Qt::StrongFocus : Qt::ClickFocus);
    }

    static bool Turn(QObject* target, const QKeyEvent* event)
    {
        const int key = Along(static_cast<QAbstractButton*>(target), event->key());
        QKeyEvent turned(QEvent::KeyPress, key, event->modifiers());
        return key != event->key() && QApplication::sendEvent(target, &turned);
    }

    /// The arrow that leads the same way in the column or the row in which the options stand.
    static int Along(const QAbstractButton* focused, int key)
    {
        const QPoint place = focused->mapTo(focused->window(), QPoint());
        bool column = true, row = true;
        for (const QAbstractButton* option : OptionsWith(focused)) {
            const QPoint other = option->mapTo(option->window(), QPoint());
            column = column && other.x() == place.x();
            row = row && other.y() == place.y();
        }
        const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
        if (column && (key == Qt::Key_Left || key == Qt::Key_Right))
            return back ? Qt::Key_Up : Qt::Key_Down;
        if (row && !column && (key == Qt::Key_Up || key == Qt::Key_Down))
            return back ? Qt::Key_Left : Qt::Key_Right;
        return key;
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
            widget->installEventFilter(optionKeys_);
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
    QObject* optionKeys_ = new OptionKeys(this);
};
} // namespace

QStyle* MakeProgramStyle()
{
    return new ProgramStyle;
}
