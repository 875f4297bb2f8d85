#pragma once

#include "platform/dao/dao.h"

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

/// The number of the engine's failure that `work` throws, 0 when it throws none.
inline int FailureOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const RuntimeError& error) {
        EXPECT_FALSE(error.Description.isEmpty());
        return error.Number;
    }
    return 0;
}

/// Runs `work` in a process of its own that has no more rights than an ordinary user, and returns its result. No
/// database may be open here meanwhile.
inline int AsOrdinaryUser(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        const bool ordinary = geteuid() != 0 || (setegid(nobody) == 0 && seteuid(nobody) == 0);
        _exit(ordinary ? work() : 99);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A folder with one database of a single table.
class EngineTest : public testing::Test
{
protected:
    EngineTest()
    {
        Database::Create(File(), kPassword,
                         "CREATE TABLE Staff (RecordID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT COLLATE NOCASE,"
                         " Hours SINGLE_REAL, Days INTEGER, Seen DATETIME);");
    }

    QString File(const QString& name = "Staff.mdb") const { return folder_.path() + "/" + name; }
    std::unique_ptr<Database> Open() const { return Database::Open(File(), kPassword); }
    void Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(File(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// The first column of a result, joined by commas.
    static QString List(Database& database, const QString& sql, const Values& values = {})
    {
        QStringList cells;
        for (const Recordset& rows : database.OpenRecordset(sql, values))
            cells += rows.Text(rows.Columns().first());
        return cells.join(',');
    }
    QString List(const QString& sql, const Values& values = {}) const { return List(*Open(), sql, values); }

    const QString kPassword = QStringLiteral("Sésame");
    QTemporaryDir folder_;
};
