#pragma once

#include "platform/dao/dao.h"
#include "support/house.h"

#include <QFile>

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

    ~EngineTest() override { DefaultWorkspace().Forget(); }

    QString File(const QString& name = "Staff.mdb") const { return folder_.path() + "/" + name; }
    std::unique_ptr<Database> Open() const { return Database::Open(File(), kPassword); }
    /// Opens it as the program does.
    Database& OpenShared() const { return DefaultWorkspace().OpenDatabase(File(), ";PWD=" + kPassword); }
    /// A result as one text: records joined by commas, columns by "|".
    static QString List(Database& database, const QString& sql, const Values& values = {})
    {
        return RowsOf(database, sql, values).replace('\n', ',');
    }
    QString List(const QString& sql) const { return List(*Open(), sql); }
    /// Adds a person, or several.
    static void Hire(Database& database, const QStringList& names)
    {
        for (const QString& name : names)
            database.Execute("INSERT INTO Staff (Name, Hours, Days) VALUES (?, 7.5, 1)", {name});
    }

    const QString kPassword = QStringLiteral("Sésame");
    QTemporaryDir folder_;
};
