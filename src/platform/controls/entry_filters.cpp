#include "platform/controls/entry_filters.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <iterator>
#include <utility>

namespace
{
struct FilterRule
{
    KeyFilter Kind;
    const char* Allowed; ///< only these pass; nullptr: all but the dropped
    const char* Dropped;
    bool QuoteBecomesBackquote;
};

/// In the order of KeyFilter.
constexpr FilterRule kRules[] = {
    {KeyFilter::WholeNumber, "0123456789", "", false},
    {KeyFilter::DecimalNumber, "0123456789.", "", false},
    {KeyFilter::Phone, "0123456789-", "", false},
    {KeyFilter::CategoryCode, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ", "", false},
    {KeyFilter::CategoryName, nullptr, ",", true},
    {KeyFilter::FreeText, nullptr, "", true},
    {KeyFilter::MessageInput, nullptr, "\"%|&", true},
    {KeyFilter::Comment, nullptr, "#\"", true},
    {KeyFilter::LogIn, nullptr, "~!@#$%^&*()_+=[]{}\\/|;:\" <>?", true},
    {KeyFilter::SetUpPassword, nullptr, "~!@#$%^&*()_+=[]{}\\/|;:\" <>?'", false},
    {KeyFilter::PersonName, nullptr, "~!@#$%^&*()_+=[]{}\\/|;:\" <>?0123456789", true},
    {KeyFilter::EMailAddress, nullptr, "'#$?&*/\\<>[]{}:| ~!\"", false},
    {KeyFilter::HostName, nullptr, "~!@#$%^&*()_+=[]{}\\/|;:\"<>?'", false},
    {KeyFilter::HostFolder, nullptr, "~!@#$%^&*()_+=[]{}|;:\"<>?'", false},
    {KeyFilter::WebAddress, nullptr, "~!@#$%^&*()_+=[]{}|;:\" <>?'", false},
};

constexpr bool RulesStandInOrder()
{
    for (std::size_t i = 0; i < std::size(kRules); ++i)
        if (kRules[i].Kind != static_cast<KeyFilter>(i))
            return false;
    return true;
}
static_assert(RulesStandInOrder());

/// The text that a filter lets through. Line ends and tabs are the field's own affair and pass, except where only
/// listed characters are allowed.
QString Filtered(const QString& text, KeyFilter filter)
{
    const FilterRule& rule = kRules[static_cast<int>(filter)];
    QString let;
    for (const QChar character : filter == KeyFilter::CategoryCode ? text.toUpper() : text) {
        const bool passes = rule.Allowed ? QLatin1String(rule.Allowed).contains(character)
                                         : !QLatin1String(rule.Dropped).contains(character);
        if (passes)
            let += rule.QuoteBecomesBackquote && character == '\'' ? QChar('`') : character;
    }
    return let;
}

void Insert(QLineEdit* field, QString text)
{
    field->insert(text.replace("\r\n", " ").replace('\n', ' '));
}

void Insert(QPlainTextEdit* field, const QString& text)
{
    field->insertPlainText(text);
}

bool HasSelection(const QLineEdit* field)
{
    return field->hasSelectedText();
}

bool HasSelection(const QPlainTextEdit* field)
{
    return field->textCursor().hasSelection();
}

QMenu* ContextMenu(QLineEdit* field, const QPoint&)
{
    return field->createStandardContextMenu();
}

QMenu* ContextMenu(QPlainTextEdit* field, const QPoint& position)
{
    return field->createStandardContextMenu(position);
}

/// Stands before the field and sees each of the ways by which a person brings text into it.
template <typename Field>
class EntryFilter : public QObject
{
public:
    EntryFilter(Field* field, KeyFilter filter) : QObject(field), field_(field), filter_(filter) {}

    bool eventFilter(QObject* target, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
            return !field_->isReadOnly() && FilterKey(static_cast<QKeyEvent*>(event));
        case QEvent::InputMethod:
            return FilterComposed(target, static_cast<QInputMethodEvent*>(event));
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return RefuseDrag(static_cast<QDropEvent*>(event));
        case QEvent::ContextMenu:
            return ShowMenu(static_cast<QContextMenuEvent*>(event));
        case QEvent::FocusIn:
            TakeFocus(static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::MouseButtonRelease:
            return FilterRelease(static_cast<QMouseEvent*>(event));
        default:
            return false;
        }
    }

private:
    /// A number has one point: a comma becomes it unless the point is there already.
    QString Passing(QString text) const
    {
        if (filter_ == KeyFilter::DecimalNumber && text.count(',') == 1 && !text.contains('.') &&
            !field_->property("text").toString().contains('.'))
            text.replace(',', '.');
        return Filtered(text, filter_);
    }

    bool FilterKey(const QKeyEvent* key)
    {
        if (key->matches(QKeySequence::Paste)) {
            Paste(QClipboard::Clipboard);
            return true;
        }
        const QString typed = key->text();
        const bool command =
            key->modifiers().testFlag(Qt::ControlModifier) && !key->modifiers().testFlag(Qt::AltModifier);
        if (typed.isEmpty() || !typed.front().isPrint() || command)
            return false;
        const QString let = Passing(typed);
        if (let == typed)
            return false;
        if (!let.isEmpty())
            Insert(field_, let);
        return true;
    }

    /// Accented letters of a dead key and the like come composed.
    bool FilterComposed(QObject* target, const QInputMethodEvent* event)
    {
        const QString let = Passing(event->commitString());
        if (let == event->commitString())
            return false;
        QInputMethodEvent composed(event->preeditString(), event->attributes());
        composed.setCommitString(let, event->replacementStart(), event->replacementLength());
        QApplication::sendEvent(target, &composed);
        return true;
    }

    /// What is dragged is not ours to change: it is taken as it is or not at all.
    bool RefuseDrag(QDropEvent* event)
    {
        const QString dragged = event->mimeData()->text();
        if (Passing(dragged) == dragged)
            return false;
        event->ignore();
        return true;
    }

    bool ShowMenu(const QContextMenuEvent* event)
    {
        QMenu* menu = ContextMenu(field_, event->pos());
        for (QAction* entry : menu->actions())
            if (IsPaste(*entry)) {
                QObject::disconnect(entry, &QAction::triggered, nullptr, nullptr);
                QObject::connect(entry, &QAction::triggered, this, [this] { Paste(QClipboard::Clipboard); });
            }
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(event->globalPos());
        return true;
    }

    /// Multi-line fields name the entry; single-line ones only show its key.
    static bool IsPaste(const QAction& entry)
    {
        const QString key = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
        return entry.objectName() == "edit-paste" || entry.text().endsWith('\t' + key);
    }

    /// Coming back from another window keeps the place where the user was typing.
    void TakeFocus(Qt::FocusReason reason)
    {
        const bool returns = hadFocus_ && (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                                           reason == Qt::MenuBarFocusReason);
        hadFocus_ = true;
        selectOnRelease_ = reason == Qt::MouseFocusReason;
        if (!returns)
            field_->selectAll();
    }

    /// The press that brought the focus has put the cursor somewhere; the middle button pastes the selection.
    bool FilterRelease(const QMouseEvent* event)
    {
        if (event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection()) {
            Paste(QClipboard::Selection);
            return true;
        }
        if (std::exchange(selectOnRelease_, false) && !HasSelection(field_))
            field_->selectAll();
        return false;
    }

    void Paste(QClipboard::Mode mode)
    {
        const QString let = Passing(QApplication::clipboard()->text(mode));
        if (!let.isEmpty() && !field_->isReadOnly())
            Insert(field_, let);
    }

    Field* field_;
    KeyFilter filter_;
    bool hadFocus_ = false;
    bool selectOnRelease_ = false;
};
} // namespace

void FilterKeys(QLineEdit* field, KeyFilter filter)
{
    field->installEventFilter(new EntryFilter<QLineEdit>(field, filter));
}

void FilterKeys(QPlainTextEdit* field, KeyFilter filter)
{
    auto* entry = new EntryFilter<QPlainTextEdit>(field, filter);
    field->installEventFilter(entry);
    field->viewport()->installEventFilter(entry);
}

void FilterKeys(QComboBox* field, KeyFilter filter)
{
    // The box keeps the keyboard focus and hands its events to the line edit past all filters of the line edit.
    auto* entry = new EntryFilter<QLineEdit>(field->lineEdit(), filter);
    field->installEventFilter(entry);
    field->lineEdit()->installEventFilter(entry);
}

void LimitLength(QPlainTextEdit* field, int letters)
{
    QObject::connect(field, &QPlainTextEdit::textChanged, field, [field, letters] {
        if (field->toPlainText().size() <= letters)
            return;
        field->setPlainText(field->toPlainText().left(letters));
        field->moveCursor(QTextCursor::End);
    });
}
