#include "support/user.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
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
    auto* control = form_ ? form_->findChild<QWidget*>(name) : nullptr;
    if (!control)
        Complain("no control " + name + (form_ ? " on " + form_->objectName() : ""));
    return control;
}

QWidget* User::FindEnabled(const QString& name) const
{
    QWidget* control = FindWidget(name);
    if (!control || control->isEnabled())
        return control;
    Complain("cannot use " + name);
    return nullptr;
}

QAbstractItemModel* User::FindEntries(const QString& name) const
{
    QWidget* control = FindWidget(name);
    if (auto* combo = dynamic_cast<QComboBox*>(control))
        return combo->model();
    if (auto* list = dynamic_cast<QListWidget*>(control))
        return list->model();
    Complain("no list: " + name);
    return nullptr;
}

User& User::Types(const QString& name, const QString& text)
{
    if (QWidget* field = FindEnabled(name)) {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    return *this;
}

User& User::Presses(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (QWidget* target = name.isEmpty() ? form_.data() : FindWidget(name))
        QTest::keyClick(target, key, modifiers);
    return *this;
}

User& User::Clicks(const QString& name)
{
    QWidget* control = FindEnabled(name);
    if (auto* button = dynamic_cast<QAbstractButton*>(control)) {
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    } else if (control) {
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
    QWidget* control = FindEnabled(name);
    const QAbstractItemModel* entries = control ? FindEntries(name) : nullptr;
    if (!entries)
        return *this;
    const QModelIndexList found =
        entries->match(entries->index(0, 0), Qt::DisplayRole, entry, 1, Qt::MatchStartsWith | Qt::MatchCaseSensitive);
    if (found.isEmpty()) {
        Complain("no entry " + entry + " in " + name + ": " + Entries(name).join(", "));
    } else if (auto* combo = dynamic_cast<QComboBox*>(control)) {
        combo->setCurrentIndex(found.first().row());
        emit combo->activated(found.first().row());
    } else {
        ClickEntry(dynamic_cast<QListWidget*>(control), found.first(), Qt::NoModifier);
    }
    return *this;
}

User& User::ClicksWithCtrl(const QString& name)
{
    if (auto* list = dynamic_cast<QListWidget*>(FindWidget(name)); list && list->currentItem())
        ClickEntry(list, list->currentIndex(), Qt::ControlModifier);
    return *this;
}

User& User::LeavesField(const QString& name)
{
    if (QWidget* field = FindWidget(name)) {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Tab);
    }
    return *this;
}

QString User::Reads(const QString& name) const
{
    const QWidget* control = FindWidget(name);
    if (const auto* list = dynamic_cast<const QListWidget*>(control))
        return list->currentIndex().data().toString();
    if (const auto* button = dynamic_cast<const QAbstractButton*>(control); button && button->isCheckable())
        return QString::number(button->isChecked());
    for (const char* property : {"currentText", "plainText", "text"})
        if (const QVariant text = control ? control->property(property) : QVariant(); text.isValid())
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
    for (int row = 0; entries && row < entries->rowCount(); ++row)
        texts << entries->index(row, 0).data().toString();
    return texts;
}

bool User::CanUse(const QString& name) const
{
    QWidget* control = FindWidget(name);
    return control && control->isVisible() && control->isEnabled();
}

bool User::HasFocus(const QString& name) const
{
    QWidget* control = FindWidget(name);
    return control && form_->focusWidget() == control;
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
    lastMessage_ = message.Text;
    if (SeesMessage)
        SeesMessage(message);
    const QString shown = message.Title + "\n" + message.Text;
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
    return position < 0 ? MessageCode::Cancel : ResultOfButton(answer->Button, static_cast<int>(position));
}

int User::VisitForm(QDialog& form)
{
    const auto work = Next(visits_);
    if (!work) {
        Complain("unexpected form " + form.objectName());
        return QDialog::Rejected;
    }
    const QPointer<QWidget> before = form_;
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

User& User::Photographs(const QString& file)
{
    for (int pass = 0; pass < 3; ++pass) // nested layouts settle one level at a time
        QCoreApplication::processEvents();
    if (form_ && !form_->grab().save(file))
        Complain("cannot save " + file);
    return *this;
}
