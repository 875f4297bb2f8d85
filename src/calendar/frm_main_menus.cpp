#include "calendar/frm_main_menus.h"

#include "calendar/access_rules.h"
#include "foundation/not_yet.h"
#include "foundation/texts.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <vector>

namespace
{
struct MenuEntry
{
    QString Name;   ///< empty: a line between groups
    QString Parent; ///< empty: a menu of the bar
    const char* English = "";
    const char* French = "";
    bool HasEntries = false;
    QKeySequence Shortcut = {};
};

const std::vector<MenuEntry> kFileAndReports = {
    {"mnuFile", "", "&File", "&Fichier", true},
    {"mnuFileOrganizations", "mnuFile", "&Organizations...", "&Organisations..."},
    {"mnuFileDepartments", "mnuFile", "&Departments...", "&Départements..."},
    {"mnuFileGroups", "mnuFile", "&Groups...", "&Groupes..."},
    {"", "mnuFile"},
    {"mnuFileEmployees", "mnuFile", "&Employees...", "&Employés...", false, {Qt::CTRL | Qt::Key_E}},
    {"mnuFileEntitlements", "mnuFile", "E&ntitlements...", "&Temps alloué..."},
    {"mnuFileCategories", "mnuFile", "&Categories of attendance...", "&Catégories d'absentéisme..."},
    {"mnuFileHolidays", "mnuFile", "&Statutory holidays...", "Congés &fériés..."},
    {"", "mnuFile"},
    {"mnuFilePrintCalendar",
     "mnuFile",
     "&Print calendar...",
     "&Imprimer le calendrier...",
     false,
     {Qt::CTRL | Qt::Key_P}},
    {"mnuFilePrintRequest", "mnuFile", "Print &request for leave form...", "Imprimer un formulaire de de&mande..."},
    {"", "mnuFile"},
    {"mnuFileDatabaseLocation", "mnuFile", "Database &location...", "&Localisation de la banque de données..."},
    {"mnuFileNewDatabase", "mnuFile", "Connect to another d&atabase...", "Changer de &banque de données..."},
    {"", "mnuFile"},
    {"mnuFileExit", "mnuFile", "E&xit", "&Quitter", false, {Qt::CTRL | Qt::Key_Q}},
    {"mnuReports", "", "&Reports", "&Rapports", true},
};

const std::vector<MenuEntry> kScheduleToHelp = {
    {"", "mnuReports"},
    {"mnuReportsFluctuation", "mnuReports", "&Fluctuation...", "&Fluctuation..."},
    {"mnuSchedule", "", "S&chedule", "&Horaire", true},
    {"mnuSchedule_Global", "mnuSchedule", "&Global...", "&Global..."},
    {"mnuSchedule_Org", "mnuSchedule", "&Organization...", "&Organisation..."},
    {"mnuSchedule_Dept", "mnuSchedule", "&Department...", "&Département..."},
    {"mnuSchedule_Group", "mnuSchedule", "G&roup...", "G&roupe..."},
    {"mnuBlocked", "", "&Blocked days", "&Jours bloqués", true},
    {"mnuBlocked_Global", "mnuBlocked", "&Global", "&Global"},
    {"mnuBlocked_Org", "mnuBlocked", "&Organization", "&Organisation"},
    {"mnuBlocked_Dept", "mnuBlocked", "&Department", "&Département"},
    {"mnuBlocked_Group", "mnuBlocked", "G&roup", "G&roupe"},
    {"mnuBlocked_Individual", "mnuBlocked", "&Individual", "&Individuel"},
    {"mnuSpecial", "", "&Special", "&Spécial", true},
    {"mnuSpecialDisplayApproved", "mnuSpecial", "Display &approved records", "&Afficher les absences approuvées"},
    {"mnuSpecialDisplayPending", "mnuSpecial", "Display &pending requests", "Afficher les &demandes non traitées"},
    {"", "mnuSpecial"},
    {"mnuSpecialSwitchLanguage", "mnuSpecial", "&Français", "En&glish", false, {Qt::CTRL | Qt::Key_L}},
    {"mnuSpecialChangePassword", "mnuSpecial", "C&hange password...", "Changer de &mot-clé..."},
    {"mnuSpecialUpdateAdminInfo", "mnuSpecial", "A&dministrator profile...", "&Profil de l'administrateur..."},
    {"mnuSpecialSpecifyMailerProgram", "mnuSpecial", "&Mail program...", "Programme de &courriel..."},
    {"", "mnuSpecial"},
    {"mnuSpecialFiscalYear", "mnuSpecial", "Fiscal &year", "Année &fiscale", true},
    {"mnuSpecialFiscalYearCreate", "mnuSpecialFiscalYear", "&Create...", "&Créer..."},
    {"mnuSpecialFiscalYearRename", "mnuSpecialFiscalYear", "&Rename...", "&Renommer..."},
    {"mnuSpecialFiscalYearClose", "mnuSpecialFiscalYear", "C&lose...", "&Fermer..."},
    {"mnuSpecialFiscalYearArchive", "mnuSpecialFiscalYear", "&Archive", "&Archiver"},
    {"", "mnuSpecial"},
    {"mnuSpecialBatchUpdates", "mnuSpecial", "&Batch updates...", "Mises à &jour en lot..."},
    {"mnuSpecialExportEmployee", "mnuSpecial", "&Export an employee...", "&Exporter un employé..."},
    {"mnuSpecialImportEmployee", "mnuSpecial", "&Import an employee...", "&Importer un employé..."},
    {"mnuHelp", "", "&Help", "&Aide", true},
    {"mnuHelpTutorial", "mnuHelp", "On-line &tutorial", "&Manuel d'aide en ligne", false, {Qt::Key_F1}},
    {"mnuHelpAbout", "mnuHelp", "&About Tarvell...", "À &propos de Tarvell..."},
};

std::vector<MenuEntry> AllEntries()
{
    std::vector<MenuEntry> entries = kFileAndReports;
    for (const ReportFamily& family : kReportFamilies) {
        entries.push_back({family.Name, "mnuReports", family.English, family.French, true});
        for (const ReportScope& scope : kReportScopes)
            entries.push_back({ReportEntry(family, scope), family.Name, scope.English, scope.French});
    }
    entries.insert(entries.end(), kScheduleToHelp.begin(), kScheduleToHelp.end());
    return entries;
}

const std::vector<MenuEntry>& Entries()
{
    static const std::vector<MenuEntry> entries = AllEntries();
    return entries;
}

bool HasNoBehaviour(const QString& name)
{
    return name.startsWith("mnuBlocked") || name == "mnuSpecialFiscalYearArchive";
}
} // namespace

MainMenus::MainMenus(QMenuBar* bar, const Commands& commands)
{
    AddEntries(bar, commands);
    for (const char* name : {"mnuSpecialDisplayApproved", "mnuSpecialDisplayPending"})
        actions_[name]->setCheckable(true);
}

void MainMenus::AddEntries(QMenuBar* bar, const Commands& commands)
{
    QHash<QString, QMenu*> menus;
    for (const MenuEntry& entry : Entries()) {
        QMenu* parent = menus.value(entry.Parent);
        if (entry.Name.isEmpty()) {
            parent->addSeparator();
        } else if (entry.HasEntries) {
            QMenu* menu = parent ? parent->addMenu(QString()) : bar->addMenu(QString());
            menu->menuAction()->setObjectName(entry.Name);
            menus[entry.Name] = menu;
            actions_[entry.Name] = menu->menuAction();
        } else {
            QAction* action = AddEntry(entry.Name, commands);
            action->setShortcut(entry.Shortcut);
            action->setParent(parent);
            parent->addAction(action);
        }
    }
}

QAction* MainMenus::AddEntry(const QString& name, const Commands& commands)
{
    auto* action = new QAction;
    action->setObjectName(name);
    actions_[name] = action;
    const auto command = commands.value(name);
    QObject::connect(action, &QAction::triggered, action, [name, command] {
        if (command)
            command();
        else if (!HasNoBehaviour(name))
            TellNotYet(name);
    });
    return action;
}

void MainMenus::LoadCaptions()
{
    for (const MenuEntry& entry : Entries())
        if (!entry.Name.isEmpty())
            actions_[entry.Name]->setText(T(entry.English, entry.French));
}

void MainMenus::Deactivate()
{
    for (const MenuEntry& entry : Entries())
        if (entry.Parent.isEmpty())
            actions_[entry.Name]->setEnabled(false);
}

void MainMenus::ActivateAllowed()
{
    for (const MenuEntry& entry : Entries()) {
        if (entry.Name.isEmpty())
            continue;
        actions_[entry.Name]->setEnabled(IsAllowed(entry.Name));
        actions_[entry.Name]->setVisible(IsShown(entry.Name));
    }
    actions_["mnuSpecialDisplayApproved"]->setChecked(SessionState.ShowApproved);
    actions_["mnuSpecialDisplayPending"]->setChecked(!SessionState.ShowApproved);
}
