#pragma once
// frmExerciseLog, "Exercise/Sports Planning and Log": one exercise or sport session of one day,
// planned and recorded. Opened by the planner: for the entry SelectedKey of the calendar's day,
// or, while the planner is adding, to schedule SelectedItem on every selected day.
//
// A session is one row of Daily_Exercise (plan and result side by side), the rows of
// Daily_Templates (its copy of the item's form), of Daily_Intervals (its interval plan) and
// one row of Daily_Psych (the questionnaire). Saving replaces them all, date by date, each
// date in one transaction.
#include <QDate>
#include <QDialog>
#include <QTime>
#include <functional>

class Chart;
class Grid;
class IntervalsPanel;
class PsychPanel;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QTabWidget;
class QTimeEdit;

// The session page lives in the reports subsystem above this one; it fills this link when it
// registers, and "&Print" calls it with the page's file name (the session's name without "/"
// and "\", and ".htm").
std::function<void(const QString& fileName)>& ReportExerciseLink();

class frmExerciseLog : public QDialog {
    Q_OBJECT
public:
    explicit frmExerciseLog(QWidget* parent = nullptr);

    // Procedures of the screen.
    void FillCombos();
    void FormatGrid();
    void LoadIntervals();
    void LoadInfo();
    void LoadForm();
    void LoadTemplate();
    void LoadPsych();
    void loadunits(int row, const QString& fieldName);
    // Writes the session for one date; false when the day view refused its times.
    bool SaveDate(const QDate& date);
    void ShowHistory();
    void RefreshExerciseGraph(int view);
    void SetupScrollBars();
    void CreateZoomActions();

    // What the screen works on.
    bool Scheduling() const { return m_scheduling; }
    QDate SessionDate() const { return m_date; }
    QString SessionName() const { return m_name; }    // as typed, quotes single
    QString SessionKey() const { return m_key; }

    // "Performance" > "Details"
    QLabel* lblExercise = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* imgExercise = nullptr;
    QLabel* lblStart = nullptr;
    QLabel* lblEnd = nullptr;
    QTimeEdit* txtStartTime = nullptr;
    QTimeEdit* txtEndTime = nullptr;
    QLineEdit* txtDistance = nullptr;
    QLineEdit* txtPlannedDistance = nullptr;
    QComboBox* cboDistUnit = nullptr;
    QLineEdit* txtDuration = nullptr;
    QLineEdit* txtPlannedDuration = nullptr;
    QLineEdit* txtSpeed = nullptr;
    QLineEdit* txtPlannedSpeed = nullptr;
    QComboBox* cboBaseUnit = nullptr;
    QPushButton* cmdCalc = nullptr;
    QComboBox* cboIntensity = nullptr;
    QLineEdit* txtCals = nullptr;
    QPushButton* cmdCalcCals = nullptr;
    QComboBox* cboTraining = nullptr;
    QLineEdit* txtEvent = nullptr;
    QComboBox* cboRoute = nullptr;
    QComboBox* cboFacility = nullptr;
    QComboBox* cboEquipment = nullptr;
    QLineEdit* txtWarmup = nullptr;
    QLineEdit* txtRecovery = nullptr;
    QPlainTextEdit* txtComments = nullptr;
    QSpinBox* txtLaps = nullptr;
    Grid* SS3 = nullptr;
    // "Fields"
    QSpinBox* txtRows = nullptr;
    Grid* SS2 = nullptr;
    QPushButton* SSCommand1 = nullptr;   // "Reset Form"
    QPushButton* SSCommand2 = nullptr;   // "Delete Row"
    // "Intervals"
    IntervalsPanel* Intervals = nullptr;
    // "Heart Rate"
    QLineEdit* txtRHR = nullptr;
    QLineEdit* txtMHR = nullptr;
    QLineEdit* txtStartHeart = nullptr;  // "Average Heart Rate"
    QLineEdit* txtEndHeart = nullptr;    // "Max Heart Rate"
    QLineEdit* txtZone[6] = {};          // zones 1 to 5, then "Time to return to RHR"
    QLineEdit* txtAvgHR = nullptr;
    QPushButton* FB1 = nullptr;
    // "Psychology"
    PsychPanel* Psych = nullptr;
    // "History"
    QDateEdit* txtStart = nullptr;
    QDateEdit* txtEnd = nullptr;
    QComboBox* cboHistUnit = nullptr;
    QLineEdit* txtWorkouts = nullptr;
    QLineEdit* txtTTime = nullptr;
    QLineEdit* txtDist = nullptr;
    QLineEdit* txtAvgSpeed = nullptr;
    QLabel* lblAvgSpeed = nullptr;
    QLineEdit* txtInt = nullptr;
    QLineEdit* txtHistZone[5] = {};
    QComboBox* cboGraph = nullptr;
    QComboBox* cboStyle = nullptr;
    Chart* Chart1 = nullptr;
    QPushButton* cmdZoomIn = nullptr;
    QPushButton* cmdZoomOut = nullptr;
    QPushButton* cmdPrintGraph = nullptr;
    // Tabs and commands
    QTabWidget* TabTop = nullptr;
    QTabWidget* TabPerformance = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdPreviewExercise = nullptr;
    QPushButton* cmdClose = nullptr;

    static constexpr int HistoryTab = 2;
    static constexpr int TextLength = 50;   // text fields of a session, notes excepted

public slots:
    void on_cmdSave_clicked();
    void on_cmdCalc_clicked();
    void on_cmdCalcCals_clicked();
    void on_FB1_clicked();
    void on_cmdPreviewExercise_clicked();
    void on_cmdPrintGraph_clicked();
    void on_SSCommand1_clicked();
    void on_SSCommand2_clicked();
    void on_cmdClose_clicked();
    void on_cmdZoomIn_clicked();
    void on_cmdZoomOut_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildDetailsTab();
    QWidget* buildFieldsTab();
    QWidget* buildHeartTab();
    QWidget* buildHistoryTab();
    void setLaps(int laps);
    void setFieldRows(int rows);
    void fillFieldRow(int row, const QString& fieldName, const QString& formula, const QString& value,
                      const QVariant& units, bool fromTemplate);
    void updateCalcEnabled();
    void fieldLeft(int row, int col);
    void historyTabShown();
    void historyChanged();
    void changed();
    QString durationText(const QLineEdit* edit) const;
    QString where() const;   // User_ID, Date, name and key of the session, for its tables

    bool m_loading = false;
    bool m_scheduling = false;
    bool m_historyShown = false;
    QDate m_date;
    QString m_name;
    QString m_key;
    int m_image = 0;
    QLabel* m_zoneCaptions[5] = {};
};
