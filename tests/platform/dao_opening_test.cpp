#include "platform/engine_fixture.h"

#include <QElapsedTimer>
#include <QScopeGuard>

#include <sqlite3.h>
#include <sys/stat.h>

namespace
{
class Opening : public EngineTest
{
protected:
    ~Opening() override
    {
        DataControl::Reconnect = {};
        DefaultWorkspace().Close();
    }
    int FailureOfOpening(const QString& name, const QString& password) const
    {
        return FailureOf([&] { Database::Open(File(name), password); });
    }
};

TEST_F(Opening, EachObstacleHasItsNumber)
{
    WriteFile(File("letter.mdb"),
              "Dear colleague, this is no database at all, whatever its name says. " + QByteArray(2000, 'x'));
    WriteFile(File("empty.mdb"));
    sqlite3* foreign = nullptr;
    sqlite3_open(qPrintable(File("foreign.mdb")), &foreign);
    sqlite3_exec(foreign, "CREATE TABLE FilePassword (Salt TEXT, Hash TEXT)", nullptr, nullptr, nullptr);
    sqlite3_close(foreign);

    const std::tuple<const char*, const char*, int> cases[] = {
        {"Staff.mdb", "Sésame", 0},
        {"Staff.mdb", "sésame", EngineError::WrongPassword},
        {"Staff.mdb", "", EngineError::WrongPassword},
        {"missing.mdb", "Sésame", EngineError::FileNotFound},
        {"", "Sésame", EngineError::FileNotFound}, // a folder is no file
        {"letter.mdb", "Sésame", EngineError::ForeignFile},
        {"empty.mdb", "Sésame", EngineError::ForeignFile},
        {"foreign.mdb", "Sésame", EngineError::ForeignFile},
    };
    for (const auto& [name, password, number] : cases)
        EXPECT_EQ(FailureOfOpening(name, password), number) << name;
    EXPECT_FALSE(QFile::exists(File("missing.mdb"))) << "opening makes no file";

    EXPECT_EQ(FailureOf([this] { Database::Create(File("New.mdb"), "x", "CREATE TABLE A (B); CREATE TABLE A (B);"); }),
              EngineError::TableExists);
    EXPECT_FALSE(QFile::exists(File("New.mdb"))) << "a failed creation leaves no file";
    Database::Create(File(), "new", "CREATE TABLE A (B);");
    EXPECT_EQ(FailureOfOpening("Staff.mdb", "new"), 0) << "a new file takes the place of another";
}

TEST_F(Opening, AUserWithoutRightsIsToldSo)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "the owner of the folder may write in it";
    chmod(qPrintable(folder_.path()), 0755);
    const auto failure = [this](mode_t mode, bool writing) {
        chmod(qPrintable(File()), mode);
        return AsOrdinaryUser([&] {
            const int number = FailureOf([&] {
                const auto database = Open();
                if (writing)
                    Hire(*database, {"Anne"});
            });
            return number == 0 ? 0 : number - 3000;
        });
    };
    EXPECT_EQ(failure(0600, false), EngineError::CannotOpen - 3000);
    EXPECT_EQ(failure(0644, false), 0) << "what may be read can be opened";
    EXPECT_EQ(failure(0644, true), EngineError::ReadOnly - 3000);
    EXPECT_NE(failure(0666, true), 0) << "the folder has no room for the journal";
    EXPECT_EQ(List("SELECT COUNT(*) FROM Staff"), "0");
}

TEST_F(Opening, AFileThatAnotherHoldsIsWaitedForAndThenReportedAsLocked)
{
    const auto restore = qScopeGuard([wait = Database::LockWait] { Database::LockWait = wait; });
    EXPECT_GE(Database::LockWait, 1000);
    Database::LockWait = 60;
    const auto other = Open();
    const auto mine = Open();
    other->Execute("BEGIN EXCLUSIVE");
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(FailureOfOpening("Staff.mdb", kPassword), EngineError::Locked);
    EXPECT_GE(waited.elapsed(), 60);
    EXPECT_EQ(FailureOf([&] { mine->OpenRecordset("SELECT * FROM Staff"); }), EngineError::Locked);
    other->Execute("COMMIT");
    other->Execute("BEGIN IMMEDIATE");
    EXPECT_EQ(List(*mine, "SELECT COUNT(*) FROM Staff"), "0") << "a writer does not keep readers out";
    EXPECT_EQ(FailureOf([&] { mine->Execute("DELETE FROM Staff"); }), EngineError::Locked);
    EXPECT_EQ(FailureOf([&] { Transaction mineToo(*mine); }), EngineError::Locked);
    EXPECT_FALSE(mine->IsInTransaction());
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

TEST_F(Opening, AFullDiskADamagedFileAndAVanishedOneAreReportedAndCommittedRowsStay)
{
    auto database = Open();
    Hire(*database, {"Anne"});
    database->Execute("PRAGMA max_page_count = 6");
    EXPECT_EQ(FailureOf([&] { Hire(*database, {QString(100000, 'x')}); }), EngineError::DiskFull);
    EXPECT_EQ(List("SELECT Name FROM Staff"), "Anne");

    ASSERT_TRUE(QFile::rename(File(), File("Away.mdb")));
    EXPECT_EQ(FailureOf([&] { database->OpenRecordset("SELECT * FROM Staff"); }), EngineError::ConnectionLost);
    EXPECT_EQ(FailureOf([&] { Hire(*database, {"Zoé"}); }), EngineError::DiskError);
    database.reset();

    ASSERT_TRUE(QFile::rename(File("Away.mdb"), File()));
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qint64 page = 4096; page < file.size(); page += 4096) {
        file.seek(page);
        file.write(QByteArray(200, '\xee'));
    }
    file.close();
    EXPECT_EQ(FailureOf([this] { List("SELECT Name FROM Staff"); }), EngineError::Damaged);
}

TEST_F(Opening, ALostConnectionIsRestoredOnceAndAMisspeltStatementIsTold)
{
    Hire(*Open(), {"Anne"});
    int restored = 0;
    DataControl datAbsence("frmTest");
    EXPECT_FALSE(datAbsence.Read("SELECT * FROM Staff")) << "nothing is open and nobody can restore it";

    DataControl::Reconnect = [&](DataControl&) {
        ++restored;
        DefaultWorkspace().OpenDatabase(File(), ";PWD=" + kPassword);
    };
    EXPECT_TRUE(datAbsence.Read("SELECT * FROM Staff WHERE Name = ?", "ANNE"));
    EXPECT_EQ(restored, 1);
    EXPECT_EQ(datAbsence.Scalar<int>("SELECT Days FROM Staff"), 1);
    EXPECT_EQ(datAbsence.Scalar<int>("SELECT Days FROM Staff WHERE Name = 'Zoé'"), 0);
    const std::pair<const char*, int> misspelt[] = {
        {"SELECT * FROM Nowhere", EngineError::NoSuchTable},
        {"SELECT Salary FROM Staff", EngineError::UnknownName},
        {"SELECT * FROM Staff WHERE RecordID = ?", EngineError::UnknownName},
        {"SELEKT", EngineError::StatementError}};
    for (const auto& [sql, number] : misspelt) {
        EXPECT_EQ(FailureOf([&] { datAbsence.Read(sql); }), number) << "no empty result: " << sql;
        DefaultWorkspace().Close();
        EXPECT_EQ(FailureOf([&] { datAbsence.Read(sql); }), number) << "nor after a new connection: " << sql;
    }
    EXPECT_EQ(restored, 5) << "a bad statement is no lost connection";

    DataControl::Reconnect = [&](DataControl&) { ++restored; };
    DefaultWorkspace().Close();
    EXPECT_FALSE(datAbsence.Read("SELECT * FROM Staff"));
    EXPECT_EQ(restored, 6) << "a read is repeated once, not for ever";
}
} // namespace
