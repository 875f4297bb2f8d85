#include "attendance/record_lines.h"

#include "foundation/common_services.h"
#include "foundation/names.h"

namespace
{
constexpr int kCategoryWidth = 20;
} // namespace

QString CategoryOfRow(const Recordset& row)
{
    return row.Text(NameColumn("Category")).trimmed();
}

QString EntryLines(const AttendanceEntry& entry)
{
    QString times;
    if (entry.StartTime != 0)
        times = Fill(T("\tStart: {start}\tEnd: {end}   ", "\tDébut: {start}\tFin: {end}   "),
                     {{"start", entry.StartTimeText}, {"end", entry.EndTimeText}});
    times += T("\tDuration: ", "\tDurée: ") + DurationText(entry.Duration) + "\r\n";
    QString lines;
    for (const int date : entry.Dates)
        lines += FormatDate(date, "ddd dd-mm-yyyy") + times;
    return lines;
}

QString OtherRecordLine(const Recordset& row)
{
    return FormatDate(row.Long("RecordDate"), "ddd dd-mmm-yyyy") + "\t" + CategoryOfRow(row).left(kCategoryWidth) +
           "\t" + DurationText(row.Single("TotalDuration")) + "\r\n";
}

QString ConflictLine(const Recordset& row)
{
    QString line = CategoryOfRow(row) + "\t";
    if (row.Single("StartTime") != 0)
        line += Fill(T("From:{start}\tTo:{end}\t", "De:{start}\tÀ:{end}\t"),
                     {{"start", DurationText(row.Single("StartTime"))}, {"end", DurationText(row.Single("EndTime"))}});
    line += T("Duration: ", "Durée: ") + DurationText(row.Single("Duration"));
    if (row.Long("Submitted") == 1)
        line += T("  (TO BE APPROVED)", "  (NON APPROUVÉE)");
    return line + "\r\n";
}
