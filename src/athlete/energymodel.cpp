#include "athlete/energymodel.h"
#include "core/regional.h"

#include <cmath>

using regional::Round;

namespace energy {

QStringList ConditionList()
{
    return {QStringLiteral("Sedentary"), QStringLiteral("Poor"), QStringLiteral("Fair"), QStringLiteral("Good"),
            QStringLiteral("Very Good"), QStringLiteral("Excellent"), QStringLiteral("Superior")};
}

QStringList FrameList() { return {QStringLiteral("Small"), QStringLiteral("Medium"), QStringLiteral("Large")}; }

QStringList WeightLossList()
{
    return {QStringLiteral(".25"), QStringLiteral(".5"), QStringLiteral(".75"), QStringLiteral("1"),
            QStringLiteral("1.25"), QStringLiteral("1.5"), QStringLiteral("1.75"), QStringLiteral("2")};
}

QStringList DietList()
{
    return {QStringLiteral("Typical Diet"), QStringLiteral("Atkins (TM)"), QStringLiteral("Carbohydrate Addicts (TM)"),
            QStringLiteral("Macrobiotics (TM)"), QStringLiteral("Protein Power (TM)"),
            QStringLiteral("Weight Watchers (TM)"), QStringLiteral("The Zone (TM)")};
}

QStringList PurposeList()
{
    return {QStringLiteral("Personal Fitness"), QStringLiteral("Weight Loss"), QStringLiteral("Sports Training"),
            QStringLiteral("Nutrition"), QStringLiteral("Strength Training"), QStringLiteral("Aerobic Training"),
            QStringLiteral("Sports Stats"), QStringLiteral("Sports Training-Pro")};
}

QStringList StrengthList()
{
    return {QStringLiteral("Beginner"), QStringLiteral("Intermediate"), QStringLiteral("Advanced")};
}

QStringList MonitorList()
{
    return {QStringLiteral("Mio"), QStringLiteral("Polar"), QStringLiteral("Acumen"), QStringLiteral("Timex"),
            QStringLiteral("Other")};
}

double ConditionFactor(const QString& condition)
{
    if (condition == QLatin1String("Sedentary")) return 0.9;
    if (condition == QLatin1String("Poor")) return 1.0;
    if (condition == QLatin1String("Fair")) return 1.05;
    if (condition == QLatin1String("Good")) return 1.1;
    if (condition == QLatin1String("Very Good")) return 1.15;
    if (condition == QLatin1String("Excellent")) return 1.2;
    if (condition == QLatin1String("Superior")) return 1.25;
    return 1.0;
}

double FrameFactor(int index)
{
    switch (index) {
    case 1: return 1.12;
    case 2: return 1.22;
    default: return 1.0;
    }
}

std::optional<double> CalcBMR(double startingWeight, double age, bool male, bool kg, const QString& condition)
{
    if (startingWeight == 0 || age == 0) return std::nullopt;
    const double w = kg ? startingWeight * 2.2 : startingWeight;   // the formula works in pounds
    const double c = male ? 12.0 : 11.0;
    const double k = male ? 0.04 : 0.03;
    const double base = w * c - k * (w * c) - 4.7 * age;
    return Round(base * ConditionFactor(condition), 0);
}

std::optional<double> CalcBMI(double weight, double height, bool metric)
{
    if (weight <= 0 || height <= 0) return std::nullopt;
    return Round(weight / height / height * (metric ? 10000.0 : 703.0), 3);
}

std::optional<double> CalcIdealWeight(double weight, double height, bool male, bool metric, int frameIndex)
{
    if (weight <= 0 || height <= 0) return std::nullopt;
    double w = weight, h = height;
    if (!metric) {
        w = weight / 2.2;
        h = height * 2.54;
    }
    const double ratio = w * w / (h * h);
    double lbm = male ? 1.1 * w - 128.0 * ratio : 1.07 * w - 148.0 * ratio;
    lbm *= FrameFactor(frameIndex);
    if (!metric) lbm *= 2.2;
    return Round(lbm, 0);
}

std::optional<double> CalcBodyFat(double weight, double idealWeight)
{
    if (weight <= 0 || idealWeight <= 0) return std::nullopt;
    return Round((weight - idealWeight) / weight * 100.0, 2);
}

std::optional<MacroShares> DietShares(int dietIndex)
{
    static const MacroShares table[] = {{50, 20, 30}, {40, 30, 30}, {40, 40, 20}, {60, 30, 10},
                                        {40, 40, 20}, {50, 30, 20}, {40, 30, 30}};
    if (dietIndex < 0 || dietIndex >= int(std::size(table))) return std::nullopt;
    return table[dietIndex];
}

double DailyCalories(double share, double perWeek, bool metric)
{
    const double pounds = metric ? perWeek * 2.2 : perWeek;
    return Round(share / 100.0 * pounds * 3500.0 / 7.0, 0);
}

double WeeklyFigure(double dietCalories, double exerciseCalories)
{
    return Round((exerciseCalories + dietCalories) / 3500.0, 2);
}

double OtherShare(double share) { return 100.0 - share; }

MaintainText MaintainSentence(const QString& bmr, const QString& lossLabel, const QString& amount,
                              const QString& unit)
{
    MaintainText t;
    if (lossLabel == QLatin1String("Weight gain per week")) {
        t.maintain = bmr + " calories to maintain your weight. To gain " + amount + " " + unit + " per week";
        t.dietSide = QStringLiteral("calories more per day and burn");
        t.changeOf = QStringLiteral("gain of");
    } else if (!amount.isEmpty()) {
        t.maintain = bmr + " calories to maintain your weight. To lose " + amount + " " + unit + " per week";
        t.dietSide = QStringLiteral("calories less per day and burn");
        t.changeOf = QStringLiteral("loss of");
    } else {
        t.maintain = bmr + " calories to maintain your weight.";
    }
    return t;
}

double WeightDifference(double current, double target) { return Round(current - target, 2); }

bool WeeklyAmountAllowed(double current, double target) { return Round(current - target, 0) > 0; }

double MacroGrams(double targetCals, double percent, double caloriesPerGram)
{
    return Round(targetCals * percent / 100.0 / caloriesPerGram, 2);
}

double MaxHeartRate(bool male, double age)
{
    return male ? Round(214.0 - 0.8 * age, 0) : Round(209.0 - 0.7 * age, 0);
}

double QuickMaxHeartRate(double age) { return 220.0 - age; }

std::optional<TrainingRange> RangeForCondition(int conditionIndex)
{
    auto range = [](double lo, double up) {
        return TrainingRange{lo, up, TrainingCaption(true, NumText(lo * 100)), TrainingCaption(false, NumText(up * 100))};
    };
    switch (conditionIndex) {
    case 0: return range(0.50, 0.60);
    case 1: return range(0.50, 0.65);
    case 2: return range(0.60, 0.70);
    case 3: return range(0.70, 0.80);
    case 4:
    case 5:
    case 6: return range(0.70, 0.90);
    default: return std::nullopt;
    }
}

const QList<double>& ZoneFractions()
{
    static const QList<double> p = {0.40, 0.52, 0.52, 0.64, 0.64, 0.76, 0.76, 0.88, 0.88, 1.0};
    return p;
}

QList<double> ZoneBoxes(double mhr, double rhr)
{
    const double r = mhr - rhr;
    QList<double> boxes;
    for (double p : ZoneFractions()) boxes << Round(r * p + rhr, 0);
    return boxes;
}

double TrainingRate(double mhr, double rhr, double fraction) { return (mhr - rhr) * fraction + rhr; }

std::optional<double> ReservePercent(double rate, double mhr, double rhr)
{
    if (mhr == rhr) return std::nullopt;
    return Round((rate - rhr) / (mhr - rhr) * 100.0, 0);
}

QStringList ZoneCaptions()
{
    return {QStringLiteral("(40-52%)"), QStringLiteral("(52-64%)"), QStringLiteral("(64-76%)"),
            QStringLiteral("(76-88%)"), QStringLiteral("(88-100%)")};
}

QList<double> DefaultZoneBoxes() { return {115, 140, 141, 160, 161, 170, 171, 180, 181, 190}; }

QString ChangeZoneCaption(const QString& caption, int box, const QString& percent)
{
    const int open = caption.indexOf('(');
    // The dash between the two numbers: a lower side below 0 ("(-8-52%)") has a minus of its own.
    const int dash = caption.indexOf('-', open + 2);
    const int close = caption.indexOf(QLatin1String("%)"), dash + 1);
    if (open < 0 || dash < 0 || close < 0) return caption;
    if (box % 2 == 0) return caption.left(open + 1) + percent + caption.mid(dash);
    return caption.left(dash + 1) + percent + caption.mid(close);
}

QString TrainingCaption(bool lower, const QString& percent)
{
    return (lower ? QStringLiteral("Lower - ") : QStringLiteral("Upper - ")) + percent + "%";
}

QString ZoneTooltip(const QString& percent)
{
    return "(Maximum Heart Rate - Resting Heart Rate) x " + percent + " +  Resting Heart Rate";
}

const QList<double>& DefaultIntensity()
{
    static const QList<double> v = {1.2, 1.7, 2.2, 2.7, 3.2, 3.7, 4.2, 4.7, 5.2, 5.7};
    return v;
}

QStringList IntensityExamples()
{
    return {QStringLiteral("Slow Walk"), QStringLiteral("Medium Walk"), QStringLiteral("Fast Walk"),
            QStringLiteral("Jog"), QStringLiteral("Medium Jog"), QStringLiteral("Fast Jog"), QStringLiteral("Run"),
            QStringLiteral("Fast Run"), QStringLiteral("Running Hills/Stairs"), QStringLiteral("Running a Race")};
}

const QList<DefaultMeal>& DefaultMeals()
{
    static const QList<DefaultMeal> m = {
        {QStringLiteral("Breakfast"), QStringLiteral("7:00AM")}, {QStringLiteral("Snack1"), QStringLiteral("10:30AM")},
        {QStringLiteral("Lunch"), QStringLiteral("12:00PM")},    {QStringLiteral("Snack2"), QStringLiteral("2:30PM")},
        {QStringLiteral("Supper"), QStringLiteral("6:00PM")},    {QStringLiteral("Snack3"), QStringLiteral("8:00PM")}};
    return m;
}

QString NumText(double value)
{
    if (!std::isfinite(value)) return QStringLiteral("0");
    QString s = QString::number(value, 'f', 6);
    if (s.contains('.')) {
        while (s.endsWith('0')) s.chop(1);
        if (s.endsWith('.')) s.chop(1);
    }
    if (s == QLatin1String("-0")) s = QStringLiteral("0");
    return s;
}

}  // namespace energy
