#include "core/store/dialect.h"

#include "core/store/datereader.h"
#include "core/store/storedate.h"
#include "core/store/storeerror.h"

#include <QHash>
#include <algorithm>

namespace sqldialect {
namespace {

[[noreturn]] void Fail(const char* form, const QString& sql)
{
    throw StoreError(StoreError::SyntaxError, QString::fromLatin1(form).arg(sql));
}

const char* const kMissingOperator = "Syntax error (missing operator) in query expression '%1'.";

// ---------------------------------------------------------------------------------------------
// Tokens

enum class T { Word, Name, String, Number, Date, Op, Comma, LParen, RParen, Dot, Bang, Semi, Param };

struct Tok {
    T t;
    QString s;
};

bool IsWordChar(QChar c) { return c.isLetterOrNumber() || c == u'_' || c == u'$'; }

std::vector<Tok> Lex(const QString& sql)
{
    std::vector<Tok> out;
    out.reserve(sql.size() / 4 + 4);
    const qsizetype n = sql.size();
    qsizetype i = 0;
    while (i < n) {
        QChar c = sql[i];
        if (c.isSpace()) { ++i; continue; }
        if (c == u'\'' || c == u'"') {
            // A string; the quote is doubled inside it.
            QString value;
            qsizetype j = i + 1;
            for (;;) {
                if (j >= n) Fail("Syntax error in string in query expression '%1'.", sql);
                if (sql[j] == c) {
                    if (j + 1 < n && sql[j + 1] == c) { value += c; j += 2; continue; }
                    break;
                }
                value += sql[j++];
            }
            out.push_back({T::String, value});
            i = j + 1;
            continue;
        }
        if (c == u'[' || c == u'`') {
            QChar close = c == u'[' ? u']' : u'`';
            qsizetype j = sql.indexOf(close, i + 1);
            if (j < 0) Fail(kMissingOperator, sql);
            out.push_back({T::Name, sql.mid(i + 1, j - i - 1)});
            i = j + 1;
            continue;
        }
        if (c == u'#') {
            qsizetype j = sql.indexOf(u'#', i + 1);
            if (j < 0) Fail("Syntax error in date in query expression '%1'.", sql);
            out.push_back({T::Date, sql.mid(i + 1, j - i - 1)});
            i = j + 1;
            continue;
        }
        if (c.isDigit() || (c == u'.' && i + 1 < n && sql[i + 1].isDigit())) {
            qsizetype j = i;
            while (j < n && sql[j].isDigit()) ++j;
            if (j < n && sql[j] == u'.') { ++j; while (j < n && sql[j].isDigit()) ++j; }
            if (j < n && (sql[j] == u'e' || sql[j] == u'E')) {
                qsizetype k = j + 1;
                if (k < n && (sql[k] == u'+' || sql[k] == u'-')) ++k;
                if (k < n && sql[k].isDigit()) {
                    while (k < n && sql[k].isDigit()) ++k;
                    j = k;
                }
            }
            out.push_back({T::Number, sql.mid(i, j - i)});
            i = j;
            continue;
        }
        if (IsWordChar(c)) {
            qsizetype j = i;
            while (j < n && IsWordChar(sql[j])) ++j;
            out.push_back({T::Word, sql.mid(i, j - i)});
            i = j;
            continue;
        }
        QChar d = i + 1 < n ? sql[i + 1] : QChar();
        switch (c.unicode()) {
        case '(': out.push_back({T::LParen, {}}); break;
        case ')': out.push_back({T::RParen, {}}); break;
        case ',': out.push_back({T::Comma, {}}); break;
        case '.': out.push_back({T::Dot, {}}); break;
        case ';': out.push_back({T::Semi, {}}); break;
        case '?': out.push_back({T::Param, {}}); break;
        case '!':
            if (d == u'=') { out.push_back({T::Op, QStringLiteral("<>")}); ++i; }
            else out.push_back({T::Bang, {}});
            break;
        case '<':
            if (d == u'>' || d == u'=') { out.push_back({T::Op, sql.mid(i, 2)}); ++i; }
            else out.push_back({T::Op, QStringLiteral("<")});
            break;
        case '>':
            if (d == u'=') { out.push_back({T::Op, QStringLiteral(">=")}); ++i; }
            else out.push_back({T::Op, QStringLiteral(">")});
            break;
        case '=': case '+': case '-': case '*': case '/': case '\\': case '&': case '^': case '%':
            out.push_back({T::Op, QString(c)});
            break;
        default:
            Fail(kMissingOperator, sql);
        }
        ++i;
    }
    return out;
}

// The text between "#"s: the forms a date takes, and eight digits "YYYYMMDD" as the ranges of the
// print logs write it.
bool ReadDateLiteral(const QString& text, QDate& d, QTime& t, bool& hasTime)
{
    datereader::Result r;
    if (!datereader::Read(text, datereader::LiteralOptions(), r)) return false;
    d = r.hasDate ? r.date : storedate::BaseDay();
    t = r.time;
    hasTime = r.hasTime;
    return true;
}

// ---------------------------------------------------------------------------------------------
// Words: keyword or name, by where they stand

enum class Kind { Select, Insert, Update, Delete, Create, Alter, Drop, Other };

const QHash<QString, int>& AlwaysKeywords()
{
    static const QHash<QString, int> set = [] {
        QHash<QString, int> h;
        for (const char* w : {"select", "distinct", "distinctrow", "from", "where", "having", "and", "or", "not",
                              "xor", "like", "between", "in", "is", "null", "as", "on", "inner", "outer", "join",
                              "insert", "into", "update", "delete", "create", "alter", "drop", "union", "exists",
                              "mod"})
            h.insert(QString::fromLatin1(w), 0);
        return h;
    }();
    return set;
}

const QHash<QString, int>& Aggregates()
{
    static const QHash<QString, int> set = [] {
        QHash<QString, int> h;
        for (const char* w : {"count", "sum", "avg", "min", "max", "first", "last", "stdev", "stdevp", "var", "varp"})
            h.insert(QString::fromLatin1(w), 0);
        return h;
    }();
    return set;
}

// One item of the flat reading: a node, or a parenthesis (+1 opens, -1 closes).
struct Flat {
    Node node;
    int paren = 0;
};

class Classifier {
public:
    Classifier(const QString& sql, std::vector<Tok>& toks) : m_sql(sql), m_toks(toks)
    {
        for (const Tok& t : toks)
            if (t.t == T::Word) { m_kind = KindOf(t.s.toLower()); break; }
    }

    std::vector<Flat> Run()
    {
        m_out.reserve(m_toks.size());
        const size_t n = m_toks.size();
        for (m_i = 0; m_i < n; ++m_i) {
            const Tok& t = m_toks[m_i];
            switch (t.t) {
            case T::LParen: m_out.push_back({Node{}, +1}); ++m_depth; break;
            case T::RParen:
                if (--m_depth < 0) Fail(kMissingOperator, m_sql);
                m_out.push_back({Node{}, -1});
                break;
            case T::Comma: Push(Node::Comma, {}); break;
            case T::Dot: Push(Node::Dot, {}); break;
            case T::Bang:
                if (!PrevIs(Node::Identifier)) Fail(kMissingOperator, m_sql);
                Push(Node::Dot, {});
                break;
            case T::Semi:
                for (size_t k = m_i + 1; k < n; ++k)
                    if (m_toks[k].t != T::Semi)
                        throw StoreError(StoreError::SyntaxError,
                                         QStringLiteral("Characters found after end of SQL statement."));
                m_i = n;
                break;
            case T::Param: Push(Node::Param, {}); break;
            case T::String: Push(Node::String, t.s); break;
            case T::Number: Push(Node::Number, t.s); break;
            case T::Name: Push(Node::Identifier, t.s); break;
            case T::Date: {
                QDate d;
                QTime tm;
                bool hasTime = false;
                if (!ReadDateLiteral(t.s, d, tm, hasTime)) Fail("Syntax error in date in query expression '%1'.", m_sql);
                Push(Node::Date, storedate::IsoText(d, tm, hasTime));
                break;
            }
            case T::Op: Operator(t.s); break;
            case T::Word: Word(t.s); break;
            }
        }
        if (m_depth != 0) Fail(kMissingOperator, m_sql);
        return std::move(m_out);
    }

private:
    static Kind KindOf(const QString& w)
    {
        if (w == u"select") return Kind::Select;
        if (w == u"insert") return Kind::Insert;
        if (w == u"update") return Kind::Update;
        if (w == u"delete") return Kind::Delete;
        if (w == u"create") return Kind::Create;
        if (w == u"alter") return Kind::Alter;
        if (w == u"drop") return Kind::Drop;
        return Kind::Other;
    }

    void Push(Node::Kind k, const QString& text, bool flag = false)
    {
        Flat f;
        f.node.kind = k;
        f.node.text = text;
        f.node.flag = flag;
        m_out.push_back(std::move(f));
    }
    void Keyword(const char* w) { Push(Node::Keyword, QString::fromLatin1(w)); }

    const Flat* Prev() const { return m_out.empty() ? nullptr : &m_out.back(); }
    bool PrevIs(Node::Kind k) const { const Flat* p = Prev(); return p && p->paren == 0 && p->node.kind == k; }
    bool PrevKeyword(std::initializer_list<const char*> words) const
    {
        const Flat* p = Prev();
        if (!p || p->paren != 0 || p->node.kind != Node::Keyword) return false;
        for (const char* w : words)
            if (p->node.text == QLatin1String(w)) return true;
        return false;
    }
    // Whether the item before ends an expression (a name, a value, a closing parenthesis).
    bool PrevEndsExpression() const
    {
        const Flat* p = Prev();
        if (!p) return false;
        if (p->paren) return p->paren < 0;
        switch (p->node.kind) {
        case Node::Identifier: case Node::String: case Node::Number: case Node::Date: case Node::Boolean:
        case Node::Param:
            return true;
        case Node::Keyword:
            return p->node.text == u"NULL";
        default:
            return false;
        }
    }
    const Tok* Next(size_t k = 1) const { return m_i + k < m_toks.size() ? &m_toks[m_i + k] : nullptr; }
    bool NextWordIs(std::initializer_list<const char*> words, size_t k = 1) const
    {
        const Tok* t = Next(k);
        if (!t || t->t != T::Word) return false;
        for (const char* w : words)
            if (t->s.compare(QLatin1String(w), Qt::CaseInsensitive) == 0) return true;
        return false;
    }
    bool NextIs(T type, size_t k = 1) const { const Tok* t = Next(k); return t && t->t == type; }
    bool NextIsOp(const char* op, size_t k = 1) const
    {
        const Tok* t = Next(k);
        return t && t->t == T::Op && t->s == QLatin1String(op);
    }
    bool IsDdl() const { return m_kind == Kind::Create || m_kind == Kind::Alter; }

    void Operator(const QString& op)
    {
        // "= null" and "<> null" test for Null, except where "=" assigns in the set list of an update.
        const bool assigns = op == u"=" && m_kind == Kind::Update && m_seenSet && !m_seenWhere && m_depth == 0;
        if ((op == u"=" || op == u"<>") && !assigns && NextWordIs({"null"})) {
            Keyword("IS");
            if (op == u"<>") Keyword("NOT");
            Keyword("NULL");
            ++m_i;
            return;
        }
        Push(Node::Operator, op);
    }

    void Word(const QString& word)
    {
        const QString w = word.toLower();
        const bool nextParen = NextIs(T::LParen);
        // Parts of a qualified name are names, whatever they spell: food_groups.group, units!name.
        if (PrevIs(Node::Dot) || NextIs(T::Dot) || NextIs(T::Bang)) {
            Push(Node::Identifier, word);
            return;
        }
        if ((w == u"true" || w == u"false") && !nextParen) {
            Push(Node::Boolean, {}, w == u"true");
            return;
        }
        if (AlwaysKeywords().contains(w)) {
            if (w == u"delete") {
                Keyword("DELETE");
                // "delete * from" and "delete table.* from"
                if (NextIsOp("*") && NextWordIs({"from"}, 2)) ++m_i;
                else if ((NextIs(T::Word) || NextIs(T::Name)) && (NextIs(T::Dot, 2) || NextIs(T::Bang, 2))
                         && NextIsOp("*", 3) && NextWordIs({"from"}, 4))
                    m_i += 3;
                return;
            }
            if (w == u"distinctrow") { Keyword("DISTINCT"); return; }
            if (w == u"where" && m_depth == 0) m_seenWhere = true;
            if (w == u"mod") { Push(Node::Operator, QStringLiteral("mod")); return; }
            Push(Node::Keyword, w.toUpper());
            return;
        }
        bool keyword = false;
        if (w == u"group" || w == u"order") keyword = NextWordIs({"by"});
        else if (w == u"by") keyword = PrevKeyword({"GROUP", "ORDER"});
        else if (w == u"desc" || w == u"asc") keyword = PrevEndsExpression() && !nextParen;
        else if (w == u"set") keyword = m_kind == Kind::Update && !m_seenSet && m_depth == 0;
        else if (w == u"key") keyword = PrevKeyword({"PRIMARY", "FOREIGN"});
        else if (w == u"primary" || w == u"foreign") keyword = NextWordIs({"key"});
        else if (w == u"left" || w == u"right" || w == u"full") keyword = NextWordIs({"join", "outer"});
        else if (w == u"cross") keyword = NextWordIs({"join"});
        else if (w == u"index") keyword = PrevKeyword({"CREATE", "DROP", "UNIQUE"});
        else if (w == u"unique" || w == u"constraint" || w == u"references" || w == u"default" || w == u"check")
            keyword = IsDdl();
        else if (w == u"values") keyword = m_kind == Kind::Insert && nextParen;
        else if (w == u"column") keyword = PrevKeyword({"ADD", "ALTER", "DROP"});
        else if (w == u"add") keyword = m_kind == Kind::Alter && m_depth == 0 && PrevIs(Node::Identifier);
        else if (w == u"table") keyword = PrevKeyword({"CREATE", "ALTER", "DROP"});
        else if (w == u"all") keyword = PrevKeyword({"UNION", "SELECT"});
        else if (w == u"top" && PrevKeyword({"SELECT", "DISTINCT", "ALL"}) && NextIs(T::Number)) {
            Push(Node::Limit, Next()->s);
            ++m_i;
            if (NextWordIs({"percent"})) ++m_i;
            return;
        }
        if (keyword) {
            if (w == u"set") m_seenSet = true;
            Push(Node::Keyword, w.toUpper());
            return;
        }
        // A name followed by "(" calls a function, except for the table of an insert or a
        // create and the table of an index.
        if (nextParen && !PrevKeyword({"INTO", "TABLE", "REFERENCES"})
            && !(m_kind == Kind::Create && PrevKeyword({"ON"}))) {
            Push(Node::Function, w);
            return;
        }
        Push(Node::Identifier, word);
    }

    const QString& m_sql;
    std::vector<Tok>& m_toks;
    std::vector<Flat> m_out;
    size_t m_i = 0;
    int m_depth = 0;
    Kind m_kind = Kind::Other;
    bool m_seenSet = false;
    bool m_seenWhere = false;
};

// ---------------------------------------------------------------------------------------------
// The tree and its constructs

bool IsConcatBoundary(const Node& n)
{
    switch (n.kind) {
    case Node::Comma: case Node::Limit: return true;
    case Node::Keyword: return n.text != u"NULL";
    case Node::Operator:
        return n.text == u"=" || n.text == u"<>" || n.text == u"<" || n.text == u">" || n.text == u"<="
            || n.text == u">=";
    default: return false;
    }
}

Node GroupOf(std::vector<Node>::iterator b, std::vector<Node>::iterator e)
{
    Node g;
    g.kind = Node::Group;
    g.children.assign(std::make_move_iterator(b), std::make_move_iterator(e));
    return g;
}

// "&" joins text; it binds looser than arithmetic and tighter than comparisons, so each
// operand runs to the nearest comparison, keyword or comma.
void GroupConcat(std::vector<Node>& seq, const QString& sql)
{
    for (size_t i = 0; i < seq.size(); ++i) {
        if (!seq[i].Is(Node::Operator, "&")) continue;
        size_t start = i;
        while (start > 0 && !IsConcatBoundary(seq[start - 1])) --start;
        if (start == i) Fail(kMissingOperator, sql);
        Node cat;
        cat.kind = Node::Concat;
        cat.children.push_back(GroupOf(seq.begin() + start, seq.begin() + i));
        size_t j = i;
        while (j < seq.size() && seq[j].Is(Node::Operator, "&")) {
            size_t k = j + 1;
            while (k < seq.size() && !IsConcatBoundary(seq[k]) && !seq[k].Is(Node::Operator, "&")) ++k;
            if (k == j + 1) Fail(kMissingOperator, sql);
            cat.children.push_back(GroupOf(seq.begin() + j + 1, seq.begin() + k));
            j = k;
        }
        seq.erase(seq.begin() + start, seq.begin() + j);
        seq.insert(seq.begin() + start, std::move(cat));
        i = start;
    }
}

// The dialect's arithmetic binds "^", unary "-", "*" and "/", then "\", then "mod", then "+" and
// "-". SQLite has no "\" and gives "%" the rank of "*", so both become nodes with their operands.
bool IsOperand(const Node& n)
{
    switch (n.kind) {
    case Node::Identifier: case Node::Function: case Node::String: case Node::Number: case Node::Date:
    case Node::Boolean: case Node::Param: case Node::Group: case Node::Dot: case Node::IntDiv: case Node::Mod:
        return true;
    case Node::Keyword: return n.text == u"NULL";
    default: return false;
    }
}

// Whether seq[k] is an operator that binds tighter than the one being grouped: "\" takes
// "*", "/", "^"; "mod" takes "\" too (already grouped). A "-" or "+" binds tighter only as a sign.
bool BindsTighter(const std::vector<Node>& seq, size_t k)
{
    const Node& n = seq[k];
    if (IsOperand(n)) return true;
    if (n.kind != Node::Operator) return false;
    if (n.text == u"*" || n.text == u"/" || n.text == u"^") return true;
    if (n.text == u"-" || n.text == u"+") return k == 0 || !(IsOperand(seq[k - 1]));
    return false;
}

void GroupArithmetic(std::vector<Node>& seq, const char* op, Node::Kind kind, const QString& sql)
{
    for (size_t i = 0; i < seq.size(); ++i) {
        if (!seq[i].Is(Node::Operator, op)) continue;
        size_t start = i;
        while (start > 0 && BindsTighter(seq, start - 1)) --start;
        size_t end = i + 1;
        while (end < seq.size() && (end == i + 1 ? BindsTighter(seq, end) || seq[end].Is(Node::Operator, "-")
                                                 : BindsTighter(seq, end)))
            ++end;
        if (start == i || end == i + 1) Fail(kMissingOperator, sql);
        Node n;
        n.kind = kind;
        n.children.push_back(GroupOf(seq.begin() + start, seq.begin() + i));
        n.children.push_back(GroupOf(seq.begin() + i + 1, seq.begin() + end));
        seq.erase(seq.begin() + start, seq.begin() + end);
        seq.insert(seq.begin() + start, std::move(n));
        i = start;
    }
}

// "like" takes * and ? as well as % and _.
QString LikePattern(const QString& p)
{
    QString out;
    out.reserve(p.size());
    for (qsizetype i = 0; i < p.size(); ++i) {
        QChar c = p[i];
        if (c == u'[' && i + 2 < p.size() && p[i + 2] == u']' && (p[i + 1] == u'*' || p[i + 1] == u'?' || p[i + 1] == u'#')) {
            out += p[i + 1];   // [*] is a plain *
            i += 2;
        } else if (c == u'*') out += u'%';
        else if (c == u'?') out += u'_';
        else out += c;
    }
    return out;
}

void ConvertLike(std::vector<Node>& seq)
{
    for (size_t i = 0; i + 1 < seq.size(); ++i) {
        if (!seq[i].IsKeyword("LIKE")) continue;
        Node& p = seq[i + 1];
        if (p.kind == Node::String) p.text = LikePattern(p.text);
        else if (p.kind == Node::Concat)
            for (Node& op : p.children)
                if (op.children.size() == 1 && op.children[0].kind == Node::String)
                    op.children[0].text = LikePattern(op.children[0].text);
    }
}

// "top n" is written at the end of its select.
void MoveLimit(std::vector<Node>& seq)
{
    for (size_t i = 0; i < seq.size(); ++i) {
        if (seq[i].kind != Node::Limit) continue;
        Node lim = std::move(seq[i]);
        seq.erase(seq.begin() + i);
        seq.push_back(std::move(lim));
        return;
    }
}

std::vector<Node> Build(std::vector<Flat>& flat, size_t& i, bool inGroup, const QString& sql)
{
    std::vector<Node> seq;
    while (i < flat.size()) {
        Flat& f = flat[i++];
        if (f.paren > 0) {
            Node g;
            g.kind = Node::Group;
            g.children = Build(flat, i, true, sql);
            seq.push_back(std::move(g));
        } else if (f.paren < 0) {
            if (!inGroup) Fail(kMissingOperator, sql);
            inGroup = false;
            break;
        } else {
            seq.push_back(std::move(f.node));
        }
    }
    if (inGroup) Fail(kMissingOperator, sql);
    GroupArithmetic(seq, "\\", Node::IntDiv, sql);
    GroupArithmetic(seq, "mod", Node::Mod, sql);
    GroupConcat(seq, sql);
    ConvertLike(seq);
    MoveLimit(seq);
    return seq;
}

// ---------------------------------------------------------------------------------------------
// What the statement is

bool HasAggregate(const std::vector<Node>& seq, size_t from, size_t to)
{
    for (size_t i = from; i < to && i < seq.size(); ++i) {
        const Node& n = seq[i];
        if (n.kind == Node::Function && Aggregates().contains(n.text)) return true;
        if (n.kind == Node::Group && !(n.children.size() && n.children[0].IsKeyword("SELECT"))
            && HasAggregate(n.children, 0, n.children.size()))
            return true;
        if (n.kind == Node::Concat && HasAggregate(n.children, 0, n.children.size())) return true;
    }
    return false;
}

void ReadSelect(Statement& st)
{
    const auto& s = st.nodes;
    size_t listAt = 1;
    bool distinct = false;
    if (s.size() > 1 && (s[1].IsKeyword("DISTINCT") || s[1].IsKeyword("ALL"))) {
        distinct = s[1].IsKeyword("DISTINCT");
        listAt = 2;
    }
    size_t fromAt = s.size();
    for (size_t i = listAt; i < s.size(); ++i)
        if (s[i].IsKeyword("FROM")) { fromAt = i; break; }
    st.fromAt = fromAt < s.size() ? int(fromAt) : -1;
    bool grouped = false, joined = false, nested = false;
    size_t fromEnd = s.size();
    for (size_t i = fromAt + 1; i < s.size(); ++i) {
        const Node& n = s[i];
        if (n.kind == Node::Keyword
            && (n.text == u"WHERE" || n.text == u"GROUP" || n.text == u"ORDER" || n.text == u"HAVING" || n.text == u"UNION")) {
            if (fromEnd == s.size()) fromEnd = i;
            if (n.text != u"WHERE" && n.text != u"ORDER") grouped = true;
        }
        if (n.kind == Node::Limit && fromEnd == s.size()) fromEnd = i;
    }
    // The tables of the FROM: "t", "t a", "t as a", joined by commas or joins.
    bool itemStart = true;
    for (size_t i = fromAt + 1; i < fromEnd; ++i) {
        const Node& n = s[i];
        if (n.kind == Node::Comma) { itemStart = true; continue; }
        if (n.kind == Node::Keyword) {
            if (n.text == u"JOIN") itemStart = true;
            if (n.text == u"JOIN" || n.text == u"ON" || n.text == u"INNER" || n.text == u"LEFT" || n.text == u"RIGHT")
                joined = true;
            continue;
        }
        if (n.kind == Node::Group) { nested = true; itemStart = false; continue; }
        if (n.kind == Node::Identifier && itemStart) {
            TableRef ref;
            ref.table = n.text;
            size_t k = i + 1;
            while (k + 1 < fromEnd && s[k].kind == Node::Dot && s[k + 1].kind == Node::Identifier) {
                ref.table = s[k + 1].text;   // owner.table: keep the table
                k += 2;
            }
            if (k < fromEnd && s[k].IsKeyword("AS")) ++k;
            if (k < fromEnd && s[k].kind == Node::Identifier) { ref.alias = s[k].text; ++k; }
            st.from.push_back(ref);
            i = k - 1;
            itemStart = false;
        }
    }
    st.updatable = fromAt < s.size() && !distinct && !grouped && !joined && !nested && st.from.size() == 1
        && !HasAggregate(s, listAt, fromAt);
    if (st.from.size() == 1) {
        st.table = st.from[0].table;
        st.alias = st.from[0].alias;
    }
}

QString NameAfter(const std::vector<Node>& s, size_t i)
{
    return i < s.size() && s[i].kind == Node::Identifier ? s[i].text : QString();
}

ColumnDef ReadColumn(std::vector<Node>::iterator b, std::vector<Node>::iterator e, const QString& sql)
{
    const char* bad = "Syntax error in field definition.";
    ColumnDef col;
    if (b == e || (b->kind != Node::Identifier && b->kind != Node::Keyword && b->kind != Node::Function))
        throw StoreError(StoreError::SyntaxError, QString::fromLatin1(bad));
    col.name = b->text;
    ++b;
    if (b == e) throw StoreError(StoreError::SyntaxError, QString::fromLatin1(bad));
    QString typeName = b->text;
    const bool call = b->kind == Node::Function;
    ++b;
    // "yes/no", "double precision"
    if (typeName.compare(u"yes", Qt::CaseInsensitive) == 0 && b != e && b->Is(Node::Operator, "/") && b + 1 != e
        && (b + 1)->text.compare(u"no", Qt::CaseInsensitive) == 0) {
        typeName = QStringLiteral("yesno");
        b += 2;
    } else if (typeName.compare(u"double", Qt::CaseInsensitive) == 0 && b != e && b->kind == Node::Identifier
               && b->text.compare(u"precision", Qt::CaseInsensitive) == 0) {
        ++b;
    }
    if (!ParseDataType(typeName, col.type)) throw StoreError(StoreError::SyntaxError, QString::fromLatin1(bad));
    if (call && b != e && b->kind == Node::Group) {
        if (!b->children.empty() && b->children[0].kind == Node::Number) col.size = b->children[0].text.toInt();
        ++b;
    }
    col.constraints.assign(std::make_move_iterator(b), std::make_move_iterator(e));
    Q_UNUSED(sql);
    return col;
}

void ReadCreateTable(Statement& st, const QString& sql)
{
    auto& s = st.nodes;
    st.table = NameAfter(s, 2);
    if (st.table.isEmpty() || s.size() != 4 || s[3].kind != Node::Group)
        throw StoreError(StoreError::SyntaxError, QStringLiteral("Syntax error in CREATE TABLE statement."));
    auto& items = s[3].children;
    auto start = items.begin();
    for (auto it = items.begin();; ++it) {
        if (it == items.end() || it->kind == Node::Comma) {
            if (start == it) throw StoreError(StoreError::SyntaxError, QStringLiteral("Syntax error in CREATE TABLE statement."));
            if (start->kind == Node::Keyword && start->text != u"NULL")
                st.tableConstraints.emplace_back(std::make_move_iterator(start), std::make_move_iterator(it));
            else
                st.columns.push_back(ReadColumn(start, it, sql));
            if (it == items.end()) break;
            start = it + 1;
        }
    }
    st.kind = Statement::CreateTable;
    s.clear();
}

void ReadAlterTable(Statement& st, const QString& sql)
{
    auto& s = st.nodes;
    const QString bad = QStringLiteral("Syntax error in ALTER TABLE statement.");
    st.table = NameAfter(s, 2);
    if (st.table.isEmpty() || s.size() < 5) throw StoreError(StoreError::SyntaxError, bad);
    size_t i = 4;
    if (i < s.size() && s[i].IsKeyword("COLUMN")) ++i;
    if (s[3].IsKeyword("ADD")) {
        if (i < s.size() && s[i].kind == Node::Keyword && s[i].text != u"NULL") {
            st.kind = Statement::Other;   // add constraint ...
            return;
        }
        st.columns.push_back(ReadColumn(s.begin() + i, s.end(), sql));
        st.kind = Statement::AlterAdd;
        s.clear();
    } else if (s[3].IsKeyword("ALTER")) {
        st.columns.push_back(ReadColumn(s.begin() + i, s.end(), sql));
        st.kind = Statement::AlterColumn;
        s.clear();
    } else if (s[3].IsKeyword("DROP")) {
        if (i + 1 != s.size() || s[i].kind != Node::Identifier) throw StoreError(StoreError::SyntaxError, bad);
        ColumnDef col;
        col.name = s[i].text;
        st.columns.push_back(col);
        st.kind = Statement::AlterDrop;
        s.clear();
    } else {
        throw StoreError(StoreError::SyntaxError, bad);
    }
}

}  // namespace

bool ParseDataType(const QString& name, DataType& type)
{
    static const QHash<QString, DataType> types = [] {
        QHash<QString, DataType> h;
        auto add = [&h](DataType t, std::initializer_list<const char*> names) {
            for (const char* n : names) h.insert(QString::fromLatin1(n), t);
        };
        add(DataType::Text, {"text", "char", "varchar", "nvarchar", "nchar", "character", "string", "alphanumeric",
                             "guid", "uniqueidentifier"});
        add(DataType::LongText, {"memo", "longtext", "longchar", "note", "ntext", "hyperlink"});
        add(DataType::YesNo, {"yesno", "bit", "logical", "logical1", "boolean", "bool"});
        add(DataType::DateTime, {"date", "datetime", "time", "timestamp"});
        add(DataType::Byte, {"byte", "tinyint", "integer1"});
        add(DataType::Short, {"short", "smallint", "integer2"});
        add(DataType::Long, {"integer", "int", "long", "integer4"});
        add(DataType::Single, {"single", "real", "float4", "ieeesingle"});
        add(DataType::Double, {"double", "float", "number", "float8", "ieeedouble", "numeric", "decimal"});
        add(DataType::Currency, {"currency", "money"});
        add(DataType::Counter, {"counter", "autoincrement", "identity", "autonumber"});
        add(DataType::Binary, {"binary", "varbinary", "longbinary", "image", "oleobject", "general"});
        return h;
    }();
    auto it = types.constFind(name.toLower());
    if (it == types.constEnd()) return false;
    type = *it;
    return true;
}

Statement Read(const QString& sql)
{
    std::vector<Tok> toks = Lex(sql);
    std::vector<Flat> flat = Classifier(sql, toks).Run();
    size_t i = 0;
    Statement st;
    st.nodes = Build(flat, i, false, sql);
    auto& s = st.nodes;
    if (s.empty()) Fail(kMissingOperator, sql);
    const Node& first = s[0];
    if (s.size() == 1 && first.kind == Node::Identifier) {
        st.kind = Statement::BareTable;
        st.table = first.text;
        st.updatable = true;
        st.from.push_back({first.text, {}});
        return st;
    }
    if (first.IsKeyword("SELECT")) {
        st.kind = Statement::Select;
        ReadSelect(st);
    } else if (first.IsKeyword("INSERT")) {
        st.kind = Statement::Insert;
        st.table = NameAfter(s, 2);
    } else if (first.IsKeyword("UPDATE")) {
        st.kind = Statement::Update;
        st.table = NameAfter(s, 1);
    } else if (first.IsKeyword("DELETE")) {
        st.kind = Statement::Delete;
        st.table = NameAfter(s, 2);
    } else if (first.IsKeyword("CREATE") && s.size() > 1 && s[1].IsKeyword("TABLE")) {
        ReadCreateTable(st, sql);
    } else if (first.IsKeyword("ALTER") && s.size() > 1 && s[1].IsKeyword("TABLE")) {
        ReadAlterTable(st, sql);
    } else {
        st.kind = Statement::Other;
    }
    return st;
}

}  // namespace sqldialect
