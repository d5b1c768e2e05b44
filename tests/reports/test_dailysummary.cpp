// The Daily Summary screen offscreen: opening on a day, the date rules and their messages, the
// fields chooser, the balance strip after the tabs, and the export of a tab.
#include "fixtures/fixture.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/widgets/Grid.h"
#include "reports/totals/frmDailySummary.h"
#include "reports/totals/frmFields.h"

namespace {

const QDate kDay(2026, 3, 10);

class DailySummary : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Robin, Lee");
        UserConn.Execute("update User_Info set personal_measurements = 'lbs' where User_ID = " + id);
        SetCalendarDateProvider([] { return kDay; });
    }
    void TearDown() override
    {
        SetCalendarDateProvider(nullptr);
        StoreTest::TearDown();
    }
    void Exec(const QString& sql) { UserConn.Execute(sql); }
    void WeighIn(const QString& date, double bmr)
    {
        Exec(QString("insert into WeighIn (User_ID, [Date], weight, BMR) values ('%1', #%2#, 150, %3)").arg(id, date).arg(bmr));
    }
    // The shown column of the day table headed `name`.
    static int Column(frmDailySummary& s, const QString& name)
    {
        for (int c = 1; c <= s.SS1->MaxCols(); ++c)
            if (s.SS1->Text(0, c) == name) return c;
        return 0;
    }
    static int Days(frmDailySummary& s) { return s.SS1->MaxRows() - 3; }
    QString id;
};

TEST_F(DailySummary, OpensOnTheCalendarDayWithItsTotals)
{
    WeighIn("2026-03-01", 1750);
    frmDailySummary s;
    EXPECT_TRUE(Ui().Messages().isEmpty()) << Ui().MessageTexts().join("|").toStdString();
    EXPECT_EQ(s.windowTitle(), "Daily Summary");
    EXPECT_EQ(s.txtStartDate->date(), kDay);
    EXPECT_EQ(s.txtEndDate->date(), kDay);
    EXPECT_EQ(s.txtWelEndDate->date(), kDay);
    EXPECT_EQ(s.lblDateRange->text(), "Tuesday, March 10, 2026");
    ASSERT_EQ(Days(s), 1);
    EXPECT_EQ(s.SS1->Text(1, 0), "Total");
    EXPECT_EQ(s.SS1->Text(2, 0), "Average");
    const int bmr = Column(s, "BMR");
    ASSERT_GT(bmr, 0);
    EXPECT_EQ(s.SS1->Text(4, 1), "2026-03-10");
    EXPECT_EQ(s.SS1->Text(4, bmr), "1750");
    EXPECT_EQ(s.SS1->Text(1, bmr), "1,750.");
    EXPECT_EQ(s.SS1->Text(2, bmr), "1,750.");
    EXPECT_EQ(s.Groups().value(bmr - 1), "Nutrition");
    // The strip: BMR carried in, nothing burned or eaten; the athlete measures in pounds.
    EXPECT_EQ(s.SS2->Text(0, 6), "= Net Loss of (lbs)");
    EXPECT_EQ(s.SS2->Text(1, 2), "1,750.0");
    EXPECT_EQ(s.SS2->Text(1, 5), "1,750.0");
    EXPECT_EQ(s.SS2->Text(2, 1), "0.0");
    EXPECT_EQ(s.SS2->Text(1, 7), "0.0 hours");
    EXPECT_EQ(CountUser("tmpDate"), 1);
    // The exercise "Accomp Goals" is never a column.
    int accomp = 0;
    for (int c = 1; c <= s.SS1->MaxCols(); ++c) accomp += s.SS1->Text(0, c) == "Accomp Goals";
    EXPECT_EQ(accomp, 2);
}

TEST_F(DailySummary, DateRulesAskOnlyOnTheStartDateAndRefuseBackwardRanges)
{
    WeighIn("2026-03-01", 1750);
    frmDailySummary s;
    Ui().ClearMessages();

    // 31 days' difference asks nothing.
    s.txtStartDate->setDate(kDay.addDays(-31));
    EXPECT_TRUE(Ui().Messages().isEmpty());
    EXPECT_EQ(Days(s), 32);
    EXPECT_EQ(s.txtNutStartDate->date(), kDay.addDays(-31));
    EXPECT_EQ(s.lblDateRange->text(), "Feb 07, 2026  to  Mar 10, 2026");

    // 32 days apart asks; No leaves everything as it was but the field.
    Ui().Answer(vbNo);
    s.txtStartDate->setDate(kDay.addDays(-32));
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().text, "Warning, this date range may take a while to calculate, do you wish to continue?");
    EXPECT_EQ(Ui().LastMessage().title, "Action");
    EXPECT_EQ(Ui().LastMessage().buttons, vbYesNo);
    EXPECT_EQ(Days(s), 32);
    EXPECT_EQ(CountUser("tmpDate"), 32);
    EXPECT_EQ(s.txtNutStartDate->date(), kDay.addDays(-31));
    // Yes computes it.
    Ui().ClearMessages();
    Ui().Answer(vbYes);
    s.txtStartDate->setDate(kDay.addDays(-40));
    EXPECT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Days(s), 41);

    // A long range reached by the end date asks nothing.
    Ui().ClearMessages();
    s.txtEndDate->setDate(kDay.addDays(30));
    EXPECT_TRUE(Ui().Messages().isEmpty());
    EXPECT_EQ(Days(s), 71);
    EXPECT_EQ(s.txtStrEndDate->date(), kDay.addDays(30));

    // Backwards, from either end: a message each, the grids and tmpDate untouched.
    const QString label = s.lblDateRange->text();
    const QString firstDay = s.SS1->Text(4, 1);
    s.txtStartDate->setDate(kDay.addDays(31));
    EXPECT_EQ(Ui().LastMessage().text, "Please select a start date before the end date");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
    s.txtEndDate->setDate(kDay.addDays(20));
    EXPECT_EQ(Ui().LastMessage().text, "Please select an end date after the start date");
    EXPECT_EQ(Ui().Messages().size(), 2);
    EXPECT_EQ(s.lblDateRange->text(), label);
    EXPECT_EQ(s.SS1->Text(4, 1), firstDay);
    EXPECT_EQ(Days(s), 71);
    EXPECT_EQ(CountUser("tmpDate"), 71);
    EXPECT_EQ(s.txtStartDate->date(), kDay.addDays(31));   // the field keeps the refused value

    // The same day at both ends is accepted.
    s.txtEndDate->setDate(kDay.addDays(31));
    EXPECT_EQ(Days(s), 1);
}

TEST_F(DailySummary, DateFieldsCannotHoldADayThatDoesNotExist)
{
    frmDailySummary s;
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"No BMR found"});   // no weigh-in anywhere
    Ui().ClearMessages();
    s.txtStartDate->setDate(QDate(2026, 2, 30));   // no such day: the field keeps its date
    EXPECT_EQ(s.txtStartDate->date(), kDay);
    EXPECT_TRUE(Ui().Messages().isEmpty()) << Ui().MessageTexts().join("|").toStdString();
}

TEST_F(DailySummary, FieldsChooserOffersNoExerciseGoalsAndSaves)
{
    WeighIn("2026-03-01", 1750);
    frmDailySummary s;
    ASSERT_GT(Column(s, "Water"), 0);
    int opened = 0;
    Ui().OnDialog("frmFields", [&](QDialog* d) {
        auto* f = static_cast<frmFields*>(d);
        ++opened;
        EXPECT_EQ(f->Pages->currentIndex(), 0);
        EXPECT_EQ(f->lstWellness->count(), 3);
        EXPECT_EQ(f->lstNutrition->count(), 4);
        EXPECT_EQ(f->lstWorkout->count(), 4);
        EXPECT_EQ(f->lstExercise->count(), 3);
        for (int i = 0; i < f->lstExercise->count(); ++i) EXPECT_NE(f->lstExercise->item(i)->text(), "Accomp Goals");
        EXPECT_EQ(f->lstNutrients->count(), 33);
        f->lstNutrition->item(3)->setCheckState(Qt::Unchecked);   // Water
        f->cmdSelect[10]->click();                               // invert the strength list: all off
        f->cmdSelect[1]->click();                                // clear every nutrient
        f->cmdSelect[11]->click();                               // and invert: all on again
        f->lstNutrients->item(0)->setCheckState(Qt::Unchecked);  // Fiber
        f->cmdSave->click();
        return f->result();
    });
    s.cmdFields[0]->click();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(Column(s, "Water"), 0);
    EXPECT_EQ(s.SS1->MaxCols(), 10);   // date, 3 wellness, 3 nutrition, 3 exercise
    EXPECT_EQ(Days(s), 1);
    EXPECT_EQ(s.SS1->Text(4, Column(s, "BMR")), "1750");
    EXPECT_EQ(CountUser("Summary_Display where display = true"), 10);
    EXPECT_EQ(CountUser("Nutrient_Display where display = false"), 1);
    EXPECT_EQ(CountUser("Nutrient_Display where display = false and fNumber = 1"), 1);

    // The exercise "Accomp Goals" saved as shown is forced off at the next opening.
    Exec("update Summary_Display set display = true where fNumber = 11");
    frmDailySummary again;
    EXPECT_EQ(CountUser("Summary_Display where display = true and fNumber = 11"), 0);
    Ui().OnDialog("frmFields", [&](QDialog* d) {
        auto* f = static_cast<frmFields*>(d);
        EXPECT_EQ(f->Pages->currentIndex(), 1);   // from the Nutrition tab: the nutrients
        return int(QDialog::Rejected);
    });
    again.cmdFields[1]->click();
    EXPECT_EQ(again.SS1->MaxCols(), 10);
}

TEST_F(DailySummary, StripFollowsTheTabsAndAddsUpOnFilters)
{
    WeighIn("2026-03-01", 1750);
    Exec(QString("insert into daily_exercise (User_ID, [Date], Name, Key, duration, Cals, Intensity) "
                 "values ('%1', #2026-03-10#, 'Run', '1', '01:00:00', 300, 5)").arg(id));
    Exec(QString("insert into setup_meals (User_ID, Meal_ID, meal) values (%1, 1, 'Breakfast')").arg(id));
    Exec(QString("insert into setup_meals (User_ID, Meal_ID, meal) values (%1, 2, 'Dinner')").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories) values ('%1', #2026-03-10#, 1, 'Oats', 1000)").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories) values ('%1', #2026-03-10#, 2, 'Feast', 4000)").arg(id));
    {
        // Exercise without a strength workout: the average burned stays "0.0". More eaten than
        // burned: a negative net under the loss heading, never converted to kilograms.
        Exec("update User_Info set personal_measurements = 'kg' where User_ID = " + id);
        frmDailySummary s;
        EXPECT_EQ(s.SS2->Text(1, 1), "300.0");
        EXPECT_EQ(s.SS2->Text(2, 1), "0.0");
        EXPECT_EQ(s.SS2->Text(1, 4), "5,000.0");
        EXPECT_EQ(s.SS2->Text(1, 5), "-2,950.0");
        EXPECT_EQ(s.SS2->Text(0, 5), "= Net Loss of (Calories)");
        EXPECT_EQ(s.SS2->Text(0, 6), "= Net Loss of (kg)");
        EXPECT_EQ(s.SS2->Text(1, 6), "-0.8");
        EXPECT_EQ(s.SS2->Text(1, 7), "1 hour");
        // A meal chosen on the Nutrition tab counts that meal alone in the intake.
        s.cboNutrition->setCurrentIndex(s.cboNutrition->findText("Breakfast"));
        EXPECT_EQ(s.SS2->Text(1, 4), "1,000.0");
        EXPECT_EQ(s.SS2->Text(1, 5), "-2,950.0");   // the rest waits for the strength tab
        Exec("update User_Info set personal_measurements = 'lbs' where User_ID = " + id);
    }
    Exec(QString("insert into calendar (User_ID, [Date], Key, Name, WorkoutType, Cals, duration, Intensity) "
                 "values ('%1', #2026-03-10#, 5, 'Legs', 'Strength', 200, '00:30:00', 6)").arg(id));
    frmDailySummary s;
    EXPECT_EQ(s.SS2->Text(1, 1), "500.0");
    EXPECT_EQ(s.SS2->Text(2, 1), "500.0");
    EXPECT_EQ(s.SS2->Text(1, 7), "1.5 hours");
    // Each change of the strength filter adds its workouts on top, until the range changes.
    s.cboStrength->setCurrentIndex(s.cboStrength->findText("Legs"));
    EXPECT_EQ(s.SS2->Text(1, 1), "700.0");
    s.cboStrength->setCurrentIndex(0);
    EXPECT_EQ(s.SS2->Text(1, 1), "900.0");
    EXPECT_EQ(s.SS2->Text(1, 7), "2.5 hours");
    s.txtStartDate->setDate(kDay.addDays(-1));
    EXPECT_EQ(s.SS2->Text(1, 1), "500.0");
    EXPECT_EQ(s.SS2->Text(2, 1), "250.0");
}

TEST_F(DailySummary, NutrientsPageFillsWhenShownAndFollowsTheMeal)
{
    Exec(QString("insert into setup_meals (User_ID, Meal_ID, meal) values (%1, 1, 'Breakfast')").arg(id));
    Exec(QString("insert into setup_meals (User_ID, Meal_ID, meal) values (%1, 2, 'Dinner')").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories, Fiber) values ('%1', #2026-03-10#, 1, 'Oats', 300, 8)").arg(id));
    Exec(QString("insert into daily_nutrition (User_ID, [Date], Meal_ID, Name, calories, Fiber) values ('%1', #2026-03-10#, 2, 'Beans', 500, 12)").arg(id));
    frmDailySummary s;
    auto fiber = [&] {
        for (int c = 1; c <= s.SSNutrients->MaxCols(); ++c)
            if (s.SSNutrients->Text(0, c) == "Fiber") return s.SSNutrients->Text(1, c);
        return QString("no column");
    };
    EXPECT_EQ(s.SSNutrition->MaxRows(), 6);
    // Shown, the page holds the same food rows and its totals.
    s.TotalsTab->setCurrentIndex(frmDailySummary::tabNutrition);
    s.NutritionPages->setCurrentIndex(1);
    EXPECT_EQ(s.SSNutrients->MaxRows(), 6);
    EXPECT_EQ(fiber(), "20.");
    // In front while the meal changes, it follows at once; behind, when it is shown again.
    s.cboNutrition->setCurrentIndex(s.cboNutrition->findText("Breakfast"));
    EXPECT_EQ(fiber(), "8.");
    s.NutritionPages->setCurrentIndex(0);
    s.cboNutrition->setCurrentIndex(s.cboNutrition->findText("Dinner"));
    s.TotalsTab->setCurrentIndex(frmDailySummary::tabSummary);
    s.NutritionPages->setCurrentIndex(1);
    EXPECT_EQ(fiber(), "8.");
    s.TotalsTab->setCurrentIndex(frmDailySummary::tabNutrition);
    EXPECT_EQ(fiber(), "12.");
    EXPECT_EQ(s.SS2->Text(1, 4), "500.0");
}

TEST_F(DailySummary, ExportWritesTheGridInFront)
{
    WeighIn("2026-03-01", 1750);
    frmDailySummary s;
    const QString path = FilePath("out.txt");
    Ui().AnswerFile(path);
    s.cmdExport[frmDailySummary::tabSummary]->click();
    ASSERT_EQ(Ui().FileDialogsShown().size(), 1);
    EXPECT_TRUE(Ui().FileDialogsShown()[0].fileName.endsWith("/Robin Lee 20260310 to 20260310.txt"));
    EXPECT_EQ(Ui().FileDialogsShown()[0].filter, "Text file|*.txt");
    EXPECT_EQ(Ui().LastMessage().text, "Export Complete.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(f.readAll()).split('\r', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);   // Total, Average, the empty row, the day
    EXPECT_TRUE(lines[3].startsWith("2026-03-10\t"));
    EXPECT_TRUE(lines[3].contains("\t1750\t"));
    EXPECT_TRUE(QFile::exists(FilePath("export.log")));
    // Cancelled: nothing written, no message.
    Ui().ClearMessages();
    Ui().AnswerFile(QString());
    s.cmdExport[frmDailySummary::tabExercise]->click();
    EXPECT_TRUE(Ui().Messages().isEmpty()) << Ui().MessageTexts().join("|").toStdString();
}

}  // namespace
