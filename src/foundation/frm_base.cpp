#include "foundation/frm_base.h"

#include "foundation/common_services.h"

#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QTabWidget>
#include <QTimer>

#include <utility>

namespace
{
/// A page whose lists give way before it has to be scrolled, also beside lines that are wrapped.
class PageWidget : public QWidget
{
public:
    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

constexpr char kWayOut[] = "wayOut";

bool IsWayOut(const QWidget* control)
{
    static const QStringList names = {"cmdQuit", "cmdCancel", "cmdCancelOperation"};
    return control->property(kWayOut).toBool() || names.contains(control->objectName());
}

/// What a person has entered in a control, as text; empty for what takes no entry.
QString ContentOf(const QWidget* control)
{
    if (const auto* list = qobject_cast<const QListWidget*>(control)) {
        const QList<QListWidgetItem*> marked = list->selectedItems(); // an entry can be current without being chosen
        return marked.isEmpty() ? QString() : QString::number(list->row(marked.first()));
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return QString::number(button->isChecked());
    for (const char* property : {"plainText", "currentText", "text"})
        if (control->focusPolicy() != Qt::NoFocus && control->property(property).isValid())
            return control->property(property).toString();
    return {};
}
} // namespace

FormBase::FormBase(const char* name, QWidget* parent) : QDialog(parent), datAbsence(name), scroll_(ScrollingPage())
{
    setObjectName(name);
    auto* layout = PageLayout(this);
    auto* page = new PageWidget;
    page_ = new QVBoxLayout(page);
    page_->setContentsMargins(0, 0, 0, 0);
    page_->setSpacing(layout->spacing());
    foot_ = new FootLayout;
    foot_->setSpacing(layout->spacing());
    layout->addWidget(scroll_, 1);
    layout->addLayout(foot_);
    SetPage(scroll_, page);
}

QSize FormBase::sizeHint() const
{
    QSize wanted = size_.isValid() ? size_ : QDialog::sizeHint();
    if (FittingScreen(this, wanted).height() < wanted.height()) // the bar takes its room beside the page
        wanted.rwidth() += scroll_->verticalScrollBar()->sizeHint().width();
    return FittingScreen(this, wanted);
}

QPushButton* FormBase::AddButton(const char* name, const Text& caption, const std::function<void()>& clicked)
{
    auto* button = MakeButton<PromptButton>(name, caption);
    connect(button, &QPushButton::clicked, this, [this, clicked] { Attempt(clicked); });
    return button;
}

QPushButton* FormBase::AddMainButton(const char* name, const Text& caption, const std::function<void()>& clicked)
{
    return AsMainButton(AddButton(name, caption, clicked));
}

QPushButton* FormBase::AddWayOut(const Text& caption, const char* name)
{
    QPushButton* button = AddButton(name, caption, [this] { reject(); });
    button->setProperty(kWayOut, true);
    return button;
}

void FormBase::LayFoot(const std::vector<QWidget*>& left, const std::vector<QWidget*>& right)
{
    for (const auto& [controls, group] :
         {std::pair(&left, FootLayout::Group::Left), {&right, FootLayout::Group::Command}})
        for (QWidget* control : *controls)
            foot_->Add(control, IsWayOut(control) ? FootLayout::Group::WayOut : group);
}

/// The Tab key meets the main button first and the ways out last.
void FormBase::OrderTabs()
{
    const QList<QWidget*> foot = foot_->TabOrder();
    for (qsizetype i = 1; i < foot.size(); ++i)
        setTabOrder(foot[i - 1], foot[i]);
}

/// Only what is shown knows how its lines wrap: what a page lacks then is added, as far as the screen has room.
void FormBase::GrowToPage()
{
    QSize lacking(0, 0);
    for (const auto* area : findChildren<QScrollArea*>())
        if (area->isVisible())
            lacking =
                lacking.expandedTo({area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum()});
    if (lacking != QSize(0, 0))
        resize(FittingScreen(this, size() + lacking));
}

/// A form with nothing behind it but, perhaps, the program's sign.
void FormBase::CentreOnScreen()
{
    QRect frame(QPoint(), size());
    frame.moveCenter(screen()->availableGeometry().center());
    move(frame.topLeft());
}

bool FormBase::Attempt(const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const RuntimeError& error) {
        TellError(error);
        return false;
    }
}

void FormBase::ShowFault(const Fault& fault, const Text& title)
{
    ShowMissing(this);
    if (!fault.Text.isEmpty())
        Tell(T(title), fault.Text, Face::Warning);
    GoTo(fault.Control);
}

void FormBase::GoTo(const QString& control)
{
    auto* field = control.isEmpty() ? nullptr : findChild<QWidget*>(control);
    if (!field)
        return;
    ShowTabOf(field);
    if (field->focusPolicy() == Qt::NoFocus)
        return;
    field->setFocus();
    for (QWidget* above = field->parentWidget(); above; above = above->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(above))
            area->ensureWidgetVisible(field);
}

void FormBase::showEvent(QShowEvent* event)
{
    if (!std::exchange(activated_, true)) {
        OrderTabs();
        if (!testAttribute(Qt::WA_Resized))
            resize(sizeHint());
        if ((!parentWidget() || parentWidget()->windowType() == Qt::SplashScreen) && !testAttribute(Qt::WA_Moved))
            CentreOnScreen();
        QTimer::singleShot(0, this, [this] {
            GrowToPage();
            Form_Activate();
            KeepContents();
        });
    }
    QDialog::showEvent(event);
}

QStringList FormBase::Contents() const
{
    QStringList contents;
    for (const QWidget* control : findChildren<QWidget*>())
        if (const QString name = control->objectName(); !name.isEmpty() && !name.startsWith("qt_"))
            contents << name + '=' + ContentOf(control); // the toolkit's own parts come and go
    contents.sort(); // a page that comes to the front changes its place among the others
    return contents;
}

bool FormBase::MayBeLeft()
{
    return !asksBeforeLosing_ || Contents() == kept_ || AskToAbandonChanges();
}

void FormBase::closeEvent(QCloseEvent* event)
{
    if (MayBeLeft())
        QDialog::closeEvent(event);
    else
        event->ignore();
}

/// The tabs turn with Ctrl+Tab wherever the focus is, also at the foot.
bool FormBase::TurnTab(const QKeyEvent* event)
{
    auto* tabs = findChild<QTabWidget*>();
    const bool forth = event->key() == Qt::Key_Tab;
    if (!tabs || !event->modifiers().testFlag(Qt::ControlModifier) || !(forth || event->key() == Qt::Key_Backtab))
        return false;
    tabs->setCurrentIndex((tabs->currentIndex() + (forth ? 1 : tabs->count() - 1)) % tabs->count());
    return true;
}

void FormBase::keyPressEvent(QKeyEvent* event)
{
    if (TurnTab(event))
        return;
    if (!event->matches(QKeySequence::Cancel) || MayBeLeft())
        QDialog::keyPressEvent(event);
}
