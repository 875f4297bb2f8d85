#pragma once

#include <QWidget>

#include <array>

class QCheckBox;

/// Seven check boxes in a row, chkWeekday(0) Sunday to chkWeekday(6) Saturday, in the user's language.
class WeekdayBoxes : public QWidget
{
    Q_OBJECT

public:
    explicit WeekdayBoxes(QWidget* parent = nullptr);

    void SetChecked(const std::array<bool, 7>& weekdays);
    std::array<bool, 7> Checked() const;
    /// True when some day is checked; otherwise says that one must be.
    bool SomeDayIsChecked() const;

signals:
    void Changed();

private:
    std::array<QCheckBox*, 7> chkWeekday{};
};
