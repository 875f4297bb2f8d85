#include "employees/frm_employee_modules_page.h"

#include "employees/frm_employee_kit.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace
{
constexpr int kExplanationIndent = 23; ///< under the caption of the box

struct ModuleTexts
{
    const char* EnglishTitle;
    const char* FrenchTitle;
    const char* English;
    const char* French;
};

/// In the order of kModuleBoxes.
constexpr ModuleTexts kModules[] = {
    {"DEPARTMENTS CREATION MODULE", "MODULE DE CRÉATION DES DÉPARTEMENTS",
     "If granted access to this module, the user will be authorized to create new departments or modify existing ones",
     "L'usager qui a accès à ce module est autorisé à créer de nouveaux départements et à modifier ceux qui existent"},
    {"GROUPS CREATION MODULE", "MODULE DE CRÉATION DES GROUPES",
     "If granted access to this module, the user will be authorized to create new groups or modify existing ones",
     "L'usager qui a accès à ce module est autorisé à créer de nouveaux groupes et à modifier ceux qui existent"},
    {"CATEGORIES OF ATTENDANCE CREATION MODULE", "MODULE DE CRÉATION DES CATÉGORIES D'ABSENCES",
     "If granted access to this module, the user will be authorized to define new categories of attendance or modify "
     "existing ones",
     "L'usager qui a accès à ce module est autorisé à définir de nouvelles catégories d'absences et à modifier celles "
     "qui existent"},
    {"EMPLOYEE ENTITLEMENTS MANAGEMENT MODULE", "MODULE DE GESTION DU TEMPS ALLOUÉ AUX EMPLOYÉS",
     "If granted access to this module, the user will be authorized to update the annual entitlements of employees at "
     "a level lower than his own",
     "L'usager qui a accès à ce module est autorisé à mettre à jour le temps alloué annuellement aux employés d'un "
     "niveau inférieur au sien"},
    {"EMPLOYEES CREATION MODULE", "MODULE DE CRÉATION DES EMPLOYÉS",
     "If granted access to this module, the user will be authorized to create new employee records or modify existing "
     "ones. The user will only be allowed to define security profiles equivalent or inferior to his own. The user will "
     "only be able to create or modify employee records at a level lower than his own.",
     "L'usager qui a accès à ce module est autorisé à créer de nouveaux dossiers d'employés et à modifier ceux qui "
     "existent. Il ne peut définir que des profils de sécurité équivalents ou inférieurs au sien. Il ne peut créer ou "
     "modifier que les dossiers d'employés d'un niveau inférieur au sien."},
};
} // namespace

EmployeeModulesPage::EmployeeModulesPage(RightBoxes& boxes)
{
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kTabMargin, kTabMargin, kTabMargin, kTabMargin);
    page->setSpacing(kTabMargin);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = boxes.Make(kModuleBoxes[i]);
        QFont bold = boxes_[i]->font();
        bold.setBold(true);
        boxes_[i]->setFont(bold);
        explanations_[i] = Named<QLabel>(QString(kModuleBoxes[i].Name).replace("chk", "lbl"));
        explanations_[i]->setWordWrap(true);
        explanations_[i]->setIndent(kExplanationIndent);
        auto* card = new QVBoxLayout;
        card->addWidget(boxes_[i]);
        card->addWidget(explanations_[i]);
        page->addWidget(MakeCard(card));
    }
    page->addStretch();
}

void EmployeeModulesPage::LoadCaptions()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->setText(T(kModules[i].EnglishTitle, kModules[i].FrenchTitle));
        explanations_[i]->setText(T(kModules[i].English, kModules[i].French));
    }
}
