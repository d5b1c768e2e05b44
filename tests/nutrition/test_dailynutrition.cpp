// The food diary: its arithmetic, and the Nutrition view against real stores.
#include "fixtures/fixture.h"

#include "core/routines.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Grid.h"
#include "nutrition/dailynutrition.h"
#include "nutrition/frmChangeAmt.h"
#include "nutrition/frmNutrition.h"
#include "nutrition/screens.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>
#include <QtTest/QTest>

using namespace daily;


TEST(DailyArithmetic, CalorieMeterBands)
{
    const QColor green(0, 255, 0), yellow(255, 255, 0), red(255, 0, 0);
    struct Case { double cals, goal; bool set; int value; QColor color; };
    const Case cases[] = {
        {1500, 2000, true, 75, green},
        {2000, 2000, true, 100, green},
        {2100, 2000, true, 100, yellow},    // 105
        {2200, 2000, true, 0, green},       // exactly 110: the gap, nothing set
        {2201, 2000, true, 100, red},       // 110.05: above 110, though its whole percent is 110
        {2211, 2000, true, 100, red},       // 111
        {2001, 2000, true, 0, green},       // over, but the excess rounds to 100
        {2019, 2000, true, 100, yellow},    // 100.95 -> 101
        {2199, 2000, true, 0, green},       // 109.95 -> 110, not above 110: the gap
        {500, 0, false, 0, green},          // no weigh-in
        {0, 2000, false, 0, green},
    };
    for (const Case& c : cases) {
        const Meter m = CalorieMeter(c.cals, c.goal);
        SCOPED_TRACE(c.cals);
        EXPECT_EQ(m.set, c.set);
        EXPECT_EQ(m.value, c.value);
        EXPECT_EQ(m.color, c.color);
    }
    EXPECT_EQ(MeterPercent(2200, 2000), 110);
    EXPECT_EQ(MeterPercent(2201, 2000), 110);
    EXPECT_EQ(MeterPercent(1e9, 1), 32767);   // no overflow
}

TEST(DailyArithmetic, PortionScalingSharesAndGoals)
{
    // 100 g to 150 g, to 2 places; oz to g by the factors; an unknown unit counts 1.
    EXPECT_DOUBLE_EQ(ScalePortion(200, 150, 1, 100, 1), 300);
    EXPECT_DOUBLE_EQ(ScalePortion(0.333, 150, 1, 100, 1), 0.5);
    EXPECT_DOUBLE_EQ(ScalePortion(100, 1, 28.349523125, 100, 1), 28.35);
    EXPECT_DOUBLE_EQ(ScalePortion(10, 3, 1.0, 1, 1.0), 30);
    EXPECT_DOUBLE_EQ(ScalePortion(10, 3, 1.0, 0, 1.0), 10);   // nothing to scale from
    EXPECT_DOUBLE_EQ(DietPoints(12, 500, 5), 10);
    EXPECT_DOUBLE_EQ(DietPoints(0, 25, 0), 0);                // 0.5 rounds to even

    const Shares s = EnergyShares(25, 10, 50);                // 100 + 90 + 200 = 390
    EXPECT_NEAR(s.protein, 100 / 3.9, 1e-9);
    EXPECT_NEAR(s.fat, 90 / 3.9, 1e-9);
    EXPECT_NEAR(s.carbs, 200 / 3.9, 1e-9);
    EXPECT_EQ(EnergyShares(0, 0, 0).carbs, 0);
    EXPECT_EQ(EnergyShares(-5, 10, 0).protein, 0);
    EXPECT_EQ(FoodShares(0, 25, 10, 50).carbs, 0);            // no calories: nothing
    EXPECT_NEAR(FoodShares(300, 25, 10, 50).fat, 90 / 3.9, 1e-9);

    const GramGoals g = GoalsFromTarget(2000, 20, 30, 50);
    EXPECT_DOUBLE_EQ(g.protein, 100);
    EXPECT_DOUBLE_EQ(g.fat, 66.67);
    EXPECT_DOUBLE_EQ(g.carbs, 250);
    double p = -1;
    EXPECT_TRUE(PercentOfRda(45, 60, &p));
    EXPECT_DOUBLE_EQ(p, 75);
    EXPECT_FALSE(PercentOfRda(45, 0, &p));
    EXPECT_FALSE(PercentOfRda(0, 60, &p));
}

TEST(DailyArithmetic, NamesAmountsSearchAndOffsets)
{
    EXPECT_TRUE(IsDuplicateName({"Apple", "Banana, raw"}, "BANANA, RAW"));
    EXPECT_FALSE(IsDuplicateName({"Apple"}, "Apples"));
    QString a, m;
    SplitAmount("1.5 fl oz", &a, &m);
    EXPECT_EQ(a, "1.5");
    EXPECT_EQ(m, "fl oz");
    SplitAmount("2", &a, &m);
    EXPECT_EQ(m, "");
    EXPECT_EQ(SearchFilter("ba"), "");
    EXPECT_EQ(SearchFilter("  ban  "), "like '%ban%'");
    EXPECT_EQ(SearchFilter("o'brien potatoes fried"), "like '%o''brien%' and name like '%potatoes fried%'");
    EXPECT_EQ(DiaryPosition(1), 9);      // calories
    EXPECT_EQ(DiaryPosition(2), 10);     // protein
    EXPECT_EQ(FoodsPosition(2), 7);
    EXPECT_EQ(ListNumber(2.5), "2.5");
    EXPECT_EQ(ListNumber(3), "3");
    EXPECT_EQ(ListNumber(0.125), "0.12");
}

namespace {

// A day with meals, a food group with two test foods whose nutrient N holds the value of its
// foods position, a saved meal, and a weigh-in with a BMR of 2000.
class NutritionScreen : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        RegisterNutritionScreens();
        id = AddAthlete("Robin");
        UserConn.Execute("update User_Info set TargetCals=2000, protein=20, Fat=30, Carbs=50 where User_ID=" + id);
        int pos = 1;
        for (const char* meal : {"Breakfast", "Lunch", "Dinner"}) {
            UserConn.Execute(QString("insert into setup_meals (User_ID, Meal_ID, meal, [Position], Show) values (%1, %2, '%3', %2, true)")
                                 .arg(id)
                                 .arg(pos)
                                 .arg(meal));
            ++pos;
        }
        UserConn.Execute(QString("insert into setup_meals (User_ID, Meal_ID, meal, [Position], Show) values (%1, 4, 'Snack', 4, false)").arg(id));
        LibraryConn.Execute("insert into food_groups ([Group], Type) values ('Test Foods', 'Foods')");
        Recordset rs(&LibraryConn);
        rs.Open("select Group_ID from food_groups where [group]='Test Foods'");
        group = Str(rs.Field(0));
        rs.Close();
        banana = AddFood("Banana test", 100, "g", 200);
        oats = AddFood("Oats test", 1, "meal(s)", 150);
        SetCalendarDateProvider([] { return QDate(2026, 11, 20); });
    }
    void TearDown() override
    {
        SetCalendarDateProvider(nullptr);
        StoreTest::TearDown();
    }
    QString AddFood(const QString& name, double amount, const QString& measure, double calories)
    {
        Recordset rs(&LibraryConn);
        rs.Open("foods");
        rs.AddNew();
        rs.SetField("Group_ID", Val(group));
        rs.SetField("Name", name);
        rs.SetField("amount", amount);
        rs.SetField("Measure", measure);
        rs.SetField("points", 2);
        rs.SetField("calories", calories);
        for (int p = 7; p < rs.FieldCount(); ++p)
            rs.SetField(p, double(p));
        rs.Update();
        const QString foodId = Str(rs.Field("Food_ID"));
        rs.Close();
        return foodId;
    }
    void Choose(frmNutrition& f, const QString& name)
    {
        f.Combo1->setCurrentIndex(f.Combo1->findText("Test Foods"));
        for (int i = 0; i < f.list1->topLevelItemCount(); ++i)
            if (f.list1->topLevelItem(i)->text(0) == name)
                f.list1->setCurrentItem(f.list1->topLevelItem(i));
    }
    // Answers the Change Amount dialog with an amount and a measure.
    void AnswerAmount(const QString& amount, const QString& measure = QString())
    {
        Ui().OnDialog("frmChangeAmt", [amount, measure](QDialog* d) {
            auto* dlg = static_cast<frmChangeAmt*>(d);
            dlg->txtAmt->setText(amount);
            if (!measure.isEmpty())
                dlg->cboMeasure->setCurrentIndex(dlg->cboMeasure->findText(measure));
            dlg->cmdChange->click();
            return int(QDialog::Accepted);
        });
    }
    double Diary(const QString& column, const QString& where)
    {
        Recordset rs(&UserConn);
        rs.Open("select " + column + " from daily_nutrition where " + where);
        const double v = rs.Eof() ? -1 : Val(rs.Field(0));
        rs.Close();
        return v;
    }
    void AddWeighIn(double bmr)
    {
        UserConn.Execute(QString("insert into WeighIn (User_ID, [Date], weight, BMR) values ('%1', #2026-11-01#, 180, %2)").arg(id).arg(bmr));
    }
    QString id, group, banana, oats;
};

}  // namespace

TEST_F(NutritionScreen, OpensWithShownMealsGoalsAndAnEmptyDay)
{
    frmNutrition f;
    EXPECT_EQ(f.windowTitle(), "Nutrition for Friday, November 20, 2026");
    ASSERT_EQ(f.Tab1->count(), 4);   // the shown meals, then "Daily Totals"
    EXPECT_EQ(f.Tab1->tabText(0), "Breakfast");
    EXPECT_EQ(f.Tab1->tabText(3), "Daily Totals");
    EXPECT_EQ(f.MealTag(), "1");
    EXPECT_EQ(f.Combo1->itemText(0), "Search All Groups");
    // Goals from the target: 2000 cal, 20/30/50 %.
    EXPECT_EQ(f.SS1->Text(1, frmNutrition::colGoal), "2000");
    EXPECT_EQ(f.SS1->Text(2, frmNutrition::colGoal), "100");
    EXPECT_EQ(f.SS1->Text(3, frmNutrition::colGoal), "66.67");
    EXPECT_EQ(f.SS1->Text(4, frmNutrition::colGoal), "250");
    EXPECT_TRUE(f.SS1->Text(1, frmNutrition::colNutrient).startsWith("Calories"));
    EXPECT_EQ(f.List2->topLevelItemCount(), 0);
    EXPECT_EQ(f.SS1->Text(2, frmNutrition::colAmount), "0");
    EXPECT_EQ(f.MeterValue(), 0);
    EXPECT_EQ(f.Chart3->PieValue(1), 50);
    EXPECT_FALSE(f.cmdChange->isEnabled());

    // Without a shown meal every meal is a tab.
    UserConn.Execute("update setup_meals set show=false");
    frmNutrition all;
    EXPECT_EQ(all.Tab1->count(), 5);

    // The planner's meal selects its tab.
    SelectedItem = "Lunch";
    frmNutrition lunch;
    EXPECT_EQ(lunch.Tab1->tabText(lunch.Tab1->currentIndex()), "Lunch");
    SelectedItem.clear();
}

TEST_F(NutritionScreen, AddingAFoodCopiesItsRowAndScalesThePortion)
{
    AddWeighIn(2000);
    frmNutrition f;
    Choose(f, "Banana test");
    AnswerAmount("150", "g");
    f.cmdAdd->click();
    ASSERT_EQ(Ui().DialogsShown(), QStringList{"frmChangeAmt"});
    const QString row = "User_ID='" + id + "' and meal_id=1 and date=#2026-11-20# and food_id=" + banana;
    EXPECT_DOUBLE_EQ(Diary("amount", row), 150);
    EXPECT_DOUBLE_EQ(Diary("calories", row), 300);
    EXPECT_DOUBLE_EQ(Diary("points", row), 3);
    EXPECT_DOUBLE_EQ(Diary("protein", row), 10.5);                 // foods position 7
    EXPECT_DOUBLE_EQ(Diary("Chloride", row), 63);                  // the last: 42 x 1.5
    // Grid row N is position 8 + N of the diary row.
    Recordset rs(&UserConn);
    rs.Open("select * from daily_nutrition where " + row);
    for (int n = 1; n <= f.SS1->MaxRows(); ++n)
        EXPECT_DOUBLE_EQ(f.SS1->Value(n, frmNutrition::colAmount), Val(rs.Field(DiaryPosition(n)))) << n;
    rs.Close();
    ASSERT_EQ(f.List2->topLevelItemCount(), 1);
    EXPECT_EQ(f.List2->topLevelItem(0)->text(frmNutrition::lstAmount), "150 g");
    EXPECT_EQ(f.List2->topLevelItem(0)->text(frmNutrition::lstCalories), "300");
    EXPECT_EQ(f.MeterValue(), 15);
    EXPECT_EQ(f.MeterColor(), QColor(0, 255, 0));
    EXPECT_GT(f.Chart2->PieValue(1), 0);

    // 150 g to 2 oz: by the factors of the units.
    AnswerAmount("2", "oz");
    f.List2->setCurrentItem(f.List2->topLevelItem(0));
    f.cmdChange->click();
    EXPECT_DOUBLE_EQ(Diary("calories", row), 113.4);              // 300 x 56.699 / 150
    EXPECT_EQ(CountUser("daily_nutrition where Measure='oz'"), 1);

    // A name differing only in case is a duplicate.
    UserConn.Execute("update daily_nutrition set name='BANANA TEST'");
    f.Tab1->setCurrentIndex(1);
    f.Tab1->setCurrentIndex(0);
    Choose(f, "Banana test");
    f.cmdAdd->click();
    EXPECT_EQ(Ui().LastMessage().text, "You can't add duplicate foods to the same meal.  Try increasing the food amount.");
    EXPECT_EQ(CountUser("daily_nutrition"), 1);
    // Another meal takes it; "Daily Totals" shows both.
    Ui().OnDialog("frmChangeAmt", [](QDialog*) { return 0; });
    f.Tab1->setCurrentIndex(1);
    Choose(f, "Banana test");
    f.cmdAdd->click();
    EXPECT_EQ(CountUser("daily_nutrition"), 2);
    f.Tab1->setCurrentIndex(3);
    EXPECT_EQ(f.List2->topLevelItemCount(), 2);
    EXPECT_DOUBLE_EQ(f.SS1->Value(1, frmNutrition::colAmount), 313.4);
    // Not on "Daily Totals".
    Choose(f, "Oats test");
    f.cmdAdd->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please select a meal to add the food to.");
    EXPECT_FALSE(f.cmdSaveMeal->isEnabled());
}

TEST_F(NutritionScreen, MeterAndSavedMealRows)
{
    AddWeighIn(2000);
    // A saved meal's ingredients (meal 9999) on the same date never count.
    auto addRow = [&](int meal, const QString& type, double calories) {
        UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Type, Food_ID, Name, amount, Measure, calories, protein, Fat, Carbs) "
                                 "values ('%1', #2026-11-20#, %2, '%3', %4, 'Row %2', 1, 'each', %5, 10, 10, 10)")
                             .arg(id)
                             .arg(meal)
                             .arg(type, oats)
                             .arg(calories));
    };
    addRow(1, "", 2200);
    addRow(9999, "77", 5000);
    {
        frmNutrition f;
        EXPECT_EQ(f.List2->topLevelItemCount(), 1);
        EXPECT_EQ(f.MeterValue(), 0);                      // exactly 110 %: the gap
        EXPECT_EQ(f.MeterColor(), QColor(0, 255, 0));
        f.Tab1->setCurrentIndex(3);
        EXPECT_EQ(f.List2->topLevelItemCount(), 1);
        EXPECT_DOUBLE_EQ(f.SS1->Value(1, frmNutrition::colAmount), 2200);
    }
    UserConn.Execute("update daily_nutrition set calories=2211 where meal_id=1");
    {
        frmNutrition f;
        EXPECT_EQ(f.MeterValue(), 100);
        EXPECT_EQ(f.MeterColor(), QColor(255, 0, 0));
    }
    UserConn.Execute("update daily_nutrition set calories=2100 where meal_id=1");
    {
        frmNutrition f;
        EXPECT_EQ(f.MeterValue(), 100);
        EXPECT_EQ(f.MeterColor(), QColor(255, 255, 0));
    }
    // Without a weigh-in the meter is never set.
    UserConn.Execute("delete * from WeighIn");
    {
        frmNutrition f;
        EXPECT_EQ(f.MeterValue(), 0);
    }
}

TEST_F(NutritionScreen, SavedMealsEnterAsTheirIngredients)
{
    // A meal head in group 65 with two ingredient rows of meal 9999.
    LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure, calories) values (65, 'Test breakfast', 1, 'meal(s)', 350)");
    Recordset rs(&LibraryConn);
    rs.Open("select food_id from foods where group_id=65 and name='Test breakfast'");
    const QString meal = Str(rs.Field(0));
    rs.Close();
    for (const QString& food : {banana, oats})
        UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Type, Food_ID, Name, amount, Measure, calories, Fiber) "
                                 "values ('%1', #2020-01-01#, 9999, '%2', %3, 'Ingredient %3', 1, 'meal(s)', 100, 4)")
                             .arg(id, meal, food));
    frmNutrition f;
    f.ribbon->button(1)->click();
    f.Combo1->setCurrentIndex(0);
    f.LoadFoodList();
    ASSERT_GE(f.list1->topLevelItemCount(), 1);
    for (int i = 0; i < f.list1->topLevelItemCount(); ++i)
        if (f.list1->topLevelItem(i)->text(0) == "Test breakfast")
            f.list1->setCurrentItem(f.list1->topLevelItem(i));
    // The measure without a units row scales by the amount alone.
    AnswerAmount("3");
    f.cmdAdd->click();
    EXPECT_EQ(CountUser("daily_nutrition where meal_id=1 and type=''"), 2);
    EXPECT_EQ(CountUser("daily_nutrition where meal_id=9999"), 2);     // the meal stays as it was
    EXPECT_EQ(f.List2->topLevelItemCount(), 2);
    EXPECT_DOUBLE_EQ(Diary("calories", "meal_id=1 and food_id=" + oats), 300);
    EXPECT_DOUBLE_EQ(Diary("calories", "meal_id=1 and food_id=" + banana), 100);
    EXPECT_DOUBLE_EQ(f.SS1->Value(1, frmNutrition::colAmount), 400);
    EXPECT_DOUBLE_EQ(f.Points(), 5);       // 400 / 50 - 16 / 5 = 4.8
}

TEST_F(NutritionScreen, BadInputLeavesTheDiaryAsItWas)
{
    frmNutrition f;
    Choose(f, "Banana test");
    // A non-numeric amount changes nothing.
    AnswerAmount("lots", "g");
    f.cmdAdd->click();
    const QString row = "meal_id=1 and food_id=" + banana;
    EXPECT_DOUBLE_EQ(Diary("amount", row), 100);
    EXPECT_DOUBLE_EQ(Diary("calories", row), 200);
    EXPECT_EQ(f.List2->topLevelItem(0)->text(frmNutrition::lstAmount), "100 g");
    // A food whose library row has gone is skipped without a word.
    Choose(f, "Oats test");
    LibraryConn.Execute("delete * from foods where food_id=" + oats);
    Ui().ClearMessages();
    f.cmdAdd->click();
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
    EXPECT_EQ(CountUser("daily_nutrition"), 1);
    EXPECT_EQ(f.List2->topLevelItemCount(), 1);
    // A row whose unit is unknown scales by the amounts alone.
    UserConn.Execute("update daily_nutrition set Measure='handful', amount=2");
    FoodPortion portion{banana + "\tBanana test\t2 handful\t200", banana, "1", QString(), "2026-11-20"};
    EXPECT_FALSE(frmChangeAmt::ChangeAmount(portion, 3, "handful", 2, "handful").isEmpty());
    EXPECT_DOUBLE_EQ(Diary("calories", row), 300);
    // No such row: an empty line, nothing written.
    portion.foodId = "987654";
    EXPECT_TRUE(frmChangeAmt::ChangeAmount(portion, 3, "g", 1, "g").isEmpty());
}

TEST_F(NutritionScreen, DeleteCopyAndPasteMeals)
{
    Ui().OnDialog("frmChangeAmt", [](QDialog*) { return 0; });
    frmNutrition f;
    Choose(f, "Banana test");
    f.cmdAdd->click();
    Choose(f, "Oats test");
    f.cmdAdd->click();
    EXPECT_EQ(CountUser("daily_nutrition where meal_id=1"), 2);
    // Copy breakfast, paste it into the lunch of the next day: no duplicate rule.
    f.mnuCopy_Click();
    f.cmdDatePlus->click();
    EXPECT_EQ(f.cboDate->date(), QDate(2026, 11, 21));
    f.Tab1->setCurrentIndex(1);
    f.mnuPaste_Click();
    f.mnuPaste_Click();
    EXPECT_EQ(CountUser("daily_nutrition where meal_id=2 and date=#2026-11-21#"), 4);
    EXPECT_EQ(f.List2->topLevelItemCount(), 4);
    f.mnuDelMeal_Click();
    EXPECT_EQ(CountUser("daily_nutrition where date=#2026-11-21#"), 0);
    // Back to the first day: delete one food, then (nothing selected) all after a question.
    f.cmdDateminus->click();
    f.Tab1->setCurrentIndex(0);
    ASSERT_EQ(f.List2->topLevelItemCount(), 2);
    f.List2->setCurrentItem(f.List2->topLevelItem(0));
    EXPECT_TRUE(f.cmdClear->isEnabled());
    f.cmdClear->click();
    EXPECT_EQ(CountUser("daily_nutrition"), 1);
    f.List2->clearSelection();
    Ui().Answer(vbNo);
    f.on_cmdClear_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Delete all foods in this meal?");
    EXPECT_EQ(CountUser("daily_nutrition"), 1);
    Ui().Answer(vbYes);
    f.on_cmdClear_clicked();
    EXPECT_EQ(CountUser("daily_nutrition"), 0);
}

TEST_F(NutritionScreen, SearchInAllGroupsAndInOne)
{
    frmNutrition f;
    f.txtSearch->setText("te");
    f.cmdSearch->click();                  // under 3 characters: nothing
    EXPECT_EQ(f.list1->topLevelItemCount(), 0);
    f.Combo1->setCurrentIndex(0);
    f.txtSearch->setText("banana test");
    f.cmdSearch->click();
    ASSERT_EQ(f.list1->topLevelItemCount(), 1);
    EXPECT_EQ(f.list1->topLevelItem(0)->text(2), "Test Foods");
    Ui().Answer(vbNo);
    f.txtSearch->setText("zzzqqq");
    f.cmdSearch->click();
    EXPECT_EQ(Ui().LastMessage().text, "Food not found, add it to the foods database?");
    // Not found in one category: the question dialog; "Search all Categories" searches again.
    f.Combo1->setCurrentIndex(f.Combo1->findText("Test Foods"));
    Ui().OnDialog("frmNutSearch", [](QDialog*) { return 2; });
    f.txtSearch->setText("Babyfood");
    f.cmdSearch->click();
    EXPECT_TRUE(Ui().DialogsShown().contains("frmNutSearch"));
    EXPECT_EQ(f.Combo1->currentText(), "Search All Groups");
    EXPECT_GT(f.list1->topLevelItemCount(), 0);
}

TEST_F(NutritionScreen, GoalsRdaAndPiesFollowTheirSources)
{
    // Nutrient goals by position: row N takes field N (rows 1 to 4 are then the target's).
    Recordset rs(&UserConn);
    rs.Open("Nutrient_Goals");
    rs.AddNew();
    rs.SetField("User_ID", id);
    for (int p = 1; p < rs.FieldCount(); ++p)
        rs.SetField(p, 1000 + p);
    rs.Update();
    rs.Close();
    UserConn.Execute("update User_Info set TargetCals=0 where User_ID=" + id);
    frmNutrition f;
    EXPECT_EQ(f.SS1->Text(1, frmNutrition::colGoal), "0");
    EXPECT_EQ(f.SS1->Text(2, frmNutrition::colGoal), "1002");     // no target: the goal row stays
    EXPECT_EQ(f.SS1->Text(5, frmNutrition::colGoal), "1005");
    EXPECT_EQ(f.SS1->Text(f.SS1->MaxRows(), frmNutrition::colGoal), QString::number(1000 + f.SS1->MaxRows()));
    // The RDA text is blank where the catalogue has none; % RDA from the Amount.
    for (int r = 1; r <= f.SS1->MaxRows(); ++r)
        EXPECT_EQ(f.SS1->Text(r, frmNutrition::colRdaText).isEmpty(), !(f.SS1->Value(r, frmNutrition::colRDA) > 0)) << r;
    Ui().OnDialog("frmChangeAmt", [](QDialog*) { return 0; });
    Choose(f, "Banana test");
    EXPECT_GT(f.Chart1->PieValue(1), 0);     // the library food's shares
    f.cmdAdd->click();
    // Protein 7 g of an RDA of 50 g: 14 %.
    EXPECT_EQ(f.SS1->Text(2, frmNutrition::colPercent), "14");
    // On "Daily Totals" a chooser line leaves the pie alone, and the popup is not offered.
    f.Tab1->setCurrentIndex(3);
    f.Chart1->ClearPie();
    Choose(f, "Oats test");
    EXPECT_EQ(f.Chart1->PieValue(1), 0);
    f.mnuCopy_Click();
    f.Tab1->setCurrentIndex(1);
    f.mnuPaste_Click();
    EXPECT_EQ(CountUser("daily_nutrition"), 1);
}

TEST_F(NutritionScreen, SavedMealIngredientsChangeByTypeAndMealsLeaveTheLibrary)
{
    // An ingredient of a saved meal is found by the meal's Food_ID, whatever its date.
    UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Type, Food_ID, Name, amount, Measure, calories, points) "
                             "values ('%1', #2020-01-01#, 9999, '555', %2, 'Ingredient', 100, 'g', 80, 1)")
                         .arg(id, banana));
    const FoodPortion ingredient{QString(), banana, "0", "555", "2026-11-20"};
    const QString line = frmChangeAmt::ChangeAmount(ingredient, 250, "g", 100, "g");
    EXPECT_EQ(GetTabField(line, 3), "250 g");
    EXPECT_EQ(GetTabField(line, 4), "200");
    EXPECT_DOUBLE_EQ(Diary("points", "meal_id=9999 and type='555'"), 2.5);

    // "De&lete" beside the chooser removes a saved meal from the library on Yes only.
    LibraryConn.Execute("insert into foods (Group_ID, Name, amount, Measure) values (65, 'Team''s lunch', 1, 'meal(s)')");
    LibraryConn.Execute("insert into Recipe_Ingredients (recipe_id, Name, Food_ID) values (0, 'Team''s lunch', 1)");
    frmNutrition f;
    f.ribbon->button(1)->click();
    f.LoadFoodList();
    for (int i = 0; i < f.list1->topLevelItemCount(); ++i)
        if (f.list1->topLevelItem(i)->text(0) == "Team's lunch")
            f.list1->setCurrentItem(f.list1->topLevelItem(i));
    ASSERT_TRUE(f.cmdDelMeal->isEnabled());
    Ui().Answer(vbNo);
    f.cmdDelMeal->click();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this meal from foods library?");
    EXPECT_EQ(CountLibrary("foods where group_id=65 and name='Team''s lunch'"), 1);
    Ui().Answer(vbYes);
    f.cmdDelMeal->click();
    EXPECT_EQ(CountLibrary("foods where group_id=65 and name='Team''s lunch'"), 0);
    EXPECT_EQ(CountLibrary("Recipe_Ingredients where recipe_id=0"), 0);
}

// A statement that fails inside a handler shows its error and leaves the view listening: the
// next handler works and shows nothing.
TEST_F(NutritionScreen, AFailedHandlerLeavesTheViewWorking)
{
    UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Food_ID, Name, amount, Measure, calories) "
                             "values ('%1', #2026-11-20#, 2, %2, 'Banana test', 100, 'g', 200)")
                         .arg(id, banana));
    frmNutrition f;
    RawSql(LibraryConn, "alter table food_groups rename to food_groups_gone");
    f.ribbon->button(2)->click();   // the recipes' groups
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(LibraryConn, "alter table food_groups_gone rename to food_groups");
    Ui().ClearMessages();

    f.Tab1->setCurrentIndex(1);     // Lunch
    ASSERT_EQ(f.List2->topLevelItemCount(), 1);
    EXPECT_EQ(f.List2->topLevelItem(0)->text(frmNutrition::lstFood), "Banana test");
    f.ribbon->button(0)->click();
    EXPECT_GE(f.Combo1->findText("Test Foods"), 0);
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
}

// Adding a food replaces a row of the same name in the meal; when the new row can't be
// written the old one stays.
TEST_F(NutritionScreen, AFailedAddKeepsTheRowItReplaces)
{
    frmNutrition f;
    // The same food reaches the meal from elsewhere while the view is open.
    UserConn.Execute(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Food_ID, Name, amount, Measure, calories) "
                             "values ('%1', #2026-11-20#, 1, %2, 'Banana test', 100, 'g', 200)")
                         .arg(id, banana));
    RawSql(UserConn, "alter table daily_nutrition rename column Type to Type_gone");
    Choose(f, "Banana test");
    Ui().OnDialog("frmChangeAmt", [](QDialog*) { return 0; });
    f.cmdAdd->click();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_TRUE(Ui().DialogsShown().isEmpty());
    RawSql(UserConn, "alter table daily_nutrition rename column Type_gone to Type");
    EXPECT_EQ(CountUser("daily_nutrition where meal_id=1 and name='Banana test'"), 1);
    EXPECT_DOUBLE_EQ(Diary("calories", "meal_id=1"), 200);
    EXPECT_EQ(f.List2->topLevelItemCount(), 1);   // what the store holds
}

// The view fits a 1280x720 screen and can be made smaller; Tab leaves the nutrient grid,
// the arrows move inside it.
TEST_F(NutritionScreen, FitsTheScreenAndTabLeavesTheGrid)
{
    frmNutrition f;
    EXPECT_LE(f.width(), 1280);
    EXPECT_LE(f.height(), 680);
    EXPECT_LE(f.minimumSizeHint().width(), 1000);
    EXPECT_LE(f.minimumSizeHint().height(), 600);

    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    f.SS1->setFocus();
    f.SS1->SetActiveCell(1, frmNutrition::colNutrient);
    QTest::keyClick(f.SS1, Qt::Key_Down);
    EXPECT_TRUE(f.SS1->hasFocus());
    EXPECT_EQ(f.SS1->ActiveRow(), 2);
    QWidget* next = f.SS1->nextInFocusChain();
    while (next && (next->focusPolicy() & Qt::TabFocus) != Qt::TabFocus)
        next = next->nextInFocusChain();
    QTest::keyClick(f.SS1, Qt::Key_Tab);
    EXPECT_FALSE(f.SS1->hasFocus());
    EXPECT_EQ(QApplication::focusWidget(), next);
    f.SS1->setFocus();
    QTest::keyClick(f.SS1, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(f.SS1->hasFocus());
}
