#include "core/screens.h"
#include "core/ui.h"

void RegisterCoreScreens()
{
}
