#include "attendance/frm_approval.h"
#include "attendance/request_reports.h"
#include "calendar/frm_main.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_grid.h"
#include "foundation/common_services.h"
#include "foundation/forms.h"
#include "foundation/frm_update_admin_info.h"
#include "foundation/session_rows.h"
#include "foundation/user_profile.h"
#include "platform/controls/form_kit.h"
#include "platform/user_settings.h"

namespace
{
const QString kCodesSetting = "CategoryCodes";
} // namespace

void frmMain::Run(const Command& command)
{
    if (command.Opens)
        command.Opens(*this);
    else
        TellNotYet();
}

void frmMain::mnuSpecialSwitchLanguage_Click()
{
    const LoadingGuard busy(Busy);
    SessionState.English = !SessionState.English;
    LoadCaptions();
    try {
        SetUserLanguage(datAbsence);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
    ReloadSelection(Category::KeepIfListed);
}

void frmMain::mnuSpecialDeniedRequests_Click()
{
    TellDeniedRequests(datAbsence);
}

void frmMain::mnuSpecialCategoryCodes_Click()
{
    SetUserSetting(SessionState.LoginID, kCodesSetting, !ShowsCodes());
    pane_->Days().ShowCodes(ShowsCodes());
    ActivateAllowedControls();
}

bool frmMain::ShowsCodes()
{
    return UserSetting(SessionState.LoginID, kCodesSetting).toBool();
}

void frmMain::mnuSpecialUpdateAdminInfo_Click()
{
    frmUpdateAdminInfo form(this);
    ShowModal(form);
    LoadAdministratorInfo(datAbsence);
}

void frmMain::imgApprove_Click()
{
    frmApproval form(this);
    ShowModal(form);
    ReloadAfterEditing();
    LookWhatOthersDid();
    ActivateAllowedControls();
}
