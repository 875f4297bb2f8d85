#pragma once

#include "reference/category_list.h"

#include <QFrame>

#include <functional>
#include <vector>

class QHBoxLayout;
class QPushButton;

/// The legend below the calendar: one label per category in one row, which two buttons shift sideways, and the marks of
/// the time bank and of several categories.
class LegendPane : public QFrame
{
public:
    explicit LegendPane(QWidget* parent = nullptr);

    std::function<void(int categoryID)> CategoryClicked;

    void Show(const QVector<LegendItem>& items);
    /// The name of a category that it shows, empty for another one.
    QString NameOf(int categoryID) const;
    void SetUsable(bool usable);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr int kMostLabels = 50;

    void Shift(int direction);
    void EnableShifting();
    int RoomBeyond() const;

    QFrame* fraLegend = nullptr; ///< the window through which the row of labels is seen
    QWidget* row_ = nullptr;
    std::vector<QPushButton*> lblLegend;
    QVector<LegendItem> items_;
    QPushButton* cmdPreviousCategories = nullptr;
    QPushButton* cmdNextCategories = nullptr;
    int offset_ = 0; ///< pixels that the row stands shifted to the left
};
