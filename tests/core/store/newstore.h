#pragma once
// A store file made from a test's own schema and seed in a temporary folder, opened on conn.
#include <QString>
#include <QTemporaryDir>
#include "core/shared.h"
#include "core/store/connection.h"

inline QString OpenNewStore(const QTemporaryDir& dir, const char* schema, const char* seed, Connection& conn)
{
    const QString path = dir.filePath(QStringLiteral("store.mdb"));
    Connection::CreateStore(path, QString::fromUtf8(schema), QString::fromUtf8(seed), StorePassword);
    conn.Open(ConnectionString(path));
    return path;
}
