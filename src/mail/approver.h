#pragma once

#include <QString>

/// Who settles a request.
struct Approver
{
    int RecordID = 0;  ///< 0 none
    QString Name = {}; ///< "FirstName FamilyName"; empty when there is no such person
    QString EMailAddress = {};
    bool HasLeft = false;
};
