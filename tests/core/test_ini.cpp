#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <unistd.h>

#include "core/ini.h"
#include "core/routines.h"

namespace {

// Bytes of a literal that holds NULs.
template <size_t N>
QByteArray Bytes(const char (&text)[N])
{
    return QByteArray(text, N - 1);
}

// A settings file in a temporary program folder; the program folder comes back afterwards.
class IniTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        saved = ProgramFolder();
        SetProgramFolder(dir.path());
    }
    void TearDown() override { SetProgramFolder(saved); }

    QString Path(const QString& name = "test.ini") const { return QDir(dir.path()).filePath(name); }
    void Put(const QByteArray& content, const QString& name = "test.ini") const
    {
        QFile f(Path(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
    }
    QByteArray Get(const QString& name = "test.ini") const
    {
        QFile f(Path(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QTemporaryDir dir;
    QString saved;
};

}  // namespace

TEST_F(IniTest, ReadsLikeTheProfileFunctions)
{
    Put("; settings\n"
        "[Program]\n"
        "Path = C:\\Data\\ \n"
        "Tab=2\n"
        "Quoted=\"  spaced  \"\n"
        "Single='x'\n"
        "Half=\"open\n"
        "Empty=\n"
        "[window]\n"
        "  state  =  2  \n"
        "Tab=9\n");
    EXPECT_EQ(ReadIni("Program", "Path", "test.ini"), "C:\\Data\\");
    EXPECT_EQ(ReadIni("PROGRAM", "tab", "test.ini"), "2");
    EXPECT_EQ(ReadIni("Window", "State", "test.ini"), "2");
    EXPECT_EQ(ReadIni("Window", "Tab", "test.ini"), "9");           // keys belong to their section
    EXPECT_EQ(ReadIni("Program", "Quoted", "test.ini"), "  spaced  ");
    EXPECT_EQ(ReadIni("Program", "Single", "test.ini"), "x");
    EXPECT_EQ(ReadIni("Program", "Half", "test.ini"), "\"open");
    EXPECT_EQ(ReadIni("Program", "Empty", "test.ini"), "");
    EXPECT_EQ(ReadIni("Program", "State", "test.ini"), "");         // absent key
    EXPECT_EQ(ReadIni("Nowhere", "Tab", "test.ini"), "");           // absent section
    EXPECT_EQ(ReadIni("Program", "Tab", "missing.ini"), "");        // absent file
    EXPECT_EQ(ReadIni("Program", "Tab", Path()), "2");               // a full path as given

    Put("[A]\nk=" + QByteArray(5000, 'v') + "\n");
    EXPECT_EQ(ReadIni("A", "k", "test.ini").size(), 2047);
}

TEST_F(IniTest, GarbageLinesAreIgnored)
{
    const QByteArray junk = Bytes("\x00\x01\xff\xfe[\x80\x81=\n");
    Put("garbage without equals\n" + junk +
        "[Program\n"
        "=no key\n"
        "[Program]\n"
        "just words\n"
        + QByteArray(200000, 'x') + "\n"
        "[[odd]]]\n"
        "\xc3\x28\xa0\xa1\n"
        "[Program]\n"
        "Path=second section\n");
    EXPECT_EQ(ReadIni("Program", "Path", "test.ini"), "");   // only the first section counts
    Put(Bytes("\xff\xfe\x00junk\r\n[Window]\r\nState=0\r\n\x01\x02\x03\r\nLeft=120\r\n"));
    EXPECT_EQ(ReadIni("Window", "State", "test.ini"), "0");
    EXPECT_EQ(ReadIni("Window", "Left", "test.ini"), "120");
    EXPECT_EQ(ReadIni("Window", "junk", "test.ini"), "");

    Put(QByteArray(300000, '\0'));
    EXPECT_EQ(ReadIni("Window", "State", "test.ini"), "");
    EXPECT_TRUE(WriteIni("Window", "State", "2", "test.ini"));
    EXPECT_EQ(ReadIni("Window", "State", "test.ini"), "2");
}

TEST_F(IniTest, WritesKeepTheRestOfTheFile)
{
    const QByteArray before =
        "; kept comment\n"
        "[Program]\n"
        "Path=C:\\Data\\\n"
        "Tab=1\n"
        "\n"
        "[Window]\n"
        "state=0\n"
        "Left=10\n";
    Put(before);
    // In place, with the key's own spelling.
    EXPECT_TRUE(WriteIni("PROGRAM", "TAB", "3", "test.ini"));
    EXPECT_EQ(Get(), QByteArray(before).replace("Tab=1", "Tab=3"));
    // A new key at the end of its section, before the blank line.
    EXPECT_TRUE(WriteIni("Program", "Cal", "multi", "test.ini"));
    EXPECT_EQ(Get(), QByteArray(before).replace("Tab=1\n", "Tab=3\nCal=multi\n"));
    // A new key at the end of the last section, and a new section at the end.
    EXPECT_TRUE(WriteIni("Window", "Top", "20", "test.ini"));
    EXPECT_TRUE(WriteIni("Extra", "Color", "10841658", "test.ini"));
    EXPECT_EQ(Get(), QByteArray(before).replace("Tab=1\n", "Tab=3\nCal=multi\n")
                         + "Top=20\n[Extra]\nColor=10841658\n");
    EXPECT_EQ(ReadIni("Window", "state", "test.ini"), "0");
    EXPECT_EQ(ReadIni("Extra", "Color", "test.ini"), "10841658");

    // Line ends and a missing last line end.
    Put("[Window]\r\nState=0\r\nLeft=5");
    EXPECT_TRUE(WriteIni("Window", "Top", "7", "test.ini"));
    EXPECT_EQ(Get(), "[Window]\r\nState=0\r\nLeft=5\r\nTop=7\r\n");
    EXPECT_TRUE(WriteIni("Window", "Left", "6", "test.ini"));
    EXPECT_EQ(Get(), "[Window]\r\nState=0\r\nLeft=6\r\nTop=7\r\n");

    // Binary junk in other lines comes back byte for byte.
    const QByteArray junk = Bytes("[Other]\n\x00\x01\xff junk\n[Program]\nTab=1\n");
    Put(junk);
    EXPECT_TRUE(WriteIni("Program", "Tab", "2", "test.ini"));
    EXPECT_EQ(Get(), QByteArray(junk).replace("Tab=1", "Tab=2"));
}

TEST_F(IniTest, CreatesTheFileAndRefusesWhatCannotBeWritten)
{
    // A bare name is in the program's folder, created on the first write.
    EXPECT_FALSE(QFile::exists(Path(IniFile)));
    EXPECT_TRUE(WriteIni("Window", "Color", "255", IniFile));
    EXPECT_EQ(Get(IniFile), "[Window]\nColor=255\n");
    EXPECT_EQ(ReadIni("window", "color", IniFile), "255");

    // A value with a line end cannot break the file into two keys.
    EXPECT_TRUE(WriteIni("Window", "Color", "1\nInjected=1", IniFile));
    EXPECT_EQ(ReadIni("Window", "Injected", IniFile), "");

    EXPECT_FALSE(WriteIni("Window", "State", "2", Path("no/such/folder/x.ini")));
    EXPECT_FALSE(WriteIni("", "State", "2", IniFile));
    EXPECT_FALSE(WriteIni("Window", "", "2", IniFile));
    EXPECT_FALSE(WriteIni("Window", "State", "2", dir.path()));   // a folder

    if (geteuid() != 0) {   // the superuser writes anything
        Put("[Window]\nState=0\n", "locked.ini");
        QFile::setPermissions(Path("locked.ini"), QFile::ReadOwner);
        EXPECT_FALSE(WriteIni("Window", "State", "2", "locked.ini"));
        EXPECT_EQ(ReadIni("Window", "State", "locked.ini"), "0");
        QFile::setPermissions(Path("locked.ini"), QFile::ReadOwner | QFile::WriteOwner);
    }
}
