// Start-up from the program's folder: the settings file, the main window's placement and
// colour, and the sign-in window over stores that are missing, wrong or damaged.
#include "fixtures/fixture.h"

#include "core/frmMain.h"
#include "core/frmOpen.h"
#include "core/ini.h"
#include "core/opendatabases.h"
#include "core/shared.h"
#include "core/store/value.h"

#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QToolBar>

namespace {

const QString DatabaseMessage = QStringLiteral("Unable to open database, please check your installation.");

class StartupTest : public FolderTest {
protected:
    void WriteFile(const QString& name, const QByteArray& text)
    {
        QFile f(FilePath(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(text);
    }
    QByteArray ReadFile(const QString& name)
    {
        QFile f(FilePath(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
};

TEST_F(StartupTest, MainWindowPlacementAndColourFromTheSettingsFile)
{
    {
        // No settings file at all, then one without a Window section: maximised, blue.
        frmMain m;
        EXPECT_TRUE(m.windowState() & Qt::WindowMaximized);
        EXPECT_EQ(AppColor, 10841658);
        EXPECT_EQ(m.windowTitle(), QStringLiteral("Orvantis"));
        EXPECT_TRUE(Loading);
        EXPECT_FALSE(m.Picture1->isVisibleTo(&m));
    }
    WriteFile(IniFile, "[Program]\nPath=\n");
    {
        frmMain m;
        EXPECT_TRUE(m.windowState() & Qt::WindowMaximized);
        EXPECT_EQ(AppColor, 10841658);
    }
    WriteFile(IniFile, "[Window]\nState=1\nColor=0\n");
    {
        frmMain m;
        EXPECT_TRUE(m.windowState() & Qt::WindowMaximized);
        EXPECT_FALSE(m.windowState() & Qt::WindowMinimized);
        EXPECT_EQ(AppColor, 10841658);
    }
    // A normal window is raised to the smallest size, and keeps the stored colour.
    WriteFile(IniFile, "[Window]\nState=0\nLeft=1440\nTop=720\nHeight=100\nWidth=100\nColor=721814\n");
    {
        frmMain m;
        EXPECT_FALSE(m.windowState() & Qt::WindowMaximized);
        EXPECT_EQ(m.WindowStateValue(), 0);
        EXPECT_EQ(m.height(), TwipsToPixels(6000));
        EXPECT_EQ(m.width(), TwipsToPixels(5000));
        EXPECT_EQ(AppColor, 721814);
    }
    // Garbage lines around the keys are ignored.
    WriteFile(IniFile, "garbage without equals\n[Window\n=no key\n\x01\x02\n[Window]\nColor=255\nState=0\n"
                       "Height=7200\nWidth=abc\n[Program\n");
    {
        frmMain m;
        EXPECT_EQ(AppColor, 255);
        EXPECT_EQ(m.WindowStateValue(), 0);
        EXPECT_EQ(m.height(), TwipsToPixels(7200));
        EXPECT_EQ(m.width(), TwipsToPixels(5000));
    }
}

TEST_F(StartupTest, ClosingWritesPlacementAndColour)
{
    WriteFile(IniFile, "[Window]\nState=0\nLeft=0\nTop=0\nHeight=8000\nWidth=9000\n");
    {
        frmMain m;
        AppColor = 8421504;
        m.close();
    }
    EXPECT_EQ(ReadIni(QStringLiteral("Window"), QStringLiteral("State"), IniFile), QStringLiteral("0"));
    EXPECT_EQ(ReadIni(QStringLiteral("Window"), QStringLiteral("Color"), IniFile), QStringLiteral("8421504"));
    EXPECT_NEAR(Val(ReadIni(QStringLiteral("Window"), QStringLiteral("Width"), IniFile)), 9000, 40);
    EXPECT_FALSE(ReadIni(QStringLiteral("Window"), QStringLiteral("Height"), IniFile).isEmpty());
}

TEST_F(StartupTest, ANormalWindowKeepsItsPlacementOverRestarts)
{
    WriteFile(IniFile, "[Window]\nState=0\nLeft=1500\nTop=1200\nHeight=7200\nWidth=9000\n");
    auto number = [](const char* key) { return Val(ReadIni(QStringLiteral("Window"), QString::fromLatin1(key), IniFile)); };
    // Shown, so that the window has its frame; closed as the user closes it.
    for (int start = 0; start < 5; ++start) {
        frmMain m;
        m.show();
        QCoreApplication::processEvents();
        EXPECT_EQ(m.size(), QSize(TwipsToPixels(9000), TwipsToPixels(7200))) << "start " << start;
        m.close();
        EXPECT_NEAR(number("Height"), 7200, 15) << "start " << start;
        EXPECT_NEAR(number("Width"), 9000, 15) << "start " << start;
        EXPECT_NEAR(number("Left"), 1500, 15) << "start " << start;
        EXPECT_NEAR(number("Top"), 1200, 15) << "start " << start;
    }
}

TEST_F(StartupTest, SettingsOutOfRangeTakeDefaultsAndWindowsStayOnTheScreen)
{
    // A colour no colour can be, and states that are none of 0, 1 and 2: blue, maximised.
    for (const char* state : {"7", "-1", "99999999999999999999", "1e300"}) {
        WriteFile(IniFile, QByteArray("[Window]\nColor=99999999999999999999\nState=") + state + "\n");
        frmMain m;
        EXPECT_EQ(AppColor, 10841658) << state;
        EXPECT_TRUE(m.windowState() & Qt::WindowMaximized) << state;
    }

    // A normal window placed far beyond every screen comes back onto one, and the sign-in
    // window centred on it is on view too.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const char* place : {"Left=99999999999\nTop=99999999999\n", "Left=-1e30\nTop=1e30\n",
                              "Left=99999999999999999999999999999999999999\nTop=-5000000\n"}) {
        WriteFile(IniFile, QByteArray("[Window]\nState=0\nHeight=7200\nWidth=9000\n") + place);
        frmMain m;
        m.show();
        QCoreApplication::processEvents();
        // On view with its title bar: what the user needs to take it.
        EXPECT_TRUE(screen.contains(m.frameGeometry().topLeft())) << place;
        EXPECT_GE(screen.intersected(m.frameGeometry()).width(), m.frameGeometry().width() - 8) << place;
        EXPECT_GE(screen.intersected(m.frameGeometry()).height(), m.frameGeometry().height() - 8) << place;
        EXPECT_EQ(m.WindowStateValue(), 0);
        frmOpen w;
        w.show();
        QCoreApplication::processEvents();
        EXPECT_TRUE(screen.intersects(w.frameGeometry())) << place;
        EXPECT_TRUE(screen.contains(w.frameGeometry().topLeft())) << place;
        w.hide();
    }
}

TEST_F(StartupTest, FirstStartCreatesTheStoresAndShowsAnEmptyList)
{
    frmOpen w;
    EXPECT_TRUE(Ui().Messages().isEmpty());
    EXPECT_TRUE(QFile::exists(FilePath(QStringLiteral("orvantis.mdb"))));
    EXPECT_TRUE(QFile::exists(FilePath(QStringLiteral("orvantisuser.mdb"))));
    EXPECT_EQ(w.Combo1->count(), 0);
    EXPECT_FALSE(w.Command1->isEnabled());
    EXPECT_TRUE(w.command4->isEnabled());
    EXPECT_TRUE(w.Command5->isEnabled());
}

TEST_F(StartupTest, StoresThatCannotBeOpenedGiveTheMessageAndAnEmptyList)
{
    // A wrong Program/Path: both steps of the window's load fail, each with the message.
    WriteFile(IniFile, "[Program]\nPath=/no/such/folder/\n");
    {
        frmOpen w;
        ASSERT_EQ(Ui().Messages().size(), 2);
        for (const RecordedMessage& m : Ui().Messages()) {
            EXPECT_EQ(m.text, DatabaseMessage);
            EXPECT_EQ(m.title, QStringLiteral("Message"));
            EXPECT_EQ(m.icon, int(vbInformation));
        }
        EXPECT_EQ(w.Combo1->count(), 0);
        EXPECT_FALSE(w.Command1->isEnabled());
        EXPECT_TRUE(w.Command5->isEnabled());
        EXPECT_FALSE(ExitRequested);
        EXPECT_FALSE(QFile::exists(QStringLiteral("/no/such/folder/orvantis.mdb")));
    }

    // A damaged user store: the message, and the file is left as it was.
    WriteFile(IniFile, "[Program]\n");
    const QByteArray junk("This is not a store file at all, just some text.\n");
    WriteFile(QStringLiteral("orvantisuser.mdb"), junk);
    Ui().ClearMessages();
    {
        frmOpen w;
        EXPECT_FALSE(Ui().Messages().isEmpty());
        EXPECT_TRUE(Ui().MessageTexts().contains(DatabaseMessage));
        EXPECT_EQ(w.Combo1->count(), 0);
    }
    EXPECT_EQ(ReadFile(QStringLiteral("orvantisuser.mdb")), junk);
}

TEST_F(StartupTest, SchemaAdjustmentsRunOnEveryStartWithoutHarm)
{
    OpenDatabases();
    UserConn.Execute(QStringLiteral("insert into User_Info (Name, height, currentWeight) values ('Tall', 70.5, 181.25)"));
    UserConn.Execute(QStringLiteral("insert into Wellness (User_ID, sleep) values ('1', 7.5)"));
    OpenDatabases();
    OpenDatabases();
    UserRS.Open(QStringLiteral("select * from User_Info where Name='Tall'"));
    ASSERT_FALSE(UserRS.Eof());
    EXPECT_DOUBLE_EQ(Val(UserRS.Field(QStringLiteral("height"))), 70.5);
    EXPECT_DOUBLE_EQ(Val(UserRS.Field(QStringLiteral("currentWeight"))), 181.25);
    UserRS.Close();
    UserRS.Open(QStringLiteral("select sleep from Wellness"));
    ASSERT_FALSE(UserRS.Eof());
    EXPECT_DOUBLE_EQ(Val(UserRS.Field(0)), 7.5);
    UserRS.Close();
    // And the sign-in window over them still lists the athlete.
    frmOpen w;
    EXPECT_EQ(w.Combo1->count(), 1);
    EXPECT_TRUE(Ui().Messages().isEmpty());
}

}  // namespace
