#pragma once

#include <QLayout>

/// The buttons at the foot of a form: the main one at the right, the way out beside it, further commands before them,
/// and what stands apart at the left. What does not fit beside each other goes on below.
class FootLayout : public QLayout
{
public:
    enum class Group
    {
        Left,
        Command,
        WayBack, ///< out of an operation, not of the form
        WayOut
    };

    ~FootLayout() override;

    /// The command that was added last is the main one, unless another one looks so at the moment.
    void Add(QWidget* control, Group group);
    /// The controls as the Tab key meets them: the main one first, the ways out behind the commands.
    QList<QWidget*> TabOrder() const;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Lay({0, 0, width, 0}, false); }
    void setGeometry(const QRect& room) override;
    Qt::Orientations expandingDirections() const override { return {}; }

private:
    struct Member
    {
        QLayoutItem* Item;
        Group In;
    };

    QList<Member> Shown() const;   ///< those that can be seen, from left to right
    QList<Member> InOrder() const; ///< all, from left to right
    int WidthOf(const QList<Member>& line) const;
    int Lay(const QRect& room, bool place) const; ///< returns the height

    QList<Member> members_;
};
