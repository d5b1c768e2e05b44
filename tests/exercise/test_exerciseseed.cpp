// The seeded exercise and sport library in a fresh store: forms whose formulas read fields of
// the same form, pick lists the log can show, pictograms that exist, interval templates.
#include <gtest/gtest.h>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "calendar/icons.h"
#include "core/shared.h"
#include "core/store/recordset.h"
#include "core/store/value.h"
#include "core/widgets/Grid.h"
#include "fixtures/fixture.h"

namespace {

struct Field {
    QString name, formula, value, units;
};

class ExerciseSeedTest : public StoreTest {
protected:
    QStringList Column(const QString& sql)
    {
        QStringList out;
        Recordset rs(&LibraryConn);
        rs.Open(sql);
        for (; !rs.Eof(); rs.MoveNext()) out << Str(rs.Field(0));
        rs.Close();
        return out;
    }
    QList<Field> Form(const QString& category, const QString& name)
    {
        QList<Field> out;
        Recordset rs(&LibraryConn);
        rs.Open("select field_name, formula, value, units from endurance_templates where name='" + name
                + "' and category='" + category + "' order by worder");
        for (; !rs.Eof(); rs.MoveNext())
            out.append({Str(rs.Field(0)), Str(rs.Field(1)), Str(rs.Field(2)), Str(rs.Field(3))});
        rs.Close();
        return out;
    }
};

TEST_F(ExerciseSeedTest, EveryItemHasAPictureAFormAndFormulasOverItsOwnFields)
{
    // The planner's lists of both categories fill, "Intervals" among each.
    for (const QString cat : {QStringLiteral("training"), QStringLiteral("sports")}) {
        const QStringList items =
            Column("select distinct exercise from endurance_exercises where category='" + cat + "'");
        EXPECT_GE(items.size(), 10) << cat.toStdString();
        EXPECT_TRUE(items.contains(QStringLiteral("Intervals"))) << cat.toStdString();
    }
    Recordset rs(&LibraryConn);
    rs.Open(QStringLiteral("select category, exercise, image, desc from endurance_exercises"));
    QList<QStringList> items;
    for (; !rs.Eof(); rs.MoveNext()) {
        const int image = int(Val(rs.Field(2)));
        EXPECT_GE(image, 1) << Str(rs.Field(1)).toStdString();
        EXPECT_LE(image, ExerciseIconCount()) << Str(rs.Field(1)).toStdString();
        EXPECT_FALSE(Str(rs.Field(3)).isEmpty());
        items.append({Str(rs.Field(0)), Str(rs.Field(1))});
    }
    rs.Close();

    int formulas = 0;
    for (const QStringList& it : items) {
        const QList<Field> form = Form(it[0], it[1]);
        ASSERT_FALSE(form.isEmpty()) << it[1].toStdString();
        // Test values: row n of column B holds n + 1, so no division is by zero.
        for (int r = 0; r < form.size(); ++r) {
            const Field& f = form[r];
            if (f.formula.isEmpty()) continue;
            ++formulas;
            ASSERT_TRUE(f.formula.startsWith('=')) << f.formula.toStdString();
            EXPECT_TRUE(f.value.isEmpty());
            bool outside = false;
            double v = 0;
            QString error;
            const bool ok = Grid::Evaluate(
                f.formula.mid(1),
                [&](int row, int col) {
                    // Only value cells of this form, never the formula's own row.
                    if (col != 2 || row < 1 || row > form.size() || row == r + 1)
                        outside = true;
                    return double(row + 1);
                },
                &v, &error);
            EXPECT_TRUE(ok) << it[1].toStdString() << ": " << f.formula.toStdString() << " " << error.toStdString();
            EXPECT_FALSE(outside) << it[1].toStdString() << ": " << f.formula.toStdString();
            EXPECT_TRUE(std::isfinite(v)) << f.formula.toStdString();
        }
    }
    EXPECT_GE(formulas, 15);
}

TEST_F(ExerciseSeedTest, PickListsHoldShortItemsAndTheFormsDefaultsAreAmongThem)
{
    QHash<QString, QSet<QString>> lists;
    Recordset rs(&LibraryConn);
    rs.Open(QStringLiteral("select name, unit from DefaultUnits where unit is not null"));
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString item = Str(rs.Field(1));
        EXPECT_LE(item.size(), 15) << item.toStdString();
        EXPECT_FALSE(item.trimmed().isEmpty());
        lists[Str(rs.Field(0)).toLower()].insert(item);
    }
    rs.Close();
    EXPECT_GE(lists.size(), 10);

    int used = 0;
    rs.Open(QStringLiteral("select name, field_name, units, value from endurance_templates"));
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString field = Str(rs.Field(1)).toLower();
        if (!lists.contains(field)) continue;
        ++used;
        const QString def = Str(rs.Field(2));
        EXPECT_TRUE(def.isEmpty() || lists[field].contains(def))
            << Str(rs.Field(0)).toStdString() << " / " << field.toStdString() << ": " << def.toStdString();
        EXPECT_TRUE(Str(rs.Field(3)).isEmpty());
    }
    rs.Close();
    EXPECT_GE(used, 30);
}

TEST_F(ExerciseSeedTest, IntervalTemplatesHaveNumberedSets)
{
    const QStringList names = Column(QStringLiteral("select distinct name from Intervals"));
    EXPECT_GE(names.size(), 8);
    EXPECT_TRUE(names.contains(QStringLiteral("8 x 400 m")));
    EXPECT_TRUE(names.contains(QStringLiteral("4 x 4 min")));
    for (const QString& n : names) {
        const QStringList sets = Column("select set from Intervals where name='" + n + "'");
        for (int i = 0; i < sets.size(); ++i) EXPECT_EQ(sets[i], QString::number(i + 1)) << n.toStdString();
    }
    EXPECT_EQ(Column(QStringLiteral("select set from Intervals where name='8 x 400 m'")).size(), 8);
}

}  // namespace
