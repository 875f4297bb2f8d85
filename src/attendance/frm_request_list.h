#pragma once

#include "attendance/leave_requests.h"
#include "platform/controls/entry_lists.h"

class QLabel;

/// The groups of requests that wait, in columns. None is chosen at first.
class RequestList : public WalkedList
{
public:
    RequestList();

    void Load(const QVector<RequestGroup>& groups);
    /// A heading to be laid above the list.
    static QLabel* MakeHeading();
};
