#include "core/store/recordset.h"

#include "core/store/connection.h"
#include "core/store/connectionimpl.h"
#include "core/store/sqlwriter.h"


namespace {

[[noreturn]] void Closed()
{
    throw StoreError(StoreError::NotOpen, QStringLiteral("Operation is not allowed when the object is closed."));
}

[[noreturn]] void NoCurrentRecord()
{
    throw StoreError(StoreError::NoCurrentRecord,
                     QStringLiteral("Either BOF or EOF is True, or the current record has been deleted. Requested "
                                    "operation requires a current record."));
}

[[noreturn]] void ItemNotFound()
{
    throw StoreError(StoreError::ItemNotFound,
                     QStringLiteral("Item cannot be found in the collection corresponding to the requested name or ordinal."));
}

[[noreturn]] void NotUpdatable()
{
    throw StoreError(StoreError::NotUpdatable,
                     QStringLiteral("Current Recordset does not support updating. This may be a limitation of the "
                                    "provider, or of the selected locktype."));
}

std::shared_ptr<const RecordLayout> BuildLayout(const storeengine::Statement& st, const Translation& tr, bool hasRowId)
{
    auto layout = std::make_shared<RecordLayout>();
    layout->hasRowId = hasRowId;
    const int n = st.ColumnCount() - (hasRowId ? 1 : 0);
    std::vector<QString> tables;
    QHash<QString, int> counts;
    for (int i = 0; i < n; ++i) {
        const storeengine::ResultColumn rc = st.Column(i);
        RecordLayout::Column c;
        c.name = rc.name;
        c.kind = rc.declaredType.isEmpty() ? fieldvalue::Kind::Any : fieldvalue::KindOf(rc.declaredType.toUtf8().constData());
        if (tr.updatable && !rc.origin.isEmpty() && rc.table.compare(tr.table, Qt::CaseInsensitive) == 0)
            c.origin = rc.origin;
        tables.push_back(rc.table);
        counts[c.name.toLower()] += 1;
        layout->columns.push_back(std::move(c));
    }
    // Where two tables of a join give a column of the same name, each is named after its table
    // or alias: "a.Group_ID", "b.Group_ID". The plain name finds the first.
    for (size_t i = 0; i < layout->columns.size(); ++i) {
        RecordLayout::Column& c = layout->columns[i];
        const QString plain = c.name.toLower();
        if (counts.value(plain) > 1 && !tables[i].isEmpty()) {
            QString qualifier = tables[i];
            for (const auto& ref : tr.from)
                if (ref.table.compare(tables[i], Qt::CaseInsensitive) == 0) {
                    qualifier = ref.alias.isEmpty() ? ref.table : ref.alias;
                    break;
                }
            c.name = qualifier + u'.' + c.name;
            layout->byName.insert(c.name.toLower(), int(i));
        }
        if (!layout->byName.contains(plain)) layout->byName.insert(plain, int(i));
    }
    return layout;
}

}  // namespace

class RecordsetImpl {
public:
    enum class Mode { None, Edit, New };

    Connection* conn = nullptr;
    bool open = false;
    bool pending = false;   // a bare table whose rows are not read yet; rows holds only those added here
    bool updatable = false;
    std::shared_ptr<const Translation> tr;
    QString source;         // the statement as the screen wrote it
    QString readSql;
    std::shared_ptr<const RecordLayout> layout;
    int ncols = 0;
    std::vector<QVariant> values;   // row after row
    std::vector<qint64> rowids;
    std::vector<char> deleted;
    qsizetype rows = 0;
    long live = 0;
    qsizetype pos = 0;
    Mode mode = Mode::None;
    std::vector<QVariant> buffer;
    std::vector<char> dirty;
    qsizetype savedPos = 0;

    ConnectionImpl* Conn() const
    {
        if (!conn || !conn->IsOpen())
            throw StoreError(StoreError::NotOpen, QStringLiteral("The connection cannot be used to perform this "
                                                                 "operation. It is either closed or invalid in this context."));
        return ConnectionAccess::Impl(*conn);
    }
    void RequireOpen() const
    {
        if (!open) Closed();
    }
    bool OnRow() const { return pos >= 0 && pos < rows && !deleted[size_t(pos)]; }

    void Reset()
    {
        open = pending = updatable = false;
        tr.reset();
        source.clear();
        readSql.clear();
        layout.reset();
        ncols = 0;
        values.clear();
        rowids.clear();
        deleted.clear();
        rows = 0;
        live = 0;
        pos = 0;
        mode = Mode::None;
        buffer.clear();
        dirty.clear();
    }

    CachedStatement& Statement(ConnectionImpl* ci)
    {
        CachedStatement& cs = ci->Prepare(readSql, source);
        if (!cs.layout || cs.generation != ci->schemaGeneration) {
            cs.layout = BuildLayout(*cs.stmt, *tr, updatable);
            cs.generation = ci->schemaGeneration;
        }
        layout = cs.layout;
        ncols = int(layout->columns.size());
        return cs;
    }

    // Reads all rows. The row that is current (one added to a bare table) stays current.
    void Materialize()
    {
        ConnectionImpl* ci = Conn();
        const qint64 keep = pending && pos >= 0 && pos < rows ? rowids[size_t(pos)] : -1;
        CachedStatement& cs = Statement(ci);
        storeengine::Statement& st = *cs.stmt;
        values.clear();
        rowids.clear();
        deleted.clear();
        values.reserve(size_t(cs.lastRows) * size_t(ncols));
        const bool hasRowId = layout->hasRowId;
        std::vector<fieldvalue::Kind> kinds;
        kinds.reserve(size_t(ncols));
        for (const auto& c : layout->columns) kinds.push_back(c.kind);
        qsizetype n = 0;
        bool checked = false;
        try {
            while (st.Step()) {
                if (!checked) {
                    // The engine prepares a statement again when the schema changed under it
                    // (another connection's DDL): then its columns may be others than the layout's.
                    checked = true;
                    if (st.ColumnCount() != ncols + (hasRowId ? 1 : 0)) {
                        cs.layout = BuildLayout(st, *tr, updatable);
                        cs.generation = ci->schemaGeneration;
                        layout = cs.layout;
                        ncols = int(layout->columns.size());
                        kinds.clear();
                        for (const auto& c : layout->columns) kinds.push_back(c.kind);
                    }
                }
                for (int c = 0; c < ncols; ++c) values.push_back(st.Read(c, kinds[size_t(c)]));
                if (hasRowId) rowids.push_back(st.ReadId(ncols));
                ++n;
            }
        } catch (...) {
            Reset();
            throw;
        }
        st.Reset();
        cs.lastRows = n;
        rows = n;
        live = long(n);
        deleted.assign(size_t(n), 0);
        pending = false;
        pos = 0;
        if (keep >= 0)
            for (qsizetype i = 0; i < rows; ++i)
                if (rowids[size_t(i)] == keep) { pos = i; break; }
    }

    void NeedRows()
    {
        if (pending) Materialize();
    }

    const QVariant& Current(int c)
    {
        if (mode == Mode::New) return buffer[size_t(c)];
        if (pending && !OnRow()) Materialize();
        if (!OnRow()) NoCurrentRecord();
        if (mode == Mode::Edit) return buffer[size_t(c)];
        return values[size_t(pos) * size_t(ncols) + size_t(c)];
    }

    int Position(const QString& name) const
    {
        const int i = layout ? layout->Find(name) : -1;
        if (i < 0) ItemNotFound();
        return i;
    }

    void SetField(int c, const QVariant& v)
    {
        RequireOpen();
        if (c < 0 || c >= ncols) ItemNotFound();
        if (!updatable) NotUpdatable();
        const RecordLayout::Column& col = layout->columns[size_t(c)];
        if (col.origin.isEmpty())
            throw StoreError(StoreError::NotUpdatable, QStringLiteral("Field '%1' cannot be updated.").arg(col.name));
        if (mode == Mode::None) {
            if (pending && !OnRow()) Materialize();
            if (!OnRow()) NoCurrentRecord();
            mode = Mode::Edit;
            const auto row = values.begin() + pos * ncols;
            buffer.assign(row, row + ncols);
            dirty.assign(size_t(ncols), 0);
        }
        buffer[size_t(c)] = fieldvalue::Convert(v, col.kind);
        dirty[size_t(c)] = 1;
    }

    void AddNew()
    {
        RequireOpen();
        if (!updatable) NotUpdatable();
        if (mode != Mode::None) Update();
        mode = Mode::New;
        buffer.assign(size_t(ncols), QVariant());
        dirty.assign(size_t(ncols), 0);
        savedPos = pos;
    }

    void Update()
    {
        RequireOpen();
        if (mode == Mode::None) return;
        ConnectionImpl* ci = Conn();
        ci->RequireWritable();
        const auto& w = ci->engine->Writer();
        if (mode == Mode::Edit) {
            QString sql = QStringLiteral("UPDATE ") + w.Name(tr->table) + QStringLiteral(" SET ");
            int params = 0;
            for (int c = 0; c < ncols; ++c) {
                if (!dirty[size_t(c)]) continue;
                if (params++) sql += QLatin1String(", ");
                sql += w.Name(layout->columns[size_t(c)].origin) + QLatin1String(" = ?");
            }
            if (!params) { mode = Mode::None; return; }
            sql += QStringLiteral(" WHERE ") + w.RowIdentity() + QStringLiteral(" = ?");
            storeengine::Statement& st = *ci->Prepare(sql).stmt;
            int p = 1;
            for (int c = 0; c < ncols; ++c)
                if (dirty[size_t(c)]) st.Bind(p++, buffer[size_t(c)]);
            st.Bind(p, QVariant(qlonglong(rowids[size_t(pos)])));
            ci->RunToEnd(st);
            if (ci->engine->Changes() == 0)
                throw StoreError(3197, QStringLiteral("Row cannot be located for updating. Some values may have been "
                                                      "changed since it was last read."));
            std::move(buffer.begin(), buffer.end(), values.begin() + pos * ncols);
            mode = Mode::None;
            return;
        }
        // A new row.
        const TableInfo& table = ci->Table(tr->table);
        QString sql = QStringLiteral("INSERT INTO ") + w.Name(tr->table);
        QString names, marks;
        int params = 0;
        for (int c = 0; c < ncols; ++c) {
            if (!dirty[size_t(c)]) continue;
            if (params++) { names += QLatin1String(", "); marks += QLatin1String(", "); }
            names += w.Name(layout->columns[size_t(c)].origin);
            marks += u'?';
        }
        sql += params ? QStringLiteral(" (") + names + QStringLiteral(") VALUES (") + marks + u')'
                      : QStringLiteral(" DEFAULT VALUES");
        storeengine::Statement& st = *ci->Prepare(sql).stmt;
        int p = 1;
        for (int c = 0; c < ncols; ++c)
            if (dirty[size_t(c)]) st.Bind(p++, buffer[size_t(c)]);
        ci->RunToEnd(st);
        const qint64 rowid = ci->engine->LastInsertId();
        // The row as stored: what was set, the new autonumber, the defaults of the rest.
        for (int c = 0; c < ncols; ++c) {
            if (dirty[size_t(c)]) continue;
            const QString& origin = layout->columns[size_t(c)].origin;
            const int tc = origin.isEmpty() ? -1 : table.Find(origin);
            if (tc < 0) continue;
            if (tc == table.rowIdColumn) buffer[size_t(c)] = QVariant(qlonglong(rowid));
            else buffer[size_t(c)] = table.columns[size_t(tc)].defaultValue;
        }
        if (!table.defaultsKnown) ReadBack(ci, rowid);
        values.insert(values.end(), std::make_move_iterator(buffer.begin()), std::make_move_iterator(buffer.end()));
        rowids.push_back(rowid);
        deleted.push_back(0);
        pos = rows++;
        ++live;
        mode = Mode::None;
    }

    // Reads a row that was just added as the store has it, for defaults SQLite computes.
    void ReadBack(ConnectionImpl* ci, qint64 rowid)
    {
        const auto& w = ci->engine->Writer();
        QString list;
        std::vector<int> cols;
        for (int c = 0; c < ncols; ++c) {
            const QString& origin = layout->columns[size_t(c)].origin;
            if (origin.isEmpty() || dirty[size_t(c)]) continue;
            if (!cols.empty()) list += QLatin1String(", ");
            list += w.Name(origin);
            cols.push_back(c);
        }
        if (cols.empty()) return;
        const QString sql = QStringLiteral("SELECT ") + list + QStringLiteral(" FROM ") + w.Name(tr->table)
            + QStringLiteral(" WHERE ") + w.RowIdentity() + QStringLiteral(" = ?");
        storeengine::Statement& st = *ci->Prepare(sql).stmt;
        st.Bind(1, QVariant(qlonglong(rowid)));
        if (st.Step())
            for (size_t k = 0; k < cols.size(); ++k)
                buffer[size_t(cols[k])] = st.Read(int(k), layout->columns[size_t(cols[k])].kind);
        st.Reset();
    }

    void CancelUpdate()
    {
        if (mode == Mode::New) pos = savedPos;
        mode = Mode::None;
        buffer.clear();
        dirty.clear();
    }

    void Delete()
    {
        RequireOpen();
        if (mode == Mode::New) { CancelUpdate(); return; }
        mode = Mode::None;
        if (pending && !OnRow()) Materialize();
        if (!OnRow()) NoCurrentRecord();
        if (!updatable) NotUpdatable();
        ConnectionImpl* ci = Conn();
        ci->RequireWritable();
        const auto& w = ci->engine->Writer();
        const QString sql = QStringLiteral("DELETE FROM ") + w.Name(tr->table) + QStringLiteral(" WHERE ")
            + w.RowIdentity() + QStringLiteral(" = ?");
        storeengine::Statement& st = *ci->Prepare(sql).stmt;
        st.Bind(1, QVariant(qlonglong(rowids[size_t(pos)])));
        ci->RunToEnd(st);
        deleted[size_t(pos)] = 1;
        --live;
    }

    // Moving on saves an edit, as it does in the system's recordsets.
    void BeforeMove()
    {
        RequireOpen();
        if (mode != Mode::None) Update();
        NeedRows();
    }
};

// ---------------------------------------------------------------------------------------------

Recordset::Recordset() : d(std::make_unique<RecordsetImpl>()) {}
Recordset::Recordset(Connection* conn) : Recordset() { d->conn = conn; }
Recordset::~Recordset() = default;

void Recordset::SetActiveConnection(Connection* conn)
{
    if (d->open) throw StoreError(StoreError::AlreadyOpen, QStringLiteral("Operation is not allowed when the object is open."));
    d->conn = conn;
}

Connection* Recordset::ActiveConnection() const { return d->conn; }

void Recordset::Open(const QString& source, Connection* conn)
{
    SetActiveConnection(conn);
    Open(source);
}

void Recordset::Open(const QString& source)
{
    if (d->open) throw StoreError(StoreError::AlreadyOpen, QStringLiteral("Operation is not allowed when the object is open."));
    ConnectionImpl* ci = d->Conn();
    std::shared_ptr<const Translation> tr = ci->Translate(source);
    using K = sqldialect::Statement;
    if (tr->kind != K::Select && tr->kind != K::BareTable) {
        // A statement that changes rows runs, and the recordset stays closed.
        ci->Execute(source);
        return;
    }
    d->Reset();
    d->tr = tr;
    d->source = source;
    d->updatable = tr->updatable;
    d->readSql = tr->updatable ? tr->sqlWithRowId : tr->sql;
    try {
        if (tr->kind == K::BareTable) {
            d->Statement(ci);   // the table must be there
            d->pending = true;
            d->open = true;
            return;
        }
        d->open = true;
        d->Materialize();
    } catch (...) {
        d->Reset();
        throw;
    }
}

void Recordset::Close()
{
    d->Reset();
}

bool Recordset::IsOpen() const { return d->open; }

bool Recordset::Eof() const
{
    if (!d->open) return true;
    d->NeedRows();
    return d->pos >= d->rows;
}

bool Recordset::Bof() const
{
    if (!d->open) return true;
    d->NeedRows();
    return d->pos < 0 || d->live == 0;
}

void Recordset::MoveNext()
{
    d->BeforeMove();
    if (d->pos >= d->rows) NoCurrentRecord();
    ++d->pos;
    while (d->pos < d->rows && d->deleted[size_t(d->pos)]) ++d->pos;
}

void Recordset::MovePrevious()
{
    d->BeforeMove();
    if (d->pos < 0) NoCurrentRecord();
    --d->pos;
    while (d->pos >= 0 && d->deleted[size_t(d->pos)]) --d->pos;
}

void Recordset::MoveFirst()
{
    d->BeforeMove();
    d->pos = 0;
    while (d->pos < d->rows && d->deleted[size_t(d->pos)]) ++d->pos;
}

void Recordset::MoveLast()
{
    d->BeforeMove();
    d->pos = d->rows - 1;
    while (d->pos >= 0 && d->deleted[size_t(d->pos)]) --d->pos;
    if (d->pos < 0) d->pos = d->rows;
}

long Recordset::RecordCount() const
{
    d->RequireOpen();
    d->NeedRows();
    return d->live;
}

int Recordset::FieldCount() const { return d->open ? d->ncols : 0; }

QString Recordset::FieldName(int position) const
{
    d->RequireOpen();
    if (position < 0 || position >= d->ncols) ItemNotFound();
    return d->layout->columns[size_t(position)].name;
}

bool Recordset::HasField(const QString& name) const
{
    return d->open && d->layout && d->layout->Find(name) >= 0;
}

QVariant Recordset::Field(const QString& name) const
{
    d->RequireOpen();
    return d->Current(d->Position(name));
}

QVariant Recordset::Field(int position) const
{
    d->RequireOpen();
    if (position < 0 || position >= d->ncols) ItemNotFound();
    return d->Current(position);
}

void Recordset::SetField(const QString& name, const QVariant& value)
{
    d->RequireOpen();
    d->SetField(d->Position(name), value);
}

void Recordset::SetField(int position, const QVariant& value) { d->SetField(position, value); }
void Recordset::AddNew() { d->AddNew(); }
void Recordset::Update() { d->Update(); }
void Recordset::CancelUpdate() { d->CancelUpdate(); }
void Recordset::Delete() { d->Delete(); }
