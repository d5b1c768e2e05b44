// A statement or a commit that fails leaves nothing half-open: the transaction can be rolled
// back and a new one begun, and the store reads as before.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/testhooks.h"
#include "core/store/transaction.h"

namespace {

TEST(HalfOpen, ACommitThatFailsIsRolledBackByItsScope)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("store.mdb"));
    // A constraint checked only at commit: a child row needs its parent by then.
    Connection::CreateStore(path,
                            QStringLiteral("CREATE TABLE parent (id INTEGER PRIMARY KEY);"
                                           "CREATE TABLE child (id INTEGER PRIMARY KEY, parent_id INTEGER "
                                           "REFERENCES parent (id) DEFERRABLE INITIALLY DEFERRED);"),
                            QStringLiteral("INSERT INTO parent VALUES (1);"), StorePassword);
    Connection conn;
    conn.Open(ConnectionString(path));
    ASSERT_EQ(storetest::Raw(conn, "PRAGMA foreign_keys = ON"), u"<none>");

    {
        StoreTransaction t(conn);
        conn.Execute(QStringLiteral("insert into child (id, parent_id) values (1, 2)"));
        EXPECT_THROW(t.Commit(), StoreError);
    }   // the scope rolls back what its failed commit left open
    EXPECT_NO_THROW(conn.BeginTrans());
    conn.Execute(QStringLiteral("insert into child (id, parent_id) values (2, 1)"));
    EXPECT_NO_THROW(conn.CommitTrans());

    // Without a scope: the failed commit leaves one transaction to roll back, then none.
    conn.BeginTrans();
    conn.Execute(QStringLiteral("insert into child (id, parent_id) values (3, 9)"));
    EXPECT_THROW(conn.CommitTrans(), StoreError);
    EXPECT_NO_THROW(conn.RollbackTrans());
    EXPECT_THROW(conn.RollbackTrans(), StoreError);

    Recordset rs(&conn);
    rs.Open(QStringLiteral("select id from child order by id"));
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs("id").toLongLong(), 2);
    rs.Close();
    EXPECT_EQ(storetest::Raw(conn, "PRAGMA writable_schema"), u"0");
}

}  // namespace
