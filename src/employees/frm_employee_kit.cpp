#include "employees/frm_employee_kit.h"

#include "platform/controls/form_kit.h"

#include <QFocusEvent>

namespace
{
constexpr int kHeadGap = 8;
constexpr int kEntriesShown = 16;
} // namespace

QFrame* HeadedCard(QLabel* head, QLayout* content)
{
    auto* layout = new QVBoxLayout;
    layout->setSpacing(kHeadGap);
    layout->addWidget(AsHead(head));
    layout->addLayout(content, 1);
    return MakeCard(layout);
}

QComboBox* EntryCombo(const QString& name, int characters)
{
    auto* combo = Named<QComboBox>(name);
    combo->setEditable(true);
    combo->setCompleter(nullptr);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(characters);
    combo->setMaxVisibleItems(kEntriesShown);
    return combo;
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

FocusWatch::FocusWatch(QWidget* control, std::function<void()> entered, std::function<void()> left)
    : QObject(control), entered_(std::move(entered)), left_(std::move(left))
{
    control->installEventFilter(this);
}

bool FocusWatch::eventFilter(QObject* target, QEvent* event)
{
    const bool entering = event->type() == QEvent::FocusIn;
    if (entering || event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            entering ? entered_() : left_();
    }
    return QObject::eventFilter(target, event);
}
