#pragma once

#include "foundation/list_entry.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QListWidget>
#include <QRadioButton>

/// Controls made in one line with what they say. Their texts follow the language of the session: they are set at once,
/// and anew by Retranslate. The letter after "&" is the control's mnemonic.

/// Runs `show` now, and again at each retranslation while `owner` lives.
void FollowLanguage(QObject* owner, const std::function<void()>& show);
/// Sets all texts of a form or window anew.
void Retranslate(QWidget* form);

/// What a label, a button or a menu entry says.
template <typename Control>
void SetCaption(Control* control, const Text& text)
{
    FollowLanguage(control, [=] { control->setText(T(text)); });
}
void SetTitle(QWidget* window, const Text& text);
void SetPlaceholder(QComboBox* list, const Text& text);
/// What a control is for; an empty text takes the tip away.
void SetToolTip(QWidget* control, const Text& text);
void SetAccessibleName(QWidget* control, const Text& text);
/// The property that holds why a control is greyed; empty while it can be used.
inline constexpr char kWhyGreyed[] = "whyGreyed";
/// Enables a control, or greys it and tells the reason in its tip; its own tip comes back with it.
void EnableOrExplain(QWidget* control, bool enabled, const Text& reason);
/// The same by the reason alone: there is none while the control can be used.
void EnableUnless(QWidget* control, const Text& reason);
/// A field or a list without which its form does not save: it is marked, and says so while it is empty. Where an entry
/// in `instead` will do, either of the two is enough.
void Require(QWidget* control, QLineEdit* instead = nullptr);
/// Whether a control that was required is so at the moment.
void SetRequired(QWidget* control, bool required);
/// Shows which of the required controls of a form are still empty; each stops showing it as soon as it is filled.
void ShowMissing(QWidget* form);
/// Nothing is shown as empty any longer.
void ForgetMissing(QWidget* form);
/// A page of a tab widget, which scrolls where it must; it comes last.
void AddTab(QTabWidget* tabs, QWidget* page, const Text& caption);

QLabel* MakeLabel(const QString& name, const Text& text = {});
/// A label that explains, its lines wrapped.
QLabel* WrappedLabel(const QString& name, const Text& text = {});
/// A button, a check box or an option.
template <typename Button = QPushButton>
Button* MakeButton(const QString& name, const Text& caption)
{
    auto* button = Named<Button>(name);
    SetCaption(button, caption);
    return button;
}

/// A small button with a picture; its tip names it.
QPushButton* MakeArrow(const QString& name, const QString& picture, const Text& tip);

inline constexpr int kUnlimited = 32767;
/// A field of at most `limit` characters that takes what `filter` lets through.
QLineEdit* MakeField(const QString& name, KeyFilter filter, int limit = kUnlimited);

/// The label of a control, its buddy; a screen reader names the control by it. It is called like the control:
/// "lblCity" for "txtCity".
QLabel* LabelOf(QWidget* control, const Text& text);
/// A small grey caption above a control. `named` is what the caption names, where `control` only holds it.
QVBoxLayout* Captioned(const Text& caption, QWidget* control, QWidget* named = nullptr);
/// A bold head above a control.
QVBoxLayout* Headed(const Text& head, QWidget* control, QWidget* named = nullptr);
/// A grid for AddField, its rows `gap` pixels apart.
QGridLayout* FieldGrid(int gap = 10);
/// A field as MakeField makes it, in a new row of `fields`: a bold label at the left names it.
QLineEdit* AddField(QGridLayout* fields, const QString& name, const Text& label, KeyFilter filter,
                    int limit = kUnlimited);
/// A white card whose first row is its bold head.
QFrame* HeadedCard(const Text& head, QLayout* content);

/// An entry of a list with the RecordID behind it.
void AddEntry(QListWidget* list, const QString& text, int recordID);
void AddEntries(QListWidget* list, const QVector<ListEntry>& entries);
/// The RecordID behind the entry that is marked; 0 when none is. A list that takes the focus makes its first entry
/// current without marking it.
int ChosenID(const QListWidget* list);
/// Its text; empty when none is marked.
QString ChosenText(const QListWidget* list);
/// Marks the entry of that RecordID, or none.
void Choose(QListWidget* list, int recordID);
