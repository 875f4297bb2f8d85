#include "platform/dao/server.h"

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
/// A fault of the program itself must not pass for an empty result, and a lost connection not for one in the middle of
/// a transaction, which is over then.
bool MayBeResumed(const RuntimeError& error)
{
    switch (error.Number) {
    case EngineError::UnknownName:
    case EngineError::StatementError:
    case EngineError::NoSuchTable:
    case EngineError::NoSuchField:
        return false;
    default:
        return !IsConnectionLost(error) || !DefaultWorkspace().IsInTransaction();
    }
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

Recordset DataControl::OpenResult(const QString& sql, const Values& values)
{
    return IsServerChosen() ? Recordset() : Engine().OpenRecordset(sql, values);
}

int DataControl::Run(const QString& sql, const Values& values)
{
    if (!IsServerChosen())
        return Engine().Execute(sql, values);
    SendToServer(ServerStatement(sql, values));
    return 1;
}

int DataControl::LastKey() const
{
    return IsServerChosen() ? 0 : Engine().LastKey();
}

Recordset DataControl::ReadResumed(const QString& sql, const Values& values)
{
    try {
        return OpenResult(sql, values);
    } catch (const RuntimeError& error) {
        if (!MayBeResumed(error))
            throw;
        if (!IsConnectionLost(error) || !Reconnect)
            return {};
    }
    try {
        Reconnect(*this);
        return OpenResult(sql, values);
    } catch (const RuntimeError& error) {
        if (!MayBeResumed(error))
            throw;
        return {};
    }
}
