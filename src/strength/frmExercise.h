#pragma once
// frmExercise, "Exercise Library": edits the strength exercises workouts are built from.
#include <QDialog>

class frmExercise : public QDialog {
    Q_OBJECT
public:
    explicit frmExercise(QWidget* parent = nullptr);
};
