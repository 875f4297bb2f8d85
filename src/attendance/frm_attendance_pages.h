#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

/// The first tab of the entry form: who, when, why and how long.
class AttendanceGeneralPage : public QWidget
{
public:
    AttendanceGeneralPage();

    QLabel* lblEmployeeName; ///< "FirstName FamilyName" of the employee chosen
    QListWidget* lstWho;
    QPlainTextEdit* txtWhen;
    QComboBox* cboCategories;
    QLabel* lblBalance; ///< what the category draws on
    QCheckBox* chkWholeDay;
    QCheckBox* chkFirstHalf;
    QCheckBox* chkSecondHalf;
    QComboBox* cboStartTime;
    QComboBox* cboEndTime;
    QLineEdit* txtDurationInHours;
    QLineEdit* txtDurationInMinutes;
    QComboBox* lstMultiplicator;
    QLabel* txtTotalTime;

private:
    QGridLayout* PeopleAndDates();
    QVBoxLayout* Category();
    QGridLayout* TimesAndDurations();
};

/// The second tab: rate, justification and comment.
class AttendanceAdditionalPage : public QWidget
{
public:
    AttendanceAdditionalPage();

    QLineEdit* txtHourlyRate;
    QCheckBox* chkJustified;
    QPlainTextEdit* txtComment;
};

/// Shows a clock time in a list of times, of which it need not be an entry: a time off the five minutes gets an entry
/// of its own until another one is shown. An empty text shows nothing.
void ShowClockTime(QComboBox* times, const QString& text);
