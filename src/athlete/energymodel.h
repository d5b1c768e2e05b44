#pragma once
// The athlete's energy model and heart-rate arithmetic: plain figures from the athlete
// screen's fields, with no window in sight. The screen reads its fields by value, calls these
// and writes the results back.
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace energy {

// The lists of the athlete screen, in their order.
QStringList ConditionList();      // cboFitness
QStringList FrameList();          // cboFrame
QStringList WeightLossList();     // cboWeightLoss
QStringList DietList();           // cboDiet
QStringList PurposeList();        // Combo1
QStringList StrengthList();       // cboStrength
QStringList MonitorList();        // cboHRM

// Activity factor of a condition's text; any text not in the list counts 1.0.
double ConditionFactor(const QString& condition);
// Frame factor by list index: Small 1.0, Medium 1.12, Large 1.22; no selection counts 1.0.
double FrameFactor(int index);

// The daily figure the athlete screen calls BMR (activity factor included), rounded to whole
// calories. Nothing when the starting weight or the age is 0. The weight is in kg when kg is
// true, otherwise in pounds.
std::optional<double> CalcBMR(double startingWeight, double age, bool male, bool kg, const QString& condition);
// Body mass index, rounded to 3 places: kg and cm when metric, pounds and inches otherwise.
// Nothing unless weight and height are above 0.
std::optional<double> CalcBMI(double weight, double height, bool metric);
// Ideal weight from lean body mass and frame, rounded to whole units of the athlete's
// weight. Nothing unless weight and height are above 0.
std::optional<double> CalcIdealWeight(double weight, double height, bool male, bool metric, int frameIndex);
// Body fat percent from weight and ideal weight, rounded to 2 places; nothing unless both are
// above 0. (The screen refuses an ideal weight below 1 before asking.)
std::optional<double> CalcBodyFat(double weight, double idealWeight);

// Percentages of calories that a diet of the list puts into carbs, protein and fat.
struct MacroShares {
    int carbs = 0;
    int protein = 0;
    int fat = 0;
};
std::optional<MacroShares> DietShares(int dietIndex);

// Daily calories for a share (percent) of a weekly change of `perWeek` units; metric units
// count 2.2 pounds each, and one pound is worth 3500 calories.
double DailyCalories(double share, double perWeek, bool metric);
// The weekly figure shown beside the two daily ones: their sum over 3500, rounded to 2 places.
double WeeklyFigure(double dietCalories, double exerciseCalories);
// The other share of one hundred.
double OtherShare(double share);

// The sentence of lblmaintain and the side labels that go with it.
struct MaintainText {
    QString maintain;   // lblmaintain
    QString dietSide;   // "calories less per day and burn" / "calories more per day and burn"; "" leaves it
    QString changeOf;   // "gain of" for a gain, "" leaves it
};
MaintainText MaintainSentence(const QString& bmr, const QString& lossLabel, const QString& amount,
                              const QString& unit);

// Difference of current and target weight, rounded to 2 places, and whether a weekly
// amount may be chosen (the difference rounded to whole units above 0).
double WeightDifference(double current, double target);
bool WeeklyAmountAllowed(double current, double target);

// Macro goal in grams for a daily calorie target: Round(cals x percent / 100 / perGram, 2).
double MacroGrams(double targetCals, double percent, double caloriesPerGram);

// Heart rate -----------------------------------------------------------------------------

// Maximum heart rate by age when none is given: men 214 - 0.8 x age, women 209 - 0.7 x age,
// rounded.
double MaxHeartRate(bool male, double age);
// Typing the age proposes 220 - age at once.
double QuickMaxHeartRate(double age);

struct TrainingRange {
    double lower = 0;
    double upper = 0;
    QString lowerCaption;
    QString upperCaption;
};
// The training range of a condition by its list index; nothing for no selection.
std::optional<TrainingRange> RangeForCondition(int conditionIndex);

// The fractions of the heart-rate reserve of the ten zone boxes, in box order.
const QList<double>& ZoneFractions();
// The ten zone boxes: (MHR - RHR) x p + RHR, each rounded.
QList<double> ZoneBoxes(double mhr, double rhr);
// A training rate: (MHR - RHR) x fraction + RHR.
double TrainingRate(double mhr, double rhr, double fraction);
// The percentage of the reserve that a rate stands for, rounded; nothing when MHR equals RHR.
std::optional<double> ReservePercent(double rate, double mhr, double rhr);
// The zone captions "(40-52%)" ... and the defaults of the ten boxes.
QStringList ZoneCaptions();
QList<double> DefaultZoneBoxes();
// Rewrites one side of a zone caption: an even box the number between "(" and "-", an odd
// box the one between "-" and "%)".
QString ChangeZoneCaption(const QString& caption, int box, const QString& percent);
// "Lower - 60%" / "Upper - 80%".
QString TrainingCaption(bool lower, const QString& percent);
// The tooltip of a zone box.
QString ZoneTooltip(const QString& percent);

// Burn rates of the ten intensity levels, and what each level stands for.
const QList<double>& DefaultIntensity();
QStringList IntensityExamples();

// The meals of a new athlete: name and start time, in position order.
struct DefaultMeal {
    QString meal;
    QString startTime;
};
const QList<DefaultMeal>& DefaultMeals();

// A number as the screens show it: no trailing zeros, no exponent.
QString NumText(double value);

}  // namespace energy
