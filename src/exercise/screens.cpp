#include "exercise/screens.h"
#include "core/ui.h"
#include "exercise/frmExerciseForms.h"
#include "exercise/frmExerciseLog.h"
#include "exercise/frmSelections.h"

void RegisterExerciseScreens()
{
    ui::RegisterScreen(QStringLiteral("frmExerciseForms"), [](QWidget* p) { return new frmExerciseForms(p); });
    ui::RegisterScreen(QStringLiteral("frmExerciseLog"), [](QWidget* p) { return new frmExerciseLog(p); });
    ui::RegisterScreen(QStringLiteral("frmSelections"),
                       [](QWidget* p) { return new frmSelections(frmSelections::Manage, p); });
}
