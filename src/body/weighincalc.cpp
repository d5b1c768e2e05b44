#include "body/weighincalc.h"
#include "core/regional.h"

namespace weighin {

QStringList ConditionList()
{
    return {QStringLiteral("Sedentary"), QStringLiteral("Poor"), QStringLiteral("Fair"), QStringLiteral("Good"),
            QStringLiteral("Very Good"), QStringLiteral("Excellent"), QStringLiteral("Superior")};
}

double ConditionFactor(const QString& condition)
{
    static const double factors[] = {0.9, 1.0, 1.05, 1.1, 1.15, 1.2, 1.25};
    const int i = ConditionList().indexOf(condition);
    return i >= 0 ? factors[i] : 1.0;
}

std::optional<double> CalcBMI(double weight, double height, bool lbs)
{
    if (weight == 0 || height == 0)
        return std::nullopt;
    const double factor = lbs ? 703.0 : 10000.0;
    return regional::Round(weight / height / height * factor, 3);
}

std::optional<double> CalcBMR(double weight, bool kg, const QString& sex, double age, const QString& condition)
{
    if (weight == 0)
        return std::nullopt;
    const double pounds = kg ? weight * 2.2 : weight;
    const bool woman = sex.trimmed().compare(QStringLiteral("F"), Qt::CaseInsensitive) == 0;
    const double k = woman ? 11.0 : 12.0;
    const double c = woman ? 0.02 : 0.04;
    const double base = k * pounds - k * pounds * c - 4.7 * age;
    return base * ConditionFactor(condition);
}

QString FormatBMR(double bmr) { return regional::FormatNumber(bmr, QStringLiteral("####")); }

std::optional<double> CalcBodyFat(double weight, double idealWeight)
{
    if (weight == 0 || !(weight > 0) || !(idealWeight > 0))
        return std::nullopt;
    return regional::Round(100.0 * (weight - idealWeight) / weight, 2);
}

double TargetCalories(double bmr, double dietCalsPerDay) { return bmr - dietCalsPerDay; }

UnitLabels LabelsFor(const QString& personalMeasurements)
{
    if (personalMeasurements.trimmed().compare(QStringLiteral("lbs"), Qt::CaseInsensitive) == 0)
        return {QStringLiteral("Measurements - inches"), QStringLiteral("lbs"), QStringLiteral("in"), QStringLiteral("in")};
    return {QStringLiteral("Measurements - centimeters"), QStringLiteral("kg"), QStringLiteral("cm"), QStringLiteral("mm")};
}

QString ColumnCaption(const QString& column)
{
    QString caption = column;
    caption.replace(QLatin1Char('_'), QLatin1Char(' '));
    return caption.simplified();
}

}  // namespace weighin
