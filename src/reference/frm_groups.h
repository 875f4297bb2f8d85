#pragma once

#include "reference/frm_unit.h"

/// The groups, each under its department, of the fiscal year.
class frmGroups : public frmUnit
{
public:
    explicit frmGroups(QWidget* parent = nullptr);
};
