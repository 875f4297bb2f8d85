#include "platform/controls/entry_lists.h"

#include <QEvent>
#include <QStringListModel>
#include <QStyleOptionComboBox>

namespace
{
/// A list box with a field to type in. The toolkit's own makes the list that drops down, by far its most expensive
/// part, as soon as somebody asks for its size or moves it about in the form; this one waits until it drops down.
class EntryBox : public QComboBox
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
    constexpr int kEntriesShown = 16;
    auto* combo = new EntryBox(characters);
    combo->setObjectName(name);
    combo->setMaxVisibleItems(kEntriesShown);
    return combo;
}

void ShareEntries(const std::vector<QComboBox*>& lists, const QStringList& entries)
{
    auto* model = new QStringListModel(entries, lists.front());
    for (QComboBox* list : lists) {
        list->setModel(model);
        list->setCurrentIndex(-1);
    }
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
