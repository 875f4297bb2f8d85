#pragma once

#include "reference/frm_unit.h"

/// The organizations, with their addresses, of the fiscal year.
class frmOrganizations : public frmUnit
{
public:
    explicit frmOrganizations(QWidget* parent = nullptr);
};
