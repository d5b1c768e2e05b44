#pragma once
// frmStrengthWorkouts, "Workout Library": named strength and sports workouts shared by every
// athlete, their sets, the workout page with its exchange tags, and the import of a downloaded
// workout page.
#include <QDialog>
#include <QStringList>
#include <functional>

#include "strength/rules/workoutpage.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class Grid;

// The workout page lives in the reports subsystem above this one; it fills this link when it
// registers, and "&Print" calls it with the page's file name (the workout's name without "/"
// and "\", and ".htm"), the workout as the screen holds it for the page's table, and its
// exchange tags to put before the page's "</body>".
std::function<void(const QString& fileName, const workoutpage::Workout& workout, const QString& tags)>& ReportWorkoutLink();

class frmStrengthWorkouts : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthWorkouts(QWidget* parent = nullptr);

    // Columns of SS1.
    enum GridColumn { gcMuscle = 1, gcExercise, gcSet, gcReps, gcWeight, gcIntensity, gcGoal, gcNotes };

    // Procedures of the screen.
    void FillCombos();
    void LoadWorkouts();
    void Loadexercises();
    void FormatGrid();
    void FormatData();
    void SaveWeights(long workoutId);
    void CheckMoveButtons();
    // The workout on the screen as its page carries it, and the page's exchange tags.
    workoutpage::Workout PageWorkout() const;
    QString CreateHTML() const;
    // Reads the downloaded page held in SelectedItem into the library.
    void ImportWorkout();
    QString Unit() const { return m_unit; }

    // Controls, under the system's names.
    QComboBox* cboType = nullptr;
    QListWidget* lstWorkouts = nullptr;
    QLabel* lblWorkout = nullptr;
    QRadioButton* optExercise[2] = {nullptr, nullptr};
    QListWidget* list1 = nullptr;
    QLineEdit* txtWorkout = nullptr;
    QLineEdit* txtComments = nullptr;
    QComboBox* cboMuscleGroup = nullptr;
    QCheckBox* chkBeginner = nullptr;
    QCheckBox* chkIntermediate = nullptr;
    QCheckBox* chkAdvanced = nullptr;
    Grid* SS1 = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdInfo = nullptr;
    QPushButton* cmdNewExercise = nullptr;
    QPushButton* cmdAddSet = nullptr;
    QPushButton* cmdRemoveSet = nullptr;
    QPushButton* cmdUp = nullptr;
    QPushButton* cmdDown = nullptr;
    QPushButton* cmdClear = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdDeleteWorkout = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdClose = nullptr;

public slots:
    void on_cboType_changed();
    void on_lstWorkouts_changed();
    void on_optExercise_changed();
    void on_cmdAdd_clicked();
    void on_cmdInfo_clicked();
    void on_cmdNewExercise_clicked();
    void on_cmdAddSet_clicked();
    void on_cmdRemoveSet_clicked();
    void on_cmdUp_clicked();
    void on_cmdDown_clicked();
    void on_cmdClear_clicked();
    void on_cmdSave_clicked();
    void on_cmdDeleteWorkout_clicked();
    void on_cmdPrint_clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildUi();
    void changed();
    void clearFields();
    QString wtype() const;
    QStringList readRow(int row) const;
    void writeRow(int row, const QStringList& cells);
    int lastRowOf(const QString& exercise) const;
    void moveBlock(int by);
    QString muscleGroupOf(const QString& exercise, const QString& otherwise) const;
    void addWorkoutRow(const QString& name, const QString& description, const QString& muscleGroup,
                       const QString& type);
    long workoutIdOf(const QString& name) const;

    QString m_unit = QStringLiteral("kg");
    bool m_loading = false;
};
