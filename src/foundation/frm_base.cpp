#include "foundation/frm_base.h"

#include "foundation/common_services.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
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

/// Where a control of the right side of the foot, or of its left, stands.
FootLayout::Group GroupOf(const QWidget* control, FootLayout::Group otherwise)
{
    const QString name = control->objectName();
    if (name == "cmdCancelOperation")
        return FootLayout::Group::WayBack;
    const bool leaves = control->property(kWayOut).toBool() || name == "cmdQuit" || name == "cmdCancel";
    return leaves ? FootLayout::Group::WayOut : otherwise;
}

/// What a person has entered in a control, as text; empty for what takes no entry.
QString ContentOf(const QWidget* control)
{
    if (const auto* list = qobject_cast<const QListWidget*>(control)) {
        QStringList marked; // an entry can be current without being chosen
        for (const QModelIndex& entry : list->selectionModel()->selectedRows())
            marked << QString::number(entry.row());
        marked.sort();
        return marked.join(' ');
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return QString::number(button->isChecked());
    for (const char* property : {"plainText", "currentText", "text"})
        if (control->focusPolicy() != Qt::NoFocus && control->property(property).isValid())
            return control->property(property).toString();
    return {};
}

/// The whole of a control, its upper left before all; the toolkit itself cares only for the line with the cursor.
void BringIntoSight(const QWidget* control)
{
    for (QWidget* above = control->parentWidget(); above; above = above->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(above)) {
            const QRect place(control->mapTo(area->widget(), QPoint()), control->size());
            area->ensureVisible(place.right(), place.bottom());
            area->ensureVisible(place.left(), place.top());
        }
}

/// The first one on a page that can be entered; none when there is none.
QWidget* FirstField(const QWidget* page)
{
    for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain())
        if (page->isAncestorOf(next) && next->isVisible() && next->isEnabled() && next->focusPolicy() & Qt::TabFocus)
            return next;
    return nullptr;
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
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool byMouse = QGuiApplication::mouseButtons() != Qt::NoButton; // what is pressed stays where it is
        if (now && !byMouse && isAncestorOf(now))
            BringIntoSight(now);
    });
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
            foot_->Add(control, GroupOf(control, group));
}

/// The Tab key meets the main button first and the ways out last.
void FormBase::OrderTabs()
{
    const QList<QWidget*> foot = foot_->TabOrder();
    for (qsizetype i = 1; i < foot.size(); ++i)
        setTabOrder(foot[i - 1], foot[i]);
}

/// What the pages behind the other tabs lack in width, and the row of tabs itself.
int FormBase::WidthLackingInTabs() const
{
    int lacking = 0;
    for (const auto* tabs : findChildren<QTabWidget*>()) {
        lacking = std::max(lacking, tabs->tabBar()->sizeHint().width() - tabs->width());
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const auto* area = qobject_cast<QScrollArea*>(tabs->widget(tab));
            const int page = area ? area->widget()->minimumSizeHint().width() : 0;
            const int bar = area ? area->verticalScrollBar()->sizeHint().width() : 0;
            lacking = std::max(lacking, page + bar - tabs->currentWidget()->width());
        }
    }
    return lacking;
}

/// Only what is shown knows how its lines wrap: what a page lacks then is added, as far as the screen has room.
void FormBase::GrowToPage()
{
    QSize lacking(WidthLackingInTabs(), 0);
    for (const auto* area : findChildren<QScrollArea*>())
        if (area->isVisible())
            lacking =
                lacking.expandedTo({area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum()});
    if (lacking != QSize(0, 0))
        resize(FittingScreen(this, size() + lacking));
}

void FormBase::StayOnScreen()
{
    const QRect room = (parentWidget() ? parentWidget() : this)->screen()->availableGeometry();
    QRect frame = frameGeometry();
    frame.moveBottomRight({std::min(frame.right(), room.right()), std::min(frame.bottom(), room.bottom())});
    frame.moveTopLeft({std::max(frame.left(), room.left()), std::max(frame.top(), room.top())});
    if (frame.topLeft() != frameGeometry().topLeft())
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
        field = FirstField(field);
    if (!field)
        return;
    field->setFocus();
    BringIntoSight(field);
}

void FormBase::showEvent(QShowEvent* event)
{
    if (!std::exchange(activated_, true)) {
        OrderTabs();
        if (parentWidget())
            setScreen(parentWidget()->screen()); // the toolkit moves the form there only when it has its size
        if (!testAttribute(Qt::WA_Resized))
            resize(sizeHint());
        if ((!parentWidget() || parentWidget()->windowType() == Qt::SplashScreen) && !testAttribute(Qt::WA_Moved))
            CentreOnScreen(this);
        QTimer::singleShot(0, this, [this] {
            for (int time = 0; time < 2; ++time) // lines that wrap otherwise may need more
                GrowToPage();
            StayOnScreen();
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

/// Enter presses the button that has the focus, and the main one from everywhere else.
bool FormBase::PressFocused(const QKeyEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (!button || (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter))
        return false;
    button->click();
    return true;
}

void FormBase::keyPressEvent(QKeyEvent* event)
{
    if (TurnTab(event) || PressFocused(event))
        return;
    if (!event->matches(QKeySequence::Cancel) || MayBeLeft())
        QDialog::keyPressEvent(event);
}
