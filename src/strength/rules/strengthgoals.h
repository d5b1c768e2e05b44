#pragma once
// The goal builder's arithmetic: starting reps and weight for an exercise from the athlete's
// training purpose, training level, strength level, maximum lifts, age, sex and weight unit.
// No window and no store: the screen passes what it shows.
#include <QString>
#include <QStringList>

namespace strengthgoals {

// The lists of the goal builder, in their order: the purpose is read by its position.
QStringList StrengthLevels();   // "Weak" .. "Extremely Strong"
QStringList TrainingLevels();   // "Beginner", "Intermediate", "Advanced"
QStringList Purposes();         // "Fitness/Toning", "Bodybuilding", "Multisport", "Powerlifting"

struct GoalSettings {
    int purpose = -1;             // position in Purposes(); -1 when none is chosen
    QString trainingLevel;        // "Beginner", "Intermediate", "Advanced" or "Pro"
    QString strengthLevel;        // a word of StrengthLevels()
    QString squat, deadLift, benchPress;   // the lift fields as typed; text counts as 0
    double age = 0;
    QString sex;                  // "M" or "F"
    QString unit;                 // "lbs" or "kg"
};

// Suggested repetitions for an exercise of the given type.
double SetReps(const QString& type, const GoalSettings& s);
// Suggested weight for an exercise that lifts `percLift` percent of its main `lift`.
double SetWeight(const QString& percLift, const QString& lift, const GoalSettings& s);

struct Lifts {
    int squat = 0, deadLift = 0, benchPress = 0;
};
// The typical maximum lifts of a strength level in the unit; false for a word not in the list.
bool LiftsForStrength(const QString& strengthLevel, const QString& unit, Lifts* lifts);

}  // namespace strengthgoals
