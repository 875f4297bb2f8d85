#pragma once

#include <QDialog>
#include <QString>

#include <utility>
#include <vector>

class QListWidget;

/// Lets the user choose one of several attendance records of a day, given as lines with their RecordIDs.
class frmSelectAttendanceRecord : public QDialog
{
public:
    explicit frmSelectAttendanceRecord(const std::vector<std::pair<QString, int>>& lines, QWidget* parent = nullptr);

    /// Attendance.RecordID of the record chosen; 0 when the form was left.
    int SelectedRecordID() const { return selectedRecordID_; }

private:
    void BuildControls(const std::vector<std::pair<QString, int>>& lines);
    void cmdSelect_Click();

    QListWidget* lstRecords = nullptr;
    int selectedRecordID_ = 0;
};
