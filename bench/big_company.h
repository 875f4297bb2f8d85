#pragma once

#include "support/house.h"

#include <QString>

/// A program folder whose database is that of a company of 1,000 employees with 1,000,000 attendance records, in March
/// of its eleventh year.
class BigCompany
{
public:
    /// Takes the database below `folder`; makes it first, in some minutes, when there is none of the present schema.
    explicit BigCompany(const QString& folder);

    QString DatabaseFile() const { return folder_ + "/Tarvell.mdb"; }
    /// The session after a log-in in the present year. U0001 has every right.
    void LogIn(const QString& loginID);

    /// The first cell of a result as whole number, and a statement that writes.
    int Number(const QString& sql);
    void Sql(const QString& sql);

    /// Records of attendance that the company starts with: what measuring adds has a greater RecordID.
    static constexpr int kRecords = 1'000'000;
    /// An employee of the present year, and a category with an entitlement (RecordIDs).
    static constexpr int kEmployee = 10'501;
    static constexpr int kVacation = 121;

private:
    House house_;
    QString folder_;
};
