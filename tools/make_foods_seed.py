#!/usr/bin/env python3
"""Builds the foods library seed from the USDA National Nutrient Database for Standard
Reference (public domain), abbreviated files.

The files come with Debian's `gourmand` package, which carries them as data:

    apt-get download gourmand
    dpkg-deb -x gourmand_*.deb /tmp/gourmand
    python3 tools/make_foods_seed.py /tmp/gourmand/usr/lib/python3/dist-packages/gourmand/data

The folder given must hold ABBREV.txt, FOOD_DES.txt and WEIGHT.txt (optionally .gz or .bz2).
It writes data/seed/library_foods.sql, data/seed/library_food_groups.sql and
data/seed/library_units_household.sql (the `units` rows of the qualified household measures
the foods use, "cup, diced"). How a food's default serving is chosen: see choose_weight and
tools/README.md.

The column names of `foods` are read from data/schema/library.sql (by position: 0 Food_ID,
1 Group_ID, 2 Name, 3 amount, 4 Measure, 5 points, 6 calories, 7.. the 36 nutrients); the
measure names from data/seed/library_units.sql, so that a food's serving uses a unit the
program can convert. Standard library only.
"""
import argparse
import bz2
import gzip
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# The nutrient columns of `foods` from position 7, in order, with the field of ABBREV.txt
# (counted from 1) that gives the amount per 100 g. None: the source has no such figure (0).
NUTRIENTS = [
    ("protein", 5), ("Fat", 6), ("Carbs", 8), ("Fiber", 9), ("Sodium", 16),
    ("Potassium", 15), ("Calcium", 11), ("Iron", 12), ("Cholesterol", 46), ("Sugar", 10),
    ("Caffeine", None), ("Fat-Saturated", 43), ("Fat-Monounsaturated", 44),
    ("Fat-Polyunsaturated", 45), ("Folate", 27), ("Vit_A", 34), ("Vit_C", 21),
    ("Vit_D", None), ("Vit_E", 41), ("Vit_K", 42), ("Vit_B6", 26), ("Vit_B12", 32),
    ("Niacin", 24), ("Thiamin", 22), ("Riboflavin", 23), ("Magnesium", 13), ("Zinc", 17),
    ("Phosphorus", 14), ("Copper", 18), ("Manganese", 19), ("Selenium", 20),
    ("Biotin", None), ("Pantothenic acid", 25), ("Chromium", None), ("Molybdenum", None),
    ("Chloride", None),
]
ABBREV_KCAL = 4
ABBREV_VIT_A_IU = 33   # used instead of RAE when the Nutrients catalogue counts vitamin A in IU
DEFAULT_COLUMNS = ["Food_ID", "Group_ID", "Name", "amount", "Measure", "points", "calories"] + \
    [n for n, _ in NUTRIENTS]

# USDA food groups (FdGrp_Cd) -> our category. 2100 (fast foods) is split into restaurants.
USDA_GROUPS = {
    "0100": "Dairy and Egg Products", "0200": "Spices and Herbs", "0300": "Baby Foods",
    "0400": "Fats and Oils", "0500": "Poultry Products", "0600": "Soups, Sauces, and Gravies",
    "0700": "Sausages and Luncheon Meats", "0800": "Breakfast Cereals",
    "0900": "Fruits and Fruit Juices", "1000": "Pork Products",
    "1100": "Vegetables and Vegetable Products", "1200": "Nut and Seed Products",
    "1300": "Beef Products", "1400": "Beverages", "1500": "Finfish and Shellfish Products",
    "1600": "Legumes and Legume Products", "1700": "Lamb, Veal, and Game Products",
    "1800": "Baked Products", "1900": "Sweets", "2000": "Cereal Grains and Pasta",
    "2200": "Meals, Entrees, and Side Dishes", "2500": "Snacks", "3500": "Ethnic Foods",
    "3600": "Restaurant Foods",
}
# Restaurant categories (type "Menus"): a name beginning with the prefix goes there.
RESTAURANTS = [
    ("MCDONALD'S", "McDonald's"), ("BURGER KING", "Burger King"),
    ("KENTUCKY FRIED CHICKEN", "Kentucky Fried Chicken"), ("POPEYES", "Popeyes"),
    ("TACO BELL", "Taco Bell"), ("WENDY'S", "Wendy's"), ("PIZZA HUT", "Pizza Hut"),
    ("DOMINO'S", "Domino's"), ("PAPA JOHN'S", "Papa John's"),
    ("LITTLE CAESARS", "Little Caesars"), ("SUBWAY", "Subway"), ("DAIRY QUEEN", "Dairy Queen"),
    ("ARBY'S", "Arby's"), ("CHICK-FIL-A", "Chick-fil-A"),
]
GENERIC_FAST_FOOD = "Fast Foods"
RECIPE_CATEGORIES = ["Appetizers", "Drinks", "Breads", "Breakfast", "Desserts",
                     "Main Dishes", "Salads", "Side Dishes", "Soups", "Vegetarian"]
MEALS_GROUP_ID = 65
BY_WEIGHT = ", by weight"   # the name of the 100 g row of a food served by count

# First word of a household measure -> the unit names that may stand for it, best first.
MEASURE_SYNONYMS = {
    "cup": ["cup", "cup(s)", "cups"], "cups": ["cup", "cup(s)", "cups"],
    "tbsp": ["tbsp", "tablespoon", "tablespoon(s)", "Tbsp"],
    "tablespoon": ["tbsp", "tablespoon", "tablespoon(s)", "Tbsp"],
    "tablespoons": ["tbsp", "tablespoon", "tablespoon(s)", "Tbsp"],
    "tsp": ["tsp", "teaspoon", "teaspoon(s)"], "teaspoon": ["tsp", "teaspoon", "teaspoon(s)"],
    "teaspoons": ["tsp", "teaspoon", "teaspoon(s)"],
    "oz": ["oz", "ounce", "ounce(s)", "ounces"], "ounce": ["oz", "ounce", "ounce(s)", "ounces"],
    "fl oz": ["fl oz", "fluid ounce", "fluid ounce(s)", "fl. oz"],
    "lb": ["lb", "lbs", "pound", "pound(s)"], "pound": ["lb", "lbs", "pound", "pound(s)"],
    "quart": ["quart", "qt", "quart(s)"], "pint": ["pint", "pt", "pint(s)"],
    "gallon": ["gallon", "gal", "gallon(s)"], "g": ["g", "gram", "gram(s)", "grams"],
    "kg": ["kg", "kilogram", "kilogram(s)"], "ml": ["ml", "milliliter", "millilitre", "mL"],
    "liter": ["liter", "litre", "l", "L"], "serving": ["serving", "serving(s)"],
    "slice": ["slice", "slice(s)"], "piece": ["piece", "piece(s)"],
    "large": ["large"], "medium": ["medium"], "small": ["small"],
    "each": ["each"], "item": ["each", "item"], "unit": ["each", "unit"],
    "nlea": ["serving", "serving(s)"], "package": ["package"], "can": ["can"],
    "slices": ["slice", "slice(s)"], "pieces": ["piece", "piece(s)"],
}
GRAM_NAMES = ["g", "gram", "gram(s)", "grams"]


def read_text(folder, name):
    for candidate in (name, name.lower(), name + ".gz", name + ".bz2",
                      name.lower() + ".gz", name.lower() + ".bz2"):
        path = os.path.join(folder, candidate)
        if not os.path.exists(path):
            continue
        if path.endswith(".gz"):
            data = gzip.open(path, "rb").read()
        elif path.endswith(".bz2"):
            data = bz2.open(path, "rb").read()
        else:
            data = open(path, "rb").read()
        return data.decode("latin-1")
    sys.exit("make_foods_seed: %s not found in %s" % (name, folder))


def records(text):
    """Rows of a ^-separated file whose text fields are enclosed in ~."""
    for line in text.splitlines():
        if not line.strip():
            continue
        yield [f.strip("~") for f in line.split("^")]


def schema_columns():
    """The columns of foods from the schema, in order; the default names if it is missing."""
    path = os.path.join(ROOT, "data", "schema", "library.sql")
    if not os.path.exists(path):
        return DEFAULT_COLUMNS
    sql = open(path, encoding="utf-8").read()
    m = re.search(r'create\s+table\s+(?:if\s+not\s+exists\s+)?["`\[]?foods["`\]]?\s*\((.*?)\)\s*;',
                  sql, re.I | re.S)
    if not m:
        return DEFAULT_COLUMNS
    cols = []
    body = re.sub(r"--[^\n]*", "", m.group(1))
    depth, cur = 0, ""
    for ch in body:   # split at top-level commas
        if ch == "(":
            depth += 1
        elif ch == ")":
            depth -= 1
        if ch == "," and depth == 0:
            cols.append(cur)
            cur = ""
        else:
            cur += ch
    cols.append(cur)
    names = []
    for c in cols:
        c = c.strip()
        if not c or re.match(r"(primary|unique|foreign|check|constraint)\b", c, re.I):
            continue
        mm = re.match(r'"([^"]+)"|\[([^\]]+)\]|`([^`]+)`|(\S+)', c)
        names.append(next(g for g in mm.groups() if g))
    if len(names) < len(DEFAULT_COLUMNS):
        sys.exit("make_foods_seed: foods in library.sql has %d columns, expected %d"
                 % (len(names), len(DEFAULT_COLUMNS)))
    return names[:len(DEFAULT_COLUMNS)]


def unit_names():
    """Names of the `units` rows seeded beside us (the first quoted text of each row)."""
    path = os.path.join(ROOT, "data", "seed", "library_units.sql")
    if not os.path.exists(path):
        return []
    names = []
    for m in re.finditer(r"\(\s*'((?:[^']|'')*)'", open(path, encoding="utf-8").read()):
        names.append(m.group(1).replace("''", "'"))
    return names


def unit_rows():
    """name (lower case) -> (name, type, unit_type, conversion) of the `units` rows seeded
    beside us."""
    path = os.path.join(ROOT, "data", "seed", "library_units.sql")
    if not os.path.exists(path):
        return {}
    rows = {}
    text = r"NULL|'(?:[^']|'')*'"
    pat = re.compile(r"\(\s*'((?:[^']|'')*)'\s*,\s*(%s)\s*,\s*(%s)\s*,\s*([-0-9.eE]+|NULL)\s*\)"
                     % (text, text), re.I)

    def unquote(t):
        return None if t.upper() == "NULL" else t[1:-1].replace("''", "'")
    for m in pat.finditer(open(path, encoding="utf-8").read()):
        try:
            conv = float(m.group(4))
        except ValueError:
            conv = None
        name = m.group(1).replace("''", "'")
        rows[name.lower()] = (name, unquote(m.group(2)), unquote(m.group(3)), conv)
    return rows


def serving(amount, measure, grams, rows):
    """The serving as stored: (amount, grams the nutrients are scaled to).

    A weight measure means what it says: its nutrients are those of amount x the unit's grams,
    so that a later change of portion in grams or ounces gives the same figures. Where the
    source's stated amount disagrees with its own gram weight by more than a tenth ("12 oz,
    serving 2.7 oz" weighing 77 g, "1 oz with bone" weighing 19 g of meat), the gram weight is
    the fact and the amount is recomputed from it."""
    _, kind, _, conv = rows.get(measure.lower(), (None, None, None, None))
    if kind != "weight" or not conv:
        return amount, grams
    if abs(amount * conv - grams) > 0.1 * grams:
        amount = round(grams / conv, 2) or round(grams / conv, 3)
    return amount, amount * conv


def vitamin_a_in_iu():
    """True when the Nutrients catalogue seeded beside us counts vitamin A in IU."""
    folder = os.path.join(ROOT, "data", "seed")
    if not os.path.isdir(folder):
        return False
    for f in os.listdir(folder):
        if "nutrient" in f.lower() and f.endswith(".sql"):
            for line in open(os.path.join(folder, f), encoding="utf-8"):
                if re.search(r"vit\w*[ _]a\b", line, re.I) and re.search(r"'IU'", line):
                    return True
    return False


def pick(candidates, units):
    lower = {u.lower(): u for u in units}
    for c in candidates:
        if c.lower() in lower:
            return lower[c.lower()]
    return None


MEASURE_WIDTH = 30      # characters of foods.Measure

# The default serving is a portion a person eats at one time (see choose_weight).
PORTION_MIN_G = 10
PORTION_MAX_G = 350
PORTION_MAX_KCAL = 600
RICH_KCAL = 400         # kcal per 100 g from which a food is eaten by the spoonful or ounce
RICH_MAX_G = 60
FATS_AND_OILS = "0400"  # eaten by the spoonful whatever their energy
DAIRY = "0100"          # cheeses: eaten by the slice or ounce from CHEESE_KCAL a 100 g
CHEESE_KCAL = 300
BIG_PORTION_G = 700     # the most a single item may weigh when a food has nothing lighter


def split_measure(desc, units):
    """A household measure of WEIGHT.txt -> (the `units` row it stands for, or None; the rest of
    its text): "cup, diced" -> ("cup", "diced"), "cup chopped" -> ("cup", "chopped"),
    "tablespoon (1 oz)" -> ("tbsp", "(1 oz)"), "spear (about 5\" long)" -> (None, the text)."""
    d = " ".join(desc.split())
    d = d.replace("( ", "(").replace(" )", ")")
    if d.lower().startswith("fl oz"):
        key, rest = "fl oz", d[5:]
    else:
        m = re.match(r"[^\s,(]+", d)
        if not m:
            return None, d
        key, rest = m.group(0).lower(), d[m.end():]
    if key in MEASURE_SYNONYMS:
        unit = pick(MEASURE_SYNONYMS[key], units) if units else MEASURE_SYNONYMS[key][0]
        if unit:
            return unit, rest.strip(" ,")
    return None, d


# A note that only restates an amount or calls the measure a serving ("cup (8 fl oz)",
# "tbsp (1/4 cup)", "cup (1 NLEA serving)") is no qualifier: the amount says it already.
RESTATED = re.compile(r"^,?\s*\(?\s*[0-9/.]+\s*(?:fl oz|cup)\s*\)?\s*$|"
                      r"\(\s*(?:[1l]\s+)?(?:NLEA\s+)?serving(?:\s+size)?\s*\)", re.I)


def balanced(text):
    return text.count("(") == text.count(")")


def qualified(unit, rest):
    """unit + its qualifier as one measure text that fits foods.Measure: "cup, diced",
    "cup (8 fl oz)". A qualifier too long is cut after a part that fits ("cup, whole kernels,
    drained" -> "cup, whole kernels"), and left out when none does."""
    rest = RESTATED.sub("", rest).strip(" ,")
    if not rest:
        return unit
    parts = rest.split(", ")
    for n in range(len(parts), 0, -1):
        q = ", ".join(parts[:n])
        text = unit + (" " if q.startswith("(") else ", ") + q
        if len(text) <= MEASURE_WIDTH and balanced(q):
            return text
    return unit


def map_measure(desc, units, rows):
    """A household measure of WEIGHT.txt -> the measure name stored in foods.

    A volume keeps the source's qualifier, as it says how the cup or spoon is filled ("cup,
    diced" and "cup, shredded" of a cheese weigh 132 and 113 g); such a measure gets a `units`
    row of its own with the factor of its unit (household_unit_rows), so it converts as the
    plain unit does. A weight is the plain unit: its amount is that of its gram weight (see
    serving), which a qualifier like "with bone" no longer describes. A count that has a
    `units` row (medium, slice, serving, ...) is that row, a kind of its own; any other
    measure keeps the source's text, cut to the column."""
    unit, rest = split_measure(desc, units)
    if unit is None:
        return rest[:MEASURE_WIDTH].rstrip()
    kind = rows.get(unit.lower(), (None, None))[1]
    if kind == "volume":
        return qualified(unit, rest)
    return unit


def measure_kind(desc, units, rows):
    """The `type` of the units row a household measure stands for (None: a count of its own)."""
    unit, _ = split_measure(desc, units)
    if unit is None:
        return None
    return rows.get(unit.lower(), (None, None))[1]


def portion_rank(desc, units, rows):
    """How well a measure suits a rich food eaten by the spoonful or ounce, best first: a
    labelled serving, a count with a units row (slice, piece, medium, ...), tbsp, oz, another
    count (pat, cookie, ...), any other measure (tsp, cup, ...)."""
    unit, _ = split_measure(desc, units)
    if unit is None:
        return 4
    kind = rows.get(unit.lower(), (None, None))[1]
    if kind == "serving":
        return 0
    if kind not in ("weight", "volume"):
        return 1
    if unit.lower() in ("tbsp", "tablespoon"):
        return 2
    if unit.lower() in ("oz", "ounce"):
        return 3
    return 5


def choose_weight(weights, kcal100, rich, units, rows):
    """The default serving of a food, a measure of WEIGHT.txt (amount, text, grams, seq), or
    None when it has none that will do.

    A portion weighs PORTION_MIN_G..PORTION_MAX_G (at most RICH_MAX_G for a rich food: fats
    and oils, or more than RICH_KCAL a 100 g) and holds at most PORTION_MAX_KCAL. Among the
    portions, a rich food takes the best by portion_rank ("2 tbsp" of peanut butter, a slice
    of cheese), any other food a "medium" one, else the first the source lists. Without a
    portion: a half, quarter or eighth of a weight or volume that makes one (a quarter cup
    of raw rice), else the heaviest measure under the range (a tablespoon of a spice), else the lightest
    measure if it is a count of at most BIG_PORTION_G (a restaurant's double burger), else
    none: the food is served by weight (see FALLBACK_SERVING), not as a whole turkey."""
    if not weights:
        return None
    high = RICH_MAX_G if rich else PORTION_MAX_G

    def kcal(w):
        return w[2] * kcal100 / 100.0
    portions = [w for w in weights
                if PORTION_MIN_G <= w[2] <= high and kcal(w) <= PORTION_MAX_KCAL]
    if portions:
        if rich:
            return min(portions, key=lambda w: (portion_rank(w[1], units, rows), w[3]))
        for w in portions:
            if w[1].lower().startswith("medium"):
                return w
        return portions[0]
    for w in weights:
        if measure_kind(w[1], units, rows) in ("weight", "volume"):
            for share in (0.5, 0.25, 0.125):
                part = (w[0] * share, w[1], w[2] * share, w[3])
                if PORTION_MIN_G <= part[2] <= high and kcal(part) <= PORTION_MAX_KCAL:
                    return part
    small = [w for w in weights if w[2] < PORTION_MIN_G]
    if small:
        return max(small, key=lambda w: (w[2], -w[3]))
    lightest = min(weights, key=lambda w: (w[2], w[3]))
    if lightest[2] <= BIG_PORTION_G and measure_kind(lightest[1], units, rows) != "weight":
        return lightest
    return None


def household_unit_rows(measures, rows):
    """`units` rows for the qualified measures in use ({"cup, diced": "cup"}): the type and
    factor of their unit, so that they convert like it; unit_type "household " + the unit's
    kind keeps them apart from the plain units in lists built by unit_type."""
    out = []
    for text in sorted(measures, key=str.lower):
        _, kind, _, conv = rows[measures[text].lower()]
        out.append((text, kind, "household " + kind, conv))
    return out


def number(x):
    """A figure as short SQL text."""
    if x == 0:
        return "0"
    r = round(x, 3)
    if r == int(r):
        return str(int(r))
    return ("%.3f" % r).rstrip("0").rstrip(".")


def sql_text(s):
    return "'" + s.replace("'", "''") + "'"


def category_of(group_code, name):
    if group_code == "2100":
        up = name.upper()
        for prefix, cat in RESTAURANTS:
            if up.startswith(prefix):
                return ("Menus", cat)
        return ("Menus", GENERIC_FAST_FOOD)
    return ("Foods", USDA_GROUPS.get(group_code, "Other Foods"))


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("source", help="folder with ABBREV.txt, FOOD_DES.txt, WEIGHT.txt")
    ap.add_argument("--out", default=os.path.join(ROOT, "data", "seed"))
    ap.add_argument("--batch", type=int, default=250, help="rows per INSERT statement")
    args = ap.parse_args()

    version = ""
    vpath = os.path.join(args.source, "nutritional_data_sr_version")
    if os.path.exists(vpath):
        version = open(vpath).read().strip()

    abbrev = {r[0]: r for r in records(read_text(args.source, "ABBREV.txt"))}
    desc = {r[0]: r for r in records(read_text(args.source, "FOOD_DES.txt"))}
    weights = {}
    for r in records(read_text(args.source, "WEIGHT.txt")):
        try:
            amount, grams = float(r[2]), float(r[4])
        except (ValueError, IndexError):
            continue
        if amount > 0 and grams > 0:
            weights.setdefault(r[0], []).append((amount, r[3], grams, int(r[1] or 0)))
    for w in weights.values():
        w.sort(key=lambda t: t[3])

    columns = schema_columns()
    units = unit_names()
    gram_unit = (pick(GRAM_NAMES, units) if units else None) or "g"
    fields = [f for _, f in NUTRIENTS]
    if vitamin_a_in_iu():
        fields[[n for n, _ in NUTRIENTS].index("Vit_A")] = ABBREV_VIT_A_IU

    # Categories: " My Favorites" first, then the food groups, restaurants, meals, recipes.
    foods = []
    for ndb, row in abbrev.items():
        d = desc.get(ndb)
        name = (d[2] if d and len(d) > 2 and d[2] else row[1]).strip()
        code = d[1] if d else ""
        foods.append((category_of(code, name), name, ndb, row, code))
    food_cats = sorted({c for (t, c), *_ in foods if t == "Foods"})
    menu_cats = sorted({c for (t, c), *_ in foods if t == "Menus"})
    groups = [(1, " My Favorites", "Foods")]
    gid = 2
    for c in food_cats:
        groups.append((gid, c, "Foods"))
        gid += 1
    gid = max(gid, 40)
    for c in menu_cats:
        groups.append((gid, c, "Menus"))
        gid += 1
    if gid > MEALS_GROUP_ID:
        sys.exit("make_foods_seed: too many categories before the meals group")
    groups.append((MEALS_GROUP_ID, "Meals", "Meals"))
    gid = MEALS_GROUP_ID + 1
    for c in RECIPE_CATEGORIES:
        groups.append((gid, c, "Recipes"))
        gid += 1
    group_id = {(t, c): i for i, c, t in groups}

    header = ("-- Source: USDA National Nutrient Database for Standard Reference%s, public domain,\n"
              "-- abbreviated files (ABBREV.txt, FOOD_DES.txt, WEIGHT.txt) as shipped by Debian's\n"
              "-- gourmand package. Generated by tools/make_foods_seed.py; do not edit by hand.\n"
              % ((", release " + version) if version else ""))

    with open(os.path.join(args.out, "library_food_groups.sql"), "w", encoding="utf-8") as f:
        f.write("-- Categories of the foods library: the food groups of the USDA National Nutrient\n"
                "-- Database for Standard Reference (public domain), restaurants (Menus), saved\n"
                "-- meals (group 65) and recipe categories. \" My Favorites\" keeps its leading\n"
                "-- blank so that it sorts first. Generated by tools/make_foods_seed.py.\n")
        f.write('INSERT INTO food_groups ("Group_ID", "Group", "Type") VALUES\n')
        f.write(",\n".join("(%d, %s, %s)" % (i, sql_text(c), sql_text(t)) for i, c, t in groups))
        f.write(";\n")

    foods.sort(key=lambda x: (group_id[x[0]], x[1].lower(), x[2]))
    collist = ", ".join('"%s"' % c for c in columns)
    out_rows = []
    unmapped = 0
    rows_of_units = unit_rows()

    def food_row(food_id, cat, name, row, amount, measure, grams):
        factor = grams / 100.0

        def value(field):
            if field is None or field > len(row) or not row[field - 1].strip():
                return 0.0
            try:
                return float(row[field - 1]) * factor
            except ValueError:
                return 0.0

        vals = [str(food_id), str(group_id[cat]), sql_text(name[:255]), number(amount),
                sql_text(measure[:30]), "0", number(value(ABBREV_KCAL))]
        vals += [number(value(fld)) for fld in fields]
        return "(" + ", ".join(vals) + ")"

    # A food served by count ("1 medium", "1 slice", a source text without a units row) can't
    # be changed to grams later, as a portion changes only within its measure's type. Such a
    # food gets a second row of 100 g under its name + BY_WEIGHT, so both ways of eating it
    # can be logged; the names differ, as foods are looked up by name in several places.
    food_id = 0
    by_weight = 0
    household = {}   # qualified measures in use, lower case -> (text, its unit)
    oz_unit = pick(MEASURE_SYNONYMS["oz"], units) if units else "oz"
    for cat, name, ndb, row, code in foods:
        try:
            kcal100 = float(row[ABBREV_KCAL - 1])
        except ValueError:
            kcal100 = 0.0
        rich = code == FATS_AND_OILS or kcal100 > RICH_KCAL or (code == DAIRY and kcal100 > CHEESE_KCAL)
        w = choose_weight(weights.get(ndb), kcal100, rich, units, rows_of_units)
        if w:
            amount, measure_desc, grams = w[0], w[1], w[2]
            measure = map_measure(measure_desc, units, rows_of_units)
            unit, _ = split_measure(measure_desc, units)
            if unit and measure.lower() != unit.lower():
                # One spelling for all foods: units names are unique whatever their case.
                measure = household.setdefault(measure.lower(), (measure, unit))[0]
            elif units and measure not in units:
                unmapped += 1
            amount, grams = serving(amount, measure, grams, rows_of_units)
        elif rich and oz_unit:
            # FALLBACK_SERVING: a rich food by the ounce, any other by 100 g.
            amount, measure, grams = 1, oz_unit, rows_of_units.get(oz_unit.lower(),
                                                                  (0, 0, 0, 28.349523125))[3]
        else:
            amount, measure, grams = 100, gram_unit, 100.0
        food_id += 1
        out_rows.append(food_row(food_id, cat, name, row, amount, measure, grams))
        if measure.lower() in household:
            kind = measure_kind(household[measure.lower()][1], units, rows_of_units)
        else:
            kind = rows_of_units.get(measure.lower(), (None, None))[1]
        if rows_of_units and kind not in ("weight", "volume") and \
                len(name) + len(BY_WEIGHT) <= 255:
            food_id += 1
            by_weight += 1
            out_rows.append(food_row(food_id, cat, name + BY_WEIGHT, row, 100, gram_unit, 100.0))

    with open(os.path.join(args.out, "library_units_household.sql"), "w", encoding="utf-8") as f:
        f.write("-- Household measures of the foods library that carry the source's qualifier (\"cup,\n"
                "-- diced\"): each has the type and factor of its unit, so a portion in it converts as\n"
                "-- one in the plain unit does. Generated by tools/make_foods_seed.py with\n"
                "-- library_foods.sql; this file sorts after library_units.sql, so these rows\n"
                "-- follow the plain units in lists.\n")
        hh = household_unit_rows({t: u for t, u in household.values()}, rows_of_units)
        if hh:
            f.write('INSERT INTO units ("name", "type", "unit_type", "Conversion") VALUES\n')
            f.write(",\n".join("(%s, %s, %s, %s)" % (sql_text(t), sql_text(k), sql_text(ut), repr(c))
                                for t, k, ut, c in hh))
            f.write(";\n")

    with open(os.path.join(args.out, "library_foods.sql"), "w", encoding="utf-8") as f:
        f.write(header)
        f.write("-- Each row is one household serving (amount and measure) of a food; the nutrients\n"
                "-- are the source's figures per 100 g scaled to the serving's weight. Figures the\n"
                "-- source lacks (caffeine, vitamin D, biotin, chromium, molybdenum, chloride) are 0.\n"
                "-- The serving is a portion eaten at one time (tools/README.md gives the rule).\n"
                "-- A serving in a weight unit holds the nutrients of that weight. A food served by\n"
                "-- count (medium, slice, serving, ...) has a second row, its name + \"%s\", of\n"
                "-- 100 g, so that a portion of it can be given in grams.\n" % BY_WEIGHT)
        for i in range(0, len(out_rows), args.batch):
            f.write("INSERT INTO foods (%s) VALUES\n" % collist)
            f.write(",\n".join(out_rows[i:i + args.batch]))
            f.write(";\n")
    print("make_foods_seed: %d foods in %d categories (%d servings without a units row, "
          "%d rows by weight for foods served by count, %d qualified household measures)"
          % (len(out_rows), len(groups), unmapped, by_weight, len(household)))


if __name__ == "__main__":
    main()
