#pragma once
// The page of a day's strength workout, from the strength log's grid as it stands, with the
// exchange tags of a day's workout after its visible part.
#include "strength/rules/workoutpage.h"

#include <QDate>

namespace reportpages {

struct StrengthSheet {
    // Name, description and the grid's rows (exercise, set, reps, weight, intensity, goal,
    // notes). Levels and exercise details are not used: the details are read from the library.
    workoutpage::Workout workout;
    QDate date;             // the day it is scheduled on
    QString key;            // its calendar entry; "" while still being scheduled
    QString from, to;       // its start and end times as shown
};

// Writes the page to `fileName` and makes it ReportFile. The weights are in the athlete's
// Workout_In, "lbs" when that is not set.
void ReportStrength(const QString& fileName, const StrengthSheet& sheet);

// The exchange tags of a day's workout: name, description, exercise, set, reps, weight,
// intensity, goal and one exerciseinfo tag per row whose exercise the library knows.
QString StrengthTags(const workoutpage::Workout& workout);

// Every column of each row's strength_exercises row in table order, a Null as ""; an empty
// list for an exercise the library does not know.
QList<QStringList> ExerciseDetails(const QList<workoutpage::SetRow>& rows);

// The athlete's Workout_In, "lbs" when Null or empty.
QString WorkoutUnit();

}  // namespace reportpages
