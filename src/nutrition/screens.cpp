#include "nutrition/screens.h"
#include "core/ui.h"
#include "nutrition/dailyscreens.h"
#include "nutrition/frmFoodCategories.h"
#include "nutrition/frmFoods.h"
#include "nutrition/frmMoveFood.h"
#include "nutrition/frmNutSearch.h"

void RegisterNutritionScreens()
{
    ui::RegisterScreen(QStringLiteral("frmFoods"), [](QWidget* p) { return new frmFoods(p); });
    ui::RegisterScreen(QStringLiteral("frmFoodCategories"), [](QWidget* p) { return new frmFoodCategories(p); });
    ui::RegisterScreen(QStringLiteral("frmMoveFood"), [](QWidget* p) { return new frmMoveFood(QString(), frmMoveFood::Copy, p); });
    ui::RegisterScreen(QStringLiteral("frmNutSearch"), [](QWidget* p) { return new frmNutSearch(QString(), p); });
    RegisterDailyNutritionScreens();
}
