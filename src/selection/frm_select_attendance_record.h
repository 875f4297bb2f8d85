#pragma once

#include "foundation/frm_base.h"

/// Lets the user choose one of several attendance records of a day, given as lines with their RecordIDs.
class frmSelectAttendanceRecord : public FormBase
{
public:
    explicit frmSelectAttendanceRecord(const QVector<ListEntry>& lines, QWidget* parent = nullptr);

    /// Attendance.RecordID of the record chosen; 0 when the form was left.
    int SelectedRecordID() const
    {
        return result() == Accepted ? lstRecords->currentItem()->data(Qt::UserRole).toInt() : 0;
    }

private:
    void cmdSelect_Click();

    QListWidget* lstRecords;
};
