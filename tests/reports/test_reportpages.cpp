// The report pages against real stores: the head byte for byte, the daily nutrition pages of a
// small diary, the session page read by position, the weigh-in page, the strength and workout
// pages with their exchange tags, and the page break seen on paper but not on screen.
#include "fixtures/fixture.h"

#include "core/frmWebView.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/widgets/PageView.h"
#include "reports/pages/dailynutrition.h"
#include "reports/pages/exercisepage.h"
#include "reports/pages/pagesections.h"
#include "reports/pages/reportheader.h"
#include "reports/pages/strengthpage.h"
#include "reports/pages/weighinpage.h"
#include "reports/pages/workoutlibrarypage.h"
#include "strength/rules/workoutpage.h"

#include <QFile>

using namespace reportpages;

namespace {

const QDate kDay(2026, 3, 10);

class ReportPagesTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Lee <Coach> & Co");
    }
    QString Read(const QString& name)
    {
        QFile f(FilePath(name));
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(f.readAll());
    }
    void Food(const QString& date, int meal, const QString& name, const QString& amount, const QString& measure,
              const QString& figures, const QString& user = QString())
    {
        UserConn.Execute("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, amount, Measure, calories, protein, "
                         "Fat, Carbs, points) values ('" + (user.isEmpty() ? id : user) + "', #" + date + "#, " +
                         QString::number(meal) + ", '" + name + "', " + amount + ", '" + measure + "', " + figures + ")");
    }
    void Diary()
    {
        UserConn.Execute("insert into setup_meals (User_ID, Meal_ID, meal) values (" + id + ", 1, 'Breakfast')");
        UserConn.Execute("insert into setup_meals (User_ID, Meal_ID, meal) values (" + id + ", 2, 'Lunch')");
        Food("2026-03-10", 2, "Salad", "1", "bowl", "120, 3, 7.5, 10, 2");
        Food("2026-03-10", 1, "Oats", "50", "g", "190, 6.5, 3.5, 33.5, 4");
        Food("2026-03-10", 1, "Milk & Honey", "1", "cup", "null, null, null, null, null");
        Food("2026-03-10", 9999, "Meal part", "1", "g", "500, 1, 1, 1, 1");       // part of a saved meal
        Food("2026-03-11", 1, "Eggs", "2", "large", "140.2, 12, 10, 1, 3");
        Food("2026-03-12", 1, "Oats", "50", "g", "190, 6.5, 3.5, 33.5, 4", "999");  // another athlete
    }
    QString id;
};

const char* const kHead =
    "<html><head>\n"
    "<body bgcolor=\"#ffffff\">\n"
    "<font color=\"#000000\" size=\"3\" face=\"Arial\">\n"
    "<div align=center> <img src=\"nutrition.jpg\">\n"
    "<table border=0 width=400 cellpadding=0>\n"
    "<tr><td align=left width=150><b>Nutrition for: </td><td align=left width=250>Lee &lt;Coach&gt; &amp; Co</b></td></tr>\n";

}  // namespace

TEST_F(ReportPagesTest, HeaderByteForByte)
{
    {
        page::PageWriter out("head.htm");
        ReportHeader(out, "nutrition.jpg", "Nutrition", "March 10, 2026", "6:00 AM", "7:00 AM", "Fish & <Chips>");
        out.Close();
    }
    EXPECT_EQ(Read("head.htm"),
              QString(kHead) +
                  "<tr><td align=left><b>Date: </td><td align=left>March 10, 2026</b></td></tr>\n"
                  "<tr><td align=left><b>Scheduled for: </td><td align=left>6:00 AM to 7:00 AM</b></td></tr>\n"
                  "<tr><td align=left><b>Description: </td><td align=left>Fish &amp; &lt;Chips&gt;</b></td></tr></table>\n"
                  "<br>\n</body></html>\n");
    // No start: no "Scheduled for" row.
    {
        page::PageWriter out("head.htm");
        ReportHeader(out, "nutrition.jpg", "Nutrition", "d", "", "7:00 AM", "");
        out.Close();
    }
    EXPECT_FALSE(Read("head.htm").contains("Scheduled for"));
}

// Each meal of each day: its foods, nulls as 0, a bold meal total; a page break between days
// and none after the last; rows of saved meals and of other athletes left out.
TEST_F(ReportPagesTest, DailyNutritionPageOfASmallDiary)
{
    Diary();
    EXPECT_EQ(ReportDailyNutrition(kDay, kDay.addDays(2)), "DailyNutrition.htm");
    EXPECT_EQ(ReportFile, "DailyNutrition.htm");
    const QString cell = "<td align=right width=\"40\"><font size=\"1\">%1</font></td>";
    const QString bold = "<td align=right width=\"40\"><font size=\"1\"><b>%1</b></font></td>";
    const QString text = "<td align=left width=\"120\"><font size=\"1\">%1</font></td>";
    const QString heading =
        "<tr bgcolor=\"#CCCCCC\"><td><font size=\"1\">Food</font></td><td><font size=\"1\">Amount</font></td>"
        "<td><center><font size=\"1\">Cals</font></center></td><td><center><font size=\"1\">Protein (g)</font></center></td>"
        "<td><center><font size=\"1\">Fat (g)</font></center></td><td><center><font size=\"1\">Carbs (g)</font></center></td>"
        "<td><center><font size=\"1\">Points</font></center></td></tr>\n";
    auto row = [&](const QString& name, const QString& amount, QStringList figures) {
        QString r = "<tr>" + text.arg(name) + text.arg(amount);
        for (const QString& f : figures)
            r += cell.arg(f);
        return r + "</tr>\n";
    };
    auto total = [&](QStringList figures) {
        QString r = "<tr><td align=right colspan=2><font size=\"1\"><b>Meal Total</b></font></td>";
        for (const QString& f : figures)
            r += bold.arg(f);
        return r + "</tr>\n";
    };
    const QString table = "<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >\n";
    const QString expected =
        QString(kHead) +
        "<tr><td align=left><b>Date: </td><td align=left>Tuesday, March 10, 2026 to Thursday, March 12, 2026</b></td></tr>\n"
        "<tr><td align=left><b>Description: </td><td align=left>Daily Nutrition</b></td></tr></table>\n<br>\n" +
        "<p align=left><strong>Breakfast for Tuesday, March 10, 2026</strong></p>\n" + table + heading +
        row("Oats", "50 g", {"190", "6.5", "3.5", "33.5", "4"}) + row("Milk &amp; Honey", "1 cup", {"0", "0", "0", "0", "0"}) +
        total({"190", "6.5", "3.5", "33.5", "4"}) + "</table>\n" +
        "<p align=left><strong>Lunch for Tuesday, March 10, 2026</strong></p>\n" + table + heading +
        row("Salad", "1 bowl", {"120", "3", "7.5", "10", "2"}) + total({"120", "3", "7.5", "10", "2"}) + "</table>\n" +
        "<WxPrinter PageBreak>\n" + "<p align=left><strong>Breakfast for Wednesday, March 11, 2026</strong></p>\n" + table +
        heading + row("Eggs", "2 large", {"140.2", "12", "10", "1", "3"}) + total({"140.2", "12", "10", "1", "3"}) +
        "</table>\n</body></html>\n";
    EXPECT_EQ(Read("DailyNutrition.htm"), expected);

    // The totals page: one row per meal, the day's total, a break after every day.
    ReportDailyTotals(kDay, kDay.addDays(1));
    const QString totals = Read("DailyTotals.htm");
    EXPECT_EQ(totals.count("<WxPrinter PageBreak>"), 2);
    EXPECT_TRUE(totals.contains("<tr>" + text.arg("Breakfast") + cell.arg("190") + cell.arg("6.5") + cell.arg("3.5") +
                                cell.arg("33.5") + cell.arg("4") + "</tr>"));
    EXPECT_TRUE(totals.contains("<tr><td align=right colspan=1><font size=\"1\"><b>Meals Total</b></font></td>" + bold.arg("310") +
                                bold.arg("9.5") + bold.arg("11") + bold.arg("43.5") + bold.arg("6") + "</tr>"));
    EXPECT_FALSE(totals.contains("Meal part"));

    // A range without a diary row: the head and no table.
    ReportDailyNutrition(kDay.addDays(30), kDay.addDays(31));
    const QString empty = Read("DailyNutrition.htm");
    EXPECT_TRUE(empty.startsWith(kHead));
    EXPECT_FALSE(empty.contains("<table border=1"));
    EXPECT_TRUE(empty.endsWith("<br>\n</body></html>\n"));
}

// The session's row is read by position; warm-up and recovery stay blank; the zones, the
// form's fields, the intervals and the questionnaire follow.
TEST_F(ReportPagesTest, ExercisePageReadsTheSessionByPosition)
{
    UserConn.Execute(
        "insert into Daily_Exercise (User_ID, [Date], Name, [Key], EventName, StartTime, EndTime, [Type], Route, facility, "
        "Equipment, Comments, Distance, PlannedDistance, DistanceUnit, duration, PlannedDuration, Speed, PlannedSpeed, "
        "SpeedUnit, Warmup, Recovery, Cals, Intensity, StartHeart, EndHeart, Zone1, Zone2, Zone3, Zone4, Zone5) values ('" +
        id +
        "', #2026-03-10#, 'Run/Walk', '7', 'City 10K', '2026-03-10 06:00:00', '2026-03-10 07:00:00', 'Race', 'Park <loop>', "
        "'Track', 'Shoes', 'Felt good', 6.2, 6, 'miles', '00:50:00', '00:55:00', 7.44, 6.5, 'mph', 'jog 10 min', 'walk', "
        "600, 8, 150, 180, '00:05:00', '00:10:00', '00:20:00', '00:10:00', '00:05:00')");
    UserConn.Execute("insert into Daily_Templates (User_ID, [Date], Name, [Key], field_name, Formula, [Value], Units, worder) "
                     "values ('" + id + "', #2026-03-10#, 'Run/Walk', '7', 'Pace', 'B2/B1', '', 'min/mile', 1)");
    UserConn.Execute("insert into Daily_Intervals (User_ID, [Date], Name, [Key], [Set], Description, Instruction, Rest, "
                     "Intensity) values ('" + id + "', #2026-03-10#, 'Pyramid', '7', '1', '400m', 'fast', '90s', 'Z4')");
    UserConn.Execute("insert into Daily_Psych (User_ID, [Date], Name, [Key], AccomplishGoals, LevelCommitted) values ('" + id +
                     "', #2026-03-10#, 'Run/Walk', '7', true, 'high')");
    ReportExercise(kDay, "7", page::FileName("Run/Walk"));
    EXPECT_EQ(ReportFile, "RunWalk.htm");
    const QString html = Read("RunWalk.htm");
    EXPECT_TRUE(html.contains("<img src=\"training.jpg\">"));
    EXPECT_TRUE(html.contains("<b>Exercise/Sports for: </td>"));
    EXPECT_TRUE(html.contains("6:00:00 AM to 7:00:00 AM"));
    EXPECT_TRUE(html.contains(LabelRow("Competition:", {"City 10K"})));
    EXPECT_TRUE(html.contains(LabelRow("Location:", {"Park <loop>"})));
    EXPECT_TRUE(html.contains("Park &lt;loop&gt;"));
    EXPECT_TRUE(html.contains(LabelRow("Facility/Course:", {"Track"})));
    EXPECT_TRUE(html.contains(LabelRow("Equipment:", {"Shoes"})));
    EXPECT_TRUE(html.contains(LabelRow("Notes:", {"Felt good"})));
    EXPECT_TRUE(html.contains(LabelRow("Warmup:", {""})));
    EXPECT_TRUE(html.contains(LabelRow("Recovery:", {""})));
    EXPECT_FALSE(html.contains("jog 10 min"));
    EXPECT_TRUE(html.contains(LabelRow("Distance:", {"6.2", "6", "miles"})));
    EXPECT_TRUE(html.contains(LabelRow("Duration:", {"00:50:00", "00:55:00", "hh:mm:ss"})));
    EXPECT_TRUE(html.contains(LabelRow("Speed:", {"7.44", "6.5", "mph"})));
    EXPECT_TRUE(html.contains(LabelRow("Intensity:", {"8"})));
    EXPECT_TRUE(html.contains(LabelRow("Zone 3:", {"00:20:00"})));
    EXPECT_TRUE(html.contains(LabelRow("Zone 5:", {"00:05:00"})));
    EXPECT_FALSE(html.contains(">150<"));   // no heart rate of its own
    EXPECT_TRUE(html.contains("=B2/B1"));
    EXPECT_TRUE(html.contains("min/mile"));
    EXPECT_TRUE(html.contains(">400m<") && html.contains(">90s<"));
    EXPECT_TRUE(html.contains("What was your level of committment?"));
    EXPECT_TRUE(html.contains("Did you accomplish the goals of yor workout?</font></td><td align=left><font face=\"Arial\" "
                              "size=\"2\">Yes<"));
    EXPECT_TRUE(html.contains("Did you sleep well before working out?</font></td><td align=left><font face=\"Arial\" "
                              "size=\"2\">No<"));

    // Another key: the head alone.
    ReportExercise(kDay, "8", "other.htm");
    EXPECT_FALSE(Read("other.htm").contains("Competition:"));
}

TEST_F(ReportPagesTest, WeighInPageWithGoalsAndItsSpelling)
{
    UserConn.Execute("update User_Info set personal_measurements='lbs' where User_ID=" + id);
    UserConn.Execute("insert into WeighIn (User_ID, [Date], Neck, Waist, Bicep_Left, Bicep_Right, weight, BodyFat, Condition, "
                     "BMR, Vo2) values ('" + id + "', #2026-03-10#, 15.5, 34, 14, 14.25, 180, 18.5, 'Good', 2023, 48)");
    UserConn.Execute("insert into WeighIn_goals (User_ID, Waist, Bicep_Right, weight, BodyFat) values ('" + id +
                     "', 32, 15, 170, 15)");
    EXPECT_EQ(ReportWeighIn("2026-03-10"), "WeighIn.htm");
    const QString html = Read("WeighIn.htm");
    EXPECT_TRUE(html.contains("<img src=\"WeighIn.jpg\">"));
    EXPECT_TRUE(html.contains("<b>WeighIn for: </td>"));
    EXPECT_TRUE(html.contains("Measurements - inches"));
    EXPECT_TRUE(html.contains("<tr><td align=left>Waist</td><td align=left>34</td><td align=left>32</td></tr>"));
    EXPECT_TRUE(html.contains("<td align=left>Biceps</td><td align=left>14</td><td align=left>&nbsp;</td>"
                              "<td align=left>14.25</td><td align=left>15</td>"));
    EXPECT_TRUE(html.contains("<table Border = 0 Width = 400 cellpadding=0>"));
    EXPECT_TRUE(html.contains("Conditionning"));
    EXPECT_TRUE(html.contains("<td align=left>Weight - lbs</td><td align=left>180</td><td align=left>170</td>"));
    EXPECT_TRUE(html.contains("<td align=left>VO2max</td><td align=left>48</td>"));
    EXPECT_TRUE(html.contains("<td align=left>Condition</td><td align=left>Good</td>"));
}

// Both strength pages carry tags the workout reader takes back: the same rows, the details
// of known exercises only; the day's page has intensities and no notes or levels.
TEST_F(ReportPagesTest, StrengthAndWorkoutPagesCarryTheirTags)
{
    LibraryConn.Execute("insert into strength_exercises (muscle_group, exercise, Beginner, [Type], lift, Perc_Lift) values "
                        "('Chest', 'Bench <Flat>', 'Y', 'Free', 'Bench', 1)");
    workoutpage::Workout w;
    w.name = "Push & Pull";
    w.description = "Upper body";
    w.beginner = true;
    w.advanced = true;
    w.rows = {{"Chest", "Bench <Flat>", "1", "10", "135", "7", "10", "warm up"},
              {"Back", "Unknown Row", "1", "8", "", "6", "8", ""}};
    StrengthSheet sheet{w, kDay, "", "6:00 AM", "7:00 AM"};
    ReportStrength(page::FileName(w.name), sheet);
    const QString day = Read("Push & Pull.htm");
    EXPECT_TRUE(day.contains("<img src=\"gymsheets.jpg\">"));
    EXPECT_TRUE(day.contains("<b>Workout for: </td><td align=left>Push &amp; Pull</b>"));
    EXPECT_TRUE(day.contains("<b>Scheduled on: </td><td align=left>Tuesday, March 10, 2026</b>"));
    EXPECT_TRUE(day.contains("<b>Scheduled for: </td><td align=left>6:00 AM to 7:00 AM</b>"));
    EXPECT_TRUE(day.contains("Weight (lbs)"));
    EXPECT_TRUE(day.contains("Bench &lt;Flat&gt;"));
    EXPECT_TRUE(day.contains("<!--intensity~7~6~-->"));
    EXPECT_FALSE(day.contains("<!--comments~"));
    EXPECT_FALSE(day.contains("<!--beg~"));
    EXPECT_EQ(day.count("<!--exerciseinfo~"), 1);
    EXPECT_TRUE(day.indexOf("<!--name~") < day.indexOf("</body>"));
    const workoutpage::ReadPage back = workoutpage::ReadTags(day);
    EXPECT_EQ(back.name, "Push & Pull");
    ASSERT_EQ(back.rows.size(), 2);
    EXPECT_EQ(back.rows[0].exercise, "Bench <Flat>");
    EXPECT_EQ(back.rows[1].reps, "8");
    EXPECT_EQ(back.infoTags[0].value(2), "Bench <Flat>");

    w.exerciseInfo = ExerciseDetails(w.rows);
    ReportWorkout(page::FileName(w.name), w, workoutpage::WriteTags(w));
    const QString lib = Read("Push & Pull.htm");
    EXPECT_TRUE(lib.contains("<img src=\"workouts.jpg\">"));
    EXPECT_TRUE(lib.contains("<b>Athlete: </td><td align=left>Lee &lt;Coach&gt; &amp; Co</b>"));
    EXPECT_TRUE(lib.contains("<b>Level: </td><td align=left> Beginner, Advanced,</b>"));
    EXPECT_TRUE(lib.endsWith("-->\n</body></html>\n"));
    const workoutpage::ReadPage again = workoutpage::ReadTags(lib);
    ASSERT_EQ(again.rows.size(), 2);
    EXPECT_EQ(again.rows[0].comments, "warm up");
    EXPECT_EQ(again.rows[0].weight, "135");
    EXPECT_EQ(again.beg, "Y");
    EXPECT_EQ(again.intermediate, "N");
}

// The break directive stays in the page's text, starts a sheet on paper and shows nothing in
// the preview.
TEST_F(ReportPagesTest, PageBreakInTheTextNotInThePreview)
{
    Diary();
    ReportDailyNutrition(kDay, kDay.addDays(1));
    EXPECT_TRUE(Read("DailyNutrition.htm").contains("<WxPrinter PageBreak>"));
    frmWebView preview;
    EXPECT_TRUE(preview.browser->PageHtml().contains("<WxPrinter PageBreak>"));
    EXPECT_FALSE(preview.browser->toPlainText().contains("WxPrinter"));
    EXPECT_FALSE(preview.browser->toHtml().contains("WxPrinter", Qt::CaseInsensitive));
    EXPECT_TRUE(preview.browser->toPlainText().contains("Breakfast for Wednesday, March 11, 2026"));
    EXPECT_TRUE(PageView::PrintHtml(preview.browser->PageHtml()).contains("page-break-before:always"));
}
