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
    Tell(
        T("KEYBOARD:", "CLAVIER:"),
        T("Arrows\tday by day, week by week\r\nHome, End\tfirst and last day of the month (with Ctrl: of the "
          "year)\r\nPage Up, Page Down\tmonth by month\r\nEnter or Space\tas a click on the day\r\nShift + "
          "arrows\tmark a range, for «Several dates» and «Request»\r\nEscape\tclose the list of a day, give a tool "
          "up\r\nCtrl+1 to Ctrl+8\tthe tools, from left to right\r\nCtrl+E\temployees\r\nCtrl+P\tprint the "
          "calendar\r\nCtrl+L\tthe other language (français)\r\nCtrl+Q\texit\r\nAlt or F10\tthe menus\r\nF1\tthis list",
          "Flèches\tjour par jour, semaine par semaine\r\nDébut, Fin\tpremier et dernier jour du mois (avec Ctrl : "
          "de l'année)\r\nPage préc., Page suiv.\tmois par mois\r\nEntrée ou Espace\tcomme un clic sur le "
          "jour\r\nMaj + flèches\tmarquer une suite de jours,\r\n\tpour «Plusieurs dates» et "
          "«Demande»\r\nÉchap\tfermer la "
          "liste d'un jour, abandonner un outil\r\nCtrl+1 à Ctrl+8\tles outils, de gauche à droite\r\nCtrl+E\temployés"
          "\r\nCtrl+P\timprimer le calendrier\r\nCtrl+L\tl'autre langue (English)\r\nCtrl+Q\tquitter\r\nAlt ou "
          "F10\tles menus\r\nF1"
          "\tcette liste"));
}
