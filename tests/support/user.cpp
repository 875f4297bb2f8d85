#include "support/user.h"

#include "foundation/session_state.h"
#include "platform/controls/form_kit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

User::User()
{
    SetMessagePresenter([this](const Message& message) { return AnswerMessage(message); });
    SetModalRunner([this](QDialog& form) { return VisitForm(form); });
    SetFileChooser([this](const FileChoice& choice) {
        if (files_.empty()) {
            Complain("unexpected file choice " + choice.Title);
            return QString();
        }
        const QString path = files_.front();
        files_.pop_front();
        return path;
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

template <typename Control>
Control* User::Find(const QString& name) const
{
    auto* control = dynamic_cast<Control*>(FindWidget(name));
    if (!control)
        Complain("another kind of control: " + name);
    return control;
}

User& User::Types(const QString& name, const QString& text)
{
    QWidget* field = FindWidget(name);
    if (!field || !field->isEnabled()) {
        Complain("cannot type in " + name);
        return *this;
    }
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(character), Qt::NoModifier);
    return *this;
}

User& User::Presses(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget* target = name.isEmpty() ? form_.data() : FindWidget(name);
    if (target)
        QTest::keyClick(target, key, modifiers);
    return *this;
}

User& User::Clicks(const QString& name)
{
    QWidget* control = FindWidget(name);
    if (!control || !control->isEnabled()) {
        Complain("cannot click " + name);
        return *this;
    }
    if (auto* button = dynamic_cast<QAbstractButton*>(control)) {
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    } else {
        QTest::mouseClick(control, Qt::LeftButton);
    }
    return *this;
}

User& User::Checks(const QString& name, bool checked)
{
    auto* box = Find<QAbstractButton>(name);
    if (box && box->isChecked() != checked)
        Clicks(name);
    return *this;
}

User& User::Picks(const QString& name, const QString& entry)
{
    QWidget* control = FindWidget(name);
    if (!control)
        return *this;
    if (!control->isEnabled())
        Complain("cannot pick from " + name);
    if (auto* combo = dynamic_cast<QComboBox*>(control)) {
        const int index = combo->findText(entry, Qt::MatchStartsWith | Qt::MatchCaseSensitive);
        if (index < 0)
            Complain("no entry " + entry + " in " + name + ": " + Entries(name).join(", "));
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    } else if (auto* list = dynamic_cast<QListWidget*>(control)) {
        const auto found = list->findItems(entry, Qt::MatchStartsWith | Qt::MatchCaseSensitive);
        if (found.isEmpty()) {
            Complain("no entry " + entry + " in " + name + ": " + Entries(name).join(", "));
            return *this;
        }
        list->scrollToItem(found.first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(found.first()).center());
    }
    return *this;
}

User& User::ClicksWithCtrl(const QString& name)
{
    if (auto* list = Find<QListWidget>(name); list && list->currentItem())
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualItemRect(list->currentItem()).center());
    return *this;
}

User& User::LeavesField(const QString& name)
{
    QWidget* field = FindWidget(name);
    if (field) {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Tab);
    }
    return *this;
}

QString User::Reads(const QString& name) const
{
    QWidget* control = FindWidget(name);
    if (auto* combo = dynamic_cast<QComboBox*>(control))
        return combo->currentText();
    if (auto* list = dynamic_cast<QListWidget*>(control))
        return list->currentItem() ? list->currentItem()->text() : QString();
    if (auto* field = dynamic_cast<QLineEdit*>(control))
        return field->text();
    if (auto* text = dynamic_cast<QPlainTextEdit*>(control))
        return text->toPlainText();
    if (auto* label = dynamic_cast<QLabel*>(control))
        return label->text();
    if (auto* button = dynamic_cast<QAbstractButton*>(control))
        return button->isCheckable() ? QString::number(button->isChecked()) : button->text();
    return {};
}

QStringList User::Entries(const QString& name) const
{
    QStringList entries;
    QWidget* control = FindWidget(name);
    if (auto* combo = dynamic_cast<QComboBox*>(control))
        for (int index = 0; index < combo->count(); ++index)
            entries << combo->itemText(index);
    if (auto* list = dynamic_cast<QListWidget*>(control))
        for (int index = 0; index < list->count(); ++index)
            entries << list->item(index)->text();
    return entries;
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
    if (answers_.empty()) {
        Complain("unexpected message: " + shown);
        return MessageCode::Cancel;
    }
    const Answer answer = answers_.front();
    answers_.pop_front();
    if (answer.Title != message.Title || !message.Text.contains(answer.Containing))
        Complain("expected " + answer.Title + " / " + answer.Containing + ", came: " + shown);
    const qsizetype position = message.Captions.indexOf(answer.Button);
    if (position < 0) {
        Complain("no button " + answer.Button + " on: " + shown);
        return MessageCode::Cancel;
    }
    return ResultOfButton(answer.Button, static_cast<int>(position));
}

int User::VisitForm(QDialog& form)
{
    if (visits_.empty()) {
        Complain("unexpected form " + form.objectName());
        return QDialog::Rejected;
    }
    const auto work = visits_.front();
    visits_.pop_front();
    const QPointer<QWidget> before = form_;
    form.show();
    Works(form);
    work(form);
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
