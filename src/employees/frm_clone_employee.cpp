#include "employees/frm_clone_employee.h"

frmCloneEmployee::frmCloneEmployee(EmployeeRecord& record, QWidget* parent)
    : FormBase("frmCloneEmployee", parent), record_(record), lstCloneEmployees(Named<QListWidget>("lstCloneEmployees"))
{
    constexpr int kListHeight = 300;
    SetTitle(this, {"Create a new employee record using another employee record as a template",
                    "Créer un dossier d'employé(e) en utilisant le dossier d'un(e) autre employé(e) comme modèle"});
    lstCloneEmployees->setMinimumHeight(kListHeight);
    Page()->addWidget(MakeCard(Headed({"Select the employee whose workplace, schedule, approvers and rights are taken "
                                       "over",
                                       "Sélectionnez l'employé(e) dont le lieu de travail, l'horaire, les approbateurs "
                                       "et les droits sont repris"},
                                      lstCloneEmployees)),
                      1);
    AddEntries(lstCloneEmployees, LoadCloneSources(datAbsence));
    connect(lstCloneEmployees, &QListWidget::itemDoubleClicked, this, &frmCloneEmployee::cmdCloneEmployee_Click);
    LayFoot({AddWayOut({"Create &new employee without template", "Créer un &nouveau dossier sans modèle"},
                       "cmdNewEmployee"),
             AddMainButton("cmdCloneEmployee",
                           {"&Create new employee record using the selected employee",
                            "&Créer le dossier à partir de l'employé(e) sélectionné(e)"},
                           [this] { cmdCloneEmployee_Click(); })});
}

void frmCloneEmployee::cmdCloneEmployee_Click()
{
    TakeTemplate(datAbsence, ChosenID(lstCloneEmployees), record_);
    accept();
}
