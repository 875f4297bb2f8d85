#pragma once

#include "foundation/frm_base.h"
#include "reports/lists_content.h"

class FlexGrid;

/// Shows the list of employees or of categories in a grid.
class frmLists : public FormBase
{
public:
    explicit frmLists(ListKind kind, QWidget* parent = nullptr);

private:
    void ShowList(const ReferenceList& list);
    int WidthOfColumn(const ReferenceList& list, int col) const;

    QLabel* lblHeading;
    FlexGrid* flxList;
};
