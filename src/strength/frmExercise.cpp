#include "strength/frmExercise.h"

frmExercise::frmExercise(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Exercise Library"));
}
