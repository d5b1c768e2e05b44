-- Orvantis library store (orvantis.mdb): reference libraries shared by all athletes
-- (units, exercise and sport forms, workouts, strength exercises, foods, recipes) and the
-- exchange settings, which are kept per athlete although they live in this store.
--
-- Declared types are those the store's reader maps back to the dialect's types:
-- TEXT(n)/LONGTEXT (text and memo, compared without regard to case), YESNO (-1/0),
-- DATETIME (ISO text), BYTE, SHORT, LONG, SINGLE, DOUBLE, CURRENCY.
-- Column order matters: foods is read and written by position, and an exercise's
-- exchange record lists the columns of strength_exercises in table order.

-- Measure units with their factor against their kind's base (distances in miles, weights in grams, volumes in millilitres).
CREATE TABLE units (
    "name" TEXT(50) COLLATE NOCASE PRIMARY KEY,
    "type" TEXT(50) COLLATE NOCASE,
    "unit_type" TEXT(50) COLLATE NOCASE,
    "Conversion" DOUBLE
);
CREATE INDEX idx_units_type ON units ("type");

-- Selection fields: one row per item of a named pick list used on exercise forms.
CREATE TABLE DefaultUnits (
    "Name" TEXT(50) COLLATE NOCASE,
    "unit" TEXT(15) COLLATE NOCASE,
    "mtype" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_DefaultUnits_name ON DefaultUnits ("Name");

-- Exercise and sport library items, by category (Training or Sports).
CREATE TABLE endurance_exercises (
    "Category" TEXT(50) COLLATE NOCASE,
    "exercise" TEXT(50) COLLATE NOCASE,
    "Desc" TEXT(255) COLLATE NOCASE,
    "History" TEXT(255) COLLATE NOCASE,
    "Image" LONG
);
CREATE INDEX idx_endurance_exercises_exercise ON endurance_exercises ("exercise");
CREATE INDEX idx_endurance_exercises_category ON endurance_exercises ("Category");

-- The fields of each library item's form, in row order.
CREATE TABLE endurance_templates (
    "Category" TEXT(50) COLLATE NOCASE,
    "Name" TEXT(50) COLLATE NOCASE,
    "field_name" TEXT(50) COLLATE NOCASE,
    "Formula" TEXT(255) COLLATE NOCASE,
    "Value" TEXT(255) COLLATE NOCASE,
    "Units" TEXT(50) COLLATE NOCASE,
    "worder" LONG
);
CREATE INDEX idx_endurance_templates_name ON endurance_templates ("Name");

-- Interval templates, one row per set.
CREATE TABLE Intervals (
    "Name" TEXT(50) COLLATE NOCASE,
    "Set" TEXT(50) COLLATE NOCASE,
    "Description" TEXT(255) COLLATE NOCASE,
    "Instruction" TEXT(255) COLLATE NOCASE,
    "Rest" TEXT(50) COLLATE NOCASE,
    "Intensity" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_Intervals_name ON Intervals ("Name");

-- Strength and sports workouts of the library.
CREATE TABLE workouts (
    "Workout_ID" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Workout_Name" TEXT(50) COLLATE NOCASE,
    "workout_desc" TEXT(255) COLLATE NOCASE,
    "muscle_group" TEXT(50) COLLATE NOCASE,
    "wtype" TEXT(50) COLLATE NOCASE,
    "Beginner" TEXT(1) COLLATE NOCASE,
    "Intermediate" TEXT(1) COLLATE NOCASE,
    "Advanced" TEXT(1) COLLATE NOCASE
);
CREATE INDEX idx_workouts_name ON workouts ("Workout_Name");
CREATE INDEX idx_workouts_wtype ON workouts ("wtype");

-- A library workout's sets, one row per set; 0 reps or weight means "take the athlete's goal".
CREATE TABLE Workout_exercises (
    "Workout_Name" TEXT(50) COLLATE NOCASE,
    "Workout_ID" LONG,
    "muscle_group" TEXT(50) COLLATE NOCASE,
    "exercise" TEXT(255) COLLATE NOCASE,
    "Sets" DOUBLE,
    "Reps" DOUBLE,
    "weight" DOUBLE,
    "Intensity" TEXT(50) COLLATE NOCASE,
    "Goal" TEXT(50) COLLATE NOCASE,
    "Comments" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_Workout_exercises_id ON Workout_exercises ("Workout_ID");
CREATE INDEX idx_Workout_exercises_name ON Workout_exercises ("Workout_Name");

-- Strength exercises; the exchange record of an exercise lists these columns in this order
-- (muscle group, name, the three level flags, type, description, percentage and main lift first).
CREATE TABLE strength_exercises (
    "muscle_group" TEXT(50) COLLATE NOCASE,
    "exercise" TEXT(255) COLLATE NOCASE,
    "Beginner" TEXT(10) COLLATE NOCASE,
    "Intermediate" TEXT(10) COLLATE NOCASE,
    "Advanced" TEXT(10) COLLATE NOCASE,
    "Type" TEXT(50) COLLATE NOCASE,
    "Description" TEXT(255) COLLATE NOCASE,
    "Perc_Lift" DOUBLE,
    "lift" TEXT(50) COLLATE NOCASE,
    "Instruction" TEXT(255) COLLATE NOCASE,
    "Equipment" TEXT(50) COLLATE NOCASE,
    "Image" TEXT(255) COLLATE NOCASE,
    "exercise_id" INTEGER PRIMARY KEY AUTOINCREMENT
);
CREATE INDEX idx_strength_exercises_exercise ON strength_exercises ("exercise");
CREATE INDEX idx_strength_exercises_type ON strength_exercises ("Type");

-- Equipment names offered for strength exercises.
CREATE TABLE strength_equipment (
    "Equipment" TEXT(50) COLLATE NOCASE
);

-- Muscle group names.
CREATE TABLE muscle_groups (
    "Group" TEXT(50) COLLATE NOCASE
);

-- Ties of an exercise to its muscle groups, many rows per exercise.
CREATE TABLE muscle_associations (
    "exercise" TEXT(255) COLLATE NOCASE,
    "muscle_group" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_muscle_associations_exercise ON muscle_associations ("exercise");

-- Foods, menu items, saved meals (group 65) and recipes: one stated serving each. Read by position: 0 to 6, then the 36 nutrients.
CREATE TABLE foods (
    "Food_ID" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Group_ID" LONG,
    "Name" TEXT(255) COLLATE NOCASE,
    "amount" DOUBLE,
    "Measure" TEXT(30) COLLATE NOCASE,
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
CREATE INDEX idx_foods_name ON foods ("Name");
CREATE INDEX idx_foods_group ON foods ("Group_ID");

-- Categories of the foods library by library type: Foods, Menus, Meals, Recipes.
CREATE TABLE food_groups (
    "Group_ID" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Group" TEXT(50) COLLATE NOCASE,
    "Type" TEXT(50) COLLATE NOCASE
);
CREATE INDEX idx_food_groups_type ON food_groups ("Type");
CREATE INDEX idx_food_groups_group ON food_groups ("Group");

-- The nutrient catalogue with RDA values: calories first, then one row per nutrient column of foods, in column order.
CREATE TABLE nutrients (
    "Nutrient_ID" LONG PRIMARY KEY,
    "Nutrient" TEXT(50) COLLATE NOCASE,
    "Measure" TEXT(50) COLLATE NOCASE,
    "RDA" DOUBLE
);

-- Monthly nutrition totals per athlete, read by the yearly food chart.
CREATE TABLE total_nutrition (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "date" DATETIME,
    "calories" DOUBLE,
    "protein" DOUBLE,
    "Fat" DOUBLE,
    "Carbs" DOUBLE,
    "iron" DOUBLE,
    "calcium" DOUBLE,
    "potassium" DOUBLE,
    "Cholesterol" DOUBLE,
    "fiber" DOUBLE,
    "caffeine" DOUBLE,
    "vit_a" DOUBLE,
    "vit_c" DOUBLE,
    "vit_e" DOUBLE,
    "vit_b6" DOUBLE,
    "vit_b12" DOUBLE,
    "folate" DOUBLE,
    "magn" DOUBLE,
    "zinc" DOUBLE,
    "sugar" DOUBLE,
    "sodium" DOUBLE,
    "Phosphorus" DOUBLE,
    "copper" DOUBLE,
    "Manganese" DOUBLE,
    "Selenium" DOUBLE,
    "Thiamin" DOUBLE,
    "Riboflavin" DOUBLE,
    "Niacin" DOUBLE,
    "Glutamic_acid" DOUBLE,
    "Saturated_Fats" DOUBLE,
    "Monounsaturated_Fats" DOUBLE,
    "Polyunsaturated_Fats" DOUBLE
);
CREATE INDEX idx_total_nutrition_user_date ON total_nutrition ("User_ID", "date");

-- Recipe titles with category, yield, source and instructions.
CREATE TABLE recipe_titles (
    "recipe_id" INTEGER PRIMARY KEY AUTOINCREMENT,
    "Recipe_name" TEXT(50) COLLATE NOCASE,
    "Category" LONG,
    "yield" DOUBLE,
    "Source" TEXT(255) COLLATE NOCASE,
    "Instructions" LONGTEXT COLLATE NOCASE
);
CREATE INDEX idx_recipe_titles_name ON recipe_titles ("Recipe_name");
CREATE INDEX idx_recipe_titles_category ON recipe_titles ("Category");

-- A recipe's ingredients taken from the foods library; recipe 0 holds rows kept for saved meals.
CREATE TABLE Recipe_Ingredients (
    "recipe_id" LONG,
    "Food_ID" LONG,
    "Name" TEXT(255) COLLATE NOCASE,
    "Food_name" TEXT(255) COLLATE NOCASE,
    "amount" DOUBLE,
    "Measure" TEXT(50) COLLATE NOCASE,
    "Preparation" TEXT(255) COLLATE NOCASE
);
CREATE INDEX idx_Recipe_Ingredients_recipe ON Recipe_Ingredients ("recipe_id");

-- Generated pages kept by file name (recipe pages for the exchange).
CREATE TABLE html (
    "FileName" TEXT(255) COLLATE NOCASE,
    "Data" LONGTEXT COLLATE NOCASE
);
CREATE INDEX idx_html_filename ON html ("FileName");

-- Exchange connection settings (proxies, firewall type), one row per athlete.
CREATE TABLE web (
    "User_ID" TEXT(50) COLLATE NOCASE,
    "server" TEXT(255) COLLATE NOCASE,
    "Port" TEXT(50) COLLATE NOCASE,
    "user" TEXT(50) COLLATE NOCASE,
    "pswd" TEXT(50) COLLATE NOCASE,
    "proxyType" SHORT
);
CREATE INDEX idx_web_user ON web ("User_ID");
