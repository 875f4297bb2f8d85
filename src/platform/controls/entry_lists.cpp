#include "platform/controls/entry_lists.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>

namespace
{
bool IsAmong(std::initializer_list<int> keys, const QKeyEvent* event)
{
    return !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
           std::find(keys.begin(), keys.end(), event->key()) != keys.end();
}

QString Digits(QString text)
{
    text.removeIf([](QChar letter) { return !letter.isDigit(); });
    return text;
}

/// The digits with which a time begins, its hours whole where something follows them: "1h3" is 01:3.
QString DigitsOfTime(const QString& typed)
{
    static const QRegularExpression kOneHour("^\\d\\D");
    return Digits(typed.contains(kOneHour) ? '0' + typed : typed);
}

/// A text that begins with a digit finds entries by their digits alone, from the first one on.
class FoundByDigits : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override
    {
        const QString typed = value.toString();
        const bool digits = !typed.isEmpty() && typed.front().isDigit();
        if (!digits || role != Qt::DisplayRole || (flags & Qt::MatchTypeMask) != Qt::MatchStartsWith)
            return QStandardItemModel::match(start, role, value, hits, flags);
        const QString time = DigitsOfTime(typed);
        for (int row = 0; row < rowCount(); ++row)
            if (const QModelIndex entry = index(row, start.column()); Digits(entry.data().toString()).startsWith(time))
                return {entry};
        return {};
    }
};

bool IsText(const QKeyEvent* event)
{
    return !event->text().isEmpty() && event->text().front().isPrint() &&
           !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

/// The list drops down, and the key moves in it.
void WalkInto(QComboBox* list, QKeyEvent* event)
{
    const bool chosen = list->currentIndex() >= 0;
    list->showPopup();
    if (chosen || event->key() != Qt::Key_Down)
        QApplication::sendEvent(list->view(), event);
    else
        list->view()->setCurrentIndex(list->model()->index(0, list->modelColumn()));
}

/// A list box with a field to type in. The toolkit's own makes the list that drops down, by far its most expensive
/// part, as soon as somebody asks for its size or moves it about in the form; this one waits until it drops down.
class EntryBox : public DropDownList
{
public:
    explicit EntryBox(int characters) : characters_(characters)
    {
        setLineEdit(new QLineEdit); // setEditable would make the list
        setCompleter(nullptr);
        setInsertPolicy(NoInsert);
    }

    QSize sizeHint() const override
    {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QSize icon = iconSize() + QSize(4, 0);
        const QSize room(characters_ * fontMetrics().horizontalAdvance('X') + icon.width(),
                         std::max(fontMetrics().height(), icon.height()) + 2);
        return style()->sizeFromContents(QStyle::CT_ComboBox, &option, room, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (count() > 0 && IsAmong({Qt::Key_Up, Qt::Key_Down}, event))
            WalkInto(this, event);
        else
            QComboBox::keyPressEvent(event);
    }

    /// Until it is polished there is nothing to bring up to date.
    void changeEvent(QEvent* event) override
    {
        if (event->type() != QEvent::StyleChange || testAttribute(Qt::WA_WState_Polished))
            QComboBox::changeEvent(event);
    }

private:
    const int characters_;
};
} // namespace

QComboBox* EntryCombo(const QString& name, int characters)
{
    auto* combo = new EntryBox(characters);
    combo->setObjectName(name);
    return combo;
}

void DropDownAt(QComboBox* list, const QString& typed)
{
    list->showPopup();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, typed);
    QApplication::sendEvent(list->view(), &key);
}

DropDownList::DropDownList()
{
    constexpr int kEntriesShown = 16;
    setMaxVisibleItems(kEntriesShown);
}

void DropDownList::showPopup()
{
    typed_.clear();
    view()->removeEventFilter(this);
    view()->installEventFilter(this);
    QComboBox::showPopup();
}

bool DropDownList::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(target, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (IsAmong({Qt::Key_Tab, Qt::Key_Backtab}, key))
        TakeAndGoOn(target, event);
    else if (IsText(key))
        Find(key->text());
    else
        return QComboBox::eventFilter(target, event);
    return true;
}

/// An entry that is current without being marked has not been chosen.
void DropDownList::TakeAndGoOn(QObject* target, QEvent* tab)
{
    QKeyEvent taking(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    if (view()->selectionModel()->hasSelection())
        QApplication::sendEvent(target, &taking);
    else
        hidePopup();
    const QWidget* focused = window()->focusWidget();
    if (focused == this || isAncestorOf(focused)) // unless what was taken has led elsewhere
        QApplication::sendEvent(this, tab);
}

/// A key alone, or the same one again and again, leads on to the next entry; a text that no entry begins with leads
/// back to the one that was chosen before, if there is one.
void DropDownList::Find(const QString& key)
{
    if (!typed_.isEmpty() && pause_.hasExpired(QApplication::keyboardInputInterval()))
        typed_.clear();
    typed_ += key;
    pause_.start();
    const int row = std::max(view()->currentIndex().row(), 0);
    const QModelIndex here = model()->index(row, modelColumn());
    const QModelIndex next = model()->index(view()->currentIndex().isValid() ? (row + 1) % count() : 0, modelColumn());
    QModelIndex found = Begins(typed_ == key ? next : here, typed_);
    if (!found.isValid() && typed_ == key.repeated(typed_.size()))
        found = Begins(next, key);
    if (!found.isValid())
        found = model()->index(currentIndex(), modelColumn());
    if (found.isValid())
        view()->setCurrentIndex(found);
}

/// Hours and days are found without their leading zero.
QModelIndex DropDownList::Begins(const QModelIndex& start, const QString& text) const
{
    for (const QString& begin : {text, '0' + text})
        if (const QModelIndexList found =
                model()->match(start, Qt::DisplayRole, begin, 1, Qt::MatchFlags(Qt::MatchStartsWith | Qt::MatchWrap));
            !found.isEmpty())
            return found.first();
    return {};
}

void WalkedList::keyPressEvent(QKeyEvent* event)
{
    const QString typed = event->text().trimmed();
    if (count() == 0)
        return QComboBox::keyPressEvent(event);
    if (IsAmong({Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}, event))
        WalkInto(this, event);
    else if (!typed.isEmpty() && typed.front().isLetterOrNumber() && !(event->modifiers() & ~Qt::ShiftModifier))
        DropDownAt(this, typed);
    else if (!event->text().isEmpty() &&
             event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        event->ignore(); // a letter that nothing answers to must not choose, and Ctrl+Tab is the form's
    else
        QComboBox::keyPressEvent(event);
}

void FindTimesByDigits(QComboBox* list)
{
    list->setModel(new FoundByDigits(list));
}

void ShareEntries(const std::vector<QComboBox*>& lists, const QStringList& entries)
{
    auto* model = new FoundByDigits(lists.front());
    QList<QStandardItem*> rows;
    for (const QString& entry : entries)
        rows << new QStandardItem(entry);
    model->invisibleRootItem()->appendRows(rows);
    for (QComboBox* list : lists) {
        list->setModel(model);
        list->setCurrentIndex(-1);
    }
}

void MakeRoomFor(QComboBox* list, int characters)
{
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(characters);
}

void ShowText(QComboBox* combo, const QString& text)
{
    combo->setCurrentIndex(text.isEmpty() ? -1 : combo->findText(text));
    combo->setEditText(text);
}

void ShowText(QLineEdit* field, const QString& text)
{
    if (field->text() != text)
        field->setText(text);
}

void ChoiceList::OnChoice(const std::function<void(int row)>& chosen)
{
    const auto tell = [this, chosen] {
        const QList<QListWidgetItem*> marked = selectedItems();
        told_ = true;
        if (!marked.isEmpty())
            chosen(row(marked.first()));
    };
    connect(this, &QListWidget::itemSelectionChanged, this, tell);
    connect(this, &QListWidget::itemClicked, this, [this, tell] {
        if (!told_)
            tell();
    });
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const auto command = QListWidget::selectionCommand(index, event);
    return command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle) ? QItemSelectionModel::ClearAndSelect
                                                                                   : command;
}

void ChoiceList::mousePressEvent(QMouseEvent* event)
{
    told_ = false;
    QListWidget::mousePressEvent(event);
}
