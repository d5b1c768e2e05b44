#include "athlete/screens.h"
#include "core/ui.h"

void RegisterAthleteScreens()
{
}
