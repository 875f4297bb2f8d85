#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include <functional>

/// What the tabs of the employee file share.
inline constexpr int kTabMargin = 14;

/// A white card whose first row is its bold head.
QFrame* HeadedCard(QLabel* head, QLayout* content);

/// A list with room for `characters` that may also show a text which it does not offer, and that is not completed while
/// somebody types.
QComboBox* EntryCombo(const QString& name, int characters);
/// Shows a text and the entry that reads so; an empty text for none.
void ShowText(QComboBox* combo, const QString& text);
/// Sets a text only when it differs, so that the cursor stays.
void ShowText(QLineEdit* field, const QString& text);

/// Calls back when a person brings the focus to a control or takes it away, not when a list drops down or another
/// window comes to the front.
class FocusWatch : public QObject
{
public:
    FocusWatch(QWidget* control, std::function<void()> entered, std::function<void()> left);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    std::function<void()> entered_;
    std::function<void()> left_;
};
