#pragma once

#include "reference/frm_unit.h"

/// The departments, each under its organization, of the fiscal year.
class frmDepartments : public frmUnit
{
public:
    explicit frmDepartments(QWidget* parent = nullptr);
};
