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

/// How a failed reading is told: without the file, or with a damaged one, nothing that is shown would be true.
[[noreturn]] void ThrowOfReading(const RuntimeError& error)
{
    if (error.Number == EngineError::Damaged || error.Number == EngineError::ForeignFile ||
        (IsConnectionLost(error) && !DefaultWorkspace().IsInTransaction()))
        throw ConnectionFailed(error);
    throw; // as it is
}
} // namespace

std::function<void(DataControl&)> DataControl::Reconnect;

Database& Workspace::OpenDatabase(const QString& path, const QString& connect)
{
    database_.reset();
    if (!Reopen(path, connect)) {
        kept_.reset();
        kept_ = Database::Open(path, PasswordOf(connect));
        path_ = path;
        connect_ = connect;
        kept_->BeginReading();
    }
    database_ = std::move(kept_);
    return *database_;
}

/// False when the file at hand is another one, or cannot be read any more.
bool Workspace::Reopen(const QString& path, const QString& connect)
{
    if (!kept_ || path != path_ || connect != connect_)
        return false;
    try {
        kept_->BeginReading();
    } catch (const RuntimeError& error) {
        if (error.Number == EngineError::Locked || error.Number == EngineError::LockRefused)
            throw;
        return false;
    }
    return true;
}

void Workspace::Close()
{
    if (!database_ || database_->IsInTransaction())
        return Forget();
    database_->EndReading();
    kept_ = std::move(database_);
}

void Workspace::PauseReading()
{
    if (database_)
        database_->PauseReading();
}

void Workspace::Forget()
{
    database_.reset();
    kept_.reset();
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

Recordset DataControl::ReadRestoring(const QString& sql, const Values& values)
{
    try {
        return OpenResult(sql, values);
    } catch (const RuntimeError& error) {
        if (!IsConnectionLost(error) || !Reconnect || DefaultWorkspace().IsInTransaction())
            ThrowOfReading(error);
    }
    try {
        Reconnect(*this);
        return OpenResult(sql, values);
    } catch (const RuntimeError& error) {
        ThrowOfReading(error);
    }
}
