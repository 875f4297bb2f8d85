#include "employees/frm_employee_modules_page.h"

namespace
{
constexpr int kExplanationIndent = 23; ///< under the caption of the box

struct ModuleTexts
{
    Text Title;
    Text Explanation;
};

/// In the order of kModuleBoxes.
constexpr ModuleTexts kModules[] = {
    {{"DEPARTMENTS CREATION MODULE", "MODULE DE CRÉATION DES DÉPARTEMENTS"},
     {"If granted access to this module, the user will be authorized to create new departments or modify existing ones",
      "L'usager qui a accès à ce module est autorisé à créer de nouveaux départements et à modifier ceux qui "
      "existent"}},
    {{"GROUPS CREATION MODULE", "MODULE DE CRÉATION DES GROUPES"},
     {"If granted access to this module, the user will be authorized to create new groups or modify existing ones",
      "L'usager qui a accès à ce module est autorisé à créer de nouveaux groupes et à modifier ceux qui existent"}},
    {{"CATEGORIES OF ATTENDANCE CREATION MODULE", "MODULE DE CRÉATION DES CATÉGORIES D'ABSENCES"},
     {"If granted access to this module, the user will be authorized to define new categories of attendance or modify "
      "existing ones",
      "L'usager qui a accès à ce module est autorisé à définir de nouvelles catégories d'absences et à modifier celles "
      "qui existent"}},
    {{"EMPLOYEE ENTITLEMENTS MANAGEMENT MODULE", "MODULE DE GESTION DU TEMPS ALLOUÉ AUX EMPLOYÉS"},
     {"If granted access to this module, the user will be authorized to update the annual entitlements of employees at "
      "a level lower than his own",
      "L'usager qui a accès à ce module est autorisé à mettre à jour le temps alloué annuellement aux employés d'un "
      "niveau inférieur au sien"}},
    {{"EMPLOYEES CREATION MODULE", "MODULE DE CRÉATION DES EMPLOYÉS"},
     {"If granted access to this module, the user will be authorized to create new employee records or modify existing "
      "ones. The user will only be allowed to define security profiles equivalent or inferior to his own. The user "
      "will only be able to create or modify employee records at a level lower than his own.",
      "L'usager qui a accès à ce module est autorisé à créer de nouveaux dossiers d'employés et à modifier ceux qui "
      "existent. Il ne peut définir que des profils de sécurité équivalents ou inférieurs au sien. Il ne peut créer ou "
      "modifier que les dossiers d'employés d'un niveau inférieur au sien."}},
};

QFrame* ModuleCard(RightBoxes& boxes, const ProfileBox& module, const ModuleTexts& texts)
{
    QCheckBox* box = boxes.Make(module, texts.Title);
    QFont bold = box->font();
    bold.setBold(true);
    box->setFont(bold);
    auto* explanation = WrappedLabel(QString(module.Name).replace("chk", "lbl"), texts.Explanation);
    explanation->setIndent(kExplanationIndent);
    auto* card = new QVBoxLayout;
    card->addWidget(box);
    card->addWidget(explanation);
    return MakeCard(card);
}
} // namespace

QWidget* MakeModulesPage(RightBoxes& boxes)
{
    auto* page = new QWidget;
    QVBoxLayout* cards = TabLayout(page);
    for (std::size_t i = 0; i < kModuleBoxes.size(); ++i)
        cards->addWidget(ModuleCard(boxes, kModuleBoxes[i], kModules[i]));
    cards->addStretch();
    return page;
}
