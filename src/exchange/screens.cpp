#include "exchange/screens.h"
#include "core/ui.h"

void RegisterExchangeScreens()
{
}
