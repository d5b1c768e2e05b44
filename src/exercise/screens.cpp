#include "exercise/screens.h"
#include "core/ui.h"

void RegisterExerciseScreens()
{
}
