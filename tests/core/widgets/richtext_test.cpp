#include <gtest/gtest.h>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>

#include "core/widgets/RichText.h"

namespace {
struct TextRun {
    QString text;
    QString family;
    double size;
    bool bold, italic, underline;
    QColor colour;   // invalid: automatic
};

QList<QList<TextRun>> Runs(const QTextDocument& doc)
{
    QList<QList<TextRun>> out;
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        QList<TextRun> runs;
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat f = it.fragment().charFormat();
            const QStringList fam = f.fontFamilies().toStringList();
            runs.append({it.fragment().text(), fam.isEmpty() ? QString() : fam.first(), f.fontPointSize(),
                         f.fontWeight() >= QFont::Bold, f.fontItalic(), f.fontUnderline(),
                         f.hasProperty(QTextFormat::ForegroundBrush) ? f.foreground().color() : QColor()});
        }
        out.append(runs);
    }
    return out;
}
}  // namespace

// What we write reads back with the same paragraphs, text and formatting, whatever the
// characters: braces, backslashes, tabs, accents and characters beyond Latin-1.
TEST(RichText, RoundTripKeepsParagraphsAndFormatting)
{
    QTextDocument doc;
    doc.setDefaultFont(QFont(QStringLiteral("MS Sans Serif"), 10));
    QTextCursor c(&doc);
    QTextCharFormat plain;
    plain.setFontFamilies({QStringLiteral("MS Sans Serif")});
    plain.setFontPointSize(10);
    c.insertText(QStringLiteral("Ran 5 miles "), plain);
    QTextCharFormat bold = plain;
    bold.setFontWeight(QFont::Bold);
    bold.setForeground(QColor(255, 0, 0));
    c.insertText(QStringLiteral("hard"), bold);
    c.insertBlock();
    QTextCharFormat fancy;
    fancy.setFontFamilies({QStringLiteral("Arial")});
    fancy.setFontPointSize(14);
    fancy.setFontItalic(true);
    fancy.setFontUnderline(true);
    fancy.setForeground(QColor(0, 0, 255));
    c.insertText(QStringLiteral("{braces} back\\slash\ttab caf\u00e9 \u20ac \u4e2d"), fancy);
    c.insertBlock();   // an empty paragraph in the middle
    c.insertBlock();
    c.insertText(QStringLiteral("end"), plain);

    const QString rtf = RichText::Write(doc);
    ASSERT_TRUE(RichText::IsRichText(rtf));
    QTextDocument back;
    back.setDefaultFont(doc.defaultFont());
    ASSERT_TRUE(RichText::Read(rtf, back));
    EXPECT_EQ(back.toPlainText(), doc.toPlainText());

    const auto want = Runs(doc), got = Runs(back);
    ASSERT_EQ(got.size(), want.size());
    for (int b = 0; b < want.size(); ++b) {
        ASSERT_EQ(got[b].size(), want[b].size()) << "paragraph " << b;
        for (int r = 0; r < want[b].size(); ++r) {
            const TextRun& w = want[b][r];
            const TextRun& g = got[b][r];
            EXPECT_EQ(g.text, w.text);
            EXPECT_EQ(g.family, w.family);
            EXPECT_DOUBLE_EQ(g.size, w.size);
            EXPECT_EQ(g.bold, w.bold);
            EXPECT_EQ(g.italic, w.italic);
            EXPECT_EQ(g.underline, w.underline);
            EXPECT_EQ(g.colour.isValid() ? g.colour.rgb() : 0u, w.colour.isValid() ? w.colour.rgb() : 0u);
        }
    }
    // A second write of what was read is the same text.
    EXPECT_EQ(RichText::Write(back), rtf);

    QTextDocument empty;
    QTextDocument emptyBack;
    RichText::Read(RichText::Write(empty), emptyBack);
    EXPECT_TRUE(emptyBack.toPlainText().isEmpty());
}

// A log that is no rich text is shown whole as plain text.
TEST(RichText, TextThatIsNotRichTextIsKeptAsPlainText)
{
    const QStringList samples = {
        QStringLiteral("Easy run, legs tired"),
        QStringLiteral("{not rich text at all}"),
        QString(),
    };
    for (const QString& s : samples) {
        QTextDocument doc;
        EXPECT_FALSE(RichText::Read(s, doc)) << s.toStdString();
        EXPECT_EQ(doc.toPlainText(), s) << s.toStdString();
    }
    EXPECT_EQ(RichText::PlainText(QStringLiteral("just words")), QStringLiteral("just words"));
}

// Plain text out of rich text written by other programs: tables, generator and info groups,
// stylesheets, hex and Unicode escapes, and the fallback character after \u.
TEST(RichText, PlainTextOfForeignRichText)
{
    const QString wordpad = QStringLiteral(
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fnil MS Sans Serif;}}\r\n"
        "{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
        "{\\stylesheet{ Normal;}{\\s1 heading 1;}}{\\info{\\title Day}{\\author Coach}}\r\n"
        "{\\*\\generator Riched20 5.50.99.2050;}\\viewkind4\\uc1\\pard\\f0\\fs20 Ran 5 miles\\par\r\n"
        "Felt \\b great\\b0 , caf\\'e9 \\u8364? \\'93quoted\\'94\\par\r\n"
        "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}\\tab end\\par\r\n}\r\n");
    EXPECT_EQ(RichText::PlainText(wordpad),
              QStringLiteral("Ran 5 miles\nFelt great, caf\u00e9 \u20ac \u201cquoted\u201d\nlink\tend"));

    QTextDocument doc;
    ASSERT_TRUE(RichText::Read(wordpad, doc));
    EXPECT_EQ(doc.toPlainText(), RichText::PlainText(wordpad));
    // The colour and bold of the foreign text come through.
    const QTextBlock second = doc.begin().next();
    bool sawBold = false;
    for (auto it = second.begin(); !it.atEnd(); ++it)
        if (it.fragment().text() == QStringLiteral("great")) sawBold = it.fragment().charFormat().fontWeight() >= QFont::Bold;
    EXPECT_TRUE(sawBold);

    // Broken rich text still gives what could be read.
    EXPECT_EQ(RichText::PlainText(QStringLiteral("{\\rtf1 {\\b half")), QStringLiteral("half"));
}

// Rich text whose braces do not balance shows its words, with the formatting that holds, and
// never its markup: so an edit and a save cannot turn the markup into the log.
TEST(RichText, UnbalancedGroupsAreReadAsWellAsTheyCanBe)
{
    auto noMarkup = [](const QString& shown) {
        return !shown.contains('\\') && !shown.contains('{') && !shown.contains('}') && !shown.contains(QLatin1String("rtf"));
    };
    struct Case {
        QString text;
        QString plain;
    };
    const QList<Case> cases = {
        // A group never closed, and the document's own brace missing.
        {QStringLiteral("{\\rtf1\\ansi {\\b unfinished bold"), QStringLiteral("unfinished bold")},
        // Text after the document's last brace is read on.
        {QStringLiteral("{\\rtf1 text} and more after the end"), QStringLiteral("text and more after the end")},
        // A closing brace too many, in the middle and at the end.
        {QStringLiteral("{\\rtf1 one}} two\\par three}"), QStringLiteral("one two\nthree")},
        {QStringLiteral("{\\rtf1 }} too many"), QStringLiteral(" too many")},
        // The font table's closing brace missing: the body is not taken for font names.
        {QStringLiteral("{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Arial;}\n\\pard \\plain\\f0\\fs20 Ran 5 miles\\par\n"
                        "\\plain\\f0\\fs20\\b hard\\par\n}\n"),
         QStringLiteral("Ran 5 miles\nhard")},
        // A colour table and a skipped destination left open.
        {QStringLiteral("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;\\pard\\cf1 red words\\par}"), QStringLiteral("red words")},
        {QStringLiteral("{\\rtf1{\\*\\generator Writer 1.0;\\pard Notes\\par}"), QStringLiteral("Notes")},
    };
    for (const Case& c : cases) {
        const std::string name = c.text.toStdString();
        EXPECT_EQ(RichText::PlainText(c.text), c.plain) << name;
        QTextDocument doc;
        EXPECT_TRUE(RichText::Read(c.text, doc)) << name;
        EXPECT_EQ(doc.toPlainText(), c.plain) << name;
        EXPECT_TRUE(noMarkup(doc.toPlainText())) << name;
        // What is saved after reading holds the words once and reads back the same.
        QTextDocument again;
        ASSERT_TRUE(RichText::Read(RichText::Write(doc), again)) << name;
        EXPECT_EQ(again.toPlainText(), c.plain) << name;
    }

    // The formatting that holds comes through: bold in an unclosed group, colour of a table
    // whose brace is missing.
    QTextDocument doc;
    RichText::Read(QStringLiteral("{\\rtf1\\ansi plain {\\b bold"), doc);
    const auto runs = Runs(doc);
    ASSERT_EQ(runs.size(), 1);
    ASSERT_EQ(runs[0].size(), 2);
    EXPECT_FALSE(runs[0][0].bold);
    EXPECT_EQ(runs[0][1].text, QStringLiteral("bold"));
    EXPECT_TRUE(runs[0][1].bold);
    QTextDocument red;
    RichText::Read(QStringLiteral("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;\\pard\\cf1 red words\\par}"), red);
    const auto redRuns = Runs(red);
    ASSERT_FALSE(redRuns.isEmpty());
    ASSERT_FALSE(redRuns[0].isEmpty());
    EXPECT_EQ(redRuns[0][0].colour, QColor(255, 0, 0));
}
