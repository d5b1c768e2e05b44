#include "reports/pages/workoutlibrarypage.h"

#include "core/pagewriter.h"
#include "core/shared.h"
#include "reports/pages/strengthpage.h"

namespace reportpages {

namespace {

QString HeadRow(const QString& label, const QString& value, bool first = false)
{
    return QStringLiteral("<tr><td align=left") + (first ? QStringLiteral(" width=150") : QString()) +
           QStringLiteral("><b>") + label + QStringLiteral("</td><td align=left") +
           (first ? QStringLiteral(" width=250") : QString()) + QLatin1Char('>') + page::Escape(value) +
           QStringLiteral("</b></td></tr>");
}

}  // namespace

void ReportWorkout(const QString& fileName, const workoutpage::Workout& w, const QString& tags)
{
    const QString unit = WorkoutUnit();
    QString level;
    if (w.beginner)
        level += QStringLiteral(" Beginner,");
    if (w.intermediate)
        level += QStringLiteral(" Intermediate,");
    if (w.advanced)
        level += QStringLiteral(" Advanced,");

    page::PageWriter out(fileName);
    out.Line(QStringLiteral("<html><head>"));
    out.Line(QStringLiteral("<title>") + page::Escape(w.name) + QStringLiteral("</title>"));
    out.Line(QStringLiteral("<body bgcolor=\"#ffffff\">"));
    out.Line(QStringLiteral("<font color=\"#000000\" size=\"3\" face=\"Arial\">"));
    out.Line(QStringLiteral("<div align=center> <img src=\"workouts.jpg\">"));
    out.Line(QStringLiteral("<table border=0 width=400 cellpadding=0>"));
    out.Line(HeadRow(QStringLiteral("Workout: "), w.name, true));
    out.Line(HeadRow(QStringLiteral("Athlete: "), CurrentUserName));
    out.Line(HeadRow(QStringLiteral("Level: "), level));
    out.Line(HeadRow(QStringLiteral("Description: "), w.description) + QStringLiteral("</table>"));
    out.Line(QStringLiteral("<br>"));
    if (!w.rows.isEmpty()) {
        out.Line(page::table::Open());
        out.Line(page::table::HeadingRow({QStringLiteral("Muscle Group"), QStringLiteral("Exercise"), QStringLiteral("Set"),
                                          QStringLiteral("Reps"), QStringLiteral("Weight (") + unit + QLatin1Char(')'),
                                          QStringLiteral("Intensity"), QStringLiteral("Goal"), QStringLiteral("Notes")},
                                         2));
        for (const auto& r : w.rows)
            out.Line(QStringLiteral("<tr>") + page::table::TextCell(r.muscleGroup) + page::table::TextCell(r.exercise) +
                     page::table::NumberCell(r.set) + page::table::NumberCell(r.reps) + page::table::NumberCell(r.weight) +
                     page::table::NumberCell(r.intensity) + page::table::NumberCell(r.goal) +
                     page::table::TextCell(r.comments) + QStringLiteral("</tr>"));
        out.Line(page::table::Close());
    }
    QString t = tags;
    if (t.endsWith(QLatin1Char('\n')))
        t.chop(1);
    if (!t.isEmpty())
        out.Line(t);
    out.Close();
}

}  // namespace reportpages
