// The arithmetic of a session: durations, speeds, laps, calories and the weight they use.
#include "fixtures/fixture.h"

#include "core/routines.h"
#include "core/shared.h"
#include "core/store/connection.h"
#include "exercise/rules/exercisecalc.h"

// gethours counts seconds over 3600 and blanks as 0; the shared TimeToHours counts seconds
// over 360 and rounds to 2 places. Both stay.
TEST(ExerciseCalc, GethoursAgainstTimeToHours)
{
    EXPECT_DOUBLE_EQ(gethours("01:30:00"), 1.5);
    EXPECT_DOUBLE_EQ(TimeToHours("01:30:00"), 1.5);
    EXPECT_DOUBLE_EQ(gethours("00:00:36"), 0.01);
    EXPECT_DOUBLE_EQ(TimeToHours("00:00:36"), 0.1);
    EXPECT_NEAR(gethours("02:10:30"), 2 + 10 / 60.0 + 30 / 3600.0, 1e-12);
    EXPECT_DOUBLE_EQ(TimeToHours("02:10:30"), 2.25);   // 2 + 0.1667 + 0.0833, rounded
    // Blanks are zeros: " 1:3 :  " reads as 01:30:00.
    EXPECT_DOUBLE_EQ(gethours(" 1:3 :  "), 1.5);
    EXPECT_DOUBLE_EQ(gethours(""), 0);
    EXPECT_DOUBLE_EQ(gethours("::"), 0);
    EXPECT_DOUBLE_EQ(TimeToHours(""), 0);
    // Hours and minutes only: the seconds are the last two characters, the minutes again.
    EXPECT_NEAR(gethours("01:30"), 1.5 + 30 / 3600.0, 1e-12);
}

TEST(ExerciseCalc, LapsSplitAndJoin)
{
    EXPECT_TRUE(SplitLaps("").isEmpty());
    EXPECT_EQ(SplitLaps("01:02:03~"), QStringList{"01:02:03"});
    // Nothing after the last "~" is a lap.
    EXPECT_EQ(SplitLaps("01:02:03~04:05:06~07:0"), (QStringList{"01:02:03", "04:05:06"}));
    EXPECT_TRUE(SplitLaps("01:02:03").isEmpty());
    EXPECT_EQ(SplitLaps("~~"), (QStringList{"", ""}));
    EXPECT_EQ(JoinLaps({}), "");
    EXPECT_EQ(JoinLaps({"00:05:10", "00:05:02"}), "00:05:10~00:05:02~");
    EXPECT_EQ(SplitLaps(JoinLaps({"a", "b", "c"})), (QStringList{"a", "b", "c"}));
}

TEST(ExerciseCalc, CalcEnablingRuleAndTimes)
{
    EXPECT_TRUE(CanCalcSpeed(10, 1, 0, 0, "miles"));
    EXPECT_TRUE(CanCalcSpeed(0, 0, 10, 1, "miles"));     // the planned column alone
    EXPECT_FALSE(CanCalcSpeed(10, 0, 0, 1, "miles"));    // distance of one, hours of the other
    EXPECT_FALSE(CanCalcSpeed(10, 1, 10, 1, ""));        // no unit
    EXPECT_FALSE(CanCalcSpeed(10, gethours(""), 0, 0, "miles"));   // a blank duration
    EXPECT_FALSE(CanCalcSpeed(-1, 1, 0, 0, "miles"));

    // Seconds do not count; nothing runs past midnight.
    EXPECT_FALSE(TimesInOrder(QTime(10, 30, 10), QTime(10, 30, 50)));
    EXPECT_TRUE(TimesInOrder(QTime(10, 30, 50), QTime(10, 31, 0)));
    EXPECT_FALSE(TimesInOrder(QTime(23, 59), QTime(0, 29)));
    EXPECT_FALSE(TimesInOrder(QTime(9, 0), QTime(9, 0)));

    // Calories: thousandths of the rate x hours x weight / 1000, rounded to even.
    EXPECT_EQ(IntensityData(3.2), 3200);
    EXPECT_EQ(IntensityData(1.7), 1700);
    EXPECT_EQ(CaloriesBurned(3200, 1.5, 150), 720);
    EXPECT_EQ(CaloriesBurned(1000, 0.5, 5), 2);     // 2.5 to even
    EXPECT_EQ(CaloriesBurned(1000, 0.5, 7), 4);     // 3.5 to even
    EXPECT_EQ(CaloriesBurned(5700, 0, 180), 0);
}

class ExerciseCalcStore : public StoreTest {};

// Speeds through the units table: kph divides by 0.6288, mph by 1.
TEST_F(ExerciseCalcStore, SpeedConversions)
{
    EXPECT_DOUBLE_EQ(*CalcSpeed(6.288, "miles", "kph", 1), 10);
    EXPECT_DOUBLE_EQ(*CalcSpeed(6.288, "miles", "mph", 1), 6.29);
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "miles", "mph", 2), 5);
    // 10 km in 50 minutes: 6.2137 miles / 0.8333 h = 7.46 mph.
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "kilometers", "mph", gethours("00:50:00")), 7.46);
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "kilometers", "kph", 1), 9.88);   // not 10: the 0.6288 rule
    EXPECT_DOUBLE_EQ(*CalcSpeed(400, "meters", "kph", gethours("00:01:30")), 15.81);
    // No speed without hours or distance; an unknown or empty unit gives 0.
    EXPECT_FALSE(CalcSpeed(10, "miles", "kph", 0).has_value());
    EXPECT_FALSE(CalcSpeed(0, "miles", "kph", 1).has_value());
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "furlongs", "kph", 1), 0);
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "miles", "", 1), 0);
    EXPECT_DOUBLE_EQ(*CalcSpeed(10, "", "mph", 1), 0);
}

// The weight of the day: the latest weigh-in on or before it, else the earliest one, else none.
TEST_F(ExerciseCalcStore, WeightOfTheDayAndItsFallbacks)
{
    const QString id = AddAthlete("Kim");
    EXPECT_FALSE(SessionWeight(id, QDate(2026, 5, 1)).has_value());
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-03-01#, 180)");
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-04-01#, 175)");
    UserConn.Execute("insert into WeighIn (User_ID, [Date], weight) values ('" + id + "', #2026-06-01#, 170)");
    EXPECT_DOUBLE_EQ(*SessionWeight(id, QDate(2026, 5, 1)), 175);
    EXPECT_DOUBLE_EQ(*SessionWeight(id, QDate(2026, 4, 1)), 175);
    EXPECT_DOUBLE_EQ(*SessionWeight(id, QDate(2026, 1, 1)), 180);    // before all: the earliest
    EXPECT_DOUBLE_EQ(*SessionWeight(id, QDate(2027, 1, 1)), 170);
    EXPECT_FALSE(SessionWeight("999", QDate(2026, 5, 1)).has_value());
}
