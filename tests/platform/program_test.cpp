#include "platform/engine_fixture.h"
#include "platform/program.h"
#include "support/house.h"

#include <QDir>

#include <sys/stat.h>

namespace
{
TEST(NativePathTest, EachPartIsFoundWhateverItsLetterCase)
{
    const QTemporaryDir root;
    const QString folder = root.path() + "/Données/2026/";
    QDir().mkpath(folder);
    WriteFile(folder + "Tarvell.mdb");
    const std::pair<QString, QString> paths[] = {
        {root.path() + "\\DONNÉES\\2026\\TARVELL.MDB", folder + "Tarvell.mdb"},
        {root.path() + "/données\\2026//tarvell.mdb", folder + "Tarvell.mdb"},
        // what is not there yet keeps its spelling inside the folder that is
        {root.path() + "\\données\\2027\\New.mdb", root.path() + "/Données/2027/New.mdb"},
        {JoinPath(root.path(), "Données"), root.path() + "/Données"},
        {"", ""}};
    for (const auto& [path, native] : paths)
        EXPECT_EQ(NativePath(path), native);
    WriteFile(folder + "TARVELL.MDB");
    EXPECT_EQ(NativePath(folder + "TARVELL.MDB"), folder + "TARVELL.MDB") << "the exact name goes before its likes";
    EXPECT_EQ(NativePath("..\\" + QDir::current().dirName().toUpper()), "../" + QDir::current().dirName());
}

/// Installed in a folder that users may not write, the program keeps its files with the user.
TEST(ProgramFolderTest, AUserWithoutRightsGetsTheDeliveredDatabasesInAFolderOfTheirOwn)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "the owner of the program's folder may write in it";
    const QTemporaryDir home;
    const QTemporaryDir delivered;
    for (const QString& folder : {home.path(), delivered.path()})
        chmod(qPrintable(folder), 0777);
    for (const char* name : {"/Tarvell.mdb", "/Config.mdb"}) {
        QFile::copy(House::DeliveredFolder() + name, delivered.path() + name);
        QFile::setPermissions(delivered.path() + name, QFile::ReadOwner | QFile::ReadOther);
    }
    const auto start = [&] {
        qputenv("HOME", home.path().toUtf8());
        qunsetenv("XDG_DATA_HOME");
        PrepareProgramFolder(delivered.path());
        if (!ProgramFolder().startsWith(home.path()))
            return 1;
        const auto config = Database::Open(JoinPath(ProgramFolder(), "config.mdb"), "p3n8Rw62jq0d");
        config->Execute("INSERT INTO Configuration (DatabaseName) VALUES ('Tarvell.mdb')");
        const int rows = config->OpenRecordset("SELECT * FROM Configuration").RecordCount();
        return QFile::exists(NativePath(JoinPath(ProgramFolder(), "Tarvell.mdb"))) ? 10 + rows : 2;
    };
    const QString away = delivered.path() + "/away.mdb";
    ASSERT_TRUE(QFile::rename(delivered.path() + "/Tarvell.mdb", away));
    const auto fails = [&] {
        qputenv("HOME", home.path().toUtf8());
        PrepareProgramFolder(delivered.path());
        return QFile::exists(ProgramFolder() + "/Config.mdb") ? 1 : 0;
    };
    EXPECT_EQ(AsOrdinaryUser(fails), 0) << "a half-made folder would stay half-made";
    ASSERT_TRUE(QFile::rename(away, delivered.path() + "/Tarvell.mdb"));
    EXPECT_EQ(AsOrdinaryUser(start), 11);
    EXPECT_EQ(AsOrdinaryUser(start), 12) << "the second start finds the files of the first";
}
} // namespace
