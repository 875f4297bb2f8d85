#pragma once

#include "measuring.h"
#include "platform/clock.h"
#include "support/user.h"

/// A form with a list of the whole company: made, loaded and painted.
template <typename Form>
class Opening : public Measured
{
public:
    explicit Opening(BigCompany& company) : Measured(company)
    {
        company.LogIn("U0001");
        SessionState.AttendanceDates = {SerialOfDate({2026, 12, 31})};
    }

    void Work() override { user_.Opens<Form>(); }
    void CleanUp() override { user_.Leaves(); }

private:
    User user_;
};
