// The athlete screen on real stores: loading, the checks of Save, what a save writes, meals,
// nutrient goals, heart-rate zones and intensity.
#include "fixtures/fixture.h"

#include "athlete/frmCondition.h"
#include "athlete/frmUserInfo.h"
#include "athlete/percentpie.h"
#include "athlete/screens.h"
#include "core/shared.h"
#include "core/store/value.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <memory>

namespace {

// A caption as the eye reads it, without the accelerator mark.
QString Shown(const QLabel* l) { return QString(l->text()).remove('&'); }

QVariant UserField(const QString& sql, const QVariant& column)
{
    Recordset rs(&UserConn);
    rs.Open(sql);
    QVariant v;
    if (!rs.Eof()) v = column.typeId() == QMetaType::Int ? rs.Field(column.toInt()) : rs.Field(column.toString());
    rs.Close();
    return v;
}

class AthleteScreen : public StoreTest {
protected:
    std::unique_ptr<frmUserInfo> Open()
    {
        auto f = std::make_unique<frmUserInfo>();
        return f;
    }
    // The least a save needs.
    void FillRequired(frmUserInfo& f, const QString& weight = "180", const QString& age = "30")
    {
        f.txtName->setText(CurrentUserName);
        f.txtWeight2->setText(weight);
        f.txtAge->setText(age);
    }
    QStringList Meals(frmUserInfo& f)
    {
        QStringList names;
        for (int i = 0; i < f.lstMeals->topLevelItemCount(); ++i) names << f.lstMeals->topLevelItem(i)->text(0);
        return names;
    }
    void SelectMeal(frmUserInfo& f, const QString& name)
    {
        for (int i = 0; i < f.lstMeals->topLevelItemCount(); ++i)
            if (f.lstMeals->topLevelItem(i)->text(0) == name) {
                f.lstMeals->setCurrentItem(f.lstMeals->topLevelItem(i));
                return;
            }
        ADD_FAILURE() << "no meal " << name.toStdString();
    }
};

}  // namespace

TEST_F(AthleteScreen, NewAthleteGetsFirstWeighInMealsAndDefaults)
{
    const QString id = AddAthlete("Ann O'Neil", "F");
    NewAthlete = true;
    auto f = Open();
    EXPECT_TRUE(DataChanged);
    EXPECT_TRUE(f->optsex[1]->isChecked());
    // Six meals of a usual day, in order, all shown.
    EXPECT_EQ(Meals(*f), (QStringList{"Breakfast", "Snack1", "Lunch", "Snack2", "Supper", "Snack3"}));
    EXPECT_EQ(CountUser("setup_meals where User_ID=" + id + " and Show=true"), 6);
    // Ten intensity rows with their defaults; the default zone boxes.
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
    EXPECT_EQ(f->txtInt[0]->text(), "1.2");
    EXPECT_EQ(f->txtInt[9]->text(), "5.7");
    EXPECT_EQ(f->txtZ1[0]->text(), "115");
    EXPECT_EQ(f->txtZ1[9]->text(), "190");
    EXPECT_EQ(f->SS1->rowCount(), 37);
    EXPECT_EQ(f->SS1->item(0, 0)->text(), "Calories (kcal)");
    EXPECT_EQ(f->SS1->item(1, 0)->text(), "Protein (g)");

    f->txtName->setText("Ann O'Neil");
    f->txtHeight->setText("65");
    f->txtAge->setText("40");
    f->cboFitness->setCurrentIndex(1);
    f->txtWeight2->setText("154");          // recomputes BMR: women, pounds, Poor
    EXPECT_EQ(f->txtBMR->text(), "1455");
    f->txtTargetWeight->setText("140");
    f->txtBodyFatGoal->setText("22");
    f->on_cmdSave_clicked();

    EXPECT_EQ(Ui().MessageTexts(), QStringList{"New Athlete Information Saved."});
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_FALSE(NewAthlete);
    EXPECT_FALSE(DataChanged);
    EXPECT_EQ(f->result(), QDialog::Accepted);
    EXPECT_EQ(CurrentUserName, "Ann O'Neil");
    EXPECT_EQ(CurrentUserID, id);

    EXPECT_EQ(CountUser("WeighIn where User_ID='" + id + "'"), 1);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from WeighIn where User_ID='" + id + "'", "weight")), 154);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from WeighIn where User_ID='" + id + "'", "BMR")), 1455);
    EXPECT_EQ(Str(UserField("select * from WeighIn where User_ID='" + id + "'", "Condition")), "Poor");
    EXPECT_DOUBLE_EQ(Val(UserField("select * from WeighIn_goals where User_ID='" + id + "'", "weight")), 140);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from WeighIn_goals where User_ID='" + id + "'", "BodyFat")), 22);
    EXPECT_EQ(Str(UserField("select * from hrm_info where User_ID='" + id + "'", "hr_model")), "Other");

    const QString row = "select * from User_Info where User_ID=" + id;
    EXPECT_DOUBLE_EQ(Val(UserField(row, "CurrentWeight")), 154);
    EXPECT_DOUBLE_EQ(Val(UserField(row, "age")), 40);
    EXPECT_EQ(Str(UserField(row, "sex")), "F");
    EXPECT_EQ(Str(UserField(row, "personal_measurements")), "lbs");
    EXPECT_DOUBLE_EQ(Val(UserField(row, "Current_Condition")), 1);
    EXPECT_DOUBLE_EQ(Val(UserField(row, "TargetCals")), 1455);

    // A second save of an existing athlete adds no weigh-in and says so.
    Ui().ClearMessages();
    auto again = Open();
    EXPECT_FALSE(DataChanged);
    EXPECT_EQ(again->txtWeight2->text(), "154");
    EXPECT_EQ(again->cboFitness->currentIndex(), 1);
    again->on_cmdSave_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Information Saved."});
    EXPECT_EQ(CountUser("WeighIn where User_ID='" + id + "'"), 1);
    EXPECT_EQ(CountUser("setup_meals where User_ID=" + id), 6);
}

TEST_F(AthleteScreen, SaveChecksStopBeforeAnythingIsWritten)
{
    const QString id = AddAthlete("Bob");
    auto f = Open();
    struct Case {
        QString name, weight, age, carbs, protein, fat, message;
    };
    const Case cases[] = {
        {"  ", "180", "30", "", "", "", "Please enter your name to continue."},
        {"Bob", "", "30", "", "", "", "Please enter your weight to continue."},
        {"Bob", "heavy", "30", "", "", "", "Please enter your weight to continue."},   // letters count 0
        {"Bob", "180", "0", "", "", "", "Please enter your age to continue."},
        {"Bob", "180", "thirty", "", "", "", "Please enter your age to continue."},
        {"Bob", "180", "30", "50", "21", "30",
         "Carbs, Protein and Fat Percentages are greater than 100%.  Please correct percentages."},
    };
    for (const Case& c : cases) {
        Ui().ClearMessages();
        f->txtName->setText(c.name);
        f->txtWeight2->setText(c.weight);
        f->txtAge->setText(c.age);
        f->txtCarbs->setText(c.carbs);
        f->txtProtein->setText(c.protein);
        f->txtFat->setText(c.fat);
        f->on_cmdSave_clicked();
        EXPECT_EQ(Ui().MessageTexts(), QStringList{c.message}) << c.message.toStdString();
        EXPECT_TRUE(IsNull(UserField("select * from User_Info where User_ID=" + id, "CurrentWeight")));
    }
    EXPECT_EQ(CountUser("hrm_info"), 0);

    // 100 exactly saves, and so does less; letters in number fields count by their leading number.
    for (const QString& fat : {"30", "10"}) {
        Ui().ClearMessages();
        auto g = Open();
        FillRequired(*g, "181.5lbs", "30 years");
        g->txtCarbs->setText("50");
        g->txtProtein->setText("20%");
        g->txtFat->setText(fat);
        g->on_cmdSave_clicked();
        EXPECT_EQ(Ui().MessageTexts(), QStringList{"Information Saved."});
        EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "CurrentWeight")), 181.5);
        EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "age")), 30);
        EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "protein")), 20);
    }
}

TEST_F(AthleteScreen, UnitsRelabelWithoutConverting)
{
    const QString id = AddAthlete("Cy");
    auto f = Open();
    FillRequired(*f, "200", "35");
    f->txtHeight->setText("70");
    f->txtTargetWeight->setText("180");
    EXPECT_EQ(Shown(f->lblHeight), "Height - in");
    f->optMetric[0]->setChecked(true);
    EXPECT_EQ(Shown(f->lblHeight), "Height - cm");
    EXPECT_EQ(Shown(f->lblWeight2), "Starting Weight - kg");
    // The relabelled captions keep their accelerators.
    EXPECT_EQ(f->lblWeight2->text(), "Starting &Weight - kg");
    for (QLabel* l : f->lblkg) EXPECT_EQ(l->text(), "kg");
    EXPECT_EQ(f->txtWeight2->text(), "200");
    EXPECT_EQ(f->txtHeight->text(), "70");
    f->on_cmdSave_clicked();
    const QString row = "select * from User_Info where User_ID=" + id;
    EXPECT_EQ(Str(UserField(row, "personal_measurements")), "kg");
    EXPECT_DOUBLE_EQ(Val(UserField(row, "CurrentWeight")), 200);
    EXPECT_DOUBLE_EQ(Val(UserField(row, "Height")), 70);
    EXPECT_DOUBLE_EQ(Val(UserField(row, "TargetWeight")), 180);

    auto back = Open();
    EXPECT_TRUE(back->optMetric[0]->isChecked());
    EXPECT_EQ(Shown(back->lblWeight2), "Starting Weight - kg");
    back->optMetric[1]->setChecked(true);
    EXPECT_EQ(Shown(back->lblWeight2), "Starting Weight - lbs");
    EXPECT_EQ(back->txtWeight2->text(), "200");
}

TEST_F(AthleteScreen, CalorieSplitFollowsTypingButNotLoading)
{
    const QString id = AddAthlete("Dee");
    UserConn.Execute("update User_Info set CurrentWeight=200, TargetWeight=180, DietLoss=50, ExerciseLoss=50, "
                     "WeightLossPerWeek='1', DietCalsPerDay=999, BMR=2500 where User_ID=" + id);
    auto f = Open();
    // The stored figures are shown as they were, not recomputed while loading.
    EXPECT_EQ(f->lblCals->text(), "999");
    EXPECT_EQ(f->txtBMR->text(), "2500");
    EXPECT_EQ(f->lblDifference->text(), "20");
    EXPECT_TRUE(f->cboWeightLoss->isEnabled());
    // Without a target there is no difference to show, typed or loaded.
    f->txtTargetWeight->clear();
    EXPECT_EQ(f->lblDifference->text(), "");
    f->txtTargetWeight->setText("180");
    EXPECT_EQ(f->lblDifference->text(), "20");

    // The two shares of one hundred.
    f->txtDietLoss->setText("30");
    EXPECT_EQ(f->txtExerciseLoss->text(), "70");
    EXPECT_EQ(f->lblCals->text(), "150");
    EXPECT_EQ(f->lblExercise->text(), "350");
    f->txtExerciseLoss->setText("40abc");
    EXPECT_EQ(f->txtDietLoss->text(), "60");
    EXPECT_EQ(f->lblCals->text(), "300");
    EXPECT_EQ(f->lblmaintain->text(), "2500 calories to maintain your weight. To lose 1 lbs per week");

    // Metric: one kilogram a week counts 2.2 pounds.
    f->optMetric[0]->setChecked(true);
    f->cboWeightLoss->setCurrentIndex(f->cboWeightLoss->findText("1"));
    f->txtDietLoss->setText("50");
    EXPECT_EQ(f->lblCals->text(), "550");
    EXPECT_EQ(f->lblExercise->text(), "550");
    EXPECT_EQ(f->lblmaintain->text(), "2500 calories to maintain your weight. To lose 1 kg per week");

    // A target at or above the weight leaves no weekly amount to choose.
    f->txtTargetWeight->setText("200");
    EXPECT_FALSE(f->cboWeightLoss->isEnabled());
    EXPECT_EQ(f->cboWeightLoss->currentIndex(), -1);
    f->txtTargetWeight->setText("210");
    EXPECT_EQ(f->lblDifference->text(), "-10");
    EXPECT_EQ(f->lblLoss->text(), "Weight gain per week");
    EXPECT_FALSE(f->cboWeightLoss->isEnabled());
    f->txtTargetWeight->setText("190");
    EXPECT_TRUE(f->cboWeightLoss->isEnabled());
    f->cboWeightLoss->setCurrentIndex(f->cboWeightLoss->findText("1"));
    EXPECT_EQ(f->lblCals->text(), "550");

    // A diet fills the percentages and the pie.
    f->cboDiet->setCurrentIndex(3);
    EXPECT_EQ(f->txtCarbs->text(), "60");
    EXPECT_EQ(f->txtProtein->text(), "30");
    EXPECT_EQ(f->txtFat->text(), "10");
    EXPECT_EQ(f->Graph1->Values(), (QList<double>{60, 30, 10}));

    // The target calories saved are BMR less the diet's share.
    f->txtName->setText("Dee");
    f->txtAge->setText("30");
    f->txtBMR->setText("2500");
    f->on_cmdSave_clicked();
    EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "TargetCals")), 2500 - 550);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "TargetExCals")), 550);
}

TEST_F(AthleteScreen, BodyCalculatorsAndConditioningRowsByPosition)
{
    AddAthlete("Eve", "F");
    auto f = Open();
    f->txtWeight2->setText("60");
    f->optMetric[0]->setChecked(true);
    f->txtHeight->setText("165");
    f->on_cmdBMI_clicked();
    EXPECT_EQ(f->txtBMI->text(), "22.039");
    f->txtIdealWeight->setText("0.5");
    f->on_cmdBodyfat_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Please enter a lean body mass."});
    f->cboFrame->setCurrentIndex(0);          // a frame change recomputes the ideal weight
    EXPECT_EQ(f->txtIdealWeight->text(), "45");
    f->on_cmdBodyfat_clicked();
    EXPECT_EQ(f->txtBodyfat->text(), "25");

    // Row 0 is blank; the others give their position minus one, whatever they read.
    const QStringList conditions = {"Sedentary", "Poor", "Fair", "Good", "Very Good"};
    for (int row = 1; row <= 5; ++row) {
        f->cboFitness->setCurrentIndex(6);
        frmCondition c;
        c.SetTarget(f->cboFitness);
        c.lstCondition->setCurrentItem(c.lstCondition->topLevelItem(row));
        c.reject();   // closing by any way takes the row
        EXPECT_EQ(f->cboFitness->currentText(), conditions[row - 1]) << row;
    }
    frmCondition blank;
    blank.SetTarget(f->cboFitness);
    blank.lstCondition->setCurrentItem(blank.lstCondition->topLevelItem(0));
    blank.accept();
    EXPECT_EQ(f->cboFitness->currentText(), "Very Good");
    EXPECT_EQ(blank.lstCondition->topLevelItem(5)->text(2), "Superb");
}

TEST_F(AthleteScreen, HeartRateZonesByReserve)
{
    const QString id = AddAthlete("Finn");
    auto f = Open();

    // Age and resting rate are needed; the row's age comes first, then the field.
    f->on_cmdCalculate_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "In order to set up Heart Rate Zones, your age must be supplied.");
    EXPECT_EQ(Ui().LastMessage().icon, vbExclamation);
    f->txtAge->setText("40");
    EXPECT_EQ(f->txtMHR->text(), "180");      // typing the age proposes 220 - age
    f->on_cmdCalculate_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "In order to set up Heart Rate Zones, your resting heart rate must be supplied.");
    f->txtRHR->setText("60");
    f->on_cmdCalculate_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Please select your condition from the Personal tab");

    // An MHR typed by hand survives Calculate.
    f->txtMHR->setText("190");
    f->cboFitness->setCurrentIndex(2);
    f->on_cmdCalculate_clicked();
    EXPECT_EQ(f->txtMHR->text(), "190");
    EXPECT_EQ(f->txtZ1[0]->text(), "112");    // 130 x .4 + 60
    EXPECT_EQ(f->txtZ1[9]->text(), "190");
    EXPECT_EQ(f->txtTrainingHR[0]->text(), "138");
    EXPECT_EQ(f->txtTrainingHR[1]->text(), "151");
    EXPECT_EQ(f->lblTraining[0]->text(), "Lower - 60%");
    EXPECT_EQ(f->lblTraining[1]->text(), "Upper - 70%");
    EXPECT_EQ(f->lblZone[0]->text(), "(40-52%)");
    EXPECT_EQ(f->lblZone[4]->text(), "(88-100%)");

    // Cleared to 0 it is recomputed from the stored age and sex (men: 214 - 0.8 x age).
    UserConn.Execute("update User_Info set age=40 where User_ID=" + id);
    f->txtMHR->setText("0");
    f->on_cmdCalculate_clicked();
    EXPECT_EQ(f->txtMHR->text(), "182");

    // Conditions 4 to 6 share a range.
    QStringList ranges;
    for (int c = 4; c <= 6; ++c) {
        f->cboFitness->setCurrentIndex(c);
        f->on_cmdCalculate_clicked();
        ranges << f->txtTrainingHR[0]->text() + "-" + f->txtTrainingHR[1]->text() + " " + f->lblTraining[1]->text();
    }
    EXPECT_EQ(ranges, QStringList(3, "145.4-169.8 Upper - 90%"));

    // A box changed by hand rewrites its side of the caption and its tooltip.
    f->txtZ1[1]->setText("130");              // (130 - 60) / 122 = 57%
    EXPECT_EQ(f->lblZone[0]->text(), "(40-57%)");
    EXPECT_TRUE(f->txtZ1[1]->toolTip().contains("x 57%"));

    // The zones are saved with the athlete and read back into the same boxes.
    f->txtName->setText("Finn");             // the age is there already: typing it would reset MHR
    f->txtWeight2->setText("180");
    f->cboHRM->setCurrentText("Polar");
    f->on_cmdSave_clicked();
    Recordset rs(&UserConn);
    rs.Open("select * from hrm_info where User_ID ='" + id + "'");
    ASSERT_FALSE(rs.Eof());
    EXPECT_EQ(Str(rs.Field("hr_model")), "Polar");
    EXPECT_DOUBLE_EQ(Val(rs.Field("RESTING_HR")), 60);
    EXPECT_DOUBLE_EQ(Val(rs.Field("MAXIMUM_HR")), 182);
    EXPECT_DOUBLE_EQ(Val(rs.Field(5)), 109);   // first zone box
    EXPECT_DOUBLE_EQ(Val(rs.Field(6)), 130);
    rs.Close();
    auto g = Open();
    EXPECT_EQ(g->txtZ1[1]->text(), "130");
    EXPECT_EQ(g->cboHRM->currentText(), "Polar");
    EXPECT_EQ(g->lblZone[0]->text(), "(40-57%)");
}

TEST_F(AthleteScreen, MealsAddUpdateMoveAndRefusals)
{
    const QString id = AddAthlete("Gil");
    auto f = Open();

    // Add: a new number above every athlete's, placed after the last.
    f->on_cmdNewMeal_clicked();
    f->txtMeal->setText("Late Snack");
    f->txtMealTime->setText("10:00PM");
    f->chkShow->setChecked(false);
    f->on_cmdAddMeal_clicked();
    EXPECT_EQ(Meals(*f).last(), "Late Snack");
    EXPECT_EQ(f->lstMeals->topLevelItem(6)->text(2), "No");
    EXPECT_EQ(Val(UserField("select max(meal_id) from setup_meals", 0)),
              Val(UserField("select * from setup_meals where meal='Late Snack'", "Meal_ID")));
    EXPECT_DOUBLE_EQ(Val(UserField("select * from setup_meals where meal='Late Snack'", "Position")), 7);

    // Update the selected meal.
    SelectMeal(*f, "Snack2");
    EXPECT_EQ(f->txtMeal->text(), "Snack2");
    f->txtMeal->setText("Tea");
    f->on_cmdAddMeal_clicked();
    EXPECT_EQ(Meals(*f), (QStringList{"Breakfast", "Snack1", "Lunch", "Tea", "Supper", "Snack3", "Late Snack"}));

    // Move up and down swap positions with the neighbour.
    SelectMeal(*f, "Lunch");
    f->on_cmdMealUp_clicked();
    EXPECT_EQ(Meals(*f).mid(0, 3), (QStringList{"Breakfast", "Lunch", "Snack1"}));
    f->on_cmdMealDown_clicked();
    f->on_cmdMealDown_clicked();
    EXPECT_EQ(Meals(*f).mid(0, 4), (QStringList{"Breakfast", "Snack1", "Tea", "Lunch"}));

    // A meal with foods logged on any date can't go.
    const QString lunch = Str(UserField("select * from setup_meals where meal='Lunch' and User_ID=" + id, "Meal_ID"));
    UserConn.Execute("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name) values ('" + id +
                     "', #2019-03-04#, " + lunch + ", 'Apple')");
    Ui().ClearMessages();
    SelectMeal(*f, "Lunch");
    f->on_cmdDelMeal_clicked();
    EXPECT_EQ(Ui().MessageTexts(),
              QStringList{"This meal has foods saved with it.  Please delete the foods before removing this meal."});
    EXPECT_TRUE(Meals(*f).contains("Lunch"));

    // Others go, down to the last one, which stays.
    for (const QString& m : {"Breakfast", "Snack1", "Tea", "Supper", "Snack3", "Late Snack"}) {
        SelectMeal(*f, m);
        f->on_cmdDelMeal_clicked();
    }
    EXPECT_EQ(Meals(*f), QStringList{"Lunch"});
    Ui().ClearMessages();
    SelectMeal(*f, "Lunch");
    f->on_cmdDelMeal_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"You must have at least one meal per day."});
    EXPECT_EQ(CountUser("setup_meals where User_ID=" + id), 1);
}

TEST_F(AthleteScreen, NutrientGoalsSavedAndReadByPosition)
{
    const QString id = AddAthlete("Hal");
    UserConn.Execute("update User_Info set TargetCals=2000, protein=20, Fat=30, Carbs=50 where User_ID=" + id);
    auto f = Open();
    // Empty macro goals come from the target calories: protein and carbs 4, fat 9 a gram.
    EXPECT_EQ(f->SS1->item(1, 1)->text(), "100");
    EXPECT_EQ(f->SS1->item(2, 1)->text(), "66.67");
    EXPECT_EQ(f->SS1->item(3, 1)->text(), "250");
    EXPECT_EQ(f->SS1->item(0, 1)->text(), "");

    f->on_SSCommand2_clicked();   // goals to RDA
    EXPECT_EQ(f->SS1->item(0, 1)->text(), "2000");
    EXPECT_EQ(f->SS1->item(5, 1)->text(), "2300");
    f->on_SSCommand3_clicked();   // macros again from the saved row
    EXPECT_EQ(f->SS1->item(1, 1)->text(), "100");
    f->SS1->item(4, 1)->setText("31g");     // letters count by their leading number
    f->SS1->item(36, 1)->setText("");       // an empty goal is 0
    FillRequired(*f);
    f->txtCarbs->setText("50");
    f->txtProtein->setText("20");
    f->txtFat->setText("30");
    f->on_cmdSave_clicked();

    Recordset rs(&UserConn);
    rs.Open("select * from Nutrient_Goals where User_ID='" + id + "'");
    ASSERT_FALSE(rs.Eof());
    EXPECT_EQ(Str(rs.Field(0)), id);
    EXPECT_DOUBLE_EQ(Val(rs.Field(1)), 2000);
    EXPECT_DOUBLE_EQ(Val(rs.Field(2)), 100);
    EXPECT_DOUBLE_EQ(Val(rs.Field(5)), 31);
    EXPECT_DOUBLE_EQ(Val(rs.Field(6)), 2300);
    EXPECT_DOUBLE_EQ(Val(rs.Field(37)), 0);
    EXPECT_FALSE(IsNull(rs.Field(37)));
    rs.Close();
    EXPECT_EQ(CountUser("Nutrient_Goals where User_ID='" + id + "'"), 1);

    // Read back into the same rows; a goal that is set is not replaced by the macro rule.
    UserConn.Execute("update Nutrient_Goals set protein=123 where User_ID='" + id + "'");
    auto g = Open();
    EXPECT_EQ(g->SS1->item(4, 1)->text(), "31");
    EXPECT_EQ(g->SS1->item(1, 1)->text(), "123");
}

TEST_F(AthleteScreen, IntensityRatesSavedAndRestored)
{
    const QString id = AddAthlete("Ivy");
    auto f = Open();
    f->txtInt[0]->setText("1.5");
    f->txtInt[9]->setText("6x");
    FillRequired(*f);
    f->on_cmdSave_clicked();
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from Intensity where User_ID=" + id + " and Intensity=1", "Value")), 1.5);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from Intensity where User_ID=" + id + " and Intensity=10", "Value")), 6);

    auto g = Open();
    EXPECT_EQ(g->txtInt[0]->text(), "1.5");
    g->on_SSCommand1_clicked();
    EXPECT_EQ(g->txtInt[0]->text(), "1.2");
    EXPECT_DOUBLE_EQ(Val(UserField("select * from Intensity where User_ID=" + id + " and Intensity=1", "Value")), 1.2);
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
}

TEST_F(AthleteScreen, PulseTimerCountsDownAndResets)
{
    AddAthlete("Jo");
    auto f = Open();
    f->cboSetTimer->setCurrentIndex(1);
    EXPECT_EQ(f->lblCountDown->text(), "30");
    f->cboSetTimer->setCurrentIndex(2);
    EXPECT_EQ(f->lblCountDown->text(), "60");
    f->cboSetTimer->setCurrentIndex(0);
    f->on_cmdGo_clicked();
    EXPECT_TRUE(f->tmrHR->isActive());
    for (int i = 0; i < 14; ++i) f->on_tmrHR_timeout();
    EXPECT_EQ(f->lblCountDown->text(), "1");
    f->on_tmrHR_timeout();
    EXPECT_FALSE(f->tmrHR->isActive());
    EXPECT_EQ(f->lblCountDown->text(), "15");
    f->on_cmdGo_clicked();
    f->on_cmdGo_clicked();   // Stop
    EXPECT_FALSE(f->tmrHR->isActive());
}

TEST_F(AthleteScreen, ClosingWithoutSaveWritesNothingAndLooksRight)
{
    const QString id = AddAthlete("Kim");
    auto f = Open();
    FillRequired(*f, "150", "28");
    f->reject();
    EXPECT_TRUE(IsNull(UserField("select * from User_Info where User_ID=" + id, "CurrentWeight")));
    EXPECT_EQ(CountUser("WeighIn"), 0);

    // No two captions of one tab share an accelerator (Save and Close stand on every tab): a
    // shared one would only move the focus between them.
    const auto mnemonic = [](const QString& text) {
        const int at = text.indexOf('&');
        return at >= 0 && at + 1 < text.size() ? text.at(at + 1).toLower() : QChar();
    };
    for (int i = 0; i < f->tabs->count(); ++i) {
        QStringList owners = {"Save", "Close"};
        QString keys = QString(mnemonic(f->cmdSave->text())) + mnemonic(f->cmdCancel->text());
        QStringList texts;
        for (const QLabel* l : f->tabs->widget(i)->findChildren<QLabel*>()) texts << l->text();
        for (const QAbstractButton* b : f->tabs->widget(i)->findChildren<QAbstractButton*>()) texts << b->text();
        for (const QString& t : texts) {
            const QChar k = mnemonic(t);
            if (k.isNull()) continue;
            EXPECT_EQ(keys.indexOf(k), -1) << f->tabs->tabText(i).toStdString() << ": " << t.toStdString()
                                           << " shares its key with " << owners.value(keys.indexOf(k)).toStdString();
            keys += k;
            owners << t;
        }
    }

    // A picture of each tab, to look at.
    f->resize(860, 660);
    for (int i = 0; i < f->tabs->count(); ++i) {
        f->tabs->setCurrentIndex(i);
        const QString file = QDir::temp().filePath(QStringLiteral("frmUserInfo_tab%1.png").arg(i));
        EXPECT_TRUE(f->grab().save(file));
    }
}

TEST_F(AthleteScreen, FailedSaveLeavesTheAthleteAsItWas)
{
    const QString id = AddAthlete("Lou");
    UserConn.Execute("update User_Info set CurrentWeight=170, age=50 where User_ID=" + id);
    auto f = Open();
    f->txtWeight2->setText("160");
    f->txtAge->setText("51");
    // A table the save needs is gone: the error is shown and nothing of the save stays.
    UserConn.Execute("drop table Nutrient_Goals");
    f->on_cmdSave_clicked();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_NE(f->result(), QDialog::Accepted);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "CurrentWeight")), 170);
    EXPECT_DOUBLE_EQ(Val(UserField("select * from User_Info where User_ID=" + id, "age")), 50);
    EXPECT_EQ(CountUser("hrm_info"), 0);
    EXPECT_EQ(CurrentUserName, "Lou");
}

TEST_F(AthleteScreen, ScreensRegisteredAndNoteShownOverANewAthlete)
{
    RegisterAthleteScreens();
    for (const char* name : {"frmUserInfo", "frmCondition", "frmSetupTeams", "frmManageTeams"})
        EXPECT_TRUE(ui::HasScreen(name)) << name;
    // The note is another subsystem's screen; a stand-in answers for it here.
    ui::RegisterScreen("frmNewUser", [](QWidget* p) { return new QDialog(p); });
    Ui().OnDialog("frmNewUser", [](QDialog*) { return int(QDialog::Accepted); });

    AddAthlete("Max");
    NewAthlete = true;
    auto f = Open();
    f->show();
    QApplication::processEvents();
    EXPECT_EQ(Ui().DialogsShown(), QStringList{"frmNewUser"});
    f->hide();
    f->show();
    QApplication::processEvents();
    EXPECT_EQ(Ui().DialogsShown().size(), 1);   // once per opening

    NewAthlete = false;
    auto g = Open();
    g->show();
    QApplication::processEvents();
    EXPECT_EQ(Ui().DialogsShown().size(), 1);
}

TEST_F(AthleteScreen, ChoicesRoundTripAndSexSwitchRecomputes)
{
    const QString id = AddAthlete("Nat");
    auto f = Open();
    FillRequired(*f, "180", "30");
    f->cboFitness->setCurrentIndex(3);
    f->on_cmdCalc_clicked();
    EXPECT_EQ(f->txtBMR->text(), "2126");
    f->optsex[1]->setChecked(true);            // women: 11 and 0.03
    EXPECT_EQ(f->txtBMR->text(), "1958");
    f->optsex[0]->setChecked(true);
    EXPECT_EQ(f->txtBMR->text(), "2126");

    f->Combo1->setCurrentIndex(f->Combo1->findText("Sports Training-Pro"));
    f->cboStrength->setCurrentIndex(2);
    f->chkPrefill->setChecked(true);
    f->optWorkoutIn[0]->setChecked(true);
    f->cboFrame->setCurrentIndex(1);
    f->cboDiet->setCurrentIndex(6);
    f->cboWeightLoss->setCurrentIndex(-1);
    f->on_cmdSave_clicked();
    const QString row = "select * from User_Info where User_ID=" + id;
    EXPECT_EQ(Str(UserField(row, "Purpose")), "Sports Training-Pro");
    EXPECT_EQ(Str(UserField(row, "Fitness_Goals")), "Sports Training-Pro");
    EXPECT_EQ(Str(UserField(row, "Workout_In")), "kg");
    EXPECT_EQ(Str(UserField(row, "DietName")), "The Zone (TM)");
    EXPECT_NE(Val(UserField(row, "Prefill")), 0);
    EXPECT_DOUBLE_EQ(Val(UserField(row, "FrameSize")), 1);
    EXPECT_TRUE(IsNull(UserField(row, "TargetWeight")));   // a field left empty stays empty

    auto g = Open();
    EXPECT_EQ(g->Combo1->currentText(), "Sports Training-Pro");
    EXPECT_EQ(g->cboStrength->currentText(), "Advanced");
    EXPECT_TRUE(g->chkPrefill->isChecked());
    EXPECT_TRUE(g->optWorkoutIn[0]->isChecked());
    EXPECT_EQ(g->cboFrame->currentText(), "Medium");
    EXPECT_EQ(g->cboDiet->currentText(), "The Zone (TM)");
    EXPECT_EQ(g->cboFitness->currentText(), "Good");
    EXPECT_EQ(g->txtTargetWeight->text(), "");
    EXPECT_EQ(g->txtBMR->text(), "2126");
    // Loading sets the frame and the weight without recomputing the ideal weight.
    EXPECT_EQ(g->txtIdealWeight->text(), "");

    // A level kept as a position by an older save is read by position.
    UserConn.Execute("update User_Info set StrengthLevel='1', Prefill=false where User_ID=" + id);
    auto h = Open();
    EXPECT_EQ(h->cboStrength->currentText(), "Intermediate");
    EXPECT_FALSE(h->chkPrefill->isChecked());
}
