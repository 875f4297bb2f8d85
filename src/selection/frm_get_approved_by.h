#pragma once

#include "foundation/session_state.h"
#include "selection/frm_approver_choice.h"

/// Lets whoever asks for leave choose who will approve that request, when his file names nobody: first those who
/// approve in his group, then those above it.
class frmGetApprovedBy : public ApproverChoice
{
public:
    /// `requester`: the employee and his units.
    explicit frmGetApprovedBy(const CalendarSelection& requester, QWidget* parent = nullptr);
};
