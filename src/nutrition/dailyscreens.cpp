#include "nutrition/dailyscreens.h"
#include "nutrition/frmChangeAmt.h"
#include "nutrition/frmNutrition.h"
#include "core/ui.h"

void RegisterDailyNutritionScreens()
{
    ui::RegisterScreen(QStringLiteral("frmNutrition"), [](QWidget* p) { return new frmNutrition(p); });
    ui::RegisterScreen(QStringLiteral("frmChangeAmt"), [](QWidget* p) { return new frmChangeAmt(FoodPortion(), p); });
}
