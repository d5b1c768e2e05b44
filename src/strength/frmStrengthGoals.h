#pragma once
// frmStrengthGoals, "Goal Builder": starting reps and weight for every exercise from the athlete's
// maximum lifts, training level, strength level and purpose, kept in strength_goals.
#include <QDialog>
#include <QList>

#include "strength/rules/strengthgoals.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class Grid;

class frmStrengthGoals : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthGoals(QWidget* parent = nullptr);

    // Columns of SS1; the exercise_id is the hidden row header.
    enum GridColumn { gcExercise = 1, gcReps = 2, gcWeight = 3 };

    // Procedures of the screen.
    void FormatGrid();
    double SetReps(const QString& type) const;
    double SetWeight(const QString& percLift, const QString& lift) const;
    // Writes the athlete's choices and the grid's goals.
    void SaveGoals();
    // The screen's settings as the goal rules read them.
    strengthgoals::GoalSettings Settings() const;
    QString Unit() const { return m_unit; }

    // Controls, under the system's names.
    QComboBox* cboStrengthLevel = nullptr;
    QComboBox* cboLevel = nullptr;
    QComboBox* cboStrengthPurpose = nullptr;
    QLineEdit* txtSquat = nullptr;
    QLineEdit* txtDeadLift = nullptr;
    QLineEdit* txtBenchPress = nullptr;
    QList<QLabel*> lblWeight;
    QCheckBox* chkPrefill = nullptr;
    QPushButton* cmdGoals = nullptr;
    QPushButton* cmdClose = nullptr;
    Grid* SS1 = nullptr;

public slots:
    void on_cboStrengthLevel_changed();
    void on_cmdGoals_clicked();
    void done(int result) override;

private:
    void buildUi();
    void loadAthlete();
    void fillGrid();
    void changed();

    QString m_unit = QStringLiteral("kg");
    double m_age = 0;
    QString m_sex;
};
