#pragma once
// frmStrengthLog, "Strength Training Log": one strength workout of one day, planned and
// recorded, a row per set. Opened by the planner: for the entry SelectedKey of the calendar's
// day, or, while the planner is adding, to schedule the library workout SelectedItem on every
// selected day.
//
// A workout is its rows of Daily_Weights (one per set, in grid order), the calendar row's
// complete flag, duration, intensity and calories, and one row of Daily_Psych. Saving replaces
// them all, date by date, each date in one transaction.
#include <QDate>
#include <QDialog>
#include <functional>

class Chart;
class Grid;
class PsychPanel;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTimeEdit;

#include "strength/rules/workoutpage.h"

// The workout page lives in the reports subsystem above this one; it fills this link when it
// registers, and "&Print" calls it with the page's file name (the workout's name without "/"
// and "\", and ".htm"), the workout as the grid holds it (name, description, rows), its day,
// its calendar key ("" while it is being scheduled) and its start and end times.
struct StrengthLogPrint {
    workoutpage::Workout workout;
    QDate date;
    QString key, from, to;
};
std::function<void(const QString& fileName, const StrengthLogPrint& print)>& ReportStrengthLink();

class frmStrengthLog : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthLog(QWidget* parent = nullptr);

    // Procedures of the screen.
    void FillCombos();
    void FormatGrid();
    void SetupHistory();
    void LoadStrength();
    void LoadStrengthTemplate();
    double LoadGoal(const QString& exercise, int which);
    // Appends the workout selected in `list` (Workout_exercises by name) at the end of the grid.
    void AddWorkout(QListWidget* list);
    void FormatData();
    void ClearGrid();
    // Writes the workout for one date; false when the day view refused its times.
    bool SaveDate(const QDate& date);
    void SavePsych(const QDate& date);
    void LoadPsych();
    void Loadexercises();
    void RefreshStrengthGraph();
    void CheckMoveButtons();
    void CalcCalories();

    // What the screen works on.
    bool Scheduling() const { return m_scheduling; }
    QDate WorkoutDate() const { return m_date; }
    QString WorkoutName() const { return m_name; }   // as typed, quotes single
    QString WorkoutKey() const { return m_key; }
    QString WeightUnit() const { return m_unit; }
    bool Prefill() const { return m_prefill; }

    // Grid columns.
    enum { colGroup = 1, colExercise, colSet, colReps, colWeight, colIntensity, colGoal, colNotes, colCount = colNotes };

    // "Workout"
    QLabel* lblWorkout = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* lblStart = nullptr;
    QLabel* lblEnd = nullptr;
    QTimeEdit* txtStartTime = nullptr;
    QTimeEdit* txtEndTime = nullptr;
    QLabel* lblDesc = nullptr;
    Grid* SS1 = nullptr;
    QRadioButton* optExercise[2] = {};   // "Exercises", "Stretches"
    QListWidget* list1 = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdInfo = nullptr;
    QPushButton* cmdAddSet = nullptr;
    QPushButton* cmdRemoveSet = nullptr;
    QPushButton* cmdUp = nullptr;
    QPushButton* cmdDown = nullptr;
    QLineEdit* txtDuration = nullptr;
    QComboBox* cboIntensity = nullptr;
    QLabel* lblCal = nullptr;
    QCheckBox* chkComplete = nullptr;
    // "Psychology"
    PsychPanel* Psych = nullptr;
    // "History"
    QDateEdit* txtStart = nullptr;
    QDateEdit* txtEnd = nullptr;
    QComboBox* cboReport = nullptr;
    QLabel* lbltype = nullptr;
    QComboBox* cbofield = nullptr;
    QComboBox* cboStyle = nullptr;
    Chart* Chart1 = nullptr;
    QPushButton* cmdZoomIn = nullptr;
    QPushButton* cmdZoomOut = nullptr;
    QPushButton* cmdPrintGraph = nullptr;
    // Tabs and commands
    QTabWidget* TabTop = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdPreviewWeights = nullptr;
    QPushButton* cmdClose = nullptr;

    static constexpr int HistoryTab = 2;

public slots:
    void on_cmdAdd_clicked();
    void on_cmdInfo_clicked();
    void on_cmdAddSet_clicked();
    void on_cmdRemoveSet_clicked();
    void on_cmdUp_clicked();
    void on_cmdDown_clicked();
    void on_cmdSave_clicked();
    void on_cmdPreviewWeights_clicked();
    void on_cmdClose_clicked();
    void on_cmdZoomIn_clicked();
    void on_cmdZoomOut_clicked();
    void on_cmdPrintGraph_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildWorkoutTab();
    QWidget* buildHistoryTab();
    void historyTabShown();
    void reportChanged();
    void changed();
    QString durationText() const;
    QString muscleGroupOf(const QString& exercise);
    int lastRowOf(const QString& exercise) const;
    void setRow(int row, const QStringList& cells);
    QStringList rowCells(int row) const;
    // The selected block of rows (first, last), or (0, 0) when none.
    QPair<int, int> selectedBlock() const;
    void moveBlock(bool up);
    QString where(const QDate& date) const;   // User_ID, Date, name and key of the workout

    bool m_loading = false;
    bool m_scheduling = false;
    bool m_prefill = false;
    QDate m_date;
    QString m_name;
    QString m_key;
    QString m_unit = QStringLiteral("kg");
};
