// The exercise log against real stores: scheduling over the planner's selected days, a saved
// session opened, changed and saved again, the fields' form, the questionnaire, intervals,
// calories, history, and a failing statement.
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
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"
#include "exercise/frmExerciseLog.h"
#include "exercise/intervalspanel.h"
#include "exercise/psychpanel.h"
#include "exercise/screens.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimeEdit>

namespace {

const QDate kDay(2026, 3, 10);

class ExerciseLogTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        id = AddAthlete("Lee");
        SetCalendarDateProvider([] { return kDay; });
        LibraryConn.Execute("insert into endurance_exercises (Category, exercise, [Desc], Image) values "
                            "('Training', 'Tempo Run', 'Runs', 1)");
        LibraryConn.Execute("insert into endurance_exercises (Category, exercise, [Desc], Image) values "
                            "('Training', 'Coach''s Run', 'Runs', 1)");
        for (const char* item : {"Tempo Run", "Coach''s Run"}) {
            const QString n = QString::fromLatin1(item);
            Form(n, 1, "Distance km", "", "0", "km");
            Form(n, 2, "Minutes", "", "0", "");
            Form(n, 3, "Pace", "=B2/B1", "", "min/km");
            Form(n, 4, "Ground test", "", "", "Road");
            Form(n, 5, "Shoes", "", "Trail 3", "");
        }
        LibraryConn.Execute("insert into DefaultUnits (Name, unit) values ('Ground test', 'Road')");
        LibraryConn.Execute("insert into DefaultUnits (Name, unit) values ('Ground test', 'Trail')");
        for (int level = 1; level <= 10; ++level)
            UserConn.Execute(QString("insert into Intensity (User_ID, Intensity, [Value]) values (%1, %2, %3)")
                                 .arg(id)
                                 .arg(level)
                                 .arg(0.7 + 0.5 * level));
        UserConn.Execute("insert into hrm_info (User_ID, RESTING_HR, MAXIMUM_HR) values ('" + id + "', 52, 188)");
    }
    void TearDown() override
    {
        planner.reset();
        SetPlannerAdding(false);
        SetCalendarDateProvider(nullptr);
        ReportExerciseLink() = nullptr;
        StoreTest::TearDown();
    }
    static void Form(const QString& name, int order, const QString& field, const QString& formula, const QString& value,
                     const QString& units)
    {
        LibraryConn.Execute(QString("insert into endurance_templates (Category, Name, field_name, Formula, [Value], Units, "
                                    "worder) values ('Training', '%1', '%2', '%3', '%4', '%5', %6)")
                                .arg(name, field, formula, value, units)
                                .arg(order));
    }
    QVariant UserValue(const QString& sql)
    {
        Recordset rs(&UserConn);
        rs.Open(sql);
        const QVariant v = rs.Eof() ? QVariant() : rs.Field(0);
        rs.Close();
        return v;
    }
    // A calendar entry and the planner's hand-over for opening it.
    void OpenEntry(const QString& name, int key, const QDate& day = kDay)
    {
        SetCalendarDateProvider([day] { return day; });
        SelectedKey = QString::number(key);
        SelectedName = QString(name).replace("'", "''");
        SetPlannerAdding(false);
    }
    void Schedule(const QString& item)
    {
        SelectedItem = item;
        SelectedKey.clear();
        SetPlannerAdding(true);
    }
    // Schedules a session of `item` on kDay without a planner and fills its result.
    QString SaveNew(const QString& item, const QString& distance, const QString& duration)
    {
        Schedule(item);
        frmExerciseLog f;
        f.txtDistance->setText(distance);
        f.txtDuration->setText(duration);
        f.cboDistUnit->setCurrentText("miles");
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

    QString id;
    std::unique_ptr<frmSched2> planner;
};

}  // namespace

// Scheduling from the planner: every selected day gets its calendar row and the session's
// rows under that day's own key; the form's zeros show blank; the screen closes and asks the
// planner to redraw.
TEST_F(ExerciseLogTest, SchedulingOnThreeSelectedDays)
{
    const QDate d2 = kDay.addDays(2), d3 = kDay.addDays(5);
    UserConn.Execute("insert into calendar (User_ID, [Date], [Key], Name, WorkoutType, StartTime, EndTime, Image) values ('" +
                     id + "', #2026-03-12#, 1, 'Swim', 'Exercise', '6:00 AM', '7:00 AM', 3)");
    frmSched2& p = OpenPlanner({kDay, d2, d3});
    p.DayView_FreeTime(QDateTime(kDay, QTime(7, 0)), QDateTime(kDay, QTime(7, 45)));
    Schedule("Tempo Run");
    frmExerciseLog f;
    EXPECT_TRUE(f.Scheduling());
    EXPECT_EQ(f.lblTime->text(), "To be scheduled.");
    EXPECT_EQ(f.lblExercise->text(), "Tempo Run");
    EXPECT_EQ(f.windowTitle(), "Exercise/Sports Planning and Log");
    EXPECT_EQ(f.txtStartTime->time(), QTime(7, 0));
    EXPECT_EQ(f.txtEndTime->time(), QTime(7, 30));   // half an hour after the start
    EXPECT_FALSE(f.imgExercise->pixmap().isNull());
    EXPECT_EQ(f.txtRHR->text(), "52");
    EXPECT_EQ(f.txtMHR->text(), "188");
    ASSERT_EQ(f.SS2->MaxRows(), 5);
    EXPECT_EQ(f.txtRows->value(), 5);
    EXPECT_EQ(f.SS2->Text(1, 2), "");              // a form's 0 is blank on a new session
    EXPECT_TRUE(f.SS2->HasFormula(3, 2));
    EXPECT_EQ(f.SS2->GetCellType(4, 3), Grid::TypeList);
    EXPECT_EQ(f.SS2->ListItems(4, 3), (QStringList{"Road", "Trail"}));
    EXPECT_EQ(f.SS2->Text(5, 2), "Trail 3");
    f.SS2->SetText(1, 2, "10");
    f.SS2->SetText(2, 2, "50");
    EXPECT_EQ(f.SS2->Text(3, 2), "5");
    f.txtPlannedDistance->setText("6.2");
    f.cboDistUnit->setCurrentText("miles");
    f.txtPlannedDuration->setText("00:50:00");
    f.cmdSave->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(Ui().Messages().isEmpty()) << Ui().MessageTexts().join("|").toStdString();
    EXPECT_TRUE(p.RefreshRequested);

    EXPECT_EQ(CountUser("calendar where Name='Tempo Run' and WorkoutType='Exercise' and Image=1"), 3);
    EXPECT_EQ(CountUser("Daily_Exercise where Name='Tempo Run'"), 3);
    EXPECT_EQ(CountUser("Daily_Templates where Name='Tempo Run'"), 15);
    EXPECT_EQ(CountUser("Daily_Psych where Name='Tempo Run'"), 3);
    // Each session under its own day's key, the same key as its calendar row.
    for (const QDate& d : {kDay, d2, d3}) {
        const QString key = Str(UserValue("select [Key] from calendar where Name='Tempo Run' and date=#" + SqlDate(d) + "#"));
        EXPECT_EQ(CountUser("Daily_Exercise where date=#" + SqlDate(d) + "# and key='" + key + "'"), 1) << SqlDate(d).toStdString();
    }
    EXPECT_EQ(Str(UserValue("select [Key] from calendar where Name='Tempo Run' and date=#2026-03-12#")), "2");
    EXPECT_DOUBLE_EQ(Val(UserValue("select PlannedDistance from Daily_Exercise where date=#2026-03-15#")), 6.2);
    EXPECT_EQ(Str(UserValue("select Formula from Daily_Templates where date=#2026-03-15# and worder=3")), "B2/B1");
    EXPECT_EQ(Str(UserValue("select [Value] from Daily_Templates where date=#2026-03-15# and worder=3")), "");
    EXPECT_EQ(Str(UserValue("select [Value] from Daily_Templates where date=#2026-03-15# and worder=1")), "10");
    EXPECT_EQ(Str(UserValue("select Units from Daily_Templates where date=#2026-03-15# and worder=4")), "Road");
    EXPECT_TRUE(p.CalView->HasPicture(d3));

    // Tab runs from the planned distance across to the actual one, and from the speed's button to
    // the intensity.
    EXPECT_EQ(f.txtPlannedDistance->nextInFocusChain(), f.txtDistance);
    EXPECT_EQ(f.cmdCalc->nextInFocusChain(), f.cboIntensity);
    EXPECT_EQ(f.cboTraining->nextInFocusChain(), f.txtEvent);
    // It opens within 1280 x 720 and can be made smaller still.
    EXPECT_LE(f.width(), 1280);
    EXPECT_LE(f.height(), 720 - 40);
    EXPECT_LT(f.minimumSizeHint().width(), 1100);
    EXPECT_LT(f.minimumSizeHint().height(), 680);
    // A look at the screen.
    f.resize(1120, 680);
    f.grab().save("/tmp/orvantis_exerciselog_details.png");
    f.TabPerformance->setCurrentIndex(1);
    f.grab().save("/tmp/orvantis_exerciselog_fields.png");
}

// The planner opens a saved entry by its name (quote doubled on the way) and key; the log
// finds the session and the planner shows the calories it saved.
TEST_F(ExerciseLogTest, OpensFromThePlannersEntry)
{
    const QString key = SaveNew("Coach's Run", "5", "00:40:00");
    RegisterExerciseScreens();
    frmSched2& p = OpenPlanner({kDay});
    int entry = 0;
    for (const auto* e : p.DayView->Model().DayEntries())
        if (e->text == "Coach's Run") entry = e->id;
    ASSERT_GT(entry, 0);
    bool opened = false;
    Ui().OnDialog("frmExerciseLog", [&](QDialog* d) {
        auto* f = static_cast<frmExerciseLog*>(d);
        opened = true;
        EXPECT_EQ(f->SessionName(), "Coach's Run");
        EXPECT_EQ(f->SessionKey(), key);
        EXPECT_EQ(f->txtDistance->text(), "5");
        f->txtCals->setText("321");
        f->cmdSave->click();
        return f->result();
    });
    p.DayView_DblClick(entry);
    EXPECT_TRUE(opened);
    EXPECT_EQ(Ui().LastMessage().text, "Exercise/Sport Saved.");
    EXPECT_EQ(p.txtCalsOut->text(), "321");
}

// Start and end are compared by hour and minute: seconds do not count and a session cannot
// run past midnight. Nothing is written.
TEST_F(ExerciseLogTest, TimesRefused)
{
    Schedule("Tempo Run");
    for (auto times : {std::pair{QTime(10, 30, 10), QTime(10, 30, 50)}, std::pair{QTime(23, 59), QTime(0, 29)}}) {
        frmExerciseLog f;
        f.txtStartTime->setTime(times.first);
        f.txtEndTime->setTime(times.second);
        f.cmdSave->click();
        EXPECT_EQ(Ui().LastMessage().text, "Please check your start and end times before scheduling.");
        EXPECT_EQ(Ui().LastMessage().title, "Message");
        EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
        EXPECT_NE(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(CountUser("calendar"), 0);
    EXPECT_EQ(CountUser("Daily_Exercise"), 0);
}

// An existing entry: everything saved comes back; a change replaces the rows wholesale and
// copies calories, duration and intensity to the calendar. The planner hands the name over
// with its quote doubled.
TEST_F(ExerciseLogTest, OpenChangeAndSaveASession)
{
    const QString key = SaveNew("Coach's Run", "5", "00:40:00");
    ASSERT_EQ(CountUser("Daily_Exercise where Name='Coach''s Run'"), 1);
    OpenEntry("Coach's Run", key.toInt());
    {
        frmExerciseLog f;
        EXPECT_FALSE(f.Scheduling());
        EXPECT_EQ(f.SessionName(), "Coach's Run");
        EXPECT_EQ(f.windowTitle(), "Exercise/Sports Planning and Log for " + regional::LongDate(kDay));
        EXPECT_TRUE(f.txtStartTime->isHidden());
        EXPECT_TRUE(f.lblStart->isHidden());
        EXPECT_EQ(f.lblTime->text(), "Scheduled from 9:00:00 AM to 9:30:00 AM");
        EXPECT_EQ(f.txtDistance->text(), "5");
        EXPECT_EQ(f.txtDuration->text(), "00:40:00");
        EXPECT_EQ(f.cboDistUnit->currentText(), "miles");
        EXPECT_EQ(f.SS3->MaxRows(), 0);
        EXPECT_EQ(f.txtLaps->value(), 0);
        // Fill the rest.
        f.txtDistance->setText("6.288");
        f.txtDuration->setText("01:00:00");
        f.cboBaseUnit->setCurrentText("kph");
        EXPECT_TRUE(f.cmdCalc->isEnabled());
        f.cmdCalc->click();
        EXPECT_EQ(f.txtSpeed->text(), "10");
        f.cboIntensity->setCurrentIndex(f.cboIntensity->findText("5"));   // 3.2 an hour and pound
        f.cboTraining->setCurrentText("Practice");
        f.txtEvent->setText(QString(60, 'e'));
        f.cboRoute->setEditText("Riverside loop");
        f.txtComments->setPlainText(QString(80, 'n'));
        f.txtStartHeart->setText("142");
        f.txtZone[0]->setText("00:10:00");
        f.txtZone[5]->setText("00:03:00");
        f.txtAvgHR->setText("141");
        f.txtLaps->setValue(2);
        EXPECT_EQ(f.SS3->Text(2, 1), "2");
        EXPECT_EQ(f.SS3->Text(2, 2), "00:00:00");
        f.SS3->SetText(1, 2, "00:05:10");
        f.txtCals->setText("650");
        f.Psych->optSleep[0]->setChecked(true);
        f.cmdSave->click();
        EXPECT_EQ(Ui().LastMessage().text, "Exercise/Sport Saved.");
        EXPECT_EQ(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(CountUser("Daily_Exercise"), 1);
    EXPECT_EQ(CountUser("Daily_Psych"), 1);
    EXPECT_EQ(CountUser("Daily_Templates"), 5);
    EXPECT_EQ(CountUser("calendar"), 1);
    EXPECT_DOUBLE_EQ(Val(UserValue("select Cals from calendar")), 650);
    EXPECT_EQ(Str(UserValue("select Duration from calendar")), "01:00:00");
    EXPECT_DOUBLE_EQ(Val(UserValue("select Intensity from calendar")), 5);
    EXPECT_EQ(Str(UserValue("select LapTimes from Daily_Exercise")), "00:05:10~00:00:00~");
    EXPECT_EQ(Str(UserValue("select EventName from Daily_Exercise")), QString(50, 'e'));
    EXPECT_EQ(Str(UserValue("select Comments from Daily_Exercise")), QString(80, 'n'));
    EXPECT_EQ(Str(UserValue("select SpeedUnit from Daily_Exercise")), "kph");

    // Everything comes back, the route remembered in the list.
    frmExerciseLog g;
    EXPECT_EQ(g.txtSpeed->text(), "10");
    EXPECT_EQ(g.cboIntensity->currentText(), "5");
    EXPECT_EQ(g.cboTraining->currentText(), "Practice");
    EXPECT_GE(g.cboRoute->findText("Riverside loop"), 0);
    EXPECT_EQ(g.cboRoute->currentText(), "Riverside loop");
    EXPECT_EQ(g.txtLaps->value(), 2);
    EXPECT_EQ(g.SS3->Text(1, 2), "00:05:10");
    EXPECT_EQ(g.txtStartHeart->text(), "142");
    EXPECT_EQ(g.txtZone[0]->text(), "00:10:00");
    EXPECT_EQ(g.txtZone[5]->text(), "00:03:00");
    EXPECT_EQ(g.txtAvgHR->text(), "141");
    EXPECT_EQ(g.txtCals->text(), "650");
    EXPECT_TRUE(g.Psych->optSleep[0]->isChecked());
}

// The session keeps its own copy of the form: a later change of the library's form does not
// reach it, and its recorded 0 stays 0. "Reset Form" takes the library's form again.
TEST_F(ExerciseLogTest, FormChangesDoNotReachSavedSessions)
{
    Schedule("Tempo Run");
    {
        frmExerciseLog f;
        f.SS2->SetText(1, 2, "0");
        f.SS2->SetCellType(2, 2, Grid::TypeNumber);
        f.SS2->SetText(2, 2, "42");
        f.cmdSave->click();
    }
    const QString key = SelectedKey;
    LibraryConn.Execute("update endurance_templates set field_name='Kilometres' where Name='Tempo Run' and worder=1");
    Form("Tempo Run", 6, "Cadence", "", "170", "spm");
    OpenEntry("Tempo Run", key.toInt());
    frmExerciseLog g;
    ASSERT_EQ(g.SS2->MaxRows(), 5);
    EXPECT_EQ(g.SS2->Text(1, 1), "Distance km");
    EXPECT_EQ(g.SS2->Text(1, 2), "0");            // a saved 0 stays
    EXPECT_EQ(g.SS2->Text(3, 2), "");             // 42 / 0: a division by zero shows nothing
    EXPECT_EQ(g.SS2->Formula(3, 2), "B2/B1");
    EXPECT_EQ(g.SS2->GetCellType(4, 3), Grid::TypeList);
    EXPECT_EQ(g.SS2->Text(4, 3), "Road");
    g.SSCommand1->click();
    ASSERT_EQ(g.SS2->MaxRows(), 6);
    EXPECT_EQ(g.SS2->Text(1, 1), "Kilometres");
    EXPECT_EQ(g.SS2->Text(6, 2), "170");
    EXPECT_EQ(g.txtRows->value(), 6);
    // A formula typed in a value cell; a bad one shows its error in the cell.
    g.SS2->SetText(6, 2, "=B1+B2");
    emit g.SS2->CellEdited(6, 2);
    EXPECT_TRUE(g.SS2->HasFormula(6, 2));
    g.SS2->SetText(1, 2, "8");
    EXPECT_EQ(g.SS2->Text(6, 2), "8");
    g.SS2->SetText(2, 2, "42");
    EXPECT_EQ(g.SS2->Text(6, 2), "50");
    g.SS2->SetText(5, 2, "=B1+");
    emit g.SS2->CellEdited(5, 2);
    EXPECT_EQ(g.SS2->Text(5, 2), "#ERR");
    // Plain text and numbers decide the cell's kind on leaving it.
    g.SS2->SetText(2, 2, "fast");
    emit g.SS2->CellEdited(2, 2);
    EXPECT_EQ(g.SS2->GetCellType(2, 2), Grid::TypeText);
    g.SS2->SetText(2, 2, "0");
    emit g.SS2->CellEdited(2, 2);
    EXPECT_EQ(g.SS2->GetCellType(2, 2), Grid::TypeNumber);
    // Delete Row takes the current row.
    g.SS2->SetActiveCell(2, 1);
    g.SSCommand2->click();
    EXPECT_EQ(g.SS2->MaxRows(), 5);
    EXPECT_EQ(g.txtRows->value(), 5);
    EXPECT_EQ(g.SS2->Text(2, 1), "Pace");
}

// The questionnaire: a session answered with nothing still gets its row; a "No" is stored as
// the column's default and reads back as "No", like a question never answered.
TEST_F(ExerciseLogTest, PsychologyRowsAndAnswers)
{
    const QString key = SaveNew("Tempo Run", "3", "00:30:00");
    EXPECT_EQ(CountUser("Daily_Psych where Name='Tempo Run' and key='" + key + "'"), 1);
    EXPECT_EQ(CountUser("Daily_Psych where sleep=false and Doubts=false and Levelbefore=''"), 1);

    OpenEntry("Tempo Run", key.toInt());
    {
        frmExerciseLog f;
        EXPECT_TRUE(f.Psych->optSleep[1]->isChecked());   // never answered: No
        f.Psych->optGoals[0]->setChecked(true);
        f.Psych->optDoubt[1]->setChecked(true);
        f.Psych->txtGoals->setText("  well done  ");
        f.Psych->cboRating[0]->setCurrentText("high");
        f.Psych->cboRating[6]->setCurrentText("very high");
        f.Psych->txtRating->setText("eight");
        f.cmdSave->click();
    }
    EXPECT_EQ(CountUser("Daily_Psych"), 1);
    EXPECT_EQ(CountUser("Daily_Psych where AccomplishGoals=true and Doubts=false and AccompishText='well done' "
                        "and Levelbefore='high' and LevelCommitted='very high' and LevelRating='eight'"),
              1);
    UserConn.Execute("update Daily_Psych set Levelafter='sky high'");
    frmExerciseLog g;
    EXPECT_TRUE(g.Psych->optGoals[0]->isChecked());
    EXPECT_TRUE(g.Psych->optDoubt[1]->isChecked());
    EXPECT_EQ(g.Psych->cboRating[0]->currentText(), "high");
    EXPECT_EQ(g.Psych->cboRating[1]->currentIndex(), -1);   // not in the list: nothing
    EXPECT_EQ(g.Psych->txtRating->text(), "eight");

    // The two logs word two questions differently.
    PsychPanel exercise(PsychPanel::ExerciseLog), strength(PsychPanel::StrengthLog);
    auto captions = [](PsychPanel& p) {
        QStringList texts;
        for (auto* l : p.findChildren<QLabel*>())
            texts << l->text().remove('&');
        return texts;
    };
    EXPECT_TRUE(captions(exercise).contains("What was your level of committment?"));
    EXPECT_TRUE(captions(exercise).contains("How did this affect you?"));
    EXPECT_TRUE(captions(strength).contains("What was your level of commitment?"));
    EXPECT_TRUE(captions(strength).contains("If so, how did this affect you?"));
}

// Intervals: a template of empty sets saves nothing yet says it was saved; saving under a name
// replaces the template; a session keeps its plan with the template's name and reselects it.
TEST_F(ExerciseLogTest, IntervalTemplatesAndTheSessionsPlan)
{
    Schedule("Tempo Run");
    frmExerciseLog f;
    IntervalsPanel& iv = *f.Intervals;
    EXPECT_FALSE(iv.cmdSaveInterval->isEnabled());
    iv.cboIntervals->setEditText("Empty sets");
    EXPECT_TRUE(iv.cmdSaveInterval->isEnabled());
    iv.cmdSaveInterval->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please add an interval before saving.");
    iv.Spin1->setValue(2);
    EXPECT_EQ(iv.SS1->MaxRows(), 2);
    EXPECT_EQ(iv.SS1->Text(2, 0), "2");
    iv.SS1->SetText(1, 2, "400 m");
    iv.cmdSaveInterval->click();
    EXPECT_EQ(Ui().LastMessage().text, "Interval Template Saved.");
    EXPECT_EQ(CountLibrary("Intervals where Name='Empty sets'"), 0);

    iv.cmdClearIntervals->click();
    EXPECT_EQ(iv.SS1->MaxRows(), 1);
    EXPECT_EQ(iv.SS1->Text(1, 1), "1");
    EXPECT_EQ(iv.Spin1->value(), 1);
    EXPECT_EQ(iv.cboIntervals->currentText(), "");
    iv.cboIntervals->setEditText("8 x 400");
    iv.Spin1->setValue(3);
    for (int r = 1; r <= 3; ++r) {
        iv.SS1->SetText(r, 1, QString::number(r));
        iv.SS1->SetText(r, 2, "400 m");
        iv.SS1->SetText(r, 4, "90 s");
    }
    iv.cmdSaveInterval->click();
    EXPECT_EQ(CountLibrary("Intervals where Name='8 x 400'"), 3);
    EXPECT_FALSE(iv.cmdSaveInterval->isEnabled());
    EXPECT_EQ(iv.cboIntervals->currentText(), "8 x 400");
    iv.Spin1->setValue(2);                        // rows cut are lost
    const int templates = iv.cboIntervals->count();
    iv.cboIntervals->setEditText("");
    iv.cboIntervals->setEditText("8 x 400");
    iv.cmdSaveInterval->click();
    EXPECT_EQ(CountLibrary("Intervals where Name='8 x 400'"), 2);   // replaced wholesale
    EXPECT_EQ(iv.cboIntervals->findText("8 x 400"), iv.cboIntervals->currentIndex());
    EXPECT_EQ(iv.cboIntervals->count(), templates);

    iv.SS1->SetText(2, 3, "fast");
    f.cmdSave->click();
    const QString key = SelectedKey;
    EXPECT_EQ(CountUser("Daily_Intervals where Name='8 x 400' and key='" + key + "'"), 2);

    f.TabPerformance->setCurrentIndex(2);
    f.resize(1120, 680);
    f.grab().save("/tmp/orvantis_exerciselog_intervals.png");
    LibraryConn.Execute("insert into Intervals (Name, [Set], Description) values ('Ladder test', '1', '200 m')");
    OpenEntry("Tempo Run", key.toInt());
    frmExerciseLog g;
    EXPECT_EQ(g.Intervals->cboIntervals->currentText(), "8 x 400");
    EXPECT_EQ(g.Intervals->SS1->MaxRows(), 2);
    EXPECT_EQ(g.Intervals->Spin1->value(), 2);
    EXPECT_EQ(g.Intervals->SS1->Text(2, 3), "fast");
    EXPECT_TRUE(g.Intervals->cmdDelInterval->isEnabled());
    // Choosing another template fills the grid with its sets.
    g.Intervals->cboIntervals->setCurrentIndex(g.Intervals->cboIntervals->findText("Ladder test"));
    g.Intervals->SelectTemplate(g.Intervals->cboIntervals->currentIndex());
    EXPECT_EQ(g.Intervals->SS1->MaxRows(), 1);
    EXPECT_EQ(g.Intervals->SS1->Text(1, 2), "200 m");
    // Deleting a template asks first.
    Ui().Answer(vbNo);
    g.Intervals->cmdDelInterval->click();
    EXPECT_EQ(CountLibrary("Intervals where Name='Ladder test'"), 1);
    g.Intervals->cmdDelInterval->click();
    EXPECT_EQ(Ui().LastMessage().text, "Delete Interval Template?");
    EXPECT_EQ(CountLibrary("Intervals where Name='Ladder test'"), 0);
    EXPECT_EQ(g.Intervals->SS1->MaxRows(), 0);
    EXPECT_EQ(g.Intervals->Spin1->value(), 0);
}

// Calories: the intensity's rate x hours x the day's weight; before the first weigh-in the
// earliest one; without any, nothing.
TEST_F(ExerciseLogTest, CaloriesFromIntensityHoursAndWeight)
{
    Schedule("Tempo Run");
    frmExerciseLog f;
    f.txtDuration->setText("01:30:00");
    f.cmdCalcCals->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please select an intensity to calculate calories burned.");
    f.cboIntensity->setCurrentIndex(f.cboIntensity->findText("5"));
    EXPECT_EQ(f.cboIntensity->currentData().toLongLong(), 3200);
    f.txtCals->setText("7");
    f.cmdCalcCals->click();
    EXPECT_EQ(f.txtCals->text(), "7");   // no weigh-in: unchanged, no word
    EXPECT_EQ(Ui().Messages().size(), 1);
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-04-01#, 160)");
    f.cmdCalcCals->click();
    EXPECT_EQ(f.txtCals->text(), "768");   // the earliest: 3.2 x 1.5 x 160
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-03-01#, 150)");
    f.cmdCalcCals->click();
    EXPECT_EQ(f.txtCals->text(), "720");
    f.txtDuration->setText("00:00:36");      // 0.01 h, not TimeToHours' 0.1
    f.cmdCalcCals->click();
    EXPECT_EQ(f.txtCals->text(), "5");
}

// The speed button follows its rule; the planned column calculates too.
TEST_F(ExerciseLogTest, SpeedButtonAndBothColumns)
{
    Schedule("Tempo Run");
    frmExerciseLog f;
    EXPECT_FALSE(f.cmdCalc->isEnabled());
    f.txtDistance->setText("10");
    EXPECT_FALSE(f.cmdCalc->isEnabled());      // a blank duration
    f.txtPlannedDuration->setText("02:00:00");
    EXPECT_FALSE(f.cmdCalc->isEnabled());
    f.txtPlannedDistance->setText("12");
    EXPECT_FALSE(f.cmdCalc->isEnabled());      // no unit
    f.cboDistUnit->setCurrentText("miles");
    EXPECT_TRUE(f.cmdCalc->isEnabled());
    f.cboBaseUnit->setCurrentText("mph");
    f.cmdCalc->click();
    EXPECT_EQ(f.txtPlannedSpeed->text(), "6");
    EXPECT_EQ(f.txtSpeed->text(), "");          // no hours: left alone
    f.txtDuration->setText("01:15:00");
    f.cmdCalc->click();
    EXPECT_EQ(f.txtSpeed->text(), "8");
}

// The history: totals over the range in the chosen unit, one chart point per session, even
// two on one day.
TEST_F(ExerciseLogTest, HistoryTotalsAndChart)
{
    auto add = [this](const QString& date, double distance, const QString& unit, const QString& duration, double intensity,
                      const QString& start) {
        UserConn.Execute(QString("insert into Daily_Exercise (User_ID, [Date], Name, [Key], Distance, DistanceUnit, duration, "
                                 "Intensity, StartTime, StartHeart) values ('%1', #%2#, 'Tempo Run', '9', %3, '%4', '%5', %6, "
                                 "#%2 %7#, 140)")
                             .arg(id, date)
                             .arg(distance)
                             .arg(unit, duration)
                             .arg(intensity)
                             .arg(start));
    };
    add("2026-03-01", 10, "kilometers", "01:00:00", 4, "08:00:00");
    add("2026-03-03", 5, "miles", "00:40:00", 6, "08:00:00");
    add("2026-03-03", 2, "miles", "00:20:00", 5, "18:00:00");
    add("2026-04-03", 9, "miles", "01:00:00", 5, "08:00:00");
    Schedule("Tempo Run");
    frmExerciseLog f;
    EXPECT_EQ(f.cboHistUnit->count(), 2);
    f.cboHistUnit->setCurrentText("miles");
    EXPECT_EQ(f.lblAvgSpeed->text(), "miles/h");
    f.txtStart->setDate(QDate(2026, 3, 1));
    f.txtEnd->setDate(QDate(2026, 3, 31));
    f.TabTop->setCurrentIndex(frmExerciseLog::HistoryTab);
    EXPECT_EQ(f.txtWorkouts->text(), "3");
    EXPECT_EQ(f.txtTTime->text(), "2");
    EXPECT_EQ(f.txtDist->text(), "13.21");       // 6.21 + 5 + 2
    EXPECT_EQ(f.txtAvgSpeed->text(), "6.61");
    EXPECT_EQ(f.txtInt->text(), "5");
    EXPECT_EQ(f.cboGraph->currentIndex(), 0);
    ASSERT_EQ(f.Chart1->PointCount(), 3);
    EXPECT_EQ(f.Chart1->Label(1), "03-03-26");
    EXPECT_EQ(f.Chart1->Label(2), "03-03-26");
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 1), 5);
    EXPECT_EQ(f.Chart1->Title(), "Tempo Run - Distance (miles)");
    EXPECT_NEAR(f.Chart1->ViewHigh(), 6.2137 * 1.1, 0.001);   // the axis runs to the largest x 1.1
    f.cboGraph->setCurrentIndex(1);
    EXPECT_EQ(f.Chart1->Title(), "Tempo Run - Speed (miles/h)");
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 1), 7.5);
    f.cboGraph->setCurrentIndex(4);
    EXPECT_DOUBLE_EQ(f.Chart1->SeriesValue(0, 0), 140);
    f.cboStyle->setCurrentIndex(1);
    EXPECT_EQ(f.Chart1->GetStyle(), Chart::Line);
    f.cmdZoomIn->click();
    EXPECT_EQ(f.Chart1->VisibleCount(), 1);
    f.cmdZoomOut->click();
    EXPECT_EQ(f.Chart1->VisibleCount(), 3);
    // A range without sessions leaves the totals as they were.
    f.txtStart->setDate(QDate(2025, 1, 1));
    f.txtEnd->setDate(QDate(2025, 1, 2));
    EXPECT_EQ(f.txtWorkouts->text(), "3");
    f.txtEnd->setDate(QDate(2026, 12, 31));
    f.txtStart->setDate(QDate(2026, 1, 1));
    EXPECT_EQ(f.txtWorkouts->text(), "4");
    f.resize(1120, 680);
    f.grab().save("/tmp/orvantis_exerciselog_history.png");
    f.TabTop->setCurrentIndex(1);
    f.grab().save("/tmp/orvantis_exerciselog_psych.png");
}

// Print waits for a saved session and for the report page; the heart-rate screen opens over
// the log.
TEST_F(ExerciseLogTest, PrintAndHeartRateScreen)
{
    Schedule("Tempo Run");
    {
        frmExerciseLog f;
        EXPECT_FALSE(f.cmdPreviewExercise->isEnabled());
    }
    QString printed;
    ReportExerciseLink() = [&printed](const QString& file) { printed = file; };
    {
        frmExerciseLog f;
        EXPECT_TRUE(f.cmdPreviewExercise->isEnabled());
        f.cmdPreviewExercise->click();
        EXPECT_EQ(Ui().LastMessage().text, "You must Save this Exercise/Sport before printing.");
        EXPECT_TRUE(printed.isEmpty());
        f.cmdSave->click();
    }
    OpenEntry("Run/Walk\\Jog", 1);
    frmExerciseLog f;
    f.cmdPreviewExercise->click();
    EXPECT_EQ(printed, "RunWalkJog.htm");
    bool shown = false;
    Ui().OnDialog("frmHRM", [&shown](QDialog*) {
        shown = true;
        return 0;
    });
    f.FB1->click();
    EXPECT_TRUE(shown);
    f.TabPerformance->setCurrentIndex(3);
    f.resize(1120, 680);
    f.grab().save("/tmp/orvantis_exerciselog_heart.png");
}

// A statement that fails while saving shows its error and leaves nothing half-written: the
// session's earlier rows stay as they were.
TEST_F(ExerciseLogTest, AFailingStatementLeavesNoHalfWrittenSession)
{
    const QString key = SaveNew("Tempo Run", "4", "00:30:00");
    OpenEntry("Tempo Run", key.toInt());
    {
        frmExerciseLog f;
        f.txtDistance->setText("8");
        f.txtCals->setText("500");
        RawSql(UserConn, "alter table Daily_Psych rename to Daily_Psych_gone");
        f.cmdSave->click();
        RawSql(UserConn, "alter table Daily_Psych_gone rename to Daily_Psych");
        EXPECT_EQ(Ui().LastMessage().title, "Error");
        EXPECT_NE(f.result(), QDialog::Accepted);
    }
    EXPECT_EQ(CountUser("Daily_Exercise"), 1);
    EXPECT_DOUBLE_EQ(Val(UserValue("select Distance from Daily_Exercise")), 4);
    EXPECT_EQ(CountUser("Daily_Intervals"), 0);
    EXPECT_EQ(CountUser("Daily_Psych"), 1);
    EXPECT_DOUBLE_EQ(Val(UserValue("select Cals from calendar")), 0);

    // Scheduling: the failing day leaves no calendar row either, and the screen stays open.
    Schedule("Tempo Run");
    frmExerciseLog g;
    RawSql(UserConn, "alter table Daily_Templates rename to Daily_Templates_gone");
    g.cmdSave->click();
    RawSql(UserConn, "alter table Daily_Templates_gone rename to Daily_Templates");
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_EQ(CountUser("calendar"), 1);
    EXPECT_EQ(CountUser("Daily_Exercise"), 1);
    EXPECT_NE(g.result(), QDialog::Accepted);
}
