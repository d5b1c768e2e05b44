// The pieces every screen shares: row walking, list filling, the error edge of a handler,
// transactions around writes that belong together, and the athlete's colour.
#include "fixtures/fixture.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/transaction.h"
#include "core/ui.h"
#include "core/widgets/ListFill.h"
#include "core/widgets/Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>
#include <stdexcept>

namespace {

class SharedPiecesTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        UserConn.Execute("create table pieces (id integer, name text(20))");
        UserConn.Execute("insert into pieces (id, name) values (1, 'Alpha')");
        UserConn.Execute("insert into pieces (id, name) values (2, 'Beta')");
        UserConn.Execute("insert into pieces (id, name) values (3, null)");
    }
};

TEST_F(SharedPiecesTest, WalksCloseTheirRecordsetOnEveryExit)
{
    QStringList seen;
    EXPECT_EQ(ForEachRow(UserRS, "select * from pieces order by id",
                         [&](Recordset& r) { seen << Str(r.Field("name")); }),
              3);
    EXPECT_EQ(seen, (QStringList{"Alpha", "Beta", ""}));
    EXPECT_FALSE(UserRS.IsOpen());

    // Stopping early, and a body that throws, both leave the recordset closed.
    EXPECT_EQ(ForEachRowWhile(UserRS, "select * from pieces order by id", [](Recordset&) { return false; }), 1);
    EXPECT_FALSE(UserRS.IsOpen());
    EXPECT_THROW(ForEachRow(UserRS, "select * from pieces", [](Recordset&) { throw std::runtime_error("x"); }),
                 std::runtime_error);
    EXPECT_FALSE(UserRS.IsOpen());
    // A statement that fails to open leaves nothing open either.
    EXPECT_THROW(ForEachRow(UserRS, "select * from no_such_table", [](Recordset&) {}), StoreError);
    EXPECT_FALSE(UserRS.IsOpen());

    QString first;
    EXPECT_TRUE(FirstRow(UserRS, "select name from pieces order by id desc", [&](Recordset& r) { first = Str(r.Field(0)); }));
    EXPECT_EQ(first, "");
    EXPECT_FALSE(FirstRow(UserRS, "select name from pieces where id = 99", [&](Recordset&) { first = "x"; }));
    EXPECT_EQ(first, "");
    EXPECT_FALSE(UserRS.IsOpen());
}

TEST_F(SharedPiecesTest, ListsFillFromAStatement)
{
    QComboBox combo;
    EXPECT_EQ(listfill::FillList(&combo, UserRS, "select * from pieces order by id", "name", "id", true), 3);
    ASSERT_EQ(combo.count(), 2);   // the Null name is skipped
    EXPECT_EQ(combo.itemText(1), "Beta");
    EXPECT_EQ(combo.itemData(1).toInt(), 2);

    QListWidget list;
    listfill::FillList(&list, UserRS, "select * from pieces order by id", "name");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(2)->text(), "");
    EXPECT_FALSE(UserRS.IsOpen());

    QTreeWidget tree;
    listfill::FillList(&tree, UserRS, "select * from pieces where name <> null order by id",
                       [](QTreeWidget* t, Recordset& r) {
                           new QTreeWidgetItem(t, {listfill::Text(r, "name"), listfill::Text(r, "id")});
                       });
    ASSERT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(tree.topLevelItem(0)->text(1), "1");
    EXPECT_TRUE(tree.updatesEnabled());
}

TEST_F(SharedPiecesTest, AFailingHandlerLeavesNoRecordsetOpenAndTheNextOneWorks)
{
    // An outer walk that is open before the handler stays open; what the handler opened closes.
    UserRS2.Open("select * from pieces");
    const bool ok = Guard([] {
        UserRS.Open("select * from pieces");
        LibraryRS.Open("select * from units");
        UserRS3.Open("select no_such_column from pieces");
    });
    EXPECT_FALSE(ok);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_EQ(Ui().LastMessage().icon, int(vbCritical));
    EXPECT_FALSE(UserRS.IsOpen());
    EXPECT_FALSE(LibraryRS.IsOpen());
    EXPECT_TRUE(UserRS2.IsOpen());
    UserRS2.Close();

    Ui().ClearMessages();
    EXPECT_TRUE(Guard([] {
        UserRS.Open("select * from pieces");
        UserRS.Close();
    }));
    EXPECT_TRUE(Ui().Messages().isEmpty());

    // A wait cursor set by the handler is taken down.
    Guard([] {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QApplication::setOverrideCursor(Qt::WaitCursor);
        throw std::runtime_error("stopped");
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Ui().LastMessage().text, "stopped");
}

TEST_F(SharedPiecesTest, WritesThatBelongTogetherCommitTogetherOrNotAtAll)
{
    // A change made as a delete and an add whose add fails keeps the old row.
    EXPECT_THROW(({
                     StoreTransaction t(UserConn);
                     UserConn.Execute("delete * from pieces where id = 1");
                     UserConn.Execute("insert into pieces (id, no_such_column) values (1, 'x')");
                     t.Commit();
                 }),
                 StoreError);
    EXPECT_EQ(CountUser("pieces where id = 1 and name = 'Alpha'"), 1);

    {
        StoreTransaction t(UserConn);
        UserConn.Execute("delete * from pieces where id = 1");
        UserConn.Execute("insert into pieces (id, name) values (1, 'Gamma')");
        {
            // A nested scope that fails undoes only its own part.
            StoreTransaction inner(UserConn);
            UserConn.Execute("delete * from pieces where id = 2");
        }
        t.Commit();
    }
    EXPECT_EQ(CountUser("pieces where name = 'Gamma'"), 1);
    EXPECT_EQ(CountUser("pieces where id = 2"), 1);
    // Nothing is left open: the next statement commits on its own.
    UserConn.Execute("insert into pieces (id, name) values (4, 'Delta')");
    EXPECT_THROW(UserConn.CommitTrans(), StoreError);
}

TEST(Theme, StoredColoursReadAndUnreadableOnesFallBack)
{
    EXPECT_EQ(theme::FromWinColor(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(theme::FromWinColor(long(0x80000001)), QColor(10, 36, 106));
    for (const char* bad : {"99999999999999999999", "-5", "abc", "", "0", "16777216", "2147483679"})
        EXPECT_EQ(theme::ColorFromSetting(bad), DefaultAppColor) << bad;
    EXPECT_EQ(theme::ColorFromSetting("255"), 255);
    EXPECT_EQ(theme::ColorFromSetting("2147483649"), long(2147483649));   // a system colour

    const long saved = AppColor;
    AppColor = -1;
    EXPECT_EQ(theme::Color(), theme::FromWinColor(DefaultAppColor));
    AppColor = saved;

    EXPECT_EQ(theme::TextOn(QColor(255, 255, 160)), QColor(Qt::black));
    EXPECT_EQ(theme::TextOn(QColor(10, 36, 106)), QColor(Qt::white));
    EXPECT_EQ(theme::TextOn(theme::FromWinColor(DefaultAppColor)), QColor(Qt::white));
}

}  // namespace
