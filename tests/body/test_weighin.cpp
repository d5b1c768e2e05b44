// The weigh-in figures and the Weigh In view against real stores.
#include "fixtures/fixture.h"

#include "body/frmWeighIn.h"
#include "body/weighincalc.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Chart.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace weighin;

TEST(WeighInCalc, BmiInEitherUnitAndNothingWithoutWeightOrHeight)
{
    EXPECT_DOUBLE_EQ(*CalcBMI(154, 70, true), 22.094);            // pounds and inches
    EXPECT_DOUBLE_EQ(*CalcBMI(80, 180, false), 24.691);           // kilograms and centimetres
    EXPECT_FALSE(CalcBMI(0, 70, true).has_value());
    EXPECT_FALSE(CalcBMI(154, 0, true).has_value());
}

TEST(WeighInCalc, BmrBySexConditionAndUnit)
{
    // A 40-year-old man of 80 kg in good condition: 176 lb, base 1839.52, x 1.1.
    EXPECT_EQ(FormatBMR(*CalcBMR(80, true, "M", 40, "Good")), "2023");
    EXPECT_NEAR(*CalcBMR(80, true, "M", 40, "Poor"), 1839.52, 1e-9);
    // A woman of the same weight: 11 and 0.02 (not the athlete screen's 0.03).
    EXPECT_NEAR(*CalcBMR(80, true, "F", 40, "Poor"), 1709.28, 1e-9);
    // Pounds are taken as they are; an unknown or empty condition counts 1.
    EXPECT_NEAR(*CalcBMR(176, false, "M", 40, ""), 1839.52, 1e-9);
    EXPECT_NEAR(*CalcBMR(176, false, "M", 40, "Olympic"), 1839.52, 1e-9);
    EXPECT_NEAR(*CalcBMR(176, false, "M", 40, "Sedentary"), 1839.52 * 0.9, 1e-9);
    EXPECT_NEAR(*CalcBMR(176, false, "M", 40, "Superior"), 1839.52 * 1.25, 1e-9);
    EXPECT_FALSE(CalcBMR(0, true, "M", 40, "Good").has_value());
    EXPECT_EQ(FormatBMR(0), "");
}

TEST(WeighInCalc, BodyFatFromIdealWeightAndLabels)
{
    EXPECT_DOUBLE_EQ(*CalcBodyFat(200, 160), 20);
    EXPECT_DOUBLE_EQ(*CalcBodyFat(150, 160), -6.67);   // under the ideal: negative, still written
    EXPECT_FALSE(CalcBodyFat(0, 160).has_value());
    EXPECT_FALSE(CalcBodyFat(150, 0).has_value());
    EXPECT_FALSE(CalcBodyFat(-5, 160).has_value());
    EXPECT_DOUBLE_EQ(TargetCalories(2023, 500), 1523);
    EXPECT_EQ(LabelsFor("lbs").frame, "Measurements - inches");
    EXPECT_EQ(LabelsFor("kg").frame, "Measurements - centimeters");
    EXPECT_EQ(LabelsFor("kg").length, "cm");
    EXPECT_EQ(LabelsFor("").skinfold, "mm");
}

namespace {

class WeighInScreen : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Dana");
        UserConn.Execute("update User_Info set Height=70, IdealWeight=160, age=40, TargetWeight=170, "
                         "TargetBodyFat=15, personal_measurements='lbs', Current_Condition=3, DietCalsPerDay=500, "
                         "TargetCals=1234 where User_ID=" + id);
    }
    void AddWeighIn(const QString& date, double weight, double bmr)
    {
        UserConn.Execute(QString("insert into WeighIn (User_ID, [Date], weight, BMR, Height, Neck) values ('%1', #%2#, %3, %4, 0, 15)")
                             .arg(id, date)
                             .arg(weight)
                             .arg(bmr));
    }
    double TargetCals()
    {
        Recordset rs(&UserConn);
        rs.Open("select TargetCals from User_Info where User_ID=" + id);
        const double v = Val(rs.Field(0));
        rs.Close();
        return v;
    }
    QString id;
};

}  // namespace

TEST_F(WeighInScreen, CalculatorsUseTheProfileAndMarkTheFormChanged)
{
    AddWeighIn("2026-11-01", 154, 1800);
    SetCalendarDateProvider([] { return QDate(2026, 11, 1); });
    frmWeighIn f;
    EXPECT_EQ(f.lblWeight->text(), "lbs");
    EXPECT_EQ(f.txtData[0]->text(), "15");
    EXPECT_EQ(f.txtBMR->text(), "1800");
    EXPECT_FALSE(f.cmdSave->isEnabled());
    // BMI takes the profile's 70 inches, not the height typed for the day.
    f.txtHeight->setText("50");
    f.txtData[14]->setText("154");
    f.calcbmi->click();
    EXPECT_EQ(f.txtBMI->text(), "22.094");
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cboCondition->setCurrentText("Good");
    f.txtData[14]->setText("176");
    f.Command2->click();
    EXPECT_EQ(f.txtBMR->text(), "2023");
    f.txtData[14]->setText("150");
    f.command3->click();
    EXPECT_EQ(f.txtData[15]->text(), "-6.67");
    // Nothing from a weight that is no number.
    f.txtData[14]->setText("heavy");
    f.txtBMI->clear();
    f.calcbmi->click();
    EXPECT_EQ(f.txtBMI->text(), "");
    SetCalendarDateProvider(nullptr);
}

TEST_F(WeighInScreen, SaveLoadLastAndNewDates)
{
    SetCalendarDateProvider([] { return QDate(2026, 11, 20); });
    frmWeighIn f;
    // A new date starts with the profile's condition (index 3, "Good") and weight goal.
    EXPECT_EQ(f.cboCondition->currentText(), "Good");
    EXPECT_EQ(f.txtGoal[14]->text(), "170");
    EXPECT_FALSE(f.cmdDelete->isEnabled());
    f.txtData[14]->setText("181.5");
    f.txtData[3]->setText("34");
    f.txtData[16]->setText("12");
    f.txtData[5]->setText("abc");           // no number: stored as 0, shown clear again
    f.txtGoal[4]->setText("32");
    f.txtBFMeasure->setText("Caliper's");
    f.cmdSave->setEnabled(true);
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().text, "Weigh In Saved.");
    EXPECT_EQ(f.lstWeighIns->count(), 1);
    EXPECT_EQ(f.lstWeighIns->currentRow(), 0);
    EXPECT_EQ(CountUser("WeighIn where weight=181.5 and Stomach=34 and sf1=12 and Hips=0 and "
                        "BodyFatMeasure='Caliper''s' and Condition='Good'"),
              1);
    EXPECT_EQ(CountUser("WeighIn_goals where Waist=32 and weight=170 and BodyFat=15"), 1);

    // Saving the same date again changes that row.
    f.txtData[14]->setText("180");
    f.cmdSave->click();
    EXPECT_EQ(CountUser("WeighIn where User_ID='" + id + "'"), 1);

    // Another day: empty, then "Get Last Weigh In" brings the previous figures to it.
    f.cboDate->setDate(QDate(2026, 11, 22));
    EXPECT_EQ(f.txtData[14]->text(), "");
    EXPECT_EQ(f.txtData[5]->text(), "");
    f.cmdLastWeighIn->click();
    EXPECT_EQ(f.txtData[14]->text(), "180");
    EXPECT_EQ(f.cboDate->date(), QDate(2026, 11, 22));
    EXPECT_TRUE(f.cmdSave->isEnabled());
    f.cmdSave->click();
    EXPECT_EQ(f.lstWeighIns->count(), 2);
    EXPECT_EQ(CountUser("WeighIn where weight=180"), 2);
    SetCalendarDateProvider(nullptr);
}

TEST_F(WeighInScreen, DeleteRefusesTheLastOneAndAsksOtherwise)
{
    AddWeighIn("2026-11-01", 180, 2000);
    SetCalendarDateProvider([] { return QDate(2026, 11, 1); });
    {
        frmWeighIn f;
        f.cmdDelete->setEnabled(true);
        f.cmdDelete->click();
        EXPECT_EQ(Ui().LastMessage().text, "The Orvantis must have at least one weight in saved.");
        EXPECT_EQ(CountUser("WeighIn"), 1);
    }
    AddWeighIn("2026-11-05", 178, 1990);
    {
        frmWeighIn f;
        ASSERT_EQ(f.lstWeighIns->count(), 2);
        // No: nothing goes.
        Ui().Answer(vbNo);
        f.cmdDelete->click();
        EXPECT_EQ(Ui().LastMessage().text, "Delete this Weigh In?");
        EXPECT_EQ(CountUser("WeighIn"), 2);
        // Yes: the selected line's date goes, the list follows.
        f.lstWeighIns->setCurrentRow(0);   // newest first: 11/5
        Ui().Answer(vbYes);
        f.cmdDelete->click();
        EXPECT_EQ(CountUser("WeighIn where [Date]=#2026-11-05#"), 0);
        EXPECT_EQ(CountUser("WeighIn"), 1);
        EXPECT_EQ(f.lstWeighIns->count(), 1);
    }
    SetCalendarDateProvider(nullptr);
}

TEST_F(WeighInScreen, ClosingSetsTheTargetFromTheNewestBmr)
{
    {
        frmWeighIn f;
        f.reject();
    }
    EXPECT_DOUBLE_EQ(TargetCals(), 1234);   // no weigh-in: untouched
    AddWeighIn("2026-10-01", 190, 2100);
    AddWeighIn("2026-11-01", 185, 2023);
    {
        frmWeighIn f;
        f.reject();
    }
    EXPECT_DOUBLE_EQ(TargetCals(), 1523);
    {
        Recordset rs(&UserConn);
        rs.Open("select * from User_Info where User_ID=" + id);
        rs.SetField("DietCalsPerDay", QVariant());
        rs.Update();
        rs.Close();
    }
    {
        frmWeighIn f;
        f.cmdClose->click();
    }
    EXPECT_DOUBLE_EQ(TargetCals(), 2023);
}

TEST_F(WeighInScreen, HistoryGraphOverARange)
{
    AddWeighIn("2026-09-01", 190, 2100);
    AddWeighIn("2026-10-01", 185, 2050);
    AddWeighIn("2026-11-01", 181, 2023);
    frmWeighIn f;
    ASSERT_GE(f.cboGraph->count(), 17);
    EXPECT_EQ(f.cboGraph->itemText(0), "Weight");
    EXPECT_EQ(f.cboGraph->itemText(3).toLower(), "neck");
    f.txtStartDate->setDate(QDate(2026, 9, 15));
    f.txtEndDate->setDate(QDate(2026, 11, 30));
    f.cboGraph->setCurrentIndex(0);
    f.cmdGraph->click();
    ASSERT_EQ(f.Chart1->PointCount(), 2);
    EXPECT_EQ(f.Chart1->Label(0), "10/1/2026");
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 185);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 1), 181);
    EXPECT_TRUE(f.Chart1->Title().startsWith("Weight - "));
    f.cboGraph->setCurrentIndex(3);   // a girth by its column name
    ASSERT_EQ(f.Chart1->PointCount(), 2);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 15);
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
}

TEST_F(WeighInScreen, PhotoIsKeptTrimmedAndAMissingFileShowsNoPicture)
{
    SetCalendarDateProvider([] { return QDate(2026, 11, 1); });
    frmWeighIn f;
    Ui().AnswerFile(FilePath("nothere.jpg") + "  ");
    f.Command1->click();
    EXPECT_EQ(f.txtPhoto->text(), FilePath("nothere.jpg"));
    ASSERT_EQ(Ui().FileDialogsShown().size(), 1);
    EXPECT_EQ(Ui().FileDialogsShown()[0].defaultExt, "gif");
    EXPECT_EQ(Ui().FileDialogsShown()[0].filter, "GIF|*.gif|Bitmap|*.bmp|JPEG|*.jpg");
    f.txtData[14]->setText("170");
    f.cmdSave->click();
    EXPECT_EQ(CountUser("WeighIn where Photo='" + FilePath("nothere.jpg") + "'"), 1);
    f.SSCommand1->click();
    EXPECT_EQ(f.txtPhoto->text(), "");
    SetCalendarDateProvider(nullptr);
}

TEST_F(WeighInScreen, MetricLabelsGoalsAndTheListSetTheDate)
{
    UserConn.Execute("update User_Info set personal_measurements='kg', Height=180 where User_ID=" + id);
    UserConn.Execute("insert into WeighIn_goals (User_ID, Neck, Waist, weight, BodyFat) values ('" + id + "', 38, 80, 1, 2)");
    AddWeighIn("2026-10-01", 80, 2023);
    AddWeighIn("2026-11-01", 79, 2000);
    SetCalendarDateProvider([] { return QDate(2026, 11, 1); });
    frmWeighIn f;
    EXPECT_EQ(f.lblWeight->text(), "kg");
    EXPECT_EQ(f.fraMeasurements->title(), "Measurements - centimeters");
    EXPECT_EQ(f.txtGoal[0]->text(), "38");
    EXPECT_EQ(f.txtGoal[4]->text(), "80");
    EXPECT_EQ(f.txtGoal[14]->text(), "170");   // the profile's targets replace the stored two
    EXPECT_EQ(f.txtGoal[15]->text(), "15");
    // The row's Height is 0: the profile's shows.
    EXPECT_EQ(f.txtHeight->text(), "180");
    // kg: the weight counts 2.2 pounds a kilogram; BMI in kg and cm.
    f.cboCondition->setCurrentText("Good");
    f.Command2->click();
    EXPECT_EQ(f.txtBMR->text(), QString::number(qRound((12 * 79 * 2.2 * 0.96 - 4.7 * 40) * 1.1)));
    f.calcbmi->click();
    EXPECT_EQ(f.txtBMI->text(), "24.383");
    // A line of the list sets the date and loads it.
    ASSERT_EQ(f.lstWeighIns->count(), 2);
    f.on_lstWeighIns_itemClicked(f.lstWeighIns->item(1));
    EXPECT_EQ(f.cboDate->date(), QDate(2026, 10, 1));
    EXPECT_EQ(f.txtData[14]->text(), "80");
    EXPECT_FALSE(f.cmdSave->isEnabled());
    SetCalendarDateProvider(nullptr);
}

// The history's item list reads in words; each item keeps its column for the statement.
TEST_F(WeighInScreen, HistoryItemsInWordsGraphTheirColumns)
{
    EXPECT_EQ(ColumnCaption("Bicep_Left"), "Bicep Left");
    EXPECT_EQ(ColumnCaption("Neck"), "Neck");
    UserConn.Execute(QString("insert into WeighIn (User_ID, [Date], weight, Bicep_Left) values ('%1', #2026-10-01#, 180, 14.5)").arg(id));
    frmWeighIn f;
    const int bicep = f.cboGraph->findText("Bicep Left");
    ASSERT_GE(bicep, 0);
    EXPECT_EQ(f.cboGraph->itemData(bicep).toString(), "Bicep_Left");
    for (int i = 0; i < f.cboGraph->count(); ++i)
        EXPECT_FALSE(f.cboGraph->itemText(i).contains('_')) << f.cboGraph->itemText(i).toStdString();
    f.txtStartDate->setDate(QDate(2026, 9, 1));
    f.txtEndDate->setDate(QDate(2026, 11, 30));
    f.cboGraph->setCurrentIndex(bicep);
    ASSERT_EQ(f.Chart1->PointCount(), 1);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 14.5);
    EXPECT_TRUE(f.Chart1->Title().startsWith("Bicep Left - "));
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
}

// A failing load leaves the view listening; a save that can't write the weigh-in keeps the
// goals as they were too.
TEST_F(WeighInScreen, FailuresLeaveTheViewWorkingAndNothingHalfSaved)
{
    AddWeighIn("2026-10-01", 185, 2050);
    SetCalendarDateProvider([] { return QDate(2026, 11, 1); });
    frmWeighIn f;
    RawSql(UserConn, "alter table WeighIn rename to WeighIn_gone");
    f.cboDate->setDate(QDate(2026, 11, 2));
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(UserConn, "alter table WeighIn_gone rename to WeighIn");
    Ui().ClearMessages();
    f.cboDate->setDate(QDate(2026, 10, 1));
    EXPECT_EQ(f.txtData[14]->text(), "185");
    EXPECT_TRUE(f.cmdDelete->isEnabled());
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());

    RawSql(UserConn, "alter table WeighIn rename column Photo to Photo_gone");
    f.cboDate->setDate(QDate(2026, 11, 1));
    f.txtData[14]->setText("181");
    f.txtGoal[0]->setText("14");
    f.cmdSave->click();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(UserConn, "alter table WeighIn rename column Photo_gone to Photo");
    EXPECT_EQ(CountUser("WeighIn_goals"), 0);
    EXPECT_EQ(CountUser("WeighIn"), 1);
    SetCalendarDateProvider(nullptr);
}

// The view fits a 1280x720 screen and can be made smaller.
TEST_F(WeighInScreen, FitsTheScreen)
{
    frmWeighIn f;
    EXPECT_LE(f.width(), 1280);
    EXPECT_LE(f.height(), 680);
    EXPECT_LE(f.minimumSizeHint().width(), 1000);
    EXPECT_LE(f.minimumSizeHint().height(), 600);
}
