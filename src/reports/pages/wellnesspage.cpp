#include "reports/pages/wellnesspage.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/reportheader.h"

namespace reportpages {

namespace {

// A table of the day's lines under its caption row; the last column is a number in the
// readings and a text (the dose) in the medications.
void LinesTable(page::PageWriter& out, const QString& captionRow, const QStringList& headings,
                const QList<WellnessLine>& lines, bool numbers)
{
    const int textColumns = numbers ? 2 : 3;
    out.Line(page::table::Open());
    out.Line(captionRow);
    out.Line(page::table::HeadingRow(headings, textColumns));
    for (const WellnessLine& l : lines)
        out.Line(page::table::Row({l.name, l.time, l.amount}, textColumns));
    out.Line(page::table::Close());
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
