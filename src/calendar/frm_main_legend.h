#pragma once

#include "reference/category_list.h"

#include <QFrame>

#include <functional>
#include <vector>

class QHBoxLayout;
class QPushButton;

/// The legend below the calendar: one label per category, as many as have room in one row, which two buttons turn over,
/// and the marks of the time bank and of several categories.
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
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    static constexpr int kMostLabels = 50;

    void cmdPreviousCategories_Click();
    void cmdNextCategories_Click();
    int EndOfRow(int first) const;
    void ShowRow();

    QFrame* fraLegend = nullptr; ///< the room of the row of labels
    QWidget* row_ = nullptr;
    std::vector<QPushButton*> lblLegend;
    QVector<LegendItem> items_;
    QPushButton* cmdPreviousCategories = nullptr;
    QPushButton* cmdNextCategories = nullptr;
    int first_ = 0; ///< the first label of the row
};
