#include "core/main_flow.h"
#include "core/screens.h"
#include "athlete/screens.h"
#include "calendar/screens.h"
#include "exercise/screens.h"
#include "strength/screens.h"
#include "nutrition/screens.h"
#include "body/screens.h"
#include "reports/screens.h"
#include "exchange/screens.h"
#include "core/ui.h"

int main(int argc, char** argv)
{
    return Main(argc, argv, [] {
        RegisterCoreScreens();
        RegisterAthleteScreens();
        RegisterCalendarScreens();
        RegisterExerciseScreens();
        RegisterStrengthScreens();
        RegisterNutritionScreens();
        RegisterBodyScreens();
        RegisterReportsScreens();
        RegisterExchangeScreens();
    });
}
