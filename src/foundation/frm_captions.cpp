#include "foundation/frm_captions.h"

#include "platform/controls/program_style.h"

#include <QTabWidget>

namespace
{
constexpr int kHeadGap = 8;

/// A text of its parent that follows the language.
class LanguageFollower : public QObject
{
public:
    LanguageFollower(QObject* owner, std::function<void()> show) : QObject(owner), Show(std::move(show)) {}

    const std::function<void()> Show;
};

/// What the tip of a control says: why it is greyed, or else what it is for.
class ControlTip : public LanguageFollower
{
public:
    explicit ControlTip(QWidget* control)
        : LanguageFollower(control, [this, control] {
              control->setToolTip(T(Why.IsEmpty() ? Own : Why));
              control->setProperty(kWhyGreyed, T(Why));
          })
    {}

    Text Own, Why;
};

ControlTip& TipOf(QWidget* control)
{
    for (QObject* child : control->children())
        if (auto* tip = dynamic_cast<ControlTip*>(child))
            return *tip;
    return *new ControlTip(control);
}

constexpr char kRequired[] = "required";
constexpr char kInstead[] = "instead";

bool IsEmpty(const QWidget* control)
{
    if (const auto* list = qobject_cast<const QListWidget*>(control))
        return list->selectedItems().isEmpty();
    if (const auto* list = qobject_cast<const QComboBox*>(control))
        return list->currentText().trimmed().isEmpty();
    return control->property("text").toString().trimmed().isEmpty();
}

bool IsMissing(const QWidget* control)
{
    const auto* instead = control->property(kInstead).value<QLineEdit*>();
    return control->property(kRequired).toBool() && control->isEnabled() && IsEmpty(control) &&
           !(instead && !IsEmpty(instead));
}

/// The remark in an empty field or list.
void ShowRemark(QWidget* control)
{
    constexpr Text kRemark = {"required", "obligatoire"};
    const auto* instead = control->property(kInstead).value<QLineEdit*>();
    const QString remark = control->property(kRequired).toBool() ? T(kRemark) : QString();
    control->setAccessibleDescription(remark);
    if (auto* field = qobject_cast<QLineEdit*>(control))
        field->setPlaceholderText(instead && !IsEmpty(instead) ? QString() : remark);
    else if (auto* list = qobject_cast<QComboBox*>(control))
        list->setPlaceholderText(remark);
}

void ShowFilled(QWidget* control)
{
    SetLook(control, "");
    ShowRemark(control);
}

QString WithoutMnemonic(QString text)
{
    return text.remove('&');
}

QVBoxLayout* Above(QLabel* label, QWidget* control, int gap)
{
    QVBoxLayout* column = Stack(gap, {label});
    column->addWidget(control, 1);
    return column;
}
} // namespace

void FollowLanguage(QObject* owner, const std::function<void()>& show)
{
    new LanguageFollower(owner, show);
    show();
}

void Retranslate(QWidget* form)
{
    for (QObject* child : form->findChildren<QObject*>())
        if (const auto* follower = dynamic_cast<LanguageFollower*>(child))
            follower->Show();
}

void SetTitle(QWidget* window, const Text& text)
{
    FollowLanguage(window, [=] { window->setWindowTitle(T(text)); });
}

void SetPlaceholder(QComboBox* list, const Text& text)
{
    FollowLanguage(list, [=] { list->setPlaceholderText(T(text)); });
}

void SetToolTip(QWidget* control, const Text& text)
{
    ControlTip& tip = TipOf(control);
    tip.Own = text;
    tip.Show();
}

void EnableOrExplain(QWidget* control, bool enabled, const Text& reason)
{
    ControlTip& tip = TipOf(control);
    tip.Why = enabled ? Text() : reason;
    tip.Show();
    control->setEnabled(enabled);
}

void EnableUnless(QWidget* control, const Text& reason)
{
    EnableOrExplain(control, reason.IsEmpty(), reason);
}

void Require(QWidget* control, QLineEdit* instead)
{
    control->setProperty(kInstead, QVariant::fromValue(instead));
    SetRequired(control, true);
    const auto filled = [control] { ShowFilled(control); };
    if (auto* list = qobject_cast<QComboBox*>(control))
        QObject::connect(list, &QComboBox::currentTextChanged, list, filled);
    else if (auto* box = qobject_cast<QListWidget*>(control))
        QObject::connect(box, &QListWidget::itemSelectionChanged, box, filled);
    for (auto* field : {qobject_cast<QLineEdit*>(control), instead})
        if (field)
            QObject::connect(field, &QLineEdit::textChanged, control, filled);
    FollowLanguage(control, [control] { ShowRemark(control); });
}

void SetRequired(QWidget* control, bool required)
{
    if (control->property(kRequired).toBool() == required)
        return;
    SetStyled(control, kRequired, required);
    ShowRemark(control);
}

void ShowMissing(QWidget* form)
{
    for (QWidget* control : form->findChildren<QWidget*>())
        if (control->property(kRequired).toBool())
            SetLook(control, IsMissing(control) ? "missing" : "");
}

void ForgetMissing(QWidget* form)
{
    for (QWidget* control : form->findChildren<QWidget*>())
        if (control->property(kRequired).toBool())
            SetLook(control, "");
}

void SetAccessibleName(QWidget* control, const Text& text)
{
    FollowLanguage(control, [=] { control->setAccessibleName(WithoutMnemonic(T(text))); });
}

void AddTab(QTabWidget* tabs, QWidget* page, const Text& caption)
{
    QScrollArea* area = ScrollingPage();
    const int tab = tabs->addTab(area, QString());
    SetPage(area, page);
    FollowLanguage(page, [=] { tabs->setTabText(tab, T(caption)); });
}

QLabel* MakeLabel(const QString& name, const Text& text)
{
    auto* label = Named<QLabel>(name);
    if (!text.IsEmpty())
        SetCaption(label, text);
    return label;
}

QLabel* WrappedLabel(const QString& name, const Text& text)
{
    auto* label = MakeLabel(name, text);
    label->setWordWrap(true);
    return label;
}

QPushButton* MakeArrow(const QString& name, const QString& picture, const Text& tip)
{
    auto* button = Named<QPushButton>(name);
    button->setProperty(kPicture, picture);
    button->setProperty("look", "arrow");
    SetToolTip(button, tip);
    SetAccessibleName(button, tip);
    return button;
}

QLineEdit* MakeField(const QString& name, KeyFilter filter, int limit)
{
    auto* field = Named<QLineEdit>(name);
    field->setMaxLength(limit);
    FilterKeys(field, filter);
    return field;
}

QLabel* LabelOf(QWidget* control, const Text& text)
{
    constexpr int kPrefix = 3; // "txt", "cbo", "lst"
    auto* label = MakeLabel("lbl" + control->objectName().mid(kPrefix), text);
    label->setBuddy(control);
    SetAccessibleName(control, text);
    return label;
}

QVBoxLayout* Captioned(const Text& caption, QWidget* control, QWidget* named)
{
    constexpr int kCaptionGap = 3;
    return Above(AsCaption(LabelOf(named ? named : control, caption)), control, kCaptionGap);
}

QVBoxLayout* Headed(const Text& head, QWidget* control, QWidget* named)
{
    constexpr int kGapBelowHead = 5;
    return Above(AsHead(LabelOf(named ? named : control, head)), control, kGapBelowHead);
}

QGridLayout* FieldGrid(int gap)
{
    constexpr int kLabelGap = 16;
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(kLabelGap);
    fields->setVerticalSpacing(gap);
    return fields;
}

QLineEdit* AddField(QGridLayout* fields, const QString& name, const Text& label, KeyFilter filter, int limit)
{
    QLineEdit* field = MakeField(name, filter, limit);
    const int row = fields->rowCount();
    fields->addWidget(AsHead(LabelOf(field, label)), row, 0);
    fields->addWidget(field, row, 1);
    return field;
}

QFrame* HeadedCard(const Text& head, QLayout* content)
{
    QVBoxLayout* layout = Stack(kHeadGap, {AsHead(MakeLabel({}, head))});
    layout->addLayout(content, 1);
    return MakeCard(layout);
}

void AddEntry(QListWidget* list, const QString& text, int recordID)
{
    auto* entry = new QListWidgetItem(text, list);
    entry->setData(Qt::UserRole, recordID);
}

void AddEntries(QListWidget* list, const QVector<ListEntry>& entries)
{
    for (const ListEntry& entry : entries)
        AddEntry(list, entry.Text, entry.RecordID);
}

int ChosenID(const QListWidget* list)
{
    const QList<QListWidgetItem*> marked = list->selectedItems();
    return marked.isEmpty() ? 0 : marked.first()->data(Qt::UserRole).toInt();
}

QString ChosenText(const QListWidget* list)
{
    const QList<QListWidgetItem*> marked = list->selectedItems();
    return marked.isEmpty() ? QString() : marked.first()->text();
}

void Choose(QListWidget* list, int recordID)
{
    for (int row = 0; row < list->count(); ++row)
        if (recordID != 0 && list->item(row)->data(Qt::UserRole).toInt() == recordID)
            return list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    list->setCurrentRow(-1, QItemSelectionModel::Clear);
}
