#pragma once
// frmMuscleGroup, "Muscle Groups Associations": ties an exercise to further muscle groups.
#include <QDialog>
#include <QString>

class QComboBox;
class QLabel;
class QListWidget;

class frmMuscleGroup : public QDialog {
    Q_OBJECT
public:
    // Opened from the exercise library with its exercise selected; an empty name selects none.
    explicit frmMuscleGroup(const QString& exercise, QWidget* parent = nullptr);

    // The groups other than the main one, with the exercise's ties selected.
    void FillMuscleList();

    QComboBox* cboExercise = nullptr;
    QLabel* lblMainAss = nullptr;
    QListWidget* List1 = nullptr;

public slots:
    void on_cboExercise_changed();
    // Rewrites the exercise's ties from the selected lines.
    void on_List1_clicked();

private:
    bool m_loading = false;
};
