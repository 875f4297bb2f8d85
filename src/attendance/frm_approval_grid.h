#pragma once

#include "attendance/leave_requests.h"
#include "platform/controls/flex_grid.h"

/// The dates of a request with what is said of each; a click, Space or Enter on one of the first two columns says it.
class ApprovalGrid : public FlexGrid
{
public:
    ApprovalGrid();

    std::function<void(int date, Verdict said)> Clicked; ///< `date` counts from 0

    void Show(const QVector<RequestedDate>& dates);
    /// What is said of the dates that are shown has changed.
    void ShowMarks(const QVector<RequestedDate>& dates);

private:
    void BuildHeads();
};
