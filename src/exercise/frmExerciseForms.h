#pragma once
// frmExerciseForms, "Exercise/Sports Library": the exercise and sport items of the calendar, by
// category, each with its description, history, icon and form of fields.
#include <QDialog>

class frmExerciseForms : public QDialog {
    Q_OBJECT
public:
    explicit frmExerciseForms(QWidget* parent = nullptr);
};
