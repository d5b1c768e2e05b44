#include "reports/screens.h"
#include "core/ui.h"

void RegisterReportsScreens()
{
}
