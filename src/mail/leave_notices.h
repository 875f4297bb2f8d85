#pragma once

#include "mail/approver.h"
#include "mail/mail_component.h"

/// A request for leave as its approvers are told of it. Texts are in the language of the session.
struct LeaveRequest
{
    QString Employee; ///< "FirstName FamilyName"
    QString Category;
    QString Dates; ///< a line each
    QString Comment = {};
    Approver FirstApprover = {};
    Approver SecondApprover = {};
};

/// To the first approver, and to the second one when there is one; both may be the same person. Whoever has no address
/// is left out.
QVector<Notice> RequestNotices(const LeaveRequest& request);

/// To the employee who asked: what came of his requests. An empty reason is left out.
Notice OutcomeNotice(int employee, const QString& address, const QString& summary, const QString& reason);

/// To the approver of a request that is cancelled before it was settled.
Notice CancellationNotice(int approver, const QString& address, const QString& category, const QString& dates);
