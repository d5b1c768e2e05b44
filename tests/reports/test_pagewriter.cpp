// The page writer: escaping, file names, the file it writes and replaces, the failure it
// reports, and the table idiom of the daily pages.
#include "fixtures/fixture.h"

#include "core/pagewriter.h"
#include "core/shared.h"
#include "core/store/storeerror.h"

#include <QFile>

namespace {

class PageWriterTest : public StoreTest {
protected:
    QString Read(const QString& name)
    {
        QFile f(FilePath(name));
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromUtf8(f.readAll());
    }
};

}  // namespace

TEST(PageText, EscapingAndFileNames)
{
    // A name that would open a tag or an entity shows as written.
    EXPECT_EQ(page::Escape("Curl <EZ> & Press"), "Curl &lt;EZ&gt; &amp; Press");
    EXPECT_EQ(page::Escape("Say \"hi\""), "Say &quot;hi&quot;");
    EXPECT_EQ(page::Escape("Plain"), "Plain");
    // Every slash and backslash goes; ".htm" is added once.
    EXPECT_EQ(page::FileName("Run/Walk\\Jog"), "RunWalkJog.htm");
    EXPECT_EQ(page::FileName("a//b\\\\c"), "abc.htm");
    EXPECT_EQ(page::FileName("WeighIn.htm"), "WeighIn.htm");
    EXPECT_EQ(page::FileName("Legs & Core"), "Legs & Core.htm");
}

TEST(PageText, TableIdiom)
{
    namespace t = page::table;
    EXPECT_EQ(t::Open(), "<table border=1 CELLSPACING=0 CELLPADDING=0 width=100% align=center >");
    EXPECT_EQ(t::HeadingRow({"Food", "Cals"}, 1),
              "<tr bgcolor=\"#CCCCCC\"><td><font size=\"1\">Food</font></td>"
              "<td><center><font size=\"1\">Cals</font></center></td></tr>");
    // An empty value keeps its cell's border with a blank; names are escaped.
    EXPECT_EQ(t::Row({"Mac & Cheese", "", "12"}, 2),
              "<tr><td align=left width=\"120\"><font size=\"1\">Mac &amp; Cheese</font></td>"
              "<td align=left width=\"120\"><font size=\"1\">&nbsp;</font></td>"
              "<td align=right width=\"40\"><font size=\"1\">12</font></td></tr>");
    EXPECT_EQ(t::BoldRow({"", "3.5"}, 1),
              "<tr><td align=left width=\"120\"><font size=\"1\">&nbsp;</font></td>"
              "<td align=right width=\"40\"><font size=\"1\"><b>3.5</b></font></td></tr>");
}

// A page replaces its file, becomes ReportFile, and ends with the closing tags; a page that
// cannot be written fails with error 75 and its path.
TEST_F(PageWriterTest, WritesReplacesAndFails)
{
    {
        page::PageWriter out("first.htm");
        out.Lines({"<html>", "one", "two", "three"});
        out.Close();
    }
    {
        page::PageWriter out("first.htm");
        EXPECT_EQ(ReportFile, "first.htm");
        out.Line("<html>");
        out.Break();
        out.Line("é");
        out.Close();
    }
    EXPECT_EQ(Read("first.htm"), QString("<html>\n<WxPrinter PageBreak>\né\n</body></html>\n"));

    ReportFile = "before.htm";
    try {
        page::PageWriter out("no such folder/page.htm");
        FAIL() << "a page in a missing folder was opened";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.Number(), 75);
        EXPECT_TRUE(e.Description().contains("page.htm"));
    }
    EXPECT_EQ(ReportFile, "before.htm");
}
