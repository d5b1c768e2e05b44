#pragma once
// Registers the food diary's screens by name: "frmNutrition" and "frmChangeAmt".
void RegisterDailyNutritionScreens();
