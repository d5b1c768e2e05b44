// Connection and Recordset on real store files: opening and its errors, the meaning the
// dialect gives to text, Yes/No, dates, autonumbers and numbers, editing rows, DDL.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/shared.h"
#include "core/store/connection.h"
#include "newstore.h"
#include "core/store/recordset.h"
#include "core/store/testhooks.h"

namespace {

const char* kSchema = R"(
CREATE TABLE people (
    "id" INTEGER PRIMARY KEY AUTOINCREMENT,
    "name" TEXT(50) COLLATE NOCASE,
    "age" DOUBLE,
    "visits" LONG,
    "born" DATETIME,
    "active" YESNO NOT NULL ON CONFLICT REPLACE DEFAULT 0,
    "notes" LONGTEXT COLLATE NOCASE,
    "group" TEXT(20) COLLATE NOCASE,
    "kind" TEXT(10) COLLATE NOCASE DEFAULT 'plain'
);
CREATE TABLE teams ("team_id" LONG, "name" TEXT(50) COLLATE NOCASE, "group" TEXT(20) COLLATE NOCASE);
)";

const char* kSeed = R"(
INSERT INTO people (name, age, visits, born, active, "group") VALUES ('Dana Fox', 31, 4, '1993-04-02', -1, 'A');
INSERT INTO people (name, age, visits, born, active, "group") VALUES ('ada lee', 25, 2, '1999-12-31', 0, 'B');
INSERT INTO people (name, age, visits, born, active, "group") VALUES ('Bo Ek', NULL, NULL, NULL, 0, 'A');
INSERT INTO teams VALUES (1, 'Red', 'A');
INSERT INTO teams VALUES (2, 'Blue', 'B');
)";

int ErrorNumber(const std::function<void()>& f)
{
    try {
        f();
    } catch (const StoreError& e) {
        return e.Number();
    }
    return 0;
}

class StoreFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        m_path = OpenNewStore(m_dir, kSchema, kSeed, conn);
    }

    // The first column of the first row of raw SQLite text, as text.
    QString Raw(const char* sql)
    {
        const QString out = storetest::Raw(conn, sql);
        EXPECT_NE(out, u"<error>") << sql;
        return out;
    }

    long Count(const QString& sql)
    {
        Recordset rs(&conn);
        rs.Open(sql);
        long n = rs.RecordCount();
        rs.Close();
        return n;
    }

    QString Path(const char* name) const { return m_dir.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_dir;
    QString m_path;
    Connection conn;
};

TEST_F(StoreFile, OpeningRefusesMissingForeignAndLockedFiles)
{
    Connection c;
    try {
        c.Open(ConnectionString(Path("missing.mdb")));
        FAIL() << "opened a missing file";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), 53);
        EXPECT_EQ(e.Description(), QStringLiteral("Could not find file '%1'.").arg(Path("missing.mdb")));
    }

    // Files that are no store are refused and left exactly as they were.
    const QByteArray contents[] = {QByteArray(), QByteArray("Standard Jet DB\0\0\0 not ours at all", 34),
                                   QByteArray(4096, '\x5a'), QByteArray("SQLite format 3\0", 16) + QByteArray(200, '\xff')};
    for (const QByteArray& bytes : contents) {
        const QString p = Path("foreign.mdb");
        QFile f(p);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
        f.close();
        EXPECT_EQ(ErrorNumber([&] { c.Open(ConnectionString(p)); }), StoreError::NotADatabase);
        QFile g(p);
        ASSERT_TRUE(g.open(QIODevice::ReadOnly));
        EXPECT_EQ(g.readAll(), bytes);
        EXPECT_FALSE(QFile::exists(p + QStringLiteral("-wal")));
        EXPECT_FALSE(c.IsOpen());
    }

    // A database that is not a store (no key) is refused too.
    {
        storetest::ExecPlain(Path("plain.db"), "CREATE TABLE x (a)");
        EXPECT_EQ(ErrorNumber([&] { c.Open(ConnectionString(Path("plain.db"))); }), StoreError::NotADatabase);
    }

    const QString wrong = QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;data source=%1;Jet OLEDB:Database Password=QUILLBAR;").arg(m_path);
    try {
        c.Open(wrong);
        FAIL() << "opened with a wrong password";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), StoreError::InvalidPassword);
        EXPECT_EQ(e.Description(), u"Not a valid password.");
    }

    EXPECT_EQ(ErrorNumber([&] { conn.Open(ConnectionString(m_path)); }), StoreError::AlreadyOpen);
    EXPECT_EQ(ErrorNumber([&] { Connection::CreateStore(m_path, {}, {}, StorePassword); }), StoreError::FileExists);
    EXPECT_EQ(Raw("SELECT count(*) FROM people"), u"3");   // the existing store is untouched
    EXPECT_EQ(Raw("PRAGMA journal_mode"), u"wal");
    EXPECT_EQ(Raw("PRAGMA synchronous"), u"1");
}

TEST_F(StoreFile, TextComparesWithoutCaseAndJoinsWithNullAsEmpty)
{
    EXPECT_EQ(Count(QStringLiteral("select * from people where name='DANA FOX'")), 1);
    EXPECT_EQ(Count(QStringLiteral("select * from people where name like 'ADA*'")), 1);
    EXPECT_EQ(Count(QStringLiteral("select * from people where name in ('bo ek', 'ADA LEE')")), 2);

    Recordset rs(&conn);
    rs.Open(QStringLiteral("select name from people order by name"));
    QStringList names;
    for (; !rs.Eof(); rs.MoveNext()) names << rs.Field(0).toString();
    EXPECT_EQ(names, (QStringList{"ada lee", "Bo Ek", "Dana Fox"}));
    rs.Close();

    rs.Open(QStringLiteral("select name & ' (' & age & ')' as label, notes & '' as n, age & visits as both from people "
                           "order by id"));
    EXPECT_EQ(rs("label").toString(), u"Dana Fox (31)");
    EXPECT_EQ(rs("n").toString(), u"");
    rs.MoveLast();
    EXPECT_EQ(rs("label").toString(), u"Bo Ek ()");
    EXPECT_TRUE(IsNull(rs("both")));
    rs.Close();

    rs.Open(QStringLiteral("select [group], count(*) as n from people group by [group] order by group desc"));
    EXPECT_EQ(rs("group").toString(), u"B");
    EXPECT_EQ(rs("n").toLongLong(), 1);
}

TEST_F(StoreFile, YesNoHoldsMinusOneAndZero)
{
    Recordset rs(&conn);
    rs.Open(QStringLiteral("people"));
    rs.AddNew();
    rs.SetField(QStringLiteral("name"), QStringLiteral("Cy"));
    rs.Update();
    EXPECT_EQ(rs("active"), QVariant(false));   // the default of a Yes/No column
    rs.AddNew();
    rs.SetField(QStringLiteral("name"), QStringLiteral("Di"));
    rs.SetField(QStringLiteral("active"), true);
    rs.Update();
    rs.AddNew();
    rs.SetField(QStringLiteral("name"), QStringLiteral("Ed"));
    rs.SetField(QStringLiteral("active"), QStringLiteral("True"));
    rs.Update();
    rs.AddNew();   // a Null set into a Yes/No is No
    rs.SetField(QStringLiteral("name"), QStringLiteral("Fi"));
    rs.SetField(QStringLiteral("active"), QVariant());
    rs.Update();
    EXPECT_EQ(rs("active"), QVariant(false));
    rs.Close();
    EXPECT_EQ(Raw("SELECT group_concat(active) FROM (SELECT active FROM people WHERE name IN ('Cy','Di','Ed','Fi') ORDER BY name)"),
              u"0,-1,-1,0");
    // Through SQL too: a Null inserted or set is stored as No.
    conn.Execute(QStringLiteral("insert into people (name, active) values ('Gus', null)"));
    conn.Execute(QStringLiteral("update people set active = null where name = 'Di'"));
    EXPECT_EQ(Raw("SELECT group_concat(active) FROM (SELECT active FROM people WHERE name IN ('Di','Gus') ORDER BY name)"),
              u"0,0");
    conn.Execute(QStringLiteral("update people set active = true where name = 'Di'"));
    conn.Execute(QStringLiteral("delete * from people where name in ('Fi', 'Gus')"));

    EXPECT_EQ(Count(QStringLiteral("select * from people where active=true")), 3);
    EXPECT_EQ(Count(QStringLiteral("select * from people where active = False")), 3);
    rs.Open(QStringLiteral("select avg(active) as a, iif(active, 'yes', 'no') as t, isnull(age) as n from people where "
                           "name in ('Dana Fox', 'ada lee') order by name"));
    EXPECT_DOUBLE_EQ(rs("a").toDouble(), -0.5);
    rs.Close();
    rs.Open(QStringLiteral("select iif(active, 'yes', 'no') as t, isnull(age) as n, iif(isnull(visits), 0, visits) as v "
                           "from people order by id"));
    EXPECT_EQ(rs("t").toString(), u"yes");
    EXPECT_EQ(rs("n").toLongLong(), 0);
    rs.MoveNext();
    rs.MoveNext();
    EXPECT_EQ(rs("t").toString(), u"no");
    EXPECT_EQ(rs("n").toLongLong(), -1);
    EXPECT_EQ(rs("v").toLongLong(), 0);
}

TEST_F(StoreFile, DatesAreKeptAsIsoTextFromEveryForm)
{
    Recordset rs(&conn);
    const QVariant forms[] = {QVariant(QDate(2024, 1, 5)), QVariant(QDateTime(QDate(2024, 1, 5), QTime(0, 0))),
                              QVariant(QStringLiteral("1/5/2024")), QVariant(QStringLiteral("2024-01-05")),
                              QVariant(QStringLiteral("January 5, 2024")), QVariant(QStringLiteral("01/05/2024"))};
    for (const QVariant& v : forms) {
        rs.Open(QStringLiteral("people"));
        rs.AddNew();
        rs.SetField(QStringLiteral("name"), QStringLiteral("dated"));
        rs.SetField(QStringLiteral("born"), v);
        rs.Update();
        EXPECT_EQ(rs("born"), QVariant(QDate(2024, 1, 5))) << v.toString().toStdString();
        rs.Close();
    }
    EXPECT_EQ(Count(QStringLiteral("select * from people where born = #2024-01-05#")), 6);
    EXPECT_EQ(Count(QStringLiteral("select * from people where born between #1/1/2024# and #1/31/2024#")), 6);
    EXPECT_EQ(Raw("SELECT count(*) FROM people WHERE born = '2024-01-05'"), u"6");

    rs.Open(QStringLiteral("select * from people where name='Dana Fox'"));
    rs.SetField(QStringLiteral("born"), QDateTime(QDate(2024, 2, 3), QTime(14, 5, 6)));
    rs.Update();
    EXPECT_EQ(rs("born"), QVariant(QDateTime(QDate(2024, 2, 3), QTime(14, 5, 6))));
    EXPECT_EQ(ErrorNumber([&] { rs.SetField(QStringLiteral("born"), QStringLiteral("no date")); }), StoreError::TypeMismatch);
    rs.Close();
    EXPECT_EQ(Raw("SELECT born FROM people WHERE name = 'Dana Fox'"), u"2024-02-03 14:05:06");

    conn.Execute(QStringLiteral("update people set born=#3/4/2020# where name='ada lee'"));
    EXPECT_EQ(Raw("SELECT born FROM people WHERE name = 'ada lee'"), u"2020-03-04");
    rs.Open(QStringLiteral("select max(born) as m, min(born) as n from people where name <> 'Dana Fox'"));
    EXPECT_EQ(rs("m"), QVariant(QDate(2024, 1, 5)));
    EXPECT_EQ(rs("n"), QVariant(QDate(2020, 3, 4)));
}

TEST_F(StoreFile, AutonumbersDefaultsAndTextIntoNumbers)
{
    Recordset rs(&conn);
    rs.Open(QStringLiteral("people"));
    rs.AddNew();
    rs.SetField(QStringLiteral("NAME"), QStringLiteral("New One"));
    rs.SetField(QStringLiteral("age"), QStringLiteral("12abc"));
    rs.SetField(QStringLiteral("visits"), QStringLiteral("2.5"));
    rs.Update();
    const qlonglong first = rs("id").toLongLong();
    EXPECT_EQ(first, 4);
    EXPECT_EQ(rs("age"), QVariant(12.0));
    EXPECT_EQ(rs("visits"), QVariant(qlonglong(2)));   // to even on the half
    EXPECT_EQ(rs("kind"), QVariant(QStringLiteral("plain")));
    EXPECT_TRUE(IsNull(rs("notes")));
    rs.AddNew();
    rs.SetField(1, QStringLiteral("Next"));
    rs.SetField(QStringLiteral("visits"), 3.5);
    rs.Update();
    EXPECT_EQ(rs(0).toLongLong(), first + 1);
    EXPECT_EQ(rs("visits"), QVariant(qlonglong(4)));
    // After adding, the recordset walks the whole table with the new rows.
    EXPECT_EQ(rs.RecordCount(), 5);
    EXPECT_EQ(rs("name").toString(), u"Next");
    rs.MoveFirst();
    EXPECT_EQ(rs("name").toString(), u"Dana Fox");
    rs.Close();
    EXPECT_EQ(Raw("SELECT typeof(age) || ' ' || age FROM people WHERE id = 4"), u"real 12.0");
}

TEST_F(StoreFile, RecordsetFieldsWalkingAndItsErrors)
{
    Recordset rs;
    EXPECT_EQ(ErrorNumber([&] { rs.Open(QStringLiteral("select * from people")); }), StoreError::NotOpen);
    rs.SetActiveConnection(&conn);
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(ErrorNumber([&] { rs.Field(0); }), StoreError::NotOpen);

    rs.Open(QStringLiteral("select * from people where visits > 0 order by id"));
    EXPECT_EQ(ErrorNumber([&] { rs.Open(QStringLiteral("select * from people")); }), StoreError::AlreadyOpen);
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.FieldCount(), 9);
    EXPECT_EQ(rs.FieldName(0), u"id");
    EXPECT_EQ(rs.FieldName(7), u"group");
    EXPECT_EQ(rs(1), rs(QStringLiteral("NaMe")));
    EXPECT_EQ(rs("age"), QVariant(31.0));
    EXPECT_EQ(rs("visits"), QVariant(qlonglong(4)));
    EXPECT_EQ(rs("born"), QVariant(QDate(1993, 4, 2)));
    EXPECT_EQ(rs("active"), QVariant(true));
    try {
        rs.Field(QStringLiteral("nothing"));
        FAIL();
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), StoreError::ItemNotFound);
        EXPECT_EQ(e.Description(), u"Item cannot be found in the collection corresponding to the requested name or ordinal.");
    }
    EXPECT_EQ(ErrorNumber([&] { rs.Field(9); }), StoreError::ItemNotFound);
    EXPECT_TRUE(rs.Bof() == false);
    rs.MoveNext();
    EXPECT_EQ(rs("name").toString(), u"ada lee");
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    try {
        rs.Field(QStringLiteral("name"));
        FAIL();
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), StoreError::NoCurrentRecord);
        EXPECT_EQ(e.Description(), u"Either BOF or EOF is True, or the current record has been deleted. Requested "
                                   "operation requires a current record.");
    }
    EXPECT_EQ(ErrorNumber([&] { rs.MoveNext(); }), StoreError::NoCurrentRecord);
    rs.MovePrevious();
    EXPECT_EQ(rs("name").toString(), u"ada lee");
    rs.MoveFirst();
    rs.MovePrevious();
    EXPECT_TRUE(rs.Bof());
    rs.Close();
    rs.Close();   // closing twice does nothing

    rs.Open(QStringLiteral("select * from people where name = 'nobody'"));
    EXPECT_TRUE(rs.Eof());
    EXPECT_TRUE(rs.Bof());
    EXPECT_EQ(rs.RecordCount(), 0);
    rs.Close();

    // A snapshot: rows added later are not in it.
    rs.Open(QStringLiteral("select * from people"));
    conn.Execute(QStringLiteral("insert into people (name) values ('Late')"));
    EXPECT_EQ(rs.RecordCount(), 3);
    rs.Close();

    // A statement that changes rows runs, and the recordset stays closed.
    rs.Open(QStringLiteral("delete * from people where name='Late'"));
    EXPECT_FALSE(rs.IsOpen());
    EXPECT_EQ(Count(QStringLiteral("select * from people")), 3);
}

TEST_F(StoreFile, EditingOneTableAndReadingJoins)
{
    Recordset rs(&conn);
    rs.Open(QStringLiteral("select name, age from people p where p.name='ada lee'"));
    rs.SetField(QStringLiteral("age"), 26);
    EXPECT_EQ(rs("age"), QVariant(26.0));
    rs.Update();
    rs.Close();
    EXPECT_EQ(Raw("SELECT age FROM people WHERE name = 'ada lee'"), u"26.0");

    // Moving on saves an edit.
    rs.Open(QStringLiteral("select * from people order by id"));
    rs.SetField(QStringLiteral("visits"), 9);
    rs.MoveNext();
    rs.Delete();
    EXPECT_EQ(ErrorNumber([&] { rs.Field(0); }), StoreError::NoCurrentRecord);
    rs.MoveNext();
    EXPECT_EQ(rs("name").toString(), u"Bo Ek");
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.Close();
    EXPECT_EQ(Raw("SELECT visits FROM people WHERE name = 'Dana Fox'"), u"9");
    EXPECT_EQ(Raw("SELECT count(*) FROM people WHERE name = 'ada lee'"), u"0");

    // A cancelled edit leaves the row as it was.
    rs.Open(QStringLiteral("select * from people where name='Bo Ek'"));
    rs.SetField(QStringLiteral("notes"), QStringLiteral("x"));
    rs.CancelUpdate();
    EXPECT_TRUE(IsNull(rs("notes")));
    rs.Close();

    // Joins, groups and expressions are read-only; where two tables share a column name each
    // is named after its alias.
    rs.Open(QStringLiteral("select * from people a, teams b where a.[group] = b.group order by a.id"));
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs("a.name").toString(), u"Dana Fox");
    EXPECT_EQ(rs("b.name").toString(), u"Red");
    EXPECT_EQ(rs("b.Group").toString(), u"A");
    EXPECT_EQ(rs("team_id").toLongLong(), 1);
    EXPECT_TRUE(rs.FieldName(1) == u"a.name");
    EXPECT_EQ(ErrorNumber([&] { rs.SetField(QStringLiteral("team_id"), 3); }), StoreError::NotUpdatable);
    EXPECT_EQ(ErrorNumber([&] { rs.AddNew(); }), StoreError::NotUpdatable);
    EXPECT_EQ(ErrorNumber([&] { rs.Delete(); }), StoreError::NotUpdatable);
    rs.Close();
    rs.Open(QStringLiteral("select name, age * 2 as twice from people"));
    EXPECT_EQ(ErrorNumber([&] { rs.SetField(QStringLiteral("twice"), 3); }), StoreError::NotUpdatable);
}

TEST_F(StoreFile, TablesMadeAtRunTime)
{
    const QString create = QStringLiteral("create table tmpDate (dateS date, feelwell integer, sleep double, "
                                          "eDuration text(10), done yesno)");
    conn.Execute(create);
    try {
        conn.Execute(create);
        FAIL() << "created a table twice";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), StoreError::TableExists);
        EXPECT_EQ(e.Description(), u"Table 'tmpDate' already exists.");
    }
    conn.Execute(QStringLiteral("alter table tmpDate add Duration2 double"));
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("alter table tmpDate add Duration2 double")); }),
              StoreError::FieldExists);

    Recordset rs(&conn);
    rs.Open(QStringLiteral("tmpDate"));
    rs.AddNew();
    rs.SetField(QStringLiteral("dateS"), QStringLiteral("2024-01-05"));
    rs.SetField(QStringLiteral("eDuration"), 1.5);
    rs.Update();
    rs.Close();
    EXPECT_EQ(Count(QStringLiteral("select * from tmpDate where eDuration = '1.5' and done = false and dateS = #1/5/2024#")), 1);
    conn.Execute(QStringLiteral("insert into tmpDate (eDuration) values ('ABC')"));
    EXPECT_EQ(Count(QStringLiteral("select * from tmpdate where eduration = 'abc'")), 1);

    // ALTER COLUMN: nothing to do where the type is there, the declared type changes otherwise.
    EXPECT_EQ(conn.Execute(QStringLiteral("ALTER TABLE tmpDate ALTER COLUMN sleep Double")), 0);
    conn.Execute(QStringLiteral("update tmpDate set feelwell = 3"));
    conn.Execute(QStringLiteral("ALTER TABLE tmpDate ALTER COLUMN feelwell Double"));
    EXPECT_EQ(Raw("SELECT type FROM pragma_table_info('tmpDate') WHERE name = 'feelwell'"), u"DOUBLE");
    EXPECT_EQ(Raw("SELECT group_concat(name) FROM pragma_table_info('tmpDate')"), u"dateS,feelwell,sleep,eDuration,done,Duration2");
    rs.Open(QStringLiteral("select feelwell from tmpDate"));
    EXPECT_EQ(rs("feelwell"), QVariant(3.0));
    rs.Close();
    conn.Execute(QStringLiteral("ALTER TABLE tmpDate ALTER COLUMN feelwell Double"));
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("ALTER TABLE nothere ALTER COLUMN x Double")); }),
              StoreError::NoSuchTable);
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("drop table tmpDate")); }), 0);
    EXPECT_EQ(ErrorNumber([&] { Count(QStringLiteral("select * from tmpDate")); }), StoreError::NoSuchTable);
}

TEST_F(StoreFile, FailuresCarryNumbersAndLeaveTheStoreWorking)
{
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("Select Name from people where Name='O'Brien'")); }),
              StoreError::SyntaxError);
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("delete * from nothere")); }), StoreError::NoSuchTable);
    EXPECT_EQ(ErrorNumber([&] { Count(QStringLiteral("select nothere from people")); }), StoreError::MissingValue);
    EXPECT_EQ(ErrorNumber([&] { Count(QStringLiteral("select * from people where")); }), StoreError::SyntaxError);
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("people")); }), StoreError::SyntaxError);
    EXPECT_EQ(conn.Execute(QStringLiteral("update people set visits = visits + 1 where [group] = 'A'")), 2);
    EXPECT_EQ(conn.Execute(QStringLiteral("delete * from people where name = 'nobody'")), 0);

    conn.BeginTrans();
    conn.Execute(QStringLiteral("delete * from people"));
    EXPECT_EQ(Count(QStringLiteral("select * from people")), 0);
    conn.RollbackTrans();
    EXPECT_EQ(Count(QStringLiteral("select * from people")), 3);
    conn.BeginTrans();
    conn.Execute(QStringLiteral("delete * from people where name='Bo Ek'"));
    conn.CommitTrans();
    EXPECT_EQ(Count(QStringLiteral("select * from people")), 2);

    conn.Close();
    EXPECT_EQ(ErrorNumber([&] { conn.Execute(QStringLiteral("delete * from people")); }), StoreError::NotOpen);
    conn.Open(ConnectionString(m_path));
    EXPECT_EQ(Count(QStringLiteral("select * from people")), 2);
}

TEST_F(StoreFile, TheDialectsFunctions)
{
    const struct {
        const char* expression;
        QVariant value;
    } cases[] = {
        {"val('12abc')", 12LL},         {"val('abc')", 0LL},             {"val(' 3.5 kg')", 3.5},
        {"isnull(val(notes))", -1LL},   {"nz(notes, 'none')", "none"},   {"nz(notes) & '|'", "|"},
        {"year(born)", 1993LL},         {"month(born)", 4LL},            {"day(born)", 2LL},
        {"weekday(born)", 6LL},         {"datepart('q', born)", 2LL},    {"dateadd('m', 1, born)", QDate(1993, 5, 2)},
        {"datediff('d', #1/1/2024#, #1/31/2024#)", 30LL},                {"dateserial(2024, 13, 1)", QDate(2025, 1, 1)},
        {"cint(2.5)", 2LL},             {"clng(3.5)", 4LL},              {"int(-1.5)", -2LL},
        {"fix(-1.5)", -1LL},            {"round(2.5)", 2LL},             {"round(0.125, 2)", 0.12},
        {"cdbl('2.5')", 2.5},           {"cstr(age)", "31"},             {"format(age, '0.00')", "31.00"},
        {"format(born, 'mm/dd/yyyy')", "04/02/1993"},                    {"left(name, 4)", "Dana"},
        {"right(name, 3)", "Fox"},      {"mid(name, 6, 2)", "Fo"},       {"len(name)", 8LL},
        {"instr(name, 'fox')", 6LL},    {"instr(7, name, 'a')", 0LL},    {"ucase(name)", "DANA FOX"},
        {"lcase(name)", "dana fox"},    {"trim('  a  ')", "a"},          {"iif(active, 'on', 'off')", "on"},
        {"iif(not active, 'on', 'off')", "off"},                         {"age & ''", "31"},
    };
    Recordset rs(&conn);
    for (const auto& c : cases) {
        const QString sql = QStringLiteral("select %1 as v from people where name = 'Dana Fox'").arg(QString::fromUtf8(c.expression));
        try {
            rs.Open(sql);
            EXPECT_EQ(rs("v"), c.value) << c.expression;
            rs.Close();
        } catch (const StoreError& e) {
            ADD_FAILURE() << c.expression << ": " << e.what();
        }
    }
    // An expression giving a day in the stored form reads as a date, as max(date) should.
    rs.Open(QStringLiteral("select format(born, 'yyyy-mm-dd') as f from people where name = 'Dana Fox'"));
    EXPECT_EQ(rs("f"), QVariant(QDate(1993, 4, 2)));
    EXPECT_EQ(rs("f").toString(), u"1993-04-02");
    rs.Close();
    rs.Open(QStringLiteral("select max(born) as m from people"));
    EXPECT_EQ(rs("m"), QVariant(QDate(1999, 12, 31)));
    rs.Close();
    rs.Open(QStringLiteral("select first(name) as f, last(name) as l, count(*) as n from people"));
    EXPECT_EQ(rs("f").toString(), u"Dana Fox");
    EXPECT_EQ(rs("l").toString(), u"Bo Ek");
    EXPECT_EQ(rs("n").toLongLong(), 3);
    rs.Close();
    rs.Open(QStringLiteral("select date() as d, now() as n from people"));
    EXPECT_EQ(rs("d"), QVariant(QDate::currentDate()));
    EXPECT_EQ(rs("n").toDateTime().date(), QDate::currentDate());
}

TEST_F(StoreFile, CreatingIsAllOrNothingAndSchemaChangesElsewhereAreSeen)
{
    const QString bad = Path("bad.mdb");
    EXPECT_EQ(ErrorNumber([&] { Connection::CreateStore(bad, QStringLiteral("CREATE TABLE a (x);"),
                                                        QStringLiteral("INSERT INTO nothere VALUES (1);"), StorePassword); }),
              StoreError::Generic);
    EXPECT_TRUE(QDir(m_dir.path()).entryList({QStringLiteral("bad*")}, QDir::Files).isEmpty());
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files).filter(QStringLiteral(".creating")).size(), 0);

    EXPECT_EQ(Count(QStringLiteral("select * from people")), 3);
    ASSERT_TRUE(storetest::ExecPlain(m_path, "ALTER TABLE people ADD COLUMN extra TEXT(5) COLLATE NOCASE DEFAULT 'e'"));
    Recordset rs(&conn);
    rs.Open(QStringLiteral("select * from people"));
    EXPECT_EQ(rs.FieldCount(), 10);
    EXPECT_EQ(rs("extra").toString(), u"e");
}

}  // namespace
