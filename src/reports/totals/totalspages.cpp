// The pages of the Daily Summary's tabs, written from the grids as they stand: the head with
// the athlete, the range and the filter, one table of the grid's items, its bottom rows.
#include "reports/totals/totalsviews.h"

#include "core/pagewriter.h"
#include "core/regional.h"
#include "core/shared.h"
#include "core/widgets/Grid.h"

namespace totals {

namespace {

const QString kCellFont = QStringLiteral("<font face=\"Arial\" size=\"2\">");

bool ShowsAll(const QString& text)
{
    const QString t = text.trimmed();
    return t.isEmpty() || t.compare(QStringLiteral("Show all"), Qt::CaseInsensitive) == 0;
}

QString YesNoWord(YesNoFilter f)
{
    switch (f) {
    case YesNoFilter::Yes: return QStringLiteral("Yes");
    case YesNoFilter::No: return QStringLiteral("No");
    case YesNoFilter::All: break;
    }
    return QStringLiteral("All");
}

QString RangeText(const Range& range)
{
    const QString from = regional::FormatDate(range.start, QStringLiteral("MMM D, YYYY"));
    if (range.end == range.start)
        return from;
    return from + QStringLiteral(" to ") + regional::FormatDate(range.end, QStringLiteral("MMM D, YYYY"));
}

// The head of a totals page: as every page's, with a table of 400 or 450 and the range.
void TotalsHead(page::PageWriter& out, const QString& picture, const QString& title, const Range& range,
                const QString& description, int width)
{
    const int second = width - 150;
    out.Line(QStringLiteral("<html><head>"));
    out.Line(QStringLiteral("<body bgcolor=\"#ffffff\">"));
    out.Line(QStringLiteral("<font color=\"#000000\" size=\"3\" face=\"Arial\">"));
    out.Line(QStringLiteral("<div align=center> <img src=\"") + picture + QStringLiteral("\">"));
    out.Line(QStringLiteral("<table border=0 width=%1 cellpadding=0>").arg(width));
    out.Line(QStringLiteral("<tr><td align=left width=150><b>") + page::Escape(title) +
             QStringLiteral(" for: </td><td align=left width=%1>").arg(second) + page::Escape(CurrentUserName) +
             QStringLiteral("</b></td></tr>"));
    out.Line(QStringLiteral("<tr><td align=left><b>Date: </td><td align=left>") + page::Escape(RangeText(range)) +
             QStringLiteral("</b></td></tr>"));
    const QStringList lines = description.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString caption = i == 0 ? QStringLiteral("Description: ") : QString();
        QString row = QStringLiteral("<tr><td align=left><b>") + caption + QStringLiteral("</td><td align=left>") +
                      page::Escape(lines[i]) + QStringLiteral("</b></td></tr>");
        if (i == lines.size() - 1)
            row += QStringLiteral("</table>");
        out.Line(row);
    }
    out.Line(QStringLiteral("<br>"));
}

QString HeadCell(const QString& text, int width = 0, const QString& color = QStringLiteral("#CCCCCC"), int span = 1)
{
    QString cell = QStringLiteral("<td align=center bgcolor=\"") + color + QStringLiteral("\"");
    if (width > 0)
        cell += QStringLiteral(" width=%1").arg(width);
    if (span > 1)
        cell += QStringLiteral(" colspan=%1").arg(span);
    const QString shown = text.trimmed().isEmpty() ? QStringLiteral("&nbsp;") : page::Escape(text.trimmed());
    return cell + QStringLiteral("><b>") + kCellFont + shown + QStringLiteral("</font></b></td>");
}

// A body cell; an empty one holds a blank so it keeps its border.
QString Cell(const QString& text, bool right, bool bold = false, int span = 1)
{
    QString cell = right ? QStringLiteral("<td align=right") : QStringLiteral("<td align=left");
    if (span > 1)
        cell += QStringLiteral(" colspan=%1").arg(span);
    const QString shown = text.trimmed().isEmpty() ? QStringLiteral("&nbsp;") : page::Escape(text.trimmed());
    if (bold)
        return cell + QStringLiteral("><b>") + kCellFont + shown + QStringLiteral("</font></b></td>");
    return cell + QStringLiteral(">") + kCellFont + shown + QStringLiteral("</font></td>");
}

QList<int> ShownColumns(const Grid* grid)
{
    QList<int> cols;
    for (int c = 1; c <= grid->MaxCols(); ++c)
        if (!grid->IsColumnHidden(c))
            cols << c;
    return cols;
}

// How one tab's grid becomes its page.
struct GridPage {
    QString file, picture, title;
    int headWidth = 400;
    int firstItemRow = 5;           // items start below the top rows
    int labelCol = 2;               // the grid column of the bottom rows' labels
    int textCols = 2;               // columns 1..textCols are text, the rest figures
    QStringList bottom;             // the labels of grid rows 1, 2, 3...
    QList<int> widths;              // of the shown columns, in order; 0 or missing for none
};

QString WriteGridPage(const Grid* grid, const GridPage& p, const QString& description, const Range& range)
{
    page::PageWriter out(page::FileName(p.file));
    TotalsHead(out, p.picture, p.title, range, description, p.headWidth);
    const QList<int> cols = ShownColumns(grid);
    out.Line(QStringLiteral("<table border=1 cellspacing=0 cellpadding=2 align=center>"));
    QString head = QStringLiteral("<tr>");
    for (int i = 0; i < cols.size(); ++i)
        head += HeadCell(grid->Text(0, cols[i]), i < p.widths.size() ? p.widths[i] : 0);
    out.Line(head + QStringLiteral("</tr>"));
    for (int r = p.firstItemRow; r <= grid->MaxRows(); ++r) {
        QString row = QStringLiteral("<tr>");
        for (int c : cols)
            row += Cell(grid->Text(r, c), c > p.textCols);
        out.Line(row + QStringLiteral("</tr>"));
    }
    int labelSpan = 0;
    for (int c : cols)
        if (c <= p.labelCol)
            ++labelSpan;
    for (int i = 0; i < p.bottom.size(); ++i) {
        QString row = QStringLiteral("<tr>") + Cell(p.bottom[i], true, true, qMax(1, labelSpan));
        for (int c : cols)
            if (c > p.labelCol)
                row += Cell(grid->Text(i + 1, c), true, true);
        out.Line(row + QStringLiteral("</tr>"));
    }
    out.Line(QStringLiteral("</table>"));
    out.Close();
    return out.FileName();
}

QString Described(const QString& description, TotalsPage page)
{
    return ShowsAll(description) ? FilterDescription(page, QString()) : description;
}

}  // namespace

QString FilterDescription(TotalsPage page, const QString& filter)
{
    if (!ShowsAll(filter))
        return filter.trimmed();
    switch (page) {
    case TotalsPage::Nutrition: return QStringLiteral("All meals");
    case TotalsPage::Exercise: return QStringLiteral("All exercise/sports");
    case TotalsPage::Strength: return QStringLiteral("All Strength Training");
    case TotalsPage::Readings: return QStringLiteral("All Readings");
    case TotalsPage::Medication: return QStringLiteral("All Medication");
    }
    return QString();
}

QString FeelWellDescription(YesNoFilter feelWell, YesNoFilter accomplish)
{
    return QStringLiteral("Feel Well: ") + YesNoWord(feelWell) + QStringLiteral("\nAccomplished Goals: ") +
           YesNoWord(accomplish);
}

QString PrintNutrition(const Grid* SSNutrition, const QString& description, const Range& range)
{
    GridPage p;
    p.file = QStringLiteral("nutritionTotal");
    p.picture = QStringLiteral("nutrition.jpg");
    p.title = QStringLiteral("Nutrition Totals");
    p.labelCol = 3;
    p.textCols = 3;
    p.bottom = {QStringLiteral("Total"), QStringLiteral("Average/Day"), QStringLiteral("Average/Items")};
    p.widths = {90, 250, 140, 68, 68, 68, 68, 68};
    return WriteGridPage(SSNutrition, p, Described(description, TotalsPage::Nutrition), range);
}

QString PrintNutrients(const Grid* SSNutrients, const QString& description, const Range& range)
{
    GridPage p;
    p.file = QStringLiteral("nutrientsTotal");
    p.picture = QStringLiteral("nutrition.jpg");
    p.title = QStringLiteral("Nutrient Totals");
    p.bottom = {QStringLiteral("Total"), QStringLiteral("Average/Day"), QStringLiteral("Average/Item")};
    p.widths = {90, 250};
    return WriteGridPage(SSNutrients, p, Described(description, TotalsPage::Nutrition), range);
}

QString PrintExercise(const Grid* SSExercise, const QString& description, const Range& range)
{
    GridPage p;
    p.file = QStringLiteral("exerciseTotal");
    p.picture = QStringLiteral("training.jpg");
    p.title = QStringLiteral("Exercise");
    p.bottom = {QStringLiteral("Total"), QStringLiteral("Average/Day"), QStringLiteral("Average/Exercise")};
    return WriteGridPage(SSExercise, p, Described(description, TotalsPage::Exercise), range);
}

QString PrintStrength(const Grid* SSStrength, const QString& description, const Range& range)
{
    GridPage p;
    p.file = QStringLiteral("strengthTotal");
    p.picture = QStringLiteral("gymsheets.jpg");
    p.title = QStringLiteral("Strength");
    p.bottom = {QStringLiteral("Total"), QStringLiteral("Average/Day"), QStringLiteral("Average/Workout")};
    return WriteGridPage(SSStrength, p, Described(description, TotalsPage::Strength), range);
}

QString PrintWellness(const Grid* grid, int index, const QString& description, const Range& range)
{
    GridPage p;
    p.picture = QStringLiteral("wellness.jpg");
    p.headWidth = 450;
    p.labelCol = 3;
    p.textCols = 3;
    QString text = description;
    if (index == 0) {
        p.file = QStringLiteral("feelwellTotal");
        p.title = QStringLiteral("Feel well");
        p.firstItemRow = 4;
        p.bottom = {QStringLiteral("Total"), QStringLiteral("Average")};
        if (ShowsAll(text))
            text = FeelWellDescription(YesNoFilter::All, YesNoFilter::All);
    } else {
        const bool readings = index == 1;
        p.file = readings ? QStringLiteral("readingsTotal") : QStringLiteral("medicationTotal");
        p.title = readings ? QStringLiteral("Readings") : QStringLiteral("Medication");
        p.bottom = {QStringLiteral("Total"), QStringLiteral("Average/Day"), QStringLiteral("Average/Item")};
        text = Described(text, readings ? TotalsPage::Readings : TotalsPage::Medication);
    }
    return WriteGridPage(grid, p, text, range);
}

QString PrintSummary(const Grid* SS1, const QStringList& groups, const Grid* SS2, const Range& range)
{
    page::PageWriter out(page::FileName(QStringLiteral("summaryTotal")));
    TotalsHead(out, QStringLiteral("totals.jpg"), QStringLiteral("Summary Totals"), range,
               QStringLiteral("Daily Summary"), 450);
    const QList<int> cols = ShownColumns(SS1);
    out.Line(QStringLiteral("<table border=1 cellspacing=0 cellpadding=2 align=center>"));
    // Group headings over runs of columns of one group, then the columns' own headings.
    QString row = QStringLiteral("<tr>");
    for (int i = 0; i < cols.size();) {
        const QString group = cols[i] - 1 < groups.size() ? groups[cols[i] - 1] : QString();
        int span = 1;
        while (i + span < cols.size() && cols[i + span] - 1 < groups.size() && groups[cols[i + span] - 1] == group)
            ++span;
        row += HeadCell(group, 0, QStringLiteral("#AAAAAA"), span);
        i += span;
    }
    out.Line(row + QStringLiteral("</tr>"));
    row = QStringLiteral("<tr>");
    for (int c : cols)
        row += HeadCell(SS1->Text(0, c));
    out.Line(row + QStringLiteral("</tr>"));
    for (int r = 4; r <= SS1->MaxRows(); ++r) {
        row = QStringLiteral("<tr>");
        for (int c : cols)
            row += Cell(SS1->Text(r, c), c > 1);
        out.Line(row + QStringLiteral("</tr>"));
    }
    const QStringList bottom{QStringLiteral("Total"), QStringLiteral("Average")};
    for (int i = 0; i < bottom.size(); ++i) {
        row = QStringLiteral("<tr>") + Cell(bottom[i], false, true);
        for (int c : cols)
            if (c > 1)
                row += Cell(SS1->Text(i + 1, c), true, true);
        out.Line(row + QStringLiteral("</tr>"));
    }
    out.Line(QStringLiteral("</table>"));

    // The balance strip.
    out.Line(QStringLiteral("<br>"));
    out.Line(QStringLiteral("<table border=1 cellspacing=0 cellpadding=2 align=center>"));
    row = QStringLiteral("<tr>") + HeadCell(QString());
    for (int c = 1; c <= SS2->MaxCols(); ++c)
        row += HeadCell(SS2->Text(0, c));
    out.Line(row + QStringLiteral("</tr>"));
    for (int i = 0; i < bottom.size(); ++i) {
        row = QStringLiteral("<tr>") + Cell(bottom[i], false, true);
        for (int c = 1; c <= SS2->MaxCols(); ++c)
            row += Cell(SS2->Text(i + 1, c), true);
        out.Line(row + QStringLiteral("</tr>"));
    }
    out.Line(QStringLiteral("</table>"));
    out.Close();
    return out.FileName();
}

}  // namespace totals
