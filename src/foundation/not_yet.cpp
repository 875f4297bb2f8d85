#include "foundation/not_yet.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"

#include <algorithm>

const QStringList& NotYetAvailable()
{
    static const QStringList commands = {
        "frmApproval",
        "frmConnect",
        "frmGetApprovedBy",
        "imgRemove_Click",
        "mnuFileCategories",
        "mnuFileEntitlements",
        "mnuFileHolidays",
        "mnuFileNewDatabase",
        "mnuFilePrint",
        "mnuHelpTutorial",
        "mnuReports",
        "mnuSchedule",
        "mnuSpecialBatchUpdates",
        "mnuSpecialExportEmployee",
        "mnuSpecialFiscalYearClose",
        "mnuSpecialFiscalYearCreate",
        "mnuSpecialFiscalYearRename",
        "mnuSpecialImportEmployee",
        "mnuSpecialSpecifyMailerProgram",
    };
    return commands;
}

void TellNotYet(const QString& command)
{
    Q_ASSERT(std::any_of(NotYetAvailable().begin(), NotYetAvailable().end(),
                         [&command](const QString& name) { return command.startsWith(name); }));
    Q_UNUSED(command);
    Tell(T("NOT AVAILABLE YET:", "PAS ENCORE DISPONIBLE:"),
         T("This version of Tarvell does not offer this command yet.",
           "Cette version de Tarvell n'offre pas encore cette commande."));
}
