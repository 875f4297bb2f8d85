#include "reference/frm_organizations.h"

#include "reference/frm_unit_pages.h"

frmOrganizations::frmOrganizations(QWidget* parent) : frmUnit(kOrganizations, new UnitAddressPage, parent) {}
