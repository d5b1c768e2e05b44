#include "core/store/connection.h"

#include "core/store/connectionimpl.h"
#include "core/store/engine.h"
#include "core/store/sqlwriter.h"
#include "core/store/value.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

const char* const kClosed = "Operation is not allowed when the object is closed.";

// The parts of a connection string: "key=value;key=value;".
QHash<QString, QString> ParseConnectionString(const QString& text)
{
    QHash<QString, QString> parts;
    for (const QString& item : text.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype eq = item.indexOf(u'=');
        if (eq < 0) continue;
        parts.insert(item.left(eq).trimmed().toLower(), item.mid(eq + 1).trimmed());
    }
    return parts;
}

QString BaseTypeWord(const QString& declared)
{
    QString t = declared.trimmed().toUpper();
    const qsizetype cut = t.indexOf(QRegularExpression(QStringLiteral("[ (]")));
    return cut < 0 ? t : t.left(cut);
}

}  // namespace

// ---------------------------------------------------------------------------------------------

int TableInfo::Find(const QString& column) const
{
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

// ---------------------------------------------------------------------------------------------

ConnectionImpl::ConnectionImpl()
    : engine(storeengine::MakeSqliteEngine()),
      m_translations(1000, [](std::shared_ptr<const Translation>&) {}),
      m_statements(200, [](CachedStatement& s) { s.stmt.reset(); })
{
}

ConnectionImpl::~ConnectionImpl()
{
    Close();
}

void ConnectionImpl::RequireOpen() const
{
    if (!IsOpen()) throw StoreError(StoreError::NotOpen, QString::fromLatin1(kClosed));
}

void ConnectionImpl::RequireWritable() const
{
    RequireOpen();
    if (readOnly) throw StoreError::ReadOnlyStore(path);
}

std::shared_ptr<const Translation> ConnectionImpl::Translate(const QString& dialectSql)
{
    if (auto* hit = m_translations.Find(dialectSql)) return *hit;
    auto t = std::make_shared<const Translation>(TranslateFor(dialectSql, engine->Writer()));
    m_translations.Insert(dialectSql, t);
    return t;
}

CachedStatement& ConnectionImpl::Prepare(const QString& sql, const QString& messageSql)
{
    RequireOpen();
    if (CachedStatement* hit = m_statements.Find(sql)) {
        hit->stmt->Reset();
        return *hit;
    }
    CachedStatement entry;
    entry.stmt = engine->Prepare(sql, messageSql);
    return *m_statements.Insert(sql, std::move(entry));
}

void ConnectionImpl::Exec(const QString& sql)
{
    RequireOpen();
    engine->Exec(sql);
}

void ConnectionImpl::RunToEnd(storeengine::Statement& stmt)
{
    while (stmt.Step()) {}
    stmt.Reset();
}

const TableInfo& ConnectionImpl::Table(const QString& name)
{
    RequireOpen();
    const QString key = name.toLower();
    if (auto it = m_tables.constFind(key); it != m_tables.constEnd()) return **it;
    auto info = std::make_shared<TableInfo>();
    int pkCount = 0, pkColumn = -1;
    for (const storeengine::TableColumn& tc : engine->TableColumns(name)) {
        TableInfo::Column c;
        c.name = tc.name;
        c.declaredType = tc.declaredType;
        c.kind = fieldvalue::KindOf(tc.declaredType.toUtf8().constData());
        c.notNull = tc.notNull;
        if (tc.hasDefault) {
            QString d = tc.defaultText.trimmed();
            while (d.startsWith(u'(') && d.endsWith(u')')) d = d.mid(1, d.size() - 2).trimmed();
            static const QRegularExpression number(QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?$"));
            if (d.compare(u"null", Qt::CaseInsensitive) == 0) {
                c.defaultValue = QVariant();
            } else if (number.match(d).hasMatch()) {
                c.defaultValue = fieldvalue::Convert(QVariant(d.toDouble()), c.kind);
            } else if (d.size() >= 2 && d.startsWith(u'\'') && d.endsWith(u'\'')) {
                try {
                    c.defaultValue = fieldvalue::Convert(QVariant(d.mid(1, d.size() - 2).replace(QStringLiteral("''"), QStringLiteral("'"))), c.kind);
                } catch (const StoreError&) {
                    c.defaultKnown = false;
                }
            } else if (d.compare(u"true", Qt::CaseInsensitive) == 0 || d.compare(u"false", Qt::CaseInsensitive) == 0) {
                c.defaultValue = fieldvalue::Convert(QVariant(d.compare(u"true", Qt::CaseInsensitive) == 0 ? 1 : 0), c.kind);
            } else {
                c.defaultKnown = false;
            }
            if (!c.defaultKnown) info->defaultsKnown = false;
        }
        if (tc.primaryKey) {
            ++pkCount;
            pkColumn = int(info->columns.size());
        }
        info->columns.push_back(std::move(c));
    }
    if (info->columns.empty())
        throw StoreError(StoreError::NoSuchTable,
                         QStringLiteral("The database engine cannot find the input table or query '%1'. Make sure it "
                                        "exists and that its name is spelled correctly.").arg(name));
    if (pkCount == 1 && info->columns[size_t(pkColumn)].declaredType.compare(u"INTEGER", Qt::CaseInsensitive) == 0)
        info->rowIdColumn = pkColumn;
    info->name = name;
    m_tables.insert(key, info);
    return *info;
}

void ConnectionImpl::SchemaChanged()
{
    m_tables.clear();
    ++schemaGeneration;
}

long ConnectionImpl::Execute(const QString& dialectSql)
{
    RequireOpen();
    const std::shared_ptr<const Translation> t = Translate(dialectSql);
    using K = sqldialect::Statement;
    if (t->kind != K::Select && t->kind != K::BareTable) RequireWritable();
    switch (t->kind) {
    case K::AlterColumn:
        AlterColumn(*t);
        return 0;
    case K::Select:
    case K::Insert:
    case K::Update:
    case K::Delete: {
        CachedStatement& s = Prepare(t->sql, dialectSql);
        RunToEnd(*s.stmt);
        return t->kind == K::Select ? 0 : engine->Changes();
    }
    case K::BareTable:
        throw StoreError(StoreError::SyntaxError, QStringLiteral("Invalid SQL statement; expected 'DELETE', 'INSERT', "
                                                                 "'PROCEDURE', 'SELECT', or 'UPDATE'."));
    default:
        try {
            Exec(t->sql);
        } catch (const StoreError& e) {
            if (e.Number() == StoreError::FieldExists)
                throw StoreError(e.Number(), QStringLiteral("Field '%1' already exists in table '%2'.")
                                                 .arg(t->column.name, t->table));
            throw;
        }
        SchemaChanged();
        return 0;
    }
}

void ConnectionImpl::AlterColumn(const Translation& t)
{
    const TableInfo& info = Table(t.table);
    const int col = info.Find(t.column.name);
    if (col < 0)
        throw StoreError(StoreError::ItemNotFound, QStringLiteral("Item not found in this collection."));
    if (BaseTypeWord(info.columns[size_t(col)].declaredType) == BaseTypeWord(t.columnType)) return;   // already so
    const QString table = info.name, column = info.columns[size_t(col)].name;
    // Statements prepared on the table are made again after the change.
    m_statements.Clear();
    try {
        engine->ChangeColumnType(table, column, t.columnType, transactionDepth > 0);
    } catch (...) {
        SchemaChanged();
        throw;
    }
    SchemaChanged();
}

void ConnectionImpl::Close()
{
    m_statements.Clear();
    m_translations.Clear();
    m_tables.clear();
    engine->Close();
    path.clear();
    readOnly = false;
    transactionDepth = 0;
    ++schemaGeneration;
}

// ---------------------------------------------------------------------------------------------

Connection::Connection() : d(std::make_unique<ConnectionImpl>()) {}
Connection::~Connection() = default;

void Connection::Open(const QString& connectionString)
{
    if (d->IsOpen()) throw StoreError(StoreError::AlreadyOpen, QStringLiteral("Operation is not allowed when the object is open."));
    const QHash<QString, QString> parts = ParseConnectionString(connectionString);
    const QString path = parts.value(QStringLiteral("data source"));
    const QString password = parts.value(QStringLiteral("jet oledb:database password"));
    const QFileInfo fi(path);
    if (path.isEmpty() || !fi.exists() || fi.isDir())
        throw StoreError(StoreError::FileNotFound, QStringLiteral("Could not find file '%1'.").arg(path));
    const bool readOnly = parts.value(QStringLiteral("mode")).compare(u"read", Qt::CaseInsensitive) == 0
        || MustOpenReadOnly(path);
    d->engine->Open(path, password, readOnly);
    d->path = path;
    d->readOnly = readOnly;
    d->transactionDepth = 0;
    d->SchemaChanged();
}

void Connection::Close()
{
    d->Close();
}

bool Connection::IsOpen() const { return d->IsOpen(); }
bool Connection::IsReadOnly() const { return d->IsOpen() && d->readOnly; }

bool Connection::MustOpenReadOnly(const QString& path)
{
    const QFileInfo file(path);
    return !file.isWritable() || !QFileInfo(file.absolutePath()).isWritable();
}

QString Connection::Path() const { return d->path; }

long Connection::Execute(const QString& sql)
{
    return d->Execute(sql);
}

void Connection::BeginTrans()
{
    d->RequireOpen();
    if (d->transactionDepth == 0) d->Exec(QStringLiteral("BEGIN"));
    else d->Exec(QStringLiteral("SAVEPOINT level%1").arg(d->transactionDepth));
    ++d->transactionDepth;
}

void Connection::CommitTrans()
{
    d->RequireOpen();
    if (d->transactionDepth == 0)
        throw StoreError(3034, QStringLiteral("You tried to commit or rollback a transaction without first beginning a transaction."));
    --d->transactionDepth;
    try {
        if (d->transactionDepth == 0) d->Exec(QStringLiteral("COMMIT"));
        else d->Exec(QStringLiteral("RELEASE level%1").arg(d->transactionDepth));
    } catch (const StoreError&) {
        // A commit that fails (a deferred constraint, a lock) leaves the transaction open: it
        // stays counted, so that the caller's rollback (StoreTransaction's) ends it. Where the
        // engine has ended it already, nothing is left to end.
        if (!d->engine->InTransaction()) d->transactionDepth = 0;
        else ++d->transactionDepth;
        throw;
    }
}

void Connection::RollbackTrans()
{
    d->RequireOpen();
    if (d->transactionDepth == 0)
        throw StoreError(3034, QStringLiteral("You tried to commit or rollback a transaction without first beginning a transaction."));
    --d->transactionDepth;
    if (d->transactionDepth == 0) {
        d->Exec(QStringLiteral("ROLLBACK"));
    } else {
        d->Exec(QStringLiteral("ROLLBACK TO level%1").arg(d->transactionDepth));
        d->Exec(QStringLiteral("RELEASE level%1").arg(d->transactionDepth));
    }
    d->SchemaChanged();
}

void Connection::CreateStore(const QString& path, const QString& schemaSql, const QString& seedSql, const QString& password)
{
    storeengine::CreateSqliteStore(path, schemaSql, seedSql, password);
}
