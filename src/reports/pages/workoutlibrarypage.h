#pragma once
// The page of a library workout: its levels and description, the table of its sets, and the
// exchange tags that let the page be imported back.
#include "strength/rules/workoutpage.h"

namespace reportpages {

// Writes the page of `workout` to `fileName`, with `tags` (the workout's exchange tags, as
// the library writes them) before "</body>", and makes it ReportFile.
void ReportWorkout(const QString& fileName, const workoutpage::Workout& workout, const QString& tags);

}  // namespace reportpages
