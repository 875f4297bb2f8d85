#include "platform/controls/foot_layout.h"

#include <QPushButton>

#include <algorithm>
#include <numeric>
#include <utility>

FootLayout::~FootLayout()
{
    for (const Member& member : members_)
        delete member.Item;
}

void FootLayout::Add(QWidget* control, Group group)
{
    addChildWidget(control);
    members_ << Member{new QWidgetItem(control), group};
    invalidate();
}

void FootLayout::addItem(QLayoutItem* item)
{
    members_ << Member{item, Group::Command};
}

int FootLayout::count() const
{
    return static_cast<int>(members_.size());
}

QLayoutItem* FootLayout::itemAt(int index) const
{
    return index >= 0 && index < members_.size() ? members_[index].Item : nullptr;
}

QLayoutItem* FootLayout::takeAt(int index)
{
    return index >= 0 && index < members_.size() ? members_.takeAt(index).Item : nullptr;
}

QList<FootLayout::Member> FootLayout::InOrder() const
{
    QList<Member> groups[4];
    for (const Member& member : members_)
        groups[static_cast<int>(member.In)] << member;
    auto& [left, commands, waysBack, waysOut] = groups;
    waysOut = waysBack + waysOut;
    if (commands.isEmpty())
        return left + waysOut;
    const auto isMain = [](const Member& member) { return member.Item->widget()->property("look") == "main"; };
    if (const auto main = std::find_if(commands.begin(), commands.end(), isMain); main != commands.end())
        std::swap(*main, commands.last());
    const Member main = commands.takeLast();
    return left + commands + waysOut + QList<Member>{main};
}

QList<QWidget*> FootLayout::TabOrder() const
{
    QList<QWidget*> options, commands, waysOut, apart;
    for (const Member& member : InOrder()) {
        QWidget* control = member.Item->widget();
        const bool isButton = qobject_cast<QPushButton*>(control);
        if (member.In == Group::Left)
            (isButton ? apart : options) << control;
        else
            (member.In == Group::Command ? commands : waysOut).prepend(control);
    }
    return options + commands + waysOut + apart;
}

QList<FootLayout::Member> FootLayout::Shown() const
{
    QList<Member> shown = InOrder();
    shown.removeIf([](const Member& member) { return member.Item->isEmpty(); });
    return shown;
}

int FootLayout::WidthOf(const QList<Member>& line) const
{
    return std::accumulate(line.begin(), line.end(), spacing() * std::max<int>(static_cast<int>(line.size()) - 1, 0),
                           [](int width, const Member& member) { return width + member.Item->sizeHint().width(); });
}

QSize FootLayout::sizeHint() const
{
    int height = 0;
    for (const Member& member : Shown())
        height = std::max(height, member.Item->sizeHint().height());
    return {WidthOf(Shown()), height};
}

QSize FootLayout::minimumSize() const
{
    QSize least;
    for (const Member& member : Shown())
        least = least.expandedTo(member.Item->minimumSize());
    return least;
}

void FootLayout::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    Lay(room, true);
}

/// Each line is filled from the left and stands at the right; on the first one, what stands apart begins at the left.
int FootLayout::Lay(const QRect& room, bool place) const
{
    QList<Member> left = Shown();
    int y = room.top();
    while (!left.isEmpty()) {
        QList<Member> line;
        do
            line << left.takeFirst();
        while (!left.isEmpty() && WidthOf(line + QList<Member>{left.first()}) <= room.width());
        int height = 0;
        for (const Member& member : line)
            height = std::max(height, member.Item->sizeHint().height());
        int x = room.left();
        bool apart = true;
        const int rest = std::max(room.width() - WidthOf(line), 0);
        for (const Member& member : line) {
            if (std::exchange(apart, apart && member.In == Group::Left) && member.In != Group::Left)
                x += rest;
            const QSize size(std::min(member.Item->sizeHint().width(), room.width()), height);
            if (place)
                member.Item->setGeometry({{x, y}, size});
            x += size.width() + spacing();
        }
        y += height + (left.isEmpty() ? 0 : spacing());
    }
    return y - room.top();
}
