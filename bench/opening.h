#pragma once

#include "measuring.h"
#include "support/user.h"

/// A form with a list of the whole company: made of what the functions `Arguments` give, loaded and painted.
template <typename Form, auto... Arguments>
class Opening : public Measured
{
public:
    explicit Opening(BigCompany& company) : Measured(company) { company.LogIn("U0001"); }

    void Work() override { user_.Opens<Form>(Arguments()...); }
    void CleanUp() override { user_.Leaves(); }

private:
    User user_;
};
