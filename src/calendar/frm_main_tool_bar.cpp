#include "calendar/frm_main_tool_bar.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace
{
constexpr int kIconSize = 24;
constexpr int kZoomedIconSize = 32;
constexpr int kToolWidth = 96;

struct ToolEntry
{
    const char* Name;
    const char* Picture;
    const char* English;
    const char* French;
    const char* EnglishTip;
    const char* FrenchTip;
    bool EndsGroup;
};

constexpr ToolEntry kTools[] = {
    {"imgCreateSingle", "tool-create-single", "One date", "Une date", "New attendance record on one date",
     "Nouvelle absence à une date", false},
    {"imgCreateMultiple", "tool-create-multiple", "Several dates", "Plusieurs dates",
     "New attendance records on dates marked one by one", "Nouvelles absences à des dates choisies une à une", false},
    {"imgCreateConsecutive", "tool-create-consecutive", "A period", "Une période",
     "New attendance records on consecutive dates", "Nouvelles absences à des dates consécutives", true},
    {"imgSubmit", "tool-submit", "Request", "Demande", "Submit a request for leave", "Soumettre une demande de congé",
     true},
    {"imgModify", "tool-modify", "Modify", "Modifier", "Modify an attendance record", "Modifier une absence", false},
    {"imgRemove", "tool-remove", "Remove", "Supprimer", "Remove attendance records", "Supprimer des absences", true},
    {"imgApprove", "tool-approve", "Approve", "Approuver", "Approve or deny requests for leave",
     "Approuver ou refuser des demandes de congé", false},
    {"imgUpdateSelection", "tool-select-employee", "Employee", "Employé",
     "Select the employee or unit shown on the calendar", "Choisir l'employé ou l'unité dont le calendrier est affiché",
     false},
};

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
    for (const ToolEntry& tool : kTools) {
        const QString name = tool.Name;
        Slot& slot = slots_[name];
        slot.Image = MakeImage(name, tool.Picture);
        slot.Image->installEventFilter(this);
        connect(slot.Image, &QToolButton::clicked, this, [this, name] {
            Hovered(name);
            Clicked();
        });
        slot.Disabled = MakeImage(name + "_DISABLED", tool.Picture);
        slot.Disabled->setEnabled(false);
        slot.Disabled->hide();
        row->addWidget(slot.Image);
        row->addWidget(slot.Disabled);
        if (tool.EndsGroup)
            AddGroupLine(row);
    }
    row->addStretch();

    imgZoom = MakeImage("imgZoom", {});
    imgZoom->setParent(this);
    imgZoom->setIconSize(QSize(kZoomedIconSize, kZoomedIconSize));
    imgZoom->setFocusPolicy(Qt::NoFocus);
    imgZoom->hide();
    connect(imgZoom, &QToolButton::clicked, this, [this] { Clicked(); });
}

QToolButton* ToolBar::MakeImage(const QString& name, const QString& picture)
{
    auto* image = Named<QToolButton>(name);
    image->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    image->setIconSize(QSize(kIconSize, kIconSize));
    image->setMinimumWidth(kToolWidth);
    image->setAutoRaise(true);
    if (!picture.isEmpty())
        image->setIcon(PictureIcon(picture));
    return image;
}

QStringList ToolBar::Tools()
{
    QStringList names;
    for (const ToolEntry& tool : kTools)
        names << tool.Name;
    return names;
}

void ToolBar::LoadCaptions()
{
    for (const ToolEntry& tool : kTools)
        for (QToolButton* image : {slots_[tool.Name].Image, slots_[tool.Name].Disabled}) {
            image->setText(T(tool.English, tool.French));
            image->setToolTip(T(tool.EnglishTip, tool.FrenchTip));
        }
}

void ToolBar::SetTool(const QString& tool, bool shown, bool enabled)
{
    Slot& slot = slots_.at(tool);
    slot.Image->setVisible(shown && enabled);
    slot.Disabled->setVisible(shown && !enabled);
}

void ToolBar::ShowZoom(QToolButton* image)
{
    imgZoom->setText(image->text());
    imgZoom->setIcon(image->icon());
    imgZoom->setToolTip(image->toolTip());
    imgZoom->setGeometry(image->geometry());
    imgZoom->show();
    imgZoom->raise();
    Hovered(image->objectName());
}

void ToolBar::HideZoom()
{
    imgZoom->hide();
    Hovered({});
}

bool ToolBar::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::Enter)
        ShowZoom(static_cast<QToolButton*>(target));
    return QFrame::eventFilter(target, event);
}

void ToolBar::leaveEvent(QEvent* event)
{
    HideZoom();
    QFrame::leaveEvent(event);
}
