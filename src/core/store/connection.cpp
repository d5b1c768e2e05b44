#include "core/store/connection.h"

#include "core/store/connectionimpl.h"
#include "core/store/sqlfunctions.h"
#include "core/store/sqlwriter.h"
#include "core/store/value.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <sqlite3.h>

namespace {

const char* const kClosed = "Operation is not allowed when the object is closed.";

QString ErrText(sqlite3* db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

QString CaptureAfter(const QString& msg, const char* prefix)
{
    const QString p = QString::fromLatin1(prefix);
    return msg.startsWith(p) ? msg.mid(p.size()).trimmed() : QString();
}

QString Unquote(QString s)
{
    if (s.size() >= 2 && (s.front() == u'"' || s.front() == u'\'' || s.front() == u'[' || s.front() == u'`')) s = s.mid(1, s.size() - 2);
    return s;
}

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

StoreError ReadOnlyError(const QString& path)
{
    return StoreError(StoreError::ReadOnly,
                      QStringLiteral("Cannot update. The store '%1' is read-only: changes cannot be saved.").arg(path));
}

[[noreturn]] void NotAStore(const QString& path)
{
    throw StoreError(StoreError::NotADatabase, QStringLiteral("Unrecognized database format '%1'.").arg(path));
}

// Whether a file begins as an SQLite database does. An empty or foreign file is no store, and
// is never handed to SQLite, which would take an empty file for a new database and write to it.
bool HasDatabaseHeader(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return false;
    const QByteArray head = f.read(100);
    return head.size() == 100 && head.startsWith(QByteArray("SQLite format 3\0", 16));
}

// Opens a store file. Read-only, it is opened as a file that does not change: no journal, no
// lock files beside it, so a store in a folder that cannot be written reads as any other.
enum class OpenAs { ReadWrite, Look, ReadOnly };
int OpenFile(const QString& path, OpenAs as, sqlite3** db)
{
    if (as != OpenAs::ReadOnly) {
        const QByteArray file = QFile::encodeName(path);
        return sqlite3_open_v2(file.constData(), db,
                               (as == OpenAs::Look ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX,
                               nullptr);
    }
    const QByteArray uri = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
    return sqlite3_open_v2(uri.constData(), db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
}

QString BaseTypeWord(const QString& declared)
{
    QString t = declared.trimmed().toUpper();
    const qsizetype cut = t.indexOf(QRegularExpression(QStringLiteral("[ (]")));
    return cut < 0 ? t : t.left(cut);
}

// Replaces the definition of one column in a CREATE TABLE text.
bool ReplaceColumnDefinition(QString& createSql, const QString& column, const QString& definition)
{
    const qsizetype open = createSql.indexOf(u'(');
    if (open < 0) return false;
    qsizetype itemStart = open + 1;
    int depth = 0;
    for (qsizetype i = open + 1; i < createSql.size(); ++i) {
        const QChar c = createSql[i];
        if (c == u'\'' || c == u'"' || c == u'`' || c == u'[') {
            const QChar close = c == u'[' ? u']' : c;
            i = createSql.indexOf(close, i + 1);
            if (i < 0) return false;
            continue;
        }
        if (c == u'(') { ++depth; continue; }
        if ((c == u')' && depth == 0) || (c == u',' && depth == 0)) {
            const QString item = createSql.mid(itemStart, i - itemStart);
            const QString trimmed = item.trimmed();
            // The item's first word is the column's name.
            QString name;
            if (!trimmed.isEmpty() && (trimmed[0] == u'"' || trimmed[0] == u'[' || trimmed[0] == u'`')) {
                const QChar close = trimmed[0] == u'[' ? u']' : trimmed[0];
                name = trimmed.mid(1, trimmed.indexOf(close, 1) - 1);
            } else {
                name = trimmed.section(QRegularExpression(QStringLiteral("\\s+")), 0, 0);
            }
            if (name.compare(column, Qt::CaseInsensitive) == 0) {
                createSql.replace(itemStart, i - itemStart, u' ' + definition);
                return true;
            }
            if (c == u')') return false;
            itemStart = i + 1;
            continue;
        }
        if (c == u')') --depth;
    }
    return false;
}

// Indexes on text made before the store folded every letter were ordered by SQLite's own NOCASE,
// which folds ASCII letters only: they are rebuilt once under the folding collation, and the
// store keeps a mark (user_version 1) that this was done. Stores made here carry the mark.
void RebuildFoldedIndexes(sqlite3* db)
{
    sqlite3_stmt* stmt = nullptr;
    int version = 0;
    if (sqlite3_prepare_v2(db, "PRAGMA user_version", -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
        version = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    if (version >= 1) return;
    // A unique index whose texts differ only in the case of a non-ASCII letter cannot be rebuilt;
    // the store then stays as it was, and is tried again next time.
    if (sqlite3_exec(db, "BEGIN; REINDEX NOCASE; PRAGMA user_version = 1; COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
}

}  // namespace

// ---------------------------------------------------------------------------------------------

int TableInfo::Find(const QString& column) const
{
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

StoreError SqliteFailure(sqlite3* db, int rc, const QString& sql)
{
    const QString msg = db ? ErrText(db) : QString::fromUtf8(sqlite3_errstr(rc));
    const int ext = db ? sqlite3_extended_errcode(db) : rc;
    QString name;
    if (!(name = CaptureAfter(msg, "no such table:")).isEmpty())
        return StoreError(StoreError::NoSuchTable,
                          QStringLiteral("The database engine cannot find the input table or query '%1'. Make sure it "
                                         "exists and that its name is spelled correctly.").arg(name));
    static const QRegularExpression exists(QStringLiteral("^table (.+) already exists$"));
    if (auto m = exists.match(msg); m.hasMatch())
        return StoreError(StoreError::TableExists, QStringLiteral("Table '%1' already exists.").arg(Unquote(m.captured(1))));
    if (!(name = CaptureAfter(msg, "duplicate column name:")).isEmpty())
        return StoreError(StoreError::FieldExists, QStringLiteral("Field '%1' already exists in table.").arg(name));
    if (msg.startsWith(u"no such column:"))
        return StoreError(StoreError::MissingValue, QStringLiteral("No value given for one or more required parameters."));
    if (!(name = CaptureAfter(msg, "no such function:")).isEmpty())
        return StoreError(StoreError::SyntaxError, QStringLiteral("Undefined function '%1' in expression.").arg(name));
    if ((rc & 0xff) == SQLITE_CONSTRAINT) {
        if (ext == SQLITE_CONSTRAINT_NOTNULL) {
            const QString field = CaptureAfter(msg, "NOT NULL constraint failed:");
            return StoreError(StoreError::NullNotAllowed,
                              QStringLiteral("The field '%1' cannot contain a Null value because the Required property "
                                             "for this field is set to True. Enter a value in this field.").arg(field));
        }
        return StoreError(StoreError::ConstraintViolation,
                          QStringLiteral("The changes you requested to the table were not successful because they "
                                         "would create duplicate values in the index, primary key, or relationship. "
                                         "Change the data in the field or fields that contain duplicate data, remove "
                                         "the index, or redefine the index to permit duplicate entries and try again."));
    }
    if ((rc & 0xff) == SQLITE_ERROR
        && (msg.contains(u"syntax error") || msg.startsWith(u"near ") || msg.contains(u"incomplete input")
            || msg.startsWith(u"unrecognized token") || msg.startsWith(u"wrong number of arguments")))
        return StoreError(StoreError::SyntaxError, QStringLiteral("Syntax error in query expression '%1'.").arg(sql));
    switch (rc & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError(3260, QStringLiteral("Could not update; currently locked."));
    case SQLITE_READONLY:
        return ReadOnlyError(db ? QString::fromUtf8(sqlite3_db_filename(db, "main")) : QString());
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return StoreError(StoreError::NotADatabase, QStringLiteral("Unrecognized database format '%1'.")
                                                        .arg(db ? QString::fromUtf8(sqlite3_db_filename(db, "main")) : QString()));
    case SQLITE_FULL:
        return StoreError(3035, QStringLiteral("System resource exceeded."));
    default:
        return StoreError(StoreError::Generic, msg);
    }
}

// ---------------------------------------------------------------------------------------------

ConnectionImpl::ConnectionImpl()
    : m_translations(1000, [](std::shared_ptr<const Translation>&) {}),
      m_statements(200, [](CachedStatement& s) { sqlite3_finalize(s.stmt); s.stmt = nullptr; })
{
}

ConnectionImpl::~ConnectionImpl()
{
    Close();
}

void ConnectionImpl::RequireOpen() const
{
    if (!db) throw StoreError(StoreError::NotOpen, QString::fromLatin1(kClosed));
}

void ConnectionImpl::RequireWritable() const
{
    RequireOpen();
    if (readOnly) throw ReadOnlyError(path);
}

void ConnectionImpl::Throw(int rc, const QString& sql) const
{
    throw SqliteFailure(db, rc, sql);
}

std::shared_ptr<const Translation> ConnectionImpl::Translate(const QString& dialectSql)
{
    if (auto* hit = m_translations.Find(dialectSql)) return *hit;
    auto t = std::make_shared<const Translation>(TranslateForSqlite(dialectSql));
    m_translations.Insert(dialectSql, t);
    return t;
}

CachedStatement& ConnectionImpl::Prepare(const QString& sqliteSql, const QString& messageSql)
{
    RequireOpen();
    if (CachedStatement* hit = m_statements.Find(sqliteSql)) {
        sqlite3_reset(hit->stmt);
        sqlite3_clear_bindings(hit->stmt);
        return *hit;
    }
    const QByteArray utf8 = sqliteSql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const char* tail = nullptr;
    const int rc = sqlite3_prepare_v3(db, utf8.constData(), int(utf8.size()), SQLITE_PREPARE_PERSISTENT, &stmt, &tail);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        Throw(rc, messageSql.isEmpty() ? sqliteSql : messageSql);
    }
    if (!stmt) throw StoreError(StoreError::SyntaxError, QStringLiteral("Invalid SQL statement; expected 'DELETE', "
                                                                       "'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."));
    CachedStatement entry;
    entry.stmt = stmt;
    return *m_statements.Insert(sqliteSql, std::move(entry));
}

void ConnectionImpl::Exec(const QString& sqliteSql)
{
    RequireOpen();
    const QByteArray utf8 = sqliteSql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(db, utf8.constData(), int(utf8.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        Throw(rc, sqliteSql);
    }
    if (!stmt) return;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {}
    if (rc != SQLITE_DONE) {
        const StoreError e = SqliteFailure(db, rc, sqliteSql);
        sqlite3_finalize(stmt);
        throw e;
    }
    sqlite3_finalize(stmt);
}

void ConnectionImpl::RunToEnd(sqlite3_stmt* stmt, const QString& sqlForMessage)
{
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {}
    if (rc != SQLITE_DONE) {
        const StoreError e = SqliteFailure(db, rc, sqlForMessage);
        sqlite3_reset(stmt);
        throw e;
    }
    sqlite3_reset(stmt);
}

const TableInfo& ConnectionImpl::Table(const QString& name)
{
    RequireOpen();
    const QString key = name.toLower();
    if (auto it = m_tables.constFind(key); it != m_tables.constEnd()) return **it;
    auto info = std::make_shared<TableInfo>();
    const QByteArray sql = QByteArrayLiteral("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?)");
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(db, sql.constData(), int(sql.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) Throw(rc, QString::fromUtf8(sql));
    const QByteArray n = name.toUtf8();
    sqlite3_bind_text(stmt, 1, n.constData(), int(n.size()), SQLITE_TRANSIENT);
    int pkCount = 0, pkColumn = -1;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        TableInfo::Column c;
        c.name = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
        c.declaredType = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1)));
        c.kind = fieldvalue::KindOf(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1)));
        c.notNull = sqlite3_column_int(stmt, 2) != 0;
        if (sqlite3_column_type(stmt, 3) != SQLITE_NULL) {
            QString d = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 3))).trimmed();
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
        if (sqlite3_column_int(stmt, 4) > 0) {
            ++pkCount;
            pkColumn = int(info->columns.size());
        }
        info->columns.push_back(std::move(c));
    }
    sqlite3_finalize(stmt);
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
        RunToEnd(s.stmt, dialectSql);
        return t->kind == K::Select ? 0 : long(sqlite3_changes(db));
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

    // SQLite has no ALTER COLUMN: the declared type is changed in the schema, then every value
    // is written again so that it takes the new type.
    sqlite3_stmt* stmt = nullptr;
    const QByteArray q = QByteArrayLiteral("SELECT sql FROM sqlite_schema WHERE type = 'table' AND name = ? COLLATE NOCASE");
    int rc = sqlite3_prepare_v2(db, q.constData(), int(q.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) Throw(rc, QString::fromUtf8(q));
    const QByteArray name = info.name.toUtf8();
    sqlite3_bind_text(stmt, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
    QString create;
    if (sqlite3_step(stmt) == SQLITE_ROW) create = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    sqldialect::SqliteWriter writer;
    const QString columnName = writer.Name(info.columns[size_t(col)].name);
    if (create.isEmpty() || !ReplaceColumnDefinition(create, info.columns[size_t(col)].name, columnName + u' ' + t.columnType))
        throw StoreError(StoreError::SyntaxError, QStringLiteral("Syntax error in ALTER TABLE statement."));

    const bool own = transactionDepth == 0;
    if (own) Exec(QStringLiteral("SAVEPOINT alter_column"));
    try {
        int version = 0;
        {
            sqlite3_stmt* v = nullptr;
            sqlite3_prepare_v2(db, "PRAGMA schema_version", -1, &v, nullptr);
            if (v && sqlite3_step(v) == SQLITE_ROW) version = sqlite3_column_int(v, 0);
            sqlite3_finalize(v);
        }
        Exec(QStringLiteral("PRAGMA writable_schema = ON"));
        sqlite3_stmt* u = nullptr;
        const QByteArray upd = QByteArrayLiteral("UPDATE sqlite_schema SET sql = ? WHERE type = 'table' AND name = ?");
        sqlite3_prepare_v2(db, upd.constData(), int(upd.size()), &u, nullptr);
        const QByteArray createUtf8 = create.toUtf8();
        sqlite3_bind_text(u, 1, createUtf8.constData(), int(createUtf8.size()), SQLITE_TRANSIENT);
        sqlite3_bind_text(u, 2, name.constData(), int(name.size()), SQLITE_TRANSIENT);
        rc = u ? sqlite3_step(u) : SQLITE_ERROR;
        sqlite3_finalize(u);
        Exec(QStringLiteral("PRAGMA schema_version = %1").arg(version + 1));
        Exec(QStringLiteral("PRAGMA writable_schema = OFF"));
        if (rc != SQLITE_DONE) Throw(rc, create);
        SchemaChanged();
        m_statements.Clear();
        Exec(QStringLiteral("UPDATE %1 SET %2 = %2").arg(writer.Name(info.name), columnName));
        if (own) Exec(QStringLiteral("RELEASE alter_column"));
    } catch (...) {
        // The schema is never left writable, nor the savepoint open.
        sqlite3_exec(db, "PRAGMA writable_schema = OFF", nullptr, nullptr, nullptr);
        if (own) {
            sqlite3_exec(db, "ROLLBACK TO alter_column; RELEASE alter_column", nullptr, nullptr, nullptr);
        }
        SchemaChanged();
        m_statements.Clear();
        throw;
    }
    SchemaChanged();
}

void ConnectionImpl::Close()
{
    m_statements.Clear();
    m_translations.Clear();
    m_tables.clear();
    if (db) {
        sqlite3_close_v2(db);
        db = nullptr;
    }
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
    if (!HasDatabaseHeader(path)) NotAStore(path);

    const bool readOnly = parts.value(QStringLiteral("mode")).compare(u"read", Qt::CaseInsensitive) == 0
        || MustOpenReadOnly(path);

    // Look at the file read-only first: a foreign or broken file is left exactly as it is.
    sqlite3* db = nullptr;
    QString stored;
    bool readable = false;
    if (OpenFile(path, readOnly ? OpenAs::ReadOnly : OpenAs::Look, &db) == SQLITE_OK) {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db, "SELECT password FROM store_key", -1, &stmt, nullptr) == SQLITE_OK) {
            if (sqlite3_step(stmt) == SQLITE_ROW) {
                readable = true;
                stored = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
            }
        }
        sqlite3_finalize(stmt);
    }
    sqlite3_close_v2(db);
    db = nullptr;
    if (!readable) NotAStore(path);
    if (stored != password) throw StoreError(StoreError::InvalidPassword, QStringLiteral("Not a valid password."));

    int rc = OpenFile(path, readOnly ? OpenAs::ReadOnly : OpenAs::ReadWrite, &db);
    if (rc != SQLITE_OK) {
        sqlite3_close_v2(db);
        NotAStore(path);
    }
    sqlite3_extended_result_codes(db, 1);
    sqlite3_busy_timeout(db, 5000);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    // Each statement commits on its own: WAL with synchronous=NORMAL makes that cheap and safe.
    // A store open read-only keeps its journal as it is: WAL needs files beside the store.
    if (!readOnly)
        sqlite3_exec(db, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;", nullptr, nullptr, nullptr);
    sqlite3_exec(db, "PRAGMA temp_store = MEMORY;", nullptr, nullptr, nullptr);
    RegisterSqlFunctions(db);
    if (!readOnly) RebuildFoldedIndexes(db);
    d->db = db;
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
sqlite3* Connection::Handle() const { return d->db; }

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
        if (sqlite3_get_autocommit(d->db)) d->transactionDepth = 0;
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
    if (QFileInfo::exists(path)) throw StoreError(StoreError::FileExists, QStringLiteral("File already exists."));
    // The store is made under a working name and takes its own name only when complete, so
    // that a failure or a crash never leaves a half-made store that would be kept.
    const QString work = path + QStringLiteral(".creating");
    auto removeWork = [&work] {
        for (const char* suffix : {"", "-wal", "-shm", "-journal"}) QFile::remove(work + QLatin1String(suffix));
    };
    removeWork();
    const QByteArray file = QFile::encodeName(work);
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(file.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr)
        != SQLITE_OK) {
        const QString msg = db ? ErrText(db) : QString();
        sqlite3_close_v2(db);
        removeWork();
        throw StoreError(StoreError::FileNotFound, QStringLiteral("Could not create file '%1'. %2").arg(path, msg));
    }
    sqlite3_extended_result_codes(db, 1);
    RegisterSqlFunctions(db);
    auto fail = [&](const QString& stage) {
        const StoreError e(StoreError::Generic, QStringLiteral("Could not create '%1' (%2): %3").arg(path, stage, ErrText(db)));
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close_v2(db);
        removeWork();
        throw e;
    };
    // A new file needs no journal while it is filled: a failure removes it. The log of
    // everyday work is switched on once it is complete.
    if (sqlite3_exec(db, "PRAGMA journal_mode = OFF; PRAGMA synchronous = NORMAL; BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(QStringLiteral("start"));
    if (sqlite3_exec(db, schemaSql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(QStringLiteral("schema"));
    if (sqlite3_exec(db, seedSql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) fail(QStringLiteral("seed"));
    if (sqlite3_exec(db, "PRAGMA user_version = 1", nullptr, nullptr, nullptr) != SQLITE_OK) fail(QStringLiteral("key"));
    if (sqlite3_exec(db, "CREATE TABLE store_key (password TEXT)", nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(QStringLiteral("key"));
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db, "INSERT INTO store_key (password) VALUES (?)", -1, &stmt, nullptr) != SQLITE_OK)
        fail(QStringLiteral("key"));
    const QByteArray pw = password.toUtf8();
    sqlite3_bind_text(stmt, 1, pw.constData(), int(pw.size()), SQLITE_TRANSIENT);
    const int rc = sqlite3_step(stmt);
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) fail(QStringLiteral("key"));
    if (sqlite3_exec(db, "COMMIT; PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(QStringLiteral("commit"));
    sqlite3_close_v2(db);
    if (!QFile::rename(work, path)) {
        removeWork();
        throw StoreError(StoreError::FileExists, QStringLiteral("File already exists."));
    }
}
