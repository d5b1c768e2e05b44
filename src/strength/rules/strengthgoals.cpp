#include "strength/rules/strengthgoals.h"

#include <cmath>
#include <cstdlib>

#include "core/regional.h"
#include "core/store/value.h"

namespace strengthgoals {

namespace {

// A whole number from a double as the weights are kept: to the nearest, even on an exact half.
long ToLong(double v) { return long(regional::Round(v, 0)); }

bool IsKg(const QString& unit) { return unit.compare(QLatin1String("kg"), Qt::CaseInsensitive) == 0; }

}  // namespace

QStringList StrengthLevels()
{
    return {QStringLiteral("Weak"), QStringLiteral("Normal"), QStringLiteral("Strong"), QStringLiteral("Very Strong"),
            QStringLiteral("Extremely Strong")};
}

QStringList TrainingLevels()
{
    return {QStringLiteral("Beginner"), QStringLiteral("Intermediate"), QStringLiteral("Advanced")};
}

QStringList Purposes()
{
    return {QStringLiteral("Fitness/Toning"), QStringLiteral("Bodybuilding"), QStringLiteral("Multisport"),
            QStringLiteral("Powerlifting")};
}

double SetReps(const QString& type, const GoalSettings& s)
{
    double reps = 0;
    const QString& level = s.trainingLevel;
    switch (s.purpose) {
    case 0:   // Fitness/Toning
        if (level == QLatin1String("Beginner")) reps = 10;
        else if (level == QLatin1String("Intermediate")) reps = 12;
        else if (level == QLatin1String("Advanced") || level == QLatin1String("Pro")) reps = 16;
        break;
    case 1:   // Bodybuilding
        if (level == QLatin1String("Beginner")) reps = 12;
        else if (level == QLatin1String("Intermediate")) reps = 10;
        else if (level == QLatin1String("Advanced") || level == QLatin1String("Pro")) reps = 8;
        break;
    case 2:   // Multisport: no reps of its own
        break;
    case 3:   // Powerlifting
        if (level == QLatin1String("Beginner") || level == QLatin1String("Intermediate") ||
            level == QLatin1String("Advanced") || level == QLatin1String("Pro"))
            reps = 10;
        break;
    default:
        break;
    }
    // Holds and stretches are counted by the strength level instead.
    if (type == QLatin1String("Isometric") || type == QLatin1String("Stretching")) {
        const QString& strength = s.strengthLevel;
        if (strength == QLatin1String("Weak")) reps = 10;
        else if (strength == QLatin1String("Normal")) reps = 20;
        else if (strength == QLatin1String("Strong")) reps = 35;
        else if (strength == QLatin1String("Very Strong")) reps = 50;
        else if (strength == QLatin1String("Extremely Strong")) reps = 70;
    }
    return reps;
}

double SetWeight(const QString& percLift, const QString& lift, const GoalSettings& s)
{
    double maximum = 0;
    const QString upper = lift.toUpper();
    if (upper == QLatin1String("SQUAT")) maximum = Val(s.squat);
    else if (upper == QLatin1String("DEADLIFT")) maximum = Val(s.deadLift);
    else if (upper == QLatin1String("BENCH PRESS")) maximum = Val(s.benchPress);

    long w = long(std::floor(Val(percLift) * maximum / 100.0));

    const QString& strength = s.strengthLevel;
    if (strength == QLatin1String("Weak")) w -= 15;
    else if (strength == QLatin1String("Normal")) w -= 10;
    else if (strength == QLatin1String("Strong")) w -= 5;
    else if (strength == QLatin1String("Very Strong")) w += 15;
    else if (strength == QLatin1String("Extremely Strong")) w += 20;

    if (s.age < 35 && strength != QLatin1String("Weak")) {
        if (strength == QLatin1String("Normal")) w += 10;
        else if (strength == QLatin1String("Strong")) w += 15;
        else if (strength == QLatin1String("Very Strong")) w += 15;
        else if (strength == QLatin1String("Extremely Strong")) w += 25;
    }

    if (s.sex == QLatin1String("F"))
        w = ToLong(double(w) * 0.8);

    // Beginners and the advanced lift a multiple of 5. The intermediate's comparison text never
    // equals a level of the list, so an intermediate's weight stays as it is.
    const QString& level = s.trainingLevel;
    if (level == QLatin1String("Beginner")) {
        w = std::labs(w - (w % 5));
    } else if (level == QLatin1String("Intermediate  ' Beginner & Intermediate")) {
        w = std::labs(w - (w % 5));
    } else if (level == QLatin1String("Advanced") || level == QLatin1String("Pro")) {
        w = std::labs(w - (w % 5)) + 5;
    }

    if (IsKg(s.unit))
        w = ToLong(regional::Round(double(w) / 2.2, 2));
    if (w < 4)
        w = 4;
    return double(w);
}

bool LiftsForStrength(const QString& strengthLevel, const QString& unit, Lifts* lifts)
{
    static const struct { const char* word; int squat, deadLift, bench; } table[] = {
        {"Weak", 60, 75, 50},          {"Normal", 120, 150, 100},          {"Strong", 200, 250, 150},
        {"Very Strong", 300, 375, 225}, {"Extremely Strong", 400, 475, 350},
    };
    for (const auto& row : table) {
        if (strengthLevel != QLatin1String(row.word))
            continue;
        auto inUnit = [&unit](int pounds) { return IsKg(unit) ? int(ToLong(pounds / 2.2)) : pounds; };
        lifts->squat = inUnit(row.squat);
        lifts->deadLift = inUnit(row.deadLift);
        lifts->benchPress = inUnit(row.bench);
        return true;
    }
    return false;
}

}  // namespace strengthgoals
