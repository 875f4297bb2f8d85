#include "calendar/frm_main_tool_bar.h"

#include "foundation/frm_captions.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace
{
constexpr int kIconSize = 24;
constexpr int kZoomedIconSize = 32;
constexpr int kToolWidth = 96;
constexpr int kWordMargin = 20; ///< what a tool has around its word or image
constexpr int kToolGap = 15;    ///< between tools, the lines between their groups included
constexpr int kLowWindow = 700; ///< below it the calendar needs the room of the words

/// The tool in use keeps its colours, also while it takes no click.
QIcon UngreyedIcon(const QString& picture)
{
    QIcon icon;
    icon.addPixmap(Picture(picture, kIconSize), QIcon::Normal);
    icon.addPixmap(Picture(picture, kIconSize), QIcon::Disabled);
    return icon;
}

QFrame* AddGroupLine(QHBoxLayout* row)
{
    auto* line = new QFrame;
    line->setProperty("look", "line");
    line->setFixedWidth(1);
    row->addSpacing(8);
    row->addWidget(line);
    row->addSpacing(8);
    return line;
}
} // namespace

ToolBar::ToolBar(QWidget* parent) : QFrame(parent)
{
    setObjectName("fraToolBar");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    for (const Command* command : CommandsIn(Place::ToolBar)) {
        QFrame* line = command->AfterLine ? AddGroupLine(row) : nullptr;
        const Tool tool{*command, MakeImage(*command, command->Name), MakeImage(*command, command->Name + "_DISABLED"),
                        line};
        tool.Image->installEventFilter(this);
        connect(tool.Image, &QToolButton::clicked, this, [this, command] { Chosen(*command); });
        AddShortcut(tool);
        tool.Disabled->setEnabled(false);
        tool.Disabled->hide();
        row->addWidget(tool.Image);
        row->addWidget(tool.Disabled);
        tools_.push_back(tool);
    }
    row->addStretch();

    imgZoom = MakeImage(tools_.front().Of, "imgZoom");
    imgZoom->setParent(this);
    imgZoom->setIconSize(QSize(kZoomedIconSize, kZoomedIconSize));
    imgZoom->setFocusPolicy(Qt::NoFocus);
    imgZoom->hide();
    connect(imgZoom, &QToolButton::clicked, this, [this] { Chosen(*hovered_); });
}

/// The key of a tool that may not be used tells why.
void ToolBar::AddShortcut(const Tool& tool)
{
    auto* shortcut = new QShortcut(tool.Of.Shortcut, this);
    connect(shortcut, &QShortcut::activated, this, [this, tool] {
        if (tool.Image->isVisible())
            Chosen(tool.Of);
        else if (tool.Disabled->isVisible())
            QToolTip::showText(tool.Disabled->mapToGlobal(tool.Disabled->rect().bottomLeft()), tool.Disabled->toolTip(),
                               tool.Disabled);
    });
}

QToolButton* ToolBar::MakeImage(const Command& command, const QString& name)
{
    auto* image = Named<QToolButton>(name);
    image->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    image->setIconSize(QSize(kIconSize, kIconSize));
    image->setMinimumWidth(kToolWidth);
    image->setAutoRaise(true);
    image->setIcon(PictureIcon(command.Picture));
    SetCaption(image, command.Caption);
    return image;
}

void ToolBar::ActivateAllowed()
{
    for (const Tool& tool : tools_)
        SetTool(tool, tool.Of.Allowed.Holds(), false, tool.Of.Allowed.WhyNot());
    PartGroups();
    FollowZoomed();
}

/// The pointer may rest on a tool whose look changes or that is no longer there.
void ToolBar::FollowZoomed()
{
    for (const Tool& tool : tools_)
        if (&tool.Of == hovered_ && !imgZoom->isHidden())
            tool.Image->isHidden() ? imgZoom->hide() : ShowZoom(tool);
}

/// A line stands only between tools that are seen.
void ToolBar::PartGroups()
{
    QFrame* line = nullptr;
    bool seen = false;
    for (const Tool& tool : tools_) {
        if (tool.Line) {
            tool.Line->hide();
            line = tool.Line;
        }
        if (!tool.Of.Shown.Holds())
            continue;
        if (line)
            line->setVisible(seen);
        line = nullptr;
        seen = true;
    }
}

void ToolBar::Deactivate(const QString& toolInUse, bool usable)
{
    imgZoom->hide();
    for (const Tool& tool : tools_) {
        const bool inUse = tool.Of.Name == toolInUse;
        SetTool(tool, inUse && usable, inUse, inUse ? tool.Of.Tip : kAnotherInProgress);
    }
}

bool ToolBar::Shows(const char* name) const
{
    const auto* image = findChild<QToolButton*>(name);
    return image && image->isVisibleTo(this);
}

void ToolBar::SetTool(const Tool& tool, bool enabled, bool inUse, const Text& why)
{
    const bool shown = tool.Of.Shown.Holds();
    const QString waiting = tool.Waiting == 0 ? QString() : QStringLiteral(" (%1)").arg(tool.Waiting);
    const QString tip = T(tool.Of.Tip) + waiting + "   " + tool.Of.Shortcut.toString(QKeySequence::NativeText);
    tool.Image->setToolTip(tip);
    tool.Disabled->setProperty(kWhyGreyed, T(why));
    tool.Disabled->setToolTip(why.IsEmpty() || inUse ? tip : tip + "\n" + T(why));
    for (QToolButton* image : {tool.Image, tool.Disabled}) {
        SetLook(image, inUse ? "active" : "");
        image->setText(WordOf(tool));
    }
    tool.Disabled->setIcon(inUse ? UngreyedIcon(tool.Of.Picture) : PictureIcon(tool.Of.Picture));
    tool.Image->setVisible(shown && enabled);
    tool.Disabled->setVisible(shown && !enabled);
}

void ToolBar::ShowWaiting(const char* name, int count)
{
    for (Tool& tool : tools_)
        if (tool.Of.Name == QLatin1String(name)) {
            tool.Waiting = count;
            tool.Image->setText(WordOf(tool));
            tool.Disabled->setText(WordOf(tool));
        }
    FitWords();
}

QString ToolBar::WordOf(const Tool& tool)
{
    return T(tool.Of.Caption) + (tool.Waiting == 0 ? QString() : QStringLiteral(" (%1)").arg(tool.Waiting));
}

void ToolBar::ShowWords(bool shown)
{
    imgZoom->hide();
    for (QToolButton* image : findChildren<QToolButton*>()) {
        image->setToolButtonStyle(shown ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
        image->setMinimumWidth(shown ? kToolWidth : 0);
    }
}

/// Hidden twins take no room, so that one of each pair counts.
int ToolBar::WidthWithWords() const
{
    int width = 0;
    for (const Tool& tool : tools_)
        width += std::max(kToolWidth, fontMetrics().horizontalAdvance(WordOf(tool)) + kWordMargin) + kToolGap;
    return width;
}

QSize ToolBar::minimumSizeHint() const
{
    return {static_cast<int>(tools_.size()) * (kIconSize + kWordMargin), kIconSize + kWordMargin};
}

void ToolBar::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    FitWords();
}

void ToolBar::FitWords()
{
    ShowWords(width() >= WidthWithWords() && window()->height() >= kLowWindow);
}

void ToolBar::ShowZoom(const Tool& tool)
{
    hovered_ = &tool.Of;
    imgZoom->setText(tool.Image->text());
    imgZoom->setIcon(tool.Image->icon());
    imgZoom->setToolTip(tool.Image->toolTip());
    imgZoom->setToolButtonStyle(tool.Image->toolButtonStyle());
    SetLook(imgZoom, tool.Image->property("look") == "active" ? "active" : "");
    const QRect place = tool.Image->geometry();
    const int taller = std::max(0, imgZoom->sizeHint().height() - place.height());
    imgZoom->setGeometry(place.adjusted(0, -taller / 2, 0, taller - taller / 2));
    imgZoom->show();
    imgZoom->raise();
}

bool ToolBar::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::Enter)
        for (const Tool& tool : tools_)
            if (tool.Image == target)
                ShowZoom(tool);
    return QFrame::eventFilter(target, event);
}

void ToolBar::leaveEvent(QEvent* event)
{
    imgZoom->hide();
    QFrame::leaveEvent(event);
}
