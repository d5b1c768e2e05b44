#include "sampledata.h"

#include "athlete/energymodel.h"
#include "body/weighincalc.h"
#include "calendar/icons.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/recordset.h"
#include "core/store/transaction.h"
#include "core/store/value.h"
#include "core/widgets/RichText.h"
#include "exercise/rules/exercisecalc.h"
#include "strength/rules/strengthlog.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QHash>
#include <QSet>
#include <QTextDocument>
#include <QTime>
#include <cmath>

namespace sampledata {

namespace {

// The same seed gives the same numbers on every platform: a generator of our own (splitmix64),
// no library distribution.
class Dice {
public:
    Dice(quint32 seed, const QDate& day, quint32 kind)
        : m_state((quint64(seed) << 32) ^ (quint64(day.toJulianDay()) << 4) ^ kind)
    {
        Next();
    }
    double Unit() { return double(Next() >> 11) / 9007199254740992.0; }
    double Between(double lo, double hi) { return lo + (hi - lo) * Unit(); }
    int Int(int lo, int hi) { return lo + int(Unit() * double(hi - lo + 1)); }
    bool Chance(double p) { return Unit() < p; }
    template <class T> const T& Pick(const QList<T>& list) { return list.at(Int(0, int(list.size()) - 1)); }

private:
    quint64 Next()
    {
        quint64 z = (m_state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    quint64 m_state;
};

QString Quoted(const QString& id) { return QStringLiteral("'") + id + QStringLiteral("'"); }

// A duration as the logs' "99:99:99" fields give it.
QString DurationText(int minutes)
{
    return QStringLiteral("%1:%2:00").arg(minutes / 60, 2, 10, QLatin1Char('0')).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

// A calendar entry's time as the day view gives it.
QString EntryText(const QDate& d, const QTime& t)
{
    return SqlDate(d) + QLatin1Char(' ') + regional::FormatDate(QDateTime(d, t), QStringLiteral("Long Time"));
}

// A time of day as a person types it: "6:45 AM".
QString ClockText(const QTime& t)
{
    int h = t.hour() % 12;
    if (h == 0) h = 12;
    return QStringLiteral("%1:%2 %3").arg(h).arg(t.minute(), 2, 10, QLatin1Char('0'))
        .arg(t.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

// The dates of a range on which a table already holds rows of the athlete.
QSet<QDate> TakenDates(const QString& table, const QString& userWhere, const QDate& from, const QDate& to,
                       const QString& dateColumn = QStringLiteral("date"))
{
    QSet<QDate> taken;
    Recordset rs(&UserConn);
    ForEachRow(rs,
               QStringLiteral("select distinct ") + dateColumn + QStringLiteral(" from ") + table + QStringLiteral(" where ") +
                   userWhere + QStringLiteral(" and ") + dateColumn + QStringLiteral(" between #") + SqlDate(from) +
                   QStringLiteral("# and #") + SqlDate(to) + QStringLiteral("#"),
               [&taken](Recordset& r) {
                   const QVariant v = r.Field(0);
                   if (v.typeId() == QMetaType::QDate) taken.insert(v.toDate());
                   else if (v.typeId() == QMetaType::QDateTime) taken.insert(v.toDateTime().date());
                   else taken.insert(QDate::fromString(Str(v).left(10), Qt::ISODate));
               });
    return taken;
}

// ------------------------------------------------------------------------------ the library

struct Food {
    QList<QVariant> row;   // the foods row, by position
};

// Real foods of the library for each meal of the day, by the start of their names.
const QList<QStringList>& MealFoodNames()
{
    static const QList<QStringList> names = {
        // Breakfast
        {QStringLiteral("Cereals, oats, instant, fortified, plain, dry"), QStringLiteral("Milk, reduced fat, fluid, 2% milkfat"),
         QStringLiteral("Bread, whole-wheat, commercially prepared, toasted"), QStringLiteral("Egg, whole, cooked, scrambled"),
         QStringLiteral("Bananas, raw"), QStringLiteral("Orange juice, California, chilled"),
         QStringLiteral("Coffee, brewed from grounds, prepared with tap water"), QStringLiteral("Yogurt, plain, low fat"),
         QStringLiteral("Peanut butter, chunk style, with salt")},
        // Snack1
        {QStringLiteral("Apples, raw, with skin"), QStringLiteral("Bananas, raw"), QStringLiteral("Nuts, almonds"),
         QStringLiteral("Yogurt, plain, low fat"), QStringLiteral("Crackers, cheese, regular"),
         QStringLiteral("Oranges, raw, all commercial varieties")},
        // Lunch
        {QStringLiteral("Chicken, broilers or fryers, breast, meat only, cooked, roasted"),
         QStringLiteral("Rice, brown, long-grain, cooked"), QStringLiteral("Lettuce, cos or romaine, raw"),
         QStringLiteral("Tomatoes, red, ripe, raw, year round average"), QStringLiteral("Bread, whole-wheat, commercially prepared"),
         QStringLiteral("Cheese, cheddar"), QStringLiteral("Beans, black turtle soup, mature seeds, cooked, boiled, with salt"),
         QStringLiteral("Carrots, raw")},
        // Snack2
        {QStringLiteral("Apples, raw, with skin"), QStringLiteral("Carrots, raw"), QStringLiteral("Nuts, almonds"),
         QStringLiteral("Crackers, cheese, regular"), QStringLiteral("Cheese, cheddar")},
        // Supper
        {QStringLiteral("Fish, salmon, Atlantic, farmed, cooked, dry heat"), QStringLiteral("Spaghetti, cooked, enriched, without added salt"),
         QStringLiteral("Beef, ground, 85% lean meat / 15% fat, patty, cooked, broiled"),
         QStringLiteral("Potatoes, baked, flesh and skin, with salt"), QStringLiteral("Broccoli, cooked, boiled, drained, with salt"),
         QStringLiteral("Rice, white, long-grain, regular, cooked"), QStringLiteral("Chicken, broilers or fryers, breast, meat only, cooked, fried"),
         QStringLiteral("Lettuce, cos or romaine, raw")},
    };
    return names;
}

QList<QList<Food>> LoadMealFoods()
{
    QList<QList<Food>> meals;
    QHash<QString, Food> byName;
    Recordset rs(&LibraryConn);
    for (const QStringList& names : MealFoodNames()) {
        QList<Food> pool;
        for (const QString& name : names) {
            if (byName.contains(name)) {
                pool << byName.value(name);
                continue;
            }
            FirstRow(rs,
                     QStringLiteral("select * from foods where name like '") + SqlQuote(name) +
                         QStringLiteral("%' and name not like '%by weight' and calories > 0 order by name"),
                     [&](Recordset& r) {
                         Food f;
                         for (int p = 0; p < r.FieldCount(); ++p) f.row << r.Field(p);
                         byName.insert(name, f);
                         pool << f;
                     });
        }
        if (pool.isEmpty()) {
            // A library without those foods still gives meals: any real serving will do.
            ForEachRowWhile(rs, QStringLiteral("select * from foods where calories > 50 and group_id <> 65 order by food_id"),
                            [&](Recordset& r) {
                                Food f;
                                for (int p = 0; p < r.FieldCount(); ++p) f.row << r.Field(p);
                                pool << f;
                                return pool.size() < 20;
                            });
        }
        meals << pool;
    }
    return meals;
}

struct Sport {
    QString name;
    bool training = true;   // distance and speed; a sport is timed only
    int image = 0;
    double kph = 0;         // a usual pace
};

QList<Sport> LoadSports()
{
    const QList<Sport> wanted = {
        {QStringLiteral("Running"), true, 0, 10.5},  {QStringLiteral("Cycling"), true, 0, 26.0},
        {QStringLiteral("Swimming"), true, 0, 2.6},  {QStringLiteral("Walking"), true, 0, 5.5},
        {QStringLiteral("Rowing"), true, 0, 9.0},    {QStringLiteral("Hiking"), true, 0, 4.5},
        {QStringLiteral("Tennis"), false, 0, 0},     {QStringLiteral("Soccer"), false, 0, 0},
        {QStringLiteral("Basketball"), false, 0, 0},
    };
    QList<Sport> sports;
    Recordset rs(&LibraryConn);
    for (Sport s : wanted) {
        bool found = false;
        FirstRow(rs, QStringLiteral("select Image from endurance_exercises where exercise='") + SqlQuote(s.name) + QStringLiteral("'"),
                 [&](Recordset& r) {
                     s.image = int(Val(r.Field(0)));
                     found = true;
                 });
        if (found) sports << s;
    }
    return sports;
}

struct WorkoutSet {
    QString group, exercise, set, intensity, goal, comments;
    double reps = 0, weight = 0;
};
struct Workout {
    QString name;
    QList<WorkoutSet> sets;
};

QList<Workout> LoadWorkouts()
{
    QList<Workout> workouts;
    Recordset rs(&LibraryConn);
    QStringList names;
    ForEachRow(rs, QStringLiteral("select workout_name from workouts where wtype='strength' order by workout_id"),
               [&names](Recordset& r) { names << Str(r.Field(0)); });
    for (const QString& name : names) {
        Workout w;
        w.name = name;
        ForEachRow(rs, QStringLiteral("select * from Workout_exercises where Workout_name='") + SqlQuote(name) + QStringLiteral("'"),
                   [&w](Recordset& r) {
                       WorkoutSet s;
                       s.group = Str(r.Field(QStringLiteral("muscle_group")));
                       s.exercise = Str(r.Field(QStringLiteral("exercise")));
                       s.set = Str(r.Field(QStringLiteral("Sets")));
                       s.reps = Val(r.Field(QStringLiteral("Reps")));
                       s.weight = Val(r.Field(QStringLiteral("weight")));
                       s.intensity = Str(r.Field(QStringLiteral("Intensity")));
                       s.goal = Str(r.Field(QStringLiteral("Goal")));
                       s.comments = Str(r.Field(QStringLiteral("Comments")));
                       w.sets << s;
                   });
        if (!w.sets.isEmpty()) workouts << w;
    }
    return workouts;
}

// A lifter's usual load on an exercise, in kg: the same for every session of it, from its name.
double BaseLoad(const QString& exercise)
{
    const QString e = exercise.toLower();
    if (e.contains(QStringLiteral("stretch")) || e.contains(QStringLiteral("plank")) || e.contains(QStringLiteral("crunch")))
        return 0;
    uint h = qHash(exercise, 7u);
    double load = 10 + double(h % 13) * 5;   // 10 to 70 kg
    if (e.contains(QStringLiteral("squat")) || e.contains(QStringLiteral("deadlift")) || e.contains(QStringLiteral("leg press")))
        load += 40;
    return load;
}

// ------------------------------------------------------------------------------ the athlete

struct Athlete {
    QString id;
    bool male = true;
    double age = 35;
    double height = 178;
    bool kg = true;
    double weight = 80, target = 75;
    QString condition = QStringLiteral("Good");
    QList<qlonglong> meals;   // the athlete's first five meals, by position
    QList<double> rates;      // burn rate of intensity levels 1 to 10
};

Athlete ReadAthlete(const QString& id)
{
    Athlete a;
    a.id = id;
    Recordset rs(&UserConn);
    bool found = false;
    FirstRow(rs, QStringLiteral("select * from User_Info where User_ID=") + id, [&](Recordset& r) {
        found = true;
        a.male = Str(r.Field(QStringLiteral("sex"))).toUpper() != QLatin1String("F");
        if (Val(r.Field(QStringLiteral("age"))) > 0) a.age = Val(r.Field(QStringLiteral("age")));
        if (Val(r.Field(QStringLiteral("Height"))) > 0) a.height = Val(r.Field(QStringLiteral("Height")));
        a.kg = Str(r.Field(QStringLiteral("personal_measurements"))).toLower() != QLatin1String("lbs");
        if (Val(r.Field(QStringLiteral("CurrentWeight"))) > 0) a.weight = Val(r.Field(QStringLiteral("CurrentWeight")));
        a.target = Val(r.Field(QStringLiteral("TargetWeight"))) > 0 ? Val(r.Field(QStringLiteral("TargetWeight")))
                                                                     : a.weight * 0.94;
        const QStringList conditions = energy::ConditionList();
        const int c = int(Val(r.Field(QStringLiteral("Current_Condition"))));
        if (c >= 0 && c < conditions.size()) a.condition = conditions.at(c);
    });
    if (!found) throw StoreError(3021, QStringLiteral("No athlete with User_ID ") + id + QStringLiteral("."));
    ForEachRowWhile(rs, QStringLiteral("select * from setup_meals where User_ID=") + id + QStringLiteral(" order by [Position]"),
                    [&a](Recordset& r) {
                        a.meals << qlonglong(Val(r.Field(QStringLiteral("Meal_ID"))));
                        return a.meals.size() < 5;
                    });
    ForEachRow(rs, QStringLiteral("select * from Intensity where User_ID=") + id + QStringLiteral(" order by intensity"),
               [&a](Recordset& r) { a.rates << Val(r.Field(QStringLiteral("Value"))); });
    if (a.rates.size() < 10) a.rates = energy::DefaultIntensity();
    return a;
}

// The body as the last weigh-in on or before a day left it: weight and the fourteen girths.
struct Body {
    double weight = 0;
    QList<double> girths;   // WeighIn positions 2 to 15
};

Body StartingBody(const Athlete& a, const QDate& from)
{
    Body b;
    Recordset rs(&UserConn);
    auto take = [&b](Recordset& r) {
        if (Val(r.Field(QStringLiteral("weight"))) > 0) b.weight = Val(r.Field(QStringLiteral("weight")));
        for (int p = 2; p <= 15; ++p) b.girths << Val(r.Field(p));
    };
    FirstRow(rs, QStringLiteral("select * from WeighIn where User_ID='") + a.id + QStringLiteral("' and date <= #") +
                     SqlDate(from) + QStringLiteral("# order by date desc"), take);
    if (b.girths.isEmpty())
        FirstRow(rs, QStringLiteral("select * from WeighIn where User_ID='") + a.id + QStringLiteral("' order by date"), take);
    if (b.weight <= 0) b.weight = a.weight;
    bool any = false;
    for (double g : b.girths) any = any || g > 0;
    if (!any) {
        // Girths of a build like the athlete's, in the athlete's unit of length.
        const QList<double> cm = a.male ? QList<double>{39, 118, 102, 92, 88, 100, 34, 34.5, 29, 29.5, 57, 57.5, 38, 38}
                                        : QList<double>{33, 102, 92, 80, 74, 100, 28, 28.5, 24, 24.5, 55, 55.5, 36, 36};
        b.girths.clear();
        for (double g : cm) b.girths << (a.kg ? g : regional::Round(g / 2.54, 1));
    }
    return b;
}

QString LogText(Dice& dice, bool session, bool workout, double sleep)
{
    static const QStringList openers = {
        QStringLiteral("Felt strong today."), QStringLiteral("A busy day at work."), QStringLiteral("Legs a little heavy."),
        QStringLiteral("Good energy all day."), QStringLiteral("Slept badly, took it easy."), QStringLiteral("Rainy and cold outside."),
        QStringLiteral("Sunny, trained outdoors."), QStringLiteral("Stayed on the meal plan.")};
    QString text = dice.Pick(openers);
    if (session) text += QStringLiteral(" The session went to plan.");
    if (workout) text += QStringLiteral(" Added a little weight on the main lifts.");
    if (sleep < 6.5) text += QStringLiteral(" Need more sleep.");
    // Rich text is written from a document, which wants fonts: without a GUI application the
    // log stays plain text, which the log reads as well.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return text;
    QTextDocument doc;
    doc.setPlainText(text);
    return RichText::Write(doc);
}

}  // namespace

// ------------------------------------------------------------------------------ CreateAthlete

QString FindAthlete(const QString& name)
{
    QString id;
    Recordset rs(&UserConn);
    FirstRow(rs, QStringLiteral("Select User_ID from User_Info where Name='") + SqlQuote(name.trimmed()) + QStringLiteral("'"),
             [&id](Recordset& r) { id = QString::number(qlonglong(Val(r.Field(0)))); });
    return id;
}

QString CreateAthlete(const QString& name, const QDate& start)
{
    const QString taken = FindAthlete(name);
    if (!taken.isEmpty()) return taken;

    const bool male = true, kg = true;
    const double age = 34, height = 178, weight = 82, target = 76, bodyFat = 19, targetFat = 14;
    const int conditionIndex = 3;   // Good
    const QString condition = energy::ConditionList().value(conditionIndex);
    const double bmr = energy::CalcBMR(weight, age, male, kg, condition).value_or(0);
    const double bmi = energy::CalcBMI(weight, height, true).value_or(0);
    const double ideal = energy::CalcIdealWeight(weight, height, male, true, 1).value_or(0);
    const double dietCals = regional::Round(energy::DailyCalories(50, 0.5, true), 0);
    const double exerciseCals = regional::Round(energy::DailyCalories(50, 0.5, true), 0);
    const double carbs = 50, protein = 25, fat = 25;
    const double targetCals = bmr - dietCals;
    const QString purpose = energy::PurposeList().value(0, QStringLiteral("Personal Fitness"));

    StoreTransaction transaction(UserConn);
    Recordset rs(&UserConn);
    rs.Open(QStringLiteral("User_Info"));
    rs.AddNew();
    rs.SetField(QStringLiteral("Name"), name.trimmed());
    rs.SetField(QStringLiteral("Fitness_Goals"), purpose);
    rs.SetField(QStringLiteral("Purpose"), purpose);
    rs.SetField(QStringLiteral("sex"), male ? QStringLiteral("M") : QStringLiteral("F"));
    rs.SetField(QStringLiteral("age"), age);
    rs.SetField(QStringLiteral("Height"), height);
    rs.SetField(QStringLiteral("startdate"), SqlDate(start));
    rs.SetField(QStringLiteral("personal_measurements"), QStringLiteral("kg"));
    rs.SetField(QStringLiteral("Workout_In"), QStringLiteral("kg"));
    rs.SetField(QStringLiteral("CurrentWeight"), weight);
    rs.SetField(QStringLiteral("TargetWeight"), target);
    rs.SetField(QStringLiteral("IdealWeight"), ideal);
    rs.SetField(QStringLiteral("TargetCals"), targetCals);
    rs.SetField(QStringLiteral("TargetExCals"), exerciseCals);
    rs.SetField(QStringLiteral("BodyFat"), bodyFat);
    rs.SetField(QStringLiteral("TargetBodyFat"), targetFat);
    rs.SetField(QStringLiteral("WeightLossPerWeek"), QStringLiteral("0.5"));
    rs.SetField(QStringLiteral("FrameSize"), 1);
    rs.SetField(QStringLiteral("BMR"), bmr);
    rs.SetField(QStringLiteral("BMI"), bmi);
    rs.SetField(QStringLiteral("Current_Condition"), conditionIndex);
    rs.SetField(QStringLiteral("DietName"), energy::DietList().value(0));
    rs.SetField(QStringLiteral("StrengthLevel"), QStringLiteral("Intermediate"));
    rs.SetField(QStringLiteral("DietLoss"), 50);
    rs.SetField(QStringLiteral("ExerciseLoss"), 50);
    rs.SetField(QStringLiteral("Carbs"), carbs);
    rs.SetField(QStringLiteral("protein"), protein);
    rs.SetField(QStringLiteral("Fat"), fat);
    rs.SetField(QStringLiteral("DietCalsPerDay"), dietCals);
    rs.SetField(QStringLiteral("ExerciseCalsPerDay"), exerciseCals);
    rs.Update();
    rs.Close();

    QString id;
    FirstRow(rs, QStringLiteral("select * from User_Info where Name = '") + SqlQuote(name.trimmed()) + QStringLiteral("'"),
             [&id](Recordset& r) { id = QString::number(qlonglong(Val(r.Field(QStringLiteral("User_ID"))))); });

    // The first weigh-in and the goals, as the athlete screen writes them for a new athlete.
    rs.Open(QStringLiteral("WeighIn"));
    rs.AddNew();
    rs.SetField(QStringLiteral("User_ID"), id);
    rs.SetField(QStringLiteral("Date"), start);
    rs.SetField(QStringLiteral("weight"), weight);
    rs.SetField(QStringLiteral("Height"), height);
    rs.SetField(QStringLiteral("Condition"), condition);
    rs.SetField(QStringLiteral("BMR"), bmr);
    rs.SetField(QStringLiteral("BMI"), bmi);
    rs.SetField(QStringLiteral("BodyFat"), bodyFat);
    rs.Update();
    rs.Close();
    rs.Open(QStringLiteral("WeighIn_goals"));
    rs.AddNew();
    rs.SetField(QStringLiteral("User_ID"), id);
    rs.SetField(QStringLiteral("weight"), target);
    rs.SetField(QStringLiteral("BodyFat"), targetFat);
    rs.Update();
    rs.Close();

    // Heart-rate settings.
    const double rhr = 58;
    const double mhr = energy::MaxHeartRate(male, age);
    rs.Open(QStringLiteral("hrm_info"));
    rs.AddNew();
    rs.SetField(QStringLiteral("User_ID"), id);
    rs.SetField(QStringLiteral("hr_model"), QStringLiteral("Other"));
    if (const auto range = energy::RangeForCondition(conditionIndex)) {
        rs.SetField(QStringLiteral("traininglower"), regional::Round(energy::TrainingRate(mhr, rhr, range->lower), 0));
        rs.SetField(QStringLiteral("trainingupper"), regional::Round(energy::TrainingRate(mhr, rhr, range->upper), 0));
    }
    rs.SetField(QStringLiteral("RESTING_HR"), rhr);
    rs.SetField(QStringLiteral("MAXIMUM_HR"), mhr);
    const QList<double> zones = energy::ZoneBoxes(mhr, rhr);
    for (int i = 0; i < zones.size() && i < 10; ++i) rs.SetField(i + 5, zones.at(i));
    rs.Update();
    rs.Close();

    // Burn rates, meals and nutrient goals.
    rs.Open(QStringLiteral("Intensity"));
    const QList<double>& rates = energy::DefaultIntensity();
    for (int r = 0; r < rates.size(); ++r) {
        rs.AddNew();
        rs.SetField(QStringLiteral("User_ID"), Val(id));
        rs.SetField(QStringLiteral("Intensity"), r + 1);
        rs.SetField(QStringLiteral("Value"), rates[r]);
        rs.Update();
    }
    rs.Close();

    qlonglong mealId = 0;
    FirstRow(rs, QStringLiteral("select max(meal_id)from setup_meals"), [&mealId](Recordset& r) { mealId = qlonglong(Val(r.Field(0))); });
    rs.Open(QStringLiteral("setup_meals"));
    int position = 1;
    for (const energy::DefaultMeal& m : energy::DefaultMeals()) {
        rs.AddNew();
        rs.SetField(QStringLiteral("User_ID"), Val(id));
        rs.SetField(QStringLiteral("Meal_ID"), ++mealId);
        rs.SetField(QStringLiteral("meal"), m.meal);
        rs.SetField(QStringLiteral("StartTime"), m.startTime);
        rs.SetField(QStringLiteral("Position"), position++);
        rs.SetField(QStringLiteral("Show"), true);
        rs.Update();
    }
    rs.Close();

    QList<double> goals;
    Recordset lib(&LibraryConn);
    ForEachRow(lib, QStringLiteral("select * from Nutrients order by Nutrient_ID"),
               [&goals](Recordset& r) { goals << Val(r.Field(QStringLiteral("RDA"))); });
    if (!goals.isEmpty()) goals[0] = targetCals;
    if (goals.size() > 3) {
        goals[1] = energy::MacroGrams(targetCals, protein, 4);
        goals[2] = energy::MacroGrams(targetCals, fat, 9);
        goals[3] = energy::MacroGrams(targetCals, carbs, 4);
    }
    rs.Open(QStringLiteral("Nutrient_Goals"));
    rs.AddNew();
    rs.SetField(QStringLiteral("User_ID"), id);
    for (int i = 0; i < goals.size() && i + 1 < rs.FieldCount(); ++i) rs.SetField(i + 1, goals.at(i));
    rs.Update();
    rs.Close();

    transaction.Commit();
    return id;
}

// ------------------------------------------------------------------------------ Fill

Counts Fill(const Options& options)
{
    Counts counts;
    if (options.userId.isEmpty() || !options.from.isValid() || !options.to.isValid() || options.to < options.from)
        return counts;
    const Athlete a = ReadAthlete(options.userId);
    const QString id = a.id;
    const QString quoted = QStringLiteral("User_ID=") + Quoted(id);
    const QString plain = QStringLiteral("User_ID=") + id;
    const QDate from = options.from, to = options.to;

    const QList<QList<Food>> mealFoods = LoadMealFoods();
    const QList<Sport> sports = LoadSports();
    const QList<Workout> workouts = LoadWorkouts();
    Body body = StartingBody(a, from);

    const QSet<QDate> diaryTaken = TakenDates(QStringLiteral("daily_nutrition"), quoted, from, to);
    const QSet<QDate> waterTaken = TakenDates(QStringLiteral("daily_water"), plain, from, to);
    const QSet<QDate> calendarTaken = TakenDates(QStringLiteral("calendar"), quoted, from, to);
    const QSet<QDate> weighInTaken = TakenDates(QStringLiteral("WeighIn"), quoted, from, to);
    const QSet<QDate> wellnessTaken = TakenDates(QStringLiteral("wellness"), quoted, from, to);
    const QSet<QDate> readingsTaken = TakenDates(QStringLiteral("wellness_readings"), plain, from, to);
    const QSet<QDate> logTaken = TakenDates(QStringLiteral("daily_log"), quoted, from, to);

    StoreTransaction transaction(UserConn);

    Recordset diary(&UserConn), water(&UserConn), calendar(&UserConn), exercise(&UserConn), weights(&UserConn),
        weighIn(&UserConn), wellness(&UserConn), readings(&UserConn), log(&UserConn), psych(&UserConn);
    const QList<QPair<Recordset*, QString>> tables = {
        {&diary, QStringLiteral("daily_nutrition")}, {&water, QStringLiteral("daily_water")},
        {&calendar, QStringLiteral("calendar")},     {&exercise, QStringLiteral("Daily_Exercise")},
        {&weights, QStringLiteral("Daily_Weights")}, {&weighIn, QStringLiteral("WeighIn")},
        {&wellness, QStringLiteral("wellness")},     {&readings, QStringLiteral("wellness_readings")},
        {&log, QStringLiteral("daily_log")},         {&psych, QStringLiteral("Daily_Psych")}};
    // The questionnaire both logs save with a session: answers of the panel's lists.
    auto addPsych = [&](Dice& dice, const QString& name, const QString& key, bool strength, const QDate& day) {
        static const QStringList levels = {QStringLiteral("low"), QStringLiteral("medium"), QStringLiteral("medium"),
                                           QStringLiteral("high"), QStringLiteral("very high")};
        static const char* const ratings[] = {"Levelbefore", "Levelafter", "Levelfocus", "LevelConfidence",
                                              "LevelActivation", "LevelStress", "LevelCommitted"};
        psych.AddNew();
        psych.SetField(QStringLiteral("User_ID"), id);
        psych.SetField(QStringLiteral("Date"), day);
        psych.SetField(QStringLiteral("Name"), name);
        psych.SetField(QStringLiteral("Key"), key);
        const bool goals = dice.Chance(0.8);
        if (strength || goals) psych.SetField(QStringLiteral("AccomplishGoals"), goals);
        if (dice.Chance(0.7)) psych.SetField(QStringLiteral("sleep"), true);
        psych.SetField(QStringLiteral("AccompishText"), goals ? QString() : QStringLiteral("Cut it short"));
        for (const char* column : ratings) psych.SetField(QString::fromLatin1(column), dice.Pick(levels));
        psych.SetField(QStringLiteral("LevelRating"), QString::number(dice.Int(5, 9)));
        psych.Update();
    };

    const QString distUnit = a.kg ? QStringLiteral("kilometers") : QStringLiteral("miles");
    const QString speedUnit = a.kg ? QStringLiteral("kph") : QStringLiteral("mph");
    const double distanceFactor = a.kg ? 1.0 : 0.621371192237334;
    const QStringList trainingTypes = {QStringLiteral("Base Training"), QStringLiteral("Base Training"),
                                       QStringLiteral("Advanced Training"), QStringLiteral("Practice"),
                                       QStringLiteral("Off-Season Training")};
    const QStringList feelReasons = {QStringLiteral("A cold coming on"), QStringLiteral("Sore after yesterday"),
                                     QStringLiteral("Stressful day"), QStringLiteral("Headache")};
    const QStringList goalReasons = {QStringLiteral("Skipped the evening session"), QStringLiteral("Ate out"),
                                     QStringLiteral("Worked late"), QStringLiteral("Too tired")};
    const QStringList goodReasons = {QStringLiteral("Rested and strong"), QStringLiteral("Hit every meal"),
                                     QStringLiteral("Personal best")};
    const double rhrBase = 58;
    double trend = body.weight;   // the weight the weeks are moving to
    double lastRhr = 0;

    for (QDate day = from; day <= to; day = day.addDays(1)) {
        const long dayNumber = long(from.daysTo(day));
        // A recordset keeps the rows it added: a fresh one each month keeps the memory small.
        if (dayNumber % 31 == 0)
            for (const auto& [rs, table] : tables) {
                rs->Close();
                rs->Open(table);
            }
        // Each kind of record of a day throws its own dice: a kind left out on a day (it
        // already had records) changes nothing else, and the same seed gives the same day.
        Dice diaryDice(options.seed, day, 1), waterDice(options.seed, day, 2), weighDice(options.seed, day, 3),
            calendarDice(options.seed, day, 4), wellDice(options.seed, day, 5), readingDice(options.seed, day, 6),
            logDice(options.seed, day, 7);

        // The diary: five meals of real foods in their measures.
        if (!diaryTaken.contains(day) && !a.meals.isEmpty()) {
            for (int m = 0; m < a.meals.size() && m < mealFoods.size(); ++m) {
                const QList<Food>& pool = mealFoods.at(m);
                if (pool.isEmpty()) continue;
                const int items = m == 1 || m == 3 ? diaryDice.Int(1, 2) : diaryDice.Int(2, 4);
                QSet<int> chosen;
                for (int i = 0; i < items && chosen.size() < pool.size(); ++i) {
                    int k = diaryDice.Int(0, int(pool.size()) - 1);
                    while (chosen.contains(k)) k = (k + 1) % int(pool.size());
                    chosen.insert(k);
                    const QList<QVariant>& food = pool.at(k).row;
                    static const QList<double> portions = {1, 1, 1, 1.5, 2, 0.5};
                    const double portion = diaryDice.Pick(portions);
                    const double amount = Val(food.value(3));
                    diary.AddNew();
                    diary.SetField(QStringLiteral("User_ID"), id);
                    diary.SetField(QStringLiteral("Date"), day);
                    diary.SetField(QStringLiteral("Meal_ID"), a.meals.at(m));
                    diary.SetField(QStringLiteral("Type"), QString());
                    diary.SetField(QStringLiteral("Food_ID"), food.value(0));
                    // The food's columns from Name on, as the diary copies them; a portion
                    // other than the food's own scales the figures as a change of amount does.
                    for (int p = 5; p < diary.FieldCount(); ++p) {
                        const int f = p - 3;
                        if (f >= food.size()) break;
                        QVariant v = food.at(f);
                        if (p == 6) v = regional::Round(amount * portion, 2);
                        else if (p >= 8 && portion != 1 && !IsNull(v)) v = regional::Round(Val(v) * portion, 2);
                        diary.SetField(p, v);
                    }
                    diary.Update();
                    ++counts.diaryRows;
                }
            }
        }

        if (!waterTaken.contains(day) && waterDice.Chance(0.9)) {
            water.AddNew();
            water.SetField(QStringLiteral("User_ID"), Val(id));
            water.SetField(QStringLiteral("Date"), day);
            water.SetField(QStringLiteral("water"), waterDice.Int(5, 11));
            water.Update();
            ++counts.waterDays;
        }

        // Weekly weigh-ins: the weight drifts towards the target, the girths with it.
        const double progress = double(dayNumber) / 7.0;
        const double goal = a.target + (body.weight - a.target) * std::exp(-progress / 40.0);
        trend = goal;
        if (dayNumber % 7 == 0 && !weighInTaken.contains(day)) {
            const double w = regional::Round(trend + weighDice.Between(-0.6, 0.6), 1);
            const double ratio = w / body.weight;
            const QString condition = a.condition;
            const double bmr = weighin::CalcBMR(w, a.kg, a.male ? QStringLiteral("M") : QStringLiteral("F"), a.age, condition)
                                   .value_or(0);
            weighIn.AddNew();
            weighIn.SetField(QStringLiteral("User_ID"), id);
            weighIn.SetField(QStringLiteral("Date"), day);
            for (int g = 0; g < body.girths.size(); ++g)
                weighIn.SetField(g + 2, regional::Round(body.girths.at(g) * (0.5 + 0.5 * ratio) + weighDice.Between(-0.2, 0.2), 1));
            weighIn.SetField(QStringLiteral("weight"), w);
            weighIn.SetField(QStringLiteral("Height"), a.height);
            weighIn.SetField(QStringLiteral("BodyFat"), regional::Round(19 * ratio * ratio, 1));
            weighIn.SetField(QStringLiteral("Condition"), condition);
            weighIn.SetField(QStringLiteral("BMR"), Val(weighin::FormatBMR(bmr)));
            weighIn.SetField(QStringLiteral("BMI"), weighin::CalcBMI(w, a.height, !a.kg).value_or(0));
            weighIn.SetField(QStringLiteral("BodyFatMeasure"), QStringLiteral("Scale"));
            weighIn.Update();
            ++counts.weighIns;
        }
        const double sessionWeight = regional::Round(trend, 1);

        // The calendar of the day: a session most days, a workout most days.
        const bool freeDay = calendarTaken.contains(day);
        const bool sessionDrawn = calendarDice.Chance(0.8), workoutDrawn = calendarDice.Chance(0.65);
        const bool sessionToday = !freeDay && !sports.isEmpty() && day.dayOfWeek() != Qt::Sunday && sessionDrawn;
        const bool workoutToday = !freeDay && !workouts.isEmpty() && day.dayOfWeek() != Qt::Sunday && workoutDrawn;
        int key = 0;
        if (sessionToday) {
            const Sport& s = sports.at(calendarDice.Int(0, int(sports.size()) - 1));
            const bool morning = calendarDice.Chance(0.6);
            const QTime start = morning ? QTime(6, 30 + 5 * calendarDice.Int(0, 5)) : QTime(17, 30 + 5 * calendarDice.Int(0, 5));
            const int plannedMinutes = s.training ? 15 * calendarDice.Int(2, 6) : 15 * calendarDice.Int(4, 6);
            const int minutes = qMax(10, plannedMinutes + calendarDice.Int(-8, 10));
            const QTime end = start.addSecs(minutes * 60);
            const int level = calendarDice.Int(3, 8);
            const double hours = gethours(DurationText(minutes));
            const long cals = CaloriesBurned(IntensityData(a.rates.value(level - 1)), hours, sessionWeight);
            double distance = 0, planned = 0, speed = 0, plannedSpeed = 0;
            if (s.training) {
                distance = regional::Round(s.kph * calendarDice.Between(0.85, 1.15) * double(minutes) / 60.0 * distanceFactor, 2);
                planned = regional::Round(s.kph * double(plannedMinutes) / 60.0 * distanceFactor, 0);
                speed = CalcSpeed(distance, distUnit, speedUnit, hours).value_or(0);
                plannedSpeed = CalcSpeed(planned, distUnit, speedUnit, gethours(DurationText(plannedMinutes))).value_or(0);
            }
            const QString k = QString::number(++key);
            calendar.AddNew();
            calendar.SetField(QStringLiteral("User_ID"), id);
            calendar.SetField(QStringLiteral("Date"), day);
            calendar.SetField(QStringLiteral("Key"), k);
            calendar.SetField(QStringLiteral("Name"), s.name);
            calendar.SetField(QStringLiteral("WorkoutType"), QStringLiteral("Exercise"));
            calendar.SetField(QStringLiteral("StartTime"), EntryText(day, start));
            calendar.SetField(QStringLiteral("EndTime"), EntryText(day, end));
            calendar.SetField(QStringLiteral("Image"), s.image);
            calendar.SetField(QStringLiteral("Cals"), double(cals));
            calendar.SetField(QStringLiteral("duration"), DurationText(minutes));
            calendar.SetField(QStringLiteral("Intensity"), level);
            calendar.Update();

            const int restHr = int(rhrBase + calendarDice.Int(-3, 4));
            exercise.AddNew();
            exercise.SetField(QStringLiteral("User_ID"), id);
            exercise.SetField(QStringLiteral("Date"), day);
            exercise.SetField(QStringLiteral("Name"), s.name);
            exercise.SetField(QStringLiteral("Key"), k);
            exercise.SetField(QStringLiteral("StartTime"), QDateTime(day, start));
            exercise.SetField(QStringLiteral("EndTime"), QDateTime(day, end));
            exercise.SetField(QStringLiteral("Distance"), distance);
            exercise.SetField(QStringLiteral("PlannedDistance"), planned);
            exercise.SetField(QStringLiteral("DistanceUnit"), s.training ? distUnit : QString());
            exercise.SetField(QStringLiteral("duration"), DurationText(minutes));
            exercise.SetField(QStringLiteral("PlannedDuration"), DurationText(plannedMinutes));
            exercise.SetField(QStringLiteral("Speed"), speed);
            exercise.SetField(QStringLiteral("PlannedSpeed"), plannedSpeed);
            exercise.SetField(QStringLiteral("SpeedUnit"), s.training ? speedUnit : QString());
            exercise.SetField(QStringLiteral("Intensity"), level);
            exercise.SetField(QStringLiteral("Warmup"), QStringLiteral("10 min easy"));
            exercise.SetField(QStringLiteral("Recovery"), QStringLiteral("5 min easy, stretch"));
            exercise.SetField(QStringLiteral("LapTimes"), QString());
            exercise.SetField(QStringLiteral("Type"), calendarDice.Chance(0.05) ? QStringLiteral("Competition") : calendarDice.Pick(trainingTypes));
            exercise.SetField(QStringLiteral("EventName"), QString());
            exercise.SetField(QStringLiteral("Route"), QString());
            exercise.SetField(QStringLiteral("facility"), QString());
            exercise.SetField(QStringLiteral("Equipment"), QString());
            exercise.SetField(QStringLiteral("Comments"), calendarDice.Chance(0.2) ? QStringLiteral("Felt good throughout.") : QString());
            exercise.SetField(QStringLiteral("Cals"), qlonglong(cals));
            exercise.SetField(QStringLiteral("StartHeart"), restHr + 20);
            exercise.SetField(QStringLiteral("EndHeart"), 110 + 5 * level + calendarDice.Int(0, 10));
            for (int z = 1; z <= 5; ++z) exercise.SetField(QStringLiteral("Zone%1").arg(z), QString());
            exercise.SetField(QStringLiteral("avgHR"), qlonglong(100 + 7 * level + calendarDice.Int(-5, 5)));
            exercise.SetField(QStringLiteral("TimetoRHR"), QString());
            exercise.Update();
            addPsych(calendarDice, s.name, k, false, day);
            ++counts.sessions;
        }
        if (workoutToday) {
            const Workout& w = workouts.at(calendarDice.Int(0, int(workouts.size()) - 1));
            const QTime start = sessionToday ? QTime(19, 0) : QTime(12, 0);
            const int minutes = 45 + 5 * calendarDice.Int(0, 6);
            const QTime end = start.addSecs(minutes * 60);
            const int level = calendarDice.Int(4, 6);
            const QString duration = DurationText(minutes);
            const long cals = strengthlog::WorkoutCalories(IntensityData(a.rates.value(level - 1)), duration, sessionWeight);
            const QString k = QString::number(++key);
            calendar.AddNew();
            calendar.SetField(QStringLiteral("User_ID"), id);
            calendar.SetField(QStringLiteral("Date"), day);
            calendar.SetField(QStringLiteral("Key"), k);
            calendar.SetField(QStringLiteral("Name"), w.name);
            calendar.SetField(QStringLiteral("WorkoutType"), QStringLiteral("Strength"));
            calendar.SetField(QStringLiteral("StartTime"), EntryText(day, start));
            calendar.SetField(QStringLiteral("EndTime"), EntryText(day, end));
            calendar.SetField(QStringLiteral("Image"), StrengthIcon);
            calendar.SetField(QStringLiteral("Complete"), calendarDice.Chance(0.9));
            calendar.SetField(QStringLiteral("duration"), duration);
            calendar.SetField(QStringLiteral("Cals"), double(cals));
            calendar.SetField(QStringLiteral("Intensity"), level);
            calendar.Update();

            // Loads creep up over the months.
            const double growth = 1.0 + 0.15 * double(dayNumber) / 365.0;
            int order = 0;
            const QDateTime setStart(day, start), setEnd(day, end);
            for (const WorkoutSet& s : w.sets) {
                const double base = s.weight > 0 ? s.weight : BaseLoad(s.exercise);
                const double load = base > 0 ? regional::Round(base * std::min(growth, 1.6) / 2.5, 0) * 2.5 : 0;
                weights.AddNew();
                weights.SetField(QStringLiteral("User_ID"), id);
                weights.SetField(QStringLiteral("Date"), day);
                weights.SetField(QStringLiteral("Name"), w.name);
                weights.SetField(QStringLiteral("Key"), k);
                weights.SetField(QStringLiteral("StartTime"), setStart);
                weights.SetField(QStringLiteral("EndTime"), setEnd);
                weights.SetField(QStringLiteral("muscle_group"), s.group);
                weights.SetField(QStringLiteral("exercise"), s.exercise);
                weights.SetField(QStringLiteral("Sets"), s.set);
                weights.SetField(QStringLiteral("Reps"), s.reps > 0 ? s.reps : double(calendarDice.Int(8, 12)));
                weights.SetField(QStringLiteral("weight"), a.kg ? load : regional::Round(load * 2.2, 0));
                weights.SetField(QStringLiteral("Intensity"), strengthlog::IntensityText(s.intensity));
                weights.SetField(QStringLiteral("Goal"), strengthlog::NoteText(s.goal));
                weights.SetField(QStringLiteral("Comments"), strengthlog::NoteText(s.comments));
                weights.SetField(QStringLiteral("worder"), ++order);
                weights.Update();
            }
            addPsych(calendarDice, w.name, k, true, day);
            ++counts.workouts;
        }

        // The wellness journal and its readings.
        const bool journal = wellDice.Chance(0.85);
        const double sleep = regional::Round(wellDice.Between(5.5, 9.0) * 4, 0) / 4;
        if (!wellnessTaken.contains(day) && journal) {
            const bool well = wellDice.Chance(0.85);
            const bool done = wellDice.Chance(0.75);
            const QTime wake(wellDice.Chance(0.8) ? wellDice.Int(5, 7) : wellDice.Int(8, 9), 5 * wellDice.Int(0, 11));
            wellness.AddNew();
            wellness.SetField(QStringLiteral("User_ID"), id);
            wellness.SetField(QStringLiteral("Date"), day);
            wellness.SetField(QStringLiteral("FeelWell"), well);
            wellness.SetField(QStringLiteral("txtFeelWell"),
                              !well ? wellDice.Pick(feelReasons) : (wellDice.Chance(0.15) ? wellDice.Pick(goodReasons) : QString()));
            wellness.SetField(QStringLiteral("Accomplish"), done);
            wellness.SetField(QStringLiteral("txtAccomplish"), !done && wellDice.Chance(0.7) ? wellDice.Pick(goalReasons) : QString());
            wellness.SetField(QStringLiteral("sleep"), sleep);
            wellness.SetField(QStringLiteral("wakeup"), ClockText(wake));
            wellness.Update();
            ++counts.wellnessDays;
        }
        if (!readingsTaken.contains(day)) {
            auto reading = [&](const QString& name, const QTime& t, double value, const QString& dose, int type) {
                readings.AddNew();
                readings.SetField(QStringLiteral("User_ID"), Val(id));
                readings.SetField(QStringLiteral("Date"), day);
                readings.SetField(QStringLiteral("Reading"), name);
                readings.SetField(QStringLiteral("time"), ClockText(t));
                if (type == 0) readings.SetField(QStringLiteral("Value"), value);
                else readings.SetField(QStringLiteral("dose"), dose);
                readings.SetField(QStringLiteral("Type"), type);
                readings.Update();
                ++counts.readings;
            };
            if (readingDice.Chance(0.7)) {
                lastRhr = rhrBase - 3.0 * double(dayNumber) / 365.0 + readingDice.Int(-3, 3);
                reading(QStringLiteral("Resting Heart Rate - bpm"), QTime(6, 45), regional::Round(lastRhr, 0), QString(), 0);
            }
            if (dayNumber % 7 == 3)
                reading(a.kg ? QStringLiteral("Weight - kg") : QStringLiteral("Weight - lbs"), QTime(7, 0),
                        regional::Round(trend + readingDice.Between(-0.5, 0.5), 1), QString(), 0);
            if (dayNumber % 4 == 1) {
                reading(QStringLiteral("Blood Pressure - systolic"), QTime(7, 10), 112 + readingDice.Int(0, 14), QString(), 0);
                reading(QStringLiteral("Blood Pressure - diastolic"), QTime(7, 10), 70 + readingDice.Int(0, 10), QString(), 0);
            }
            if (readingDice.Chance(0.04))
                reading(readingDice.Chance(0.5) ? QStringLiteral("Ibuprofen") : QStringLiteral("Antihistamine"), QTime(20, 0), 0,
                        readingDice.Chance(0.5) ? QStringLiteral("200 mg") : QStringLiteral("1 tablet"), 1);
        }

        if (!logTaken.contains(day) && logDice.Chance(0.2)) {
            log.AddNew();
            log.SetField(QStringLiteral("User_ID"), id);
            log.SetField(QStringLiteral("Date"), day);
            log.SetField(QStringLiteral("Log"), LogText(logDice, sessionToday, workoutToday, sleep));
            log.Update();
            ++counts.logs;
        }
    }

    for (const auto& [rs, table] : tables) rs->Close();
    // A resting heart rate entered in the journal reaches the heart-rate settings.
    if (lastRhr > 0)
        UserConn.Execute(QStringLiteral("update hrm_info set RESTING_HR = ") + QString::number(regional::Round(lastRhr, 0)) +
                         QStringLiteral(" where User_ID = '") + id + QStringLiteral("'"));
    transaction.Commit();
    return counts;
}

}  // namespace sampledata
