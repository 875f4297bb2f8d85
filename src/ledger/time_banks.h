#pragma once

#include "foundation/explained_balance.h"
#include "foundation/session_state.h"
#include "ledger/live_records.h"
#include "platform/dao/dao.h"

/// What goes into a bank, what comes off it, or the balance of both.
enum class BankFlow
{
    Balance,
    In,
    Out
};

/// The time bank of an employee, or else of a group, department or organization, in decimal hours: the signed sum of
/// the live records, pending ones included, in the categories related to the time bank. 0 when there are none or
/// nothing is selected.
float TimeBankOf(DataControl& datAbsence, const CalendarSelection& selection, LiveRecords records = LiveRecords::All,
                 BankFlow flow = BankFlow::Balance);

/// What is left in the bank, and how that comes about.
BalanceLines ExplainTimeBank(DataControl& datAbsence, const CalendarSelection& selection);

/// The category belongs to the time bank, and the user has entered no record yet in one of the four reserved ones.
bool IsNewToTimeBanks(DataControl& datAbsence, int categoryID);

/// Offers the tutorial to a user who is new to time banks and chose the category, by its name. Whoever wants neither
/// the tutorial nor the question again gets an empty record of no year, by which he is known from then on. Throws.
void DoesUserKnowAboutTimeBank(DataControl& datAbsence, int categoryID, const QString& category);
