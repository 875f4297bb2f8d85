#pragma once

#include <QString>

/// How fast the machine is just now. A fixed piece of work without the program, half reading and half painting: 10,000
/// rows through the raw engine, and 837 cells of text through the raw painter.
class Yardstick
{
public:
    /// What it took, in milliseconds, on the machine and in the hour for which the bars are told.
    static constexpr double kReference = 20.0;

    explicit Yardstick(const QString& databaseFile) : file_(databaseFile) {}
    void Run() const;

private:
    QString file_;
};
