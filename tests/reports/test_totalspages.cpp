// The pages of the Daily Summary's tabs against the HTML expected for a small set of rows.
#include "fixtures/fixture.h"

#include "core/pagewriter.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/widgets/Grid.h"
#include "reports/totals/totalsviews.h"

#include <QFile>

using namespace totals;

namespace {

class TotalsPages : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Sam & Co");
        range.start = QDate(2026, 7, 1);
        range.end = QDate(2026, 7, 2);
        range.days = 2;
    }
    QString Page(const QString& file)
    {
        QFile f(page::Path(file));
        if (!f.open(QIODevice::ReadOnly))
            return QStringLiteral("(no file ") + file + QStringLiteral(")");
        return QString::fromUtf8(f.readAll());
    }
    static QString Head(const QString& picture, const QString& title, int width, const QStringList& description)
    {
        QString h = QStringLiteral(
                        "<html><head>\n<body bgcolor=\"#ffffff\">\n<font color=\"#000000\" size=\"3\" face=\"Arial\">\n"
                        "<div align=center> <img src=\"%1\">\n<table border=0 width=%2 cellpadding=0>\n"
                        "<tr><td align=left width=150><b>%3 for: </td><td align=left width=%4>Sam &amp; Co</b></td></tr>\n"
                        "<tr><td align=left><b>Date: </td><td align=left>Jul 1, 2026 to Jul 2, 2026</b></td></tr>\n")
                        .arg(picture)
                        .arg(width)
                        .arg(title)
                        .arg(width - 150);
        for (int i = 0; i < description.size(); ++i)
            h += QStringLiteral("<tr><td align=left><b>%1</td><td align=left>%2</b></td></tr>%3\n")
                     .arg(i == 0 ? QStringLiteral("Description: ") : QString(), description[i],
                          i == description.size() - 1 ? QStringLiteral("</table>") : QString());
        return h + QStringLiteral("<br>\n");
    }
    static QString H(const QString& text, const QString& extra = QString(), const QString& color = "#CCCCCC")
    {
        return QStringLiteral("<td align=center bgcolor=\"%1\"%2><b><font face=\"Arial\" size=\"2\">%3</font></b></td>")
            .arg(color, extra, text);
    }
    static QString C(const QString& text, bool right = false)
    {
        return QStringLiteral("<td align=%1><font face=\"Arial\" size=\"2\">%2</font></td>")
            .arg(right ? "right" : "left", text);
    }
    static QString B(const QString& text, const QString& span = QString())
    {
        return QStringLiteral("<td align=right%1><b><font face=\"Arial\" size=\"2\">%2</font></b></td>").arg(span, text);
    }
    QString id;
    Range range;
};

}  // namespace

TEST_F(TotalsPages, ExerciseAndNutritionPagesWithEscapedNamesAndBottomRows)
{
    UserConn.Execute("insert into Daily_Exercise (User_ID, [Date], Name, duration, Cals, Intensity) values ('" + id +
                     "', #2026-07-01#, 'Hills <steep> & long', '01:30:00', 700, 5)");
    Grid exercise;
    SSExerciseSet(&exercise);
    Balance balance;
    exerciseSports(&exercise, "", range, balance);
    ASSERT_EQ(PrintExercise(&exercise, "Show All", range), "exerciseTotal.htm");
    EXPECT_EQ(ReportFile, "exerciseTotal.htm");
    const QString expected =
        Head("training.jpg", "Exercise", 400, {"All exercise/sports"}) +
        "<table border=1 cellspacing=0 cellpadding=2 align=center>\n<tr>" + H("Date") + H("Exercise") +
        H("Duration") + H("Intensity") + H("Calories Burned") + "</tr>\n<tr>" + C("2026-07-01") +
        C("Hills &lt;steep&gt; &amp; long") + C("01:30:00", true) + C("5", true) + C("700.", true) + "</tr>\n<tr>" +
        B("Total", " colspan=2") + B("1.5 hours") + B("5") + B("700.") + "</tr>\n<tr>" +
        B("Average/Day", " colspan=2") + B("0.8 hours") + B("2.5") + B("350") + "</tr>\n<tr>" +
        B("Average/Exercise", " colspan=2") + B("1.5 hours") + B("5") + B("700") + "</tr>\n</table>\n</body></html>\n";
    EXPECT_EQ(Page("exerciseTotal.htm"), expected);

    // A chosen name is the description as it is.
    PrintExercise(&exercise, "Intervals 5/3", range);
    EXPECT_TRUE(Page("exerciseTotal.htm").contains("<td align=left>Intervals 5/3</b></td></tr></table>"));

    // Nutrition: the hidden food number stays off the page, the widths of the heading, and the
    // bottom rows spanning the text columns.
    UserConn.Execute("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, amount, Measure, calories, protein, "
                     "Fat, Carbs, points, Food_ID) values ('" + id + "', #2026-07-02#, 1, 'Mac & <Cheese>', 1, 'cup', "
                     "400, 12, 20, 45, 8, 777)");
    UserConn.Execute("create table Nutrient_Display (fNumber integer, name text, fieldName text, display yesno)");
    Grid nutrition, nutrients;
    SSNutritionSet(&nutrition);
    SSNutrientsSet(&nutrients);
    nutritionInfo(&nutrition, &nutrients, "Dinner", range, balance);   // no such meal: no rows
    nutritionInfo(&nutrition, &nutrients, "", range, balance);
    ASSERT_EQ(PrintNutrition(&nutrition, "Lunch", range), "nutritionTotal.htm");
    const QString page = Page("nutritionTotal.htm");
    const QString table =
        "<table border=1 cellspacing=0 cellpadding=2 align=center>\n<tr>" + H("Date", " width=90") +
        H("Food", " width=250") + H("Amount", " width=140") + H("Calories", " width=68") + H("Protein", " width=68") +
        H("Fat", " width=68") + H("Carb", " width=68") + H("Points", " width=68") + "</tr>\n<tr>" + C("2026-07-02") +
        C("Mac &amp; &lt;Cheese&gt;") + C("1. cup") + C("400.", true) + C("12.", true) + C("20.", true) +
        C("45.", true) + C("8.", true) + "</tr>\n<tr>" + B("Total", " colspan=3") + B("400.") + B("12.") + B("20.") +
        B("45.") + B("8.") + "</tr>\n<tr>" + B("Average/Day", " colspan=3") + B("200.") + B("6.") + B("10.") +
        B("22.5") + B("4.") + "</tr>\n<tr>" + B("Average/Items", " colspan=3") + B("400.") + B("12.") + B("20.") +
        B("45.") + B("8.") + "</tr>\n</table>\n</body></html>\n";
    EXPECT_EQ(page, Head("nutrition.jpg", "Nutrition Totals", 400, {"Lunch"}) + table);
    EXPECT_FALSE(page.contains("777"));
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

TEST_F(TotalsPages, WellnessDescriptionsAndTheSummaryWithGroupsAndStrip)
{
    UserConn.Execute("insert into wellness (User_ID, [Date], FeelWell, Accomplish, sleep, wakeup) values ('" + id +
                     "', #2026-07-01#, true, true, 8, '7:00 AM')");
    Grid feel;
    SSWellnessSet(&feel, 0);
    wellnessFeelWell(&feel, YesNoFilter::Yes, YesNoFilter::All, range);
    ASSERT_EQ(PrintWellness(&feel, 0, FeelWellDescription(YesNoFilter::Yes, YesNoFilter::All), range),
              "feelwellTotal.htm");
    const QString expected =
        Head("wellness.jpg", "Feel well", 450, {"Feel Well: Yes", "Accomplished Goals: All"}) +
        "<table border=1 cellspacing=0 cellpadding=2 align=center>\n<tr>" + H("Date") + H("Feel Well?") +
        H("Accomplish Goals?") + H("Hours sleep") + H("Wakeup Time") + "</tr>\n<tr>" + C("2026-07-01") + C("Yes.") +
        C("Yes.") + C("8", true) + C("7:00:00 AM", true) + "</tr>\n<tr>" + B("Total", " colspan=3") + B("8 hours") +
        B("&nbsp;") + "</tr>\n<tr>" + B("Average", " colspan=3") + B("8 hour") + B("07:00 AM") +
        "</tr>\n</table>\n</body></html>\n";
    EXPECT_EQ(Page("feelwellTotal.htm"), expected);

    Grid meds;
    SSWellnessSet(&meds, 2);
    wellnessMedication(&meds, "Show all", range);
    ASSERT_EQ(PrintWellness(&meds, 2, "Show all", range), "medicationTotal.htm");
    const QString medPage = Page("medicationTotal.htm");
    EXPECT_TRUE(medPage.startsWith(Head("wellness.jpg", "Medication", 450, {"All Medication"})));
    EXPECT_TRUE(medPage.contains("<tr>" + B("Average/Item", " colspan=3") + B("0") + "</tr>"));
    EXPECT_EQ(FilterDescription(TotalsPage::Readings, ""), "All Readings");
    EXPECT_EQ(FilterDescription(TotalsPage::Strength, "Show all"), "All Strength Training");
    EXPECT_EQ(FilterDescription(TotalsPage::Nutrition, "Supper"), "Supper");

    // The summary: group headings over runs of columns, the columns, the days, the bottom rows,
    // then the balance strip.
    Grid ss1, ss2;
    ss1.SetColumnHeaders({"Date", "Feel Well", "Hours Sleep", "BMR", "Calories Eaten"});
    ss1.SetMaxRows(4);
    const QStringList day{"2026-07-01", "Yes", "8", "1800", "2,100."};
    for (int c = 1; c <= 5; ++c)
        ss1.SetText(4, c, day[c - 1]);
    ss1.SetText(1, 3, "8.");
    ss1.SetText(2, 3, "8.");
    ss2.SetColumnHeaders({"Calories Burned Exercising", "+ BMR"});
    ss2.SetMaxRows(2);
    ss2.SetText(1, 1, "0.0");
    ss2.SetText(1, 2, "1,800.0");
    ASSERT_EQ(PrintSummary(&ss1, {"", "Wellness", "Wellness", "Nutrition", "Nutrition"}, &ss2, range),
              "summaryTotal.htm");
    const QString summary = Page("summaryTotal.htm");
    const QString groups = "<tr>" + H("&nbsp;", "", "#AAAAAA") + H("Wellness", " colspan=2", "#AAAAAA") +
                           H("Nutrition", " colspan=2", "#AAAAAA") + "</tr>\n";
    EXPECT_TRUE(summary.startsWith(Head("totals.jpg", "Summary Totals", 450, {"Daily Summary"}) +
                                   "<table border=1 cellspacing=0 cellpadding=2 align=center>\n" + groups));
    EXPECT_TRUE(summary.contains("<tr>" + C("2026-07-01") + C("Yes", true) + C("8", true) + C("1800", true) +
                                 C("2,100.", true) + "</tr>\n<tr>" + "<td align=left><b><font face=\"Arial\" size=\"2\">"
                                 "Total</font></b></td>" + B("&nbsp;") + B("8.") + B("&nbsp;") + B("&nbsp;") + "</tr>"));
    EXPECT_TRUE(summary.contains("<tr>" + H("&nbsp;") + H("Calories Burned Exercising") + H("+ BMR") + "</tr>\n<tr>" +
                                 "<td align=left><b><font face=\"Arial\" size=\"2\">Total</font></b></td>" +
                                 C("0.0", true) + C("1,800.0", true) + "</tr>"));
    EXPECT_TRUE(summary.endsWith("</table>\n</body></html>\n"));
}
