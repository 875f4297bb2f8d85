#include "foundation/not_yet.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"

const QStringList& NotYetAvailable()
{
    static const QStringList commands = {
        "frmConnect",
        "frmGetApprovedBy",
    };
    return commands;
}

void TellNotYet(const QString& command)
{
    Q_ASSERT(NotYetAvailable().contains(command));
    Tell(T("NOT AVAILABLE YET:", "PAS ENCORE DISPONIBLE:"),
         T("This version of Tarvell does not offer this command yet.",
           "Cette version de Tarvell n'offre pas encore cette commande."));
}
