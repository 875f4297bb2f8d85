#include "calendar/frm_main_command_table.h"

#include "calendar/frm_main.h"
#include "calendar/frm_main_notes.h"
#include "employees/frm_employees.h"
#include "foundation/frm_about.h"
#include "foundation/frm_change_password.h"
#include "ledger/frm_entitlements.h"
#include "mail/mail_set_up.h"
#include "platform/controls/form_kit.h"
#include "reference/frm_categories.h"
#include "reference/frm_holidays.h"
#include "reference/frm_unit.h"

namespace
{
using P = SecurityProfile;
using List = std::vector<Command>;

template <typename Form>
void Opens(frmMain& main)
{
    Form form(&main);
    ShowModal(form);
}

/// Opens a form that may change what the calendar and its lists show.
template <typename Form>
void Edits(frmMain& main)
{
    Opens<Form>(main);
    main.ReloadAfterEditing();
}

/// Needs nothing of the main window.
template <void (*Tell)()>
void Tells(frmMain&)
{
    Tell();
}

/// For the entries that stand in the menus and do nothing, on purpose.
void NoBehaviour(frmMain&) {}

/// The form of the command is still to come.
const Command::Opener NotYet;

List Menu(const char* name, const Text& caption, const Rule& allowed, const std::vector<List>& entries)
{
    List all = {{Place::Menus, "", name, caption, allowed, {}, true}};
    for (const List& entry : entries)
        for (Command command : entry) {
            if (command.Parent.isEmpty())
                command.Parent = name;
            all.push_back(command);
        }
    return all;
}

List Entry(const QString& name, const Text& caption, const Rule& allowed, const Command::Opener& opens = {},
           const QKeySequence& shortcut = {})
{
    return {{Place::Menus, "", name, caption, allowed, opens, false, false, shortcut}};
}

/// The same below a line, or, among the tools, behind one.
List Below(List list)
{
    list.front().AfterLine = true;
    return list;
}

List ShownTo(const Rule& shown, List list)
{
    list.front().Shown = shown;
    return list;
}

List CheckedWhen(bool (*checked)(), List list)
{
    list.front().Checked = checked;
    return list;
}

bool ShowsApproved()
{
    return SessionState.ShowApproved;
}

bool ShowsPending()
{
    return !SessionState.ShowApproved;
}

bool HasFileBackEnd()
{
    return !SessionState.SQL_Server;
}

bool OneEmployeeShown()
{
    return SessionState.EmployeeID > 0 && SessionState.EmployeeOrganizationID != 0;
}

List FileMenu()
{
    return Menu(
        "mnuFile", {"&File", "&Fichier"}, Everybody(),
        {
            Entry("mnuFileOrganizations", {"&Organizations...", "&Organisations..."},
                  Module(&P::AccessToOrganizationsModule), Edits<frmOrganizations>),
            Entry("mnuFileDepartments", {"&Departments...", "&Départements..."}, Module(&P::AccessToDepartmentsModule),
                  Edits<frmDepartments>),
            Entry("mnuFileGroups", {"&Groups...", "&Groupes..."}, Module(&P::AccessToGroupsModule), Edits<frmGroups>),
            Below(Entry("mnuFileEmployees", {"&Employees...", "&Employés..."}, Module(&P::AccessToEmployeesModule),
                        Edits<frmEmployees>, Qt::CTRL | Qt::Key_E)),
            Entry("mnuFileEntitlements", {"E&ntitlements...", "&Temps alloué..."},
                  Module(&P::AccessToEntitlementsModule), Opens<frmEntitlements>),
            Entry("mnuFileCategories", {"&Categories of attendance...", "&Catégories d'absentéisme..."},
                  Module(&P::AccessToCategoriesModule), Edits<frmCategories>),
            Entry("mnuFileHolidays", {"&Statutory holidays...", "Congés &fériés..."}, AdminOnly() && InOpenYear(),
                  Edits<frmHolidays>),
            Below(Entry("mnuFilePrintCalendar", {"&Print calendar...", "&Imprimer le calendrier..."}, Everybody(),
                        NotYet, Qt::CTRL | Qt::Key_P)),
            Entry("mnuFilePrintRequest", {"Print &request for leave form...", "Imprimer un formulaire de de&mande..."},
                  When(OneEmployeeShown, {"Select an employee first.", "Choisissez d'abord un(e) employé(e)."})),
            Below(Entry("mnuFileDatabaseLocation",
                        {"Database &location...", "&Localisation de la banque de données..."}, AdminOnly(),
                        Tells<ShowDatabaseLocation>)),
            Entry("mnuFileNewDatabase", {"Connect to another d&atabase...", "Changer de &banque de données..."},
                  Everybody()),
            Below(Entry("mnuFileExit", {"E&xit", "&Quitter"}, Everybody(), &frmMain::cmdQuit_Click,
                        Qt::CTRL | Qt::Key_Q)),
        });
}

/// Who a report is about. The entries of the year-to-date family spell their scope out.
struct ReportScope
{
    const char* Suffix;
    const char* YearToDateSuffix;
    Text Caption;
    const Level& Of;
};

const ReportScope kReportScopes[] = {
    {"_Global", "_Global", {"&Global", "&Global"}, kGlobalLevel},
    {"_Org", "_Organizational", {"&Organization", "&Organisation"}, kOrganizationLevel},
    {"_Dept", "_Departmental", {"&Department", "&Département"}, kDepartmentLevel},
    {"_Group", "_Group", {"G&roup", "G&roupe"}, kGroupLevel},
    {"_Indiv", "_Individual", {"&Individual", "&Individuel"}, kIndividualLevel},
};

struct ReportFamily
{
    const char* Name; ///< of its menu: begins the names of its entries
    Text Caption;
};

const ReportFamily kReportFamilies[] = {
    {"mnuReportsRegularCtg", {"&Attendance records", "&Absences enregistrées"}},
    {"mnuReportsTimeBankCtg", {"&Time bank records", "Enregistrements des &banques de temps"}},
    {"mnuReportsCancelled", {"&Cancelled records", "Absences s&upprimées"}},
    {"mnuReportsSubmitted", {"&Submitted requests", "&Demandes soumises"}},
    {"mnuReportsYTD", {"&Year-to-date summary", "&Sommaire de l'année"}},
    {"mnuReportsYTDTimeBank", {"Time bank s&ummary", "Sommaire des banques de &temps"}},
    {"mnuReportsAbsenteeismByDate", {"Absenteeism by &date", "Absentéisme &par date"}},
    {"mnuReportsAbsenteeismCost", {"C&ost of absenteeism", "&Coût de l'absentéisme"}},
};

/// Reports on a level are for those who may read there.
Rule ReportsOn(const Level& level)
{
    return WithRight(&P::CanGenerateReports) && WithRight(level.To(Access::Read));
}

/// A report on the user himself is for everybody, but for the costs.
Rule ReportRule(const char* family, const Level& level)
{
    if (QLatin1String(family) == "mnuReportsAbsenteeismCost")
        return WithRight(&P::AccessToEmployeesModule) && WithRight(level.To(Access::Read));
    return &level == &kIndividualLevel ? Everybody() : ReportsOn(level);
}

List FamilyMenu(const ReportFamily& family)
{
    std::vector<List> entries;
    for (const ReportScope& scope : kReportScopes) {
        const bool yearToDate = QLatin1String(family.Name) == "mnuReportsYTD";
        const QString name = QLatin1String(family.Name) + (yearToDate ? scope.YearToDateSuffix : scope.Suffix);
        entries.push_back(Entry(name, scope.Caption, ReportRule(family.Name, scope.Of)));
    }
    return Menu(family.Name, family.Caption, Everybody(), entries);
}

List ReportsMenu()
{
    std::vector<List> entries;
    for (const ReportFamily& family : kReportFamilies)
        entries.push_back(FamilyMenu(family));
    entries.push_back(Below(Entry("mnuReportsFluctuation", {"&Fluctuation...", "&Fluctuation..."}, AdminOnly())));
    return Menu("mnuReports", {"&Reports", "&Rapports"}, Everybody(), entries);
}

List ScheduleMenu()
{
    return Menu("mnuSchedule", {"S&chedule", "&Horaire"}, Everybody(),
                {
                    Entry("mnuSchedule_Global", {"&Global...", "&Global..."}, ReportsOn(kGlobalLevel)),
                    Entry("mnuSchedule_Org", {"&Organization...", "&Organisation..."}, ReportsOn(kOrganizationLevel)),
                    Entry("mnuSchedule_Dept", {"&Department...", "&Département..."}, ReportsOn(kDepartmentLevel)),
                    Entry("mnuSchedule_Group", {"G&roup...", "G&roupe..."}, ReportsOn(kGroupLevel)),
                });
}

/// Whoever creates records at a level may block days there and below.
Rule Blocking(const Level& level)
{
    return AtAnyLevel(Access::Create, level);
}

List BlockedDaysMenu()
{
    return Menu(
        "mnuBlocked", {"&Blocked days", "&Jours bloqués"}, Blocking(kGroupLevel),
        {
            Entry("mnuBlocked_Global", {"&Global", "&Global"}, Blocking(kGlobalLevel), NoBehaviour),
            Entry("mnuBlocked_Org", {"&Organization", "&Organisation"}, Blocking(kOrganizationLevel), NoBehaviour),
            Entry("mnuBlocked_Dept", {"&Department", "&Département"}, Blocking(kDepartmentLevel), NoBehaviour),
            Entry("mnuBlocked_Group", {"G&roup", "G&roupe"}, Blocking(kGroupLevel), NoBehaviour),
            Entry("mnuBlocked_Individual", {"&Individual", "&Individuel"}, Blocking(kGroupLevel), NoBehaviour),
        });
}

List FiscalYearMenu()
{
    return Menu("mnuSpecialFiscalYear", {"Fiscal &year", "Année &fiscale"}, Everybody(),
                {
                    Entry("mnuSpecialFiscalYearCreate", {"&Create...", "&Créer..."}, AdminOnly() && InOpenYear()),
                    Entry("mnuSpecialFiscalYearRename", {"&Rename...", "&Renommer..."}, AdminOnly()),
                    Entry("mnuSpecialFiscalYearClose", {"C&lose...", "&Fermer..."}, AdminOnly()),
                    Entry("mnuSpecialFiscalYearArchive", {"&Archive", "&Archiver"}, AdminOnly(), NoBehaviour),
                });
}

List SpecialMenu()
{
    const Rule employees = AdminOnly() && Module(&P::AccessToEmployeesModule);
    return Menu(
        "mnuSpecial", {"&Special", "&Spécial"}, Everybody(),
        {
            CheckedWhen(ShowsApproved, Entry("mnuSpecialDisplayApproved",
                                             {"Display &approved records", "&Afficher les absences approuvées"},
                                             Everybody(), [](frmMain& main) { main.DisplayRecords(true); })),
            CheckedWhen(ShowsPending, Entry("mnuSpecialDisplayPending",
                                            {"Display &pending requests", "Afficher les &demandes non traitées"},
                                            When(HasFileBackEnd), [](frmMain& main) { main.DisplayRecords(false); })),
            Entry("mnuSpecialDeniedRequests", {"My de&nied requests...", "Mes demandes refu&sées..."},
                  When(HasFileBackEnd), &frmMain::mnuSpecialDeniedRequests_Click),
            CheckedWhen(&frmMain::ShowsCodes,
                        Entry("mnuSpecialCategoryCodes", {"Show &category codes", "Afficher les c&odes de catégorie"},
                              Everybody(), &frmMain::mnuSpecialCategoryCodes_Click)),
            Below(Entry("mnuSpecialSwitchLanguage", {"&Français", "En&glish"}, Everybody(),
                        &frmMain::mnuSpecialSwitchLanguage_Click, Qt::CTRL | Qt::Key_L)),
            Entry("mnuSpecialChangePassword", {"C&hange password...", "Changer de &mot-clé..."}, Everybody(),
                  Opens<frmChangePassword>),
            Entry("mnuSpecialUpdateAdminInfo", {"A&dministrator profile...", "&Profil de l'administrateur..."},
                  AdminOnly(), &frmMain::mnuSpecialUpdateAdminInfo_Click),
            Entry("mnuSpecialSpecifyMailerProgram", {"&Mail program...", "Programme de &courriel..."}, Everybody(),
                  Tells<SpecifyMailerComponent>),
            Below(FiscalYearMenu()),
            Below(ShownTo(AdminOnly(), Entry("mnuSpecialBatchUpdates", {"&Batch updates...", "Mises à &jour en lot..."},
                                             employees))),
            ShownTo(AdminOnly(), Entry("mnuSpecialExportEmployee",
                                       {"&Export an employee...", "&Exporter un employé..."}, employees)),
            ShownTo(AdminOnly(), Entry("mnuSpecialImportEmployee",
                                       {"&Import an employee...", "&Importer un employé..."}, employees)),
        });
}

List HelpMenu()
{
    return Menu(
        "mnuHelp", {"&Help", "&Aide"}, Everybody(),
        {
            Entry("mnuHelpTutorial", {"On-line &tutorial", "&Manuel d'aide en ligne"}, Everybody()),
            Entry("mnuHelpKeys", {"&Keyboard...", "&Clavier..."}, Everybody(), Tells<ShowKeys>, Qt::Key_F1),
            Entry("mnuHelpAbout", {"&About Tarvell...", "À &propos de Tarvell..."}, Everybody(), Opens<frmAbout>),
        });
}

List Button(Place place, const char* name, const char* picture, const Text& caption, const Text& tip,
            const Rule& allowed, const Command::Opener& opens)
{
    return {{place, "", name, caption, allowed, opens, false, false, {}, Everybody(), {}, picture, tip}};
}

List Tool(const char* name, const char* picture, const Text& caption, const Text& tip, const Rule& allowed)
{
    return Button(Place::ToolBar, name, picture, caption, tip, allowed, [name](frmMain& main) { main.UseTool(name); });
}

/// The tools work on approved records; only one's own pending request can be withdrawn.
std::vector<List> Tools()
{
    const Rule create = AtAnyLevel(Access::Create) && InOpenYear();
    const Rule modify = AtAnyLevel(Access::Modify) && InOpenYear();
    const Rule mustRequest = When([] { return SessionState.SelfLevelCreate == 0; },
                                  {"You enter your own records: you need not request them.",
                                   "Vous enregistrez vos propres absences : vous n'avez pas à les demander."});
    const Rule approved = When(ShowsApproved);
    const Rule approvedOrOwn =
        When([] { return ShowsApproved() || SessionState.CurrentSelection == SessionState.UserName; });
    return {
        ShownTo(approved, Tool("imgCreateSingle", "tool-create-single", {"One date", "Une date"},
                               {"New attendance record on one date", "Nouvelle absence à une date"}, create)),
        ShownTo(approved, Tool("imgCreateMultiple", "tool-create-multiple", {"Several dates", "Plusieurs dates"},
                               {"New attendance records on dates marked one by one",
                                "Nouvelles absences à des dates choisies une à une"},
                               create)),
        ShownTo(approved,
                Tool("imgCreateConsecutive", "tool-create-consecutive", {"A period", "Une période"},
                     {"New attendance records on consecutive dates", "Nouvelles absences à des dates consécutives"},
                     create)),
        Below(Tool("imgSubmit", "tool-submit", {"Request", "Demande"},
                   {"Submit a request for leave", "Soumettre une demande de congé"}, mustRequest && InOpenYear())),
        Below(ShownTo(approved, Tool("imgModify", "tool-modify", {"Modify", "Modifier"},
                                     {"Modify an attendance record", "Modifier une absence"}, modify))),
        ShownTo(approvedOrOwn, Tool("imgRemove", "tool-remove", {"Remove", "Supprimer"},
                                    {"Remove attendance records", "Supprimer des absences"}, modify)),
        Below(Button(Place::ToolBar, "imgApprove", "tool-approve", {"Approve", "Approuver"},
                     {"Approve or deny requests for leave", "Approuver ou refuser des demandes de congé"},
                     Module(&P::IsAuthorizedToApprove), &frmMain::imgApprove_Click)),
        Button(Place::ToolBar, "imgUpdateSelection", "tool-select-employee", {"Employee", "Employé"},
               {"Select the employee or unit shown on the calendar",
                "Choisir l'employé ou l'unité dont le calendrier est affiché"},
               AtAnyLevel(Access::Read, kGroupLevel), &frmMain::imgUpdateSelection_Click),
    };
}

std::vector<List> YearButtons()
{
    return {
        Button(Place::Years, "cmdPreviousYear", "previous", {}, {"Previous fiscal year", "Année fiscale précédente"},
               When([] { return SessionState.PreviousFYID > 0; },
                    {"There is no fiscal year before this one.", "Aucune année fiscale ne précède celle-ci."}),
               [](frmMain& main) { main.ChangeToYear(Neighbour::Previous); }),
        Button(Place::Years, "cmdNextYear", "next", {}, {"Next fiscal year", "Année fiscale suivante"},
               When([] { return SessionState.NextFYID > 0; },
                    {"There is no fiscal year after this one yet.", "Aucune année fiscale ne suit encore celle-ci."}),
               [](frmMain& main) { main.ChangeToYear(Neighbour::Next); }),
    };
}

/// Ctrl and a digit, from the left.
void NumberTools(List& all)
{
    int digit = Qt::Key_1;
    for (Command& command : all)
        if (command.In == Place::ToolBar)
            command.Shortcut = QKeySequence(Qt::CTRL | static_cast<Qt::Key>(digit++));
}

List AllCommands()
{
    List all;
    for (const std::vector<List>& part :
         {std::vector<List>{FileMenu(), ReportsMenu(), ScheduleMenu(), BlockedDaysMenu(), SpecialMenu(), HelpMenu()},
          Tools(), YearButtons()})
        for (const List& commands : part)
            all.insert(all.end(), commands.begin(), commands.end());
    NumberTools(all);
    return all;
}
} // namespace

const std::vector<Command>& Commands()
{
    static const List commands = AllCommands();
    return commands;
}

std::vector<const Command*> CommandsIn(Place place)
{
    std::vector<const Command*> found;
    for (const Command& command : Commands())
        if (command.In == place)
            found.push_back(&command);
    return found;
}
