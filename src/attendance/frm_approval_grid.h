#pragma once

#include "attendance/leave_requests.h"
#include "platform/controls/flex_grid.h"

/// The dates of a request with their marks; a click, Space or Enter on one of the first two columns sets one.
class ApprovalGrid : public FlexGrid
{
public:
    ApprovalGrid();

    std::function<void(int row, RequestMark mark)> Clicked; ///< dates count from 0

    void Show(const QVector<RequestedDate>& dates);
    /// The marks of the dates that are shown have changed.
    void ShowMarks(const QVector<RequestedDate>& dates);

private:
    void BuildHeads();
};
