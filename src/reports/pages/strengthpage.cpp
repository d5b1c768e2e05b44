#include "reports/pages/strengthpage.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/pagesections.h"

namespace reportpages {

namespace {

// A value as a tag carries it: on one line.
QString OneLine(QString value)
{
    value.remove(QLatin1Char('\r'));
    value.remove(QLatin1Char('\n'));
    return value;
}

QString Tag(const QString& name, const QStringList& fields)
{
    QString tag = QStringLiteral("<!--") + name + QLatin1Char('~');
    for (const QString& f : fields)
        tag += OneLine(f) + QLatin1Char('~');
    return tag + QStringLiteral("-->");
}

QStringList Column(const QList<workoutpage::SetRow>& rows, QString workoutpage::SetRow::*field)
{
    QStringList out;
    for (const auto& r : rows)
        out << r.*field;
    return out;
}

QString HeadRow(const QString& label, const QString& value, bool first = false)
{
    return QStringLiteral("<tr><td align=left") + (first ? QStringLiteral(" width=150") : QString()) +
           QStringLiteral("><b>") + label + QStringLiteral("</td><td align=left") +
           (first ? QStringLiteral(" width=250") : QString()) + QLatin1Char('>') + page::Escape(value) +
           QStringLiteral("</b></td></tr>");
}

}  // namespace

QString WorkoutUnit()
{
    QString unit;
    FirstRow(UserRS, QStringLiteral("select Workout_In from User_Info where User_ID=") + QString::number(long(Val(CurrentUserID))),
             [&unit](Recordset& rs) { unit = Str(rs.Field(0)).trimmed(); });
    return unit.isEmpty() ? QStringLiteral("lbs") : unit;
}

QList<QStringList> ExerciseDetails(const QList<workoutpage::SetRow>& rows)
{
    QList<QStringList> details;
    for (const auto& r : rows) {
        QStringList info;
        SqlText = QStringLiteral("select * from strength_exercises where exercise='") + SqlQuote(r.exercise) + QLatin1Char('\'');
        FirstRow(LibraryRS, SqlText, [&info](Recordset& rs) {
            for (int i = 0; i < rs.FieldCount(); ++i)
                info << Str(rs.Field(i));
        });
        details << info;
    }
    return details;
}

QString StrengthTags(const workoutpage::Workout& w)
{
    using R = workoutpage::SetRow;
    QStringList tags;
    tags << Tag(QStringLiteral("name"), {w.name}) << Tag(QStringLiteral("description"), {w.description});
    tags << Tag(QStringLiteral("exercise"), Column(w.rows, &R::exercise)) << Tag(QStringLiteral("set"), Column(w.rows, &R::set))
         << Tag(QStringLiteral("reps"), Column(w.rows, &R::reps)) << Tag(QStringLiteral("weight"), Column(w.rows, &R::weight))
         << Tag(QStringLiteral("intensity"), Column(w.rows, &R::intensity)) << Tag(QStringLiteral("goal"), Column(w.rows, &R::goal));
    for (const QStringList& info : w.exerciseInfo)
        if (!info.isEmpty())
            tags << Tag(QStringLiteral("exerciseinfo"), info);
    return tags.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void ReportStrength(const QString& fileName, const StrengthSheet& sheet)
{
    workoutpage::Workout w = sheet.workout;
    w.exerciseInfo = ExerciseDetails(w.rows);
    const QString unit = WorkoutUnit();

    page::PageWriter out(fileName);
    out.Line(QStringLiteral("<html><head>"));
    out.Line(QStringLiteral("<body bgcolor=\"#ffffff\">"));
    out.Line(QStringLiteral("<font color=\"#000000\" size=\"3\" face=\"Arial\">"));
    out.Line(QStringLiteral("<div align=center> <img src=\"gymsheets.jpg\">"));
    out.Line(QStringLiteral("<table border=0 width=400 cellpadding=0>"));
    out.Line(HeadRow(QStringLiteral("Strength Training for: "), CurrentUserName, true));
    out.Line(HeadRow(QStringLiteral("Workout for: "), w.name));
    out.Line(HeadRow(QStringLiteral("Scheduled on: "), regional::LongDate(sheet.date)));
    if (!sheet.from.isEmpty())
        out.Line(HeadRow(QStringLiteral("Scheduled for: "), sheet.from + QStringLiteral(" to ") + sheet.to));
    out.Line(HeadRow(QStringLiteral("Description: "), w.description) + QStringLiteral("</table>"));
    out.Line(QStringLiteral("<br>"));

    if (!w.rows.isEmpty()) {
        out.Line(page::table::Open());
        out.Line(page::table::HeadingRow({QStringLiteral("Exercise"), QStringLiteral("Set"), QStringLiteral("Reps"),
                                          QStringLiteral("Weight (") + unit + QLatin1Char(')'), QStringLiteral("Intensity"),
                                          QStringLiteral("Goal"), QStringLiteral("Notes")},
                                         1));
        for (const auto& r : w.rows)
            out.Line(QStringLiteral("<tr>") + page::table::TextCell(r.exercise) + page::table::NumberCell(r.set) +
                     page::table::NumberCell(r.reps) + page::table::NumberCell(r.weight) + page::table::NumberCell(r.intensity) +
                     page::table::NumberCell(r.goal) + page::table::TextCell(r.comments) + QStringLiteral("</tr>"));
        out.Line(page::table::Close());
    }
    if (!sheet.key.isEmpty())
        WritePsych(out, sheet.date, w.name, sheet.key, PsychWording::StrengthLog);
    out.Line(StrengthTags(w).chopped(1));
    out.Close();
}

}  // namespace reportpages
