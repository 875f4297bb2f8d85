#pragma once

#include "employees/frm_right_boxes.h"

#include <QWidget>

#include <array>

class QLabel;

/// The tab "Accessible modules": one titled box per module, with what it opens.
class EmployeeModulesPage : public QWidget
{
public:
    explicit EmployeeModulesPage(RightBoxes& boxes);

    void LoadCaptions();

private:
    std::array<QCheckBox*, 5> boxes_{};
    std::array<QLabel*, 5> explanations_{};
};
