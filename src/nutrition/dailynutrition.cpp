#include "nutrition/dailynutrition.h"
#include "core/regional.h"

#include <QRegularExpression>
#include <cmath>
#include <limits>

namespace daily {

int MeterPercent(double calories, double goal)
{
    const double p = regional::Round(100.0 * calories / goal, 0);
    if (!std::isfinite(p) || p > 32767)
        return 32767;
    if (p < -32768)
        return -32768;
    return int(p);
}

Meter CalorieMeter(double calories, double goal)
{
    Meter m;
    if (!(calories > 0 && goal > 0))
        return m;
    m.set = true;
    const int percent = MeterPercent(calories, goal);
    if (calories <= goal) {
        m.value = percent;
    } else if (percent > 100 && percent < 110) {
        m.color = QColor(255, 255, 0);
        m.value = 100;
    } else if (100.0 * calories / goal > 110) {
        m.color = QColor(255, 0, 0);
        m.value = 100;
    }
    return m;
}

double DietPoints(double fat, double calories, double fiber)
{
    return regional::Round(fat / 12.0 + calories / 50.0 - fiber / 5.0, 0);
}

Shares EnergyShares(double protein, double fat, double carbs)
{
    Shares s;
    const double total = protein * 4 + fat * 9 + carbs * 4;
    if (!(total > 0))
        return s;
    if (protein > 0) s.protein = protein * 4 / total * 100;
    if (fat > 0) s.fat = fat * 9 / total * 100;
    if (carbs > 0) s.carbs = carbs * 4 / total * 100;
    return s;
}

Shares FoodShares(double calories, double protein, double fat, double carbs)
{
    Shares s;
    const double p = protein * 4, f = fat * 9, c = carbs * 4;
    const double total = p + f + c;
    if (!(calories > 0) || total == 0)
        return s;
    s.protein = p / total * 100;
    s.fat = f / total * 100;
    s.carbs = c / total * 100;
    return s;
}

GramGoals GoalsFromTarget(double targetCals, double proteinPct, double fatPct, double carbsPct)
{
    GramGoals g;
    g.protein = regional::Round(targetCals * proteinPct / 4 / 100, 2);
    g.fat = regional::Round(targetCals * fatPct / 9 / 100, 2);
    g.carbs = regional::Round(targetCals * carbsPct / 4 / 100, 2);
    return g;
}

bool PercentOfRda(double amount, double rda, double* percent)
{
    if (!(amount > 0 && rda > 0))
        return false;
    *percent = regional::Round(100.0 * amount / rda, 0);
    return true;
}

double ScalePortion(double value, double newAmount, double newConversion, double oldAmount, double oldConversion)
{
    const double oldSize = oldAmount * oldConversion;
    if (oldSize == 0)
        return value;
    return regional::Round(value * (newAmount * newConversion) / oldSize, 2);
}

bool IsDuplicateName(const QStringList& names, const QString& name)
{
    const QString upper = name.toUpper();
    for (const QString& n : names)
        if (n.toUpper() == upper)
            return true;
    return false;
}

void SplitAmount(const QString& text, QString* amount, QString* measure)
{
    const int blank = text.indexOf(QLatin1Char(' '));
    if (blank < 0) {
        *amount = text;
        measure->clear();
        return;
    }
    *amount = text.left(blank);
    *measure = text.mid(blank + 1);
}

QString SearchFilter(const QString& text, int minLength)
{
    QString t = text;
    t.replace(QLatin1String("'"), QLatin1String("''"));
    t = t.trimmed();
    if (t.size() < minLength)
        return QString();
    const int blank = t.indexOf(QLatin1Char(' '));
    if (blank > 0)
        return QStringLiteral("like '%") + t.left(blank) + QStringLiteral("%' and name like '%") + t.mid(blank + 1) +
               QStringLiteral("%'");
    return QStringLiteral("like '%") + t + QStringLiteral("%'");
}

QString ListNumber(double value)
{
    return QString::number(regional::Round(value, 2), 'f', 2).remove(QRegularExpression(QStringLiteral("\\.?0+$")));
}

}  // namespace daily
