#include "core/store/storefiles.h"
#include "core/store/connection.h"
#include "core/shared.h"
#include "core/store/storeerror.h"

#include <QDir>
#include <QFile>

namespace {
QString Prefix(StoreKind kind) { return kind == StoreKind::Library ? QStringLiteral("library") : QStringLiteral("user"); }

QString ReadResource(const QString& name)
{
    // A program built without its schema must not make empty stores that would then be kept.
    QFile f(name);
    if (!f.open(QIODevice::ReadOnly))
        throw StoreError(StoreError::FileNotFound, QStringLiteral("Could not find file '%1'.").arg(name));
    return QString::fromUtf8(f.readAll());
}
}  // namespace

QString StoreSchemaSql(StoreKind kind) { return ReadResource(":/schema/" + Prefix(kind) + ".sql"); }

QString StoreSeedSql(StoreKind kind)
{
    QDir seed(QStringLiteral(":/seed"));
    QStringList names = seed.entryList({Prefix(kind) + "_*.sql"}, QDir::Files, QDir::Name);
    QString sql;
    for (const QString& n : names) {
        sql += ReadResource(seed.filePath(n));
        sql += QLatin1Char('\n');
    }
    return sql;
}

void CreateStoreFile(const QString& path, StoreKind kind)
{
    Connection::CreateStore(path, StoreSchemaSql(kind), StoreSeedSql(kind), StorePassword);
}

void CreateStoreFiles(const QString& libraryPath, const QString& userPath)
{
    CreateStoreFile(libraryPath, StoreKind::Library);
    CreateStoreFile(userPath, StoreKind::User);
}
