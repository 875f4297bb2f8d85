#include "calendar/frm_main_tool_bar.h"

#include "foundation/frm_captions.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace
{
constexpr int kIconSize = 24;
constexpr int kZoomedIconSize = 32;
constexpr int kToolWidth = 96;

void AddGroupLine(QHBoxLayout* row)
{
    auto* line = new QFrame;
    line->setProperty("look", "line");
    line->setFixedWidth(1);
    row->addSpacing(8);
    row->addWidget(line);
    row->addSpacing(8);
}
} // namespace

ToolBar::ToolBar(QWidget* parent) : QFrame(parent)
{
    setObjectName("fraToolBar");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    for (const Command* command : CommandsIn(Place::ToolBar)) {
        if (command->AfterLine)
            AddGroupLine(row);
        const Tool tool{*command, MakeImage(*command, command->Name), MakeImage(*command, command->Name + "_DISABLED")};
        tool.Image->installEventFilter(this);
        connect(tool.Image, &QToolButton::clicked, this, [this, command] { Chosen(*command); });
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

QToolButton* ToolBar::MakeImage(const Command& command, const QString& name)
{
    auto* image = Named<QToolButton>(name);
    image->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    image->setIconSize(QSize(kIconSize, kIconSize));
    image->setMinimumWidth(kToolWidth);
    image->setAutoRaise(true);
    image->setIcon(PictureIcon(command.Picture));
    SetCaption(image, command.Caption);
    SetToolTip(image, command.Tip);
    return image;
}

void ToolBar::ActivateAllowed()
{
    for (const Tool& tool : tools_)
        SetTool(tool, tool.Of.Allowed.Holds());
}

void ToolBar::Deactivate(const QString& usableTool)
{
    imgZoom->hide();
    for (const Tool& tool : tools_)
        SetTool(tool, tool.Of.Name == usableTool);
}

bool ToolBar::Shows(const char* name) const
{
    const auto* image = findChild<QToolButton*>(name);
    return image && image->isVisibleTo(this);
}

void ToolBar::SetTool(const Tool& tool, bool enabled)
{
    const bool shown = tool.Of.Shown.Holds();
    tool.Image->setVisible(shown && enabled);
    tool.Disabled->setVisible(shown && !enabled);
}

void ToolBar::ShowZoom(const Tool& tool)
{
    hovered_ = &tool.Of;
    imgZoom->setText(tool.Image->text());
    imgZoom->setIcon(tool.Image->icon());
    imgZoom->setToolTip(tool.Image->toolTip());
    imgZoom->setGeometry(tool.Image->geometry());
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
