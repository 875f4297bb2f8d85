#include "calendar/frm_main_notes.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"

void ShowDatabaseLocation()
{
    Tell(T("DATABASE PATH:", "LOCALISATION DE LA BANQUE DE DONNÉES:"),
         T("The database currently used by Tarvell is located in the following folder:",
           "La banque de données exploitée par Tarvell se trouve présentement dans le répertoire suivant:") +
             "\r\n\r\n" + SessionState.DatabasePath);
}

void ShowKeys()
{
    constexpr Text kKeys[] = {
        {"Arrows\tday by day, week by week", "Flèches\tjour par jour, semaine par semaine"},
        {"Home, End\tfirst and last day of the month (with Ctrl: of the year)",
         "Début, Fin\tpremier et dernier jour du mois (avec Ctrl : de l'année)"},
        {"Page Up, Page Down\tmonth by month", "Page préc., Page suiv.\tmois par mois"},
        {"Enter or Space\tas a click on the day", "Entrée ou Espace\tcomme un clic sur le jour"},
        {"Shift + arrows\tmark a range, for «Several dates» and «Request»",
         "Maj + flèches\tmarquer une suite de jours,\r\n\tpour «Plusieurs dates» et «Demande»"},
        {"Escape\tclose the list of a day, give a tool up", "Échap\tfermer la liste d'un jour, abandonner un outil"},
        {"Ctrl+1 to Ctrl+8\tthe tools, from left to right", "Ctrl+1 à Ctrl+8\tles outils, de gauche à droite"},
        {"Ctrl+E\temployees", "Ctrl+E\temployés"},
        {"Ctrl+P\tprint the calendar", "Ctrl+P\timprimer le calendrier"},
        {"Ctrl+L\tthe other language (français)", "Ctrl+L\tl'autre langue (English)"},
        {"Ctrl+Q\texit", "Ctrl+Q\tquitter"},
        {"Alt or F10\tthe menus", "Alt ou F10\tles menus"},
        {"F1\tthis list", "F1\tcette liste"},
    };
    QStringList lines;
    for (const Text& key : kKeys)
        lines << T(key);
    Tell(T("KEYBOARD:", "CLAVIER:"), lines.join("\r\n"));
}
