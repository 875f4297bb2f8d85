#include "foundation/failure_words.h"

#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "platform/dao/dao.h"

namespace
{
/// How descriptions begin.
constexpr Text kFailures[] = {
    {"Could not find the file", "Le fichier est introuvable :"},
    {"File not found", "Le fichier est introuvable "},
    {"No current record", "Il n'y a pas d'enregistrement"},
    {"No database is open", "Aucune banque de données n'est ouverte"},
    {"Not a valid password", "Le mot-clé n'est pas valide"},
    {"The connection to the database file was lost", "La connexion à la banque de données a été perdue"},
    {"The database file can no longer be shared", "La banque de données ne peut plus être partagée"},
    {"The database file could not be written to the disk or network",
     "La banque de données n'a pu être écrite sur le disque ou le réseau"},
    {"The database file is damaged", "La banque de données est endommagée"},
    {"The database file is no longer in its place", "La banque de données n'est plus à sa place"},
    {"The database is in a mode that a network folder cannot share",
     "La banque de données est dans un mode qu'un répertoire du réseau ne peut partager"},
    {"The database is locked by another user", "La banque de données est verrouillée par un autre utilisateur"},
    {"The database of this transaction is no longer open",
     "La banque de données de cette transaction n'est plus ouverte"},
    {"The database or its folder is read-only", "La banque de données ou son répertoire est en lecture seule"},
    {"The file cannot be replaced", "Le fichier ne peut être remplacé "},
    {"The file is not a database of this program", "Le fichier n'est pas une banque de données de ce programme"},
    {"The folder of the database cannot lock files",
     "Le répertoire de la banque de données ne peut verrouiller de fichiers"},
    {"The mail program does not answer", "Le programme de courriel ne répond pas"},
    {"The employee has no e-mail address any more", "L'employé(e) n'a plus d'adresse de courriel"},
    {"The path of the file is longer than the system allows",
     "Le chemin du fichier est plus long que le système ne le permet "},
    {"The record has been changed by another user", "L'enregistrement a été modifié par un autre utilisateur"},
    {"The record has been removed by another user", "L'enregistrement a été supprimé par un autre utilisateur"},
    {"The values would break a rule of the table", "Les valeurs enfreindraient une règle de la table"},
    {"There is no permission to open the file or to write in its folder",
     "Il n'est pas permis d'ouvrir le fichier ou d'écrire dans son répertoire"},
    {"There is no such program on this workstation", "Ce programme n'est pas sur ce poste de travail "},
    {"There is not enough memory", "La mémoire ne suffit pas"},
    {"There is not enough space on the disk", "L'espace sur le disque ne suffit pas"},
    {"This is not one e-mail address", "Ceci n'est pas une adresse de courriel "},
};

/// What follows the description stays: dates, mostly.
QString WithoutEnginesWords(const QString& rest)
{
    return rest.startsWith(" (") ? rest.mid(rest.indexOf(").") + 1) : rest;
}
} // namespace

QString FailureWords(const QString& description)
{
    for (const Text& failure : kFailures)
        if (!SessionState.English && description.startsWith(QLatin1String(failure.English)))
            return failure.French + WithoutEnginesWords(description.mid(QString(failure.English).size()));
    return description;
}

QString FailureWords(const RuntimeError& error)
{
    return QString::number(error.Number) + ": " + FailureWords(error.Description);
}
