#pragma once
// The arithmetic of an exercise session: durations, speeds and lap times.
#include <QString>

// Hours in a duration "hh:mm:ss": blanks count as "0", the hours are the first two
// characters, the minutes the two from the fourth, the seconds the last two.
double gethours(const QString& duration);
