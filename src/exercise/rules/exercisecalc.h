#pragma once
// The arithmetic of an exercise session: durations, speeds, lap times and calories burned.
#include <QDate>
#include <QString>
#include <QStringList>
#include <QTime>
#include <optional>

// Hours in a duration "hh:mm:ss": blanks count as "0", the hours are the first two
// characters, the minutes the two from the fourth, the seconds the last two.
double gethours(const QString& duration);

// Lap times as a session keeps them: each time followed by "~". Nothing after the last "~"
// is a lap; "" is no laps at all.
QStringList SplitLaps(const QString& lapTimes);
QString JoinLaps(const QStringList& laps);

// Speed over a distance in `distUnit` covered in `hours`, in `baseUnit` ("kph" or "mph"),
// rounded to 2 decimals; nothing when the hours or the distance are not above 0. The distance
// converts through the units table (kph divides by 0.6288).
std::optional<double> CalcSpeed(double distance, const QString& distUnit, const QString& baseUnit, double hours);

// Whether a speed can be calculated: the distance and hours of the actual or the planned
// column both above 0, and a distance unit chosen.
bool CanCalcSpeed(double distance, double hours, double plannedDistance, double plannedHours,
                  const QString& distUnit);

// Calories burned: the intensity's rate kept as thousandths (Value x 1000 as a whole number)
// x hours x weight / 1000, rounded.
long CaloriesBurned(long intensityData, double hours, double weight);
// An intensity's Value as the list keeps it: thousandths in a whole number.
long IntensityData(double value);

// The weight the calories are worked from: the athlete's latest weigh-in on or before `day`,
// else the earliest one; nothing without any weigh-in. Uses UserRS.
std::optional<double> SessionWeight(const QString& userId, const QDate& day);

// Start and end of a session compared as hour x 60 + minute: seconds do not count, and an
// end past midnight is no later than its start.
bool TimesInOrder(const QTime& start, const QTime& end);
