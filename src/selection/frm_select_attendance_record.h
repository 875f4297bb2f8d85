#pragma once

#include "foundation/frm_base.h"

#include <utility>
#include <vector>

/// Lets the user choose one of several attendance records of a day, given as lines with their RecordIDs.
class frmSelectAttendanceRecord : public FormBase
{
public:
    explicit frmSelectAttendanceRecord(const std::vector<std::pair<QString, int>>& lines, QWidget* parent = nullptr);

    /// Attendance.RecordID of the record chosen; 0 when the form was left.
    int SelectedRecordID() const { return selectedRecordID_; }

private:
    void cmdSelect_Click();

    QListWidget* lstRecords;
    int selectedRecordID_ = 0;
};
