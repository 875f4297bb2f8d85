#include "platform/dao/engine_thread.h"
#include "platform/dao/file_system.h"
#include "platform/engine_fixture.h"
#include "support/file_calls.h"

#include <QElapsedTimer>

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
        SetWaitingSign({});
        SetLockCall(nullptr);
        Database::LockWait = wait_;
    }
    int FailureOfOpening(const QString& name, const QString& password) const
    {
        return FailureOf([&] { Database::Open(File(name), password); });
    }

private:
    const int wait_ = Database::LockWait;
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

    const std::tuple<QString, const char*, int> cases[] = {
        {"Staff.mdb", "Sésame", 0},
        {"Staff.mdb", "sésame", EngineError::WrongPassword},
        {"Staff.mdb", "", EngineError::WrongPassword},
        {"missing.mdb", "Sésame", EngineError::FileNotFound},
        {"", "Sésame", EngineError::FileNotFound}, // a folder is no file
        {QString(300, 'x'), "Sésame", EngineError::CannotOpen},
        {QString("./").repeated(300) + "Staff.mdb", "Sésame", 0},
        {QString(QString(200, 'x') + "/").repeated(3), "Sésame", EngineError::CannotOpen},
        {"letter.mdb", "Sésame", EngineError::ForeignFile},
        {"empty.mdb", "Sésame", EngineError::ForeignFile},
        {"foreign.mdb", "Sésame", EngineError::ForeignFile},
    };
    for (const auto& [name, password, number] : cases)
        EXPECT_EQ(FailureOfOpening(name, password), number) << qPrintable(name.left(20));
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
    EXPECT_EQ(Database::LockWait, 30'000);
    Database::LockWait = 60;
    const auto other = Open();
    const auto mine = Open();
    other->Execute("BEGIN EXCLUSIVE");
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(FailureOfOpening("Staff.mdb", kPassword), EngineError::Locked);
    EXPECT_GE(waited.elapsed(), 60);
    QList<bool> shown;
    SetWaitingSign([&](bool waiting) { shown << waiting; });
    Database::LockWait = 1100;
    EXPECT_EQ(FailureOf([&] { mine->OpenRecordset("SELECT * FROM Staff"); }), EngineError::Locked);
    EXPECT_TRUE(shown.value(0)) << "a wait of more than a second is shown";
    EXPECT_EQ(shown.indexOf(false), shown.size() - 1) << "until it ends";

    Database::LockWait = 0;
    other->Execute("COMMIT");
    other->Execute("BEGIN IMMEDIATE");
    EXPECT_EQ(List(*mine, "SELECT COUNT(*) FROM Staff"), "0") << "a writer does not keep readers out";
    EXPECT_EQ(FailureOf([&] { mine->Execute("DELETE FROM Staff"); }), EngineError::Locked);
    EXPECT_EQ(FailureOf([&] { Transaction mineToo(*mine); }), EngineError::Locked);
    EXPECT_FALSE(mine->IsInTransaction());
}

TEST_F(Opening, AFolderThatCannotLockIsNotTakenForAnotherUser)
{
    const auto mine = Open();
    SetLockCall([](int, int, void*) {
        errno = ENOLCK;
        return -1;
    });
    EXPECT_EQ(FailureOfOpening("Staff.mdb", kPassword), EngineError::LockRefused);
    EXPECT_EQ(FailureOf([&] { Hire(*mine, {"Anne"}); }), EngineError::LockRefused);
    SetLockCall(nullptr);
    Hire(*mine, {"Benoît"});
    EXPECT_EQ(List("SELECT Name FROM Staff"), "Benoît");
}

TEST_F(Opening, AWriteAheadLogIsTurnedOffOrTheFileRefused)
{
    Database::LockWait = 0;
    OpenShared();
    DefaultWorkspace().Close();
    sqlite3* tool = nullptr;
    sqlite3_open(qPrintable(File()), &tool);
    sqlite3_exec(tool, "PRAGMA journal_mode = wal; SELECT * FROM Staff", nullptr, nullptr, nullptr);
    EXPECT_EQ(FailureOf([this] { OpenShared(); }), EngineError::Locked) << "somebody works with the log";
    sqlite3_close(tool);
    EXPECT_EQ(List(OpenShared(), "PRAGMA journal_mode"), "delete");
}

TEST_F(Opening, ANewFileIsForAllWhoMayWriteInItsFolder)
{
    const auto modeIn = [this](mode_t folder) {
        chmod(qPrintable(folder_.path()), folder);
        Database::Create(File(), "x", "CREATE TABLE A (B);");
        struct stat made;
        stat(qPrintable(File()), &made);
        return made.st_mode & 0777;
    };
    EXPECT_EQ(modeIn(0770), 0660);
    EXPECT_EQ(modeIn(0755), 0644);
    EXPECT_EQ(modeIn(0700), 0600);
}

TEST_F(Opening, AFileClosedStaysAtHandWhileItLiesInItsPlace)
{
    FileCalls calls;
    const auto names = [this] {
        const QString found = List(OpenShared(), "SELECT Name FROM Staff");
        DefaultWorkspace().Close();
        return found;
    };
    Hire(*Open(), {"Anne"});
    EXPECT_EQ(names(), "Anne");
    calls.StartCounting();
    EXPECT_EQ(names(), "Anne");
    EXPECT_EQ(calls.Of(FileCall::Open), 0);
    EXPECT_LE(calls.All(), 7);
    Hire(*Open(), {"Benoît"});
    EXPECT_EQ(names(), "Anne,Benoît") << "what others write is seen";
    calls.Fail(FileCall::Read, 1, SQLITE_IOERR_READ, true);
    EXPECT_EQ(names(), "Anne,Benoît") << "a handle that the server has forgotten is opened again";
    Database::LockWait = 0;
    auto other = Open();
    other->Execute("BEGIN EXCLUSIVE");
    EXPECT_EQ(FailureOf([&] { names(); }), EngineError::Locked);
    other.reset();

    Database::Create(File("Other.mdb"), kPassword, "CREATE TABLE Staff (Name TEXT); INSERT INTO Staff VALUES ('Zoé');");
    ASSERT_TRUE(QFile::remove(File()) && QFile::rename(File("Other.mdb"), File()));
    EXPECT_EQ(names(), "Zoé") << "another file in its place";
    QFile::remove(File());
    EXPECT_EQ(FailureOf([&] { names(); }), EngineError::FileNotFound);
}

TEST_F(Opening, WhatIsReadTogetherIsBehindOneLockThatNobodyHoldsInFrontOfAForm)
{
    Database::LockWait = 0;
    const auto other = Open();
    FileCalls calls;
    Database& mine = OpenShared();
    calls.StartCounting();
    for (int times = 0; times < 5; ++times)
        mine.OpenRecordset("SELECT * FROM Staff");
    EXPECT_LE(calls.All(), 2) << "the rows alone";
    EXPECT_EQ(FailureOf([&] { Hire(*other, {"Anne"}); }), EngineError::Locked);
    DefaultWorkspace().PauseReading();
    Hire(*other, {"Anne"});
    EXPECT_EQ(List(mine, "SELECT Name FROM Staff"), "Anne");
    Hire(mine, {"Benoît"});
    Hire(*other, {"Chloé"});
    EXPECT_EQ(List(mine, "SELECT Name FROM Staff"), "Anne,Benoît,Chloé") << "nothing is held after writing either";
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
    OpenShared();
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qint64 page = 4096; page < file.size(); page += 4096) {
        file.seek(page);
        file.write(QByteArray(200, '\xee'));
    }
    file.close();
    EXPECT_EQ(FailureOf([this] { List("SELECT Name FROM Staff"); }), EngineError::Damaged);
    EXPECT_THROW(DataControl("frmTest").Read("SELECT Name FROM Staff"), ConnectionFailed) << "nothing shown is true";
}

TEST_F(Opening, ALostConnectionIsRestoredOnceAndAMisspeltStatementIsTold)
{
    Hire(*Open(), {"Anne"});
    int restored = 0;
    DataControl datAbsence("frmTest");
    EXPECT_THROW(datAbsence.Read("SELECT * FROM Staff"), ConnectionFailed) << "nothing is open, nobody can restore it";

    DataControl::Reconnect = [&](DataControl&) {
        ++restored;
        OpenShared();
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
        DefaultWorkspace().Forget();
        EXPECT_EQ(FailureOf([&] { datAbsence.Read(sql); }), number) << "nor after a new connection: " << sql;
    }
    EXPECT_EQ(restored, 5) << "a bad statement is no lost connection";

    DataControl::Reconnect = [&](DataControl&) { ++restored; };
    DefaultWorkspace().Forget();
    EXPECT_THROW(datAbsence.Read("SELECT * FROM Staff"), ConnectionFailed);
    EXPECT_EQ(restored, 6) << "a read is repeated once, not for ever";
}
} // namespace
