#pragma once
// The inside of a Connection, shared with Recordset: the engine, the caches of translations and
// prepared statements, and what is known of each table. Nothing here knows which engine it is.
#include <QHash>
#include <algorithm>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "core/store/connection.h"
#include "core/store/engine.h"
#include "core/store/fieldvalue.h"
#include "core/store/storeerror.h"
#include "core/store/translation.h"

// A cache that keeps what was used lately: when the current generation is full it becomes the
// old one, and what the old one held and was not used again is dropped.
template <class V>
class RecentCache {
public:
    RecentCache(size_t capacity, std::function<void(V&)> drop) : m_capacity(capacity), m_drop(std::move(drop)) {}
    ~RecentCache() { Clear(); }

    V* Find(const QString& key)
    {
        auto it = m_current.find(key);
        if (it != m_current.end()) return &it->second;
        auto old = m_old.find(key);
        if (old == m_old.end()) return nullptr;
        V v = std::move(old->second);
        m_old.erase(old);
        return Insert(key, std::move(v));
    }
    V* Insert(const QString& key, V v)
    {
        if (m_current.size() >= m_capacity) {
            for (auto& e : m_old) m_drop(e.second);
            m_old = std::move(m_current);
            m_current.clear();
        }
        return &m_current.insert_or_assign(key, std::move(v)).first->second;
    }
    void Clear()
    {
        for (auto& e : m_current) m_drop(e.second);
        for (auto& e : m_old) m_drop(e.second);
        m_current.clear();
        m_old.clear();
    }
    template <class F>
    void ForEach(F f)
    {
        for (auto& e : m_current) f(e.second);
        for (auto& e : m_old) f(e.second);
    }

private:
    size_t m_capacity;
    std::function<void(V&)> m_drop;
    std::unordered_map<QString, V> m_current, m_old;
};

// The columns of a statement as a recordset shows them.
struct RecordLayout {
    struct Column {
        QString name;               // as the recordset names it ("a.Group_ID" where two tables share a name)
        fieldvalue::Kind kind;
        QString origin;             // the base table's column it comes from; empty for an expression
    };
    std::vector<Column> columns;    // without the hidden rowid
    bool hasRowId = false;          // the statement's last column is the rowid
    QHash<QString, int> byName;     // lower-case names -> position

    // Screens ask for the same fields row after row, mostly with literal names: a name whose
    // text sits where it sat before is found without hashing (its text is still compared).
    struct Recent {
        const QChar* data = nullptr;
        QString spelling;
        int position = -1;
    };
    mutable Recent recent[16];
    mutable unsigned next = 0;

    int Find(const QString& name) const
    {
        const QChar* data = name.constData();
        for (const Recent& r : recent)
            if (r.data == data && r.spelling.size() == name.size()
                && std::equal(data, data + name.size(), r.spelling.constData()))
                return r.position;
        auto low = byName.constFind(name.toLower());
        if (low == byName.constEnd()) return -1;
        Recent& r = recent[next++ % 16];
        r.data = data;
        r.spelling = name;
        r.spelling.detach();
        r.position = *low;
        return *low;
    }
};

struct CachedStatement {
    std::unique_ptr<storeengine::Statement> stmt;
    std::shared_ptr<const RecordLayout> layout;
    quint64 generation = 0;         // the schema generation the layout belongs to
    qsizetype lastRows = 0;         // rows it gave last time, to make room for as many
};

// What the store knows of a table's columns.
struct TableInfo {
    struct Column {
        QString name;
        QString declaredType;
        fieldvalue::Kind kind;
        bool notNull = false;
        QVariant defaultValue;      // as a field of the column's kind
        bool defaultKnown = true;   // false for a default SQLite computes (CURRENT_TIMESTAMP ...)
    };
    QString name;                   // as the store spells it
    std::vector<Column> columns;
    int rowIdColumn = -1;           // the INTEGER PRIMARY KEY (autonumber) column, if any
    bool defaultsKnown = true;

    int Find(const QString& column) const;
};

class ConnectionImpl {
public:
    ConnectionImpl();
    ~ConnectionImpl();

    std::unique_ptr<storeengine::Engine> engine;
    QString path;
    bool readOnly = false;
    int transactionDepth = 0;
    quint64 schemaGeneration = 1;

    bool IsOpen() const { return engine->IsOpen(); }
    void RequireOpen() const;
    // Throws StoreError(ReadOnly) on a store open read-only.
    void RequireWritable() const;

    // The translation of a dialect statement, cached.
    std::shared_ptr<const Translation> Translate(const QString& dialectSql);
    // A prepared statement of the engine's SQL, cached and reset. It stays valid until the next
    // call of Prepare. Failures name messageSql (the statement as the screen wrote it) when it is given.
    CachedStatement& Prepare(const QString& sql, const QString& messageSql = QString());
    // Runs a statement of the engine's SQL on its own; for DDL and transactions.
    void Exec(const QString& sql);
    // Steps a prepared statement to its end and resets it; throws the store's error on failure.
    void RunToEnd(storeengine::Statement& stmt);

    const TableInfo& Table(const QString& name);
    void SchemaChanged();

    long Execute(const QString& dialectSql);
    void AlterColumn(const Translation& t);

    void Close();

private:
    RecentCache<std::shared_ptr<const Translation>> m_translations;
    RecentCache<CachedStatement> m_statements;
    QHash<QString, std::shared_ptr<TableInfo>> m_tables;
};

// The inside of a connection, for the store's own classes (Recordset, the test hooks).
class ConnectionAccess {
public:
    static ConnectionImpl* Impl(const Connection& conn) { return conn.d.get(); }
};
