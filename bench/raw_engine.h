#pragma once

#include <QByteArray>
#include <QString>

struct sqlite3;

/// The engine of the database without the program: what the same statements cost at the very least. It is set up like
/// a connection of the program, except that texts are compared in the engine's own, cheaper way.
class RawEngine
{
public:
    explicit RawEngine(const QString& file);
    ~RawEngine();
    RawEngine(const RawEngine&) = delete;
    RawEngine& operator=(const RawEngine&) = delete;

    /// Runs a statement and looks at every cell of its result. Ends the program when it fails.
    void Run(const QByteArray& sql);

private:
    sqlite3* handle_ = nullptr;
};
