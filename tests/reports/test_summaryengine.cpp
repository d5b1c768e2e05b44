// The Daily Summary's engine against real stores: the day table, the BMR carried between
// weigh-ins, the two logs' sums per day and the balance strip's arithmetic.
#include "fixtures/fixture.h"

#include "core/shared.h"
#include "core/store/connection.h"
#include "reports/totals/summaryengine.h"

using namespace summary;

namespace {

class SummaryEngine : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Robin");
        sdTableCreate();
        ndTableCreate();
    }
    void Exec(const QString& sql) { UserConn.Execute(sql); }
    void WeighIn(const QString& user, const QString& date, double bmr)
    {
        Exec(QString("insert into WeighIn (User_ID, [Date], weight, BMR) values ('%1', #%2#, 150, %3)").arg(user, date).arg(bmr));
    }
    void Session(const QString& date, const QString& duration, double cals, double intensity)
    {
        Exec(QString("insert into daily_exercise (User_ID, [Date], Name, Key, duration, Cals, Intensity) "
                     "values ('%1', #%2#, 'Run', '1', '%3', %4, %5)")
                 .arg(id, date, duration)
                 .arg(cals)
                 .arg(intensity));
    }
    // The cell of a day row under the shown column named `name` (the first such column).
    QString Cell(const DayTable& t, int day, const QString& name, int nth = 0)
    {
        const QList<DisplayColumn> cols = ShownColumns();
        for (int c = 0; c < cols.size(); ++c)
            if (cols[c].name == name && nth-- == 0) return day < 0 ? (day == -1 ? t.total[c] : t.average[c]) : t.rows[day][c];
        ADD_FAILURE() << "no column " << name.toStdString();
        return {};
    }
    QString id;
};

TEST_F(SummaryEngine, DisplayTablesSeedOnceAndKeepTheDateColumnFirst)
{
    EXPECT_EQ(CountUser("Summary_Display"), 16);
    EXPECT_EQ(CountUser("Nutrient_Display where display = true"), 33);
    EXPECT_EQ(CountUser("Nutrient_Display where fNumber = 30 and fieldName = 'Pantothenic acid'"), 1);
    // A second opening adds nothing and forces the exercise "Accomp Goals" off again.
    Exec("update summary_display set display = true where fnumber = 11");
    sdTableCreate();
    ndTableCreate();
    EXPECT_EQ(CountUser("Summary_Display"), 16);
    EXPECT_EQ(CountUser("Nutrient_Display"), 33);
    const QList<DisplayColumn> cols = ShownColumns();
    ASSERT_EQ(cols.size(), 15);
    EXPECT_EQ(cols[0].fname, "Dates");
    EXPECT_EQ(cols[0].width, 1000);   // the seeded 750 and 500 never reach the screen
    EXPECT_EQ(cols[4].name, "BMR");
    EXPECT_EQ(cols[4].width, 1000);
    for (const DisplayColumn& c : cols) EXPECT_NE(c.fNumber, 11);
    const QStringList groups = GroupHeadings(cols);
    EXPECT_EQ(groups.first(), "");
    EXPECT_EQ(groups[1], "Wellness");
    EXPECT_EQ(groups[8], "Exercise/Sports (Average)");
    EXPECT_EQ(groups.last(), "Strength Training (Average)");
    // One narrow column of a group shortens its heading.
    Exec("update summary_display set display = false where fnumber between 4 and 6 or fnumber between 12 and 14");
    const QStringList narrow = GroupHeadings(ShownColumns());
    EXPECT_TRUE(narrow.contains("Nutrit"));
    EXPECT_TRUE(narrow.contains("ST (Average)"));
}

TEST_F(SummaryEngine, OneDayRangeTotalsAreTheDaysValues)
{
    const QDate day(2026, 3, 10);
    WeighIn(id, "2026-03-10", 1800);
    Exec(QString("insert into wellness (User_ID, [Date], FeelWell, Accomplish, sleep) values ('%1', #2026-03-10#, true, false, 7.5)").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories) values ('%1', #2026-03-10#, 1, 'Oats', 400)").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories) values ('%1', #2026-03-10#, 9999, 'Part', 999)").arg(id));
    Exec(QString("insert into daily_water (User_ID, [Date], water) values (%1, #2026-03-10#, 8)").arg(id));
    Messages messages;
    const DayTable t = summaryTable(id, day, day, &messages);
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_EQ(tdays(day, day), 1);
    ASSERT_EQ(t.rows.size(), 1);
    EXPECT_EQ(t.rows[0][0], "2026-03-10");
    EXPECT_EQ(Cell(t, 0, "Feel Well"), "Yes");
    EXPECT_EQ(Cell(t, 0, "Accomp Goals"), "No");
    EXPECT_EQ(Cell(t, 0, "Hours Sleep"), "7.5");
    EXPECT_EQ(Cell(t, 0, "BMR"), "1800");
    EXPECT_EQ(Cell(t, 0, "Calories Eaten"), "400");   // the saved meal's ingredient left out
    EXPECT_EQ(Cell(t, 0, "Difference"), "1400");
    EXPECT_EQ(Cell(t, 0, "Water"), "8");
    EXPECT_EQ(Cell(t, -1, "BMR"), "1,800.");
    EXPECT_EQ(Cell(t, -2, "BMR"), "1,800.");
    EXPECT_EQ(Cell(t, -1, "Hours Sleep"), "7.5");
    EXPECT_EQ(Cell(t, -1, "Feel Well"), "");
    // A surplus shows as 0 in the day table, not as a negative number.
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories) values ('%1', #2026-03-10#, 2, 'Cake', 2000)").arg(id));
    EXPECT_EQ(Cell(summaryTable(id, day, day, nullptr), 0, "Difference"), "0");
}

TEST_F(SummaryEngine, EmptyRangeCarriesTheNearestWeighInOfAnyAthlete)
{
    // Only another athlete has weighed in, before and after the range: forward comes first.
    WeighIn("999", "2026-01-01", 1500);
    WeighIn("999", "2026-06-01", 1700);
    Messages messages;
    const DayTable t = summaryTable(id, QDate(2026, 3, 1), QDate(2026, 3, 5), &messages);
    EXPECT_TRUE(messages.isEmpty());
    ASSERT_EQ(t.rows.size(), 5);
    for (int d = 0; d < 5; ++d) {
        EXPECT_EQ(Cell(t, d, "BMR"), "1700");
        EXPECT_EQ(Cell(t, d, "Calories Eaten"), "0");
        EXPECT_EQ(Cell(t, d, "Duration"), "0");
        EXPECT_EQ(Cell(t, d, "Feel Well"), "");
        EXPECT_EQ(Cell(t, d, "Accomp Goals", 1), "");   // the strength column: 2 shows nothing
    }
    EXPECT_EQ(Cell(t, -1, "Feel Well"), "");
    EXPECT_EQ(Cell(t, -2, "Accomp Goals"), "");
    EXPECT_EQ(Cell(t, -1, "Calories Eaten"), "0.");
    EXPECT_EQ(Cell(t, -1, "BMR"), "8,500.");
    // Only a weigh-in before the range: it is found looking back.
    Exec("delete * from WeighIn where [Date] = #2026-06-01#");
    EXPECT_EQ(Cell(summaryTable(id, QDate(2026, 3, 1), QDate(2026, 3, 2), nullptr), 1, "BMR"), "1500");
}

TEST_F(SummaryEngine, BmrWalkCarriesEachWeighInToTheDaysAfterIt)
{
    WeighIn(id, "2026-04-03", 1600);
    WeighIn(id, "2026-04-06", 1650);
    WeighIn("999", "2026-04-01", 1111);   // another athlete, inside the range: not in tmpDate
    const DayTable t = summaryTable(id, QDate(2026, 4, 1), QDate(2026, 4, 8), nullptr);
    ASSERT_EQ(t.rows.size(), 8);
    const QStringList expected = {"1600", "1600", "1600", "1600", "1600", "1650", "1650", "1650"};
    for (int d = 0; d < 8; ++d) EXPECT_EQ(Cell(t, d, "BMR"), expected[d]) << "day " << d;
    double total = 0, average = 0;
    BmrSums(QDate(2026, 4, 1), QDate(2026, 4, 8), &total, &average, nullptr);
    EXPECT_DOUBLE_EQ(total, 1600 * 5 + 1650 * 3);

    // No BMR anywhere in the store: told once, every day 0.
    Exec("delete * from WeighIn");
    Messages messages;
    const DayTable none = summaryTable(id, QDate(2026, 4, 1), QDate(2026, 4, 8), &messages);
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0].text, "No BMR found");
    EXPECT_FALSE(messages[0].error);
    for (int d = 0; d < 8; ++d) EXPECT_EQ(Cell(none, d, "BMR"), "0");
}

TEST_F(SummaryEngine, LogsAddUpPerDay)
{
    // Two sessions on one day: hours added (30 seconds count 30/360 of an hour), calories summed,
    // intensity averaged and rounded to even.
    Session("2026-05-02", "01:00:00", 300, 5);
    Session("2026-05-02", "00:00:30", 101, 6);
    Session("2026-05-03", " 0:30:00", 200, 4);   // a blank counts as "0"
    Exec(QString("insert into calendar (User_ID, [Date], Key, Name, WorkoutType, Cals, duration, Intensity, complete) "
                 "values ('%1', #2026-05-03#, 7, 'Legs', 'Strength', 250.4, '00:45:00', 6, true)").arg(id));
    Exec(QString("insert into calendar (User_ID, [Date], Key, Name, WorkoutType, Cals, duration, Intensity, complete) "
                 "values ('%1', #2026-05-03#, 8, 'Arms', 'Strength', 100, '00:15:00', 7, false)").arg(id));
    WeighIn(id, "2026-05-01", 1500);
    const DayTable t = summaryTable(id, QDate(2026, 5, 1), QDate(2026, 5, 3), nullptr);
    ASSERT_EQ(t.rows.size(), 3);
    EXPECT_EQ(Cell(t, 1, "Duration"), "1.08");
    EXPECT_EQ(Cell(t, 1, "Calories Burned"), "401");
    EXPECT_EQ(Cell(t, 1, "Intensity"), "6");           // 5.5 rounds to even
    EXPECT_EQ(Cell(t, 2, "Duration"), "0.5");
    EXPECT_EQ(Cell(t, 2, "Duration", 1), "1");         // strength: 0.75 + 0.25
    EXPECT_EQ(Cell(t, 2, "Calories Burned", 1), "350"); // 350.4 rounded
    EXPECT_EQ(Cell(t, 2, "Intensity", 1), "6");        // 6.5 rounds to even
    EXPECT_EQ(Cell(t, 2, "Accomp Goals", 1), "No");    // the mean of -1 and 0 rounds to 0
    EXPECT_EQ(Cell(t, 0, "Accomp Goals", 1), "");      // no workout that day
    EXPECT_EQ(Cell(t, -1, "Duration"), "1.6");         // 0 + 1.08 + 0.5
    EXPECT_EQ(Cell(t, -2, "Calories Burned"), "200.3");
}

TEST_F(SummaryEngine, StripAsymmetriesAndTheKilogramTotal)
{
    Strip s;
    SS2Set(s);
    EXPECT_EQ(s.heading[colNetWeight], "= Net Loss of ");

    // Exercise without a strength workout: the average burned is "0.0" however much was burned.
    totals::Balance b;
    b.caloriesBurned = 1000;
    b.hoursExercised = 1;
    b.workouts = 0;
    SetCaloriesEaten(s, 2000);
    FillStrip(s, b, 10, 15000, 1500);
    EXPECT_EQ(s.cell[0][colBurned], "1,000.0");
    EXPECT_EQ(s.cell[1][colBurned], "0.0");
    EXPECT_EQ(s.cell[0][colTotalBurned], "16,000.0");
    EXPECT_EQ(s.cell[1][colTotalBurned], "1,500.0");   // built from that "0.0"
    EXPECT_EQ(s.cell[1][colIntake], "200.0");
    EXPECT_EQ(s.cell[0][colNetCalories], "14,000.0");
    EXPECT_EQ(s.cell[1][colNetCalories], "1,400.0");
    EXPECT_EQ(s.cell[0][colNetWeight], "4.0");
    EXPECT_EQ(s.cell[1][colNetWeight], "0.4");
    EXPECT_EQ(s.cell[0][colTime], "1 hour");
    EXPECT_EQ(s.cell[1][colTime], "0.1 hours");

    // A loss in kilograms: the Total converted, the Average left in pounds.
    Exec("update User_Info set personal_measurements = 'kg' where User_ID = " + id);
    ApplyUnit(s, id, nullptr);
    EXPECT_EQ(s.heading[colNetWeight], "= Net Loss of (kg)");
    EXPECT_EQ(s.cell[0][colNetWeight], "1.8");
    EXPECT_EQ(s.cell[1][colNetWeight], "0.4");

    // A net gain: negative, under the same heading, never converted.
    Strip g;
    SS2Set(g);
    b.workouts = 2;
    b.hoursExercised = 2;
    SetCaloriesEaten(g, 30000);
    FillStrip(g, b, 10, 15000, 1500);
    EXPECT_EQ(g.cell[1][colBurned], "100.0");
    EXPECT_EQ(g.cell[0][colNetCalories], "-14,000.0");
    EXPECT_EQ(g.heading[colNetCalories], "= Net Loss of (Calories)");
    ApplyUnit(g, id, nullptr);
    EXPECT_EQ(g.cell[0][colNetWeight], "-4.0");
    EXPECT_EQ(g.cell[0][colTime], "2.0 hours");
    EXPECT_EQ(g.cell[1][colTime], "0.2 hours");
    Exec("update User_Info set personal_measurements = 'lbs' where User_ID = " + id);
    Strip l;
    SS2Set(l);
    ApplyUnit(l, id, nullptr);
    EXPECT_EQ(l.heading[colNetWeight], "= Net Loss of (lbs)");
}

}  // namespace
