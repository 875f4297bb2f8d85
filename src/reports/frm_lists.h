#pragma once

#include "reports/lists_content.h"

#include <QDialog>

class FlexGrid;
class QLabel;
class QPushButton;

/// Shows the list of employees or of categories in a grid.
class frmLists : public QDialog
{
public:
    explicit frmLists(ListKind kind, QWidget* parent = nullptr);

private:
    void BuildControls();
    void LoadCaptions();
    void LoadRecords();
    void LoadEmployees();
    void LoadCategories();
    void ShowList(const ReferenceList& list);
    int WidthOfColumn(const ReferenceList& list, int col) const;

    DataControl datAbsence{"frmLists"};
    const ListKind kind_;
    QLabel* lblHeading = nullptr;
    FlexGrid* flxList = nullptr;
    QPushButton* cmdOK = nullptr;
};
