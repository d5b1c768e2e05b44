#include "strength/frmStrengthGoals.h"

frmStrengthGoals::frmStrengthGoals(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Goal Builder"));
}
