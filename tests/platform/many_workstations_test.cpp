#include "foundation/connection.h"
#include "platform/engine_fixture.h"
#include "support/house.h"

#include <QSet>

#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

namespace
{
constexpr int kWorkstations = 8;
constexpr int kRecordsEach = 30;
constexpr int kKills = 6;

/// Many processes on one file. Each workstation notes a record in a file of its own once the statement has returned.
class ManyWorkstations : public testing::Test
{
protected:
    std::unique_ptr<Database> Open() const { return Database::Open(house_.DatabaseFile(), kDatabasePassword); }
    QString NotesOf(int workstation) const { return house_.Folder() + "/notes" + QString::number(workstation); }

    void AddRecord(int workstation, int day) const
    {
        const auto database = Open();
        database->Execute(
            "INSERT INTO Attendance (EmployeeID, RecordDate, TotalDuration, Comment) VALUES (?, ?, 7.5, ?)",
            {workstation, day, QString(300, 'x')});
    }

    /// The life of a workstation's process.
    int Work(int workstation) const
    {
        QFile notes(NotesOf(workstation));
        if (!notes.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return 1;
        try {
            for (int day = 1; day <= kRecordsEach; ++day) {
                AddRecord(workstation, day);
                notes.write(QByteArray::number(day) + "\n");
            }
        } catch (const RuntimeError& error) {
            std::fprintf(stderr, "workstation %d: %s\n", workstation, error.what());
            return 2;
        }
        return 0;
    }

    pid_t Start(const std::function<int()>& life)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(life());
        return child;
    }
    void StartWorkstation()
    {
        const int workstation = static_cast<int>(running_.size());
        running_.push_back(Start([this, workstation] { return Work(workstation); }));
    }

    QList<QByteArray> NotedBy(int workstation) const
    {
        QFile notes(NotesOf(workstation));
        if (!notes.open(QIODevice::ReadOnly))
            return {};
        return notes.readAll().trimmed().split('\n');
    }

    /// Half a minute at most: a workstation that has failed writes no more notes.
    static void WaitUntil(const std::function<bool()>& happened)
    {
        for (int i = 0; i < 30000 && !happened(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        ASSERT_TRUE(happened());
    }

    /// Kills the workstation in the midst of its work and puts another in its place.
    void KillInTheMiddle(int workstation, std::chrono::microseconds later)
    {
        WaitUntil([&] { return NotedBy(workstation).size() >= 3; });
        std::this_thread::sleep_for(later);
        kill(running_[workstation], SIGKILL);
        waitpid(running_[workstation], nullptr, 0);
        running_[workstation] = 0;
        StartWorkstation();
    }

    House house_;
    std::vector<pid_t> running_;
};

TEST_F(ManyWorkstations, NoRecordIsLostThatOneOfThemWasToldIsWritten)
{
    for (int i = 0; i < kWorkstations; ++i)
        StartWorkstation();
    for (int i = 0; i < kKills; ++i)
        KillInTheMiddle(i, std::chrono::microseconds(i * 700));
    for (const pid_t workstation : running_) {
        int status = 0;
        if (workstation != 0) {
            EXPECT_EQ(waitpid(workstation, &status, 0), workstation);
            EXPECT_EQ(status, 0);
        }
    }

    QSet<QString> stored;
    const auto database = Open();
    Recordset records = database->OpenRecordset("SELECT EmployeeID || '/' || RecordDate AS Mark FROM Attendance");
    for (const Recordset& record : records)
        stored += record.Text("Mark");
    EXPECT_EQ(stored.size(), records.RecordCount()) << "a record was written twice";
    qsizetype noted = 0;
    for (size_t workstation = 0; workstation < running_.size(); ++workstation)
        for (const QByteArray& day : NotedBy(static_cast<int>(workstation)))
            noted += stored.contains(QString::number(workstation) + "/" + day) ? 1 : 1000000;
    EXPECT_LE(noted, stored.size()) << "a record is missing";
    EXPECT_LE(stored.size(), noted + kKills) << "a killed workstation leaves at most the record it was writing";
    EXPECT_GE(noted, kWorkstations * kRecordsEach);
    EXPECT_EQ(house_.Cell("PRAGMA integrity_check"), "ok");
}

TEST_F(ManyWorkstations, AProcessKilledInTheMidstOfATransactionLeavesNothingOfIt)
{
    AddRecord(1, 1);
    const pid_t child = Start([this] {
        const auto database = Open();
        database->Execute("PRAGMA cache_size = 5"); // pages go to the file long before the transaction ends
        Transaction transaction(*database);
        for (int i = 0; i < 200; ++i)
            database->Execute("INSERT INTO Attendance (Comment) VALUES (?)", {QString(3000, 'y')});
        database->Execute("DELETE FROM Attendance WHERE RecordID = 1");
        QFile(NotesOf(0)).open(QIODevice::WriteOnly);
        pause();
        return 0;
    });
    WaitUntil([this] { return QFile::exists(NotesOf(0)); });
    EXPECT_GT(QFileInfo(house_.DatabaseFile()).size(), 500000) << "the file was in the midst of being written";
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(house_.Cell("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(house_.Rows("SELECT EmployeeID, RecordDate FROM Attendance"), "1|1");
}
} // namespace
