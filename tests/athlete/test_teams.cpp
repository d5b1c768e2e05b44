// Teams: the list of coaches and an athlete's memberships.
#include "fixtures/fixture.h"

#include "athlete/frmManageTeams.h"
#include "athlete/frmSetupTeams.h"
#include "core/shared.h"
#include "core/store/value.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

TEST_F(StoreTest, TeamsAddRefuseTwiceAndDeleteLeavingMemberships)
{
    const QString ann = AddAthlete("Ann");
    const QString bob = AddAthlete("Bob");
    frmSetupTeams s;
    s.txtName->setText("Harriers");
    s.on_cmdAdd_clicked();
    s.txtName->setText("Rovers");
    s.on_cmdAdd_clicked();
    s.txtName->setText("harriers");          // names compare without regard to case
    s.on_cmdAdd_clicked();
    EXPECT_EQ(Ui().MessageTexts(), (QStringList{"Team/Group Added.", "Team/Group Added.", "This team already exists."}));
    ASSERT_EQ(s.lstGroups->count(), 2);
    EXPECT_EQ(s.lstGroups->item(0)->text(), "Harriers");

    // A name with a mark goes into the check as typed: the statement fails, nothing is added
    // and the program goes on.
    Ui().ClearMessages();
    s.txtName->setText("O'Hara's");
    s.on_cmdAdd_clicked();
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().title, "Error");
    EXPECT_EQ(CountUser("user_groups"), 2);

    // Memberships: Bob (signed in) is shown first; marks are saved per athlete.
    frmManageTeams m;
    EXPECT_EQ(m.Combo1->currentText(), "Bob");
    ASSERT_EQ(m.lstGroups->count(), 2);
    m.lstGroups->item(0)->setCheckState(Qt::Checked);
    m.lstGroups->item(1)->setCheckState(Qt::Checked);
    m.on_cmdSave_clicked();
    EXPECT_EQ(CountUser("user_associations where User_ID=" + bob), 2);
    m.Combo1->setCurrentIndex(m.Combo1->findText("Ann"));
    EXPECT_EQ(m.lstGroups->item(0)->checkState(), Qt::Unchecked);
    m.lstGroups->item(1)->setCheckState(Qt::Checked);
    m.on_cmdSave_clicked();
    m.Combo1->setCurrentIndex(m.Combo1->findText("Bob"));
    EXPECT_EQ(m.lstGroups->item(0)->checkState(), Qt::Checked);
    m.lstGroups->item(0)->setCheckState(Qt::Unchecked);
    m.on_cmdSave_clicked();
    EXPECT_EQ(CountUser("user_associations where User_ID=" + bob), 1);
    EXPECT_EQ(CountUser("user_associations where User_ID=" + ann), 1);

    // Deleting a team leaves the memberships that point at it.
    Ui().ClearMessages();
    s.lstGroups->setCurrentRow(1);
    s.on_cmdDelete_clicked();
    EXPECT_EQ(Ui().MessageTexts(), QStringList{"Team/Group Deleted."});
    EXPECT_EQ(s.lstGroups->count(), 1);
    EXPECT_EQ(CountUser("user_associations"), 2);
}
