#include "reference/frm_category_departments_page.h"

#include <algorithm>

namespace
{
constexpr int kDepartmentsHeight = 200;
}

CategoryDepartmentsPage::CategoryDepartmentsPage()
{
    lblAllDepartments = MakeLabel("lblAllDepartments", {"This category is used by all the departments",
                                                        "Cette catégorie est utilisée par tous les départements"});
    optSelectAll =
        MakeButton<QRadioButton>("optSelectAll", {"Select all departments", "Sélectionner tous les départements"});
    optDeselectAll = MakeButton<QRadioButton>("optDeselectAll",
                                              {"De-select all departments", "Dé-sélectionner tous les départements"});
    lstUserDepartments = Named<QListWidget>("lstUserDepartments");
    lstUserDepartments->setMinimumHeight(kDepartmentsHeight);
    fraDepartments = new QWidget;
    auto* departments = new QVBoxLayout(fraDepartments);
    departments->setContentsMargins(0, 0, 0, 0);
    departments->addLayout(
        Headed({"LIST OF THE DEPARTMENTS WHO USE THE CATEGORY", "LISTE DES DÉPARTEMENTS QUI UTILISENT LA CATÉGORIE"},
               lstUserDepartments),
        1);
    departments->addLayout(Row({optSelectAll, optDeselectAll}));
    auto* page = TabLayout(this);
    page->addWidget(lblAllDepartments);
    page->addWidget(fraDepartments, 1);
    connect(optSelectAll, &QRadioButton::clicked, this, [this] { TickAll(Qt::Checked); });
    connect(optDeselectAll, &QRadioButton::clicked, this, [this] { TickAll(Qt::Unchecked); });
}

void CategoryDepartmentsPage::LoadDepartments(const QVector<ListEntry>& departments)
{
    lstUserDepartments->clear();
    for (const ListEntry& department : departments) {
        AddEntry(lstUserDepartments, department.Text, department.RecordID);
        lstUserDepartments->item(lstUserDepartments->count() - 1)->setCheckState(Qt::Unchecked);
    }
}

void CategoryDepartmentsPage::SelectUserDepartments(const QVector<int>& departments)
{
    for (int row = 0; row < lstUserDepartments->count(); ++row) {
        QListWidgetItem* department = lstUserDepartments->item(row);
        department->setCheckState(departments.contains(department->data(Qt::UserRole).toInt()) ? Qt::Checked
                                                                                               : Qt::Unchecked);
    }
    ClearOptions({optSelectAll, optDeselectAll});
}

QVector<int> CategoryDepartmentsPage::UserDepartments() const
{
    QVector<int> departments;
    for (int row = 0; row < lstUserDepartments->count(); ++row)
        if (lstUserDepartments->item(row)->checkState() == Qt::Checked)
            departments << lstUserDepartments->item(row)->data(Qt::UserRole).toInt();
    std::sort(departments.begin(), departments.end());
    return departments;
}

void CategoryDepartmentsPage::ShowList(bool shown)
{
    fraDepartments->setVisible(shown);
    lblAllDepartments->setVisible(!shown);
}

void CategoryDepartmentsPage::TickAll(Qt::CheckState state)
{
    for (int row = 0; row < lstUserDepartments->count(); ++row)
        lstUserDepartments->item(row)->setCheckState(state);
}
