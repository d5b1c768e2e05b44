// The workout library: adding exercises and sets, moving them, the save checks and messages,
// deleting, names with an apostrophe, and a workout page written and imported back.
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest/QTest>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Grid.h"
#include "fixtures/fixture.h"
#include "strength/frmStrengthWorkouts.h"
#include "strength/rules/workoutpage.h"

namespace {

using W = frmStrengthWorkouts;

class WorkoutsTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        AddAthlete("Pat");
        // The seeded library is not what these cases are about.
        for (const char* t : {"workouts", "Workout_exercises", "strength_exercises", "muscle_groups", "muscle_associations"})
            LibraryConn.Execute(QString("delete * from ") + t);
        for (const char* g : {"Chest", "Legs", "Total Body"})
            LibraryConn.Execute(QString("insert into muscle_groups ([group]) values ('%1')").arg(g));
        AddExercise("Legs", "Back Squat", "Compound", 100, "Squat");
        AddExercise("Chest", "Bench Press", "Compound", 100, "Bench Press");
        AddExercise("Legs", "Farmer's Walk", "Compound", 40, "Deadlift");
        AddExercise("Legs", "Hamstring Stretch", "Stretch", 0, "");
    }
    static void AddExercise(const QString& group, const QString& name, const QString& type, double perc,
                            const QString& lift)
    {
        LibraryConn.Execute("insert into strength_exercises (muscle_group, exercise, Beginner, Intermediate, Advanced, "
                            "Type, Description, Perc_Lift, lift) values ('" + group + "', '" + SqlQuote(name) +
                            "', 'Y', 'Y', '', '" + type + "', 'How to " + SqlQuote(name) + "', " +
                            QString::number(perc) + ", '" + lift + "')");
    }
    static void Add(W& f, const QString& exercise)
    {
        const auto lines = f.list1->findItems(exercise, Qt::MatchExactly);
        ASSERT_FALSE(lines.isEmpty()) << exercise.toStdString();
        f.list1->setCurrentItem(lines.first());
        f.cmdAdd->click();
    }
    static bool Select(W& f, const QString& name)
    {
        const auto lines = f.lstWorkouts->findItems(name, Qt::MatchExactly);
        if (lines.isEmpty())
            return false;
        f.lstWorkouts->setCurrentItem(lines.first());
        return true;
    }
    static QStringList Column(W& f, int col)
    {
        QStringList cells;
        for (int r = 1; r <= f.SS1->MaxRows(); ++r)
            cells << f.SS1->Text(r, col);
        return cells;
    }
    // The stored sets of a workout, one line per set in the store's order.
    static QStringList StoredSets(const QString& name)
    {
        QStringList sets;
        Recordset rs(&LibraryConn);
        rs.Open("select b.* from workouts a, Workout_exercises b where a.workout_name='" + SqlQuote(name) +
                "' and a.workout_id=b.workout_id");
        for (; !rs.Eof(); rs.MoveNext())
            sets << QStringList{Str(rs.Field("muscle_group")), Str(rs.Field("exercise")), Str(rs.Field("Sets")),
                                Str(rs.Field("Reps")), Str(rs.Field("weight")), Str(rs.Field("Goal")),
                                Str(rs.Field("Comments"))}
                        .join('|');
        return sets;
    }
    static QString WorkoutField(const QString& name, const QString& field)
    {
        Recordset rs(&LibraryConn);
        rs.Open("select * from workouts where workout_name='" + SqlQuote(name) + "'");
        return rs.Eof() ? QStringLiteral("<none>") : Str(rs.Field(field));
    }
    // A new strength workout of two exercises, saved.
    void SaveLegDay(W& f, const QString& name)
    {
        f.cmdClear->click();
        Add(f, "Back Squat");
        Add(f, "Bench Press");
        Add(f, "Back Squat");
        f.SS1->SetText(1, W::gcWeight, "135");
        f.SS1->SetText(2, W::gcGoal, "  Slow down  ");
        f.txtWorkout->setText(name);
        f.txtComments->setText(" Heavy legs ");
        f.cboMuscleGroup->setCurrentText("Legs");
        f.chkBeginner->setChecked(true);
        f.cmdSave->setEnabled(true);
        f.cmdSave->click();
    }
};

}  // namespace

TEST_F(WorkoutsTest, AddingSetsAndMovingThem)
{
    W f;
    EXPECT_EQ(f.cboType->currentText(), "Workouts");
    EXPECT_EQ(f.SS1->Text(0, W::gcWeight), "Weight (lbs)");
    EXPECT_EQ(f.list1->count(), 3);   // no stretch among the exercises
    f.optExercise[1]->setChecked(true);
    ASSERT_EQ(f.list1->count(), 1);
    EXPECT_EQ(f.list1->item(0)->text(), "Hamstring Stretch");
    f.optExercise[0]->setChecked(true);

    // A new exercise starts at set 1 with 10 reps; a further set goes behind its last row.
    Add(f, "Back Squat");
    Add(f, "Bench Press");
    f.SS1->SetText(1, W::gcIntensity, "Hard");
    Add(f, "Back Squat");
    EXPECT_EQ(Column(f, W::gcExercise), QStringList({"Back Squat", "Back Squat", "Bench Press"}));
    EXPECT_EQ(Column(f, W::gcMuscle), QStringList({"Legs", "Legs", "Chest"}));
    EXPECT_EQ(Column(f, W::gcSet), QStringList({"1", "2", "1"}));
    EXPECT_EQ(Column(f, W::gcReps), QStringList({"10", "", "10"}));
    EXPECT_EQ(f.SS1->Text(2, W::gcIntensity), "Hard");
    EXPECT_TRUE(f.cmdSave->isEnabled() == false);   // no name yet

    // Inserting sets has no limit here: 35 sets of the bench press.
    f.SS1->SetActiveCell(3, W::gcReps);
    for (int i = 0; i < 34; ++i)
        f.cmdAddSet->click();
    EXPECT_EQ(f.SS1->MaxRows(), 37);
    EXPECT_EQ(f.SS1->Text(37, W::gcSet), "35");
    EXPECT_EQ(f.SS1->Text(37, W::gcReps), "10");
    EXPECT_TRUE(Ui().Messages().isEmpty());
    for (int i = 0; i < 34; ++i) {
        f.SS1->SetActiveCell(4, W::gcReps);
        f.cmdRemoveSet->click();
    }
    ASSERT_EQ(f.SS1->MaxRows(), 3);
    // The "+" and "-" keys in the grid do the same.
    f.SS1->SetActiveCell(1, W::gcGoal);
    QTest::keyClick(f.SS1, Qt::Key_Plus);
    EXPECT_EQ(Column(f, W::gcSet), QStringList({"1", "2", "3", "1"}));
    QTest::keyClick(f.SS1, Qt::Key_Minus);
    ASSERT_EQ(f.SS1->MaxRows(), 3);

    // Moving the top row up, or the last one down, is refused; a block moves whole.
    f.SS1->SetActiveCell(1, 1);
    f.SS1->setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, 7), true);
    EXPECT_FALSE(f.cmdUp->isEnabled());
    f.on_cmdUp_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) up.");
    EXPECT_EQ(Ui().LastMessage().title, "Message");
    f.cmdDown->click();
    EXPECT_EQ(Column(f, W::gcExercise), QStringList({"Bench Press", "Back Squat", "Back Squat"}));
    EXPECT_EQ(Column(f, W::gcSet), QStringList({"1", "1", "2"}));
    f.on_cmdDown_clicked();
    EXPECT_EQ(Ui().LastMessage().text, "Can't move selected exercise(s) down.");
}

TEST_F(WorkoutsTest, SaveChecksMessagesAndDelete)
{
    W f;
    // Without a muscle group nothing is saved.
    Add(f, "Back Squat");
    f.txtWorkout->setText("Leg Day");
    f.cmdSave->setEnabled(true);
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please select a mucle group to save this workout.");
    EXPECT_EQ(Ui().LastMessage().icon, vbInformation);
    EXPECT_EQ(CountLibrary("workouts"), 0);

    SaveLegDay(f, " Leg Day ");
    EXPECT_EQ(Ui().LastMessage().text, "New Workout Saved.");
    EXPECT_EQ(WorkoutField("Leg Day", "wtype"), "strength");
    EXPECT_EQ(WorkoutField("Leg Day", "workout_desc"), "Heavy legs");
    EXPECT_EQ(WorkoutField("Leg Day", "muscle_group"), "Legs");
    EXPECT_EQ(WorkoutField("Leg Day", "Beginner"), "Y");
    EXPECT_EQ(WorkoutField("Leg Day", "Intermediate"), "");   // an unticked level stores ""
    EXPECT_EQ(StoredSets("Leg Day"), QStringList({"Legs|Back Squat|1|10|135||", "Legs|Back Squat|2|0|0|Slow down|",
                                                  "Chest|Bench Press|1|10|0||"}));
    // An empty weight shows 0 after saving; the new line is selected.
    EXPECT_EQ(f.SS1->Text(2, W::gcWeight), "0");
    ASSERT_NE(f.lstWorkouts->currentItem(), nullptr);
    EXPECT_EQ(f.lstWorkouts->currentItem()->text(), "Leg Day");

    // The same name in another case is taken.
    f.cmdClear->click();
    Add(f, "Bench Press");
    f.txtWorkout->setText("LEG DAY");
    f.cboMuscleGroup->setCurrentText("Chest");
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().text, "A workout with this name already exists.  Please rename your workout.");
    EXPECT_EQ(CountLibrary("workouts"), 1);

    // An existing workout: fields rewritten; an empty grid keeps its sets.
    ASSERT_TRUE(Select(f, "Leg Day"));
    EXPECT_EQ(f.SS1->MaxRows(), 3);
    EXPECT_TRUE(f.chkBeginner->isChecked());
    f.chkBeginner->setChecked(false);
    f.chkAdvanced->setChecked(true);
    f.SS1->SetMaxRows(0);
    f.txtWorkout->setText("Leg Day B");
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().text, "Workout updated.");
    EXPECT_EQ(WorkoutField("Leg Day B", "Beginner"), "");
    EXPECT_EQ(WorkoutField("Leg Day B", "Advanced"), "Y");
    EXPECT_EQ(StoredSets("Leg Day B").size(), 3);
    // The sets keep the name they were saved under.
    EXPECT_EQ(CountLibrary("Workout_exercises where Workout_Name='Leg Day'"), 3);
    EXPECT_EQ(f.lstWorkouts->currentItem()->text(), "Leg Day B");

    // A sports workout is listed under its kind only.
    f.cboType->setCurrentIndex(1);
    EXPECT_EQ(f.lstWorkouts->count(), 0);
    EXPECT_FALSE(f.cmdSave->isEnabled());
    Add(f, "Bench Press");
    f.txtWorkout->setText("Rowing Prep");
    f.cboMuscleGroup->setCurrentText("Chest");
    f.cmdSave->click();
    EXPECT_EQ(WorkoutField("Rowing Prep", "wtype"), "sports");

    // Deleting: nothing selected, then a No, then a Yes.
    f.cmdClear->click();
    f.cmdDeleteWorkout->click();
    EXPECT_EQ(Ui().LastMessage().text, "Please select a workout to delete.");
    EXPECT_FALSE(f.cmdDeleteWorkout->isEnabled());
    ASSERT_TRUE(Select(f, "Rowing Prep"));
    EXPECT_TRUE(f.cmdDeleteWorkout->isEnabled());
    Ui().Answer(vbNo);
    f.cmdDeleteWorkout->click();
    EXPECT_EQ(Ui().LastMessage().text, "Delete this workout?");
    EXPECT_EQ(Ui().LastMessage().title, "Action");
    EXPECT_EQ(CountLibrary("workouts where wtype='sports'"), 1);
    f.cmdDeleteWorkout->click();
    EXPECT_EQ(CountLibrary("workouts where wtype='sports'"), 0);
    EXPECT_EQ(CountLibrary("Workout_exercises where Workout_Name='Rowing Prep'"), 0);
    EXPECT_EQ(f.lstWorkouts->count(), 0);
    EXPECT_EQ(f.lblWorkout->text(), "Workout");
    EXPECT_EQ(f.SS1->MaxRows(), 0);
}

TEST_F(WorkoutsTest, ApostrophesInNames)
{
    {
        W f;
        f.cmdClear->click();
        Add(f, "Farmer's Walk");
        EXPECT_EQ(f.SS1->Text(1, W::gcMuscle), "Legs");
        f.txtWorkout->setText("Jo's Carry");
        f.cboMuscleGroup->setCurrentText("Total Body");
        f.cmdSave->click();
        EXPECT_EQ(Ui().LastMessage().text, "New Workout Saved.");
        f.cmdClear->click();
        f.txtWorkout->setText("jo's carry");
        Add(f, "Farmer's Walk");
        f.cboMuscleGroup->setCurrentText("Legs");
        f.cmdSave->click();
        EXPECT_EQ(Ui().LastMessage().text, "A workout with this name already exists.  Please rename your workout.");
    }
    W f;
    ASSERT_TRUE(Select(f, "Jo's Carry"));
    EXPECT_EQ(Column(f, W::gcExercise), QStringList({"Farmer's Walk"}));
    f.cmdDeleteWorkout->click();
    EXPECT_EQ(CountLibrary("workouts"), 0);
    EXPECT_EQ(CountLibrary("Workout_exercises"), 0);
}

TEST_F(WorkoutsTest, FailingSaveLeavesNothingHalfWritten)
{
    W f;
    SaveLegDay(f, "Leg Day");
    ASSERT_TRUE(Select(f, "Leg Day"));
    f.txtWorkout->setText("Leg Day 2");
    f.cmdSave->setEnabled(true);
    RawSql(LibraryConn, "ALTER TABLE Workout_exercises RENAME COLUMN Comments TO Remarks");
    f.cmdSave->click();
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    RawSql(LibraryConn, "ALTER TABLE Workout_exercises RENAME COLUMN Remarks TO Comments");
    EXPECT_EQ(WorkoutField("Leg Day", "Workout_Name"), "Leg Day");
    EXPECT_EQ(StoredSets("Leg Day").size(), 3);
}

TEST_F(WorkoutsTest, PageWrittenAndImportedBack)
{
    QString tags;
    QStringList saved;
    {
        W f;
        f.cmdClear->click();
        Add(f, "Back Squat");
        Add(f, "Farmer's Walk");
        Add(f, "Back Squat");
        f.SS1->SetText(1, W::gcWeight, "135");
        f.SS1->SetText(2, W::gcReps, "8");
        f.SS1->SetText(3, W::gcGoal, "Grip");
        f.SS1->SetText(3, W::gcNotes, "Outside");
        f.txtWorkout->setText("Carry Day");
        f.txtComments->setText("Squat and carry");
        f.cboMuscleGroup->setCurrentText("Legs");
        f.chkIntermediate->setChecked(true);
        f.cmdSave->click();
        saved = StoredSets("Carry Day");
        tags = f.CreateHTML();
    }
    EXPECT_TRUE(tags.contains("<!--name~Carry Day~-->\n"));
    EXPECT_TRUE(tags.contains("<!--exercise~Back Squat~Back Squat~Farmer's Walk~-->\n"));
    EXPECT_TRUE(tags.contains("<!--weight~135~0~0~-->\n"));
    EXPECT_TRUE(tags.contains("<!--beg~N~-->\n<!--int~Y~-->\n<!--adv~N~-->\n"));
    EXPECT_TRUE(tags.contains("<!--exerciseinfo~Legs~Farmer's Walk~Y~Y~~Compound~How to Farmer's Walk~40~Deadlift~"));

    // Another library: the workout and one exercise are not there; the carry sits elsewhere too.
    LibraryConn.Execute("delete * from workouts");
    LibraryConn.Execute("delete * from Workout_exercises");
    LibraryConn.Execute("delete * from strength_exercises where exercise='Farmer''s Walk'");
    LibraryConn.Execute("update strength_exercises set muscle_group='Glutes' where exercise='Back Squat'");
    Ui().ClearMessages();
    SelectedItem = "<html><body><h1>Carry Day</h1>\n" + tags + "</body></html>";
    {
        W f;
        EXPECT_TRUE(SelectedItem.isEmpty());
        EXPECT_TRUE(Ui().Messages().isEmpty());
        ASSERT_EQ(f.lstWorkouts->count(), 1);
        EXPECT_EQ(f.lstWorkouts->item(0)->text(), "Carry Day");
        EXPECT_EQ(f.txtComments->text(), "Squat and carry");
        EXPECT_TRUE(f.chkIntermediate->isChecked());
        EXPECT_FALSE(f.chkBeginner->isChecked());
    }
    QStringList imported = StoredSets("Carry Day");
    // The squat's rows take the group it has here now.
    saved.replaceInStrings("Legs|Back Squat", "Glutes|Back Squat");
    EXPECT_EQ(imported, saved);
    EXPECT_EQ(WorkoutField("Carry Day", "muscle_group"), "Total Body");
    EXPECT_EQ(WorkoutField("Carry Day", "Intermediate"), "Y");
    EXPECT_EQ(WorkoutField("Carry Day", "Advanced"), "");
    // The missing exercise came from the page's details, all levels from its first flag.
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='Farmer''s Walk' and Advanced='Y' and Perc_Lift=40 "
                           "and lift='Deadlift' and Type='Compound'"),
              1);
    EXPECT_EQ(CountLibrary("muscle_associations where exercise='Back Squat' and muscle_group='Legs'"), 1);

    // The same page again: the name is taken and nothing more is written.
    SelectedItem = "<html><body>\n" + tags + "</body></html>";
    W again;
    EXPECT_EQ(Ui().LastMessage().text, "A workout with this name already exists.  Please rename your workout.");
    EXPECT_EQ(again.SS1->MaxRows(), 3);
    EXPECT_EQ(CountLibrary("workouts"), 1);
    EXPECT_EQ(CountLibrary("muscle_associations"), 1);
}

TEST(WorkoutPage, ReadingListsAndDetails)
{
    // Empty values, and a row written without details takes the next row's.
    const QString page = "<p>x</p>\n<!--name~A~B~-->\n<!--description~~-->\n<!--exercise~Row~Curl~-->\n"
                         "<!--set~1~~-->\n<!--reps~~12~-->\n<!--weight~50~-->\n"
                         "<!--exerciseinfo~Arms~Curl~N~N~N~Isolation~d~30~Bench Press~i~e~p~7~-->\n";
    const workoutpage::ReadPage p = workoutpage::ReadTags(page);
    EXPECT_EQ(p.name, "A");
    EXPECT_EQ(p.description, "");
    EXPECT_EQ(p.beg, "");
    ASSERT_EQ(p.rows.size(), 2);
    EXPECT_EQ(p.rows[0].exercise, "Row");
    EXPECT_EQ(p.rows[1].set, "");
    EXPECT_EQ(p.rows[0].reps, "");
    EXPECT_EQ(p.rows[1].reps, "12");
    EXPECT_EQ(p.rows[1].weight, "");
    EXPECT_EQ(p.infoTags[0].value(2), "Curl");
    EXPECT_EQ(p.infoTags[0].value(8), "30");
    EXPECT_TRUE(p.infoTags[1].isEmpty());
    EXPECT_TRUE(workoutpage::IsWorkoutPage("<!--ovexerciseinfo~"));
    EXPECT_EQ(workoutpage::PageFileName("Push/Pull\\Legs"), "PushPullLegs.htm");
    // No tags at all: no rows and no names.
    EXPECT_TRUE(workoutpage::ReadTags("<html></html>").rows.isEmpty());
    // Line breaks never split a tag.
    workoutpage::Workout w;
    w.name = "Two\r\nlines";
    EXPECT_TRUE(workoutpage::WriteTags(w).startsWith("<!--name~Twolines~-->\n"));
}
