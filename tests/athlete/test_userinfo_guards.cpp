// The athlete screens against what could spoil the store: a name another athlete has, text
// longer than its column, an add that fails after its delete, a statement that fails inside a
// handler, and windows larger than the screen.
#include "fixtures/fixture.h"

#include "athlete/frmManageTeams.h"
#include "athlete/frmSetupTeams.h"
#include "athlete/frmUserInfo.h"
#include "core/shared.h"
#include "core/store/testhooks.h"
#include "core/store/value.h"

#include <QCoreApplication>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

namespace {

const QString NameTaken = QStringLiteral("This user already exists.  Please try another name or remove existing athlete.");

QString UserText(const QString& sql)
{
    Recordset rs(&UserConn);
    rs.Open(sql);
    const QString v = rs.Eof() ? QString() : Str(rs.Field(0));
    rs.Close();
    return v;
}

class AthleteGuards : public StoreTest {
protected:
    void FillRequired(frmUserInfo& f)
    {
        f.txtWeight2->setText(QStringLiteral("180"));
        f.txtAge->setText(QStringLiteral("30"));
    }
};

TEST_F(AthleteGuards, ANameIsKeptUniqueAndNoLongerThanItsColumn)
{
    AddAthlete(QStringLiteral("\u00c9lodie"));
    const QString id = AddAthlete(QStringLiteral("Cy"));
    {
        frmUserInfo f;
        FillRequired(f);
        f.txtName->setText(QStringLiteral("\u00e9LODIE"));
        f.on_cmdSave_clicked();
        ASSERT_EQ(Ui().Messages().size(), 1);
        EXPECT_EQ(Ui().LastMessage().text, NameTaken);
        EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Message"));
        EXPECT_NE(f.result(), int(QDialog::Accepted));
        EXPECT_EQ(UserText("select Name from User_Info where User_ID=" + id), QStringLiteral("Cy"));
        EXPECT_EQ(CountUser("WeighIn"), 0);

        // The athlete's own name in another case is no other athlete's.
        Ui().ClearMessages();
        f.txtName->setText(QStringLiteral("CY"));
        f.on_cmdSave_clicked();
        EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Information Saved."));
        EXPECT_EQ(UserText("select Name from User_Info where User_ID=" + id), QStringLiteral("CY"));
    }

    // Typed text stops at the column's size: 50 characters for a name, a meal and its time.
    frmUserInfo f;
    FillRequired(f);
    const QString longName = QString(71, QLatin1Char('n'));
    f.txtName->setText(longName);
    EXPECT_EQ(f.txtName->text().size(), 50);
    Ui().ClearMessages();
    f.on_cmdSave_clicked();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Information Saved."));
    EXPECT_EQ(UserText("select Name from User_Info where User_ID=" + id).size(), 50);
    EXPECT_EQ(f.txtMeal->maxLength(), 50);
    EXPECT_EQ(f.txtMealTime->maxLength(), 50);
    // No field of the screen takes text without end.
    for (QLineEdit* e : f.findChildren<QLineEdit*>()) EXPECT_LE(e->maxLength(), 50) << e->objectName().toStdString();
    frmSetupTeams teams;
    EXPECT_EQ(teams.findChild<QLineEdit*>(QStringLiteral("txtName"))->maxLength(), 50);
}

TEST_F(AthleteGuards, AnAddThatFailsKeepsTheRowsItWouldHaveReplaced)
{
    const QString id = AddAthlete(QStringLiteral("Ida"));
    frmUserInfo f;   // writes the default rates
    ASSERT_EQ(CountUser("Intensity where User_ID=" + id), 10);
    UserConn.Execute("update Intensity set [Value]=7 where User_ID=" + id);

    // The rates are written as a delete and ten adds; the adds fail.
    RawSql(UserConn, "alter table Intensity rename column Value to Rate");
    f.SSCommand1->click();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Error"));
    RawSql(UserConn, "alter table Intensity rename column Rate to Value");
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
    EXPECT_EQ(CountUser("Intensity where [Value]=7 and User_ID=" + id), 10);

    // The nutrient goals likewise.
    UserConn.Execute("insert into Nutrient_Goals (User_ID) values ('" + id + "')");
    RawSql(UserConn, "create trigger refuse before insert on Nutrient_Goals begin select raise(abort, 'refused'); end");
    EXPECT_ANY_THROW(f.SaveNutrientGoals());
    EXPECT_EQ(CountUser("Nutrient_Goals where User_ID='" + id + "'"), 1);
    RawSql(UserConn, "drop trigger refuse");

    // And the teams an athlete belongs to.
    UserConn.Execute(QStringLiteral("insert into user_groups (Name) values ('Runners')"));
    const QString group = UserText(QStringLiteral("select Group_ID from user_groups"));
    UserConn.Execute("insert into user_associations (User_ID, Group_ID) values (" + id + ", " + group + ")");
    frmManageTeams m;
    RawSql(UserConn, "create trigger refuse before insert on user_associations begin select raise(abort, 'refused'); end");
    Ui().ClearMessages();
    m.findChild<QPushButton*>(QStringLiteral("cmdSave"))->click();
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Error"));
    EXPECT_EQ(CountUser("user_associations where User_ID=" + id), 1);
    RawSql(UserConn, "drop trigger refuse");
}

TEST_F(AthleteGuards, AFailingHandlerLeavesTheScreenWorking)
{
    const QString id = AddAthlete(QStringLiteral("Flo"));
    frmUserInfo f;
    FillRequired(f);
    RawSql(UserConn, "alter table Intensity rename to Intensity_gone");
    f.on_cmdSave_clicked();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Error"));
    RawSql(UserConn, "alter table Intensity_gone rename to Intensity");

    // The screen still hears its fields, and the next handler runs without an error.
    EXPECT_FALSE(Loading);
    f.txtDietLoss->setText(QStringLiteral("30"));
    EXPECT_EQ(f.txtExerciseLoss->text(), QStringLiteral("70"));
    Ui().ClearMessages();
    f.on_cmdSave_clicked();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Information Saved."));
    EXPECT_DOUBLE_EQ(Val(UserText("select age from User_Info where User_ID=" + id)), 30);
    EXPECT_EQ(CountUser("Intensity where User_ID=" + id), 10);
}

TEST_F(AthleteGuards, WindowsOpenWithinTheScreenAndCanBeMadeSmaller)
{
    AddAthlete(QStringLiteral("Gil"));
    frmUserInfo f;
    f.show();
    QCoreApplication::processEvents();
    EXPECT_LE(f.frameGeometry().width(), 1280);
    EXPECT_LE(f.frameGeometry().height(), 720);
    const QSize least = f.minimumSizeHint().expandedTo(f.minimumSize());
    EXPECT_LT(least.width(), f.width());
    EXPECT_LT(least.height(), f.height());
    f.resize(least);
    EXPECT_EQ(f.size(), least);
}

}  // namespace
