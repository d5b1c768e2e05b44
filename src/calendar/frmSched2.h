#pragma once
// The day planner, home screen while an athlete is signed in: the month calendar, the day's
// entries, the tabs of the day's items, workouts, exercises and log book, and the day's
// figures. Selecting a day reloads everything on it; the logs open from here.
#include <QDate>
#include <QTime>
#include <QWidget>

class QComboBox;
class QFontComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTextEdit;
class MonthCalendar;
class DayView;
class CalendarPopup;

class frmSched2 : public QWidget {
    Q_OBJECT
public:
    explicit frmSched2(QWidget* parent = nullptr);
    ~frmSched2() override;

    // Controls, under the system's names.
    MonthCalendar* CalView = nullptr;
    ::DayView* DayView = nullptr;
    QTabWidget* Tab1 = nullptr;
    QComboBox* cbointerval = nullptr;
    QLineEdit* txtBMR = nullptr;
    QLineEdit* txtCalsIn = nullptr;
    QLineEdit* txtCalsOut = nullptr;
    QLineEdit* txtCalsNet = nullptr;
    QLineEdit* txtlbs = nullptr;
    QLineEdit* txtWater = nullptr;
    QLabel* lblCalsNet = nullptr;
    QLabel* lblLbs = nullptr;
    // "Schedule"
    QListWidget* lstItems = nullptr;
    QPushButton* cmdView = nullptr;
    QPushButton* cmdDelete = nullptr;
    // "Strength Training"
    QListWidget* lstWorkouts = nullptr;
    QPushButton* cmdAddWorkout = nullptr;
    QComboBox* cboMuscleGroup = nullptr;
    QRadioButton* optType[2] = {nullptr, nullptr};
    QLabel* lblWorkoutDesc = nullptr;
    // "Exercise/Sports"
    QListWidget* ListView1 = nullptr;
    QPushButton* cmdAddEndurance = nullptr;
    QRadioButton* optendurance[3] = {nullptr, nullptr, nullptr};
    QLabel* lblExerciseDesc = nullptr;
    // "Log Book"
    QTextEdit* RTB = nullptr;
    QFontComboBox* Combo2 = nullptr;
    QComboBox* Combo3 = nullptr;
    QComboBox* Combo4 = nullptr;
    CalendarPopup* mnupopup = nullptr;

    // Procedures.
    void LoadNotes();
    void LoadToday();
    // "All", then the library's muscle groups.
    void LoadMuscleGroups();
    void ShowDescription(QLabel* label, const QString& sql);
    void LoadWater();
    void SaveLog();
    void FormatLog();
    void LoadDayView();
    void LoadDayItems();
    void LoadNetCalories();
    void LoadWorkouts();
    void LoadExercises();

    // What the main shell asks of the planner.
    void SelectTab(int tab);            // numbered from 1
    void SetMultiCalendar(bool multi);
    void SetColor();
    void SetFirstDay(int index);        // 0 = Sunday
    void ShowSportsList();
    // Writes the settings kept at close (Program/Cal, Program/Tab) and a changed log.
    void Form_Unload();

    QDate SelectedDate() const;
    bool LogDirty() const { return m_logDirty; }
    double DayWeight() const { return m_dayWeight; }

    // The start and end for the next new entry.
    QTime NewStart = QTime(9, 0);
    QTime NewEnd = QTime(9, 30);
    bool Adding = false;
    bool RefreshRequested = false;

public slots:
    void on_cmdView_clicked();
    void on_cmdDelete_clicked();
    void on_cmdAddWorkout_clicked();
    void on_cmdAddEndurance_clicked();
    void on_cbointerval_currentIndexChanged(int index);
    void on_txtWater_textChanged(const QString& text);
    void on_cboMuscleGroup_currentIndexChanged(int index);
    void on_lstItems_itemClicked(QListWidgetItem* item);
    void CalView_SelChange();
    void CalView_DblClick(const QDate& date);
    void CalView_RightClick(const QDate& date, const QPoint& globalPos);
    void DayView_Select(int id);
    void DayView_DblClick(int id);
    void DayView_Changed(int id, const QDateTime& start, const QDateTime& end);
    void DayView_FreeTime(const QDateTime& start, const QDateTime& end);

private:
    void BuildUi();
    void Form_Load();
    void ListView1_Select();
    void lstWorkouts_Select();
    void ApplyLogFormat(int which);
    void OpenEntry(const QString& workoutType);
    void AfterLog();

    QLabel* m_dayCaption = nullptr;
    bool m_loading = false;
    bool m_logDirty = false;
    bool m_unloaded = false;
    QDate m_loadedDate;
    double m_dayWeight = 0;
};

// The type and key in an entry's hidden text: "Exercise\t3" or, as appointments are placed,
// "3\tAppointment".
void ParseHiddenText(const QString& hidden, QString* workoutType, QString* key);
