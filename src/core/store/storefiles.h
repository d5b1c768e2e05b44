#pragma once
#include <QString>

// The two store files and how a missing one is made: from the schema and seed embedded in
// the program (":/schema/<store>.sql", ":/seed/<store>_*.sql").
enum class StoreKind { Library, User };

// Creates the store file at path from the embedded schema and seed. Refuses (StoreError)
// when the file is already there: an existing store is never rewritten.
void CreateStoreFile(const QString& path, StoreKind kind);
// Both at once (tests and benchmarks).
void CreateStoreFiles(const QString& libraryPath, const QString& userPath);

// The embedded SQL of a store: its schema, and its seed files joined in name order.
QString StoreSchemaSql(StoreKind kind);
QString StoreSeedSql(StoreKind kind);
