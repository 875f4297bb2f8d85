#include "foundation/forms.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"

Forms FormsAbove;

void TellNotYet()
{
    Tell(T("NOT AVAILABLE YET:", "PAS ENCORE DISPONIBLE:"),
         T("This version of Tarvell does not offer this command yet.",
           "Cette version de Tarvell n'offre pas encore cette commande."));
}
