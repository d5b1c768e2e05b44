// Text without regard to case for every letter, not only ASCII: the folding itself, and what
// the stores do with it in comparisons, order, "like", groups, tables made at run time and in
// stores made before the folding.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core/shared.h"
#include "core/store/connection.h"
#include "newstore.h"
#include "core/store/recordset.h"
#include "core/store/testhooks.h"
#include "core/store/textfold.h"

namespace {

int Cmp(const QString& a, const QString& b)
{
    const QByteArray x = a.toUtf8(), y = b.toUtf8();
    const int c = textfold::Compare(x.constData(), int(x.size()), y.constData(), int(y.size()));
    return c < 0 ? -1 : c > 0 ? 1 : 0;
}

bool Like(const QString& text, const QString& pattern, char32_t escape = 0)
{
    const QByteArray t = text.toUtf8(), p = pattern.toUtf8();
    return textfold::Like(p.constData(), int(p.size()), t.constData(), int(t.size()), escape);
}

TEST(TextFold, ComparesAndMatchesEveryLetterWithoutCase)
{
    struct Case { const char* a; const char* b; int order; };
    const Case cases[] = {
        {"émile", "Émile", 0},   {"zoë", "ZOË", 0},        {"ÅSA", "åsa", 0},     {"Straße", "STRASSE", 1},
        {"ΣΟΦΊΑ", "σοφία", 0},   {"Dana", "dana", 0},      {"abc", "abd", -1},    {"ab", "abc", -1},
        {"_x", "Ax", -1},        // as SQLite's NOCASE: "_" sorts before letters, which fold to lower case
        {"é", "f", 1},           {"Émile", "emile", 1},    {"", "", 0},           {"", "a", -1},
        {"\xE2\x84\xAA", "k", 0},  // the Kelvin sign folds to an ASCII letter
    };
    for (const Case& c : cases) {
        const QString a = QString::fromUtf8(c.a), b = QString::fromUtf8(c.b);
        EXPECT_EQ(Cmp(a, b), c.order) << c.a << " vs " << c.b;
        EXPECT_EQ(Cmp(b, a), -c.order) << c.b << " vs " << c.a;
    }

    struct Match { const char* text; const char* pattern; bool matches; };
    const Match matches[] = {
        {"Émile Zola", "émile%", true},  {"ZOË", "zoë", true},        {"ZOË", "zo_", true},
        {"Chloë Ärm", "%LOË Ä%", true},  {"chloe", "%loë%", false},   {"banana, raw", "%BANANA%", true},
        {"banana", "%raw%", false},      {"abc", "a%c", true},        {"abc", "a%b", false},
        {"", "%", true},                 {"", "_", false},            {"a%b", "a\\%b", true},
        {"axb", "a\\%b", false},         {"aaab", "%a%ab", true},     {"mississippi", "%iss%pi", true},
    };
    for (const Match& m : matches)
        EXPECT_EQ(Like(QString::fromUtf8(m.text), QString::fromUtf8(m.pattern), U'\\'), m.matches)
            << m.text << " like " << m.pattern;
}

class CaseStore : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        m_path = OpenNewStore(m_dir, kSchema, kSeed, conn);
    }

    QStringList Column(const QString& sql)
    {
        QStringList out;
        Recordset rs(&conn);
        rs.Open(sql);
        for (; !rs.Eof(); rs.MoveNext()) out << rs.Field(0).toString();
        return out;
    }
    long Count(const QString& sql) { return long(Column(sql).size()); }

    static constexpr const char* kSchema =
        "CREATE TABLE people (id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT(50) COLLATE NOCASE);"
        "CREATE UNIQUE INDEX idx_people_name ON people (name);";
    static constexpr const char* kSeed =
        "INSERT INTO people (name) VALUES ('Émile'), ('ZOË'), ('zebra'), ('Ödön'), ('ada'), ('Åsa');";

    QTemporaryDir m_dir;
    QString m_path;
    Connection conn;
};

TEST_F(CaseStore, EveryLetterComparesWithoutCaseInTheDialect)
{
    EXPECT_EQ(Count(QStringLiteral("select name from people where name = 'émile'")), 1);
    EXPECT_EQ(Count(QStringLiteral("select name from people where name = 'zoë'")), 1);
    EXPECT_EQ(Count(QStringLiteral("select name from people where name <> 'ödön'")), 5);
    EXPECT_EQ(Count(QStringLiteral("select name from people where name in ('åsa', 'ÉMILE')")), 2);
    EXPECT_EQ(Column(QStringLiteral("select name from people where name like '*MIL*'")), QStringList{"Émile"});
    EXPECT_EQ(Column(QStringLiteral("select name from people where name like 'zo%'")), QStringList{"ZOË"});
    EXPECT_EQ(Column(QStringLiteral("select name from people where name like 'ö?ÖN'")), QStringList{"Ödön"});
    // Order: each letter by its case-free form (code order of the folded letters).
    EXPECT_EQ(Column(QStringLiteral("select name from people order by name")),
              (QStringList{"ada", "zebra", "ZOË", "Åsa", "Émile", "Ödön"}));

    // The unique index knows "émile" for "Émile".
    EXPECT_THROW(conn.Execute(QStringLiteral("insert into people (name) values ('émile')")), StoreError);

    // Groups and distinct, on a table made at run time.
    conn.Execute(QStringLiteral("create table tmpNames (n text(20))"));
    conn.Execute(QStringLiteral("insert into tmpNames (n) select name from people"));
    conn.Execute(QStringLiteral("insert into tmpNames (n) values ('émile')"));
    conn.Execute(QStringLiteral("insert into tmpNames (n) values ('zoë')"));
    conn.Execute(QStringLiteral("insert into tmpNames (n) values ('ÅSA')"));
    EXPECT_EQ(Count(QStringLiteral("select distinct n from tmpNames")), 6);
    EXPECT_EQ(Count(QStringLiteral("select n, count(*) from tmpNames group by n")), 6);
    EXPECT_EQ(Count(QStringLiteral("select n from tmpNames where n = 'ZOË'")), 2);
}

TEST(CaseStoreMadeBefore, AStoreWithIndexesOrderedByAsciiFoldingIsRebuiltOnce)
{
    // A store made by SQLite's own NOCASE: its index keeps "émile" and "Émile" apart.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("old.mdb"));
    const QByteArray old = QByteArray(
        "CREATE TABLE people (id INTEGER PRIMARY KEY, name TEXT(50) COLLATE NOCASE);"
        "CREATE INDEX idx_name ON people (name);"
        "INSERT INTO people (name) VALUES ('zoë'), ('Émile'), ('b'), ('ÉMILE'), ('a'), ('ZOË'), ('émile');"
        "CREATE TABLE store_key (password TEXT);"
        "INSERT INTO store_key VALUES ('") + StorePassword.toUtf8() + "');";
    ASSERT_TRUE(storetest::ExecPlain(path, old.constData()));
    Connection conn;
    conn.Open(ConnectionString(path));
    EXPECT_EQ(storetest::Raw(conn, "PRAGMA user_version"), u"1");
    EXPECT_EQ(storetest::Raw(conn, "PRAGMA integrity_check"), u"ok");
    // The index finds every spelling (SQLite searches it for "name =").
    EXPECT_EQ(storetest::Raw(conn, "SELECT count(*) FROM people WHERE name = 'émile'"), u"3");
    EXPECT_EQ(storetest::Raw(conn, "SELECT count(*) FROM people WHERE name = 'Zoë'"), u"2");
    Recordset rs(&conn);
    rs.Open(QStringLiteral("select count(*) as n from people where name = 'ÉMILE'"));
    EXPECT_EQ(rs("n").toLongLong(), 3);
}

}  // namespace
