// The seeded strength library in a fresh store: every exercise has its picture in the Images
// folder, a main lift the goal builder can read, and groups and equipment of the lists; the
// sample workouts use library exercises and cover each level with both kinds.
#include <gtest/gtest.h>
#include <QFileInfo>
#include <QImageReader>
#include <QSet>
#include <QString>
#include <QStringList>

#include "core/routines.h"
#include "core/shared.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "fixtures/fixture.h"

namespace {

class StrengthSeedTest : public StoreTest {
protected:
    QSet<QString> Column(const QString& sql)
    {
        QSet<QString> values;
        Recordset rs(&LibraryConn);
        rs.Open(sql);
        for (; !rs.Eof(); rs.MoveNext())
            values.insert(Str(rs.Field(0)));
        rs.Close();
        return values;
    }
};

}  // namespace

TEST_F(StrengthSeedTest, ExercisesHavePicturesLiftsAndListedValues)
{
    const QSet<QString> groups = Column("select distinct group from muscle_groups");
    const QSet<QString> equipment = Column("select * from strength_equipment order by equipment");
    const QSet<QString> types = {"Cardio", "Free Weights", "Machine", "Isometric", "Plyometric", "Stretch"};
    const QSet<QString> lifts = {"SQUAT", "DEADLIFT", "BENCH PRESS"};
    ASSERT_TRUE(groups.contains("Total Body"));   // a workout's group when none is chosen

    int exercises = 0, withLift = 0;
    QSet<QString> names;
    Recordset rs(&LibraryConn);
    rs.Open("select * from strength_exercises order by exercise");
    for (; !rs.Eof(); rs.MoveNext()) {
        ++exercises;
        const QString name = Str(rs.Field("exercise"));
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(names.contains(name.toLower())) << "name twice";
        names.insert(name.toLower());
        EXPECT_EQ(name, name.trimmed());

        // A picture the file dialog offers, present in the Images folder, readable.
        const QString image = Str(rs.Field("Image"));
        EXPECT_TRUE(image.endsWith(".gif") || image.endsWith(".bmp") || image.endsWith(".jpg")) << image.toStdString();
        const QString path = SourceFile("data/images/" + image);
        EXPECT_TRUE(QFileInfo::exists(path)) << image.toStdString();
        QImageReader reader(path);
        const QSize size = reader.size();
        EXPECT_TRUE(reader.canRead()) << image.toStdString();
        EXPECT_TRUE(size.width() >= 200 && size.width() <= 320 && size.height() >= 150 && size.height() <= 240);

        // The goal builder reads lift by its upper case and Perc_Lift by value: a lift it knows
        // with a share of 1 to 99, or no lift and 0.
        const QString lift = Str(rs.Field("lift"));
        const double perc = Val(rs.Field("Perc_Lift"));
        if (lift.isEmpty()) {
            EXPECT_EQ(perc, 0);
        } else {
            ++withLift;
            EXPECT_TRUE(lifts.contains(lift.toUpper())) << lift.toStdString();
            EXPECT_TRUE(perc >= 1 && perc <= 99) << perc;
        }
        EXPECT_TRUE(types.contains(Str(rs.Field("Type"))));
        EXPECT_TRUE(groups.contains(Str(rs.Field("muscle_group"))));
        EXPECT_TRUE(equipment.contains(Str(rs.Field("Equipment"))));
        EXPECT_FALSE(Str(rs.Field("Description")).isEmpty());
        EXPECT_FALSE(Str(rs.Field("Instruction")).isEmpty());
        QStringList levels;
        for (const char* level : {"Beginner", "Intermediate", "Advanced"}) {
            const QString v = Str(rs.Field(level));
            EXPECT_TRUE(v == "Y" || v.isEmpty());
            if (v == "Y") levels << level;
        }
        EXPECT_FALSE(levels.isEmpty());
    }
    rs.Close();
    EXPECT_GE(exercises, 140);
    EXPECT_GE(withLift, 60);
    // Each main lift is itself in the library.
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='Back Squat' and lift='Squat' and Perc_Lift>0"), 1);
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='Bench Press' and lift='Bench Press'"), 1);
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='Deadlift' and lift='Deadlift'"), 1);

    // Both lists of the screens are filled: exercises and stretches.
    EXPECT_GE(CountLibrary("strength_exercises where type not like 'Stretch' and type not like 'Isometric'"), 100);
    EXPECT_GE(CountLibrary("strength_exercises where type='Stretch'"), 20);

    // Every exercise is tied to its own major group, and ties only name library exercises and groups.
    EXPECT_EQ(CountLibrary("strength_exercises s where not exists (select * from muscle_associations m "
                           "where m.exercise=s.exercise and m.muscle_group=s.muscle_group)"),
              0);
    EXPECT_EQ(CountLibrary("muscle_associations where exercise not in (select exercise from strength_exercises)"), 0);
    EXPECT_EQ(CountLibrary("muscle_associations where muscle_group not in (select group from muscle_groups)"), 0);

    // Names with an apostrophe are there, found with the quote doubled.
    EXPECT_EQ(CountLibrary("strength_exercises where exercise='" + SqlQuote("Farmer's Walk") + "'"), 1);
    EXPECT_GE(CountLibrary("strength_exercises where exercise like '%''%'"), 2);
}

TEST_F(StrengthSeedTest, WorkoutsUseLibraryExercisesAndCoverEachLevelWithBothKinds)
{
    // Names unique, whatever the case (text compares without regard to case).
    EXPECT_EQ(CountLibrary("(select workout_name from workouts group by workout_name having count(*) > 1)"), 0);

    for (const char* level : {"Beginner", "Intermediate", "Advanced"})
        for (const char* kind : {"strength", "sports"})
            EXPECT_GE(CountLibrary(QString("workouts where wtype='%1' and %2='Y'").arg(kind, level)), 2) << level << " " << kind;
    EXPECT_EQ(CountLibrary("workouts where wtype<>'strength' and wtype<>'sports'"), 0);

    // Each workout has sets; each set names a library exercise under the workout's id and name.
    EXPECT_EQ(CountLibrary("workouts w where not exists (select * from Workout_exercises e where e.workout_id=w.workout_id)"), 0);
    EXPECT_EQ(CountLibrary("Workout_exercises where exercise not in (select exercise from strength_exercises)"), 0);
    EXPECT_EQ(CountLibrary("Workout_exercises e where not exists (select * from workouts w "
                           "where w.workout_id=e.workout_id and w.workout_name=e.workout_name)"),
              0);
    EXPECT_EQ(CountLibrary("Workout_exercises e where muscle_group <> (select muscle_group from strength_exercises s "
                           "where s.exercise=e.exercise)"),
              0);

    // The log's statement for a library workout finds its sets, numbered 1, 2, ... per exercise.
    Recordset rs(&LibraryConn);
    rs.Open("select a.workout_desc, b.* from workouts a, Workout_exercises b where a.workout_name='Push Workout' and "
            "a.workout_id=b.workout_id");
    QString last;
    int expected = 0, rows = 0;
    for (; !rs.Eof(); rs.MoveNext(), ++rows) {
        const QString exercise = Str(rs.Field("exercise"));
        expected = exercise == last ? expected + 1 : 1;
        last = exercise;
        EXPECT_EQ(Val(rs.Field("Sets")), expected) << exercise.toStdString();
        EXPECT_EQ(Val(rs.Field("weight")), 0);   // the athlete's goal fills it
    }
    rs.Close();
    EXPECT_GE(rows, 12);
}
