#pragma once
#include <QString>

// Translates a statement in the system's SQL dialect to SQLite's. Pure and thread-safe;
// Connection caches the results. Throws StoreError(SyntaxError) on text it cannot read.
QString TranslateToSqlite(const QString& dialectSql);
