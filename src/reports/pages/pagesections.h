#pragma once
// Pieces that several report pages share: the labelled rows of the session pages, their
// headings, and the questionnaire of a session.
#include "core/pagewriter.h"

#include <QDate>
#include <QVariant>

namespace reportpages {

// A heading between the tables of a session page, in Arial size 4.
void Heading(page::PageWriter& out, const QString& text);

// One row of a session table: the label right-aligned in Arial size 2 with "&nbsp;" after
// it, then the values, each escaped ("&nbsp;" when empty).
QString LabelRow(const QString& label, const QStringList& values);

// A field as a page shows it: Null as "", a Yes/No as "Yes" or "No", a number without a
// needless point.
QString FieldText(const QVariant& value);

// The questionnaire of a session (its Daily_Psych row) as question and answer rows; nothing
// when the session has no row. The two logs word two questions differently.
enum class PsychWording { ExerciseLog, StrengthLog };
void WritePsych(page::PageWriter& out, const QDate& date, const QString& name, const QString& key,
                PsychWording wording);

// A date as the stores take it in SQL text: "#YYYY-MM-DD#".
QString SqlDay(const QDate& date);

}  // namespace reportpages
