// The athlete's figures, without a window.
#include <gtest/gtest.h>
#include "athlete/energymodel.h"

using namespace energy;

TEST(EnergyModel, BmrCoefficientsUnitsAndConditionFactors)
{
    // Men: 12 and 0.04, in pounds; 180 lbs, 30 years, Good: (2160 - 86.4 - 141) x 1.1.
    EXPECT_EQ(*CalcBMR(180, 30, true, false, "Good"), 2126);
    // Women: 11 and 0.03; 70 kg counts 154 lbs; Poor keeps the base (1455.18).
    EXPECT_EQ(*CalcBMR(70, 40, false, true, "Poor"), 1455);
    // A text that is no condition counts like Poor, and no condition at all as well.
    EXPECT_EQ(*CalcBMR(70, 40, false, true, "Athletic"), 1455);
    EXPECT_EQ(*CalcBMR(70, 40, false, true, ""), 1455);
    // Nothing without weight or age.
    EXPECT_FALSE(CalcBMR(0, 40, true, false, "Good"));
    EXPECT_FALSE(CalcBMR(180, 0, true, false, "Good"));

    const QStringList conditions = ConditionList();
    const double factors[] = {0.9, 1.0, 1.05, 1.1, 1.15, 1.2, 1.25};
    ASSERT_EQ(conditions.size(), 7);
    for (int i = 0; i < 7; ++i) EXPECT_DOUBLE_EQ(ConditionFactor(conditions[i]), factors[i]) << conditions[i].toStdString();
    EXPECT_DOUBLE_EQ(ConditionFactor("sedentary"), 1.0);   // the text must match exactly
}

TEST(EnergyModel, BodyMeasuresInBothUnits)
{
    EXPECT_DOUBLE_EQ(*CalcBMI(70, 175, true), 22.857);
    EXPECT_DOUBLE_EQ(*CalcBMI(154, 69, false), 22.739);
    EXPECT_FALSE(CalcBMI(70, 0, true));
    EXPECT_FALSE(CalcBMI(-1, 175, true));

    // Lean body mass by kg and cm; US input is converted there and back.
    EXPECT_DOUBLE_EQ(*CalcIdealWeight(80, 180, true, true, 0), 63);      // 88 - 25.28
    EXPECT_DOUBLE_EQ(*CalcIdealWeight(80, 180, true, true, 1), 70);      // x 1.12
    EXPECT_DOUBLE_EQ(*CalcIdealWeight(80, 180, true, true, 2), 77);      // x 1.22
    EXPECT_DOUBLE_EQ(*CalcIdealWeight(60, 165, false, true, 0), 45);     // 64.2 - 19.57
    EXPECT_DOUBLE_EQ(*CalcIdealWeight(180, 70, true, false, 1), 155);
    EXPECT_FALSE(CalcIdealWeight(80, 0, true, true, 1));

    EXPECT_DOUBLE_EQ(*CalcBodyFat(200, 150), 25);
    EXPECT_DOUBLE_EQ(*CalcBodyFat(180, 155), 13.89);
    EXPECT_FALSE(CalcBodyFat(0, 150));
}

TEST(EnergyModel, CalorieSplitAndTargetWeight)
{
    // One unit a week: pounds as they are, a kilogram counts 2.2 pounds.
    EXPECT_DOUBLE_EQ(DailyCalories(50, 1, false), 250);
    EXPECT_DOUBLE_EQ(DailyCalories(50, 1, true), 550);
    EXPECT_DOUBLE_EQ(DailyCalories(100, 2, false), 1000);
    EXPECT_DOUBLE_EQ(DailyCalories(30, .25, false), 38);      // 37.5 rounds to even
    EXPECT_DOUBLE_EQ(WeeklyFigure(250, 250), 0.14);
    EXPECT_DOUBLE_EQ(OtherShare(30), 70);

    // A weekly amount needs the target below the weight by a rounded unit.
    EXPECT_FALSE(WeeklyAmountAllowed(180, 180));
    EXPECT_FALSE(WeeklyAmountAllowed(180, 190));
    EXPECT_FALSE(WeeklyAmountAllowed(180, 179.5));            // 0.5 rounds to 0
    EXPECT_TRUE(WeeklyAmountAllowed(180, 179.4));
    EXPECT_DOUBLE_EQ(WeightDifference(180.25, 170.1), 10.15);

    const auto lose = MaintainSentence("2126", "Weight loss per week", "1", "lbs");
    EXPECT_EQ(lose.maintain, "2126 calories to maintain your weight. To lose 1 lbs per week");
    EXPECT_EQ(lose.dietSide, "calories less per day and burn");
    const auto gain = MaintainSentence("2126", "Weight gain per week", ".5", "kg");
    EXPECT_EQ(gain.maintain, "2126 calories to maintain your weight. To gain .5 kg per week");
    EXPECT_EQ(gain.dietSide, "calories more per day and burn");
    EXPECT_EQ(gain.changeOf, "gain of");
    EXPECT_EQ(MaintainSentence("2126", "Weight loss per week", "", "lbs").maintain,
              "2126 calories to maintain your weight.");

    // The diets and their percentages.
    const int expected[7][3] = {{50, 20, 30}, {40, 30, 30}, {40, 40, 20}, {60, 30, 10},
                                {40, 40, 20}, {50, 30, 20}, {40, 30, 30}};
    for (int i = 0; i < 7; ++i) {
        const auto s = DietShares(i);
        ASSERT_TRUE(s);
        EXPECT_EQ(s->carbs, expected[i][0]);
        EXPECT_EQ(s->protein, expected[i][1]);
        EXPECT_EQ(s->fat, expected[i][2]);
        EXPECT_EQ(s->carbs + s->protein + s->fat, 100);
    }
    EXPECT_FALSE(DietShares(-1));
    EXPECT_FALSE(DietShares(7));

    EXPECT_DOUBLE_EQ(MacroGrams(2000, 20, 4), 100);
    EXPECT_DOUBLE_EQ(MacroGrams(2000, 30, 9), 66.67);
}

TEST(HeartRate, MaximumRateZonesAndRanges)
{
    EXPECT_DOUBLE_EQ(MaxHeartRate(true, 40), 182);
    EXPECT_DOUBLE_EQ(MaxHeartRate(false, 40), 181);
    EXPECT_DOUBLE_EQ(MaxHeartRate(true, 33), 188);      // 187.6
    EXPECT_DOUBLE_EQ(QuickMaxHeartRate(40), 180);

    const QList<double> boxes = ZoneBoxes(180, 60);      // reserve 120
    const QList<double> expected = {108, 122, 122, 137, 137, 151, 151, 166, 166, 180};
    EXPECT_EQ(boxes, expected);
    EXPECT_DOUBLE_EQ(TrainingRate(180, 60, 0.65), 138);

    // Conditions 4 to 6 share one range; no condition gives none.
    const auto r4 = RangeForCondition(4), r5 = RangeForCondition(5), r6 = RangeForCondition(6);
    ASSERT_TRUE(r4 && r5 && r6);
    for (const auto& r : {*r4, *r5, *r6}) {
        EXPECT_DOUBLE_EQ(r.lower, 0.70);
        EXPECT_DOUBLE_EQ(r.upper, 0.90);
        EXPECT_EQ(r.lowerCaption, "Lower - 70%");
        EXPECT_EQ(r.upperCaption, "Upper - 90%");
    }
    EXPECT_EQ(RangeForCondition(0)->upperCaption, "Upper - 60%");
    EXPECT_EQ(RangeForCondition(1)->upperCaption, "Upper - 65%");
    EXPECT_EQ(RangeForCondition(2)->lowerCaption, "Lower - 60%");
    EXPECT_EQ(RangeForCondition(3)->upperCaption, "Upper - 80%");
    EXPECT_FALSE(RangeForCondition(-1));

    // The percentage of a box, and the side of the caption it rewrites.
    EXPECT_DOUBLE_EQ(*ReservePercent(108, 180, 60), 40);
    EXPECT_DOUBLE_EQ(*ReservePercent(180, 180, 60), 100);
    EXPECT_FALSE(ReservePercent(100, 60, 60));
    EXPECT_EQ(ChangeZoneCaption("(40-52%)", 0, "45"), "(45-52%)");
    EXPECT_EQ(ChangeZoneCaption("(40-52%)", 1, "55"), "(40-55%)");
    EXPECT_EQ(ChangeZoneCaption("(88-100%)", 9, "97"), "(88-97%)");
    EXPECT_EQ(ChangeZoneCaption("(88-100%)", 8, "90"), "(90-100%)");
    // A box below the resting rate gives a negative side; the other side stays readable.
    EXPECT_EQ(ChangeZoneCaption("(40-52%)", 0, "-8"), "(-8-52%)");
    EXPECT_EQ(ChangeZoneCaption("(-8-52%)", 1, "60"), "(-8-60%)");
    EXPECT_EQ(ChangeZoneCaption("(-8-52%)", 0, "40"), "(40-52%)");
    EXPECT_EQ(ZoneTooltip("52%"), "(Maximum Heart Rate - Resting Heart Rate) x 52% +  Resting Heart Rate");
}

TEST(EnergyModel, NumbersShownWithoutNoise)
{
    EXPECT_EQ(NumText(2126), "2126");
    EXPECT_EQ(NumText(22.857), "22.857");
    EXPECT_EQ(NumText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumText(-0.0), "0");
    EXPECT_EQ(NumText(1e7), "10000000");
}
