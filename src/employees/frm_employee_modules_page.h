#pragma once

#include "employees/frm_right_boxes.h"

/// The tab "Accessible modules": one titled box per module, with what it opens.
QWidget* MakeModulesPage(RightBoxes& boxes);
