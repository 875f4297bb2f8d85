#include "employees/employee_summary.h"

#include "employees/security_profile_rules.h"
#include "employees/work_schedule_rules.h"
#include "foundation/texts.h"

#include <QStringList>

namespace
{
constexpr int kDaysPerLine = 3;

constexpr Text kDayPrefixes[] = {{"Sun - ", "Dim - "}, {"Mon - ", "Lun - "}, {"Tue - ", "Mar - "}, {"Wed - ", "Mer - "},
                                 {"Thu - ", "Jeu - "}, {"Fri - ", "Ven - "}, {"Sat - ", "Sam - "}};

QString UnitLine(const QString& label, const QString& name)
{
    return name.isEmpty() ? QString() : label + "\t\t" + name + "\r\n";
}

QStringList WorkingDays(const EmployeeRecord& record)
{
    QStringList days;
    for (int day = 0; day < 7; ++day)
        if (record.HoursWorked[day] > 0)
            days << T(kDayPrefixes[day]) + TwoDigits(record.TotalHours[day]) + ":" +
                        TwoDigits(record.TotalMinutes[day]);
    return days;
}

QString ScheduleBlock(const EmployeeRecord& record)
{
    if (record.IrregularHours)
        return T("This employee works irregular hours", "Cet(te) employé(e) travaille selon un horaire irrégulier.");
    QString block = T("Hours worked:      ", "Heures travaillées:") + "\t\t";
    const QStringList days = WorkingDays(record);
    for (qsizetype i = 0; i < days.size(); ++i) {
        if (i > 0)
            block += i % kDaysPerLine == 0 ? ", \r\n\t\t\t" : ", ";
        block += days[i];
    }
    return block;
}

QString ProfileBlock(const EmployeeRecord& record)
{
    const QString levels[kLevels] = {T("Global", "Global"), T("Organization", "Organisation"),
                                     T("Department", "Département"), T("Group", "Groupe"),
                                     T("Individual", "Individuel")};
    QStringList digits;
    for (int level = 0; level < kLevels; ++level)
        digits << QStringLiteral("%1 = %2").arg(levels[level]).arg(LevelDigit(record, level));
    return T("Security profile by level (0 = None, 1 = View, 2 = Add, 3 = Absolute):",
             "Profil de sécurité par niveau (0 = Aucun, 1 = Lecture, 2 = Ajoût, 3 = Absolu):") +
           "\r\n" + digits.join("\r\n");
}
} // namespace

QString WithName(const QString& text, const EmployeeRecord& record)
{
    return Fill(text, {{"FirstName", record.FirstName}, {"Name", record.FamilyName}});
}

QString EmployeeSummary(const EmployeeRecord& record, const UnitNames& units, bool modifying)
{
    const QString question = modifying ? T("Modify the selected employee record as follows?",
                                           "Souhaitez-vous modifier le dossier de l'employé(e) comme suit?")
                                       : T("Add the following employee record to your database?",
                                           "Souhaitez-vous ajouter l'employé(e) suivant(e) à votre banque de données?");
    return question + "\r\n\r\n" + T("Name and ID:\t\t", "Nom et identification:\t") + record.FirstName + " " +
           record.FamilyName + "     " + record.EmployeeID.trimmed() + "\r\n" +
           UnitLine(T("Organization:", "Organisation:"), units.Organization) +
           UnitLine(T("Department:", "Département:"), units.Department) +
           UnitLine(T("Group:      ", "Groupe:      "), units.Group) + ScheduleBlock(record) + "\r\n" +
           T("Username and password:", "Nom d'usager/mot-clé:") + "\t" + record.LoginID + ", " + record.NewPassword +
           "\r\n" + ProfileBlock(record);
}
