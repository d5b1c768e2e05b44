// The goal builder: its arithmetic on the worked examples (reps by purpose and level, the weight
// from a main lift through strength, age, sex, level and unit, the typical lifts of a strength
// level), and the screen generating, saving and reloading an athlete's goals.
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Grid.h"
#include "fixtures/fixture.h"
#include "strength/frmStrengthGoals.h"
#include "strength/rules/strengthgoals.h"

using namespace strengthgoals;

namespace {

// The settings of the worked example: squat 200, "Strong", age 30, male, "Beginner", pounds.
GoalSettings Example()
{
    GoalSettings s;
    s.purpose = 1;
    s.trainingLevel = QStringLiteral("Beginner");
    s.strengthLevel = QStringLiteral("Strong");
    s.squat = QStringLiteral("200");
    s.age = 30;
    s.sex = QStringLiteral("M");
    s.unit = QStringLiteral("lbs");
    return s;
}

}  // namespace

TEST(GoalRules, SetWeightWorkedExamples)
{
    GoalSettings s = Example();
    // 75% of 200 is 150; "Strong" 145; under 35 160; a multiple of 5 stays.
    EXPECT_EQ(SetWeight("75", "Squat", s), 160);
    s.age = 35;
    EXPECT_EQ(SetWeight("75", "Squat", s), 145);

    // 203: the whole part 152, then 147, then 162, and the level decides the rounding.
    s = Example();
    s.squat = QStringLiteral("203");
    EXPECT_EQ(SetWeight("75", "squat", s), 160);
    s.trainingLevel = QStringLiteral("Intermediate");
    EXPECT_EQ(SetWeight("75", "SQUAT", s), 162);
    s.trainingLevel = QStringLiteral("Advanced");
    EXPECT_EQ(SetWeight("75", "Squat", s), 165);
    s.trainingLevel = QStringLiteral("Pro");
    EXPECT_EQ(SetWeight("75", "Squat", s), 165);

    // Each lift reads its own field; any other lift starts from nothing.
    s = Example();
    s.trainingLevel = QStringLiteral("Intermediate");
    s.squat = QStringLiteral("0");
    s.deadLift = QStringLiteral("300");
    s.benchPress = QStringLiteral("100");
    EXPECT_EQ(SetWeight("50", "Deadlift", s), 160);      // 150 - 5 + 15
    EXPECT_EQ(SetWeight("50", "Bench Press", s), 60);    // 50 - 5 + 15
    EXPECT_EQ(SetWeight("50", "Dead Lift", s), 10);      // no such lift: 0 - 5 + 15
    // Text in a lift field counts as 0.
    s.benchPress = QStringLiteral("heavy");
    EXPECT_EQ(SetWeight("50", "Bench Press", s), 10);
}

TEST(GoalRules, SetWeightFloorSexAndUnit)
{
    GoalSettings s = Example();
    s.trainingLevel = QStringLiteral("Intermediate");
    // "Weak" with a small lift goes below nothing and becomes 4.
    s.strengthLevel = QStringLiteral("Weak");
    s.squat = QStringLiteral("10");
    EXPECT_EQ(SetWeight("75", "Squat", s), 4);
    // No main lift at all, at a level that adds nothing: 4.
    s.strengthLevel = QStringLiteral("Normal");
    s.age = 40;
    EXPECT_EQ(SetWeight("", "", s), 4);

    // Female: w 101 becomes 80.8, rounded to 81.
    s = Example();
    s.trainingLevel = QStringLiteral("Intermediate");
    s.strengthLevel = QStringLiteral("Very Strong");
    s.age = 40;
    s.sex = QStringLiteral("F");
    s.squat = QStringLiteral("86");
    EXPECT_EQ(SetWeight("100", "Squat", s), 81);          // 86 + 15 = 101 -> 80.8 -> 81
    s.squat = QStringLiteral("90");                         // 105 -> 84 exactly
    EXPECT_EQ(SetWeight("100", "Squat", s), 84);

    // Kilograms: w 100 is 45.45 and becomes 45.
    s = Example();
    s.trainingLevel = QStringLiteral("Intermediate");
    s.strengthLevel = QStringLiteral("Very Strong");
    s.age = 40;
    s.unit = QStringLiteral("kg");
    s.squat = QStringLiteral("85");
    EXPECT_EQ(SetWeight("100", "Squat", s), 45);           // 85 + 15 = 100 -> 45.45 -> 45
}

TEST(GoalRules, SetRepsByPurposeLevelAndType)
{
    GoalSettings s = Example();
    const struct { int purpose; const char* level; double reps; } cases[] = {
        {0, "Beginner", 10}, {0, "Intermediate", 12}, {0, "Advanced", 16}, {0, "Pro", 16},
        {1, "Beginner", 12}, {1, "Intermediate", 10}, {1, "Advanced", 8},  {1, "Pro", 8},
        {2, "Beginner", 0},  {2, "Intermediate", 0},  {2, "Advanced", 0},  {2, "Pro", 0},
        {3, "Beginner", 10}, {3, "Intermediate", 10}, {3, "Advanced", 10}, {3, "Pro", 10},
        {-1, "Beginner", 0}, {0, "", 0},
    };
    for (const auto& c : cases) {
        s.purpose = c.purpose;
        s.trainingLevel = QString::fromLatin1(c.level);
        EXPECT_EQ(SetReps("Compound", s), c.reps) << c.purpose << " " << c.level;
    }
    // Holds and "Stretching" count by the strength level, whatever the purpose; "Stretch" does not.
    s.purpose = 2;
    const struct { const char* strength; double reps; } holds[] = {
        {"Weak", 10}, {"Normal", 20}, {"Strong", 35}, {"Very Strong", 50}, {"Extremely Strong", 70}};
    for (const auto& h : holds) {
        s.strengthLevel = QString::fromLatin1(h.strength);
        EXPECT_EQ(SetReps("Isometric", s), h.reps);
        EXPECT_EQ(SetReps("Stretching", s), h.reps);
        EXPECT_EQ(SetReps("Stretch", s), 0);
    }
}

TEST(GoalRules, LiftsOfAStrengthLevel)
{
    Lifts l;
    ASSERT_TRUE(LiftsForStrength("Very Strong", "lbs", &l));
    EXPECT_EQ(l.squat, 300);
    EXPECT_EQ(l.deadLift, 375);
    EXPECT_EQ(l.benchPress, 225);
    ASSERT_TRUE(LiftsForStrength("Normal", "kg", &l));
    EXPECT_EQ(l.squat, 55);      // 54.5
    EXPECT_EQ(l.deadLift, 68);   // 68.2
    EXPECT_EQ(l.benchPress, 45); // 45.45
    ASSERT_TRUE(LiftsForStrength("Weak", "kg", &l));
    EXPECT_EQ(l.benchPress, 23); // 22.7
    EXPECT_FALSE(LiftsForStrength("Mighty", "lbs", &l));
}

namespace {

class GoalScreenTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        m_id = AddAthlete("Sam");
        UserConn.Execute("update User_Info set age=30 where User_ID=" + m_id);
        LibraryConn.Execute("delete * from strength_exercises");
        Add("Back Squat", "Compound", 75, "Squat");
        Add("Plank", "Isometric", 0, "");
        Add("Hamstring Stretch", "Stretch", 0, "");
        Add("Side Bend", "Stretching", 0, "");
        Add("Farmer's Walk", "Compound", 40, "Deadlift");
    }
    static void Add(const QString& name, const QString& type, double perc, const QString& lift)
    {
        LibraryConn.Execute("insert into strength_exercises (muscle_group, exercise, Type, Perc_Lift, lift) values "
                            "('Legs', '" + SqlQuote(name) + "', '" + type + "', " + QString::number(perc) + ", '" +
                            lift + "')");
    }
    QStringList Goals()
    {
        QStringList goals;
        Recordset rs(&UserConn);
        rs.Open("select * from strength_goals where User_ID=" + m_id + " order by exercise");
        for (; !rs.Eof(); rs.MoveNext())
            goals << Str(rs.Field("exercise")) + "|" + Str(rs.Field("Reps")) + "|" + Str(rs.Field("weight")) + "|" +
                         Str(rs.Field("weight_unit"));
        return goals;
    }
    QString Athlete(const QString& field)
    {
        Recordset rs(&UserConn);
        rs.Open("select * from User_Info where User_ID=" + m_id);
        return Str(rs.Field(field));
    }
    QString m_id;
};

}  // namespace

TEST_F(GoalScreenTest, GeneratingSavingAndReloadingGoals)
{
    {
        frmStrengthGoals f;
        // Holds and "Stretch" are left out; "Stretching" is not.
        ASSERT_EQ(f.SS1->MaxRows(), 3);
        EXPECT_EQ(f.SS1->Text(1, frmStrengthGoals::gcExercise), "Back Squat");
        EXPECT_EQ(f.SS1->Text(0, frmStrengthGoals::gcWeight), "Weight (lbs)");
        EXPECT_EQ(f.lblWeight.first()->text(), "Lbs");
        // A strength level puts its typical lifts in the fields.
        f.cboStrengthLevel->setCurrentText("Strong");
        EXPECT_EQ(f.txtSquat->text(), "200");
        EXPECT_EQ(f.txtDeadLift->text(), "250");
        EXPECT_EQ(f.txtBenchPress->text(), "150");
        f.cboLevel->setCurrentText("Beginner");
        f.cboStrengthPurpose->setCurrentText("Bodybuilding");
        f.chkPrefill->setChecked(true);
        f.cmdGoals->click();
        EXPECT_TRUE(Ui().Messages().isEmpty());   // nothing to overwrite yet
        // 40% of 250 is 100: 95, 110, a multiple of 5. No lift: 0 - 5 + 15 = 10.
        EXPECT_EQ(Goals(), QStringList({"Back Squat|12|160|lbs", "Farmer's Walk|12|110|lbs", "Side Bend|35|10|lbs"}));
        EXPECT_EQ(Athlete("squat"), "200");
        EXPECT_EQ(Athlete("Strength"), "Strong");
        EXPECT_EQ(Athlete("StrengthLevel"), "Beginner");
        EXPECT_EQ(Athlete("StrengthPurpose"), "Bodybuilding");
        EXPECT_EQ(Athlete("Prefill"), "True");

        // Asked before overwriting; No keeps the goals.
        f.txtSquat->setText("300");
        Ui().Answer(vbNo);
        f.cmdGoals->click();
        ASSERT_EQ(Ui().Messages().size(), 1);
        EXPECT_EQ(Ui().LastMessage().text, "Overwrite existing exercise goals?");
        EXPECT_EQ(Ui().LastMessage().title, "Action");
        EXPECT_EQ(Goals().first(), "Back Squat|12|160|lbs");
    }
    // Opened again: the athlete's choices and goals come back, loading sets no lifts.
    frmStrengthGoals f;
    EXPECT_EQ(f.cboStrengthLevel->currentText(), "Strong");
    EXPECT_EQ(f.cboLevel->currentText(), "Beginner");
    EXPECT_EQ(f.cboStrengthPurpose->currentText(), "Bodybuilding");
    EXPECT_EQ(f.txtSquat->text(), "200");
    EXPECT_TRUE(f.chkPrefill->isChecked());
    EXPECT_EQ(f.SS1->Text(1, frmStrengthGoals::gcWeight), "160");
    EXPECT_EQ(f.SS1->Text(2, frmStrengthGoals::gcReps), "12");
    // A change is saved on closing; text in a lift counts as 0.
    f.txtBenchPress->clear();
    f.txtBenchPress->insert("lots");
    emit f.txtBenchPress->textEdited(f.txtBenchPress->text());
    f.SS1->ClearCell(3, frmStrengthGoals::gcWeight);
    f.cmdClose->click();
    EXPECT_EQ(Athlete("benchpress"), "0");
    EXPECT_EQ(Goals().last(), "Side Bend|35|0|lbs");
}
