// The seeded foods library in a fresh store: each food's default serving is a portion a person
// eats at one time, and household measures keep their qualifier ("cup, chopped") while still
// converting as their plain unit does.
#include <gtest/gtest.h>
#include <QHash>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include "core/routines.h"
#include "core/shared.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "fixtures/fixture.h"

namespace {

struct Serving {
    double amount = 0;
    QString measure;
    double calories = 0;
};

class FoodsSeedTest : public StoreTest {
protected:
    Serving Food(const QString& name)
    {
        Serving s;
        Recordset rs(&LibraryConn);
        rs.Open("select amount, measure, calories from foods where name='" + SqlQuote(name) + "'");
        if (!rs.Eof()) {
            s.amount = Val(rs.Field(0));
            s.measure = Str(rs.Field(1));
            s.calories = Val(rs.Field(2));
        }
        rs.Close();
        return s;
    }
    // name (lower case) -> type, unit_type and factor of every `units` row.
    struct Unit {
        QString type, unitType;
        double conversion = 0;
    };
    QHash<QString, Unit> Units()
    {
        QHash<QString, Unit> units;
        Recordset rs(&LibraryConn);
        rs.Open("select name, type, unit_type, Conversion from units");
        for (; !rs.Eof(); rs.MoveNext())
            units.insert(Str(rs.Field(0)).toLower(), {Str(rs.Field(1)), Str(rs.Field(2)), Val(rs.Field(3))});
        rs.Close();
        return units;
    }
};

}  // namespace

TEST_F(FoodsSeedTest, DefaultServingsArePortions)
{
    // Spreads and fats by the spoonful, cheese by the slice or ounce, not by the cup.
    Serving s = Food("Peanut butter, smooth style, with salt");
    EXPECT_EQ(s.measure, "tbsp");
    EXPECT_DOUBLE_EQ(s.amount, 2);
    EXPECT_NEAR(s.calories, 188, 10);   // 32 g at 588 kcal a 100 g
    s = Food("Butter, salted");
    EXPECT_EQ(s.measure, "tbsp");
    EXPECT_LT(s.calories, 150);
    // Cheeses a little under the rich foods' energy are still eaten by the slice or ounce.
    for (const char* name : {"Cheese, cheddar", "Cheese, colby", "Cheese, swiss", "Cheese, monterey"}) {
        s = Food(name);
        EXPECT_TRUE(s.measure == "slice" || s.measure == "oz") << name << ": " << s.measure.toStdString();
        EXPECT_LT(s.calories, 150) << name;
    }
    // Without a portion among its measures, part of one: a quarter or half cup of dry rice.
    s = Food("Rice, white, long-grain, regular, raw, enriched");
    EXPECT_EQ(s.measure, "cup");
    EXPECT_LE(s.amount, 0.5);
    // Ordinary foods keep the source's measure: a medium banana, a cup of milk.
    EXPECT_EQ(Food("Milk, whole, 3.25% milkfat").measure, "cup");

    // A weight or volume can always be cut to a portion: none holds more than 1,000 kcal. Only
    // items that come whole (a restaurant's double burger, a roast) may, and they are few.
    const QHash<QString, Unit> units = Units();
    Recordset rs(&LibraryConn);
    rs.Open("select name, amount, measure, calories from foods where group_id <> 65 and calories > 1000");
    int big = 0;
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString name = Str(rs.Field(0));
        if (name.endsWith(", by weight") || name.startsWith("Test "))
            continue;
        ++big;
        const QString kind = units.value(Str(rs.Field(2)).toLower()).type;
        EXPECT_TRUE(kind != "weight" && kind != "volume")
            << name.toStdString() << ": " << Str(rs.Field(1)).toStdString() << " " << Str(rs.Field(2)).toStdString();
    }
    rs.Close();
    EXPECT_LE(big, 25);
}

TEST_F(FoodsSeedTest, QualifiedMeasuresConvertAsTheirUnit)
{
    const QHash<QString, Unit> units = Units();
    Serving s = Food("Broccoli, raw");
    EXPECT_EQ(s.measure, "cup, chopped");
    EXPECT_NEAR(s.calories, 31, 1);   // 91 g
    ASSERT_TRUE(units.contains("cup, chopped"));
    EXPECT_EQ(units["cup, chopped"].type, "volume");
    EXPECT_DOUBLE_EQ(GetConversion("cup, chopped"), GetConversion("cup"));
    EXPECT_EQ(Food("Cheese substitute, mozzarella").measure, "cup, shredded");

    // Every qualified measure has the type and factor of its plain unit, and a unit_type of
    // its own so that lists by unit_type keep the plain units apart.
    int qualified = 0;
    for (auto it = units.cbegin(); it != units.cend(); ++it) {
        const QString name = it.key();
        const int cut = name.indexOf(QRegularExpression("[,(]"));
        if (cut < 0 || it->type == "distance")
            continue;
        ++qualified;
        const QString plain = name.left(cut).trimmed();
        ASSERT_TRUE(units.contains(plain)) << name.toStdString();
        EXPECT_EQ(it->type, units[plain].type) << name.toStdString();
        EXPECT_DOUBLE_EQ(it->conversion, units[plain].conversion) << name.toStdString();
        EXPECT_NE(it->unitType, units[plain].unitType) << name.toStdString();
    }
    EXPECT_GT(qualified, 20);

    // And every seeded measure that reads as a qualified volume has its row.
    Recordset rs(&LibraryConn);
    rs.Open("select distinct measure from foods where measure like 'cup,%' or measure like 'cup (%' "
            "or measure like 'tbsp,%' or measure like 'tsp,%' or measure like 'fl oz,%'");
    int used = 0;
    for (; !rs.Eof(); rs.MoveNext(), ++used)
        EXPECT_EQ(units.value(Str(rs.Field(0)).toLower()).type, "volume") << Str(rs.Field(0)).toStdString();
    rs.Close();
    EXPECT_GT(used, 20);
}
