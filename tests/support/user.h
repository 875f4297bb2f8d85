#pragma once

#include "foundation/common_services.h"
#include "platform/program.h"
#include "support/house.h"

#include <QAbstractItemModel>
#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <memory>

/// A person at the keyboard: finds controls by name, turns to the page on which they stand, types real keys, clicks,
/// picks entries by text, answers messages. Whatever is missing, unexpected or left over is complained of.
class User
{
public:
    User();
    ~User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    /// Makes a form, shows it and works on it from here on.
    template <typename Form, typename... Arguments>
    User& Opens(Arguments&&... arguments)
    {
        owned_ = std::make_unique<Form>(std::forward<Arguments>(arguments)...);
        owned_->show();
        return Works(*owned_);
    }
    User& Works(QWidget& form);
    /// Closes the form that Opens made.
    User& Leaves();
    template <typename Form>
    Form& The()
    {
        return dynamic_cast<Form&>(*form_);
    }

    /// From here on he has no mouse: he reaches controls with Tab, and answers messages in their box.
    User& UsesKeysOnly(bool only = true);
    bool HasKeysOnly() const { return keysOnly_; }

    User& Types(const QString& name, const QString& text); ///< replaces the contents, key by key
    User& Presses(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    User& Clicks(const QString& name); ///< a button, check box, option or label
    User& Checks(const QString& name, bool checked = true);
    User& Picks(const QString& name, const QString& entry); ///< an entry of a list or combo box that starts so
    /// Controls with what is entered there: a text, an entry of a list, "1" or "0" for a check box.
    User& Enters(const QList<std::pair<QString, QString>>& fields);
    User& ClicksWithCtrl(const QString& list); ///< on the current entry: takes its mark away
    User& LeavesField(const QString& name);    ///< the focus moves on

    /// What stands in a control: text of fields and labels, current text of lists, "1"/"0" of check boxes.
    QString Reads(const QString& name) const;
    QString ReadsAll(const QStringList& names) const; ///< the same of several controls, with "|" between them
    QStringList Entries(const QString& name) const;
    bool CanUse(const QString& name) const;         ///< visible and enabled
    QString Usable(const QStringList& names) const; ///< those of them that can be used, with blanks between them
    bool HasFocus(const QString& name) const;

    /// The next message must bear this title; it is answered with the button of that caption. `containing` must stand
    /// in its text.
    User& WillAnswer(const QString& title, const QString& button, const QString& containing = {});
    /// The messages around a change, in the language of the moment: the question before it, answered with Yes; what was
    /// done; what is wrong.
    User& WillConfirm(const QString& containing = {});
    User& WillBeDone(const QString& containing = {});
    User& WillBeRefused(const QString& containing = {});
    /// The next file choice returns this path.
    User& WillChooseFile(const QString& path);
    /// The next form that opens modally must be of that kind and is worked by `work`, which must close it.
    template <typename Form>
    User& WhenOpens(std::function<void(Form&)> work)
    {
        visits_.push_back([work](QDialog& dialog) {
            auto* form = dynamic_cast<Form*>(&dialog);
            if (!form)
                return Complain("unexpected form " + dialog.objectName());
            work(*form);
        });
        return *this;
    }
    /// Called with each message before it is answered.
    std::function<void(const Message&)> SeesMessage;

private:
    struct Answer
    {
        QString Title;
        QString Button;
        QString Containing;
    };

    QWidget* FindWidget(const QString& name) const;
    QWidget* TurnsTo(const QString& name); ///< the control, which must be enabled, on its page
    QAbstractItemModel* FindEntries(const QString& name) const;
    int AnswerMessage(const Message& message);
    int PressButton(const Message& message, const QString& caption);
    int VisitForm(QDialog& form);

    QPointer<QWidget> form_; ///< null once the program has closed and forgotten it
    std::unique_ptr<QWidget> owned_;
    bool keysOnly_ = false;
    std::deque<Answer> answers_;
    std::deque<QString> files_;
    std::deque<std::function<void(QDialog&)>> visits_;
};
