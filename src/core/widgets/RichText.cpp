#include "core/widgets/RichText.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <functional>

namespace {

// Windows-1252 for the bytes 0x80..0x9F that Latin-1 leaves as control codes.
const char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar FromCp1252(int byte)
{
    if (byte >= 0x80 && byte < 0xA0) return QChar(kCp1252High[byte - 0x80]);
    return QChar(byte);
}

// Character state of a group.
struct RunState {
    int font = -1;         // index into the font table; -1 = default font
    int halfPoints = 24;   // \fs
    bool bold = false, italic = false, underline = false;
    int colour = 0;        // index into the colour table; 0 = automatic
    bool skip = false;     // inside a destination whose text is not content
    int uc = 1;            // characters to skip after \uN
    int table = 0;         // 1 = font table, 2 = colour table
};

struct Sink {
    std::function<void(const QString&, const RunState&)> text;
    std::function<void()> paragraph;
};

// Destinations whose content is not the document's text.
const QSet<QString>& SkippedDestinations()
{
    static const QSet<QString> s = {
        QStringLiteral("stylesheet"), QStringLiteral("info"), QStringLiteral("pict"), QStringLiteral("header"),
        QStringLiteral("footer"), QStringLiteral("headerl"), QStringLiteral("headerr"), QStringLiteral("headerf"),
        QStringLiteral("footerl"), QStringLiteral("footerr"), QStringLiteral("footerf"), QStringLiteral("object"),
        QStringLiteral("fldinst"), QStringLiteral("listtable"), QStringLiteral("listoverridetable"),
        QStringLiteral("rsidtbl"), QStringLiteral("generator"), QStringLiteral("xmlnstbl"), QStringLiteral("themedata"),
        QStringLiteral("colorschememapping"), QStringLiteral("latentstyles"), QStringLiteral("datastore"),
        QStringLiteral("pgdsctbl"), QStringLiteral("filetbl"), QStringLiteral("revtbl"), QStringLiteral("pntext"),
        QStringLiteral("pntxta"), QStringLiteral("pntxtb"), QStringLiteral("bkmkstart"), QStringLiteral("bkmkend"),
        QStringLiteral("footnote"), QStringLiteral("annotation"), QStringLiteral("atnid"), QStringLiteral("atnauthor"),
        QStringLiteral("template"), QStringLiteral("userprops"), QStringLiteral("mmathPr"), QStringLiteral("nonshppict")};
    return s;
}

class Parser {
public:
    // A lenient parser reads a text whose groups do not balance as well as it can: a closing
    // brace too many is passed over, a group left open ends with the text, text after the
    // document's last brace is read on, and a body word ends a font or colour table or a
    // skipped destination that was never closed.
    Parser(const QString& text, const Sink& sink, bool lenient = false) : m_s(text), m_sink(sink), m_lenient(lenient) {}

    QStringList fonts;
    QList<QColor> colours;   // [0] is automatic (invalid)
    int defaultFont = 0;

    // False when the text is not well-formed rich text.
    bool Run()
    {
        colours.append(QColor());
        int depth = 0;
        bool started = false;
        const int n = int(m_s.size());
        int i = 0;
        while (i < n) {
            const QChar c = m_s[i];
            if (c == '{') {
                m_stack.append(m_state);
                ++depth;
                started = true;
                m_groupStart = true;
                ++i;
                continue;
            }
            if (c == '}') {
                FlushFontName();
                ++i;
                m_groupStart = false;
                if (m_stack.isEmpty()) {
                    if (!m_lenient) return false;
                    continue;
                }
                m_state = m_stack.takeLast();
                --depth;
                if (depth == 0 && !m_lenient) {
                    // Only white space may follow the document's last brace.
                    for (; i < n; ++i)
                        if (!m_s[i].isSpace() && m_s[i] != QChar(0)) return false;
                    return true;
                }
                continue;
            }
            if (!started) {
                if (c.isSpace()) { ++i; continue; }
                return false;
            }
            if (c == '\\') {
                i = ControlWord(i);
                m_groupStart = false;
                continue;
            }
            m_groupStart = false;
            if (c == '\r' || c == '\n') { ++i; continue; }
            Text(QString(c));
            ++i;
        }
        return m_lenient;   // unbalanced when not lenient: the last group never closed
    }

private:
    int ControlWord(int i)
    {
        const int n = int(m_s.size());
        ++i;   // past the backslash
        if (i >= n) return i;
        const QChar c = m_s[i];
        if (!c.isLetter()) {
            // Control symbols.
            if (c == '\\' || c == '{' || c == '}') Text(QString(c));
            else if (c == '~') Text(QString(QChar(0xA0)));
            else if (c == '_') Text(QString(QChar(0x2011)));
            else if (c == '*') m_state.skip = m_state.skip || m_groupStart;
            else if (c == '\'') {
                if (i + 2 < n) {
                    bool ok = false;
                    const int byte = m_s.mid(i + 1, 2).toInt(&ok, 16);
                    if (ok) Text(QString(FromCp1252(byte)));
                    return i + 3;
                }
            } else if (c == '\n' || c == '\r') Paragraph();
            return i + 1;
        }
        int j = i;
        while (j < n && m_s[j].isLetter() && j - i < 32) ++j;
        const QString word = m_s.mid(i, j - i);
        bool hasParam = false;
        int param = 0;
        int k = j;
        if (k < n && (m_s[k] == '-' || m_s[k].isDigit())) {
            int start = k;
            if (m_s[k] == '-') ++k;
            while (k < n && m_s[k].isDigit() && k - start < 11) ++k;
            param = m_s.mid(start, k - start).toInt(&hasParam);
        }
        if (k < n && m_s[k] == ' ') ++k;   // the delimiting space belongs to the word
        Apply(word, hasParam, param);
        if (word == QLatin1String("u") && hasParam) {
            // Skip the fallback characters that follow a Unicode character.
            for (int skip = m_state.uc; skip > 0 && k < n; --skip) {
                if (m_s[k] == '\\' && k + 1 < n && m_s[k + 1] == '\'') k += 4;
                else if (m_s[k] == '{' || m_s[k] == '}') break;
                else ++k;
            }
        }
        return k;
    }

    void Apply(const QString& w, bool hasParam, int p)
    {
        if (m_lenient && (m_state.table || m_state.skip)
            && (w == QLatin1String("pard") || w == QLatin1String("par") || w == QLatin1String("plain"))) {
            // A table or destination whose closing brace is missing: the body has begun.
            FlushFontName();
            m_state.table = 0;
            m_state.skip = false;
        }
        if (m_groupStart && SkippedDestinations().contains(w)) { m_state.skip = true; return; }
        if (w == QLatin1String("fonttbl")) { m_state.table = 1; return; }
        if (w == QLatin1String("colortbl")) { m_state.table = 2; m_colour = QColor(0, 0, 0); m_colourSet = false; return; }
        if (m_state.table == 1) {
            if (w == QLatin1String("f") && hasParam) { FlushFontName(); m_fontIndex = p; m_fontName.clear(); }
            return;
        }
        if (m_state.table == 2) {
            if (w == QLatin1String("red")) { m_colour.setRed(qBound(0, p, 255)); m_colourSet = true; }
            else if (w == QLatin1String("green")) { m_colour.setGreen(qBound(0, p, 255)); m_colourSet = true; }
            else if (w == QLatin1String("blue")) { m_colour.setBlue(qBound(0, p, 255)); m_colourSet = true; }
            return;
        }
        if (w == QLatin1String("deff")) defaultFont = p;
        else if (w == QLatin1String("f")) m_state.font = p;
        else if (w == QLatin1String("fs")) m_state.halfPoints = hasParam && p > 0 ? p : 24;
        else if (w == QLatin1String("b")) m_state.bold = !hasParam || p != 0;
        else if (w == QLatin1String("i")) m_state.italic = !hasParam || p != 0;
        else if (w == QLatin1String("ul")) m_state.underline = !hasParam || p != 0;
        else if (w == QLatin1String("ulnone")) m_state.underline = false;
        else if (w == QLatin1String("cf")) m_state.colour = p;
        else if (w == QLatin1String("uc")) m_state.uc = qMax(0, p);
        else if (w == QLatin1String("plain")) {
            m_state.font = -1; m_state.halfPoints = 24; m_state.bold = m_state.italic = m_state.underline = false;
            m_state.colour = 0;
        } else if (w == QLatin1String("par") || w == QLatin1String("sect") || w == QLatin1String("page")
                   || w == QLatin1String("line")) Paragraph();
        else if (w == QLatin1String("tab")) Text(QStringLiteral("\t"));
        else if (w == QLatin1String("u") && hasParam) Text(QString(QChar(char16_t(p < 0 ? p + 65536 : p))));
        else if (w == QLatin1String("lquote")) Text(QString(QChar(0x2018)));
        else if (w == QLatin1String("rquote")) Text(QString(QChar(0x2019)));
        else if (w == QLatin1String("ldblquote")) Text(QString(QChar(0x201C)));
        else if (w == QLatin1String("rdblquote")) Text(QString(QChar(0x201D)));
        else if (w == QLatin1String("bullet")) Text(QString(QChar(0x2022)));
        else if (w == QLatin1String("endash")) Text(QString(QChar(0x2013)));
        else if (w == QLatin1String("emdash")) Text(QString(QChar(0x2014)));
    }

    void Text(const QString& t)
    {
        if (m_state.table == 1) {
            m_fontName += t;
            if (m_fontName.endsWith(';')) FlushFontName();
            return;
        }
        if (m_state.table == 2) {
            if (t == QLatin1String(";")) {
                if (!m_firstColourDone) {
                    // The first entry is the automatic colour when it is empty.
                    if (m_colourSet) colours[0] = m_colour;
                } else {
                    colours.append(m_colour);
                }
                m_firstColourDone = true;
                m_colour = QColor(0, 0, 0);
                m_colourSet = false;
            }
            return;
        }
        if (m_state.skip) return;
        if (m_sink.text) m_sink.text(t, m_state);
    }

    void Paragraph()
    {
        if (m_state.skip || m_state.table) return;
        if (m_sink.paragraph) m_sink.paragraph();
    }

    void FlushFontName()
    {
        if (m_fontIndex < 0) return;
        QString name = m_fontName.trimmed();
        if (name.endsWith(';')) name.chop(1);
        while (fonts.size() <= m_fontIndex && fonts.size() < 4096) fonts.append(QString());
        if (m_fontIndex < fonts.size()) fonts[m_fontIndex] = name.trimmed();
        m_fontIndex = -1;
        m_fontName.clear();
    }

    const QString& m_s;
    const Sink& m_sink;
    bool m_lenient = false;
    RunState m_state;
    QList<RunState> m_stack;
    bool m_groupStart = false;
    int m_fontIndex = -1;
    QString m_fontName;
    QColor m_colour;
    bool m_colourSet = false;
    bool m_firstColourDone = false;
};

QString EscapeText(const QString& text)
{
    QString out;
    out.reserve(text.size() + 8);
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if (u == '\\' || u == '{' || u == '}') { out += '\\'; out += c; }
        else if (u == '\t') out += QLatin1String("\\tab ");
        else if (u == 0x2028 || u == '\n') out += QLatin1String("\\line ");
        else if (u == 0xA0) out += QLatin1String("\\~");
        else if (u < 0x80) out += c;
        else out += QStringLiteral("\\u%1?").arg(int(qint16(u)));
    }
    return out;
}

// Whether the groups of a rich text balance, with nothing but white space after the last.
bool WellFormed(const QString& text)
{
    Sink none;
    Parser check(text, none);
    return check.Run();
}

}  // namespace

bool RichText::IsRichText(const QString& text)
{
    int i = 0;
    while (i < text.size() && text[i].isSpace()) ++i;
    return text.mid(i, 5) == QLatin1String("{\\rtf");
}

QString RichText::Write(const QTextDocument& doc)
{
    const QFont base = doc.defaultFont();
    QStringList fonts;
    QList<QColor> colours;
    auto fontIndex = [&](const QString& family) {
        int i = int(fonts.indexOf(family));
        if (i < 0) { fonts.append(family); i = int(fonts.size()) - 1; }
        return i;
    };
    auto colourIndex = [&](const QColor& c) {
        for (int i = 0; i < colours.size(); ++i)
            if (colours[i].rgb() == c.rgb()) return i + 1;
        colours.append(c);
        return int(colours.size());
    };
    fontIndex(base.family());

    QString body;
    bool firstBlock = true;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        if (!firstBlock) body += QLatin1String("\\par\n");
        firstBlock = false;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment frag = it.fragment();
            if (!frag.isValid()) continue;
            const QTextCharFormat f = frag.charFormat();
            const QStringList fams = f.fontFamilies().toStringList();
            const QString family = fams.isEmpty() ? base.family() : fams.first();
            double pt = f.fontPointSize();
            if (pt <= 0) pt = base.pointSizeF() > 0 ? base.pointSizeF() : 8.0;
            body += QStringLiteral("\\plain\\f%1\\fs%2").arg(fontIndex(family)).arg(qRound(pt * 2));
            if (f.fontWeight() >= QFont::Bold) body += QLatin1String("\\b");
            if (f.fontItalic()) body += QLatin1String("\\i");
            if (f.fontUnderline()) body += QLatin1String("\\ul");
            if (f.hasProperty(QTextFormat::ForegroundBrush) && f.foreground().style() != Qt::NoBrush)
                body += QStringLiteral("\\cf%1").arg(colourIndex(f.foreground().color()));
            body += ' ';
            body += EscapeText(frag.text());
        }
    }

    QString out = QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl");
    for (int i = 0; i < fonts.size(); ++i)
        out += QStringLiteral("{\\f%1\\fnil %2;}").arg(i).arg(EscapeText(fonts[i]));
    out += '}';
    if (!colours.isEmpty()) {
        out += QLatin1String("{\\colortbl ;");
        for (const QColor& c : colours)
            out += QStringLiteral("\\red%1\\green%2\\blue%3;").arg(c.red()).arg(c.green()).arg(c.blue());
        out += '}';
    }
    out += QLatin1String("\n\\pard ");
    out += body;
    out += QLatin1String("\\par\n}\n");
    return out;
}

bool RichText::Read(const QString& text, QTextDocument& doc)
{
    doc.clear();
    if (!IsRichText(text)) {
        doc.setPlainText(text);
        return false;
    }
    const bool lenient = !WellFormed(text);
    QTextCursor cursor(&doc);
    const QFont base = doc.defaultFont();
    Parser* self = nullptr;
    bool pendingParagraph = false;
    bool trailingPar = false;
    Sink sink;
    sink.text = [&](const QString& t, const RunState& st) {
        if (pendingParagraph) { cursor.insertBlock(); pendingParagraph = false; }
        trailingPar = false;
        QTextCharFormat f;
        const int fi = st.font >= 0 ? st.font : self->defaultFont;
        const QString family = fi >= 0 && fi < self->fonts.size() && !self->fonts[fi].isEmpty() ? self->fonts[fi]
                                                                                                   : base.family();
        f.setFontFamilies(QStringList{family});
        f.setFontPointSize(st.halfPoints / 2.0);
        f.setFontWeight(st.bold ? QFont::Bold : QFont::Normal);
        f.setFontItalic(st.italic);
        f.setFontUnderline(st.underline);
        if (st.colour > 0 && st.colour < self->colours.size() && self->colours[st.colour].isValid())
            f.setForeground(self->colours[st.colour]);
        cursor.insertText(t, f);
    };
    sink.paragraph = [&] {
        if (pendingParagraph) cursor.insertBlock();
        pendingParagraph = true;
        trailingPar = true;
    };
    Parser parser(text, sink, lenient);
    self = &parser;
    parser.Run();
    // The paragraph mark that ends the last paragraph opens no new one.
    Q_UNUSED(trailingPar);
    return true;
}

QString RichText::PlainText(const QString& text)
{
    if (!IsRichText(text)) return text;
    QString out;
    bool pending = false;
    Sink sink;
    sink.text = [&](const QString& t, const RunState&) {
        if (pending) { out += '\n'; pending = false; }
        out += t;
    };
    sink.paragraph = [&] {
        if (pending) out += '\n';
        pending = true;
    };
    Parser parser(text, sink, !WellFormed(text));
    parser.Run();   // a broken text still gives what could be read
    return out;
}
