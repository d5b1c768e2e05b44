#include "core/widgets/GridFormula.h"

#include <QRegularExpression>
#include <cmath>
#include <muParser.h>
#include <vector>

namespace {

const int kMaxRangeCells = 10000;

// A formula as the parser reads it: references and ranges become variables "R<row>C<col>"
// (a range the list of its cells), function names lower case, "average" as avg.
struct Translation {
    std::string expr;
    std::vector<FormulaSheet::Key> cells;   // each cell read, once
};

bool Translate(const QString& formula, Translation* out, QString* error)
{
    QString f = formula.trimmed();
    if (f.startsWith('='))
        f.remove(0, 1);
    static const QRegularExpression refRe(QStringLiteral(
        "(?<![A-Za-z0-9_])(\\$?[A-Za-z]{1,2}\\$?[0-9]+)(?:\\s*:\\s*(\\$?[A-Za-z]{1,2}\\$?[0-9]+))?(?![A-Za-z0-9_(])"));
    QSet<FormulaSheet::Key> seen;
    QString expanded;
    int last = 0;
    auto it = refRe.globalMatch(f);
    while (it.hasNext()) {
        const auto m = it.next();
        int r1, c1;
        if (!FormulaSheet::ParseReference(m.captured(1), &r1, &c1))
            continue;
        int r2 = r1, c2 = c1;
        if (!m.captured(2).isEmpty() && !FormulaSheet::ParseReference(m.captured(2), &r2, &c2)) {
            if (error)
                *error = QStringLiteral("Bad range ") + m.captured(0);
            return false;
        }
        if (r2 < r1)
            std::swap(r1, r2);
        if (c2 < c1)
            std::swap(c1, c2);
        if (qint64(r2 - r1 + 1) * (c2 - c1 + 1) > kMaxRangeCells) {
            if (error)
                *error = QStringLiteral("Range too large");
            return false;
        }
        QStringList names;
        for (int r = r1; r <= r2; ++r)
            for (int c = c1; c <= c2; ++c) {
                names << QStringLiteral("R%1C%2").arg(r).arg(c);
                const FormulaSheet::Key k = FormulaSheet::KeyOf(r, c);
                if (!seen.contains(k)) {
                    seen.insert(k);
                    out->cells.push_back(k);
                }
            }
        expanded += f.mid(last, m.capturedStart() - last) + names.join(',');
        last = m.capturedEnd();
    }
    expanded += f.mid(last);

    static const QRegularExpression funRe(QStringLiteral("\\b([A-Za-z_][A-Za-z0-9_]*)\\s*\\("));
    QString src;
    last = 0;
    auto fit = funRe.globalMatch(expanded);
    while (fit.hasNext()) {
        const auto m = fit.next();
        QString name = m.captured(1).toLower();
        if (name == QLatin1String("average"))
            name = QStringLiteral("avg");
        src += expanded.mid(last, m.capturedStart(1) - last) + name;
        last = m.capturedEnd(1);
    }
    src += expanded.mid(last);
    out->expr = src.toStdString();
    return true;
}

std::string VarName(FormulaSheet::Key k)
{
    return "R" + std::to_string(FormulaSheet::RowOf(k)) + "C" + std::to_string(FormulaSheet::ColOf(k));
}

// Names that are no cell of the formula are unknown to the parser. It may ask its factory for
// them: answer with an error rather than a variable (a null answer would crash it).
mu::value_type* NoSuchCell(const mu::char_type* name, void*)
{
    throw mu::ParserError(std::string("Unknown name ") + name);
}

// A parser with the formula's cells bound to its variables; the values are sized before
// binding and never move.
struct Program {
    mu::Parser parser;
    std::vector<FormulaSheet::Key> cells;
    std::vector<double> vars;

    bool Compile(const QString& formula, QString* error)
    {
        Translation t;
        if (!Translate(formula, &t, error))
            return false;
        cells = std::move(t.cells);
        vars.assign(cells.size(), 0.0);
        try {
            parser.SetVarFactory(NoSuchCell, nullptr);
            for (size_t i = 0; i < cells.size(); ++i)
                parser.DefineVar(VarName(cells[i]), &vars[i]);
            parser.SetExpr(t.expr);
            parser.Eval();   // reads the formula now, so that later evaluations only run it
            return true;
        } catch (const mu::Parser::exception_type& e) {
            if (error)
                *error = QString::fromStdString(e.GetMsg());
            return false;
        }
    }

    bool Run(double* result, QString* error)
    {
        try {
            *result = parser.Eval();
            return true;
        } catch (const mu::Parser::exception_type& e) {
            if (error)
                *error = QString::fromStdString(e.GetMsg());
            return false;
        }
    }
};

}  // namespace

struct FormulaSheet::Compiled {
    QString text;
    std::unique_ptr<Program> program;   // null when the formula cannot be read
    QString error;
    State state = Ok;
    double result = 0.0;
};

FormulaSheet::FormulaSheet(std::function<double(int, int)> input) : m_input(std::move(input)) {}

FormulaSheet::~FormulaSheet() = default;

bool FormulaSheet::ParseReference(const QString& ref, int* row, int* col)
{
    const QString s = ref.trimmed();
    int i = 0;
    const int n = s.size();
    auto letter = [&](int at) { return at < n && s[at].isLetter() && s[at].unicode() < 128; };
    if (i < n && s[i] == '$')
        ++i;
    int c = 0, letters = 0;
    while (letter(i)) {
        c = c * 26 + (s[i].toUpper().unicode() - 'A' + 1);
        ++i;
        ++letters;
    }
    if (letters < 1 || letters > 2)
        return false;
    if (i < n && s[i] == '$')
        ++i;
    if (i >= n)
        return false;
    qint64 r = 0;
    for (; i < n; ++i) {
        if (!s[i].isDigit() || s[i].unicode() >= 128)
            return false;
        r = r * 10 + (s[i].unicode() - '0');
        if (r > 1000000000)
            return false;
    }
    if (r < 1)
        return false;
    *row = int(r);
    *col = c;
    return true;
}

bool FormulaSheet::Evaluate(const QString& formula, const std::function<double(int, int)>& cell,
                            double* result, QString* error)
{
    Program p;
    if (!p.Compile(formula, error))
        return false;
    for (size_t i = 0; i < p.cells.size(); ++i)
        p.vars[i] = cell(RowOf(p.cells[i]), ColOf(p.cells[i]));
    return p.Run(result, error);
}

void FormulaSheet::unlink(Key key, const Compiled& c)
{
    if (!c.program)
        return;
    for (Key in : c.program->cells) {
        auto it = m_readers.find(in);
        if (it == m_readers.end())
            continue;
        it->remove(key);
        if (it->isEmpty())
            m_readers.erase(it);
    }
}

void FormulaSheet::SetFormula(int row, int col, const QString& formula)
{
    QString f = formula.trimmed();
    if (f.startsWith('='))
        f.remove(0, 1);
    f = f.trimmed();
    if (f.isEmpty()) {
        Remove(row, col);
        return;
    }
    const Key key = KeyOf(row, col);
    auto& slot = m_cells[key];
    if (slot) {
        if (slot->text == f)
            return;
        unlink(key, *slot);
    }
    auto c = std::make_shared<Compiled>();
    c->text = f;
    auto program = std::make_unique<Program>();
    ++m_compilations;
    if (program->Compile(f, &c->error)) {
        for (Key in : program->cells)
            m_readers[in].insert(key);
        c->program = std::move(program);
    } else {
        c->state = Error;
    }
    slot = std::move(c);
    m_dueFormulas.insert(key);
    m_dueInputs.insert(key);
}

void FormulaSheet::Remove(int row, int col)
{
    const Key key = KeyOf(row, col);
    auto it = m_cells.find(key);
    if (it == m_cells.end())
        return;
    unlink(key, **it);
    m_cells.erase(it);
    m_dueFormulas.remove(key);
    m_dueInputs.insert(key);   // its readers now read the cell's own value
}

void FormulaSheet::Clear()
{
    m_cells.clear();
    m_readers.clear();
    m_dueFormulas.clear();
    m_dueInputs.clear();
}

QString FormulaSheet::Formula(int row, int col) const
{
    const auto c = m_cells.value(KeyOf(row, col));
    return c ? c->text : QString();
}

void FormulaSheet::Changed(int row, int col)
{
    const Key key = KeyOf(row, col);
    if (m_readers.contains(key))
        m_dueInputs.insert(key);
}

void FormulaSheet::ChangedAll()
{
    for (auto it = m_cells.cbegin(); it != m_cells.cend(); ++it)
        m_dueFormulas.insert(it.key());
}

QVector<FormulaSheet::Key> FormulaSheet::Recompute()
{
    QVector<Key> order;
    if (!Pending())
        return order;
    // The formulas to evaluate: the due ones and every formula that reads them, directly or not.
    QSet<Key> affected;
    QVector<Key> stack;
    auto reach = [&](Key k) {
        if (m_cells.contains(k) && !affected.contains(k)) {
            affected.insert(k);
            stack.push_back(k);
        }
    };
    for (Key k : std::as_const(m_dueFormulas))
        reach(k);
    for (Key k : std::as_const(m_dueInputs))
        for (Key r : m_readers.value(k))
            reach(r);
    while (!stack.isEmpty()) {
        const Key k = stack.takeLast();
        const auto it = m_readers.constFind(k);
        if (it != m_readers.cend())
            for (Key r : *it)
                reach(r);
    }
    m_dueFormulas.clear();
    m_dueInputs.clear();

    // Dependency order (Kahn): a formula comes after every affected formula it reads. What is
    // left over sits on a loop or reads one.
    QHash<Key, int> waiting;
    waiting.reserve(affected.size());
    QVector<Key> ready;
    for (Key k : std::as_const(affected)) {
        int n = 0;
        if (const auto& p = m_cells.value(k)->program)
            for (Key in : p->cells)
                n += affected.contains(in) ? 1 : 0;   // itself too: a loop of one
        waiting.insert(k, n);
        if (n == 0)
            ready.push_back(k);
    }
    order.reserve(affected.size());
    while (!ready.isEmpty()) {
        const Key k = ready.takeLast();
        order.push_back(k);
        evaluate(*m_cells.value(k));
        const auto it = m_readers.constFind(k);
        if (it == m_readers.cend())
            continue;
        for (Key r : *it) {
            auto w = waiting.find(r);
            if (w != waiting.end() && --*w == 0)
                ready.push_back(r);
        }
    }
    if (order.size() < affected.size())
        for (Key k : std::as_const(affected))
            if (waiting.value(k) > 0) {
                Compiled& c = *m_cells.value(k);
                c.state = Circular;
                c.result = 0.0;
                order.push_back(k);
            }
    return order;
}

void FormulaSheet::evaluate(Compiled& c)
{
    if (!c.program) {
        c.state = Error;
        c.result = 0.0;
        return;
    }
    ++m_evaluations;
    Program& p = *c.program;
    bool circular = false;
    for (size_t i = 0; i < p.cells.size(); ++i) {
        const Key in = p.cells[i];
        const auto it = m_cells.constFind(in);
        if (it == m_cells.cend()) {
            p.vars[i] = m_input(RowOf(in), ColOf(in));
        } else {
            const Compiled& src = **it;
            circular = circular || src.state == Circular;
            p.vars[i] = src.state == Ok && std::isfinite(src.result) ? src.result : 0.0;
        }
    }
    double v = 0.0;
    if (circular) {
        c.state = Circular;
        c.result = 0.0;
    } else if (p.Run(&v, &c.error)) {
        c.state = Ok;
        c.result = v;
    } else {
        c.state = Error;
        c.result = 0.0;
    }
}

FormulaSheet::State FormulaSheet::StateOf(int row, int col) const
{
    const auto c = m_cells.value(KeyOf(row, col));
    return c ? c->state : Ok;
}

double FormulaSheet::Result(int row, int col) const
{
    const auto c = m_cells.value(KeyOf(row, col));
    return c && c->state == Ok ? c->result : 0.0;
}

double FormulaSheet::Value(int row, int col) const
{
    const auto c = m_cells.value(KeyOf(row, col));
    if (!c)
        return m_input(row, col);
    return c->state == Ok && std::isfinite(c->result) ? c->result : 0.0;
}

QString FormulaSheet::ErrorText(int row, int col) const
{
    const auto c = m_cells.value(KeyOf(row, col));
    return c && c->state != Ok ? (c->state == Circular ? QStringLiteral("Circular reference") : c->error)
                               : QString();
}
