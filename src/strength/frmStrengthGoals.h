#pragma once
// frmStrengthGoals, "Goal Builder": starting reps and weight for every exercise from the athlete's maximum lifts.
#include <QDialog>

class frmStrengthGoals : public QDialog {
    Q_OBJECT
public:
    explicit frmStrengthGoals(QWidget* parent = nullptr);
};
