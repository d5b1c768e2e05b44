#pragma once
// frmExerciseLog, "Exercise/Sports Planning and Log": one exercise or sport session of one day,
// planned and recorded. Opened by the planner: for the entry SelectedKey of the calendar's day,
// or, while the planner is adding, to schedule SelectedItem on every selected day.
#include <QDialog>

class frmExerciseLog : public QDialog {
    Q_OBJECT
public:
    explicit frmExerciseLog(QWidget* parent = nullptr);
};
