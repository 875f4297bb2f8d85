#include "ledger/time_banks.h"

#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/forms.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
QString ConditionOf(BankFlow flow)
{
    if (flow == BankFlow::Balance)
        return {};
    return flow == BankFlow::In ? " AND Attendance.TotalDuration > 0" : " AND Attendance.TotalDuration < 0";
}

/// The record stands in no year, so no list and no sum ever shows it.
void CreateMocTimeBankRecord(DataControl& datAbsence, int categoryID)
{
    AttendanceRow row;
    row.CategoryID = categoryID;
    row.EnteredBy = UserStamp();
    row.EnteredDate = Today();
    InTransaction(datAbsence, [&] { Add(datAbsence, row); });
}

int OfferTutorial(const QString& category)
{
    const QString text =
        T({"The category of attendance you just selected ({category}) is one of the four categories reserved by "
           "TARVELL to manage «time banks». To this day, you have not used any of these four categories.\r\n\r\nDo you "
           "wish to open our on-line tutorial and learn how TARVELL manages time banks?",
           "La catégorie que vous venez de sélectionner ({category}) est l'une des quatre catégories réservées par "
           "TARVELL pour gérer les banques de temps. Vous n'avez, à ce jour, utilisé aucune de ces quatre "
           "catégories.\r\n\r\nSouhaitez-vous ouvrir notre manuel d'aide en ligne afin d'y apprendre comment TARVELL "
           "gère les banques de temps?"},
          {{"category", category}});
    return ShowMessage({.Text = text,
                        .Title = T("MANAGING EMPLOYEE TIME BANKS", "GESTION DES BANQUES DE TEMPS"),
                        .Set = SessionState.English ? Buttons::YesNo : Buttons::OuiNon,
                        .Picture = Face::Presenting,
                        .ShowStopAsking = true});
}
} // namespace

float TimeBankOf(DataControl& datAbsence, const CalendarSelection& selection, LiveRecords records, BankFlow flow)
{
    const auto [column, id] = selection.Narrowest();
    if (!column)
        return 0;
    return datAbsence.Scalar<float>(
        QStringLiteral("SELECT SUM(Attendance.TotalDuration) FROM Attendance, Categories WHERE "
                       "Attendance.CategoryID = Categories.RecordID AND Attendance.%1 = ? AND "
                       "Categories.TimeBankRelated = 1 AND Attendance.CancelledDate = 0")
                .arg(QLatin1String(column)) +
            ConditionOf(records) + ConditionOf(flow),
        id);
}

BalanceLines ExplainTimeBank(DataControl& datAbsence, const CalendarSelection& selection)
{
    const Connection connection(datAbsence);
    const auto sum = [&](LiveRecords records, BankFlow flow) {
        return TimeBankOf(datAbsence, selection, records, flow);
    };
    return {{{"Put in the bank", "Temps accumulé"}, sum(LiveRecords::Approved, BankFlow::In)},
            {kTakenToDate, sum(LiveRecords::TakenToDate, BankFlow::Out)},
            {kBookedAhead, sum(LiveRecords::BookedAhead, BankFlow::Out)},
            {kPending, sum(LiveRecords::Pending, BankFlow::Balance), BalancePart::Pending},
            {kLeft, sum(LiveRecords::All, BankFlow::Balance), BalancePart::Left}};
}

bool IsNewToTimeBanks(DataControl& datAbsence, int categoryID)
{
    const Connection connection(datAbsence);
    return datAbsence.Read(
        "SELECT 1 FROM Categories WHERE RecordID = ? AND TimeBankRelated = 1 AND NOT EXISTS (SELECT 1 FROM Attendance, "
        "Categories AS Bank WHERE Attendance.CategoryID = Bank.RecordID AND Bank.SystemName IN ('Time accumulated', "
        "'Time claimed', 'Time paid', 'Time borrowed') AND Attendance.EnteredBy = ? COLLATE BINARY)",
        categoryID, UserStamp());
}

void DoesUserKnowAboutTimeBank(DataControl& datAbsence, int categoryID, const QString& category)
{
    if (!IsNewToTimeBanks(datAbsence, categoryID))
        return;
    SessionState.MessageStopAsking = false;
    const int answer = OfferTutorial(category);
    const bool stopAsking = std::exchange(SessionState.MessageStopAsking, false);
    if (answer == MessageCode::Yes)
        OpenAbove(FormsAbove.ShowTutorial, T("tutorial/english/chapitre10.html", "tutorial/french/chapitre10.html"));
    else if (answer == MessageCode::No && stopAsking)
        CreateMocTimeBankRecord(datAbsence, categoryID);
}
