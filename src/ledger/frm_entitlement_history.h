#pragma once

#include "foundation/frm_base.h"
#include "ledger/entitlements.h"

class FlexGrid;

/// Who changed an entitlement when, and from what to what.
class frmEntitlementHistory : public FormBase
{
public:
    frmEntitlementHistory(const EntitlementLine& line, const QString& employee, QWidget* parent = nullptr);

private:
    void ShowChanges(int recordID);

    FlexGrid* flxHistory;
};
