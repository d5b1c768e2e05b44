#include "strength/screens.h"
#include "core/ui.h"

void RegisterStrengthScreens()
{
}
