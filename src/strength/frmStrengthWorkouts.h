#pragma once
// frmStrengthWorkouts, "Workout Library": named strength and sports workouts, their sets, print and import.
#include <QDialog>

class frmStrengthWorkouts : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthWorkouts(QWidget* parent = nullptr);
};
