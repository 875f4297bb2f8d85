#include "selection/frm_get_approved_by.h"

#include "selection/approvers_of_year.h"

namespace
{
constexpr Text kWhoApproves = {
    "SELECT THE NAME OF THE EMPLOYEE WHO WILL APPROVE YOUR REQUEST FOR LEAVE FROM THIS LIST",
    "SÉLECTIONNEZ LE NOM DE L'EMPLOYÉ(E) À QUI VOUS SOUHAITEZ SOUMETTRE VOTRE DEMANDE DE CONGÉ"};
constexpr Text kForward = {"&Forward request for leave to the selected employee",
                           "&Soumettre demande de congé à l'employé sélectionné"};
} // namespace

frmGetApprovedBy::frmGetApprovedBy(const CalendarSelection& requester, QWidget* parent)
    : ApproverChoice("frmGetApprovedBy", {"Request for leave", "Demande de congé"},
                     WrappedLabel("lblInstructions", kWhoApproves), kForward, parent)
{
    Attempt([&] { AddEntries(List(), ApproversAbove(datAbsence, requester)); });
}
