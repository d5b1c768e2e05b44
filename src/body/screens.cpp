#include "body/screens.h"
#include "core/ui.h"

void RegisterBodyScreens()
{
}
