#include "reference/frm_groups.h"

#include "reference/frm_unit_pages.h"

frmGroups::frmGroups(QWidget* parent) : frmUnit(kGroups, new UnitParentPage(kGroups), parent) {}
