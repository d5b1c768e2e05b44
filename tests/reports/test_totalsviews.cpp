// The item tabs of the Daily Summary: what each grid lists and adds up for a range and a filter,
// and what they leave for the balance strip.
#include "fixtures/fixture.h"

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/widgets/Grid.h"
#include "reports/totals/totalsviews.h"

#include <QComboBox>

using namespace totals;

namespace {

Range Days(const QString& from, const QString& to)
{
    Range r;
    r.start = QDate::fromString(from, Qt::ISODate);
    r.end = QDate::fromString(to, Qt::ISODate);
    r.days = int(r.start.daysTo(r.end)) + 1;
    return r;
}

class TotalsViews : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Robin");
        UserConn.Execute("create table Nutrient_Display (fNumber integer, name text, fieldName text, display yesno)");
        const char* rows[] = {"1, 'Fiber', 'Fiber', true", "2, 'Sodium', 'Sodium', true", "5, 'Iron', 'Iron', false",
                              "30, 'Pantothenic acid', 'Pantothenic acid', true"};
        for (const char* r : rows)
            UserConn.Execute(QString("insert into Nutrient_Display (fNumber, name, fieldName, display) values (%1)").arg(r));
        UserConn.Execute("insert into setup_meals (User_ID, Meal_ID, meal) values (" + id + ", 1, 'Breakfast')");
        UserConn.Execute("insert into setup_meals (User_ID, Meal_ID, meal) values (" + id + ", 2, 'Lunch')");
    }
    void Food(const QString& date, int meal, const QString& name, const QString& numbers)
    {
        // numbers: amount, points, calories, protein, Fat, Carbs, Fiber, Sodium
        UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, Measure, amount, points, "
                                 "calories, protein, Fat, Carbs, Fiber, Sodium) values ('%1', #%2#, %3, '%4', 'cup', %5)")
                             .arg(id, date)
                             .arg(meal)
                             .arg(name, numbers));
    }
    void Session(const QString& date, const QString& name, const QString& duration, const QString& cals,
                 const QString& intensity)
    {
        UserConn.Execute(QString("insert into Daily_Exercise (User_ID, [Date], Name, duration, Cals, Intensity) "
                                 "values ('%1', #%2#, '%3', '%4', %5, %6)")
                             .arg(id, date, name, duration, cals, intensity));
    }
    void Workout(const QString& date, int key, const QString& name, const QString& duration, double cals,
                 const QList<double>& reps)
    {
        UserConn.Execute(QString("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType, Duration, Cals, "
                                 "Intensity) values ('%1', #%2#, %3, '%4', 'Strength', '%5', %6, 6)")
                             .arg(id, date)
                             .arg(key)
                             .arg(name, duration)
                             .arg(cals));
        for (double r : reps)
            UserConn.Execute(QString("insert into Daily_Weights (User_ID, [Date], [Key], Name, Sets, Reps) values "
                                     "('%1', #%2#, '%3', '%4', '1', %5)")
                                 .arg(id, date)
                                 .arg(key)
                                 .arg(name)
                                 .arg(r));
    }
    QStringList Row(const Grid& g, int row)
    {
        QStringList cells;
        for (int c = 1; c <= g.MaxCols(); ++c)
            cells << g.Text(row, c);
        return cells;
    }
    QString id;
};

}  // namespace

TEST_F(TotalsViews, NutritionWithoutFoodTheMealFilterAndNutrientsByPosition)
{
    Grid nutrition, nutrients;
    SSNutritionSet(&nutrition);
    SSNutrientsSet(&nutrients);
    ASSERT_EQ(nutrients.MaxCols(), 5);   // Date, Food and the three shown nutrients
    EXPECT_EQ(nutrients.Text(0, 5), "Pantothenic acid");

    Balance balance;
    balance.caloriesEaten = 99;
    nutritionInfo(&nutrition, &nutrients, "Show all", Days("2026-03-01", "2026-03-07"), balance);
    EXPECT_EQ(nutrition.MaxRows(), 4);
    EXPECT_EQ(Row(nutrition, 1).mid(2, 6), QStringList({"Total   ", "0.", "0.", "0.", "0.", "0."}));
    EXPECT_EQ(Row(nutrition, 2).mid(3, 5), QStringList({"0", "0", "0", "0", "0"}));
    EXPECT_EQ(Row(nutrition, 3).mid(3, 5), QStringList({"0", "0", "0", "0", "0"}));
    EXPECT_EQ(balance.caloriesEaten, 0);
    EXPECT_EQ(nutrients.Text(1, 2), "");   // no items, no bottom rows

    Food("2026-03-01", 1, "Oats & <Milk>", "1.5, 3, 300, 10, 5, 50, 4, 1200");
    Food("2026-03-02", 2, "Rice", "2, 2, 500.5, 8, 1, 100, 2, 1100");
    Food("2026-03-02", 9999, "Ingredient of a saved meal", "1, 1, 1000, 1, 1, 1, 1, 1");
    UserConn.Execute("update daily_nutrition set Sodium = null where Name = 'Rice'");
    UserConn.Execute("update daily_nutrition set [Pantothenic acid] = 0.4 where Name = 'Rice'");

    const Range week = Days("2026-03-01", "2026-03-02");
    nutritionInfo(&nutrition, &nutrients, "", week, balance);
    ASSERT_EQ(nutrition.MaxRows(), 6);
    EXPECT_EQ(Row(nutrition, 5).mid(0, 8),
              QStringList({"2026-03-01", "Oats & <Milk>", "1.5 cup", "300.", "10.", "5.", "50.", "3."}));
    EXPECT_EQ(Row(nutrition, 1).mid(3, 5), QStringList({"800.5", "18.", "6.", "150.", "5."}));
    EXPECT_EQ(Row(nutrition, 2).mid(3, 5), QStringList({"400.2", "9.", "3.", "75.", "2.5"}));   // 400.25 to even
    EXPECT_EQ(Row(nutrition, 3).mid(2, 2), QStringList({"Average/Item   ", "400.2"}));
    EXPECT_DOUBLE_EQ(balance.caloriesEaten, 800.5);

    // Nutrients: each column read from its own position of the row; a null shows 0; the
    // bottom rows add up the cells, thousands included.
    ASSERT_EQ(nutrients.MaxRows(), 6);
    EXPECT_EQ(Row(nutrients, 5), QStringList({"2026-03-01", "Oats & <Milk>", "4.", "1,200.", "0"}));
    EXPECT_EQ(Row(nutrients, 6), QStringList({"2026-03-02", "Rice", "2.", "0", "0.4"}));
    EXPECT_EQ(Row(nutrients, 1), QStringList({"", "Total   ", "6.", "1,200.", "0.4"}));
    EXPECT_EQ(Row(nutrients, 2), QStringList({"", "Average/Day   ", "3.", "600.", "0.2"}));
    EXPECT_EQ(Row(nutrients, 3), QStringList({"", "Average/Item   ", "3.", "600.", "0.2"}));

    // A meal chosen: only its rows, and the strip's intake follows it.
    nutritionInfo(&nutrition, &nutrients, "Lunch", week, balance);
    EXPECT_EQ(nutrition.MaxRows(), 5);
    EXPECT_EQ(nutrition.Text(5, 2), "Rice");
    EXPECT_DOUBLE_EQ(balance.caloriesEaten, 500.5);
    EXPECT_EQ(nutrients.MaxRows(), 5);

    QComboBox meals;
    FillNutritionFilter(&meals);
    ASSERT_EQ(meals.count(), 3);
    EXPECT_EQ(meals.itemText(0), "Show all");
    EXPECT_EQ(meals.itemText(1), "Breakfast");
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

TEST_F(TotalsViews, ExerciseHoursBySecondsOverThreeSixtyAndTwoSessionsOnADay)
{
    Grid grid;
    SSExerciseSet(&grid);
    Balance balance;
    balance.caloriesBurned = 100;   // what the screen carries in
    balance.hoursExercised = 7;

    // Without rows: the hours are reset and the bottom rows read zero.
    exerciseSports(&grid, "Show All", Days("2026-04-01", "2026-04-01"), balance);
    EXPECT_EQ(balance.hoursExercised, 0);
    EXPECT_EQ(Row(grid, 1), QStringList({"", "Total   ", "0 hours", "0", "0"}));
    EXPECT_EQ(Row(grid, 3), QStringList({"", "Average/Exercise   ", "0 hours", "0", "0"}));

    Session("2026-04-01", "Run", "00:00:30", "5", "3");
    exerciseSports(&grid, "", Days("2026-04-01", "2026-04-01"), balance);
    EXPECT_EQ(grid.Text(1, 3), "0.08 hours");
    EXPECT_DOUBLE_EQ(balance.hoursExercised, 0.08);

    Session("2026-04-02", "Swim", "01:00:00", "1200", "4");
    Session("2026-04-02", "Bike", "00:30:00", "300", "null");
    balance = Balance();
    exerciseSports(&grid, "", Days("2026-04-01", "2026-04-02"), balance);
    ASSERT_EQ(grid.MaxRows(), 7);
    EXPECT_EQ(Row(grid, 5), QStringList({"2026-04-01", "Run", "00:00:30", "3", "5."}));
    EXPECT_EQ(Row(grid, 6), QStringList({"2026-04-02", "Bike", "00:30:00", "0", "300."}));   // by date, then name
    EXPECT_EQ(Row(grid, 7), QStringList({"2026-04-02", "Swim", "01:00:00", "4", "1,200."}));
    EXPECT_EQ(Row(grid, 1), QStringList({"", "Total   ", "1.58 hours", "7", "1,505."}));
    EXPECT_EQ(Row(grid, 2), QStringList({"", "Average/Day   ", "0.8 hours", "3.5", "752"}));
    EXPECT_EQ(Row(grid, 3), QStringList({"", "Average/Exercise   ", "0.5 hours", "2.3", "502"}));
    EXPECT_DOUBLE_EQ(balance.caloriesBurned, 1505);
    EXPECT_DOUBLE_EQ(balance.hoursExercised, 1.58);

    // A filter change adds its rows to the calories on top; the hours start again.
    exerciseSports(&grid, "Swim", Days("2026-04-01", "2026-04-02"), balance);
    EXPECT_EQ(grid.MaxRows(), 5);
    EXPECT_EQ(grid.Text(1, 3), "1 hour");
    EXPECT_EQ(grid.Text(3, 3), "1 hour");
    EXPECT_DOUBLE_EQ(balance.caloriesBurned, 2705);
    EXPECT_DOUBLE_EQ(balance.hoursExercised, 1);
}

TEST_F(TotalsViews, StrengthRepsAndSetsFromTheWorkoutsRowsAndFiltersAddingUp)
{
    Grid grid;
    SSStrengthSet(&grid);
    Workout("2026-05-01", 11, "Legs", "01:00:00", 400, {10, 8, 6});
    Workout("2026-05-03", 12, "Arms", "00:45:00", 250, {});
    UserConn.Execute("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType, Cals) values ('" + id +
                     "', #2026-05-02#, 13, 'Run', 'exercise', 999)");

    Balance balance;
    const Range range = Days("2026-05-01", "2026-05-04");
    strengthTraining(&grid, "Show all", range, balance);
    ASSERT_EQ(grid.MaxRows(), 6);
    EXPECT_EQ(Row(grid, 5), QStringList({"2026-05-01", "Legs", "01:00:00", "6", "24.", "3.", "400."}));
    // No sets: the count is 0 and shows; the sum of no reps is null and leaves the cell empty.
    EXPECT_EQ(Row(grid, 6), QStringList({"2026-05-03", "Arms", "00:45:00", "6", "", "0.", "250."}));
    EXPECT_EQ(Row(grid, 1), QStringList({"", "Total   ", "2 hours", "12", "24.", "3.", "650."}));
    EXPECT_EQ(Row(grid, 2), QStringList({"", "Average/Day   ", "0.4 hours", "3", "6", "0.8", "162.5"}));
    EXPECT_EQ(Row(grid, 3), QStringList({"", "Average/Workout   ", "0.9 hours", "6", "12", "1.5", "325"}));
    EXPECT_EQ(balance.workouts, 2);
    EXPECT_DOUBLE_EQ(balance.caloriesBurned, 650);
    EXPECT_DOUBLE_EQ(balance.hoursExercised, 1.75);

    // Filtering twice raises the calories and hours each time; workouts follow the list.
    strengthTraining(&grid, "Legs", range, balance);
    strengthTraining(&grid, "Legs", range, balance);
    EXPECT_EQ(grid.MaxRows(), 5);
    EXPECT_EQ(balance.workouts, 1);
    EXPECT_DOUBLE_EQ(balance.caloriesBurned, 1450);
    EXPECT_DOUBLE_EQ(balance.hoursExercised, 3.75);

    strengthTraining(&grid, "Nothing", range, balance);
    EXPECT_EQ(balance.workouts, 0);
    EXPECT_EQ(Row(grid, 2), QStringList({"", "Average/Day   ", "0 hours", "0", "0", "0", "0"}));

    QComboBox names;
    FillStrengthFilter(&names);
    EXPECT_EQ(names.count(), 3);   // "Show all", Arms, Legs: the exercise entry is not offered
    EXPECT_EQ(names.itemText(1), "Arms");
}

TEST_F(TotalsViews, WellnessSleepWakeupsReadingsAndMedication)
{
    double h = 0;
    ASSERT_TRUE(WakeupHours("12:30:00 AM", &h));
    EXPECT_DOUBLE_EQ(h, 0.5);
    double noon = 0;
    ASSERT_TRUE(WakeupHours("12:30:00 PM", &noon));
    EXPECT_DOUBLE_EQ(noon, 12.5);
    EXPECT_EQ(WakeupMean(h + noon, 2), "06:30 AM");
    ASSERT_TRUE(WakeupHours("6:45 PM", &h));
    EXPECT_DOUBLE_EQ(h, 18.75);
    EXPECT_EQ(WakeupMean(h, 1), "06:45 PM");
    EXPECT_EQ(WakeupMean(12.5, 1), "12:30 AM");   // below 13 keeps the morning's suffix
    EXPECT_EQ(WakeupMean(0, 1), "");
    EXPECT_FALSE(WakeupHours("", &h));

    UserConn.Execute("insert into wellness (User_ID, [Date], FeelWell, txtFeelWell, Accomplish, sleep, wakeup) values ('" +
                     id + "', #2026-06-01#, true, 'rested', false, 7, '6:30 AM')");
    UserConn.Execute("insert into wellness (User_ID, [Date], FeelWell, Accomplish, txtAccomplish, sleep, wakeup) values ('" +
                     id + "', #2026-06-02#, false, true, '  ', null, '')");
    Grid feel;
    SSWellnessSet(&feel, 0);
    const Range range = Days("2026-06-01", "2026-06-03");
    wellnessFeelWell(&feel, YesNoFilter::All, YesNoFilter::All, range);
    ASSERT_EQ(feel.MaxRows(), 5);
    EXPECT_EQ(Row(feel, 4), QStringList({"2026-06-01", "Yes, rested", "No.", "7", "6:30:00 AM"}));
    EXPECT_EQ(Row(feel, 5), QStringList({"2026-06-02", "No.", "Yes.", "0", ""}));
    EXPECT_EQ(Row(feel, 1), QStringList({"", "", "Total   ", "7 hours", ""}));
    EXPECT_EQ(Row(feel, 2), QStringList({"", "", "Average   ", "7 hour", "06:30 AM"}));
    wellnessFeelWell(&feel, YesNoFilter::No, YesNoFilter::Yes, range);
    EXPECT_EQ(feel.MaxRows(), 4);
    EXPECT_EQ(feel.Text(2, 4), "0 hours");
    wellnessFeelWell(&feel, YesNoFilter::Yes, YesNoFilter::Yes, range);
    EXPECT_EQ(feel.MaxRows(), 3);
    EXPECT_EQ(feel.Text(1, 4), "");

    const char* readings[] = {"'Glucose - mmol/l', '8:00 AM', 5.5, null, 0", "'Glucose - mmol/l', '20:00', 6, null, 0",
                              "'Resting Heart Rate - bpm', '7:00 AM', 52, null, 0", "'Aspirin', '9:00 AM', null, '100 mg', 1"};
    for (const char* r : readings)
        UserConn.Execute("insert into wellness_readings (User_ID, [Date], Reading, [time], [Value], dose, Type) values (" +
                         id + ", #2026-06-02#, " + r + ")");
    Grid list, meds;
    SSWellnessSet(&list, 1);
    SSWellnessSet(&meds, 2);
    wellnessReadings(&list, "Glucose - mmol/l", range);
    ASSERT_EQ(list.MaxRows(), 6);
    EXPECT_EQ(Row(list, 6), QStringList({"2026-06-02", "8:00:00 PM", "Glucose - mmol/l", "6"}));
    EXPECT_EQ(Row(list, 1), QStringList({"", "", "Total   ", "11.5"}));
    EXPECT_EQ(Row(list, 2), QStringList({"", "", "Average/Day   ", "3.8"}));
    EXPECT_EQ(Row(list, 3), QStringList({"", "", "Average/Item   ", "5.8"}));   // 5.75 to even
    wellnessMedication(&meds, "Show all", range);
    ASSERT_EQ(meds.MaxRows(), 5);
    EXPECT_EQ(Row(meds, 5), QStringList({"2026-06-02", "9:00:00 AM", "Aspirin", "100 mg"}));
    EXPECT_EQ(meds.Text(1, 4), "100");
    wellnessMedication(&meds, "Ibuprofen", range);
    EXPECT_EQ(Row(meds, 3), QStringList({"", "", "Average/Item   ", "0"}));

    QComboBox cboReadings, cboMedication;
    FillWellnessFilters(&cboReadings, &cboMedication);
    EXPECT_EQ(cboReadings.count(), 3);
    EXPECT_EQ(cboMedication.count(), 2);
    EXPECT_EQ(cboMedication.itemText(1), "Aspirin");
    EXPECT_TRUE(Ui().Messages().isEmpty());
}
