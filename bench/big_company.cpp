#include "big_company.h"

#include "foundation/connection.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

namespace
{
QByteArray ReadScript(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Complain("cannot read " + path);
    return file.readAll();
}

QString StampOf(const QByteArray& script)
{
    return QString::fromLatin1(QCryptographicHash::hash(script, QCryptographicHash::Sha1).toHex().left(12));
}

/// Under another name until it is whole, so that a broken run leaves nothing that looks finished.
void MakeDatabase(const QString& file, const QByteArray& script)
{
    std::puts("Making the big company, once for this schema...");
    QElapsedTimer timer;
    timer.start();
    Database::Create(file + ".part", kDatabasePassword, QString::fromUtf8(script));
    if (!QFile::rename(file + ".part", file))
        Complain("cannot make " + file);
    std::printf("Made in %.0f s: %s\n", timer.elapsed() / 1000.0, qPrintable(file));
}
} // namespace

BigCompany::BigCompany(const QString& folder)
{
    const QByteArray script =
        ReadScript(QStringLiteral(TARVELL_DATA_FOLDER) + "/tarvell.sql") + ReadScript(BIG_COMPANY_SCRIPT);
    folder_ = folder + "/" + StampOf(script);
    if (!QFile::exists(DatabaseFile())) {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder_);
        MakeDatabase(DatabaseFile(), script);
    }
    SessionState.DatabasePath = folder_;
    house_.Configured();
}

void BigCompany::LogIn(const QString& loginID)
{
    SessionState = Session();
    SessionState.DatabasePath = folder_;
    house_.LogIn(loginID);
}

int BigCompany::Number(const QString& sql)
{
    const auto database = Database::Open(DatabaseFile(), kDatabasePassword);
    const Recordset rows = database->OpenRecordset(sql);
    return rows.AtEnd() ? 0 : rows.Long(rows.Columns().first());
}

void BigCompany::Sql(const QString& sql)
{
    Database::Open(DatabaseFile(), kDatabasePassword)->Execute(sql);
}
