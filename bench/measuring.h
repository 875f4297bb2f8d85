#pragma once

#include "big_company.h"

#include <QList>

#include <functional>
#include <memory>

/// What a work may cost: so many floors and so many milliseconds at the speed of the reference.
struct Bar
{
    double Floors = 0;
    double Milliseconds = 0;
};

/// The engine's share of a work. `Statements`: a connection is opened and the statements that the work runs are run
/// again, without the program. `Commit`: only those that write, in one transaction over an open connection.
enum class Floor
{
    Statements,
    Commit
};

/// A work of the program that is measured again and again. Only Work is timed.
class Measured
{
public:
    explicit Measured(BigCompany& company) : company_(company) {}
    virtual ~Measured() = default;

    virtual void Prepare() {}
    virtual void Work() = 0;
    virtual void CleanUp() {}

    BigCompany& Company() { return company_; }

private:
    BigCompany& company_;
};

using MakeMeasured = std::function<std::unique_ptr<Measured>(BigCompany&)>;
void Register(const char* name, BigCompany& company, Floor floor, const Bar& bar, const MakeMeasured& make);

/// Registers the work `Kind`, made when its turn comes.
template <typename Kind>
void Register(const char* name, BigCompany& company, Floor floor, const Bar& bar)
{
    Register(name, company, floor, bar, [](BigCompany& of) { return std::make_unique<Kind>(of); });
}

/// Prints what was measured beside floor and bar, all as medians in milliseconds. True when every bar is met.
bool TellVerdicts();

void RegisterCalendar(BigCompany& company);
void RegisterAttendance(BigCompany& company);
void RegisterApproval(BigCompany& company);
void RegisterLists(BigCompany& company);
void RegisterEmployees(BigCompany& company);
void RegisterCategories(BigCompany& company);
