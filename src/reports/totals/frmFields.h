#pragma once
#include <QDialog>

class QListWidget;
class QPushButton;
class QTabWidget;

// The fields chooser of the Daily Summary: which columns the day table shows and which
// nutrients the Nutrients grid lists. Saving writes Summary_Display and Nutrient_Display and
// accepts the dialog; the Daily Summary then lays its grids out again.
class frmFields : public QDialog {
    Q_OBJECT
public:
    enum Page { pageSummary, pageNutrients };
    explicit frmFields(QWidget* parent = nullptr, Page page = pageSummary);

    QTabWidget* Pages = nullptr;
    QListWidget* lstWellness = nullptr;
    QListWidget* lstNutrition = nullptr;
    QListWidget* lstExercise = nullptr;
    QListWidget* lstWorkout = nullptr;
    QListWidget* lstNutrients = nullptr;
    // 0 and 1 check and clear all of lstNutrients, 2 and 3 of lstWellness, 4 and 5 of
    // lstNutrition, 6 and 7 of lstExercise, 8 and 9 of lstWorkout; 10 to 14 invert lstWorkout,
    // lstNutrients, lstWellness, lstNutrition, lstExercise.
    QPushButton* cmdSelect[15] = {};
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdCancel = nullptr;

    void on_cmdSave_clicked();

private:
    void Load();
    void Select(int index);
};
