#include "platform/engine_fixture.h"

#include <QScopeGuard>

#include <sqlite3.h>
#include <sys/stat.h>

namespace
{
class Opening : public EngineTest
{
protected:
    int FailureOfOpening(const QString& name, const QString& password) const
    {
        return FailureOf([&] { Database::Open(File(name), password); });
    }
};

TEST_F(Opening, EachObstacleHasItsNumber)
{
    Write("letter.mdb", "Dear colleague, this is no database at all, whatever its name says. " + QByteArray(2000, 'x'));
    Write("empty.mdb", "");
    sqlite3* foreign = nullptr;
    sqlite3_open(qPrintable(File("foreign.mdb")), &foreign);
    sqlite3_exec(foreign, "CREATE TABLE Songs (Title TEXT)", nullptr, nullptr, nullptr);
    sqlite3_close(foreign);

    EXPECT_EQ(FailureOfOpening("Staff.mdb", kPassword), 0);
    EXPECT_EQ(FailureOfOpening("Staff.mdb", "sésame"), EngineError::WrongPassword);
    EXPECT_EQ(FailureOfOpening("Staff.mdb", ""), EngineError::WrongPassword);
    EXPECT_EQ(FailureOfOpening("missing.mdb", kPassword), EngineError::FileNotFound);
    EXPECT_EQ(FailureOfOpening("", kPassword), EngineError::FileNotFound) << "a folder is no file";
    for (const char* name : {"letter.mdb", "empty.mdb", "foreign.mdb"})
        EXPECT_EQ(FailureOfOpening(name, kPassword), EngineError::ForeignFile) << name;
    EXPECT_FALSE(QFile::exists(File("missing.mdb"))) << "opening makes no file";
}

TEST_F(Opening, AUserWithoutRightsIsToldSo)
{
    chmod(qPrintable(folder_.path()), 0755);
    const auto failure = [this](mode_t mode, bool writing) {
        chmod(qPrintable(File()), mode);
        return AsOrdinaryUser([&] {
            const int number = FailureOf([&] {
                const auto database = Open();
                if (writing)
                    database->Execute("INSERT INTO Staff (Name) VALUES ('Anne')");
            });
            return number == 0 ? 0 : number - 3000;
        });
    };
    if (geteuid() != 0)
        GTEST_SKIP() << "the owner of the folder may write in it";
    EXPECT_EQ(failure(0600, false), EngineError::CannotOpen - 3000);
    EXPECT_EQ(failure(0644, false), 0) << "what may be read can be opened";
    EXPECT_EQ(failure(0644, true), EngineError::ReadOnly - 3000);
    EXPECT_NE(failure(0666, true), 0) << "the folder has no room for the journal";
    EXPECT_EQ(List("SELECT COUNT(*) FROM Staff"), "0");
}

TEST_F(Opening, AFileThatAnotherHoldsIsWaitedForAndThenReportedAsLocked)
{
    const auto restore = qScopeGuard([wait = Database::LockWait] { Database::LockWait = wait; });
    Database::LockWait = 60;
    const auto other = Open();
    const auto mine = Open();
    other->Execute("BEGIN EXCLUSIVE");
    EXPECT_EQ(FailureOfOpening("Staff.mdb", kPassword), EngineError::Locked);
    EXPECT_EQ(FailureOf([&] { mine->OpenRecordset("SELECT * FROM Staff"); }), EngineError::Locked);
    other->Execute("COMMIT");
    other->Execute("BEGIN IMMEDIATE");
    EXPECT_EQ(List(*mine, "SELECT COUNT(*) FROM Staff"), "0") << "a writer does not keep readers out";
    EXPECT_EQ(FailureOf([&] { mine->Execute("DELETE FROM Staff"); }), EngineError::Locked);
    EXPECT_EQ(FailureOf([&] { Transaction mineToo(*mine); }), EngineError::Locked);
}

TEST_F(Opening, BothSeparatorsAndAnyLetterCaseFindTheFile)
{
    QDir(folder_.path()).mkdir("Données");
    ASSERT_TRUE(QFile::rename(File(), File("Données/Staff.mdb")));
    Database& database = DefaultWorkspace().OpenDatabase(folder_.path() + "\\DONNÉES\\staff.MDB", ";pwd=" + kPassword);
    EXPECT_EQ(database.Path(), File("Données/Staff.mdb"));
    EXPECT_EQ(&DefaultWorkspace().Current(), &database);
    DefaultWorkspace().Close();
    EXPECT_EQ(FailureOf([] { DefaultWorkspace().Current(); }), EngineError::ObjectNotSet);
}

TEST_F(Opening, AFileThatVanishesIsALostConnectionToReadersAndADiskErrorToWriters)
{
    const auto database = Open();
    database->Execute("INSERT INTO Staff (Name) VALUES ('Anne')");
    ASSERT_TRUE(QFile::remove(File()));
    EXPECT_EQ(FailureOf([&] { database->OpenRecordset("SELECT * FROM Staff"); }), EngineError::ConnectionLost);
    EXPECT_EQ(FailureOf([&] { database->Execute("UPDATE Staff SET Name = 'Zoé'"); }), EngineError::DiskError);
}

TEST_F(Opening, ADamagedFileAndAFullDiskAreReportedAndCommittedRowsStay)
{
    {
        const auto database = Open();
        database->Execute("INSERT INTO Staff (Name) VALUES ('Anne')");
        database->Execute("PRAGMA max_page_count = 6");
        const QString much(100000, 'x');
        EXPECT_EQ(FailureOf([&] { database->Execute("INSERT INTO Staff (Name) VALUES (?)", {much}); }),
                  EngineError::DiskFull);
    }
    EXPECT_EQ(List("SELECT Name FROM Staff"), "Anne");
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const qint64 page = 4096;
    for (qint64 at = page; at < file.size(); at += page) {
        file.seek(at);
        file.write(QByteArray(200, '\xee'));
    }
    file.close();
    EXPECT_EQ(FailureOf([this] { List("SELECT Name FROM Staff"); }), EngineError::Damaged);
}

TEST_F(Opening, ALostConnectionIsRestoredOnceAndAMisspeltStatementIsTold)
{
    Open()->Execute("INSERT INTO Staff (Name) VALUES ('Anne')");
    int restored = 0;
    const auto restore = qScopeGuard([] {
        DataControl::Reconnect = {};
        DefaultWorkspace().Close();
    });
    DataControl datAbsence("frmTest");
    QString name = "before";
    EXPECT_FALSE(datAbsence.Read("SELECT * FROM Staff")) << "nothing is open and nobody can restore it";

    DataControl::Reconnect = [&](DataControl&) {
        ++restored;
        DefaultWorkspace().OpenDatabase(File(), ";PWD=" + kPassword);
    };
    EXPECT_TRUE(datAbsence.Read("SELECT * FROM Staff WHERE Name = ?", "ANNE"));
    EXPECT_EQ(restored, 1);
    EXPECT_FALSE(datAbsence.Read("SELECT * FROM Staff WHERE Name = 'Zoé'"));
    datAbsence.Take("Name", name);
    EXPECT_EQ(name, "before");
    const std::pair<const char*, int> misspelt[] = {
        {"SELECT * FROM Nowhere", EngineError::NoSuchTable},
        {"SELECT Salary FROM Staff", EngineError::UnknownName},
        {"SELECT * FROM Staff WHERE RecordID = ?", EngineError::UnknownName},
        {"SELEKT", EngineError::StatementError}};
    for (const auto& [sql, number] : misspelt)
        EXPECT_EQ(FailureOf([&] { datAbsence.Read(sql); }), number) << "no empty result: " << sql;
    EXPECT_EQ(FailureOf([&] { datAbsence.Take("Salary", name); }), EngineError::NoSuchField);
    EXPECT_EQ(restored, 1) << "a bad statement is no lost connection";

    DataControl::Reconnect = [&](DataControl&) { ++restored; };
    DefaultWorkspace().Close();
    EXPECT_FALSE(datAbsence.Read("SELECT * FROM Staff"));
    EXPECT_EQ(restored, 2) << "a read is repeated once, not for ever";
}
} // namespace
