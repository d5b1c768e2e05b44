#include "core/store/sqliteengine.h"

#include "core/store/fieldvalue.h"
#include "core/store/sqlfunctions.h"
#include "core/store/storedate.h"
#include "core/store/storeerror.h"
#include "core/store/value.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <cmath>
#include <cstring>
#include <sqlite3.h>

namespace storeengine {
namespace {



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


// ---------------------------------------------------------------------------------------------
// Fields: a column of the current row as a field of its kind, and a field bound to a parameter.

using fieldvalue::DateValue;
using fieldvalue::FromSerial;

QVariant TextValue(sqlite3_stmt* st, int i)
{
    const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
    return QVariant(QString::fromUtf8(s, sqlite3_column_bytes(st, i)));
}

using fieldvalue::Kind;

QVariant ReadField(sqlite3_stmt* st, int i, Kind kind)
{
    if (kind == Kind::Text) {
        // Text needs no look at the storage class: a Null gives no text at all.
        const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
        if (!s) return QVariant();
        return QVariant(QString::fromUtf8(s, sqlite3_column_bytes(st, i)));
    }
    const int type = sqlite3_column_type(st, i);
    if (type == SQLITE_NULL) return QVariant();
    switch (kind) {
    case Kind::Text:
        return TextValue(st, i);
    case Kind::Bool:
        if (type == SQLITE_TEXT) return QVariant(Val(TextValue(st, i).toString()) != 0);
        return QVariant(sqlite3_column_double(st, i) != 0);
    case Kind::Date: {
        if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) return FromSerial(sqlite3_column_double(st, i));
        const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
        const int len = sqlite3_column_bytes(st, i);
        QDate d;
        QTime t;
        bool hasTime = false;
        if (storedate::ParseIso(s, len, d, t, hasTime)) return DateValue(d, t, hasTime);
        QString text = QString::fromUtf8(s, len);
        if (storedate::Parse(text, d, t, hasTime)) return DateValue(d, t, hasTime);
        return QVariant(text);
    }
    case Kind::Integer:
        if (type == SQLITE_INTEGER) return QVariant(qlonglong(sqlite3_column_int64(st, i)));
        if (type == SQLITE_FLOAT) {
            double v = sqlite3_column_double(st, i);
            if (v == std::trunc(v) && std::fabs(v) < 9e15) return QVariant(qlonglong(v));
            return QVariant(v);
        }
        break;
    case Kind::Real:
        if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) return QVariant(sqlite3_column_double(st, i));
        break;
    case Kind::Blob:
    case Kind::Any:
        break;
    }
    switch (type) {
    case SQLITE_INTEGER: return QVariant(qlonglong(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT: return QVariant(sqlite3_column_double(st, i));
    case SQLITE_BLOB: {
        const char* b = static_cast<const char*>(sqlite3_column_blob(st, i));
        return QVariant(QByteArray(b, sqlite3_column_bytes(st, i)));
    }
    default: {
        if (kind == Kind::Any) {
            // An expression over dates (max(date) ...) keeps the date.
            const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
            const int len = sqlite3_column_bytes(st, i);
            QDate d;
            QTime t;
            bool hasTime = false;
            if ((len == 10 || len == 19) && s[4] == '-' && storedate::ParseIso(s, len, d, t, hasTime))
                return DateValue(d, t, hasTime);
        }
        return TextValue(st, i);
    }
    }
}

void BindField(sqlite3_stmt* st, int i, const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        sqlite3_bind_null(st, i);
        return;
    case QMetaType::Bool:
        sqlite3_bind_int64(st, i, v.toBool() ? -1 : 0);
        return;
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::Long:
    case QMetaType::Short: case QMetaType::UShort: case QMetaType::ULong:
        sqlite3_bind_int64(st, i, v.toLongLong());
        return;
    case QMetaType::ULongLong:
        sqlite3_bind_double(st, i, v.toDouble());
        return;
    case QMetaType::Double: case QMetaType::Float:
        sqlite3_bind_double(st, i, v.toDouble());
        return;
    case QMetaType::QDate: {
        const QByteArray b = storedate::IsoText(v.toDate()).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QDateTime: {
        const QByteArray b = storedate::IsoText(v.toDateTime()).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QTime: {
        const QByteArray b = storedate::IsoText(storedate::BaseDay(), v.toTime(), true).toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    case QMetaType::QByteArray: {
        const QByteArray b = v.toByteArray();
        sqlite3_bind_blob(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    default: {
        const QByteArray b = v.toString().toUtf8();
        sqlite3_bind_text(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    }
}


QString ColumnText(sqlite3_stmt* st, int i)
{
    const char* s = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
    return s ? QString::fromUtf8(s, sqlite3_column_bytes(st, i)) : QString();
}

}  // namespace

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
        return StoreError::ReadOnlyStore(db ? QString::fromUtf8(sqlite3_db_filename(db, "main")) : QString());
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

class SqliteStatement : public Statement {
public:
    SqliteStatement(sqlite3* db, sqlite3_stmt* st, QString messageSql) : m_db(db), m_st(st), m_message(std::move(messageSql)) {}
    ~SqliteStatement() override { sqlite3_finalize(m_st); }

    void Bind(int i, const QVariant& value) override { BindField(m_st, i, value); }
    bool Step() override
    {
        const int rc = sqlite3_step(m_st);
        if (rc == SQLITE_ROW) return true;
        if (rc == SQLITE_DONE) return false;
        const StoreError e = SqliteFailure(m_db, rc, m_message);
        sqlite3_reset(m_st);
        throw e;
    }
    void Reset() override
    {
        sqlite3_reset(m_st);
        sqlite3_clear_bindings(m_st);
    }
    int ColumnCount() const override { return sqlite3_column_count(m_st); }
    ResultColumn Column(int i) const override
    {
        auto text = [](const char* s) { return s ? QString::fromUtf8(s) : QString(); };
        return {text(sqlite3_column_name(m_st, i)), text(sqlite3_column_decltype(m_st, i)),
                text(sqlite3_column_table_name(m_st, i)), text(sqlite3_column_origin_name(m_st, i))};
    }
    QVariant Read(int i, fieldvalue::Kind kind) const override { return ReadField(m_st, i, kind); }
    qint64 ReadId(int i) const override { return sqlite3_column_int64(m_st, i); }

private:
    sqlite3* m_db;
    sqlite3_stmt* m_st;
    QString m_message;
};

SqliteEngine::~SqliteEngine() { Close(); }

void SqliteEngine::Open(const QString& path, const QString& password, bool readOnly)
{
    if (!HasDatabaseHeader(path)) NotAStore(path);
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
    m_db = db;
}

void SqliteEngine::Close()
{
    if (m_db) {
        sqlite3_close_v2(m_db);
        m_db = nullptr;
    }
}

std::unique_ptr<Statement> SqliteEngine::Prepare(const QString& sql, const QString& messageSql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const int rc = sqlite3_prepare_v3(m_db, utf8.constData(), int(utf8.size()), SQLITE_PREPARE_PERSISTENT, &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        throw SqliteFailure(m_db, rc, messageSql.isEmpty() ? sql : messageSql);
    }
    if (!stmt) throw StoreError(StoreError::SyntaxError, QStringLiteral("Invalid SQL statement; expected 'DELETE', "
                                                                       "'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."));
    return std::make_unique<SqliteStatement>(m_db, stmt, messageSql.isEmpty() ? sql : messageSql);
}

void SqliteEngine::Exec(const QString& sql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(m_db, utf8.constData(), int(utf8.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        throw SqliteFailure(m_db, rc, sql);
    }
    if (!stmt) return;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {}
    if (rc != SQLITE_DONE) {
        const StoreError e = SqliteFailure(m_db, rc, sql);
        sqlite3_finalize(stmt);
        throw e;
    }
    sqlite3_finalize(stmt);
}

long SqliteEngine::Changes() const { return long(sqlite3_changes(m_db)); }
qint64 SqliteEngine::LastInsertId() const { return sqlite3_last_insert_rowid(m_db); }
bool SqliteEngine::InTransaction() const { return m_db && !sqlite3_get_autocommit(m_db); }

std::vector<TableColumn> SqliteEngine::TableColumns(const QString& table)
{
    std::vector<TableColumn> out;
    const QByteArray sql = QByteArrayLiteral("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?)");
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(m_db, sql.constData(), int(sql.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        throw SqliteFailure(m_db, rc, QString::fromUtf8(sql));
    }
    const QByteArray n = table.toUtf8();
    sqlite3_bind_text(stmt, 1, n.constData(), int(n.size()), SQLITE_TRANSIENT);
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        TableColumn c;
        c.name = ColumnText(stmt, 0);
        c.declaredType = ColumnText(stmt, 1);
        c.notNull = sqlite3_column_int(stmt, 2) != 0;
        c.hasDefault = sqlite3_column_type(stmt, 3) != SQLITE_NULL;
        c.defaultText = ColumnText(stmt, 3);
        c.primaryKey = sqlite3_column_int(stmt, 4) > 0;
        out.push_back(std::move(c));
    }
    const StoreError e = SqliteFailure(m_db, rc, QString::fromUtf8(sql));
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) throw e;
    return out;
}

void SqliteEngine::ChangeColumnType(const QString& table, const QString& column, const QString& type, bool inTransaction)
{
    sqlite3* db = m_db;
    // SQLite has no ALTER COLUMN: the declared type is changed in the schema, then every value
    // is written again so that it takes the new type.
    sqlite3_stmt* stmt = nullptr;
    const QByteArray q = QByteArrayLiteral("SELECT sql FROM sqlite_schema WHERE type = 'table' AND name = ? COLLATE NOCASE");
    int rc = sqlite3_prepare_v2(db, q.constData(), int(q.size()), &stmt, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_finalize(stmt);
        throw SqliteFailure(db, rc, QString::fromUtf8(q));
    }
    const QByteArray name = table.toUtf8();
    sqlite3_bind_text(stmt, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
    QString create;
    if (sqlite3_step(stmt) == SQLITE_ROW) create = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    const QString columnName = m_writer.Name(column);
    if (create.isEmpty() || !ReplaceColumnDefinition(create, column, columnName + u' ' + type))
        throw StoreError(StoreError::SyntaxError, QStringLiteral("Syntax error in ALTER TABLE statement."));

    const bool own = !inTransaction;
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
        if (rc != SQLITE_DONE) throw SqliteFailure(db, rc, create);
        Exec(QStringLiteral("UPDATE %1 SET %2 = %2").arg(m_writer.Name(table), columnName));
        if (own) Exec(QStringLiteral("RELEASE alter_column"));
    } catch (...) {
        // The schema is never left writable, nor the savepoint open.
        sqlite3_exec(db, "PRAGMA writable_schema = OFF", nullptr, nullptr, nullptr);
        if (own) sqlite3_exec(db, "ROLLBACK TO alter_column; RELEASE alter_column", nullptr, nullptr, nullptr);
        throw;
    }
}

std::unique_ptr<Engine> MakeSqliteEngine() { return std::make_unique<SqliteEngine>(); }

void CreateSqliteStore(const QString& path, const QString& schemaSql, const QString& seedSql, const QString& password)
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

}  // namespace storeengine
