#include "reference/frm_departments.h"

#include "reference/frm_unit_pages.h"

frmDepartments::frmDepartments(QWidget* parent) : frmUnit(kDepartments, new UnitParentPage(kDepartments), parent) {}
