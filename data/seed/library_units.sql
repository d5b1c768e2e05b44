-- Seed of the library store's table `units`: measure units and their factors.
--
-- Where the facts come from
-- -------------------------
-- Every factor is derived from exact legal definitions, not from measurement:
--   * SI prefixes (BIPM, The International System of Units, 9th ed., 2019):
--     1 kg = 1000 g, 1 mg = 0.001 g, 1 l = 1000 ml, 1 km = 1000 m.
--   * The international yard and pound (1959 agreement, as tabulated in
--     NIST Handbook 44, Appendix C, and NIST Special Publication 811):
--     1 yd = 0.9144 m, 1 ft = 1/3 yd, 1 mile = 1760 yd = 1609.344 m,
--     1 lb (avoirdupois) = 453.59237 g, 1 oz = 1/16 lb = 28.349523125 g.
--   * US customary liquid measure (NIST Handbook 44, Appendix C):
--     1 gal = 231 in3 = 3785.411784 ml, 1 qt = 1/4 gal, 1 pt = 1/2 qt,
--     1 cup = 1/2 pt = 236.5882365 ml, 1 fl oz = 1/8 cup = 29.5735295625 ml,
--     1 tbsp = 1/2 fl oz = 14.78676478125 ml, 1 tsp = 1/3 tbsp = 4.92892159375 ml.
--     These are the customary household cup and spoons, the ones that household
--     measures of food composition tables use (not the rounded 240 ml "label" cup).
--
-- How the table is used
-- ---------------------
--   * `type` is the kind of unit. Units of one kind convert into each other, and
--     `Conversion` is the size of one unit in the kind's base unit:
--       distance -> miles (the speed conversion divides by the target's factor and
--                   takes 1.0 for mph, so distances must be kept in miles),
--       weight   -> grams,
--       volume   -> millilitres.
--     The kind "distance" is what the exercise screens list; every other kind is a
--     measure of a food amount, listed by the food screens.
--   * Count-like household measures (each, slice, piece, ...) cannot be converted
--     into one another, so each is a kind of its own with factor 1: the food screens
--     then offer only the same measure, and a change of portion scales by the amount.
--   * "meal(s)" and "serving(s)", the measures of saved meals and recipes, have
--     deliberately no row: a portion in them scales by the amount alone.
--   * `unit_type` is a finer grouping within the kind (measuring system), so that a
--     list built from it never mixes kinds: metric/us weight, metric/us volume,
--     metric/us distance, count, speed.
--   * "kph" and "mph" are the speed units. They carry no kind (NULL `type`), so that
--     neither the distance lists nor the food measure lists offer them; their
--     factors are miles per hour of one unit (1 kph = 0.621371192237334 mph).
--     The speed calculation itself uses its own fixed divisors for them.

-- Distances, in miles.
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('miles', 'distance', 'us distance', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('yards', 'distance', 'us distance', 0.000568181818181818);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('feet', 'distance', 'us distance', 0.000189393939393939);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('kilometers', 'distance', 'metric distance', 0.621371192237334);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('meters', 'distance', 'metric distance', 0.000621371192237334);

-- Speeds, in miles per hour (no kind: offered by no list).
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('mph', NULL, 'speed', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('kph', NULL, 'speed', 0.621371192237334);

-- Weights, in grams.
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('g', 'weight', 'metric weight', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('mg', 'weight', 'metric weight', 0.001);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('kg', 'weight', 'metric weight', 1000);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('oz', 'weight', 'us weight', 28.349523125);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('lb', 'weight', 'us weight', 453.59237);

-- Volumes, in millilitres.
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('ml', 'volume', 'metric volume', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('liter', 'volume', 'metric volume', 1000);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('tsp', 'volume', 'us volume', 4.92892159375);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('tbsp', 'volume', 'us volume', 14.78676478125);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('fl oz', 'volume', 'us volume', 29.5735295625);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('cup', 'volume', 'us volume', 236.5882365);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('pint', 'volume', 'us volume', 473.176473);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('quart', 'volume', 'us volume', 946.352946);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('gallon', 'volume', 'us volume', 3785.411784);

-- Count-like household measures: each its own kind, factor 1.
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('each', 'each', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('serving', 'serving', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('slice', 'slice', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('piece', 'piece', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('small', 'small', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('medium', 'medium', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('large', 'large', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('package', 'package', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('can', 'can', 'count', 1);
INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES ('bar', 'bar', 'count', 1);
