// The sign-in window, the password dialogs and the athlete wizard, on fresh stores.
#include "fixtures/fixture.h"

#include "core/ChangePass.h"
#include "core/frmCreateAthelete1.h"
#include "core/frmOpen.h"
#include "core/frmPassword.h"
#include "core/ini.h"
#include "core/opendatabases.h"
#include "core/screens.h"
#include "core/shared.h"
#include "core/store/storeerror.h"
#include "core/store/value.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>

namespace {

// Every table that holds rows of an athlete, with how its User_ID is written.
struct AthleteTable {
    const char* table;
    bool quoted;
    bool library;
};
const AthleteTable Tables[] = {
    {"daily_nutrition", true, false},   {"daily_exercise", true, false},  {"daily_log", true, false},
    {"daily_weights", true, false},     {"setup_meals", false, false},    {"strength_goals", false, false},
    {"strength_progression", true, false}, {"user_muscle_groups", true, false}, {"user_nutrients", true, false},
    {"WeighIn", true, false},           {"WeighIn_goals", true, false},   {"calendar", true, false},
    {"web", true, true},                {"daily_psych", true, false},     {"Daily_Intervals", true, false},
    {"daily_templates", true, false},   {"HRM", true, false},             {"HRM_info", true, false},
    {"nutrient_goals", true, false},    {"shopping_cart", true, false},   {"wellness", true, false},
    {"Intensity", false, false},        {"daily_water", false, false},    {"wellness_readings", false, false},
    {"daily_totals", false, false},     {"user_associations", false, false},
};

QString IdText(const AthleteTable& t, const QString& id) { return t.quoted ? "'" + id + "'" : id; }

class SignInTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        static bool registered = false;
        if (!registered) RegisterCoreScreens();
        registered = true;
        frmOpen::Terminate = [this] { terminated = true; };
    }
    void TearDown() override
    {
        frmOpen::Terminate = nullptr;
        StoreTest::TearDown();
    }

    void FillAllTables(const QString& id)
    {
        for (const AthleteTable& t : Tables) {
            const QString sql = QStringLiteral("insert into %1 (User_ID) values (%2)").arg(QString::fromLatin1(t.table), IdText(t, id));
            if (t.library) LibraryConn.Execute(sql);
            else UserConn.Execute(sql);
        }
    }
    long Rows(const AthleteTable& t, const QString& id)
    {
        const QString where = QString::fromLatin1(t.table) + " where User_ID=" + IdText(t, id);
        return t.library ? CountLibrary(where) : CountUser(where);
    }
    void SetPassword(const QString& id, const QString& pw)
    {
        UserConn.Execute("update User_Info set [Password]='" + SqlQuote(pw) + "' where User_ID=" + id);
    }
    static void Select(frmOpen& w, const QString& name) { w.Combo1->setCurrentIndex(w.Combo1->findText(name)); }

    bool terminated = false;
};

TEST_F(SignInTest, LoadUsersListsByNameAndSelectsTheFirst)
{
    {
        frmOpen empty;
        EXPECT_EQ(empty.Combo1->count(), 0);
        EXPECT_FALSE(empty.Command1->isEnabled());
        EXPECT_FALSE(empty.command3->isEnabled());
        EXPECT_FALSE(ExitRequested);
        EXPECT_EQ(empty.lblVersion->text(), QStringLiteral("Version 5    April 8, 2003"));
        EXPECT_EQ(empty.windowTitle(), QStringLiteral("Sign In"));
    }
    const QString zed = AddAthlete(QStringLiteral("Zed"));
    const QString ann = AddAthlete(QStringLiteral("ann"));
    frmOpen w;
    ASSERT_EQ(w.Combo1->count(), 2);
    EXPECT_EQ(w.Combo1->itemText(0), QStringLiteral("ann"));
    EXPECT_EQ(w.Combo1->itemData(0).toString(), ann);
    EXPECT_EQ(w.Combo1->itemData(1).toString(), zed);
    EXPECT_EQ(w.Combo1->currentIndex(), 0);
    EXPECT_TRUE(w.Command1->isEnabled());
    EXPECT_TRUE(w.command3->isEnabled());
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

TEST_F(SignInTest, RemovalEmptiesEveryTableOfTheAthleteAndNothingElse)
{
    const QString keep = AddAthlete(QStringLiteral("Keep Me"));
    const QString gone = AddAthlete(QStringLiteral("O'Brien"));
    FillAllTables(keep);
    FillAllTables(gone);

    frmOpen w;
    Select(w, QStringLiteral("O'Brien"));
    Ui().AnswerAll({vbYes, vbYes});
    w.command3->click();

    const auto& m = Ui().Messages();
    ASSERT_EQ(m.size(), 3);
    EXPECT_EQ(m[0].text, QStringLiteral("Do you want to permanently remove O'Brien from your system?"));
    EXPECT_EQ(m[0].title, QStringLiteral("Action"));
    EXPECT_EQ(m[0].buttons, int(vbYesNo));
    EXPECT_EQ(m[1].text, QStringLiteral("Last chance: Are you sure that you want to permanently remove O'Brien from your system?"));
    EXPECT_EQ(m[2].text, QStringLiteral("User has been removed and all data has been deleted."));
    EXPECT_EQ(m[2].title, QStringLiteral("Message"));
    EXPECT_EQ(m[2].icon, int(vbInformation));

    EXPECT_EQ(CountUser("User_Info where User_ID=" + gone), 0);
    EXPECT_EQ(CountUser("User_Info where User_ID=" + keep), 1);
    for (const AthleteTable& t : Tables) {
        EXPECT_EQ(Rows(t, gone), 0) << t.table;
        EXPECT_EQ(Rows(t, keep), 1) << t.table;
    }
    ASSERT_EQ(w.Combo1->count(), 1);
    EXPECT_EQ(w.Combo1->itemText(0), QStringLiteral("Keep Me"));

    // The last athlete: an empty list with sign-in and remove disabled.
    Ui().ClearMessages();
    Select(w, QStringLiteral("Keep Me"));
    w.command3->click();
    EXPECT_EQ(w.Combo1->count(), 0);
    EXPECT_FALSE(w.Command1->isEnabled());
    EXPECT_FALSE(w.command3->isEnabled());
    EXPECT_EQ(CountUser(QStringLiteral("User_Info")), 0);
    EXPECT_FALSE(terminated);
}

TEST_F(SignInTest, RemovalStopsOnNoAndAsksThePassword)
{
    const QString id = AddAthlete(QStringLiteral("Guarded"));
    SetPassword(id, QStringLiteral("Secret"));
    FillAllTables(id);
    frmOpen w;

    // No at the first question, then No at the last chance: nothing is removed.
    Ui().OnDialog(QStringLiteral("frmPassword"), [](QDialog* d) {
        auto* p = static_cast<frmPassword*>(d);
        p->Text1->setText(QStringLiteral("Secret"));
        p->Command1->click();
        return d->result();
    });
    Ui().AnswerAll({vbNo});
    w.command3->click();
    Ui().AnswerAll({vbYes, vbNo});
    w.command3->click();
    EXPECT_EQ(CountUser("User_Info where User_ID=" + id), 1);
    EXPECT_EQ(CountUser("calendar where User_ID='" + id + "'"), 1);
    EXPECT_EQ(Ui().DialogsShown().count(QStringLiteral("frmPassword")), 2);

    // A cancelled password stops before any question.
    Ui().ClearMessages();
    Ui().OnDialog(QStringLiteral("frmPassword"), [](QDialog* d) {
        static_cast<frmPassword*>(d)->cmdCancel->click();
        return d->result();
    });
    w.command3->click();
    EXPECT_TRUE(Ui().Messages().isEmpty());
    EXPECT_EQ(CountUser("User_Info where User_ID=" + id), 1);
}

TEST_F(SignInTest, SignInFillsTheSharedStateWithAndWithoutPassword)
{
    const QString plain = AddAthlete(QStringLiteral("Plain"), QStringLiteral("F"));
    const QString locked = AddAthlete(QStringLiteral("Locked"));
    UserConn.Execute("update User_Info set Workout_In='kg' where User_ID=" + plain);
    SetPassword(locked, QStringLiteral("PaSs"));
    CurrentUserID.clear();
    CurrentUserName.clear();

    {
        frmOpen w;
        Select(w, QStringLiteral("Plain"));
        Loading = true;
        w.Command1->click();
        EXPECT_EQ(CurrentUserID, plain);
        EXPECT_EQ(CurrentUserName, QStringLiteral("Plain"));
        EXPECT_EQ(CurrentUserSex, QStringLiteral("F"));
        EXPECT_EQ(WorkoutIn, QStringLiteral("kg"));
        EXPECT_EQ(CurrentUserPassword, QString());
        EXPECT_FALSE(Loading);
        EXPECT_EQ(w.result(), int(QDialog::Accepted));
        EXPECT_FALSE(Ui().DialogsShown().contains(QStringLiteral("frmPassword")));
    }
    {
        // Wrong case is a wrong password; cancelling leaves the window up with the tried id.
        frmOpen w;
        Select(w, QStringLiteral("Locked"));
        Ui().OnDialog(QStringLiteral("frmPassword"), [](QDialog* d) {
            auto* p = static_cast<frmPassword*>(d);
            p->Text1->setText(QStringLiteral("pass"));
            p->Command1->click();
            EXPECT_NE(d->result(), int(QDialog::Accepted));
            p->cmdCancel->click();
            return d->result();
        });
        w.Command1->click();
        EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Wrong Password, Please Try Again."));
        EXPECT_EQ(CurrentUserID, locked);
        EXPECT_EQ(CurrentUserPassword, QStringLiteral("PaSs"));
        EXPECT_EQ(CurrentUserName, QStringLiteral("Plain"));
        EXPECT_NE(w.result(), int(QDialog::Accepted));
    }
    {
        frmOpen w;
        Select(w, QStringLiteral("Locked"));
        Ui().OnDialog(QStringLiteral("frmPassword"), [](QDialog* d) {
            auto* p = static_cast<frmPassword*>(d);
            p->Text1->setText(QStringLiteral("PaSs"));
            p->Command1->click();
            return d->result();
        });
        w.Command1->click();
        EXPECT_EQ(CurrentUserName, QStringLiteral("Locked"));
        EXPECT_EQ(w.result(), int(QDialog::Accepted));
    }
}

TEST_F(SignInTest, PasswordDialogRules)
{
    CurrentUserPassword = QStringLiteral("Abc");
    frmPassword p;
    EXPECT_TRUE(DialogCancelled);
    EXPECT_EQ(p.Text1->echoMode(), QLineEdit::Password);
    for (const char* text : {"", "A", "Ab", "  Ab  "}) {
        p.Text1->setText(QString::fromLatin1(text));
        EXPECT_FALSE(p.Command1->isEnabled()) << text;
        p.Command1->click();
        EXPECT_TRUE(Ui().Messages().isEmpty());
    }
    p.Text1->setText(QStringLiteral("abc"));
    EXPECT_TRUE(p.Command1->isEnabled());
    p.Command1->click();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Wrong Password, Please Try Again."));
    EXPECT_EQ(Ui().LastMessage().icon, int(vbInformation));
    EXPECT_TRUE(DialogCancelled);
    EXPECT_EQ(p.Text1->selectedText(), QStringLiteral("abc"));
    p.Text1->setText(QStringLiteral("Abc"));
    p.Command1->click();
    EXPECT_FALSE(DialogCancelled);
    EXPECT_EQ(p.result(), int(QDialog::Accepted));
}

TEST_F(SignInTest, ChangePasswordRules)
{
    const QString id = AddAthlete(QStringLiteral("Changer"));
    SetPassword(id, QStringLiteral("old1"));
    CurrentUserPassword = QStringLiteral(" old1 ");
    {
        ChangePass c;
        EXPECT_EQ(c.windowTitle(), QStringLiteral("Change Password"));
        EXPECT_EQ(c.Text1->text(), QStringLiteral("old1"));
        EXPECT_EQ(c.Text2->text(), QStringLiteral("old1"));
        EXPECT_TRUE(c.Command1->isEnabled());
        c.Text1->setText(QStringLiteral("new"));
        EXPECT_FALSE(c.Command1->isEnabled());
        c.Text2->setText(QStringLiteral("NEW"));   // compared without regard to case
        EXPECT_TRUE(c.Command1->isEnabled());
        c.Text2->setText(QStringLiteral("ne"));
        EXPECT_FALSE(c.Command1->isEnabled());

        // A typed space is dropped.
        c.Text1->clear();
        c.Text1->setFocus();
        QTest::keyClicks(c.Text1, QStringLiteral("a b"));
        EXPECT_EQ(c.Text1->text(), QStringLiteral("ab"));

        // An empty confirmation is accepted and stores an empty password.
        c.Text2->clear();
        EXPECT_TRUE(c.Command1->isEnabled());
        c.Command1->click();
        EXPECT_EQ(c.result(), int(QDialog::Accepted));
    }
    UserRS.Open("select * from User_Info where User_ID=" + id);
    EXPECT_EQ(Str(UserRS.Field(QStringLiteral("Password"))), QString());
    UserRS.Close();

    // Such an athlete signs in without the password dialog.
    frmOpen w;
    Select(w, QStringLiteral("Changer"));
    w.Command1->click();
    EXPECT_FALSE(Ui().DialogsShown().contains(QStringLiteral("frmPassword")));
    EXPECT_EQ(CurrentUserName, QStringLiteral("Changer"));

    // A short password can be stored here, though the sign-in dialog will not take it.
    {
        CurrentUserPassword.clear();
        ChangePass c;
        c.Text1->setText(QStringLiteral("ab"));
        c.Text2->setText(QStringLiteral("ab"));
        c.Command1->click();
    }
    EXPECT_EQ(CountUser("User_Info where User_ID=" + id + " and [Password]='ab'"), 1);

    // Without the athlete's row the password is not saved.
    CurrentUserID = QStringLiteral("9999");
    ChangePass missing;
    missing.Command1->click();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Can't update user password."));
    EXPECT_NE(missing.result(), int(QDialog::Accepted));
}

// Fills the wizard as a user would; returns the dialog's result.
int RunWizard(QDialog* d, const QString& name, bool female, int purpose, QStringList* trace)
{
    auto* w = static_cast<frmCreateAthelete1*>(d);
    EXPECT_FALSE(w->cmdNext->isEnabled());
    w->Text1->setText(name);
    EXPECT_FALSE(w->cmdNext->isEnabled());   // no sex chosen yet
    (female ? w->optFemale : w->optMale)->setChecked(true);
    EXPECT_TRUE(w->cmdNext->isEnabled());
    w->cmdNext->click();
    if (w->Pages->currentIndex() != 1) {
        if (trace) trace->append(QStringLiteral("stayed"));
        w->cmdCancel->click();
        return d->result();
    }
    EXPECT_EQ(w->cmdNext->text(), QStringLiteral("&Finish"));
    EXPECT_FALSE(w->cmdNext->isEnabled());
    w->Combo1->setCurrentIndex(purpose);
    w->cmdNext->click();
    return d->result();
}

TEST_F(SignInTest, AddingAnAthleteWithAnApostrophe)
{
    frmOpen w;
    QStringList trace;
    Ui().OnDialog(QStringLiteral("frmCreateAthelete1"), [&](QDialog* d) {
        return RunWizard(d, QStringLiteral("  D'Arcy  "), true, 1, &trace);
    });
    w.command4->click();
    EXPECT_TRUE(trace.isEmpty());
    const auto& m = Ui().Messages();
    ASSERT_EQ(m.size(), 2);
    EXPECT_EQ(m[0].text, QStringLiteral("Do you want to add a new athlete?"));
    EXPECT_EQ(m[0].title, QStringLiteral("Action"));
    EXPECT_EQ(m[1].title, QStringLiteral("Welcome"));
    EXPECT_EQ(m[1].text, QStringLiteral("Welcome to the Orvantis D'Arcy.  We hope that this software will help you "
                                        "achieve and maintain your fitness goals."));
    EXPECT_FALSE(NewAthlete);
    EXPECT_FALSE(DialogCancelled);
    EXPECT_EQ(w.result(), int(QDialog::Accepted));

    UserRS.Open(QStringLiteral("select * from User_Info where Name='D''Arcy'"));
    ASSERT_FALSE(UserRS.Eof());
    EXPECT_EQ(Str(UserRS.Field(QStringLiteral("User_ID"))), CurrentUserID);
    EXPECT_EQ(Str(UserRS.Field(QStringLiteral("sex"))), QStringLiteral("F"));
    EXPECT_EQ(Str(UserRS.Field(QStringLiteral("Purpose"))), QStringLiteral("Weight Loss"));
    EXPECT_EQ(Str(UserRS.Field(QStringLiteral("Fitness_Goals"))), QStringLiteral("Weight Loss"));
    UserRS.Close();

    // The same name again is refused on the first page, whatever its case.
    frmOpen again;
    Ui().ClearMessages();
    Ui().OnDialog(QStringLiteral("frmCreateAthelete1"), [&](QDialog* d) {
        return RunWizard(d, QStringLiteral("d'arcy"), false, 0, &trace);
    });
    again.command4->click();
    EXPECT_EQ(trace, QStringList{QStringLiteral("stayed")});
    EXPECT_TRUE(Ui().MessageTexts().contains(
        QStringLiteral("This user already exists.  Please try another name or remove existing athlete.")));
    EXPECT_TRUE(DialogCancelled);
    EXPECT_EQ(CountUser(QStringLiteral("User_Info")), 1);

    // Removal finds the athlete by the name with its apostrophe.
    Ui().AnswerAll({vbYes, vbYes});
    again.Combo1->setCurrentIndex(again.Combo1->findText(QStringLiteral("D'Arcy")));
    again.command3->click();
    EXPECT_EQ(CountUser(QStringLiteral("User_Info")), 0);

    // No at the question does nothing at all.
    Ui().ClearMessages();
    Ui().AnswerAll({vbNo});
    again.command4->click();
    EXPECT_EQ(Ui().Messages().size(), 1);
    EXPECT_FALSE(NewAthlete);
}

TEST_F(SignInTest, LocateDatabaseRemembersTheFolderAndReopens)
{
    AddAthlete(QStringLiteral("Local"));
    frmOpen w;
    // Cancelled: nothing happens.
    w.Command5->click();
    ASSERT_EQ(Ui().FileDialogsShown().size(), 1);
    const FileDialogOptions& o = Ui().FileDialogsShown().first();
    EXPECT_EQ(o.filter, QStringLiteral("Orvantis Database| orvantis.mdb"));
    EXPECT_EQ(o.defaultExt, QStringLiteral("hrm"));
    EXPECT_EQ(o.filterIndex, 3);
    EXPECT_TRUE(o.mustExist);
    EXPECT_TRUE(Ui().Messages().isEmpty());

    Ui().AnswerFile(FilePath(QStringLiteral("orvantis.mdb")));
    w.Command5->click();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("Database Located."));
    EXPECT_TRUE(UserConn.IsOpen());
    EXPECT_EQ(w.Combo1->count(), 1);
    const QString path = ReadIni(QStringLiteral("Program"), QStringLiteral("Path"), IniFile);
    EXPECT_TRUE(path.endsWith('/') || path.endsWith('\\')) << path.toStdString();
}

TEST_F(SignInTest, AStoreErrorDuringSignInGoesOnToTheNextStatement)
{
    AddAthlete(QStringLiteral("Unlucky"));
    frmOpen w;
    // The user store is closed under the window: opening the athlete's row fails, the
    // handler goes on, finds no row and says so with the error's text.
    UserRS.Close();
    UserConn.Close();
    w.Command1->click();
    EXPECT_FALSE(terminated);
    EXPECT_TRUE(Ui().LastMessage().text.startsWith(QStringLiteral("Problem opening athlete file:")));
    EXPECT_GT(Ui().LastMessage().text.size(), QStringLiteral("Problem opening athlete file:").size());
    EXPECT_NE(w.result(), int(QDialog::Accepted));
}

TEST_F(SignInTest, AMissingFileWhileAddingEndsTheProgram)
{
    // The athlete screen stands in here as a screen whose store file has gone.
    static bool failing = false;
    ui::RegisterScreen(QStringLiteral("frmUserInfo"), [](QWidget*) -> QWidget* {
        if (failing) throw StoreError(StoreError::FileNotFound, QStringLiteral("File not found"));
        return nullptr;
    });
    struct Reset {
        ~Reset() { failing = false; }
    } reset;
    failing = true;

    frmOpen w;
    Ui().OnDialog(QStringLiteral("frmCreateAthelete1"), [&](QDialog* d) {
        return RunWizard(d, QStringLiteral("Doomed"), false, 2, nullptr);
    });
    w.command4->click();
    EXPECT_TRUE(terminated);
    EXPECT_TRUE(ExitRequested);
    EXPECT_EQ(Ui().LastMessage().text,
              QStringLiteral("A Critical Error has occured! Terminating Application.Error:File not found"));
    EXPECT_EQ(Ui().LastMessage().icon, int(vbCritical));
    EXPECT_FALSE(Ui().MessageTexts().join('|').contains(QStringLiteral("Welcome")));
}

TEST_F(SignInTest, NamesAreUniqueWhateverTheirCaseAndRemovalTakesTheChosenRow)
{
    const QString existing = QStringLiteral("\u00c9lodie");
    AddAthlete(existing);
    frmOpen w;
    QStringList trace;
    Ui().OnDialog(QStringLiteral("frmCreateAthelete1"), [&](QDialog* d) {
        return RunWizard(d, QStringLiteral("\u00e9LODIE"), true, 0, &trace);
    });
    w.command4->click();
    EXPECT_EQ(trace, QStringList{QStringLiteral("stayed")});
    EXPECT_TRUE(Ui().MessageTexts().contains(
        QStringLiteral("This user already exists.  Please try another name or remove existing athlete.")));
    EXPECT_EQ(CountUser(QStringLiteral("User_Info")), 1);

    // An older store with two athletes of one name: removing the second entry removes that
    // athlete and its rows only.
    const QString first = AddAthlete(QStringLiteral("Sam"));
    const QString second = AddAthlete(QStringLiteral("Sam"));
    FillAllTables(first);
    FillAllTables(second);
    frmOpen list;
    QList<int> sams;
    for (int i = 0; i < list.Combo1->count(); ++i)
        if (list.Combo1->itemText(i) == QLatin1String("Sam")) sams << i;
    ASSERT_EQ(sams.size(), 2);
    const int chosen = list.Combo1->itemData(sams[0]).toString() == second ? sams[0] : sams[1];
    list.Combo1->setCurrentIndex(chosen);
    Ui().ClearMessages();
    Ui().AnswerAll({vbYes, vbYes});
    list.command3->click();
    EXPECT_EQ(Ui().LastMessage().text, QStringLiteral("User has been removed and all data has been deleted."));
    EXPECT_EQ(CountUser("User_Info where User_ID=" + first), 1);
    EXPECT_EQ(CountUser("User_Info where User_ID=" + second), 0);
    for (const AthleteTable& t : Tables) {
        EXPECT_EQ(Rows(t, first), 1) << t.table;
        EXPECT_EQ(Rows(t, second), 0) << t.table;
    }
}

TEST_F(SignInTest, ReadOnlyStoresAreSaidOnceAndListed)
{
    AddAthlete(QStringLiteral("Reader"));
    frmOpen::OpenStores = [] {
        OpenDatabases();
        // As a folder that cannot be written gives them.
        UserConn.Close();
        UserConn.Open(ConnectionString(UserDbPath) + QStringLiteral("Mode=Read;"));
    };
    struct Reset {
        ~Reset() { frmOpen::OpenStores = nullptr; }
    } reset;
    frmOpen w;
    ASSERT_EQ(Ui().Messages().size(), 1);
    EXPECT_EQ(Ui().LastMessage().text,
              QStringLiteral("The database is read-only: your records can be read, but changes cannot be saved."));
    EXPECT_EQ(Ui().LastMessage().title, QStringLiteral("Message"));
    EXPECT_EQ(Ui().LastMessage().icon, int(vbInformation));
    ASSERT_EQ(w.Combo1->count(), 1);
    EXPECT_EQ(w.Combo1->itemText(0), QStringLiteral("Reader"));
    EXPECT_TRUE(w.Command1->isEnabled());

    // Stores that can be written say nothing.
    frmOpen::OpenStores = nullptr;
    Ui().ClearMessages();
    frmOpen writable;
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

}  // namespace
