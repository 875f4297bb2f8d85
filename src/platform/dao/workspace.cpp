#include "platform/dao/dao.h"

namespace
{
/// What follows "PWD=" in a connect string, up to the next semicolon.
QString PasswordOf(const QString& connect)
{
    constexpr QLatin1String mark("PWD=");
    for (const QString& part : connect.split(';'))
        if (part.startsWith(mark, Qt::CaseInsensitive))
            return part.mid(mark.size());
    return {};
}

bool IsConnectionLost(const RuntimeError& error)
{
    return error.Number == EngineError::ObjectNotSet || error.Number == EngineError::ConnectionLost;
}
} // namespace

std::function<void(DataControl&)> DataControl::Reconnect;

Database& Workspace::OpenDatabase(const QString& path, const QString& connect)
{
    database_ = Database::Open(path, PasswordOf(connect));
    return *database_;
}

Database& Workspace::Current()
{
    if (!database_)
        throw RuntimeError(EngineError::ObjectNotSet, "No database is open.");
    return *database_;
}

Workspace& DefaultWorkspace()
{
    static Workspace workspace;
    return workspace;
}

Recordset DataControl::ReadResumed(const QString& sql, const Values& values)
{
    try {
        return Engine().OpenRecordset(sql, values);
    } catch (const RuntimeError& error) {
        if (!IsConnectionLost(error) || !Reconnect)
            return {};
    }
    try {
        Reconnect(*this);
        return Engine().OpenRecordset(sql, values);
    } catch (const RuntimeError&) {
        return {};
    }
}
