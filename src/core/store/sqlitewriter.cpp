#include "core/store/sqlwriter.h"

#include <QHash>
#include <sqlite3.h>

namespace sqldialect {
namespace {

// The dialect's functions under the names SQLite knows them by; those not listed keep their
// name (built into SQLite or registered by sqlfunctions.cpp under it).
const QHash<QString, QString>& FunctionNames()
{
    static const QHash<QString, QString> map = [] {
        QHash<QString, QString> h;
        auto add = [&h](const char* from, const char* to) { h.insert(QString::fromLatin1(from), QString::fromLatin1(to)); };
        add("isnull", "jet_isnull");
        add("len", "length");
        add("mid", "substr");
        add("ucase", "upper");
        add("lcase", "lower");
        add("instr", "jet_instr");
        add("left", "jet_left");
        add("right", "jet_right");
        add("round", "jet_round");
        add("int", "jet_int");
        add("fix", "jet_fix");
        add("sgn", "sign");
        add("sqr", "sqrt");
        add("chr", "char");
        add("asc", "unicode");
        add("ccur", "cdbl");
        add("cvdate", "cdate");
        add("first", "jet_first");
        add("last", "jet_last");
        add("format", "jet_format");
        add("str", "cstr");
        return h;
    }();
    return map;
}

QString FunctionName(QString name)
{
    if (name.endsWith(u'$')) name.chop(1);   // left$, mid$ ...
    auto it = FunctionNames().constFind(name);
    return it == FunctionNames().constEnd() ? name : *it;
}

// Now(), Date() and Time() of the dialect are local.
const char* ClockCall(const QString& name)
{
    if (name == u"now") return "datetime('now','localtime')";
    if (name == u"date") return "date('now','localtime')";
    if (name == u"time") return "time('now','localtime')";
    return nullptr;
}

void Literal(QString& out, const QString& text)
{
    out += u'\'';
    for (QChar c : text) {
        if (c == u'\'') out += u'\'';
        out += c;
    }
    out += u'\'';
}

class Emitter {
public:
    explicit Emitter(const SqliteWriter& w) : m_w(w) {}

    QString out;

    void Space()
    {
        if (out.isEmpty()) return;
        QChar last = out.back();
        if (last != u'(' && last != u'.' && last != u' ') out += u' ';
    }
    void Word(const QString& text) { Space(); out += text; }
    void Word(const char* text) { Space(); out += QLatin1String(text); }

    void Seq(const std::vector<Node>& seq, size_t from = 0, const QString* rowIdAt = nullptr, size_t rowIdIndex = 0)
    {
        for (size_t i = from; i < seq.size(); ++i) {
            if (rowIdAt && i == rowIdIndex) out += *rowIdAt;
            const Node& n = seq[i];
            switch (n.kind) {
            case Node::Keyword: Word(n.text); break;
            case Node::Identifier: Word(m_w.Name(n.text)); break;
            case Node::Function: {
                const bool noArgs = i + 1 < seq.size() && seq[i + 1].kind == Node::Group && seq[i + 1].children.empty();
                if (const char* clock = noArgs ? ClockCall(n.text) : nullptr) {
                    Word(clock);
                    ++i;
                    break;
                }
                Word(FunctionName(n.text));
                if (i + 1 < seq.size() && seq[i + 1].kind == Node::Group) {
                    ++i;
                    out += u'(';
                    Seq(seq[i].children);
                    out += u')';
                }
                break;
            }
            case Node::String: Space(); Literal(out, n.text); break;
            case Node::Number: Word(n.text); break;
            case Node::Date: Space(); Literal(out, n.text); break;
            case Node::Boolean: Word(n.flag ? "-1" : "0"); break;
            case Node::Operator:
                // "/" divides as real numbers: the left side, whatever it is, is made real first
                // ("*" and "/" bind alike, from the left).
                if (n.text == u"/") Word("* 1.0 /");
                else Word(n.text);
                break;
            case Node::Comma: out += u','; break;
            case Node::Dot:
                if (out.endsWith(u' ')) out.chop(1);
                out += u'.';
                break;
            case Node::Param: Word("?"); break;
            case Node::Group:
                Space();
                out += u'(';
                Seq(n.children);
                out += u')';
                break;
            case Node::Concat:
                Word("jet_concat(");
                for (size_t k = 0; k < n.children.size(); ++k) {
                    if (k) out += QLatin1String(", ");
                    Seq(n.children[k].children);
                }
                out += u')';
                break;
            case Node::Limit: Word("LIMIT"); Word(n.text); break;
            case Node::IntDiv:
                Word("jet_intdiv(");
                Seq(n.children[0].children);
                out += QLatin1String(", ");
                Seq(n.children[1].children);
                out += u')';
                break;
            case Node::Mod:
                Operand(n.children[0]);
                Word("%");
                Operand(n.children[1]);
                break;
            }
        }
    }

private:
    // An operand of "%", in parentheses unless it is one item.
    void Operand(const Node& g)
    {
        if (g.children.size() == 1) {
            Seq(g.children);
            return;
        }
        Space();
        out += u'(';
        Seq(g.children);
        out += u')';
    }

    const SqliteWriter& m_w;
};

bool HasWords(const std::vector<Node>& seq, const char* a, const char* b = nullptr)
{
    for (size_t i = 0; i < seq.size(); ++i)
        if (seq[i].IsKeyword(a) && (!b || (i + 1 < seq.size() && seq[i + 1].IsKeyword(b)))) return true;
    return false;
}

}  // namespace

QString SqliteWriter::Name(const QString& name) const
{
    bool plain = !name.isEmpty() && !name[0].isDigit();
    for (QChar c : name)
        if (!(c.isLetterOrNumber() && c.unicode() < 128) && c != u'_') { plain = false; break; }
    if (plain) {
        QByteArray latin = name.toLatin1();
        if (!sqlite3_keyword_check(latin.constData(), int(latin.size()))) return name;
    }
    QString q;
    q.reserve(name.size() + 2);
    q += u'"';
    for (QChar c : name) {
        if (c == u'"') q += u'"';
        q += c;
    }
    q += u'"';
    return q;
}

QString SqliteWriter::ColumnType(const ColumnDef& col) const
{
    switch (col.type) {
    case DataType::Text: return QStringLiteral("TEXT(%1) COLLATE NOCASE").arg(col.size > 0 ? col.size : 255);
    case DataType::LongText: return QStringLiteral("LONGTEXT COLLATE NOCASE");
    case DataType::YesNo: {
        // A Yes/No is never Null: a Null written to it is stored as its default, No.
        QString t = QStringLiteral("YESNO");
        if (!HasWords(col.constraints, "NOT", "NULL") && !HasWords(col.constraints, "NULL"))
            t += QLatin1String(" NOT NULL ON CONFLICT REPLACE");
        if (!HasWords(col.constraints, "DEFAULT")) t += QLatin1String(" DEFAULT 0");
        return t;
    }
    case DataType::DateTime: return QStringLiteral("DATETIME");
    case DataType::Byte: return QStringLiteral("BYTE");
    case DataType::Short: return QStringLiteral("SHORT");
    case DataType::Long: return QStringLiteral("LONG");
    case DataType::Single: return QStringLiteral("SINGLE");
    case DataType::Double: return QStringLiteral("DOUBLE");
    case DataType::Currency: return QStringLiteral("CURRENCY");
    case DataType::Counter: return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
    case DataType::Binary: return QStringLiteral("BLOB");
    }
    return QString();
}

QString SqliteWriter::Write(const Statement& st, bool withRowId) const
{
    Emitter e(*this);
    auto column = [&](const ColumnDef& col) {
        e.Word(Name(col.name));
        e.Word(ColumnType(col));
        std::vector<Node> rest = col.constraints;
        if (col.type == DataType::Counter) {
            // The type carries the key already.
            for (size_t i = 0; i + 1 < rest.size(); ++i)
                if (rest[i].IsKeyword("PRIMARY") && rest[i + 1].IsKeyword("KEY")) {
                    rest.erase(rest.begin() + i, rest.begin() + i + 2);
                    break;
                }
        }
        e.Seq(rest);
    };
    // The row identity is the last column, so that the statement's own columns keep their places.
    const QString rowId = QStringLiteral("rowid AS ") + RowIdColumn();
    switch (st.kind) {
    case Statement::CreateTable: {
        e.Word("CREATE TABLE");
        e.Word(Name(st.table));
        e.Word("(");
        bool firstItem = true;
        for (const ColumnDef& col : st.columns) {
            if (!firstItem) e.out += QLatin1String(", ");
            firstItem = false;
            column(col);
        }
        for (const auto& c : st.tableConstraints) {
            if (!firstItem) e.out += QLatin1String(", ");
            firstItem = false;
            e.Seq(c);
        }
        e.out += u')';
        return e.out;
    }
    case Statement::AlterAdd:
        e.Word("ALTER TABLE");
        e.Word(Name(st.table));
        e.Word("ADD COLUMN");
        column(st.columns.front());
        return e.out;
    case Statement::AlterDrop:
        e.Word("ALTER TABLE");
        e.Word(Name(st.table));
        e.Word("DROP COLUMN");
        e.Word(Name(st.columns.front().name));
        return e.out;
    case Statement::AlterColumn:
        return QString();   // carried out by the connection: SQLite has no ALTER COLUMN
    case Statement::BareTable:
        e.Word("SELECT *");
        if (withRowId) e.out += QStringLiteral(", ") + rowId;
        e.Word("FROM");
        e.Word(Name(st.table));
        return e.out;
    default:
        if (withRowId && st.updatable && st.fromAt > 0) {
            const QString q = QStringLiteral(", ") + Name(st.alias.isEmpty() ? st.table : st.alias) + u'.' + rowId;
            e.Seq(st.nodes, 0, &q, size_t(st.fromAt));
        } else {
            e.Seq(st.nodes);
        }
        return e.out;
    }
}

}  // namespace sqldialect
