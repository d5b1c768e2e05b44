#include "calendar/calendar_fixture.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>

#include "calendar/calendarstore.h"
#include "calendar/frmSched2.h"
#include "calendar/planner.h"
#include "calendar/screens.h"
#include "core/ini.h"
#include "core/plannerlink.h"
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"
#include "core/widgets/RichText.h"


namespace {
const QDate kDay(2024, 3, 5);

struct Figures {
    QString bmr, in, out, net, lbs, label;
};
Figures Read(const frmSched2& p)
{
    return {p.txtBMR->text(), p.txtCalsIn->text(), p.txtCalsOut->text(), p.txtCalsNet->text(), p.txtlbs->text(),
            p.lblCalsNet->text()};
}
}  // namespace

class PlannerTest : public CalendarTest {
protected:
    void SetUp() override
    {
        CalendarTest::SetUp();
        RegisterCalendarScreens();
    }
    void TearDown() override
    {
        planner.reset();
        CalendarTest::TearDown();
    }
    frmSched2& Open(const QDate& day = kDay)
    {
        planner = std::make_unique<frmSched2>();
        planner->CalView->SetValue(day);
        return *planner;
    }
    void WeighIn(const QDate& d, double weight, const QVariant& bmr)
    {
        AddRow(QStringLiteral("WeighIn"), {{"User_ID", id}, {"Date", d}, {"weight", weight}, {"BMR", bmr}});
    }
    void Eat(const QDate& d, int meal, double calories)
    {
        AddRow(QStringLiteral("daily_nutrition"), {{"User_ID", id}, {"Date", d}, {"Meal_ID", meal}, {"calories", calories}});
    }
    std::unique_ptr<frmSched2> planner;
};

// BMR from the latest weigh-in on or before the day, else the first ever, else 0; intake
// without the ingredients of saved meals; burned from the calendar; the net and its label.
TEST_F(PlannerTest, DayFiguresAndTheirBmrRules)
{
    UserConn.Execute(QStringLiteral("update User_Info set personal_measurements='lbs' where User_ID=") + id);
    WeighIn(QDate(2024, 3, 1), 180, 1800);
    WeighIn(QDate(2024, 3, 10), 175, 1700);
    WeighIn(QDate(2024, 3, 20), 174, QVariant());   // no BMR: counts 0
    Eat(kDay, 1, 1000);
    Eat(kDay, 2, 500);
    Eat(kDay, 9999, 700);                            // an ingredient of a saved meal
    AddEntry(kDay, 1, QStringLiteral("Run"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 2, 300);
    Eat(QDate(2024, 3, 2), 1, 1800);                 // eats exactly the BMR
    Eat(QDate(2024, 3, 3), 1, 4000);

    frmSched2& p = Open(QDate(2024, 2, 20));         // before every weigh-in: the first one
    Figures f = Read(p);
    EXPECT_EQ(f.bmr, "1800");
    EXPECT_EQ(f.in, "0");
    EXPECT_EQ(f.out, "0");
    EXPECT_EQ(f.net, "1800");
    EXPECT_EQ(f.lbs, "0.51");
    EXPECT_EQ(f.label, "= Loss of ");
    EXPECT_EQ(p.lblLbs->text(), "lbs");
    EXPECT_EQ(p.DayWeight(), 180);

    p.CalView->SetValue(kDay);
    f = Read(p);
    EXPECT_EQ(f.bmr, "1800");
    EXPECT_EQ(f.in, "1500");
    EXPECT_EQ(f.out, "300");
    EXPECT_EQ(f.net, "600");
    EXPECT_EQ(f.lbs, "0.17");
    EXPECT_EQ(f.label, "= Loss of ");

    // The day's items: weigh-ins, wellness, then the shown meals in their order.
    AddRow(QStringLiteral("wellness"), {{"User_ID", id}, {"Date", QDate(2024, 3, 10)}});
    AddRow(QStringLiteral("setup_meals"), {{"User_ID", id.toInt()}, {"Meal_ID", 7}, {"meal", "Supper "}, {"Position", 3}, {"Show", true}});
    AddRow(QStringLiteral("setup_meals"), {{"User_ID", id.toInt()}, {"Meal_ID", 5}, {"meal", "Breakfast"}, {"Position", 1}, {"Show", true}});
    AddRow(QStringLiteral("setup_meals"), {{"User_ID", id.toInt()}, {"Meal_ID", 6}, {"meal", "Hidden"}, {"Position", 2}, {"Show", false}});
    p.CalView->SetValue(QDate(2024, 3, 10));
    QStringList items;
    for (int i = 0; i < p.lstItems->count(); ++i) items << p.lstItems->item(i)->text();
    EXPECT_EQ(items, (QStringList{"Weigh In", "Wellness", "Breakfast", "Supper"}));
    EXPECT_EQ(p.lstItems->item(3)->data(Qt::UserRole).toInt(), 7);
    p.CalView->SetValue(QDate(2024, 3, 11));
    EXPECT_EQ(p.lstItems->count(), 2);

    p.CalView->SetValue(QDate(2024, 3, 12));         // no weigh-in that day: the latest earlier
    EXPECT_EQ(Read(p).bmr, "1700");
    EXPECT_EQ(p.DayWeight(), 175);
    p.CalView->SetValue(QDate(2024, 3, 25));
    EXPECT_EQ(Read(p).bmr, "0");
    p.CalView->SetValue(QDate(2024, 3, 2));
    EXPECT_EQ(Read(p).label, "= No Change");
    EXPECT_EQ(Read(p).net, "0");
    p.CalView->SetValue(QDate(2024, 3, 3));
    f = Read(p);
    EXPECT_EQ(f.label, "= Gain of ");
    EXPECT_EQ(f.net, "2200");
    EXPECT_EQ(f.lbs, "0.63");

    // An athlete who never weighed in.
    AddAthlete(QStringLiteral("Sam"));
    LoadNetCalories();   // the module routine acts on the open planner
    EXPECT_EQ(Read(p).bmr, "0");
    EXPECT_EQ(Read(p).in, "0");
    // The main shell reaches the same through its link.
    Planner().SelectTab(4);
    EXPECT_EQ(p.Tab1->currentIndex(), 3);
    Planner().SetMultiCalendar(true);
    EXPECT_EQ(p.CalView->Months(), 2);
}

// Water: one row per day at most, also for 0; the log book is kept as rich text when the day
// changes, and a stored note that is no rich text shows as it is.
TEST_F(PlannerTest, WaterAndLogBook)
{
    AddRow(QStringLiteral("daily_log"), {{"User_ID", id}, {"Date", kDay.addDays(2)}, {"Log", "old note {not rich"}});
    frmSched2& p = Open();
    EXPECT_EQ(p.txtWater->text(), "0");
    EXPECT_EQ(CountUser(QStringLiteral("daily_water")), 0);   // showing 0 writes nothing
    p.txtWater->setText("5");
    p.txtWater->setText("0");
    EXPECT_EQ(CountUser(QStringLiteral("daily_water")), 1);
    EXPECT_EQ(Val(UserValue(QStringLiteral("select water from daily_water"))), 0);
    p.txtWater->setText("8");
    p.CalView->SetValue(kDay.addDays(1));
    EXPECT_EQ(p.txtWater->text(), "0");
    p.CalView->SetValue(kDay);
    EXPECT_EQ(p.txtWater->text(), "8");

    p.RTB->setPlainText(QStringLiteral("Felt strong, 5 x 400m"));
    EXPECT_TRUE(p.LogDirty());
    p.CalView->SetValue(kDay.addDays(1));
    EXPECT_FALSE(p.LogDirty());
    EXPECT_TRUE(p.RTB->toPlainText().isEmpty());
    const QString stored = Str(UserValue(QStringLiteral("select Log from daily_log where date=#2024-03-05#")));
    EXPECT_TRUE(RichText::IsRichText(stored));
    EXPECT_EQ(RichText::PlainText(stored), QStringLiteral("Felt strong, 5 x 400m"));
    p.CalView->SetValue(kDay);
    EXPECT_EQ(p.RTB->toPlainText(), QStringLiteral("Felt strong, 5 x 400m"));

    p.CalView->SetValue(kDay.addDays(2));
    EXPECT_EQ(p.RTB->toPlainText(), QStringLiteral("old note {not rich"));
    EXPECT_FALSE(p.LogDirty());
    p.CalView->SetValue(kDay);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select Log from daily_log where date=#2024-03-07#"))),
              QStringLiteral("old note {not rich"));   // untouched unless edited
    EXPECT_EQ(CountUser(QStringLiteral("daily_log")), 2);

    // Settings kept at close.
    p.SelectTab(3);
    p.cbointerval->setCurrentIndex(2);
    planner.reset();
    EXPECT_EQ(ReadIni("Program", "Tab", IniFile), "3");
    EXPECT_EQ(ReadIni("Program", "Interval", IniFile), "2");
    EXPECT_EQ(ReadIni("Program", "Cal", IniFile), "1");
    frmSched2& again = Open();
    EXPECT_EQ(again.Tab1->currentIndex(), 2);
    EXPECT_EQ(again.DayView->Model().Scale(), 15);
}

// An entry whose name holds an apostrophe: selected, moved (its log row and calendar row take
// the new times) and deleted with its logs.
TEST_F(PlannerTest, EntryWithApostropheIsSelectedMovedAndDeleted)
{
    AddEntry(kDay, 2, QStringLiteral("Coach's Run"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 2, 250);
    AddEntry(kDay, 3, QStringLiteral("Other"), QStringLiteral("Exercise"), "8:00 AM", "9:00 AM", 2, 100);
    AddRow(QStringLiteral("Daily_Exercise"), {{"User_ID", id}, {"Date", kDay}, {"Name", "Coach's Run"}, {"Key", "2"},
                                              {"StartTime", QDateTime(kDay, QTime(6, 0))}, {"EndTime", QDateTime(kDay, QTime(7, 0))}});
    AddRow(QStringLiteral("Daily_Intervals"), {{"User_ID", id}, {"Date", kDay}, {"Name", ""}, {"Key", "2"}, {"Set", "1"}});
    AddRow(QStringLiteral("Daily_Psych"), {{"User_ID", id}, {"Date", kDay}, {"Name", "Coach's Run"}, {"Key", "2"}});
    frmSched2& p = Open();
    int entry = 0;
    for (const auto* e : p.DayView->Model().DayEntries())
        if (e->text == QStringLiteral("Coach's Run")) entry = e->id;
    ASSERT_GT(entry, 0);

    p.DayView->SelectEntry(entry);
    p.DayView_Select(entry);
    EXPECT_EQ(SelectedName, QStringLiteral("Coach''s Run"));
    EXPECT_EQ(SelectedKey, QStringLiteral("2"));
    EXPECT_TRUE(p.cmdDelete->isEnabled());

    ASSERT_TRUE(p.DayView->Model().ApplySpan(entry, 10 * 60, 11 * 60 + 30));
    const DayViewEntry* e = p.DayView->Entry(entry);
    p.DayView_Changed(entry, e->start, e->end);
    EXPECT_EQ(EntryTime(UserValue(QStringLiteral("select StartTime from Daily_Exercise where key='2'"))), QTime(10, 0));
    EXPECT_EQ(EntryTime(UserValue(QStringLiteral("select EndTime from Daily_Exercise where key='2'"))), QTime(11, 30));
    EXPECT_EQ(EntryTime(UserValue(QStringLiteral("select StartTime from calendar where key=2"))), QTime(10, 0));
    EXPECT_EQ(EntryTime(UserValue(QStringLiteral("select StartTime from calendar where key=3"))), QTime(8, 0));

    Ui().Answer(vbNo);
    p.on_cmdDelete_clicked();
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 2);
    p.DayView->SelectEntry(entry);
    p.on_cmdDelete_clicked();   // default answer: Yes
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Delete this activity?"));
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Message"));
    EXPECT_EQ(CountUser(QStringLiteral("calendar")), 1);
    EXPECT_EQ(CountUser(QStringLiteral("Daily_Exercise")), 0);
    EXPECT_EQ(CountUser(QStringLiteral("Daily_Intervals")), 0);
    EXPECT_EQ(CountUser(QStringLiteral("Daily_Psych")), 0);
    EXPECT_EQ(p.DayView->Model().DayEntries().size(), 1);
    EXPECT_EQ(p.txtCalsOut->text(), "100");
    EXPECT_FALSE(p.cmdDelete->isEnabled());
}

// The add buttons wait for their log; the log opened by one schedules in adding mode on the
// selected days through the planner's day view, and the planner shows the result.
TEST_F(PlannerTest, AddingThroughALogOnSeveralDays)
{
    AddRow(QStringLiteral("calendar"), {});   // a row of nobody: ignored
    frmSched2& p0 = Open();
    p0.ListView1->addItem(QStringLiteral("Running"));
    p0.ListView1->setCurrentRow(0);
    EXPECT_FALSE(p0.cmdAddEndurance->isEnabled());   // no exercise log in this program yet
    planner.reset();

    ui::RegisterScreen(QStringLiteral("frmExerciseLog"), [](QWidget* parent) { return new QDialog(parent); });
    int shown = 0;
    Ui().OnDialog(QStringLiteral("frmExerciseLog"), [&](QDialog*) {
        ++shown;
        EXPECT_TRUE(PlannerAdding());
        EXPECT_EQ(SelectedItem, QStringLiteral("Running"));
        for (const QDate& d : PlannerSelectedDates()) {
            const int key = PlannerDayView()->AddEntry(QDateTime(d, PlannerStartTime()), QDateTime(d, PlannerEndTime()),
                                                       SelectedItem, QString(), Qt::blue);
            EXPECT_GT(key, 0);
            SelectedKey = QString::number(key);
            SaveCalendarEntry(SelectedItem, QStringLiteral("Exercise"), d, PlannerStartTime().toString("h:mm AP"),
                              PlannerEndTime().toString("h:mm AP"), 4);
        }
        return int(QDialog::Accepted);
    });
    AddEntry(kDay.addDays(1), 7, QStringLiteral("Existing"), QStringLiteral("Exercise"), "6:00 AM", "7:00 AM", 1);
    frmSched2& p = Open(kDay.addDays(1));
    p.CalView->SelectDate(kDay, Qt::ControlModifier);   // both days, the 5th current
    p.DayView_FreeTime(QDateTime(kDay, QTime(7, 0)), QDateTime(kDay, QTime(8, 30)));
    p.ListView1->clear();
    p.ListView1->addItem(QStringLiteral("Running"));
    p.ListView1->setCurrentRow(0);
    ASSERT_TRUE(p.cmdAddEndurance->isEnabled());
    p.cmdAddEndurance->click();
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(PlannerAdding());
    EXPECT_EQ(CountUser(QStringLiteral("calendar where Name='Running'")), 2);
    // The second day already had key 7: the new entry there took another.
    EXPECT_EQ(CountUser(QStringLiteral("calendar where date=#2024-03-06# and key=7")), 1);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select StartTime from calendar where date=#2024-03-05#"))), "7:00 AM");
    EXPECT_TRUE(p.CalView->HasPicture(kDay));
    EXPECT_TRUE(p.CalView->HasPicture(kDay.addDays(1)));
    EXPECT_EQ(p.DayView->Model().DayEntries().size(), 1);

    // A look at the screen.
    p.resize(1200, 800);
    const QPixmap shot = p.grab();
    EXPECT_FALSE(shot.isNull());
    shot.save(QStringLiteral("/tmp/orvantis_planner_test.png"));
}

// A statement that fails while a day loads shows its error and leaves the planner listening:
// the next change of the water and the next day work.
TEST_F(PlannerTest, AFailedLoadLeavesThePlannerWorking)
{
    frmSched2& p = Open();
    RawSql(UserConn, "alter table daily_water rename to daily_water_gone");
    p.CalView->SetValue(kDay.addDays(1));
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Error"));
    RawSql(UserConn, "alter table daily_water_gone rename to daily_water");
    Ui().ClearMessages();

    p.txtWater->setText(QStringLiteral("6"));
    EXPECT_EQ(CountUser(QStringLiteral("daily_water where water=6")), 1);
    AddRow(QStringLiteral("daily_log"), {{"User_ID", id}, {"Date", kDay.addDays(2)}, {"Log", "hills"}});
    p.CalView->SetValue(kDay.addDays(2));
    EXPECT_EQ(p.RTB->toPlainText(), QStringLiteral("hills"));
    EXPECT_EQ(p.txtWater->text(), QStringLiteral("0"));
    EXPECT_TRUE(Ui().MessageTexts().isEmpty());
}

// The day's water and log are replaced as a whole: when the new row can't be written the old
// one stays.
TEST_F(PlannerTest, AFailedSaveKeepsTheOldWaterAndLog)
{
    AddRow(QStringLiteral("daily_water"), {{"User_ID", id}, {"Date", kDay}, {"water", 4}});
    AddRow(QStringLiteral("daily_log"), {{"User_ID", id}, {"Date", kDay}, {"Log", "easy run"}});
    frmSched2& p = Open();
    ASSERT_EQ(p.txtWater->text(), QStringLiteral("4"));

    RawSql(UserConn, "alter table daily_water rename column water to water_gone");
    p.txtWater->setText(QStringLiteral("7"));
    EXPECT_EQ(Ui().Messages().size(), 1);
    RawSql(UserConn, "alter table daily_water rename column water_gone to water");
    EXPECT_EQ(CountUser(QStringLiteral("daily_water")), 1);
    EXPECT_EQ(Val(UserValue(QStringLiteral("select water from daily_water"))), 4);

    RawSql(UserConn, "alter table daily_log rename column Log to Log_gone");
    p.RTB->setPlainText(QStringLiteral("hard intervals"));
    p.CalView->SetValue(kDay.addDays(1));          // the log is saved before the day changes
    EXPECT_EQ(Ui().Messages().size(), 2);
    RawSql(UserConn, "alter table daily_log rename column Log_gone to Log");
    EXPECT_EQ(CountUser(QStringLiteral("daily_log")), 1);
    EXPECT_EQ(Str(UserValue(QStringLiteral("select Log from daily_log"))), QStringLiteral("easy run"));
    EXPECT_TRUE(p.LogDirty());                      // still on screen, to be saved again
}

// Settings out of range, as a hand-edited file may hold them, keep their defaults.
TEST_F(PlannerTest, SettingsOutOfRangeTakeTheirDefaults)
{
    WriteIni("Program", "FirstDay", "12", IniFile);
    WriteIni("Program", "Interval", "99", IniFile);
    WriteIni("Program", "Tab", "42", IniFile);
    WriteIni("Program", "Cal", "50", IniFile);
    {
        frmSched2& p = Open();
        EXPECT_EQ(p.CalView->FirstDayOfWeek(), Qt::Sunday);
        EXPECT_EQ(p.cbointerval->currentIndex(), 0);
        EXPECT_EQ(p.DayView->Model().Scale(), 60);
        EXPECT_EQ(p.Tab1->currentIndex(), 0);
        EXPECT_EQ(p.CalView->Months(), 1);
        planner.reset();
    }
    WriteIni("Program", "FirstDay", "-3", IniFile);
    WriteIni("Program", "Interval", "two", IniFile);
    WriteIni("Program", "Tab", "-1", IniFile);
    WriteIni("Program", "Cal", "0", IniFile);
    {
        frmSched2& p = Open();
        EXPECT_EQ(p.CalView->FirstDayOfWeek(), Qt::Sunday);
        EXPECT_EQ(p.DayView->Model().Scale(), 60);
        EXPECT_EQ(p.Tab1->currentIndex(), 0);
        EXPECT_EQ(p.CalView->Months(), 1);
        planner.reset();
    }
    // Values in range still count.
    WriteIni("Program", "FirstDay", "1", IniFile);
    WriteIni("Program", "Interval", "4", IniFile);
    WriteIni("Program", "Tab", "4", IniFile);
    WriteIni("Program", "Cal", "2", IniFile);
    frmSched2& p = Open();
    EXPECT_EQ(p.CalView->FirstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(p.DayView->Model().Scale(), 5);
    EXPECT_EQ(p.Tab1->currentIndex(), 3);
    EXPECT_EQ(p.CalView->Months(), 2);
    EXPECT_LE(p.minimumSizeHint().width(), 1280);
    EXPECT_LE(p.minimumSizeHint().height(), 680);
}
