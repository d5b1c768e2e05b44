#include "reports/pages/wellnesspage.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/reportheader.h"

namespace reportpages {

namespace {

QString Cell(const QString& value, bool number)
{
    const QString text = value.isEmpty() ? QStringLiteral("&nbsp;") : page::Escape(value);
    return (number ? QStringLiteral("<td align=right width=\"40\"><font size=\"1\">")
                   : QStringLiteral("<td align=left width=\"120\"><font size=\"1\">")) +
           text + QStringLiteral("</font></td>");
}

// A table of the day's lines under its caption row; the last column is a number in the
// readings and a text (the dose) in the medications.
void LinesTable(page::PageWriter& out, const QString& captionRow, const QStringList& headings,
                const QList<WellnessLine>& lines, bool numbers)
{
    out.Line(QStringLiteral("<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >"));
    out.Line(captionRow);
    QString head = QStringLiteral("<tr bgcolor=\"#CCCCCC\">");
    for (int i = 0; i < headings.size(); ++i)
        head += (numbers && i == headings.size() - 1 ? QStringLiteral("<td><center><font size=\"1\">")
                                                      : QStringLiteral("<td><font size=\"1\">")) +
                headings[i] + (numbers && i == headings.size() - 1 ? QStringLiteral("</font></center></td>")
                                                                    : QStringLiteral("</font></td>"));
    out.Line(head + QStringLiteral("</tr>"));
    for (const WellnessLine& l : lines)
        out.Line(QStringLiteral("<tr>") + Cell(l.name, false) + Cell(l.time, false) + Cell(l.amount, numbers) +
                 QStringLiteral("</tr>"));
    out.Line(QStringLiteral("</table>"));
}

}  // namespace

QString WellnessPage(const QDate& date, const QList<WellnessLine>& readings, const QList<WellnessLine>& medications)
{
    bool found = false;
    bool feelWell = false, accomplish = false;
    QString reason, whyNot, sleep, wakeup, notes;
    SqlText = QStringLiteral("Select *  from wellness where User_ID='") + CurrentUserID + QStringLiteral("' and date =#") +
              date.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral("#");
    found = FirstRow(UserRS, SqlText, [&](Recordset& rs) {
        feelWell = Val(rs.Field(QStringLiteral("FeelWell"))) != 0;
        accomplish = Val(rs.Field(QStringLiteral("Accomplish"))) != 0;
        reason = Str(rs.Field(QStringLiteral("txtFeelWell")));
        whyNot = Str(rs.Field(QStringLiteral("txtAccomplish")));
        sleep = Str(rs.Field(QStringLiteral("sleep")));
        wakeup = Str(rs.Field(QStringLiteral("wakeup")));
        notes = Str(rs.Field(QStringLiteral("notes")));
    });
    auto answer = [found](bool yes) {
        return found ? (yes ? QStringLiteral(" Yes") : QStringLiteral(" No")) : QString();
    };

    page::PageWriter out(page::FileName(QStringLiteral("Wellness")));
    ReportHeader(out, QStringLiteral("wellness.jpg"), QStringLiteral("Wellness"), regional::LongDate(date), QString(),
                 QString(), notes);
    out.Line(QStringLiteral("<p align=left>"));
    out.Line(QStringLiteral("Did you feel well today? &nbsp;") + answer(feelWell) + QStringLiteral("<br>"));
    out.Line(QStringLiteral("Reason: &nbsp;") + page::Escape(reason) + QStringLiteral("<br>"));
    out.Line(QStringLiteral("Did you accomplish your goals? &nbsp;") + answer(accomplish) + QStringLiteral("<br>"));
    out.Line(QStringLiteral("if no, why not?&nbsp;") + page::Escape(whyNot) + QStringLiteral("<br>"));
    out.Line(QStringLiteral("Hours of Sleep? &nbsp;") + page::Escape(sleep) + QStringLiteral("<br>"));
    out.Line(QStringLiteral("When did you wake up? &nbsp;") + page::Escape(wakeup) + QStringLiteral("</p>"));
    LinesTable(out, QStringLiteral("<tr><td align=left colspan=3><b>Readings</b></td></tr>"),
               {QStringLiteral("Reading"), QStringLiteral("Time"), QStringLiteral("Value")}, readings, true);
    out.Line(QStringLiteral("<br>"));
    // The caption row of this table opens with "</tr>", as the page has always had it.
    LinesTable(out, QStringLiteral("</tr><td align=left colspan=3><b>Medicatons</b></td></tr>"),
               {QStringLiteral("Medication"), QStringLiteral("Time"), QStringLiteral("Dose")}, medications, false);
    out.Close();
    return out.FileName();
}

}  // namespace reportpages
