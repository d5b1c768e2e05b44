#include "exercise/frmExerciseForms.h"

frmExerciseForms::frmExerciseForms(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Exercise/Sports Library"));
}
