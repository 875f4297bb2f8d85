#pragma once

#include "foundation/texts.h"
#include "mail/mail_component.h"
#include "platform/dao/dao.h"

/// One message to a list of people: either of a new schedule, or of a fiscal year that is about to be closed.
struct TargettedEMail
{
    QString WebAddress = {};        ///< of the schedule; empty for the closing of a year
    int FiscalYearClosingDate = 0;  ///< serial day
    QString FiscalYearToClose = {}; ///< its name
    int FiscalYearID = 0;           ///< whose people are written to: the year to close; 0 for the session's
    int ScopeGroupID = 0;           ///< the first of these that is set says who; everybody when none is
    int ScopeDepartmentID = 0;
    int ScopeOrganizationID = 0;
    int ScopeEmployeeID = 0;

    bool IsSchedule() const { return !WebAddress.isEmpty(); }
};

/// The most new people that go into the address book at one opening of the form.
constexpr int kMostNewRecipients = 100;

struct Recipient
{
    QString Name;
    QString EMailAddress;
    bool Selected = true;
    int EmployeeID = 0; ///< RecordID; 0 for people of the address book

    QString Line() const { return Name + " ...... " + EMailAddress; }
};

/// What the form says above the list, and the message that it offers.
QString InstructionsOf(const TargettedEMail& job);
QString SubjectOf(const TargettedEMail& job);
QString BodyOf(const TargettedEMail& job);

/// The employees of the job who have an address, selected, and then the user's own address book, not selected. The
/// closing of a year is not told to who has left; the list of employees is rebuilt for it when that is due. Throws.
QVector<Recipient> LoadEMailAddresses(DataControl& datAbsence, const TargettedEMail& job);

/// Adds people to the user's address book, all of them or none. Throws RuntimeError.
void UpdateAddressBook(DataControl& datAbsence, const QVector<Recipient>& people);
