// Every statement shape the screens compose, run on a fresh pair of stores in file order.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/storefiles.h"
#include "core/store/value.h"

#ifndef ORVANTIS_SOURCE_DIR
#define ORVANTIS_SOURCE_DIR "."
#endif

namespace {

struct Block {
    int line = 0;
    bool user = false;
    bool ok = true;
    QString sql;
    QString expect;   // "=> a | b": the fields of the first row, as text; empty to check nothing
};

// Blocks start with "--- <user|library> <ok|fail>"; the lines up to the next header are the
// statement; lines starting with "#" are comments; a line "=> a | b" gives the fields of the
// select's first row as text ("& \"\"").
QList<Block> ReadCorpus(const QString& path, QString& error)
{
    QList<Block> blocks;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) {
        error = QStringLiteral("cannot read ") + path;
        return blocks;
    }
    QTextStream in(&f);
    int n = 0;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        ++n;
        if (line.startsWith(u"---")) {
            const QStringList words = line.mid(3).split(u' ', Qt::SkipEmptyParts);
            if (words.size() != 2 || (words[0] != u"user" && words[0] != u"library")
                || (words[1] != u"ok" && words[1] != u"fail")) {
                error = QStringLiteral("bad header at line %1: %2").arg(n).arg(line);
                return blocks;
            }
            blocks.append({n, words[0] == u"user", words[1] == u"ok", {}});
            continue;
        }
        if (line.startsWith(u'#') || line.trimmed().isEmpty() || blocks.isEmpty()) continue;
        if (line.startsWith(u"=> ")) {
            blocks.last().expect = line.mid(3);
            continue;
        }
        QString& sql = blocks.last().sql;
        if (!sql.isEmpty()) sql += u'\n';
        sql += line;
    }
    return blocks;
}

// A select is opened, walked to its end (every field read) and closed; anything else is executed.
// Returns the fields of a select's first row as text, joined by " | ".
QString RunStatement(Connection& conn, const QString& sql)
{
    QString first;
    if (sql.trimmed().startsWith(u"select", Qt::CaseInsensitive)) {
        Recordset rs(&conn);
        rs.Open(sql);
        bool firstRow = true;
        while (!rs.Eof()) {
            QStringList fields;
            for (int i = 0; i < rs.FieldCount(); ++i) fields << Str(rs.Field(i));
            if (firstRow) first = fields.join(QStringLiteral(" | "));
            firstRow = false;
            rs.MoveNext();
        }
        rs.Close();
    } else {
        conn.Execute(sql);
    }
    return first;
}

TEST(StoreCorpus, EveryStatementRunsOrFailsAsExpected)
{
    QString error;
    const QList<Block> blocks =
        ReadCorpus(QStringLiteral(ORVANTIS_SOURCE_DIR "/tests/core/store/corpus/statements.txt"), error);
    ASSERT_TRUE(error.isEmpty()) << error.toStdString();
    ASSERT_GT(blocks.size(), 100);

    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString lib = dir.filePath(QStringLiteral("orvantis.mdb"));
    const QString user = dir.filePath(QStringLiteral("orvantisuser.mdb"));
    ASSERT_NO_THROW(CreateStoreFiles(lib, user));
    Connection libConn, userConn;
    libConn.Open(ConnectionString(lib));
    userConn.Open(ConnectionString(user));

    QStringList failures;
    for (const Block& b : blocks) {
        Connection& conn = b.user ? userConn : libConn;
        QString outcome;
        bool threw = false;
        QString got;
        try {
            got = RunStatement(conn, b.sql);
        } catch (const StoreError& e) {
            threw = true;
            outcome = QStringLiteral("StoreError %1: %2").arg(e.Number()).arg(e.Description());
        } catch (const std::exception& e) {
            threw = true;
            outcome = QStringLiteral("unexpected exception: ") + QString::fromUtf8(e.what());
            failures << QStringLiteral("line %1 (%2): %3\n    %4").arg(b.line).arg(b.user ? "user" : "library", outcome, b.sql);
            continue;
        }
        if (b.ok && threw)
            failures << QStringLiteral("line %1 (%2) should run: %3\n    %4").arg(b.line).arg(b.user ? "user" : "library", outcome, b.sql);
        else if (!b.ok && !threw)
            failures << QStringLiteral("line %1 (%2) should fail but ran:\n    %3").arg(b.line).arg(b.user ? "user" : "library", b.sql);
        else if (!threw && !b.expect.isEmpty() && got != b.expect)
            failures << QStringLiteral("line %1 (%2) gave \"%3\", not \"%4\":\n    %5")
                            .arg(b.line).arg(b.user ? "user" : "library", got, b.expect, b.sql);
    }
    EXPECT_TRUE(failures.isEmpty()) << failures.size() << " of " << blocks.size() << " blocks:\n"
                                    << failures.join(u'\n').toStdString();
}

}  // namespace
