// Stores that cannot be written (an installed program's folder, a read-only share) are opened
// read-only: every read works, every change fails with one clear error, and nothing is made
// beside the store file.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <unistd.h>

#include "core/shared.h"
#include "core/store/connection.h"
#include "core/store/recordset.h"
#include "core/store/storefiles.h"

namespace {

class ReadOnlyStore : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        m_folder = m_dir.filePath(QStringLiteral("installed"));
        ASSERT_TRUE(QDir().mkpath(m_folder));
        m_path = QDir(m_folder).filePath(QStringLiteral("orvantisuser.mdb"));
        CreateStoreFile(m_path, StoreKind::User);
        Connection conn;   // a store that was used once: a row of its own
        conn.Open(ConnectionString(m_path));
        conn.Execute(QStringLiteral("insert into User_Info (User_ID, name) values ('7', 'Émile')"));
    }
    void TearDown() override
    {
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QStringList Beside() const
    {
        QStringList files = QDir(m_folder).entryList(QDir::Files);
        files.removeAll(QStringLiteral("orvantisuser.mdb"));
        return files;
    }

    QTemporaryDir m_dir;
    QString m_folder, m_path;
};

void ExpectReadOnlyError(const std::function<void()>& change, const char* what)
{
    try {
        change();
        ADD_FAILURE() << what << ": a change to a read-only store went through";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), StoreError::ReadOnly) << what;
        EXPECT_TRUE(e.Description().contains(u"is read-only: changes cannot be saved")) << what << ": "
                                                                                         << e.what();
    }
}

TEST_F(ReadOnlyStore, ReadsWorkAndEveryChangeIsRefusedClearly)
{
    Connection conn;
    conn.Open(ConnectionString(m_path) + QStringLiteral("Mode=Read;"));
    EXPECT_TRUE(conn.IsReadOnly());
    EXPECT_TRUE(Beside().isEmpty()) << Beside().join(u' ').toStdString();

    Recordset rs(&conn);
    rs.Open(QStringLiteral("select name from User_Info where name = 'émile'"));
    ASSERT_FALSE(rs.Eof());
    EXPECT_EQ(rs("name").toString(), u"Émile");
    rs.Close();

    ExpectReadOnlyError([&] { conn.Execute(QStringLiteral("insert into User_Info (User_ID, name) values ('8', 'x')")); },
                        "insert");
    ExpectReadOnlyError([&] { conn.Execute(QStringLiteral("update User_Info set name = 'y'")); }, "update");
    ExpectReadOnlyError([&] { conn.Execute(QStringLiteral("ALTER TABLE Wellness ALTER COLUMN sleep Double")); },
                        "alter");
    ExpectReadOnlyError([&] { conn.Execute(QStringLiteral("create table tmpDate (d date)")); }, "create");

    rs.Open(QStringLiteral("select * from User_Info where User_ID = '7'"));
    rs.SetField(QStringLiteral("name"), QStringLiteral("Zoë"));
    ExpectReadOnlyError([&] { rs.Update(); }, "recordset update");
    rs.CancelUpdate();
    ExpectReadOnlyError([&] { rs.Delete(); }, "recordset delete");
    rs.Close();
    rs.Open(QStringLiteral("User_Info"));
    rs.AddNew();
    rs.SetField(QStringLiteral("User_ID"), QStringLiteral("9"));
    ExpectReadOnlyError([&] { rs.Update(); }, "recordset add");
    rs.CancelUpdate();
    rs.Close();

    // A transaction on it reads and rolls back; the store is as it was.
    conn.BeginTrans();
    conn.RollbackTrans();
    rs.Open(QStringLiteral("select count(*) as n from User_Info"));
    EXPECT_EQ(rs("n").toLongLong(), 1);
    rs.Close();
    conn.Close();
    EXPECT_FALSE(conn.IsReadOnly());
    EXPECT_TRUE(Beside().isEmpty()) << Beside().join(u' ').toStdString();

    // Opened as usual it is writable again.
    conn.Open(ConnectionString(m_path));
    EXPECT_FALSE(conn.IsReadOnly());
    EXPECT_EQ(conn.Execute(QStringLiteral("update User_Info set name = 'Zoë'")), 1);
}

TEST_F(ReadOnlyStore, AFileOrFolderThatCannotBeWrittenOpensReadOnly)
{
    EXPECT_FALSE(Connection::MustOpenReadOnly(m_path));
    ASSERT_TRUE(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    if (geteuid() == 0)
        GTEST_SKIP() << "root writes whatever the permissions say: the folder is writable to it";
    EXPECT_TRUE(Connection::MustOpenReadOnly(m_path));
    Connection conn;
    conn.Open(ConnectionString(m_path));   // today: the journal cannot be made beside it
    EXPECT_TRUE(conn.IsReadOnly());
    Recordset rs(&conn);
    rs.Open(QStringLiteral("select name from User_Info"));
    EXPECT_EQ(rs.RecordCount(), 1);
    rs.Close();
    ExpectReadOnlyError([&] { conn.Execute(QStringLiteral("delete * from User_Info")); }, "delete");
    EXPECT_TRUE(Beside().isEmpty());
}

}  // namespace
