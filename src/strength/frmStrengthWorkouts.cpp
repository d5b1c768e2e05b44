#include "strength/frmStrengthWorkouts.h"

frmStrengthWorkouts::frmStrengthWorkouts(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Workout Library"));
}
