#include "platform/dao/server.h"

namespace
{
const bool* serverChosen = nullptr;

std::function<void(const QString&)>& ServerSink()
{
    static std::function<void(const QString&)> sink;
    return sink;
}

QString Literal(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return "'" + value.toString() + "'";
    if (value.typeId() == QMetaType::Float)
        return QString::number(value.toFloat(), 'g', 7);
    return value.toString();
}
} // namespace

bool IsServerChosen()
{
    return serverChosen != nullptr && *serverChosen;
}

bool FollowServerChoice(const bool& chosen)
{
    serverChosen = &chosen;
    return true;
}

void SendToServer(const QString& statement)
{
    if (ServerSink())
        ServerSink()(statement);
}

void SetServerSink(std::function<void(const QString&)> sink)
{
    ServerSink() = std::move(sink);
}

QString ServerStatement(const QString& sql, const Values& values)
{
    const QStringList parts = sql.split('?');
    QString statement = parts.first();
    for (qsizetype i = 1; i < parts.size(); ++i)
        statement += Literal(values.value(i - 1)) + parts[i];
    return statement;
}
