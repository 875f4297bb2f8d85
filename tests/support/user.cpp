#include "support/user.h"

#include "foundation/frm_message_box.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "support/keyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>

#include <optional>

namespace
{
/// The first of a queue, which goes; empty when there is none.
template <typename T>
std::optional<T> Next(std::deque<T>& queue)
{
    if (queue.empty())
        return {};
    const T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

void ComplainOfLock(const QString& where)
{
    if (DefaultWorkspace().IsReading() || DefaultWorkspace().IsInTransaction())
        Complain("a lock is held " + where);
}

[[noreturn]] void GiveUp(const QString& text)
{
    Complain(text);
    throw std::logic_error("the user cannot go on");
}

void ShowPageOf(const QWidget& form, const QWidget& control)
{
    for (auto* tabs : form.findChildren<QTabWidget*>())
        for (int page = 0; page < tabs->count(); ++page)
            if (tabs->widget(page)->isAncestorOf(&control))
                tabs->setCurrentIndex(page);
}

void ClickEntry(QAbstractItemView* list, const QModelIndex& entry, Qt::KeyboardModifier modifier)
{
    list->scrollTo(entry);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifier, list->visualRect(entry).center());
}
} // namespace

User::User()
{
    SetMessagePresenter([this](const Message& message) { return AnswerMessage(message); });
    SetModalRunner([this](QDialog& form) { return VisitForm(form); });
    SetFileChooser([this](const FileChoice& choice) {
        ComplainOfLock("in front of " + choice.Title);
        const auto path = Next(files_);
        if (!path)
            Complain("unexpected file choice " + choice.Title);
        return path.value_or(QString());
    });
}

User::~User()
{
    for (const Answer& answer : answers_)
        Complain("a message did not come: " + answer.Title);
    if (!visits_.empty())
        Complain("a form did not open");
    if (!files_.empty())
        Complain("no file was chosen");
    owned_.reset();
    SetMessagePresenter({});
    SetModalRunner({});
    SetFileChooser({});
}

User& User::Works(QWidget& form)
{
    form_ = &form;
    QApplication::setActiveWindow(&form);
    QCoreApplication::processEvents();
    return *this;
}

User& User::UsesKeysOnly(bool only)
{
    keysOnly_ = only;
    return *this;
}

User& User::Leaves()
{
    if (owned_)
        owned_->close();
    owned_.reset();
    form_ = nullptr;
    return *this;
}

QWidget* User::FindWidget(const QString& name) const
{
    ComplainOfLock("before " + name);
    auto* control = form_ ? form_->findChild<QWidget*>(name) : nullptr;
    if (!control)
        GiveUp("no control " + name + (form_ ? " on " + form_->objectName() : ""));
    return control;
}

QWidget* User::TurnsTo(const QString& name)
{
    QWidget* control = FindWidget(name);
    if (!control->isEnabled())
        GiveUp("cannot use " + name);
    if (keysOnly_)
        Keyboard::Reach(*form_, *control);
    else
        ShowPageOf(*form_, *control);
    return control;
}

QAbstractItemModel* User::FindEntries(const QString& name) const
{
    QWidget* control = FindWidget(name);
    if (auto* combo = dynamic_cast<QComboBox*>(control))
        return combo->model();
    return dynamic_cast<QListWidget&>(*control).model();
}

User& User::Types(const QString& name, const QString& text)
{
    QWidget* field = TurnsTo(name);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    return *this;
}

User& User::Presses(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(name.isEmpty() ? form_.data() : FindWidget(name), key, modifiers);
    return *this;
}

User& User::Clicks(const QString& name)
{
    QWidget* control = TurnsTo(name);
    if (auto* button = dynamic_cast<QAbstractButton*>(control)) {
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    } else if (keysOnly_) {
        GiveUp("only a mouse clicks on " + name);
    } else {
        QTest::mouseClick(control, Qt::LeftButton);
    }
    return *this;
}

User& User::Checks(const QString& name, bool checked)
{
    return Reads(name) == QString::number(checked) ? *this : Clicks(name);
}

User& User::Picks(const QString& name, const QString& entry)
{
    QWidget* control = TurnsTo(name);
    const QAbstractItemModel* entries = FindEntries(name);
    const QModelIndexList found =
        entries->match(entries->index(0, 0), Qt::DisplayRole, entry, 1, Qt::MatchStartsWith | Qt::MatchCaseSensitive);
    if (found.isEmpty())
        GiveUp("no entry " + entry + " in " + name + ": " + Entries(name).join(", "));
    if (keysOnly_) {
        Keyboard::Pick(*control, found.first().row());
    } else if (auto* combo = dynamic_cast<QComboBox*>(control)) {
        combo->setCurrentIndex(found.first().row());
        emit combo->activated(found.first().row());
    } else {
        ClickEntry(dynamic_cast<QListWidget*>(control), found.first(), Qt::NoModifier);
    }
    return *this;
}

User& User::Enters(const QList<std::pair<QString, QString>>& fields)
{
    for (const auto& [name, text] : fields) {
        const QWidget* control = FindWidget(name);
        const bool listed =
            control->inherits("QComboBox") && Entries(name).filter(QRegularExpression("^" + text)).size();
        if (control->inherits("QAbstractButton"))
            Checks(name, text == "1");
        else if (listed || control->inherits("QListWidget"))
            Picks(name, text);
        else
            Types(name, text);
    }
    return *this;
}

User& User::ClicksWithCtrl(const QString& name)
{
    auto& list = dynamic_cast<QListWidget&>(*FindWidget(name));
    ClickEntry(&list, list.currentIndex(), Qt::ControlModifier);
    return *this;
}

User& User::LeavesField(const QString& name)
{
    TurnsTo(name)->setFocus();
    return Presses(name, Qt::Key_Tab);
}

QString User::Reads(const QString& name) const
{
    const QWidget* control = FindWidget(name);
    if (const auto* list = dynamic_cast<const QListWidget*>(control))
        return list->currentIndex().data().toString();
    if (const auto* button = dynamic_cast<const QAbstractButton*>(control); button && button->isCheckable())
        return QString::number(button->isChecked());
    for (const char* property : {"currentText", "plainText", "text"})
        if (const QVariant text = control->property(property); text.isValid())
            return text.toString();
    return {};
}

QString User::ReadsAll(const QStringList& names) const
{
    QStringList contents;
    for (const QString& name : names)
        contents << Reads(name);
    return contents.join('|');
}

QStringList User::Entries(const QString& name) const
{
    QStringList texts;
    const QAbstractItemModel* entries = FindEntries(name);
    for (int row = 0; row < entries->rowCount(); ++row)
        texts << entries->index(row, 0).data().toString();
    return texts;
}

bool User::CanUse(const QString& name) const
{
    const QWidget* control = FindWidget(name);
    return control->isVisible() && control->isEnabled();
}

QString User::Usable(const QStringList& names) const
{
    QStringList usable;
    std::copy_if(names.begin(), names.end(), std::back_inserter(usable), [this](auto& name) { return CanUse(name); });
    return usable.join(' ');
}

bool User::HasFocus(const QString& name) const
{
    return form_->focusWidget() == FindWidget(name);
}

User& User::WillAnswer(const QString& title, const QString& button, const QString& containing)
{
    answers_.push_back({title, button, containing});
    return *this;
}

User& User::WillConfirm(const QString& containing)
{
    return WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"), containing);
}

User& User::WillBeDone(const QString& containing)
{
    return WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK", containing);
}

User& User::WillBeRefused(const QString& containing)
{
    return WillAnswer(T("ERROR:", "ERREUR:"), "OK", containing);
}

User& User::WillChooseFile(const QString& path)
{
    files_.push_back(path);
    return *this;
}

int User::AnswerMessage(const Message& message)
{
    if (SeesMessage)
        SeesMessage(message);
    const QString shown = message.Title + "\n" + message.Text;
    ComplainOfLock("in front of " + shown);
    const auto answer = Next(answers_);
    if (!answer) {
        Complain("unexpected message: " + shown);
        return MessageCode::Cancel;
    }
    if (answer->Title != message.Title || !message.Text.contains(answer->Containing))
        Complain("expected " + answer->Title + " / " + answer->Containing + ", came: " + shown);
    const qsizetype position = message.Captions.indexOf(answer->Button);
    if (position < 0)
        Complain("no button " + answer->Button + " on: " + shown);
    if (keysOnly_ && position >= 0)
        return PressButton(message, answer->Button);
    return position < 0 ? MessageCode::Cancel : ResultOfButton(answer->Button, static_cast<int>(position));
}

/// The box itself is shown, and its button pressed.
int User::PressButton(const Message& message, const QString& caption)
{
    const QPointer<QWidget> before = form_;
    frmMessageBox box(message);
    box.setModal(true);
    box.show();
    Works(box);
    for (auto* button : box.findChildren<QPushButton*>())
        if (QString(button->text()).remove('&') == caption) {
            Keyboard::Reach(box, *button);
            QTest::keyClick(button, Qt::Key_Space);
        }
    if (box.isVisible())
        Complain("the keyboard does not press " + caption);
    if (before)
        Works(*before);
    return box.Code();
}

int User::VisitForm(QDialog& form)
{
    const auto work = Next(visits_);
    if (!work) {
        Complain("unexpected form " + form.objectName());
        return QDialog::Rejected;
    }
    const QPointer<QWidget> before = form_;
    form.setModal(true); // as when it runs
    form.show();
    Works(form);
    (*work)(form);
    if (form.isVisible()) {
        Complain(form.objectName() + " was left open");
        form.close();
    }
    if (before)
        Works(*before);
    return form.result();
}
