#include "nutrition/screens.h"
#include "core/ui.h"

void RegisterNutritionScreens()
{
}
