#pragma once
// The page of one exercise or sport session: its details, performance against the plan,
// time in the heart-rate zones, its form's fields, its intervals and its questionnaire.
#include <QDate>
#include <QString>

namespace reportpages {

// Writes the page of the session `key` on `date` to `fileName` (already stripped of "/" and
// "\", ".htm" added) and makes it ReportFile. The session's row is read by position.
void ReportExercise(const QDate& date, const QString& key, const QString& fileName);

}  // namespace reportpages
