#include "attendance/frm_attendance.h"
#include "foundation/texts.h"
#include "ledger/frm_entitlement_history.h"
#include "ledger/frm_entitlements.h"
#include "platform/controls/flex_grid.h"
#include "tour.h"

#include <QApplication>
#include <QTest>

void Tour::AdjustEntitlement()
{
    Say("The administrator corrects what Marie may use, in the grid");
    user_.WhenOpens<frmEntitlements>([this](frmEntitlements& form) {
        user_.Picks("cboRecords", "Bouchard, Marie");
        const auto* grid = form.findChild<FlexGrid*>("flxEntitlements");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(2, kCarriedHoursColumn).center());
        user_.Types("txtCarriedOver_Hours", "3").Types("txtCarriedOver_Minutes", "30");
        user_.Presses("txtCarriedOver_Minutes", Qt::Key_Down).Types("txtCarriedOver_Minutes", "0");
        Photo("entitlements");
        user_.Presses("txtCarriedOver_Minutes", Qt::Key_Escape);
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
        user_.WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK").Clicks("cmdUpdateEntitlements");
        user_.Picks("cboRecords", "Bouchard, Marie");
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(2, kTotalColumn).center());
        user_.WhenOpens<frmEntitlementHistory>([this](frmEntitlementHistory&) {
            Photo("entitlement_history");
            user_.Clicks("cmdOK");
        });
        user_.Clicks("cmdHistory").Clicks("cmdQuit");
    });
    Choose("mnuFileEntitlements");
}

void Tour::WarnOfExceededEntitlement()
{
    Say("A supervisor who would exceed a limit is warned, and thinks better of it");
    user_.Clicks("imgCreateMultiple");
    ClickDays(11, {24, 25, 26, 27});
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        Photo("attendance_balance");
        user_.WillAnswer(T("WARNING:", "ATTENTION:"), T("No", "Non")).Clicks("cmdAddOrUpdate").Clicks("cmdQuit");
    });
    user_.Clicks("imgCreateMultiple");
}

void Tour::BorrowTime()
{
    Say("A day of borrowed time drives the bank below nothing");
    user_.Clicks("imgCreateSingle");
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Time borrowed", "Temps emprunté")).Checks("chkWholeDay");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    ClickDays(11, {20});
    if (user_.Reads("txtTimeBanked") != "-(03:15)")
        Complain("the bank holds " + user_.Reads("txtTimeBanked"));
    Photo("main_window_bank");
    PhotoExplanation("txtTimeBanked", "explained_bank");
    user_.Picks("cboCategories", T("Vacation", "Vacances"));
    PhotoExplanation("lblTotalForTheYear_DISPLAY", "explained_total");
    user_.Picks("cboCategories", T("(All categories)", "(Toutes les catégories)"));
}

void Tour::PhotoExplanation(const QString& figure, const QString& name)
{
    user_.Clicks(figure);
    for (QWidget* tip : QApplication::topLevelWidgets())
        if (tip->inherits("QTipLabel") && tip->isVisible())
            tip->grab().save(QStringLiteral("%1/%2_%3.png").arg(folder_, name, english_ ? "en" : "fr"));
}

void Tour::RequestTooMuch()
{
    Say("and for more than she may use, which is refused");
    user_.Clicks("imgSubmit");
    ClickDays(12, {29, 30});
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        user_.WillAnswer(T("OPERATION DENIED!", "OPÉRATION REFUSÉE!"), "OK").Clicks("cmdAddOrUpdate");
        user_.Clicks("cmdQuit");
    });
    user_.Clicks("imgSubmit");
}
