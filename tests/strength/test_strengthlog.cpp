// The strength log against real stores: its arithmetic, a library workout scheduled over the
// planner's selected days with the athlete's goals in its zeros, a saved workout opened and
// saved again, the set commands and their limit, names with a quote, calories, the history
// chart, and a failing statement.
#include "fixtures/fixture.h"

#include "calendar/frmSched2.h"
#include "calendar/planner.h"
#include "calendar/screens.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/widgets/Chart.h"
#include "core/widgets/Grid.h"
#include "core/widgets/MonthCalendar.h"
#include "exercise/rules/exercisecalc.h"
#include "strength/frmStrengthLog.h"
#include "strength/rules/strengthlog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimeEdit>

using namespace strengthlog;

TEST(StrengthLogRules, HoursCellsAndSets)
{
    // 30 minutes 30 seconds: the seconds count over 360 here, over 3600 in the exercise log.
    EXPECT_DOUBLE_EQ(WorkoutHours("00:30:30"), 0.58);
    EXPECT_NEAR(gethours("00:30:30"), 0.508, 0.001);
    EXPECT_DOUBLE_EQ(WorkoutHours("01:15"), 1.25);
    // 5 x 1000 thousandths x 0.58 h x 80 = 232.
    EXPECT_EQ(WorkoutCalories(5000, "00:30:30", 80), 232);
    EXPECT_EQ(WorkoutCalories(5000, "00:30:30", 0), 0);

    EXPECT_DOUBLE_EQ(CellNumber("12abc"), 12);
    EXPECT_DOUBLE_EQ(CellNumber(" 7.5 lbs"), 7.5);
    EXPECT_DOUBLE_EQ(CellNumber("abc"), 0);
    EXPECT_EQ(NextSet("3"), "4");
    EXPECT_EQ(NextSet("A"), "1");   // a set text without a leading digit counts as set 0
    EXPECT_TRUE(CanInsertSet("29"));
    EXPECT_FALSE(CanInsertSet("30"));
    EXPECT_FALSE(CanInsertSet("31"));
    EXPECT_EQ(IntensityText("Very heavy indeed"), "Very heavy");
    EXPECT_EQ(NoteText("  slow  "), "slow");
    EXPECT_EQ(NoteText(QString(60, 'x')).size(), 50);
}

TEST(StrengthLogRules, ReportsAndTotals)
{
    ASSERT_EQ(ReportNames().size(), 6);
    EXPECT_EQ(ReportNames()[2], "Weight Lifted by Exercise");
    EXPECT_EQ(ReportNames()[4], "Total Reps by Muscle Group");
    for (int v = 0; v < 6; ++v)
        EXPECT_EQ(WeightReport(v), v < 3) << v;
    EXPECT_EQ(ReportFilterColumn(0), "");
    EXPECT_EQ(ReportFilterColumn(1), "muscle_group");
    EXPECT_EQ(ReportFilterColumn(5), "exercise");
    EXPECT_EQ(ReportFilterWord(4), "Muscle Group");
    EXPECT_DOUBLE_EQ(WeightLifted({{10, 50}, {8, 60}, {0, 100}}), 980);
    EXPECT_DOUBLE_EQ(AxisTop({}), 0);
    EXPECT_DOUBLE_EQ(AxisTop({3, 10, 7}), 11);
}

namespace {

const QDate kDay(2026, 3, 10);

class StrengthLogTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Lee");
        SetCalendarDateProvider([] { return kDay; });
        for (int level = 1; level <= 10; ++level)
            UserConn.Execute(QString("insert into Intensity (User_ID, Intensity, [Value]) values (%1, %2, %3)")
                                 .arg(id)
                                 .arg(level)
                                 .arg(level));
        // The library's own rows stand aside: these tests count and name theirs.
        for (const char* table : {"strength_exercises", "workouts", "Workout_exercises"})
            LibraryConn.Execute(QString("delete * from ") + table);
        Exercise("Chest", "Bench Press", "Free Weights");
        Exercise("Legs", "Squat", "Free Weights");
        Exercise("Arms", "Farmer's Walk", "Free Weights");
        Exercise("Legs", "Hamstring Stretch", "Stretch");
        LibraryConn.Execute("insert into workouts (Workout_Name, workout_desc, wtype) values ('Push Day', '  Heavy pushing  ', 'strength')");
        const QString wid = Str(LibraryValue("select Workout_ID from workouts where Workout_Name='Push Day'"));
        Set(wid, "Chest", "Bench Press", 1, 0, 0);
        Set(wid, "Chest", "Bench Press", 2, 8, 60);
        Set(wid, "Legs", "Squat", 1, 5, 0);
    }
    void TearDown() override
    {
        planner.reset();
        SetPlannerAdding(false);
        SetCalendarDateProvider(nullptr);
        ReportStrengthLink() = nullptr;
        StoreTest::TearDown();
    }
    static void Exercise(const QString& group, const QString& name, const QString& type)
    {
        LibraryConn.Execute(QString("insert into strength_exercises (muscle_group, exercise, Type) values ('%1', '%2', '%3')")
                                .arg(group, SqlQuote(name), type));
    }
    static void Set(const QString& wid, const QString& group, const QString& exercise, int set, double reps, double weight)
    {
        LibraryConn.Execute(QString("insert into Workout_exercises (Workout_Name, Workout_ID, muscle_group, exercise, Sets, "
                                    "Reps, weight, Intensity, Goal, Comments) values ('Push Day', %1, '%2', '%3', %4, %5, "
                                    "%6, '5', 'Strength', 'Slow down')")
                                .arg(wid, group, SqlQuote(exercise))
                                .arg(set)
                                .arg(reps)
                                .arg(weight));
    }
    QVariant UserValue(const QString& sql) { return Value(UserConn, sql); }
    QVariant LibraryValue(const QString& sql) { return Value(LibraryConn, sql); }
    static QVariant Value(Connection& conn, const QString& sql)
    {
        Recordset rs(&conn);
        rs.Open(sql);
        const QVariant v = rs.Eof() ? QVariant() : rs.Field(0);
        rs.Close();
        return v;
    }
    void SetPrefill(bool on)
    {
        UserConn.Execute(QString("update User_Info set Prefill=%1 where User_ID=%2").arg(on ? "true" : "false", id));
    }
    void Goal(const QString& exercise, double reps, double weight)
    {
        UserConn.Execute(QString("insert into strength_goals (User_ID, exercise, Reps, weight) values (%1, '%2', %3, %4)")
                             .arg(id, SqlQuote(exercise))
                             .arg(reps)
                             .arg(weight));
    }
    // A calendar entry from 6 to 7 PM.
    void Entry(const QString& name, const QString& key, const QDate& day = kDay)
    {
        UserConn.Execute("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType, StartTime, EndTime) values ('" + id +
                         "', #" + SqlDate(day) + "#, " + key + ", '" + SqlQuote(name) + "', 'Strength', '6:00 PM', '7:00 PM')");
    }
    void OpenEntry(const QString& name, const QString& key, const QDate& day = kDay)
    {
        SetCalendarDateProvider([day] { return day; });
        SelectedKey = key;
        SelectedName = QString(name).replace("'", "''");
        SetPlannerAdding(false);
    }
    void Schedule(const QString& workout)
    {
        SelectedItem = workout;
        SelectedKey.clear();
        SetPlannerAdding(true);
    }
    // Schedules `workout` on kDay without a planner; returns the entry's key.
    QString SaveNew(const QString& workout)
    {
        Schedule(workout);
        frmStrengthLog f;
        f.cmdSave->click();
        SetPlannerAdding(false);
        return SelectedKey;
    }
    frmSched2& OpenPlanner(const QList<QDate>& days)
    {
        RegisterCalendarScreens();
        planner = std::make_unique<frmSched2>();
        planner->CalView->SetValue(days.first());
        for (int i = 1; i < days.size(); ++i)
            planner->CalView->SelectDate(days[i], Qt::ControlModifier);
        return *planner;
    }
    static void Pick(frmStrengthLog& f, const QString& exercise)
    {
        const auto found = f.list1->findItems(exercise, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << exercise.toStdString();
        f.list1->setCurrentItem(found.first());
    }

    QString id;
    std::unique_ptr<frmSched2> planner;
};

}  // namespace

// A library workout on three selected days: its zeros stay 0 without Prefill, take the goals
// with it; each day gets its own key in the calendar and in every set row.
TEST_F(StrengthLogTest, SchedulingWithPrefillOverSelectedDays)
{
    Goal("Bench Press", 10, 52.5);
    Goal("Squat", 6, 100);
    {
        Schedule("Push Day");
        frmStrengthLog off;
        EXPECT_FALSE(off.Prefill());
        ASSERT_EQ(off.SS1->MaxRows(), 3);
        EXPECT_EQ(Val(off.SS1->Text(1, 4)), 0);
        EXPECT_EQ(Val(off.SS1->Text(1, 5)), 0);
    }
    SetPrefill(true);
    const QDate d2 = kDay.addDays(1), d3 = kDay.addDays(4);
    Entry("Morning Lift", "1", d2);
    frmSched2& p = OpenPlanner({kDay, d2, d3});
    p.DayView_FreeTime(QDateTime(kDay, QTime(18, 0)), QDateTime(kDay, QTime(19, 0)));
    Schedule("Push Day");
    frmStrengthLog f;
    EXPECT_TRUE(f.Scheduling());
    EXPECT_TRUE(f.Prefill());
    EXPECT_EQ(f.windowTitle(), "Strength Training Log");
    EXPECT_EQ(f.lblTime->text(), "To be scheduled.");
    EXPECT_EQ(f.lblWorkout->text(), "Push Day");
    EXPECT_EQ(f.lblDesc->text(), "Heavy pushing");
    EXPECT_EQ(f.txtStartTime->time(), QTime(18, 0));
    EXPECT_EQ(f.txtEndTime->time(), QTime(18, 30));
    EXPECT_EQ(f.SS1->horizontalHeaderItem(4)->text(), "Weight(lbs)");
    ASSERT_EQ(f.SS1->MaxRows(), 3);
    QMap<QString, QPair<double, double>> byRow;
    for (int r = 1; r <= 3; ++r)
        byRow[f.SS1->Text(r, 2) + f.SS1->Text(r, 3)] = {Val(f.SS1->Text(r, 4)), Val(f.SS1->Text(r, 5))};
    EXPECT_EQ(byRow["Bench Press1"], qMakePair(10.0, 52.5));   // both zeros from the goal
    EXPECT_EQ(byRow["Bench Press2"], qMakePair(8.0, 60.0));    // the library's own numbers stand
    EXPECT_EQ(byRow["Squat1"], qMakePair(5.0, 100.0));         // only the zero is filled
    EXPECT_EQ(f.SS1->Text(1, 6), "5");
    EXPECT_EQ(f.SS1->CellBackColor(1, 7), QColor(0xE0, 0xE0, 0xE0));
    EXPECT_TRUE(f.SS1->IsLocked(1, 1));
    EXPECT_FALSE(f.SS1->IsLocked(1, 4));

    f.cmdSave->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Workout Scheduled."});
    EXPECT_EQ(CountUser("calendar where Name='Push Day' and WorkoutType='Strength'"), 3);
    EXPECT_EQ(CountUser("Daily_Weights where Name='Push Day'"), 9);
    EXPECT_EQ(CountUser("Daily_Psych where Name='Push Day'"), 3);
    QSet<QString> keys;
    for (const QDate& d : {kDay, d2, d3}) {
        const QString key = Str(UserValue("select [Key] from calendar where Date=#" + SqlDate(d) + "# and Name='Push Day'"));
        ASSERT_FALSE(key.isEmpty());
        keys << SqlDate(d) + "/" + key;
        EXPECT_EQ(CountUser("Daily_Weights where Date=#" + SqlDate(d) + "# and [Key]='" + key + "'"), 3);
        EXPECT_EQ(CountUser("Daily_Weights where Date=#" + SqlDate(d) + "# and worder=3"), 1);
    }
    EXPECT_EQ(keys.size(), 3);
    // The day that had an entry gives the workout the next key; the entry keeps its own.
    EXPECT_TRUE(keys.contains(SqlDate(d2) + "/2"));
    EXPECT_EQ(CountUser("calendar where Name='Morning Lift' and [Key]=1"), 1);
    // Yes/No of the questionnaire's first answer is written either way.
    EXPECT_EQ(CountUser("Daily_Psych where AccomplishGoals=false"), 3);
}

// A saved workout reopened: its sets, calendar fields and times come back; saving replaces the
// rows wholesale, in grid order, with letters in a reps cell counting as their number.
TEST_F(StrengthLogTest, ReopenAndSaveReplacesWholesale)
{
    const QString key = SaveNew("Push Day");
    ASSERT_FALSE(key.isEmpty());
    ASSERT_EQ(CountUser("Daily_Weights"), 3);
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-03-01#, 80)");
    Ui().ClearMessages();
    OpenEntry("Push Day", key);
    {
        frmStrengthLog f;
        EXPECT_FALSE(f.Scheduling());
        EXPECT_EQ(f.windowTitle(), "Strength Training Log for " + regional::LongDate(kDay));
        EXPECT_TRUE(f.txtStartTime->isHidden());
        EXPECT_TRUE(f.lblTime->text().startsWith("Scheduled for "));
        ASSERT_EQ(f.SS1->MaxRows(), 3);
        EXPECT_EQ(f.SS1->Text(3, 2), "Squat");
        f.SS1->SetActiveCell(1, 4);
        f.cmdRemoveSet->click();
        EXPECT_EQ(f.SS1->MaxRows(), 2);
        EXPECT_EQ(f.SS1->ActiveRow(), 1);
        f.SS1->SetCellType(2, 4, Grid::TypeText);
        f.SS1->SetText(2, 4, "12abc");
        f.SS1->SetText(2, 7, "  to failure  ");
        f.txtDuration->setText("00:30:30");
        f.cboIntensity->setCurrentIndex(4);   // level 5: 5000 thousandths
        EXPECT_EQ(f.lblCal->text(), "232");   // 5 x 0.58 h x 80
        f.chkComplete->setChecked(true);
        f.cmdSave->click();
        EXPECT_EQ(f.result(), QDialog::Accepted);
        EXPECT_EQ(Ui().MessageTexts(), QStringList{"Workout Information Saved."});
    }
    EXPECT_EQ(CountUser("Daily_Weights"), 2);
    EXPECT_EQ(CountUser("Daily_Weights where worder=2 and exercise='Squat' and Reps=12 and Goal='to failure'"), 1);
    EXPECT_EQ(CountUser("calendar where [Key]=" + key + " and Cals=232 and Intensity=5 and duration='00:30:30'"), 1);
    EXPECT_NE(Val(UserValue("select Complete from calendar")), 0);

    OpenEntry("Push Day", key);
    frmStrengthLog g;
    EXPECT_TRUE(g.chkComplete->isChecked());
    EXPECT_EQ(g.txtDuration->text(), "00:30:30");
    EXPECT_EQ(g.cboIntensity->currentText(), "5");
    EXPECT_EQ(g.lblCal->text(), "232");
    EXPECT_EQ(g.SS1->Text(2, 4), "12");
}

// "&Add" has no limit; "Insert Set" (and "+") stops at 30 sets of an exercise. Moving a block
// past the ends is refused with the screen's words.
TEST_F(StrengthLogTest, ThirtySetLimitBesideUnlimitedAdd)
{
    Entry("Empty Day", "1");
    OpenEntry("Empty Day", "1");
    frmStrengthLog f;
    ASSERT_EQ(f.SS1->MaxRows(), 0);
    EXPECT_EQ(f.list1->count(), 3);   // no stretches under "Exercises"
    Pick(f, "Squat");
    f.cmdAdd->click();
    Pick(f, "Bench Press");
    for (int i = 0; i < 29; ++i)
        f.cmdAdd->click();
    ASSERT_EQ(f.SS1->MaxRows(), 30);
    EXPECT_EQ(f.SS1->Text(1, 1), "Legs");
    EXPECT_EQ(f.SS1->Text(30, 3), "29");
    // Insert Set takes the 30th.
    f.SS1->SetActiveCell(2, 4);
    f.cmdAddSet->click();
    EXPECT_EQ(f.SS1->MaxRows(), 31);
    EXPECT_EQ(f.SS1->Text(31, 3), "30");
    EXPECT_TRUE(Ui().Messages().isEmpty());
    // ...and refuses a 31st, from the button and from the "+" key.
    f.cmdAddSet->click();
    f.SS1->SetActiveCell(5, 3);
    QTest::keyClick(f.SS1, '+');
    EXPECT_EQ(f.SS1->MaxRows(), 31);
    ASSERT_EQ(Ui().Messages().size(), 2);
    EXPECT_EQ(Ui().LastMessage().text, "You can add a maximum of 30 sets to an exercise.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
    // Add goes on past 30.
    f.cmdAdd->click();
    EXPECT_EQ(f.SS1->MaxRows(), 32);
    EXPECT_EQ(f.SS1->Text(32, 3), "31");

    // Stretches and the moves.
    f.optExercise[1]->setChecked(true);
    EXPECT_EQ(f.list1->count(), 1);
    f.SS1->SetActiveCell(1, 4);
    f.SS1->selectRow(0);
    EXPECT_FALSE(f.cmdUp->isEnabled());
    f.on_cmdUp_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) up.");
    f.cmdDown->click();
    EXPECT_EQ(f.SS1->Text(2, 2), "Squat");
    EXPECT_EQ(f.SS1->Text(1, 2), "Bench Press");
    EXPECT_TRUE(f.SS1->selectionModel()->isRowSelected(1, QModelIndex()));
    f.SS1->SetActiveCell(32, 4);
    f.SS1->selectRow(31);
    EXPECT_FALSE(f.cmdDown->isEnabled());
    f.on_cmdDown_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) down.");
    QTest::keyClick(f.SS1, '-');
    EXPECT_EQ(f.SS1->MaxRows(), 31);
}

// A quote in a name: the log's own statements double it; the goal look-up does not and fails
// with its error shown, leaving the plan's zeros.
TEST_F(StrengthLogTest, ApostropheInNames)
{
    Entry("Coach's Day", "1");
    OpenEntry("Coach's Day", "1");
    {
        frmStrengthLog f;
        Pick(f, "Farmer's Walk");
        f.cmdAdd->click();
        ASSERT_EQ(f.SS1->MaxRows(), 1);
        EXPECT_EQ(f.SS1->Text(1, 1), "Arms");
        f.SS1->SetText(1, 4, "20");
        f.cmdSave->click();
        EXPECT_EQ(Ui().MessageTexts(), QStringList{"Workout Information Saved."});
    }
    EXPECT_EQ(CountUser("Daily_Weights where Name='Coach''s Day' and exercise='Farmer''s Walk' and Reps=20 and [Key]='1'"), 1);
    OpenEntry("Coach's Day", "1");
    {
        frmStrengthLog g;
        ASSERT_EQ(g.SS1->MaxRows(), 1);
        EXPECT_EQ(g.lblWorkout->text(), "Coach's Day");
    }

    const QString wid = Str(LibraryValue("select Workout_ID from workouts where Workout_Name='Push Day'"));
    Set(wid, "Arms", "Farmer's Walk", 1, 0, 0);
    SetPrefill(true);
    Ui().ClearMessages();
    Schedule("Push Day");
    frmStrengthLog h;
    ASSERT_FALSE(Ui().Messages().isEmpty());
    EXPECT_EQ(Ui().LastMessage().title, "Error");
}

// A statement failing in the middle of a save leaves the workout as it was.
TEST_F(StrengthLogTest, AFailingStatementLeavesNothingHalfWritten)
{
    const QString key = SaveNew("Push Day");
    OpenEntry("Push Day", key);
    {
        frmStrengthLog f;
        f.SS1->SetActiveCell(1, 4);
        f.cmdRemoveSet->click();
        f.txtDuration->setText("01:00:00");
        RawSql(UserConn, "alter table Daily_Psych rename to Daily_Psych_gone");
        f.cmdSave->click();
        RawSql(UserConn, "alter table Daily_Psych_gone rename to Daily_Psych");
        EXPECT_EQ(Ui().LastMessage().title, "Error");
        EXPECT_NE(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(CountUser("Daily_Weights"), 3);
    EXPECT_EQ(Str(UserValue("select duration from calendar")), "");
}

// The history: weight lifted and reps per day, over one exercise or all workouts.
TEST_F(StrengthLogTest, HistoryReports)
{
    auto add = [this](const QDate& d, const char* exercise, double reps, double weight) {
        UserConn.Execute(QString("insert into Daily_Weights (User_ID, [Date], Name, [Key], muscle_group, exercise, Sets, Reps, "
                                 "weight, worder) values ('%1', #%2#, 'Push Day', '1', 'Chest', '%3', '1', %4, %5, 1)")
                             .arg(id, SqlDate(d), exercise)
                             .arg(reps)
                             .arg(weight));
    };
    const QDate today = QDate::currentDate();
    add(today, "Bench Press", 10, 50);
    add(today, "Bench Press", 8, 60);
    add(today, "Squat", 5, 100);
    OpenEntry("Push Day", "1", today);
    frmStrengthLog f;
    f.TabTop->setCurrentIndex(frmStrengthLog::HistoryTab);
    EXPECT_EQ(f.txtStart->date(), today);
    EXPECT_EQ(f.cboReport->currentIndex(), 0);
    EXPECT_TRUE(f.cbofield->isHidden());
    ASSERT_EQ(f.Chart1->PointCount(), 1);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 500 + 480 + 500);
    EXPECT_TRUE(f.Chart1->Title().endsWith("(lbs)"));
    f.cboReport->setCurrentIndex(5);   // total reps by exercise
    EXPECT_FALSE(f.cbofield->isHidden());
    EXPECT_EQ(f.lbltype->text().remove('&'), "Exercise");
    f.cbofield->setCurrentText("Bench Press");
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 18);
    f.txtStart->setDate(today.addDays(-20));
    f.txtEnd->setDate(today.addDays(-10));
    EXPECT_EQ(f.Chart1->PointCount(), 0);
}
