-- Orvantis user store (orvantisuser.mdb): the athletes and everything recorded per athlete.
--
-- Declared types are those the store's reader maps back to the dialect's types:
-- TEXT(n)/LONGTEXT (text and memo, compared without regard to case), YESNO (-1/0),
-- DATETIME (ISO text), BYTE, SHORT, LONG, SINGLE, DOUBLE, CURRENCY.
-- Column order matters: several tables are read and written by column position.
-- The working tables of the totals (tmpDate, Summary_Display, Nutrient_Display) and
-- calendar.Duration2 are created by the totals screen at run time, not here.

-- One row per athlete: profile, body figures, energy targets and strength settings.
CREATE TABLE User_Info (
    "User_ID" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Name" TEXT(50) COLLATE NOCASE,
    "Password" TEXT(50) COLLATE NOCASE,
    "age" DOUBLE,
    "sex" TEXT(1) COLLATE NOCASE,
    "Height" DOUBLE,
    "startdate" DATETIME,
    "personal_measurements" TEXT(50) COLLATE NOCASE,
    "Workout_In" TEXT(50) COLLATE NOCASE,
    "CurrentWeight" DOUBLE,
    "TargetWeight" DOUBLE,
    "IdealWeight" DOUBLE,
    "TargetCals" DOUBLE,
    "TargetExCals" DOUBLE,
    "BodyFat" DOUBLE,
    "TargetBodyFat" DOUBLE,
    "WeightLossPerWeek" TEXT(50) COLLATE NOCASE,
    "FrameSize" DOUBLE,
    "BMR" DOUBLE,
    "BMI" DOUBLE,
    "Purpose" TEXT(255) COLLATE NOCASE,
    "Fitness_Goals" TEXT(255) COLLATE NOCASE,
    "Current_Condition" DOUBLE,
    "DietName" TEXT(50) COLLATE NOCASE,
    "StrengthLevel" TEXT(50) COLLATE NOCASE,
    "Prefill" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "AutoGoals" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "DietLoss" DOUBLE,
    "ExerciseLoss" DOUBLE,
    "Carbs" DOUBLE,
    "protein" DOUBLE,
    "Fat" DOUBLE,
    "DietCalsPerDay" DOUBLE,
    "ExerciseCalsPerDay" DOUBLE,
    "Targetpoints" DOUBLE,
    "StrengthPurpose" TEXT(50) COLLATE NOCASE,
    "Strength" TEXT(50) COLLATE NOCASE,
    "benchpress" DOUBLE,
    "deadlift" DOUBLE,
    "squat" DOUBLE
);
CREATE INDEX idx_User_Info_Name ON User_Info ("Name");

-- Every scheduled item of every day (exercise session, strength workout, appointment); the logs find their rows by athlete, date and key.
CREATE TABLE calendar (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Key" LONG,
    "Name" TEXT(255) COLLATE NOCASE,
    "WorkoutType" TEXT(50) COLLATE NOCASE,
    "StartTime" TEXT(50) COLLATE NOCASE,
    "EndTime" TEXT(50) COLLATE NOCASE,
    "Image" DOUBLE,
    "Cals" DOUBLE,
    "Duration" TEXT(50) COLLATE NOCASE,
    "Intensity" DOUBLE,
    "complete" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0
);
CREATE INDEX idx_calendar_user_date ON calendar ("User_ID", "Date");

-- A day's free-text log, as rich text, one row per athlete and day.
CREATE TABLE daily_log (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Log" LONGTEXT COLLATE NOCASE
);
CREATE INDEX idx_daily_log_user_date ON daily_log ("User_ID", "Date");

-- A day's water intake, one row per athlete and day.
CREATE TABLE daily_water (
    "User_ID" LONG,
    "Date" DATETIME,
    "water" DOUBLE
);
CREATE INDEX idx_daily_water_user_date ON daily_water ("User_ID", "Date");

-- Logged exercise and sport sessions, plan and result in one row; the session page reads it by position.
CREATE TABLE Daily_Exercise (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Name" TEXT(255) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "EventName" TEXT(50) COLLATE NOCASE,
    "StartTime" DATETIME,
    "EndTime" DATETIME,
    "Type" TEXT(50) COLLATE NOCASE,
    "Route" TEXT(50) COLLATE NOCASE,
    "facility" TEXT(50) COLLATE NOCASE,
    "Equipment" TEXT(50) COLLATE NOCASE,
    "Comments" TEXT(255) COLLATE NOCASE,
    "Distance" DOUBLE,
    "PlannedDistance" DOUBLE,
    "DistanceUnit" TEXT(50) COLLATE NOCASE,
    "duration" TEXT(50) COLLATE NOCASE,
    "PlannedDuration" TEXT(50) COLLATE NOCASE,
    "Speed" DOUBLE,
    "PlannedSpeed" DOUBLE,
    "SpeedUnit" TEXT(50) COLLATE NOCASE,
    "Warmup" TEXT(255) COLLATE NOCASE,
    "Recovery" TEXT(255) COLLATE NOCASE,
    "Cals" LONG,
    "Intensity" DOUBLE,
    "StartHeart" DOUBLE,
    "EndHeart" DOUBLE,
    "Zone1" TEXT(50) COLLATE NOCASE,
    "Zone2" TEXT(50) COLLATE NOCASE,
    "Zone3" TEXT(50) COLLATE NOCASE,
    "Zone4" TEXT(50) COLLATE NOCASE,
    "Zone5" TEXT(50) COLLATE NOCASE,
    "avgHR" LONG,
    "TimetoRHR" TEXT(50) COLLATE NOCASE,
    "LapTimes" LONGTEXT COLLATE NOCASE,
    "MaxEffort" DOUBLE
);
CREATE INDEX idx_Daily_Exercise_user_date ON Daily_Exercise ("User_ID", "Date");
CREATE INDEX idx_Daily_Exercise_name ON Daily_Exercise ("Name");

-- A session's copy of its form: one row per field, a formula or a value.
CREATE TABLE Daily_Templates (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Name" TEXT(255) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "field_name" TEXT(50) COLLATE NOCASE,
    "Formula" TEXT(255) COLLATE NOCASE,
    "Value" TEXT(255) COLLATE NOCASE,
    "Units" TEXT(50) COLLATE NOCASE,
    "worder" LONG
);
CREATE INDEX idx_Daily_Templates_user_date ON Daily_Templates ("User_ID", "Date");

-- A session's interval plan, one row per set; Name is the interval template's name.
CREATE TABLE Daily_Intervals (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Name" TEXT(50) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "Set" TEXT(50) COLLATE NOCASE,
    "Description" TEXT(255) COLLATE NOCASE,
    "Instruction" TEXT(255) COLLATE NOCASE,
    "Rest" TEXT(50) COLLATE NOCASE,
    "Intensity" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_Daily_Intervals_user_date ON Daily_Intervals ("User_ID", "Date");

-- Logged strength sets, one row per set in grid order.
CREATE TABLE Daily_Weights (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Name" TEXT(255) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "StartTime" DATETIME,
    "EndTime" DATETIME,
    "muscle_group" TEXT(50) COLLATE NOCASE,
    "exercise" TEXT(255) COLLATE NOCASE,
    "Sets" TEXT(50) COLLATE NOCASE,
    "Reps" DOUBLE,
    "weight" DOUBLE,
    "Intensity" TEXT(10) COLLATE NOCASE,
    "Goal" TEXT(50) COLLATE NOCASE,
    "Comments" TEXT(50) COLLATE NOCASE,
    "worder" LONG
);
CREATE INDEX idx_Daily_Weights_user_date ON Daily_Weights ("User_ID", "Date");
CREATE INDEX idx_Daily_Weights_key ON Daily_Weights ("Key");

-- A session's questionnaire answers, one row per exercise or strength session.
CREATE TABLE Daily_Psych (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Name" TEXT(255) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "AccomplishGoals" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "AccompishText" TEXT(255) COLLATE NOCASE,
    "AccomplishDifferent" TEXT(255) COLLATE NOCASE,
    "Levelbefore" TEXT(50) COLLATE NOCASE,
    "Levelafter" TEXT(50) COLLATE NOCASE,
    "Levelfocus" TEXT(50) COLLATE NOCASE,
    "LevelConfidence" TEXT(50) COLLATE NOCASE,
    "sleep" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "Doubts" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "DoubtText" TEXT(255) COLLATE NOCASE,
    "LevelActivation" TEXT(50) COLLATE NOCASE,
    "LevelStress" TEXT(50) COLLATE NOCASE,
    "LevelControl" TEXT(50) COLLATE NOCASE,
    "Vis" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "VisTExt" TEXT(255) COLLATE NOCASE,
    "LevelCommitted" TEXT(50) COLLATE NOCASE,
    "Unexpected" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "UnexpectedTExt" TEXT(255) COLLATE NOCASE,
    "LevelRating" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_Daily_Psych_user_date ON Daily_Psych ("User_ID", "Date");

-- Foods eaten, copied from the foods library; meal 9999 holds the ingredients of saved meals. Read by position: positions 5 on mirror foods positions 2 on.
CREATE TABLE daily_nutrition (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Meal_ID" LONG,
    "Type" TEXT(50) COLLATE NOCASE,
    "Food_ID" LONG,
    "Name" TEXT(255) COLLATE NOCASE,
    "amount" DOUBLE,
    "Measure" TEXT(50) COLLATE NOCASE,
    "points" DOUBLE,
    "calories" DOUBLE,
    "protein" DOUBLE,
    "Fat" DOUBLE,
    "Carbs" DOUBLE,
    "Fiber" DOUBLE,
    "Sodium" DOUBLE,
    "Potassium" DOUBLE,
    "Calcium" DOUBLE,
    "Iron" DOUBLE,
    "Cholesterol" DOUBLE,
    "Sugar" DOUBLE,
    "Caffeine" DOUBLE,
    "Fat-Saturated" DOUBLE,
    "Fat-Monounsaturated" DOUBLE,
    "Fat-Polyunsaturated" DOUBLE,
    "Folate" DOUBLE,
    "Vit_A" DOUBLE,
    "Vit_C" DOUBLE,
    "Vit_D" DOUBLE,
    "Vit_E" DOUBLE,
    "Vit_K" DOUBLE,
    "Vit_B6" DOUBLE,
    "Vit_B12" DOUBLE,
    "Niacin" DOUBLE,
    "Thiamin" DOUBLE,
    "Riboflavin" DOUBLE,
    "Magnesium" DOUBLE,
    "Zinc" DOUBLE,
    "Phosphorus" DOUBLE,
    "Copper" DOUBLE,
    "Manganese" DOUBLE,
    "Selenium" DOUBLE,
    "Biotin" DOUBLE,
    "Pantothenic acid" DOUBLE,
    "Chromium" DOUBLE,
    "Molybdenum" DOUBLE,
    "Chloride" DOUBLE
);
CREATE INDEX idx_daily_nutrition_user_date ON daily_nutrition ("User_ID", "Date");
CREATE INDEX idx_daily_nutrition_type ON daily_nutrition ("Type");

-- Per-day totals of an athlete (kept for the athlete's removal; no screen fills it).
CREATE TABLE daily_totals (
    "User_ID" LONG,
    "Date" DATETIME
);
CREATE INDEX idx_daily_totals_user_date ON daily_totals ("User_ID", "Date");

-- Burn rate of each of the ten intensity levels, per athlete.
CREATE TABLE Intensity (
    "User_ID" LONG,
    "Intensity" DOUBLE,
    "Value" DOUBLE
);
CREATE INDEX idx_Intensity_user ON Intensity ("User_ID");

-- Heart-rate settings, one row per athlete; the ten zone bounds are read by position (zone box i at position i + 5).
CREATE TABLE hrm_info (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "RESTING_HR" DOUBLE,
    "MAXIMUM_HR" DOUBLE,
    "traininglower" DOUBLE,
    "trainingupper" DOUBLE,
    "Z1Lower" DOUBLE,
    "Z1Upper" DOUBLE,
    "Z2Lower" DOUBLE,
    "Z2Upper" DOUBLE,
    "Z3Lower" DOUBLE,
    "Z3Upper" DOUBLE,
    "Z4Lower" DOUBLE,
    "Z4Upper" DOUBLE,
    "Z5Lower" DOUBLE,
    "Z5Upper" DOUBLE,
    "hr_model" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_hrm_info_user ON hrm_info ("User_ID");

-- Heart-rate monitor readings of a session, at most one row per session.
CREATE TABLE HRM (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "HRM_Date" DATETIME,
    "Length_Interval" TEXT(50) COLLATE NOCASE,
    "sport" TEXT(255) COLLATE NOCASE,
    "Key" TEXT(50) COLLATE NOCASE,
    "HRM" LONGTEXT COLLATE NOCASE
);
CREATE INDEX idx_HRM_user_date ON HRM ("User_ID", "HRM_Date");

-- The athlete's meals of the day, in the order of Position.
CREATE TABLE setup_meals (
    "User_ID" LONG,
    "Meal_ID" LONG,
    "meal" TEXT(50) COLLATE NOCASE,
    "StartTime" TEXT(50) COLLATE NOCASE,
    "Position" DOUBLE,
    "Show" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0
);
CREATE INDEX idx_setup_meals_user ON setup_meals ("User_ID");
CREATE INDEX idx_setup_meals_meal ON setup_meals ("Meal_ID");

-- Daily goal per nutrient, one row per athlete; column i + 1 is the i-th nutrient of the catalogue (calories first).
CREATE TABLE Nutrient_Goals (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "calories" DOUBLE,
    "protein" DOUBLE,
    "Fat" DOUBLE,
    "Carbs" DOUBLE,
    "Fiber" DOUBLE,
    "Sodium" DOUBLE,
    "Potassium" DOUBLE,
    "Calcium" DOUBLE,
    "Iron" DOUBLE,
    "Cholesterol" DOUBLE,
    "Sugar" DOUBLE,
    "Caffeine" DOUBLE,
    "Fat-Saturated" DOUBLE,
    "Fat-Monounsaturated" DOUBLE,
    "Fat-Polyunsaturated" DOUBLE,
    "Folate" DOUBLE,
    "Vit_A" DOUBLE,
    "Vit_C" DOUBLE,
    "Vit_D" DOUBLE,
    "Vit_E" DOUBLE,
    "Vit_K" DOUBLE,
    "Vit_B6" DOUBLE,
    "Vit_B12" DOUBLE,
    "Niacin" DOUBLE,
    "Thiamin" DOUBLE,
    "Riboflavin" DOUBLE,
    "Magnesium" DOUBLE,
    "Zinc" DOUBLE,
    "Phosphorus" DOUBLE,
    "Copper" DOUBLE,
    "Manganese" DOUBLE,
    "Selenium" DOUBLE,
    "Biotin" DOUBLE,
    "Pantothenic acid" DOUBLE,
    "Chromium" DOUBLE,
    "Molybdenum" DOUBLE,
    "Chloride" DOUBLE
);
CREATE INDEX idx_Nutrient_Goals_user ON Nutrient_Goals ("User_ID");

-- The nutrients an athlete has chosen to print, in order.
CREATE TABLE User_Nutrients (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Nutrient" TEXT(50) COLLATE NOCASE,
    "Measure" TEXT(50) COLLATE NOCASE,
    "used" TEXT(1) COLLATE NOCASE,
    "Ordered" LONG
);
CREATE INDEX idx_User_Nutrients_user ON User_Nutrients ("User_ID");

-- Suggested starting reps and weight per strength exercise, per athlete.
CREATE TABLE strength_goals (
    "User_ID" LONG,
    "exercise_id" LONG,
    "exercise" TEXT(255) COLLATE NOCASE,
    "Reps" DOUBLE,
    "weight" DOUBLE,
    "weight_unit" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_strength_goals_user ON strength_goals ("User_ID");

-- Generated strength progression per athlete (emptied with the athlete; nothing fills it yet).
CREATE TABLE strength_progression (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "exercise_id" LONG,
    "exercise" TEXT(255) COLLATE NOCASE,
    "Reps" DOUBLE,
    "weight" DOUBLE
);
CREATE INDEX idx_strength_progression_user ON strength_progression ("User_ID");

-- The athlete's own muscle groups (emptied with the athlete; no screen uses it yet).
CREATE TABLE user_muscle_groups (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Group" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_user_muscle_groups_user ON user_muscle_groups ("User_ID");

-- The shopping list, one row per athlete and item.
CREATE TABLE shopping_cart (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Food_name" TEXT(255) COLLATE NOCASE,
    "amount" TEXT(50) COLLATE NOCASE,
    "Price" CURRENCY,
    "permanent" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0
);
CREATE INDEX idx_shopping_cart_user ON shopping_cart ("User_ID");

-- Weigh-ins: girths (positions 2 to 15, read by position), weight, body fat, skinfolds and derived figures.
CREATE TABLE WeighIn (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "Neck" DOUBLE,
    "Shoulders" DOUBLE,
    "Chest" DOUBLE,
    "Stomach" DOUBLE,
    "Waist" DOUBLE,
    "Hips" DOUBLE,
    "Bicep_Left" DOUBLE,
    "Bicep_Right" DOUBLE,
    "Forearm_Left" DOUBLE,
    "Forearm_Right" DOUBLE,
    "Thigh_Left" DOUBLE,
    "Thigh_Right" DOUBLE,
    "Calf_Left" DOUBLE,
    "Calf_Right" DOUBLE,
    "weight" DOUBLE,
    "Height" DOUBLE,
    "BodyFat" DOUBLE,
    "Condition" TEXT(50) COLLATE NOCASE,
    "BMR" DOUBLE,
    "BMI" DOUBLE,
    "Vo2" DOUBLE,
    "BodyFatMeasure" TEXT(50) COLLATE NOCASE,
    "sf1" DOUBLE,
    "sf2" DOUBLE,
    "sf3" DOUBLE,
    "sf4" DOUBLE,
    "sf5" DOUBLE,
    "sf6" DOUBLE,
    "sf7" DOUBLE,
    "Photo" TEXT(255) COLLATE NOCASE
);
CREATE INDEX idx_WeighIn_user_date ON WeighIn ("User_ID", "Date");

-- Measurement goals, one row per athlete: positions 1 to 14 the girths, 15 weight, 16 body fat.
CREATE TABLE WeighIn_goals (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Neck" DOUBLE,
    "Shoulders" DOUBLE,
    "Chest" DOUBLE,
    "Stomach" DOUBLE,
    "Waist" DOUBLE,
    "Hips" DOUBLE,
    "Bicep_Left" DOUBLE,
    "Bicep_Right" DOUBLE,
    "Forearm_Left" DOUBLE,
    "Forearm_Right" DOUBLE,
    "Thigh_Left" DOUBLE,
    "Thigh_Right" DOUBLE,
    "Calf_Left" DOUBLE,
    "Calf_Right" DOUBLE,
    "weight" DOUBLE,
    "BodyFat" DOUBLE
);
CREATE INDEX idx_WeighIn_goals_user ON WeighIn_goals ("User_ID");

-- Wellness days: how the athlete felt, goals, sleep and wake-up time.
CREATE TABLE wellness (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "Date" DATETIME,
    "FeelWell" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "txtFeelWell" TEXT(255) COLLATE NOCASE,
    "Accomplish" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "txtAccomplish" TEXT(255) COLLATE NOCASE,
    "sleep" DOUBLE,
    "wakeup" TEXT(50) COLLATE NOCASE,
    "notes" TEXT(255) COLLATE NOCASE
);
CREATE INDEX idx_wellness_user_date ON wellness ("User_ID", "Date");

-- Timed readings (type 0) and medications (type 1) of a day.
CREATE TABLE wellness_readings (
    "User_ID" LONG,
    "Date" DATETIME,
    "Reading" TEXT(50) COLLATE NOCASE,
    "time" TEXT(50) COLLATE NOCASE,
    "Value" DOUBLE,
    "dose" TEXT(50) COLLATE NOCASE,
    "Type" SHORT
);
CREATE INDEX idx_wellness_readings_user_date ON wellness_readings ("User_ID", "Date");

-- Teams (coaches) that athletes can be put on.
CREATE TABLE user_groups (
    "Group_ID" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Name" TEXT(50) COLLATE NOCASE
);

-- Athlete-to-team memberships, one row each.
CREATE TABLE user_associations (
    "User_ID" LONG,
    "Group_ID" LONG
);
CREATE INDEX idx_user_associations_user ON user_associations ("User_ID");
