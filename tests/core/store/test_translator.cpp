// The dialect translator, family by family: what a screen writes, and what SQLite gets.
#include <gtest/gtest.h>

#include "core/store/storeerror.h"
#include "core/store/translation.h"
#include "core/store/translator.h"

namespace {

struct Case {
    const char* dialect;
    const char* sqlite;
};

void ExpectAll(std::initializer_list<Case> cases)
{
    for (const Case& c : cases) {
        QString out;
        try {
            out = TranslateToSqlite(QString::fromUtf8(c.dialect));
        } catch (const StoreError& e) {
            out = QStringLiteral("StoreError: ") + e.Description();
        }
        EXPECT_EQ(out.toStdString(), c.sqlite) << "from: " << c.dialect;
    }
}

int ErrorOf(const char* dialect)
{
    try {
        TranslateToSqlite(QString::fromUtf8(dialect));
    } catch (const StoreError& e) {
        return e.Number();
    }
    return 0;
}

TEST(Translator, DateLiteralsBecomeIsoText)
{
    ExpectAll({
        {"select * from WeighIn where date=#2024-01-05#", "SELECT * FROM WeighIn WHERE date = '2024-01-05'"},
        {"select * from t where d=#01/05/2024#", "SELECT * FROM t WHERE d = '2024-01-05'"},
        {"select * from t where d=#1/5/2024#", "SELECT * FROM t WHERE d = '2024-01-05'"},
        {"select * from t where d between #12/30/2023# and #1/5/2024#",
         "SELECT * FROM t WHERE d BETWEEN '2023-12-30' AND '2024-01-05'"},
        {"select * from t where d=#1/5/2024 10:30:00 PM#", "SELECT * FROM t WHERE d = '2024-01-05 22:30:00'"},
        {"select * from t where d=#2024-01-05 00:00:00#", "SELECT * FROM t WHERE d = '2024-01-05'"},
        {"select * from t where d=#2024-1-5 7:05#", "SELECT * FROM t WHERE d = '2024-01-05 07:05:00'"},
        {"select * from t where d=#13/1/2024#", "SELECT * FROM t WHERE d = '2024-01-13'"},   // month and day swapped
        {"select * from t where d=#Jan 5, 2024#", "SELECT * FROM t WHERE d = '2024-01-05'"},
        {"update tmpDate set bmr = 1500 where dateS = #2024-02-29#", "UPDATE tmpDate SET bmr = 1500 WHERE dateS = '2024-02-29'"},
        // Eight digits, as the print logs write a range.
        {"select * from t where d between #20261101# and #20261130#",
         "SELECT * FROM t WHERE d BETWEEN '2026-11-01' AND '2026-11-30'"},
    });
    EXPECT_EQ(ErrorOf("select * from t where d=#20261301#"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where d=#2026110#"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where d=#2023-02-29#"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where d=#2024-01-05"), StoreError::SyntaxError);
}

TEST(Translator, NullTestsBooleansAndDeleteForms)
{
    ExpectAll({
        {"select * from tmpDate where feelwell <> null or sleep <> null order by dateS",
         "SELECT * FROM tmpDate WHERE feelwell IS NOT NULL OR sleep IS NOT NULL ORDER BY dateS"},
        {"select * from t where a = null and b=Null", "SELECT * FROM t WHERE a IS NULL AND b IS NULL"},
        {"select * from t where a != null", "SELECT * FROM t WHERE a IS NOT NULL"},
        {"select * from setup_meals where User_ID =1  and show=true order by [Position]",
         "SELECT * FROM setup_meals WHERE User_ID = 1 AND show = -1 ORDER BY Position"},
        {"update User_Info set DietCalsPerDay=null, b = 1 where User_ID=1 and c = null",
         "UPDATE User_Info SET DietCalsPerDay = NULL, b = 1 WHERE User_ID = 1 AND c IS NULL"},
        {"update Summary_Display set display = False where fNumber = 3",
         "UPDATE Summary_Display SET display = 0 WHERE fNumber = 3"},
        {"delete * from daily_log where User_ID ='1' and date =#2024-01-05#",
         "DELETE FROM daily_log WHERE User_ID = '1' AND date = '2024-01-05'"},
        {"delete daily_log.* from daily_log where User_ID='1'", "DELETE FROM daily_log WHERE User_ID = '1'"},
        {"delete from user_associations where User_ID=3", "DELETE FROM user_associations WHERE User_ID = 3"},
        {"DELETE * FROM web", "DELETE FROM web"},
    });
}

TEST(Translator, StringsAreNeverRewritten)
{
    ExpectAll({
        {"select * from t where name='It''s <> null & true #1/1/2024# [x] a!b delete * from'",
         "SELECT * FROM t WHERE name = 'It''s <> null & true #1/1/2024# [x] a!b delete * from'"},
        {"select * from t where a=\"say \"\"hi\"\"\"", "SELECT * FROM t WHERE a = 'say \"hi\"'"},
        {"select * from t where a='' and b=''''", "SELECT * FROM t WHERE a = '' AND b = ''''"},
    });
    EXPECT_EQ(ErrorOf("Select Name from User_Info where Name='O'Brien'"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where a='open"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from [t where a=1"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where (a=1"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t where a=1)"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t; delete * from t"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("select * from t;"), 0);
}

TEST(Translator, NamesBracketsAndWordsSqliteReadsAsGrammar)
{
    ExpectAll({
        {"select [Daily Goal], [a-b] from [My Table]", "SELECT \"Daily Goal\", \"a-b\" FROM \"My Table\""},
        {"select * from units where units!name = 'kg'", "SELECT * FROM units WHERE units.name = 'kg'"},
        {"select desc from endurance_exercises where exercise='Run'",
         "SELECT \"desc\" FROM endurance_exercises WHERE exercise = 'Run'"},
        {"select * from units where type <> 'distance' order by type desc",
         "SELECT * FROM units WHERE type <> 'distance' ORDER BY type DESC"},
        {"select distinct date from WeighIn where User_ID='1' order by date desc, name asc",
         "SELECT DISTINCT date FROM WeighIn WHERE User_ID = '1' ORDER BY date DESC, name ASC"},
        {"select distinct group from muscle_groups", "SELECT DISTINCT \"group\" FROM muscle_groups"},
        {"select Group,Group_ID from food_groups where type='Foods' order by group",
         "SELECT \"Group\", Group_ID FROM food_groups WHERE type = 'Foods' ORDER BY \"group\""},
        {"select * from foods, food_groups where food_groups.group = 'Fruits' and food_groups.group_id=foods.group_id",
         "SELECT * FROM foods, food_groups WHERE food_groups.\"group\" = 'Fruits' AND food_groups.group_id = foods.group_id"},
        {"select date, sum(cals) as calSum from calendar group by date order by date",
         "SELECT date, sum(cals) AS calSum FROM calendar GROUP BY date ORDER BY date"},
        {"select * from Daily_Templates where User_ID='1' and key='5'",
         "SELECT * FROM Daily_Templates WHERE User_ID = '1' AND \"key\" = '5'"},
        {"update Daily_Weights set Set=2, reps=10 where Set=1", "UPDATE Daily_Weights SET \"Set\" = 2, reps = 10 WHERE \"Set\" = 1"},
        {"select Date, Time, Reading, Value from wellness_readings where type = 0 order by date, reading",
         "SELECT Date, Time, Reading, Value FROM wellness_readings WHERE type = 0 ORDER BY date, reading"},
        {"select [order], [index] from t", "SELECT \"order\", \"index\" FROM t"},
    });
}

TEST(Translator, ConcatenationLikeAndFunctions)
{
    ExpectAll({
        {"select name & ' (' & amount & ')' from foods", "SELECT jet_concat(name, ' (', amount, ')') FROM foods"},
        {"select * from t where a & b = 'xy'", "SELECT * FROM t WHERE jet_concat(a, b) = 'xy'"},
        {"select a + 1 & b * 2 from t", "SELECT jet_concat(a + 1, b * 2) FROM t"},
        {"select * from t where x = 'a' & 'b' and y <> c & d",
         "SELECT * FROM t WHERE x = jet_concat('a', 'b') AND y <> jet_concat(c, d)"},
        {"select max(a & b), c from t", "SELECT max(jet_concat(a, b)), c FROM t"},
        {"select * from foods where name like '*apple*'", "SELECT * FROM foods WHERE name LIKE '%apple%'"},
        {"select * from foods where name like '%o''brien%' and x like 'a?c'",
         "SELECT * FROM foods WHERE name LIKE '%o''brien%' AND x LIKE 'a_c'"},
        {"select * from strength_exercises where type not like 'Stretch'",
         "SELECT * FROM strength_exercises WHERE type NOT LIKE 'Stretch'"},
        {"update tmpDate set difference = iif(isnull(bmr), 0, bmr) - iif(isnull(calories), 0, calories)",
         "UPDATE tmpDate SET difference = iif(jet_isnull(bmr), 0, bmr) - iif(jet_isnull(calories), 0, calories)"},
        {"select * from daily_psych where val(key) in (select key from calendar where workouttype = 'Exercise')",
         "SELECT * FROM daily_psych WHERE val(\"key\") IN (SELECT \"key\" FROM calendar WHERE workouttype = 'Exercise')"},
        {"select max(meal_id)from setup_meals", "SELECT max(meal_id) FROM setup_meals"},
        {"select ucase(left(name, 2)), mid(name, 2, 1), len(name), now(), date() from t",
         "SELECT upper(jet_left(name, 2)), substr(name, 2, 1), length(name), datetime('now','localtime'), "
         "date('now','localtime') FROM t"},
        {"select a mod 2 from t", "SELECT a % 2 FROM t"},
    });
}

TEST(Translator, TopDistinctAndSubSelects)
{
    ExpectAll({
        {"select top 5 * from foods order by name", "SELECT * FROM foods ORDER BY name LIMIT 5"},
        {"select distinct top 1 name from t", "SELECT DISTINCT name FROM t LIMIT 1"},
        {"select * from t where a in (select top 2 a from u order by a desc) order by b",
         "SELECT * FROM t WHERE a IN (SELECT a FROM u ORDER BY a DESC LIMIT 2) ORDER BY b"},
        {"select distinct * from User_nutrients where User_ID='1' and used='Y'",
         "SELECT DISTINCT * FROM User_nutrients WHERE User_ID = '1' AND used = 'Y'"},
        {"select * from daily_nutrition where meal_id = (select meal_id from setup_meals where meal = 'Lunch' and User_ID = 1)",
         "SELECT * FROM daily_nutrition WHERE meal_id = (SELECT meal_id FROM setup_meals WHERE meal = 'Lunch' AND User_ID = 1)"},
        {"select top 10 name from t", "SELECT name FROM t LIMIT 10"},
    });
}

TEST(Translator, DataDefinitionTypes)
{
    ExpectAll({
        {"create table Summary_Display (fNumber integer, name text, display yesno, width integer, fname text)",
         "CREATE TABLE Summary_Display (fNumber LONG, name TEXT(255) COLLATE NOCASE, display YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0, "
         "width LONG, fname TEXT(255) COLLATE NOCASE)"},
        {"create table tmpDate (dateS date, sleep double, eDuration text(10), n memo, c currency, b byte, s short, "
         "l long, r single, f float, x bit, k counter, y yes/no, t datetime)",
         "CREATE TABLE tmpDate (dateS DATETIME, sleep DOUBLE, eDuration TEXT(10) COLLATE NOCASE, n LONGTEXT COLLATE NOCASE, "
         "c CURRENCY, b BYTE, s SHORT, l LONG, r SINGLE, f DOUBLE, x YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0, "
         "k INTEGER PRIMARY KEY AUTOINCREMENT, y YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0, t DATETIME)"},
        {"create table t (id counter primary key, [my name] varchar(20) not null)",
         "CREATE TABLE t (id INTEGER PRIMARY KEY AUTOINCREMENT, \"my name\" TEXT(20) COLLATE NOCASE NOT NULL)"},
        {"alter table calendar add Duration2 double", "ALTER TABLE calendar ADD COLUMN Duration2 DOUBLE"},
        {"alter table t add column done yesno", "ALTER TABLE t ADD COLUMN done YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0"},
        {"ALTER TABLE t DROP COLUMN x", "ALTER TABLE t DROP COLUMN x"},
        {"ALTER TABLE Workout_exercises ALTER COLUMN weight Double", ""},
        {"drop table tmpDate", "DROP TABLE tmpDate"},
    });
    EXPECT_EQ(ErrorOf("create table t (a widget)"), StoreError::SyntaxError);
    EXPECT_EQ(ErrorOf("alter table t add"), StoreError::SyntaxError);
}

TEST(Translator, WhatTheStoreLearnsOfAStatement)
{
    Translation one = TranslateForSqlite(QStringLiteral("select name, amount from foods a where a.food_id=3"));
    EXPECT_TRUE(one.updatable);
    EXPECT_EQ(one.table, u"foods");
    EXPECT_EQ(one.alias, u"a");
    EXPECT_EQ(one.sqlWithRowId, u"SELECT name, amount, a.rowid AS __orv_rowid FROM foods a WHERE a.food_id = 3");

    Translation bare = TranslateForSqlite(QStringLiteral("daily_nutrition"));
    EXPECT_EQ(bare.kind, sqldialect::Statement::BareTable);
    EXPECT_EQ(bare.sqlWithRowId, u"SELECT *, rowid AS __orv_rowid FROM daily_nutrition");

    for (const char* readOnly : {"select * from foods a, food_groups b where a.group_id = b.group_id",
                                 "select * from a inner join b on a.x = b.x", "select distinct name from foods",
                                 "select sum(cals) from calendar", "select round(sum(cals)) as c from calendar",
                                 "select date, count(*) from t group by date", "select * from (select * from t)"}) {
        Translation t = TranslateForSqlite(QString::fromUtf8(readOnly));
        EXPECT_FALSE(t.updatable) << readOnly;
    }
    Translation join = TranslateForSqlite(QStringLiteral("select * from foods a, food_groups b where a.x=b.x"));
    ASSERT_EQ(join.from.size(), 2u);
    EXPECT_EQ(join.from[1].table, u"food_groups");
    EXPECT_EQ(join.from[1].alias, u"b");
}

}  // namespace
