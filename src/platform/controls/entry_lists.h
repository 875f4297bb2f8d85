#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>

#include <functional>
#include <vector>

/// A list with room for `characters` that may also show a text which it does not offer, and that is not completed while
/// somebody types.
QComboBox* EntryCombo(const QString& name, int characters);
/// Drops a list down at the entry that begins with what was typed.
void DropDownAt(QComboBox* list, const QString& typed);

/// A list that marks the entry that begins with what is typed while it is dropped down; Tab takes it and goes on. The
/// toolkit would swallow the Tab, and take "22" for the second entry that begins with a 2.
class DropDownList : public QComboBox
{
public:
    DropDownList();
    void showPopup() override;
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    void TakeAndGoOn(QObject* target, QEvent* tab);
    void Find(const QString& key);
    QModelIndex Begins(const QModelIndex& start, const QString& text) const;

    QString typed_; ///< without a pause
    QElapsedTimer pause_;
};

/// A list that drops down at the first arrow, letter or digit: a person walks through it, and nothing is taken before
/// Enter or a click.
class WalkedList : public DropDownList
{
protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// The list finds its times by what is typed with and without the colon and the leading zero: "830", "8h30".
void FindTimesByDigits(QComboBox* list);

/// The lists offer the same entries, which are kept once for all of them, and found as times are. None is
/// chosen.
void ShareEntries(const std::vector<QComboBox*>& lists, const QStringList& entries);

/// The list has room for `characters`, whatever it offers: to measure hundreds of entries takes its time.
void MakeRoomFor(QComboBox* list, int characters);

/// Shows a text and the entry that reads so; an empty text for none.
void ShowText(QComboBox* combo, const QString& text);
/// Sets a text only when it differs, so that the cursor stays.
void ShowText(QLineEdit* field, const QString& text);

/// A list box whose mark a person may move but not take away.
class ChoiceList : public QListWidget
{
public:
    /// Calls `chosen` with the row that is marked, also when a person clicks on the one that was marked already.
    void OnChoice(const std::function<void(int row)>& chosen);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool told_ = false; ///< the press that a click ends has moved the mark, and that was told
};
