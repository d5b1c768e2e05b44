#pragma once
// The figures of the weigh-in screen: body mass index, the daily calorie figure it calls BMR,
// body fat from the ideal weight, and the calorie target written when the screen closes.
// Plain arithmetic on the screen's values, no window in sight.
#include <QString>
#include <QStringList>
#include <optional>

namespace weighin {

// The conditions of cboCondition, in order.
QStringList ConditionList();
// Factor of a condition's text; any other text counts 1.
double ConditionFactor(const QString& condition);

// Body mass index rounded to 3 places: pounds and inches when lbs, kilograms and centimetres
// otherwise. Nothing when weight or height is 0 (or below).
std::optional<double> CalcBMI(double weight, double height, bool lbs);

// The weigh-in's BMR before formatting: the weight in pounds (kg x 2.2 when kg), the
// coefficients 11 and 0.02 for a woman ("F"), 12 and 0.04 for anyone else, less 4.7 a year of
// age, times the condition's factor. Nothing when the weight is 0.
std::optional<double> CalcBMR(double weight, bool kg, const QString& sex, double age, const QString& condition);
// The text txtBMR shows for it: a whole number without leading zeros ("####").
QString FormatBMR(double bmr);

// Body fat percent with the ideal weight taken as lean mass, rounded to 2 places; negative
// for a weight under the ideal. Nothing unless weight and ideal weight are both above 0.
std::optional<double> CalcBodyFat(double weight, double idealWeight);

// The calorie target set when the view closes: BMR less the chosen daily deficit.
double TargetCalories(double bmr, double dietCalsPerDay);

// Units of the measurement labels, by the athlete's personal_measurements.
struct UnitLabels {
    QString frame;      // "Measurements - inches" / "Measurements - centimeters"
    QString weight;     // "lbs" / "kg"
    QString length;     // "in" / "cm"
    QString skinfold;   // "in" / "mm"
};
UnitLabels LabelsFor(const QString& personalMeasurements);

// A measurement's column as a person reads it: "Bicep_Left" is "Bicep Left".
QString ColumnCaption(const QString& column);

}  // namespace weighin
