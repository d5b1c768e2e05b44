#pragma once
// frmMuscleGroup, "Muscle Groups Associations": ties an exercise to further muscle groups.
#include <QDialog>
#include <QString>

class frmMuscleGroup : public QDialog {
    Q_OBJECT
public:
    explicit frmMuscleGroup(const QString& exercise, QWidget* parent = nullptr);
};
