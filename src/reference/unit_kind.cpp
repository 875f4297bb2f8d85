#include "reference/unit_kind.h"

const UnitKind kOrganizations = {
    "frmOrganizations",
    kOrganizationRows,
    &UnitRow::OrganizationID,
    "OrganizationID",
    "OrganizationEnglishName",
    "OrganizationFrenchName",
    nullptr,
    nullptr,
    {"Departments", "Groups"},
    true,
    true,
    {
        .Caption = {"Organizations", "Organisations"},
        .ListLabel = {"Organizations of fiscal year {FiscalYearName}",
                      "Organisations de l'année fiscale {FiscalYearName}"},
        .ListPrompt = {"Select an organization", "Sélectionnez une organisation"},
        .EnglishNameLabel = {"Organization's English name", "Nom anglais de l'organisation (facultatif)"},
        .FrenchNameLabel = {"Organization's French name (optional)", "Nom français de l'organisation"},
        .ParentLabel = {},
        .NoParent = {},
        .NameMissing = {"You must specify a name for the organization!",
                        "Vous devez spécifier le nom de l'organisation!"},
        .EnglishNameTaken = {"The English name you specified for the organization has already been used in fiscal "
                             "year {FiscalYearName}!",
                             "Le nom anglais de l'organisation a déjà été utilisé au cours de l'année fiscale "
                             "{FiscalYearName}!"},
        .FrenchNameTaken = {"The French name you specified for the organization has already been used in fiscal year "
                            "{FiscalYearName}!",
                            "Le nom français de l'organisation a déjà été utilisé au cours de l'année fiscale "
                            "{FiscalYearName}!"},
        .ParentMissing = {},
        .AddQuestion = {"Add the following organization to your database?",
                        "Souhaitez-vous ajouter l'organisation suivante dans votre  banque de données?"},
        .Names = {"Organization English name: {english}\r\nOrganization French name:  {french}",
                  "Nom anglais de l'organisation:  {english}\r\nNom français de l'organisation:{french}"},
        .Added = {"The new organization has been added to your database.",
                  "La nouvelle organisation a été ajoutée dans votre banque de données."},
        .InactiveRemark = {"inactive", "inactive"},
        .InactiveTitle = {"ORGANIZATION INACTIVE:", "ORGANISATION INACTIVE:"},
        .ReactivateQuestion = {"The selected organization is currently inactive. In order to modify it, you must "
                               "first re-activate it.\r\n\r\nDo you wish to reactivate «{name}»?\r\n\r\nNOTE: "
                               "Reactivating an organization will cause all the departments, groups and employees "
                               "within it to be reactivated as well!",
                               "L'organisation sélectionnée est inactive. Avant de pouvoir la modifier vous devrez "
                               "d'abord la réactiver.\r\n\r\nSouhaitez-vous réactiver «{name}»?\r\n\r\nN.B.: En "
                               "réactivant une organisation vous réactivez en même temps tous les départements, "
                               "groupes et employés à l'intérieur de cette organisation."},
        .MoveQuestion = {},
        .StillEmployed = {"An organization cannot be deactivated as long as there are employees associated to "
                          "it!\r\n\r\nTo deactivate {name}, you must first deactivate or transfer all its employees "
                          "to another organization.",
                          "Vous ne pouvez désactiver une organisation si elle contient des employés actifs!\r\n\r\n"
                          "Avant de désactiver {name}, vous devrez d'abord désactiver ou transférer tous les employés "
                          "contenus dans cette organisation."},
        .DeactivateQuestion = {"Deactivating an organization will cause all the departments and groups within it to "
                               "be deactivated as well!\r\n\r\nAre you sure you want to deactivate «{name}»?",
                               "Si vous désactivez une organisation, tous les départements et les groupes  associés à "
                               "cette organisation seront également désactivés!\r\n\r\nÊtes-vous sur de vouloir "
                               "désactiver «{name}»?"},
        .Deactivated = {"The selected organization and all associated records have been deactivated.",
                        "L'organisation sélectionnée et tous les enregistrements qui en découlent ont été désactivés."},
    },
};

const UnitKind kDepartments = {
    "frmDepartments",
    kDepartmentRows,
    &UnitRow::DepartmentID,
    "DepartmentID",
    "DepartmentEnglishName",
    "DepartmentFrenchName",
    &kOrganizations,
    "lstOrganizations",
    {"Groups"},
    true,
    false,
    {
        .Caption = {"Departments", "Départements"},
        .ListLabel = {"Departments of fiscal year {FiscalYearName}",
                      "Départements de l'année fiscale {FiscalYearName}"},
        .ListPrompt = {"Select a department", "Sélectionnez un département"},
        .EnglishNameLabel = {"Department's English name", "Nom anglais du département (facultatif)"},
        .FrenchNameLabel = {"Department's French name (optional)", "Nom français du département"},
        .ParentLabel = {"Organization under which the department is grouped",
                        "Organisation sous laquelle le département est répertorié"},
        .NoParent = {"Before you can update your list of departments you must first set up at least one organization "
                     "in fiscal year {FiscalYearName}!",
                     "Avant de pouvoir mettre à jour votre liste de départements vous devez d'abord créer au moins une "
                     "organisation dans l'année fiscale {FiscalYearName}!"},
        .NameMissing = {"You must specify a name for the department!", "Vous devez spécifier le nom du département!"},
        .EnglishNameTaken = {"The English name you specified for the department has already been used in fiscal year "
                             "{FiscalYearName}!",
                             "Le nom anglais du département a déjà été utilisé au cours de l'année fiscale "
                             "{FiscalYearName}!"},
        .FrenchNameTaken = {"The French name you specified for the department has already been used in fiscal year "
                            "{FiscalYearName}!",
                            "Le nom français du département a déjà été utilisé au cours de l'année fiscale "
                            "{FiscalYearName}!"},
        .ParentMissing =
            {"You must specify the organization under which the department is grouped!",
             "Vous devez spécifier le nom de l'organisation sous laquelle le département sera répertorié!"},
        .AddQuestion = {"Add the following department to your database?",
                        "Souhaitez-vous ajouter le département suivant dans votre  banque de données?"},
        .Names = {"Department English name: {english}\r\nDepartment French name:  {french}",
                  "Nom anglais du département:  {english}\r\nNom français du département: {french}"},
        .Added = {"The new department has been added to your database.",
                  "Le nouveau département a été ajouté dans votre banque de données."},
        .InactiveRemark = {"inactive", "inactif"},
        .InactiveTitle = {"DEPARTMENT INACTIVE:", "DÉPARTEMENT INACTIF:"},
        .ReactivateQuestion = {"The selected department is currently inactive. In order to modify it, you must first "
                               "re-activate it.\r\n\r\nDo you wish to reactivate «{name}»?\r\n\r\nNOTE: Reactivating a "
                               "department will cause all the groups and employees within it to be reactivated as "
                               "well!",
                               "Le département sélectionné est inactif. Avant de pouvoir le modifier vous devrez "
                               "d'abord le réactiver.\r\n\r\nSouhaitez-vous réactiver «{name}»?\r\n\r\nN.B.: En "
                               "réactivant un département vous réactivez en même temps tous les groupes et employés à "
                               "l'intérieur de ce département."},
        .MoveQuestion = {"You are moving «{name}» under a new organization! If you proceed with this modification, all "
                         "the employees currently associated to this department will be assigned to «{parent}» as "
                         "well.\r\n\r\nDo you wish to proceed with this modification?",
                         "Vous êtes sur le point d'assigner «{name}» à une nouvelle organisation! Si vous effectuez "
                         "cette modification tous les employés présentement liés à ce département seront également "
                         "regroupés sous «{parent}».\r\n\r\nSouhaitez-vous effectuer cette modification?"},
        .StillEmployed = {"A department cannot be deactivated as long as there are employees associated to "
                          "it!\r\n\r\nTo deactivate {name}, you must first deactivate or transfer all its employees to "
                          "another department.",
                          "Vous ne pouvez désactiver un département s'il contient des employés actifs!\r\n\r\nAvant de "
                          "désactiver {name}, vous devrez d'abord désactiver ou transférer tous les employés contenus "
                          "dans ce département."},
        .DeactivateQuestion = {"Deactivating a department will cause all the groups within it to be deactivated as "
                               "well!\r\n\r\nAre you sure you want to deactivate «{name}»?",
                               "Si vous désactivez un département, tous les groupes associés à ce département seront "
                               "également désactivés!\r\n\r\nÊtes-vous sur de vouloir désactiver «{name}»?"},
        .Deactivated = {"The selected department and all associated records have been deactivated.",
                        "Le département sélectionné et tous les enregistrements qui en découlent ont été désactivés."},
    },
};

const UnitKind kGroups = {
    "frmGroups",
    kGroupRows,
    nullptr,
    "GroupID",
    "GroupEnglishName",
    "GroupFrenchName",
    &kDepartments,
    "lstDepartments",
    {},
    false,
    false,
    {
        .Caption = {"Groups", "Groupes"},
        .ListLabel = {"Groups of fiscal year {FiscalYearName}", "Groupes de l'année fiscale {FiscalYearName}"},
        .ListPrompt = {"Select a group", "Sélectionnez un groupe"},
        .EnglishNameLabel = {"Group's English name", "Nom anglais du groupe (facultatif)"},
        .FrenchNameLabel = {"Group's French name (optional)", "Nom français du groupe"},
        .ParentLabel = {"Department to which the group is associated",
                        "Département sous lequel le groupe est répertorié"},
        .NoParent = {"Before you can update your list of groups you must first set up at least one department in "
                     "fiscal year {FiscalYearName}!",
                     "Avant de pouvoir mettre à jour votre liste de groupes vous devez d'abord créer au moins un "
                     "département dans l'année fiscale {FiscalYearName}!"},
        .NameMissing = {"You must specify a name for the group!", "Vous devez spécifier le nom du groupe!"},
        .EnglishNameTaken = {},
        .FrenchNameTaken = {},
        .ParentMissing = {"You must specify to which department the group is associated!",
                          "Vous devez spécifier le nom du département sous lequel le groupe sera répertorié!"},
        .AddQuestion = {"Add the following group to your database?",
                        "Souhaitez-vous ajouter le groupe suivant dans votre  banque de données?"},
        .Names = {"Group English name: {english}\r\nGroup French name:  {french}",
                  "Nom anglais du groupe:  {english}\r\nNom français du groupe: {french}"},
        .Added = {"The new group has been added to your database.",
                  "Le nouveau groupe a été ajouté dans votre banque de données."},
        .InactiveRemark = {"inactive", "inactif"},
        .InactiveTitle = {"GROUP INACTIVE:", "GROUPE INACTIF:"},
        .ReactivateQuestion = {"The selected group is currently inactive. In order to modify it, you must first "
                               "re-activate it.\r\n\r\nDo you wish to reactivate «{name}»?\r\n\r\nNOTE: Reactivating a "
                               "group will cause all the employees within it to be reactivated as well!",
                               "Le groupe sélectionné est inactif. Avant de pouvoir le modifier vous devrez d'abord le "
                               "réactiver.\r\n\r\nSouhaitez-vous réactiver «{name}»?\r\n\r\nN.B.: En réactivant un "
                               "groupe vous réactivez en même temps tous les employés à l'intérieur de ce groupe."},
        .MoveQuestion = {"You are moving «{name}» under a new department! If you proceed with this modification, all "
                         "the employees currently associated to this group will be assigned to «{parent}» as "
                         "well.\r\n\r\nDo you wish to proceed with this modification?",
                         "Vous êtes sur le point d'assigner «{name}» à un nouveau département! Si vous effectuez cette "
                         "modification tous les employés présentement liés à ce groupe seront également regroupés sous "
                         "«{parent}».\r\n\r\nSouhaitez-vous effectuer cette modification?"},
        .StillEmployed = {"A group cannot be deactivated as long as there are employees associated to it!\r\n\r\nTo "
                          "deactivate {name}, you must first deactivate or transfer all its employees to another "
                          "group.",
                          "Vous ne pouvez désactiver un groupe s'il contient des employés actifs!\r\n\r\nAvant de "
                          "désactiver {name}, vous devrez d'abord désactiver ou transférer tous les employés contenus "
                          "dans ce groupe."},
        .DeactivateQuestion = {"Are you sure you want to deactivate «{name}»?",
                               "Êtes-vous sur de vouloir désactiver «{name}»?"},
        .Deactivated = {"The selected group and all associated employee records have been deactivated.",
                        "Le groupe sélectionné et tous les employés qui en font partie ont été désactivés."},
    },
};

const std::array<AddressField, kAddressLines> kAddressFields = {{
    {"txtAddressLine1",
     &UnitRow::AddressLine1,
     100,
     {"Address (line 1)", "Adresse (ligne 1)"},
     {"You must specify an address for the organization!", "Vous devez spécifier l'adresse de l'organisation!"}},
    {"txtAddressLine2", &UnitRow::AddressLine2, 100, {"Address (line 2)", "Adresse (ligne 2)"}, {}},
    {"txtRoomNumber", &UnitRow::Suite, 15, {"Room or suite", "Bureau"}, {}},
    {"txtCity",
     &UnitRow::City,
     75,
     {"City", "Ville"},
     {"You must specify a city for the organization!", "Vous devez spécifier la ville où est située l'organisation!"}},
    {"txtState",
     &UnitRow::StateProvince,
     75,
     {"State or province", "État ou province"},
     {"You must specify a state or a province for the organization!",
      "Vous devez spécifier l'état ou la province est située l'organisation!"}},
    {"txtCountry",
     &UnitRow::Country,
     75,
     {"Country", "Pays"},
     {"You must specify a country for the organization!",
      "Vous devez spécifier le pays où est située l'organisation!"}},
    {"txtZipCode", &UnitRow::ZipCode, 20, {"Zip or postal code", "Code postal"}, {}},
}};
