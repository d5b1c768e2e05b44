#pragma once
// The arithmetic of the strength log: the workout's calories, the numbers in its set cells, the
// set limit of "Insert Set", and the History tab's reports and their daily totals.
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace strengthlog {

// "Insert Set" stops at this many sets of one exercise; "&Add" has no limit.
constexpr int MaxSets = 30;

// A reps, weight or set cell as a number: its leading number ("12 slow" is 12, "x" is 0).
double CellNumber(const QString& cell);
// Whether another set may be inserted after the exercise's last set, numbered `lastSet`.
bool CanInsertSet(const QString& lastSet);
// The number of the set that follows `previous` (a text not starting with a digit counts as 0).
QString NextSet(const QString& previous);

// Hours of a workout's "hh:mm:ss" duration, through TimeToHours: the seconds count over 360,
// so "00:30:30" is 0.58 hours (the exercise log's gethours gives 0.508).
double WorkoutHours(const QString& duration);
// Calories burned: the intensity's thousandths (Value x 1000) x hours x weight / 1000, rounded
// to a whole number; no weight counts as 0.
long WorkoutCalories(long intensityData, const QString& duration, double weight);

// Stored texts of a set: the intensity's first 10 characters, goal and notes their first 50
// trimmed.
QString IntensityText(const QString& cell);
QString NoteText(const QString& cell);

// The History tab's reports, in the order of its list.
QStringList ReportNames();
// Whether report `view` adds up weight lifted (reps x weight) rather than reps.
bool WeightReport(int view);
// The column report `view` narrows to ("muscle_group", "exercise"), or "" for the workout
// reports.
QString ReportFilterColumn(int view);
// The word shown beside the filter list ("Muscle Group", "Exercise"), or "".
QString ReportFilterWord(int view);
// A day's weight lifted: the sum of reps x weight over its sets.
double WeightLifted(const QList<QPair<double, double>>& repsAndWeights);
// The top of the chart's value axis: the largest value x 1.1 (0 with no values).
double AxisTop(const QList<double>& values);

}  // namespace strengthlog
