#include "calendar/screens.h"
#include "core/ui.h"

void RegisterCalendarScreens()
{
}
