#include "reports/pages/pagesections.h"

#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"

namespace reportpages {

void Heading(page::PageWriter& out, const QString& text)
{
    out.Line(QStringLiteral("<p align=left><font face=\"Arial\" size=\"4\"><b>") + page::Escape(text) +
             QStringLiteral("</b></font></p>"));
}

QString LabelRow(const QString& label, const QStringList& values)
{
    QString row = QStringLiteral("<tr><td align=right width=150><font face=\"Arial\" size=\"2\">") +
                  page::Escape(label) + QStringLiteral("&nbsp;</font></td>");
    for (const QString& v : values)
        row += QStringLiteral("<td align=left><font face=\"Arial\" size=\"2\">") + page::table::CellText(v) +
               QStringLiteral("</font></td>");
    return row + QStringLiteral("</tr>");
}

QString FieldText(const QVariant& value)
{
    if (IsNull(value))
        return QString();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("Yes") : QStringLiteral("No");
    return Str(value);
}

QString SqlDay(const QDate& date) { return QLatin1Char('#') + date.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('#'); }

namespace {
// A Yes/No answer as stored: true is "Yes", false and Null are "No" (an unanswered question
// and a "No" are the same in the store).
QString YesNo(const QVariant& v) { return Val(v) != 0 ? QStringLiteral("Yes") : QStringLiteral("No"); }
}  // namespace

void WritePsych(page::PageWriter& out, const QDate& date, const QString& name, const QString& key,
                PsychWording wording)
{
    const bool strength = wording == PsychWording::StrengthLog;
    SqlText = QStringLiteral("select * from Daily_Psych where User_ID='") + CurrentUserID + QStringLiteral("' and Date=") +
              SqlDay(date) + QStringLiteral(" and name='") + SqlQuote(name) + QStringLiteral("' and key='") +
              SqlQuote(key) + QLatin1Char('\'');
    QStringList rows;
    FirstRow(UserRS, SqlText, [&](Recordset& rs) {
        auto text = [&rs](const char* column) { return FieldText(rs.Field(QString::fromLatin1(column))).trimmed(); };
        auto ask = [&rows](const QString& question, const QString& answer) {
            rows << QStringLiteral("<tr><td align=left width=450><font face=\"Arial\" size=\"2\">") + page::Escape(question) +
                        QStringLiteral("</font></td><td align=left><font face=\"Arial\" size=\"2\">") +
                        page::table::CellText(answer) + QStringLiteral("</font></td></tr>");
        };
        ask(QStringLiteral("Did you accomplish the goals of yor workout?"), YesNo(rs.Field(QStringLiteral("AccomplishGoals"))));
        ask(QStringLiteral("If no, why not?"), text("AccompishText"));
        ask(QStringLiteral("What might you do differently to make your workouts more successful and enjoyable?"),
            text("AccomplishDifferent"));
        ask(QStringLiteral("What was your level of motivation before and during your workout? (before)"), text("Levelbefore"));
        ask(QStringLiteral("What was your level of motivation before and during your workout? (during)"), text("Levelafter"));
        ask(QStringLiteral("What was your level of focus during the workout?"), text("Levelfocus"));
        ask(QStringLiteral("What was your level of confidence?"), text("LevelConfidence"));
        ask(QStringLiteral("Did you sleep well before working out?"), YesNo(rs.Field(QStringLiteral("sleep"))));
        ask(QStringLiteral("Did you have any doubts, worries or fears?"), YesNo(rs.Field(QStringLiteral("Doubts"))));
        ask(QStringLiteral("If so, what were they?"), text("DoubtText"));
        ask(QStringLiteral("Activation Level?"), text("LevelActivation"));
        ask(QStringLiteral("Stress Level?"), text("LevelStress"));
        ask(QStringLiteral("What level of control did you feel you had during your workout?"), text("LevelControl"));
        ask(QStringLiteral("Did you use visualization?"), YesNo(rs.Field(QStringLiteral("Vis"))));
        ask(QStringLiteral("If yes, how so?"), text("VisTExt"));
        ask(strength ? QStringLiteral("What was your level of commitment?") : QStringLiteral("What was your level of committment?"),
            text("LevelCommitted"));
        ask(QStringLiteral("Did anything unforeseen or unexpected happen?"), YesNo(rs.Field(QStringLiteral("Unexpected"))));
        ask(strength ? QStringLiteral("If so, how did this affect you?") : QStringLiteral("How did this affect you?"),
            text("UnexpectedTExt"));
        ask(QStringLiteral("From 1- 10, rate your overall feeling of effectiveness for this workout."), text("LevelRating"));
    });
    if (rows.isEmpty())
        return;
    Heading(out, QStringLiteral("Psychology"));
    out.Line(QStringLiteral("<table border=0 width=700 cellpadding=0>"));
    out.Lines(rows);
    out.Line(QStringLiteral("</table>"));
}

}  // namespace reportpages
