#pragma once
// The arithmetic of the food diary: the calorie meter, diet points, energy shares of protein,
// fat and carbohydrate, gram goals from a calorie target, percent of RDA, scaling a portion,
// the duplicate rule and the search filter. No window and no store in here.
#include <QColor>
#include <QString>
#include <QStringList>

namespace daily {

// Column positions: grid row N (catalogue row N of Nutrients, from 1) is position 8 + N of
// daily_nutrition and 5 + N of foods; a diary row copies foods position p into p + 3.
constexpr int DiaryOffset = 8;
constexpr int FoodsOffset = 5;
constexpr int FoodsToDiary = 3;
constexpr int FirstScaled = 8;     // points
constexpr int LastScaled = 45;     // the last nutrient
constexpr int SavedMealId = 9999;  // ingredient rows of saved meals
constexpr int SavedMealGroup = 65; // foods rows that are saved meals
inline int DiaryPosition(int gridRow) { return DiaryOffset + gridRow; }
inline int FoodsPosition(int gridRow) { return FoodsOffset + gridRow; }

// The calorie meter: value 0..100 and its colour.
struct Meter {
    int value = 0;
    QColor color = QColor(0, 255, 0);
    bool set = false;      // false: the goal or the calories were not above 0, nothing was set
};
// calories eaten against the goal (the newest weigh-in's BMR, rounded). Within the goal:
// green at the percent. Over, with the whole percent 101..109: yellow at 100; over with the
// exact ratio above 110 percent: red at 100. A whole percent of exactly 110 from a ratio of
// at most 110 (2,200 of 2,000), or an excess that rounds to 100, leaves green at 0.
Meter CalorieMeter(double calories, double goal);
// 100 * calories / goal as the 16-bit integer the meter takes (halves to even, clamped).
int MeterPercent(double calories, double goal);

// Diet points of a selection: Round(fat / 12 + calories / 50 - fiber / 5, 0).
double DietPoints(double fat, double calories, double fiber);

// Energy shares in percent; all 0 when the energy total is not above 0, and a part that is not
// above 0 stays 0.
struct Shares {
    double carbs = 0, fat = 0, protein = 0;
};
Shares EnergyShares(double protein, double fat, double carbs);
// The same for one food or diary row, which also needs its calories above 0.
Shares FoodShares(double calories, double protein, double fat, double carbs);

// Goals in grams from the calorie target and the percentages: protein and carbs 4, fat 9.
struct GramGoals {
    double protein = 0, fat = 0, carbs = 0;
};
GramGoals GoalsFromTarget(double targetCals, double proteinPct, double fatPct, double carbsPct);

// Round(100 * amount / rda, 0), or an empty result (false) unless both are above 0.
bool PercentOfRda(double amount, double rda, double* percent);

// A portion's scale: value x (new amount x conversion of new) / (old amount x conversion of
// old), rounded to 2 places. With an old portion of 0 nothing can be scaled and the value stays.
double ScalePortion(double value, double newAmount, double newConversion, double oldAmount, double oldConversion);

// "You can't add duplicate foods": the names compare in upper case.
bool IsDuplicateName(const QStringList& names, const QString& name);

// An "Amount" text split at the first blank: "1.5 cup" -> "1.5", "cup".
void SplitAmount(const QString& text, QString* amount, QString* measure);

// The filter of a food search: ' doubled, trimmed, split at the first blank. Empty when the
// text is shorter than minLength characters (after trimming).
QString SearchFilter(const QString& text, int minLength = 3);

// A number shown in the diary lists: rounded to 2 places, without trailing zeros.
QString ListNumber(double value);

}  // namespace daily
