#include "foundation/connection.h"
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
    for (const char* name : {"TARVELL.MDB", "Tarvell.mdb"})
        EXPECT_EQ(NativePath(root.path() + "/DONNÉES/2026/" + name), folder + name) << "the exact name goes first";
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
    const auto deliver = [&](const QString& name) {
        QFile::copy(House::DeliveredFolder() + name, delivered.path() + name);
        QFile::setPermissions(delivered.path() + name, QFile::ReadOwner | QFile::ReadOther);
    };
    const auto start = [&] {
        return AsOrdinaryUser([&] {
            qputenv("HOME", home.path().toUtf8());
            qunsetenv("XDG_DATA_HOME");
            PrepareProgramFolder(delivered.path());
            const QString folder = ProgramFolder();
            if (!folder.startsWith(home.path()) || !QFile::exists(folder + "/Tarvell.mdb"))
                return QFile::exists(folder + "/Config.mdb") ? 90 : 80;
            const auto config = Database::Open(JoinPath(folder, "config.mdb"), kConfigPassword);
            config->Execute("INSERT INTO Configuration (DatabaseName) VALUES ('Tarvell.mdb')");
            return config->OpenRecordset("SELECT * FROM Configuration").RecordCount();
        });
    };
    deliver("/Config.mdb");
    EXPECT_EQ(start(), 80) << "a half-made folder would stay half-made";
    deliver("/Tarvell.mdb");
    EXPECT_EQ(start(), 1);
    EXPECT_EQ(start(), 2) << "the second start finds the files of the first";
}
} // namespace
