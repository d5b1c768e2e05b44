#include "strength/screens.h"
#include "core/ui.h"
#include "strength/Calculator.h"
#include "strength/frmExercise.h"
#include "strength/frmStrengthGoals.h"
#include "strength/frmStrengthLog.h"
#include "strength/frmStrengthWorkouts.h"

void RegisterStrengthScreens()
{
    ui::RegisterScreen(QStringLiteral("frmExercise"), [](QWidget* p) { return new frmExercise(p); });
    ui::RegisterScreen(QStringLiteral("frmStrengthWorkouts"), [](QWidget* p) { return new frmStrengthWorkouts(p); });
    ui::RegisterScreen(QStringLiteral("frmStrengthGoals"), [](QWidget* p) { return new frmStrengthGoals(p); });
    ui::RegisterScreen(QStringLiteral("frmStrengthLog"), [](QWidget* p) { return new frmStrengthLog(p); });
    ui::RegisterScreen(QStringLiteral("Calculator"), [](QWidget* p) { return new Calculator(p); });
}
