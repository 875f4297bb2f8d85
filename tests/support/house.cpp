#include "support/house.h"

#include "calendar/frm_program.h"
#include "foundation/category_row.h"
#include "foundation/connection.h"
#include "foundation/employee_row.h"
#include "foundation/log_in.h"
#include "foundation/session_rows.h"
#include "foundation/start_up.h"
#include "mail/mail_component.h"
#include "platform/browser.h"
#include "platform/clock.h"
#include "platform/dao/server.h"
#include "platform/program.h"
#include "platform/user_settings.h"
#include "setup/first_rows.h"

#include <QDir>
#include <QFile>
#include <QLocale>

namespace
{
std::function<void(const QString&)> complaintHandler = [](const QString& text) {
    qCritical("%s", qUtf8Printable(text));
};
QDateTime moment; // what the program takes for now

/// What the company has besides the first rows of a new database.
const QString kCompany = R"(
    UPDATE Employees SET EMailAddress = 'alice@example.org';
    UPDATE Categories SET CategoryFrenchName = 'Vacances', CategoryCode = 'V' WHERE SystemName = 'Vacation';
    UPDATE Categories SET CategoryFrenchName = 'Maladie', CategoryCode = 'S' WHERE SystemName = 'Sick';
    UPDATE Categories SET CategoryFrenchName = 'Temps personnel', CategoryCode = 'P' WHERE SystemName = 'Personal time';
    UPDATE Categories SET CategoryFrenchName = 'Rendez-vous médical', CategoryCode = 'D' WHERE RecordID = 4;
    INSERT INTO Organizations (FiscalYear, Active, OrganizationEnglishName, OrganizationFrenchName)
        VALUES (1, 1, 'Northern Works', 'Ateliers du Nord'), (1, 1, 'Southern Trade', 'Commerce du Sud');
    INSERT INTO Departments (FiscalYear, Active, OrganizationID, DepartmentEnglishName, DepartmentFrenchName)
        VALUES (1, 1, 1, 'Production', 'Fabrication'), (1, 1, 1, 'Sales', 'Ventes'), (1, 1, 2, 'Stores', 'Magasins');
    INSERT INTO Groups (FiscalYear, Active, OrganizationID, DepartmentID, GroupEnglishName, GroupFrenchName)
        VALUES (1, 1, 1, 1, 'Assembly', 'Assemblage');
    INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed)
        SELECT 1, Categories.RecordID, Departments.RecordID, 1 FROM Departments, Categories ORDER BY 3, 2;
    INSERT INTO Holidays (HolidayDate, HolidayName, EnteredBy) VALUES
        (46023, 'New Year', 'ADMIN'), (46204, 'Canada Day', 'ADMIN'), (46272, 'Labour Day', 'ADMIN'),
        (46381, 'Christmas', 'ADMIN');
)";
} // namespace

void SetComplaintHandler(std::function<void(const QString&)> handler)
{
    complaintHandler = std::move(handler);
}

void Complain(const QString& text)
{
    complaintHandler(text);
}

QString House::DeliveredFolder()
{
    static const QTemporaryDir delivered;
    const QString data = QStringLiteral(TARVELL_DATA_FOLDER "/");
    if (QDir(delivered.path()).isEmpty()) {
        Database::Create(delivered.path() + "/Tarvell.mdb", kDatabasePassword, ::ReadFile(data + "tarvell.sql"));
        Database::Create(delivered.path() + "/Config.mdb", kConfigPassword, ::ReadFile(data + "config.sql"));
    }
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
    SetUserSettingsFolder(folder_ + "/settings");
    for (const char* name : {"/Tarvell.mdb", "/Config.mdb"})
        QFile::copy(DeliveredFolder() + name, folder_ + name);
    SetClockSource({[] { return moment; }, [](int) {}});
    ForgetUnsentNotices();
    SetBrowser([](const QString&) { return true; });
    SetMailRoutes({Route("automation"), Route("MAPI")});
    SetEndHandler([] {
        DefaultWorkspace().Forget();
        throw ProgramEnded();
    });
    SessionState.DatabasePath = folder_;
    Today(2026, 3, 2);
}

MailRoute House::Route(const QString& name)
{
    return {[] { return true; },
            [this, name](const MailMessage& message) {
                Mail << QStringList{name, message.Address, message.Subject, message.Body}.join('|');
                return MailEnds.value(name);
            }};
}

House::~House()
{
    SetMailRoutes({});
    DefaultWorkspace().Forget();
    SetServerSink({});
}

House& House::Today(int year, int month, int day, int hour, int minute)
{
    moment = QDateTime(QDate(year, month, day), QTime(hour, minute));
    return *this;
}

House& House::Configured()
{
    SessionState.DatabaseName = "Tarvell.mdb";
    WriteConfiguration();
    SaveMailConfiguration();
    return *this;
}

House& House::Company()
{
    SetUpChoices choices;
    choices.FiscalYearName = "2026";
    SetFiscalYear(choices, 2026, 1);
    auto category = choices.Categories.begin();
    for (const char* name : {"Vacation", "Sick", "Personal time", "Doctor appointments"})
        *category++ = {.Name = name, .NoEntitlement = true};
    choices.AdminFirstName = "Alice";
    choices.AdminFamilyName = "Tremblay";
    choices.AdminPassword = "SECRET";
    DataControl datAbsence("House");
    const Connection connection(datAbsence);
    AddFirstRows(datAbsence, choices);
    datAbsence.Engine().ExecuteScript(kCompany);
    return *this;
}

int House::FiscalYear(const QString& name, int year, int month)
{
    const QDate first(year, month, 1);
    const int id = Sql("INSERT INTO FiscalYears (FiscalYearName, CommencingDate, EndingDate, EnteredDate, EnteredBy) "
                       "VALUES (?, ?, ?, ?, 'ADMIN')",
                       {name, SerialOfDate(first), SerialOfDate(first.addYears(1)) - 1, ::Today()});
    const QString columns = kTable<CategoryRow>.Columns.mid(1).join(", "); // the first one is the year
    Sql(QStringLiteral("INSERT INTO Categories (FiscalYear, %1) SELECT ?, %1 FROM Categories WHERE FiscalYear = 1")
            .arg(columns),
        {id});
    return id;
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
    const QStringList marks(employee.size(), QStringLiteral("?"));
    return Sql(
        QStringLiteral("INSERT INTO Employees (%1) VALUES (%2)").arg(employee.keys().join(", "), marks.join(", ")),
        employee.values());
}

int House::Record(int employee, const QString& systemName, const QDate& date, float hours, bool pending)
{
    return Sql("INSERT INTO Attendance (FiscalYear, EmployeeID, GroupID, DepartmentID, OrganizationID, CategoryID, "
               "RecordDate, Duration, TimeMultiplicator, TotalDuration, Submitted, EnteredBy, EnteredDate) "
               "SELECT Employees.FiscalYear, Employees.RecordID, GroupID, DepartmentID, OrganizationID, "
               "Categories.RecordID, ?, ?, 1, ?, ?, 'ADMIN', ? FROM Employees, Categories WHERE Employees.RecordID = ? "
               "AND SystemName = ? AND Categories.FiscalYear = Employees.FiscalYear",
               {SerialOfDate(date), hours, hours, pending, ::Today(), employee, systemName});
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

QString House::Rows(const QString& sql, const Values& values)
{
    return RowsOf(*Database::Open(DatabaseFile(), kDatabasePassword), sql, values);
}

QString House::All(const QStringList& tables)
{
    QStringList rows;
    for (const QString& table : tables)
        rows << Rows("SELECT * FROM " + table);
    return rows.join('/');
}

QString House::Filled(const QString& table, int recordID)
{
    const auto database = Database::Open(DatabaseFile(), kDatabasePassword);
    QStringList filled;
    for (const Recordset& row : database->OpenRecordset("SELECT * FROM " + table + " WHERE RecordID = ?", {recordID}))
        for (const QString& column : row.Columns())
            if (!row.Text(column).isEmpty() && row.Text(column) != "0")
                filled << column + "=" + row.Text(column);
    return filled.join('|');
}

QString House::Cell(const QString& sql, const Values& values)
{
    return Rows(sql, values).section('\n', 0, 0).section('|', 0, 0);
}

int House::Number(const QString& sql, const Values& values)
{
    return static_cast<int>(Cell(sql, values).toDouble());
}

int House::Sql(const QString& sql, const Values& values)
{
    DefaultWorkspace().PauseReading();
    const auto database = Database::Open(DatabaseFile(), kDatabasePassword);
    database->Execute(sql, values);
    return database->LastKey();
}

int House::CategoryID(const QString& systemName, int fiscalYear)
{
    return Number("SELECT RecordID FROM Categories WHERE SystemName = ? AND FiscalYear = ?", {systemName, fiscalYear});
}

void House::Refuses(const QString& change)
{
    Sql("CREATE TRIGGER Refusing BEFORE " + change + " BEGIN SELECT RAISE(ABORT, 'refused'); END");
}

QString RowsOf(Database& database, const QString& sql, const Values& values)
{
    QStringList lines;
    for (const Recordset& rows : database.OpenRecordset(sql, values)) {
        QStringList cells;
        for (const QString& column : rows.Columns())
            cells << rows.Text(column);
        lines << cells.join('|');
    }
    return lines.join('\n');
}

QString ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        Complain("cannot write " + path);
}
