#include "employees/frm_clone_employee.h"

#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QListWidget>

namespace
{
constexpr int kListHeight = 300;
}

frmCloneEmployee::frmCloneEmployee(EmployeeRecord& record, QWidget* parent) : QDialog(parent), record_(record)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    LoadEmployees();
}

void frmCloneEmployee::BuildControls()
{
    setObjectName("frmCloneEmployee");
    lblInstructions = AsHead(Named<QLabel>("lblInstructions"));
    lstCloneEmployees = Named<QListWidget>("lstCloneEmployees");
    lstCloneEmployees->setMinimumHeight(kListHeight);
    lblInstructions->setBuddy(lstCloneEmployees);
    cmdCloneEmployee = AsMainButton(Named<QPushButton>("cmdCloneEmployee"));
    cmdNewEmployee = Named<QPushButton>("cmdNewEmployee");

    auto* content = new QVBoxLayout;
    content->setSpacing(10);
    content->addWidget(lblInstructions);
    content->addWidget(lstCloneEmployees, 1);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdNewEmployee, cmdCloneEmployee}));
}

void frmCloneEmployee::ConnectControls()
{
    connect(lstCloneEmployees, &QListWidget::itemSelectionChanged, this, &frmCloneEmployee::lstCloneEmployees_Click);
    connect(lstCloneEmployees, &QListWidget::itemDoubleClicked, this, &frmCloneEmployee::cmdCloneEmployee_Click);
    connect(cmdCloneEmployee, &QPushButton::clicked, this, &frmCloneEmployee::cmdCloneEmployee_Click);
    connect(cmdNewEmployee, &QPushButton::clicked, this, &QDialog::reject);
}

void frmCloneEmployee::LoadCaptions()
{
    setWindowTitle(T("Create a new employee record using another employee record as a template",
                     "Créer un dossier d'employé(e) en utilisant le dossier d'un(e) autre employé(e) comme modèle"));
    lblInstructions->setText(T("Select the employee whose workplace, schedule, approvers and rights are taken over",
                               "Sélectionnez l'employé(e) dont le lieu de travail, l'horaire, les approbateurs et les "
                               "droits sont repris"));
    lstCloneEmployees->setAccessibleName(windowTitle());
    cmdCloneEmployee->setText(T("&Create new employee record using the selected employee",
                                "&Créer le dossier à partir de l'employé(e) sélectionné(e)"));
    cmdNewEmployee->setText(T("Create &new employee without template", "Créer un &nouveau dossier sans modèle"));
}

void frmCloneEmployee::LoadEmployees()
{
    for (const CloneSource& source : LoadCloneSources(datAbsence)) {
        auto* line = new QListWidgetItem(source.Listed, lstCloneEmployees);
        line->setData(Qt::UserRole, source.RecordID);
    }
}

void frmCloneEmployee::lstCloneEmployees_Click()
{
    const QList<QListWidgetItem*> selected = lstCloneEmployees->selectedItems();
    SourceEmployeeID = selected.isEmpty() ? 0 : selected.first()->data(Qt::UserRole).toInt();
}

void frmCloneEmployee::cmdCloneEmployee_Click()
{
    TakeTemplate(datAbsence, SourceEmployeeID, record_);
    SourceEmployeeID = 0;
    accept();
}
