#include "platform/controls/form_kit.h"

#include "platform/controls/program_style.h"
#include "platform/controls/theme.h"
#include "platform/dao/dao.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QScreen>
#include <QStackedWidget>
#include <QSvgRenderer>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace
{
constexpr int kPageMargin = 16;
constexpr int kCardMargin = 14; ///< also of a tab's page
constexpr int kGap = 9;
constexpr double kFontPoints = 10;

std::function<int(QDialog&)> modalRunner;

/// What the style sheet selects by: [look="head"].
template <typename Widget>
Widget* WithLook(Widget* widget, const char* look)
{
    widget->setProperty("look", QString::fromLatin1(look));
    return widget;
}

/// As large as its page, where the screen has room for it.
class PageArea : public QScrollArea
{
public:
    QSize sizeHint() const override { return widget() ? widget()->sizeHint() : QScrollArea::sizeHint(); }
};

QFont ProgramFont()
{
    QFont font;
    font.setFamilies({"Liberation Sans", "Arial", "Nimbus Sans", "DejaVu Sans"});
    font.setPointSizeF(kFontPoints);
    return font;
}

} // namespace

QVBoxLayout* PageLayout(QWidget* form)
{
    auto* layout = new QVBoxLayout(form);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(kGap);
    return layout;
}

QVBoxLayout* TabLayout(QWidget* page)
{
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    layout->setSpacing(kCardMargin);
    return layout;
}

QScrollArea* ScrollingPage()
{
    auto* area = new PageArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    return area;
}

void SetPage(QScrollArea* area, QWidget* page)
{
    area->setWidget(WithLook(page, "page"));
}

QHBoxLayout* Row(std::initializer_list<QWidget*> controls)
{
    QHBoxLayout* row = Beside(kGap, controls);
    row->addStretch();
    return row;
}

QHBoxLayout* Beside(int gap, std::initializer_list<QWidget*> controls)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    for (QWidget* control : controls)
        row->addWidget(control);
    return row;
}

QVBoxLayout* Stack(int gap, std::initializer_list<QWidget*> controls)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(gap);
    for (QWidget* control : controls)
        column->addWidget(control);
    return column;
}

QGridLayout* Raster()
{
    auto* raster = new QGridLayout;
    raster->setSpacing(kGap);
    return raster;
}

QFrame* MakeCard(QLayout* layout)
{
    auto* card = WithLook(new QFrame, "card");
    layout->setContentsMargins(kCardMargin, kCardMargin, kCardMargin, kCardMargin);
    card->setLayout(layout);
    return card;
}

QLabel* AsHead(QLabel* label)
{
    return WithLook(label, "head");
}

QLabel* AsCaption(QLabel* label)
{
    return WithLook(label, "caption");
}

QLabel* AsFigure(QLabel* label)
{
    return WithLook(label, "figure");
}

QLabel* AsNotice(QLabel* label)
{
    return WithLook(label, "notice");
}

QVBoxLayout* Captioned(QLabel* caption, QWidget* control)
{
    caption->setBuddy(control);
    return Stack(3, {AsCaption(caption), control});
}

bool PromptButton::event(QEvent* event)
{
    if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
        return QPushButton::event(event);
    click();
    return true;
}

QPushButton* AsMainButton(QPushButton* button)
{
    SetMainButton(button, true);
    return button;
}

void SetStyled(QWidget* control, const char* property, const QVariant& value)
{
    if (control->property(property) == value)
        return;
    control->setProperty(property, value);
    control->style()->unpolish(control);
    control->style()->polish(control);
    QEvent change(QEvent::StyleChange); // a frame's contents make room for its border
    QApplication::sendEvent(control, &change);
}

void SetLook(QWidget* control, const char* look)
{
    SetStyled(control, "look", *look ? QVariant(QString::fromLatin1(look)) : QVariant());
}

void SetMainButton(QPushButton* button, bool main)
{
    button->setDefault(main);
    SetLook(button, main ? "main" : "");
    button->updateGeometry(); // it stands last
}

QSize FittingScreen(const QWidget* window, const QSize& size)
{
    constexpr QSize kFrame(16, 48);
    return size.boundedTo(window->screen()->availableSize() - kFrame);
}

void CentreOnScreen(QWidget* window)
{
    QRect place(QPoint(), window->size());
    place.moveCenter(window->screen()->availableGeometry().center());
    window->move(place.topLeft());
}

void ClearOptions(std::initializer_list<QRadioButton*> options)
{
    for (QRadioButton* option : options) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

int ShowModal(QDialog& form)
{
    DefaultWorkspace().PauseReading();
    const int result = modalRunner ? modalRunner(form) : form.exec();
    if (form.parentWidget()) // where two windows close at once, some desktops give the keyboard to none
        form.parentWidget()->window()->activateWindow();
    return result;
}

void SetModalRunner(std::function<int(QDialog&)> runner)
{
    modalRunner = std::move(runner);
}

BusyPointer::BusyPointer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyPointer::~BusyPointer()
{
    QApplication::restoreOverrideCursor();
}

void ShowTabOf(QWidget* control)
{
    QWidget* page = control;
    for (QWidget* above = control->parentWidget(); above; above = above->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(above))
            return tabs->setCurrentWidget(page);
        if (!qobject_cast<QStackedWidget*>(above))
            page = above;
    }
}

void KeepFocus(QWidget* field)
{
    field->setFocus();
    // The other tab is still on its way.
    QTimer::singleShot(0, field, [field] {
        if (field->isVisible() || !field->window()->isVisible())
            return;
        ShowTabOf(field);
        field->setFocus();
    });
}

void ApplyStyle()
{
    const Scheme scheme = DesktopScheme(); // while the colours are still the desktop's
    QApplication::setStyle(MakeProgramStyle());
    QApplication::setFont(ProgramFont());
    QApplication::setWindowIcon(PictureIcon("app"));
    ApplyTheme(scheme);
    FollowDesktop();
}

QIcon PictureIcon(const QString& name)
{
    const QString path = PicturePath(name);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

QPixmap Picture(const QString& name, int size)
{
    const QString path = PicturePath(name);
    if (!QFile::exists(path))
        return {};
    const qreal scale = qApp->devicePixelRatio();
    QPixmap picture(QSize(size, size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(path).render(&painter, QRectF(0, 0, size, size));
    return picture;
}

QLabel* MakeLogo(int size)
{
    auto* imgLogo = Named<QLabel>("imgLogo");
    imgLogo->setPixmap(Picture("app", size));
    return imgLogo;
}
