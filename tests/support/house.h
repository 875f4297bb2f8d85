#pragma once

#include "foundation/session_state.h"
#include "platform/dao/dao.h"
#include "platform/mail/mail_programs.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <ostream>

/// Where the house and its user complain; the test program makes failures of it, the tour ends.
void SetComplaintHandler(std::function<void(const QString&)> handler);
void Complain(const QString& text);

/// What EndProgram throws inside the house.
struct ProgramEnded
{};

/// All cells of a result: columns joined by "|", records by "\n".
QString RowsOf(Database& database, const QString& sql, const Values& values = {});
/// Empty where there is no such file.
QString ReadFile(const QString& path);
/// Puts a file with these bytes in the place of what stands there.
void WriteFile(const QString& path, const QByteArray& bytes = {});

/// One employee of the test company. Rights are column names, each granted.
struct Person
{
    QString LoginID;
    QString FirstName;
    QString FamilyName;
    QString Department; ///< English name
    QString Group = {}; ///< English name, empty for none
    QStringList Rights = {};
    int ApprovedBy = 0; ///< RecordID of the first approver
    float HourlyRate = 20;
    bool Scheduled = true; ///< Monday to Friday 8:30 to 12:00 and 13:00 to 16:30
};

/// A program folder of its own with the delivered empty databases, a fixed day, a session in its first state, and the
/// floors wired as the program wires them.
class House
{
public:
    /// An empty `folder` makes one that is gone with the house; another one is emptied first and stays.
    explicit House(const QString& folder = {});
    ~House();
    House(const House&) = delete;
    House& operator=(const House&) = delete;

    QString Folder() const { return folder_; }
    /// The day, and the time of day, that the program sees.
    House& Today(int year, int month, int day, int hour = 9, int minute = 0);
    /// The configuration of a workstation whose database lies in the program's folder.
    House& Configured();
    /// Fiscal year 2026, the eight system categories, ADMIN (password SECRET), two organizations, three departments, a
    /// group, four holidays.
    House& Company();
    /// A further fiscal year from that first day, with the categories of the first one. Returns its RecordID.
    int FiscalYear(const QString& name, int year, int month = 1);
    /// An employee of 2026 (password PASS); returns the RecordID.
    int Hire(const Person& person, int fiscalYear = 1);
    /// A record of attendance as the entry form would leave it.
    int Record(int employee, const QString& systemName, const QDate& date, float hours, bool pending = false);
    /// Logs in without the form: the session is that of the user, in the year that holds today.
    House& LogIn(const QString& loginID);

    /// The first cell of a result as text, and as whole number; written and read with the engine alone.
    QString Cell(const QString& sql, const Values& values = {});
    int Number(const QString& sql, const Values& values = {});
    QString Rows(const QString& sql, const Values& values = {});
    QString All(const QStringList& tables); ///< whatever stands in them
    /// "Column=value" of all in a record that is neither 0 nor empty, with "|" between them.
    QString Filled(const QString& table, int recordID);
    /// Returns the RecordID of the record that it added.
    int Sql(const QString& sql, const Values& values = {});
    /// The messages that went out by either route, oldest first, each as "route|recipient|subject|body".
    QStringList Mail;
    /// What becomes of the messages of a route from here on; they go out unless told otherwise.
    QHash<QString, MailResult> MailEnds;
    int CategoryID(const QString& systemName, int fiscalYear = 1);
    /// From here on the database refuses a change such as "UPDATE ON Employees": the failure says "refused".
    void Refuses(const QString& change);
    QString ReadFile(const QString& name) const { return ::ReadFile(Folder() + "/" + name); }

    /// The empty databases, made once per process.
    static QString DeliveredFolder();
    QString DatabaseFile() const { return Folder() + "/Tarvell.mdb"; }

private:
    MailRoute Route(const QString& name);

    std::unique_ptr<QTemporaryDir> temporary_;
    QString folder_;
};

/// How a failed comparison of texts shows them.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
