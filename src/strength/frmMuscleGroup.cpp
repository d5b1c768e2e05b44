#include "strength/frmMuscleGroup.h"

frmMuscleGroup::frmMuscleGroup(const QString& exercise, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Muscle Groups Associations"));
}
