#pragma once

#include "foundation/connection.h"

#include <QByteArray>
#include <QList>

/// The statements that the program's connection runs while this lives, in order and with their values filled in. It
/// keeps the file open, so that one connection serves all.
class StatementTrace
{
public:
    StatementTrace();
    ~StatementTrace();
    StatementTrace(const StatementTrace&) = delete;
    StatementTrace& operator=(const StatementTrace&) = delete;

    const QList<QByteArray>& Statements() const { return statements_; }

private:
    static int Add(unsigned kind, void* trace, void* statement, void* text);

    DataControl datAbsence_{"StatementTrace"};
    Connection connection_{datAbsence_};
    QList<QByteArray> statements_;
};
