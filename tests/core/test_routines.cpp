#include <gtest/gtest.h>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/routines.h"
#include "core/shared.h"
#include "fixtures/fixture.h"

TEST(Routines, TabFields)
{
    EXPECT_EQ(GetTabField("a", 1), "a");
    EXPECT_EQ(GetTabField("a\tb", 2), "b");
    EXPECT_EQ(GetTabField("a", 2), "");
    EXPECT_EQ(GetTabField("a\tb", 0), "");
    EXPECT_EQ(GetTabField("a\tb", -1), "");
    EXPECT_EQ(GetTabField("  a  ", 1), "a");
    EXPECT_EQ(GetTabField(" x \t y \t z ", 3), "z");
    EXPECT_EQ(GetTabField("a\t\tc", 2), "");      // an empty field between two tabs
    EXPECT_EQ(GetTabField("a\t\tc", 3), "c");
    EXPECT_EQ(GetTabField("a\tb\t", 3), "");      // after a trailing tab
    EXPECT_EQ(GetTabField("a\tb\t", 4), "");
    EXPECT_EQ(GetTabField("", 1), "");

    EXPECT_EQ(GetField("1,2,3", 2, ","), "2");
    EXPECT_EQ(GetField("1,2,3", 4, ","), "");
    EXPECT_EQ(GetField("one", 1, "~"), "one");
    EXPECT_EQ(GetField("a--b--c", 3, "--"), "c");
    // Only blanks are trimmed: a field that holds tab fields keeps its empty first one.
    const QString line = GetField("<!--RecipeList~\tcup\tflour\t~2\tlb\tbeef\t~", 2, "~");
    EXPECT_EQ(line, "\tcup\tflour\t");
    EXPECT_EQ(GetTabField(line, 1), "");
    EXPECT_EQ(GetTabField(line, 2), "cup");
    EXPECT_EQ(GetTabField(line, 3), "flour");
}

TEST(Routines, NextToken)
{
    QString text = "a,b,,c";
    EXPECT_EQ(NextToken(text, ","), "a");
    EXPECT_EQ(text, "b,,c");
    EXPECT_EQ(NextToken(text, ","), "b");
    EXPECT_EQ(NextToken(text, ","), "");
    EXPECT_EQ(text, "c");
    EXPECT_EQ(NextToken(text, ","), "c");   // no delimiter left: all of it
    EXPECT_EQ(text, "");
    EXPECT_EQ(NextToken(text, ","), "");

    QString multi = "key::value::rest";
    EXPECT_EQ(NextToken(multi, "::"), "key");
    EXPECT_EQ(multi, "value::rest");

    QString blanks = " a | b ";
    EXPECT_EQ(NextToken(blanks, "|"), " a ");   // nothing trimmed
    EXPECT_EQ(blanks, " b ");

    QString noDelimiter = "whole";
    EXPECT_EQ(NextToken(noDelimiter, ""), "whole");
    EXPECT_EQ(noDelimiter, "");
}

TEST(Routines, TimeToHoursDividesSecondsBy360)
{
    EXPECT_DOUBLE_EQ(TimeToHours("01:30"), 1.5);
    EXPECT_DOUBLE_EQ(TimeToHours("00:00:36"), 0.1);
    EXPECT_DOUBLE_EQ(TimeToHours("01:30:36"), 1.6);
    EXPECT_DOUBLE_EQ(TimeToHours("00:45:00"), 0.75);
    EXPECT_DOUBLE_EQ(TimeToHours("02:20"), 2.33);        // rounded to 2 places
    EXPECT_DOUBLE_EQ(TimeToHours("00:00:09"), 0.02);     // 0.025 goes to the even 0.02
    EXPECT_DOUBLE_EQ(TimeToHours("00:00:27"), 0.08);     // 0.075 goes to the even 0.08
    EXPECT_DOUBLE_EQ(TimeToHours("10:00:59"), 10.16);
    EXPECT_DOUBLE_EQ(TimeToHours(""), 0);
    EXPECT_DOUBLE_EQ(TimeToHours("ab:cd"), 0);
    EXPECT_DOUBLE_EQ(TimeToHours("3"), 3);
}

TEST(Routines, CommentTags)
{
    SelectedItem = "<html><body>Bench day\n"
                   "<!--name~Bench Day~-->\n"
                   "<!--exercise~Bench Press~~Fly~-->\n"
                   "<!--beg~Y~-->\n"
                   "</body></html>";
    EXPECT_EQ(GetCommentTag("name", 2), "Bench Day");
    EXPECT_EQ(GetCommentTag("name", 1), "<!--name");
    EXPECT_EQ(GetCommentTag("exercise", 2), "Bench Press");
    EXPECT_EQ(GetCommentTag("exercise", 3), "");        // two "~" in a row: an empty value
    EXPECT_EQ(GetCommentTag("exercise", 4), "Fly");
    EXPECT_EQ(GetCommentTag("exercise", 5), "");
    EXPECT_EQ(GetCommentTag("beg", 2), "Y");
    EXPECT_EQ(GetCommentTag("adv", 2), "");              // a tag that is not on the page
    EXPECT_EQ(GetCommentTag("Name", 2), "");             // names are matched as written
    SelectedItem = "<!--name~cut off";
    EXPECT_EQ(GetCommentTag("name", 2), "cut off");
    SelectedItem.clear();
    EXPECT_EQ(GetCommentTag("name", 2), "");
}

TEST(Routines, FilesDatesAndRegionalKeys)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString saved = ProgramFolder();
    SetProgramFolder(dir.path());
    EXPECT_EQ(ProgramFolder(), dir.path());
    EXPECT_EQ(ProgramFile("orvantis.ini"), QDir(dir.path()).filePath("orvantis.ini"));
    EXPECT_EQ(ProgramFile("Images\\bench.gif"), QDir(dir.path()).filePath("Images/bench.gif"));
    EXPECT_EQ(ProgramFile("/etc/hosts"), "/etc/hosts");

    QFile f(ProgramFile("here.txt"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_TRUE(FileExists(ProgramFile("here.txt")));
    EXPECT_FALSE(FileExists(ProgramFile("gone.txt")));
    EXPECT_FALSE(FileExists(dir.path()));                 // a folder is no file
    EXPECT_FALSE(FileExists(""));
    EXPECT_TRUE(FileExists(ProgramFile("*.txt")));
    EXPECT_FALSE(FileExists(ProgramFile("*.htm")));
    SetProgramFolder(saved);

    EXPECT_EQ(SqlDate(QDate(2026, 3, 4)), "2026-03-04");
    EXPECT_EQ(SqlDate(QDate()), "");

    EXPECT_EQ(GetProfile("sDecimal"), ".");
    EXPECT_EQ(GetProfile("sdecimal"), ".");
    EXPECT_EQ(GetProfile("sThousand"), ",");
    EXPECT_EQ(GetProfile("sCurrency"), "$");
    EXPECT_EQ(GetProfile("sShortDate"), "M/d/yyyy");
    EXPECT_EQ(GetProfile("sLongDate"), "dddd, MMMM d, yyyy");
    EXPECT_EQ(GetProfile("iMeasure"), "1");
    EXPECT_EQ(GetProfile("sList"), ",");
    EXPECT_EQ(GetProfile("sDate"), "/");
    EXPECT_EQ(GetProfile("sNoSuchKey"), "");
}

// The unit rows of these tests are their own, whatever the delivered `units` holds.
class UnitsTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        LibraryConn.Execute("delete * from units where name like 'zz%'");
        LibraryConn.Execute("insert into units (name, type, unit_type, Conversion) values ('zzMiles', 'distance', 'distance', 1)");
        LibraryConn.Execute("insert into units (name, type, unit_type, Conversion) values ('zzKm', 'distance', 'distance', 0.6288)");
        LibraryConn.Execute("insert into units (name, type, unit_type, Conversion) values ('zzYards', 'distance', 'distance', 0.000568)");
        LibraryConn.Execute("insert into units (name, type, unit_type, Conversion) values ('zzCup', 'volume', 'volume', 8)");
        LibraryConn.Execute("insert into units (name, type, unit_type) values ('zzPinch', 'volume', 'volume')");
        LibraryConn.Execute("insert into units (name, type, unit_type, Conversion) values ('zzBroken', 'distance', 'distance', 0)");
    }
};

TEST_F(UnitsTest, ConversionFactors)
{
    EXPECT_DOUBLE_EQ(GetConversion("zzCup"), 8);
    EXPECT_DOUBLE_EQ(GetConversion("ZZCUP"), 8);           // names without regard to case
    EXPECT_DOUBLE_EQ(GetConversion("zzNowhere"), 1.0);     // unknown: 1.0
    EXPECT_DOUBLE_EQ(GetConversion("zzPinch"), 1.0);       // Null factor: 1.0
    EXPECT_DOUBLE_EQ(GetConversion("O'Brien's cup"), 1.0); // a quote is no harm
    EXPECT_FALSE(LibraryRS2.IsOpen());
    EXPECT_EQ(SqlText, "select conversion from units where name='O''Brien''s cup'");
}

TEST_F(UnitsTest, SpeedConversions)
{
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzMiles", "mph"), 10);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzMiles", "kph"), 10 / 0.6288);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzKm", "kph"), 10);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzKm", "zzMiles"), 6.288);
    EXPECT_DOUBLE_EQ(ConvertSpeed(1760, "zzYards", "zzMiles"), 0.000568 * 1760);
    EXPECT_DOUBLE_EQ(ConvertSpeed(0, "zzMiles", "kph"), 0);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "", "kph"), 0);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzMiles", ""), 0);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzNowhere", "mph"), 0);   // unknown from: 0
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzMiles", "zzNowhere"), 0);
    EXPECT_DOUBLE_EQ(ConvertSpeed(10, "zzMiles", "zzBroken"), 0); // no division by a zero factor
    EXPECT_FALSE(LibraryRS.IsOpen());
}

TEST(Routines, WindowsComeBackOntoTheNearestScreen)
{
    const QList<QRect> screens = {QRect(0, 0, 1280, 720), QRect(1280, 0, 1920, 1080)};
    // On a screen, also partly: left where it is.
    EXPECT_EQ(OnScreenRect(QRect(100, 100, 600, 400), screens), QRect(100, 100, 600, 400));
    EXPECT_EQ(OnScreenRect(QRect(-300, 50, 600, 400), screens), QRect(-300, 50, 600, 400));
    EXPECT_EQ(OnScreenRect(QRect(1000, 200, 600, 400), screens), QRect(1000, 200, 600, 400));
    // Beyond the right of the second screen: onto it, against its right edge.
    EXPECT_EQ(OnScreenRect(QRect(900000, 100, 600, 400), screens), QRect(2600, 100, 600, 400));
    // Far above the first: onto its top.
    EXPECT_EQ(OnScreenRect(QRect(200, -900000, 600, 400), screens), QRect(200, 0, 600, 400));
    // Only the lower part on view, its title bar above the screen: moved down.
    EXPECT_EQ(OnScreenRect(QRect(200, -380, 600, 400), screens), QRect(200, 0, 600, 400));
    // Larger than the screen it comes back to: no larger than that screen.
    EXPECT_EQ(OnScreenRect(QRect(-900000, -900000, 5000, 5000), screens), QRect(0, 0, 1280, 720));
    // Nothing to go by: as it was.
    EXPECT_EQ(OnScreenRect(QRect(900000, 0, 10, 10), {}), QRect(900000, 0, 10, 10));
}
