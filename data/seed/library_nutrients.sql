-- Seed of the library store's table `nutrients`: the nutrient catalogue with a daily
-- reference amount for each.
--
-- Order
-- -----
-- Row 1 is calories; rows 2 to 37 are the 36 nutrient columns of `foods`, in the order of
-- those columns (protein, Fat, Carbs, Fiber, ... Chloride). Screens address the goal and
-- diary columns by this order, so Nutrient_ID must never be renumbered.
--
-- Units
-- -----
-- Each `Measure` is the unit in which the foods seed (USDA National Nutrient Database for
-- Standard Reference, abbreviated file) gives the nutrient: g, mg or mcg; vitamin A as
-- mcg retinol activity equivalents (RAE), folate as total folate in mcg.
--
-- Where the RDA figures come from
-- -------------------------------
-- The Daily Values for adults and children 4 years and older that US food labels use:
-- US Food and Drug Administration, 21 CFR 101.9(c)(8)(iv) (vitamins and minerals) and
-- 101.9(c)(9) (fat, saturated fat, cholesterol, total carbohydrate, sodium, dietary fiber,
-- protein, potassium), as revised by the final rule of 27 May 2016 (81 FR 33742).
-- Calories: the 2,000 calories a day that the same regulation uses as the reference intake
-- for general nutrition advice (101.9(d)(9)).
-- No Daily Value exists for total sugars (the label value is for added sugars only),
-- caffeine, monounsaturated or polyunsaturated fat: their RDA is 0, which the screens
-- treat as "none".
INSERT INTO nutrients ("Nutrient_ID", "Nutrient", "Measure", "RDA") VALUES
(1, 'Calories', 'kcal', 2000),
(2, 'Protein', 'g', 50),
(3, 'Fat', 'g', 78),
(4, 'Carbohydrates', 'g', 275),
(5, 'Fiber', 'g', 28),
(6, 'Sodium', 'mg', 2300),
(7, 'Potassium', 'mg', 4700),
(8, 'Calcium', 'mg', 1300),
(9, 'Iron', 'mg', 18),
(10, 'Cholesterol', 'mg', 300),
(11, 'Sugar', 'g', 0),
(12, 'Caffeine', 'mg', 0),
(13, 'Saturated Fat', 'g', 20),
(14, 'Monounsaturated Fat', 'g', 0),
(15, 'Polyunsaturated Fat', 'g', 0),
(16, 'Folate', 'mcg', 400),
(17, 'Vitamin A', 'mcg', 900),
(18, 'Vitamin C', 'mg', 90),
(19, 'Vitamin D', 'mcg', 20),
(20, 'Vitamin E', 'mg', 15),
(21, 'Vitamin K', 'mcg', 120),
(22, 'Vitamin B6', 'mg', 1.7),
(23, 'Vitamin B12', 'mcg', 2.4),
(24, 'Niacin', 'mg', 16),
(25, 'Thiamin', 'mg', 1.2),
(26, 'Riboflavin', 'mg', 1.3),
(27, 'Magnesium', 'mg', 420),
(28, 'Zinc', 'mg', 11),
(29, 'Phosphorus', 'mg', 1250),
(30, 'Copper', 'mg', 0.9),
(31, 'Manganese', 'mg', 2.3),
(32, 'Selenium', 'mcg', 55),
(33, 'Biotin', 'mcg', 30),
(34, 'Pantothenic Acid', 'mg', 5),
(35, 'Chromium', 'mcg', 35),
(36, 'Molybdenum', 'mcg', 45),
(37, 'Chloride', 'mg', 2300);
