#include "platform/engine_fixture.h"

#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <csignal>
#include <vector>

namespace
{
constexpr int kWorkstations = 8;
constexpr int kRecordsEach = 30;
constexpr int kKills = 6;

/// Many processes on one file. Each workstation notes a record in a file of its own once the statement has returned.
class ManyWorkstations : public EngineTest
{
protected:
    QString NotesOf(int workstation) const { return File("notes" + QString::number(workstation)); }
    QStringList NotedBy(int workstation) const
    {
        return ReadFile(NotesOf(workstation)).split('\n', Qt::SkipEmptyParts);
    }

    void AddRecord(const QString& mark) const
    {
        Open()->Execute("INSERT INTO Staff (Name, Seen) VALUES (?, ?)", {mark, QString(300, 'x')});
    }

    static pid_t Start(const std::function<int()>& life)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(life());
        return child;
    }
    void StartWorkstation()
    {
        const int workstation = static_cast<int>(running_.size());
        running_.push_back(Start([this, workstation] {
            QFile notes(NotesOf(workstation));
            const bool noting = notes.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            const int failure = FailureOf([&] {
                for (int day = 1; day <= kRecordsEach; ++day) {
                    const QString mark = QStringLiteral("%1/%2").arg(workstation).arg(day);
                    AddRecord(mark);
                    notes.write((mark + "\n").toUtf8());
                }
            });
            return noting && failure == 0 ? 0 : 1;
        }));
    }

    /// Half a minute at most: a workstation that has failed writes no more notes.
    static void WaitUntil(const std::function<bool()>& happened)
    {
        for (int i = 0; i < 30000 && !happened(); ++i)
            QThread::msleep(1);
        ASSERT_TRUE(happened());
    }

    static void Kill(pid_t process)
    {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }

    std::vector<pid_t> running_;
};

TEST_F(ManyWorkstations, NoRecordIsLostThatOneOfThemWasToldIsWritten)
{
    for (int i = 0; i < kWorkstations; ++i)
        StartWorkstation();
    for (int i = 0; i < kKills; ++i) { // in the midst of their work; another takes the place of each
        WaitUntil([&] { return NotedBy(i).size() >= 3; });
        QThread::usleep(i * 700);
        Kill(running_[i]);
        StartWorkstation();
    }
    for (int i = kKills; i < kWorkstations + kKills; ++i) {
        int status = 0;
        EXPECT_EQ(waitpid(running_[i], &status, 0), running_[i]);
        EXPECT_EQ(status, 0);
    }

    const QStringList records = List("SELECT Name FROM Staff").split(',');
    const QSet<QString> stored(records.begin(), records.end());
    EXPECT_EQ(stored.size(), records.size()) << "a record was written twice";
    QSet<QString> noted;
    for (int i = 0; i < kWorkstations + kKills; ++i)
        for (const QString& mark : NotedBy(i))
            noted += mark;
    EXPECT_TRUE(stored.contains(noted)) << "a record is missing";
    EXPECT_LE(stored.size(), noted.size() + kKills) << "a killed workstation leaves at most the record it was writing";
    EXPECT_GE(noted.size(), kWorkstations * kRecordsEach);
    EXPECT_EQ(List("PRAGMA integrity_check"), "ok");
}

TEST_F(ManyWorkstations, AProcessKilledInTheMidstOfATransactionLeavesNothingOfIt)
{
    AddRecord("before");
    const pid_t child = Start([this] {
        const auto database = Open();
        database->Execute("PRAGMA cache_size = 5"); // pages go to the file long before the transaction ends
        Transaction transaction(*database);
        Hire(*database, QStringList(200, QString(3000, 'y')));
        database->Execute("DELETE FROM Staff WHERE Name = 'before'");
        WriteFile(NotesOf(0));
        pause();
        return 0;
    });
    WaitUntil([this] { return QFile::exists(NotesOf(0)); });
    EXPECT_GT(QFileInfo(File()).size(), 500000) << "the file was in the midst of being written";
    Kill(child);
    EXPECT_EQ(List("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(List("SELECT Name FROM Staff"), "before");
}
} // namespace
