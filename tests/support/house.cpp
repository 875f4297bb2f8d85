#include "support/house.h"

#include "calendar/frm_program.h"
#include "foundation/connection.h"
#include "foundation/log_in.h"
#include "foundation/session_rows.h"
#include "foundation/start_up.h"
#include "platform/clock.h"
#include "platform/dao/server.h"
#include "platform/program.h"

#include <QDir>
#include <QFile>
#include <QLocale>

namespace
{
std::function<void(const QString&)>& ComplaintHandler()
{
    static std::function<void(const QString&)> handler = [](const QString& text) {
        qCritical("%s", qUtf8Printable(text));
    };
    return handler;
}

QDateTime moment; // what the program takes for now

struct SystemCategory
{
    const char* SystemName;
    const char* French;
    const char* Code;
    int Color;
    int Absence;
    int TimeBank;
};

constexpr SystemCategory kSystemCategories[] = {
    {"Vacation", "Vacances", "V", 0xC0C000, 1, 0},
    {"Sick", "Maladie", "S", 0xFFC0C0, 1, 0},
    {"Personal time", "Temps personnel", "P", 0xFFFFC0, 1, 0},
    {"Doctor appointments", "Rendez-vous médical", "D", 0x808000, 1, 0},
    {"Time accumulated", "Temps accumulé", "", 0xC0C0C0, 0, 1},
    {"Time claimed", "Temps réclamé", "", 0xC0C0C0, 1, 1},
    {"Time paid", "Temps payé", "", 0xC0C0C0, 0, 1},
    {"Time borrowed", "Temps emprunté", "", 0xC0C0C0, 1, 1},
};

QString ReadSource(const QString& name)
{
    QFile file(QStringLiteral(TARVELL_DATA_FOLDER) + "/" + name);
    if (!file.open(QIODevice::ReadOnly))
        Complain("cannot read " + file.fileName());
    return QString::fromUtf8(file.readAll());
}
} // namespace

void SetComplaintHandler(std::function<void(const QString&)> handler)
{
    ComplaintHandler() = std::move(handler);
}

void Complain(const QString& text)
{
    ComplaintHandler()(text);
}

QString House::DeliveredFolder()
{
    static QTemporaryDir delivered;
    static const bool made = [] {
        Database::Create(delivered.path() + "/Tarvell.mdb", kDatabasePassword, ReadSource("tarvell.sql"));
        Database::Create(delivered.path() + "/Config.mdb", kConfigPassword, ReadSource("config.sql"));
        return true;
    }();
    Q_UNUSED(made);
    return delivered.path();
}

House::House(const QString& folder)
    : temporary_(folder.isEmpty() ? std::make_unique<QTemporaryDir>() : nullptr),
      folder_(temporary_ ? temporary_->path() : folder)
{
    if (!temporary_) {
        QDir(folder_).removeRecursively();
        QDir().mkpath(folder_);
    }
    SessionState = Session();
    WireForms();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
    SetProgramFolder(folder_);
    for (const char* name : {"/Tarvell.mdb", "/Config.mdb"})
        QFile::copy(DeliveredFolder() + name, folder_ + name);
    SetClockSource({[] { return moment; }, [](int) {}});
    SetEndHandler([] {
        DefaultWorkspace().Close();
        throw ProgramEnded();
    });
    SessionState.DatabasePath = folder_;
    Today(2026, 3, 2);
}

House::~House()
{
    DefaultWorkspace().Close();
    SetServerSink({});
}

House& House::Today(int year, int month, int day, int hour, int minute)
{
    moment = QDateTime(QDate(year, month, day), QTime(hour, minute));
    return *this;
}

House& House::Configured(bool english)
{
    SessionState.English = english;
    SessionState.DatabaseName = "Tarvell.mdb";
    WriteConfiguration();
    return *this;
}

House& House::Company()
{
    FiscalYear("2026", 2026);
    SeedAdministrator();
    return Units();
}

void House::SeedHolidays()
{
    const std::pair<QDate, const char*> holidays[] = {{{2026, 1, 1}, "New Year"},
                                                      {{2026, 7, 1}, "Canada Day"},
                                                      {{2026, 9, 7}, "Labour Day"},
                                                      {{2026, 12, 25}, "Christmas"}};
    for (const auto& [date, name] : holidays)
        Sql("INSERT INTO Holidays (HolidayDate, HolidayName, EnteredBy, EnteredDate, CancelledDate) "
            "VALUES (?, ?, 'ADMIN', ?, 0)",
            {SerialOfDate(date), name, ::Today()});
}

int House::FiscalYear(const QString& name, int year, int month)
{
    const QDate first(year, month, 1);
    const int id = Insert("FiscalYears", {{"FiscalYearName", name},
                                          {"CommencingDate", SerialOfDate(first)},
                                          {"EndingDate", SerialOfDate(first.addYears(1)) - 1},
                                          {"EnteredDate", ::Today()},
                                          {"EnteredBy", "ADMIN"}});
    SeedCategories(id);
    return id;
}

void House::SeedCategories(int fiscalYear)
{
    for (const SystemCategory& category : kSystemCategories)
        Insert("Categories", {{"FiscalYear", fiscalYear},
                              {"SystemName", category.SystemName},
                              {"CategoryEnglishName", category.SystemName},
                              {"CategoryFrenchName", category.French},
                              {"CategoryCode", category.Code},
                              {"CategoryColorCode", QString::number(category.Color)},
                              {"ConstitutesAnAbsence", category.Absence},
                              {"TimeBankRelated", category.TimeBank},
                              {"Active", 1},
                              {"IsPublic", 1}});
}

void House::SeedAdministrator()
{
    QVariantMap admin{{"LoginID", "ADMIN"},
                      {"Password", "SECRET"},
                      {"FirstName", "Alice"},
                      {"FamilyName", "Tremblay"},
                      {"EMailAddress", "alice@example.org"},
                      {"EnteredBy", "SYSTEM"}};
    for (const auto& [column, member] : kRights)
        admin[column] = 1;
    Insert("Employees", admin);
}

House& House::Units()
{
    const auto unit = [this](const char* table, const QString& kind, const QString& english, const QString& french,
                             QVariantMap above) {
        above.insert(
            {{"FiscalYear", 1}, {"Active", 1}, {kind + "EnglishName", english}, {kind + "FrenchName", french}});
        return Insert(table, above);
    };
    const int works = unit("Organizations", "Organization", "Northern Works", "Ateliers du Nord", {});
    const int trade = unit("Organizations", "Organization", "Southern Trade", "Commerce du Sud", {});
    const int production = unit("Departments", "Department", "Production", "Fabrication", {{"OrganizationID", works}});
    const int sales = unit("Departments", "Department", "Sales", "Ventes", {{"OrganizationID", works}});
    const int stores = unit("Departments", "Department", "Stores", "Magasins", {{"OrganizationID", trade}});
    unit("Groups", "Group", "Assembly", "Assemblage", {{"OrganizationID", works}, {"DepartmentID", production}});
    for (const int department : {production, sales, stores})
        Sql("INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed) "
            "SELECT 1, RecordID, ?, 1 FROM Categories WHERE FiscalYear = 1",
            {department});
    SeedHolidays();
    return *this;
}

int House::Hire(const Person& person, int fiscalYear)
{
    const int department =
        Number("SELECT RecordID FROM Departments WHERE DepartmentEnglishName = ?", {person.Department});
    QVariantMap employee{
        {"FiscalYear", fiscalYear},
        {"OrganizationID", Number("SELECT OrganizationID FROM Departments WHERE RecordID = ?", {department})},
        {"DepartmentID", department},
        {"GroupID", Number("SELECT RecordID FROM Groups WHERE GroupEnglishName = ?", {person.Group})},
        {"FirstName", person.FirstName},
        {"FamilyName", person.FamilyName},
        {"LoginID", person.LoginID},
        {"Username", person.LoginID.left(15)},
        {"Password", "PASS"},
        {"HourlyRate", person.HourlyRate},
        {"AttendanceApprovedBy_Main", person.ApprovedBy}};
    for (const QString& right : person.Rights)
        employee[right] = 1;
    for (int day = 1; person.Scheduled && day <= 5; ++day) {
        const std::array<double, 4> times{8.5, 12, 13, 16.5};
        for (int time = 0; time < 4; ++time)
            employee[kClockTimes[(day - 1) * 4 + time].Column] = times[time];
        employee[kDayLengths[day].Column] = 7;
        employee["HoursWorkedDaily"] = 7;
    }
    return Insert("Employees", employee);
}

int House::Record(int employee, const QString& systemName, const QDate& date, float hours, bool pending)
{
    const QString unit = "SELECT %1 FROM Employees WHERE RecordID = ?";
    return Insert("Attendance", {{"FiscalYear", Number(unit.arg("FiscalYear"), {employee})},
                                 {"EmployeeID", employee},
                                 {"GroupID", Number(unit.arg("GroupID"), {employee})},
                                 {"DepartmentID", Number(unit.arg("DepartmentID"), {employee})},
                                 {"OrganizationID", Number(unit.arg("OrganizationID"), {employee})},
                                 {"CategoryID", CategoryID(systemName, Number(unit.arg("FiscalYear"), {employee}))},
                                 {"RecordDate", SerialOfDate(date)},
                                 {"Duration", hours},
                                 {"TimeMultiplicator", 1},
                                 {"TotalDuration", hours},
                                 {"Submitted", pending ? 1 : 0},
                                 {"EnteredBy", "ADMIN"},
                                 {"EnteredDate", ::Today()}});
}

House& House::LogIn(const QString& loginID)
{
    DataControl datAbsence("House");
    const Connection connection(datAbsence);
    SessionState.LoginID = loginID;
    SessionState.UserPassword = loginID == "ADMIN" ? "SECRET" : "PASS";
    if (!ChooseCurrentFiscalYear(datAbsence) || !LogInUser(datAbsence, SessionState.FiscalYearID))
        Complain("cannot log in as " + loginID);
    FindNeighbouringYears(datAbsence);
    LoadAdministratorInfo(datAbsence);
    return *this;
}

int House::Insert(const char* table, const QVariantMap& values)
{
    const auto database = Database::Open(DatabaseFile(), kDatabasePassword);
    const QStringList marks(values.size(), QStringLiteral("?"));
    database->Execute(
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, values.keys().join(", "), marks.join(", ")),
        values.values());
    return database->LastKey();
}

QString House::Rows(const QString& sql, const Values& values)
{
    const auto database = Database::Open(DatabaseFile(), kDatabasePassword);
    QStringList lines;
    for (const Recordset& rows : database->OpenRecordset(sql, values)) {
        QStringList cells;
        for (const QString& column : rows.Columns())
            cells << rows.Text(column);
        lines << cells.join('|');
    }
    return lines.join('\n');
}

QString House::Cell(const QString& sql, const Values& values)
{
    return Rows(sql, values).section('\n', 0, 0).section('|', 0, 0);
}

int House::Number(const QString& sql, const Values& values)
{
    return Cell(sql, values).toInt();
}

void House::Sql(const QString& sql, const Values& values)
{
    Database::Open(DatabaseFile(), kDatabasePassword)->Execute(sql, values);
}

int House::CategoryID(const QString& systemName, int fiscalYear)
{
    return Number("SELECT RecordID FROM Categories WHERE SystemName = ? AND FiscalYear = ?", {systemName, fiscalYear});
}

QString House::ReadFile(const QString& name) const
{
    QFile file(Folder() + "/" + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
