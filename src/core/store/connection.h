#pragma once
#include <QString>
#include <memory>
#include "core/store/storeerror.h"

struct sqlite3;
class ConnectionImpl;

// An open store file. SQL is given in the system's dialect and translated before it runs.
// Each statement commits on its own unless a transaction is open.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // "PROVIDER=...;data source=<path>;Jet OLEDB:Database Password=<pw>;"
    // Throws StoreError: 53 when the file is not there, NotADatabase when it is no store,
    // InvalidPassword when the password does not match the one kept in the file.
    void Open(const QString& connectionString);
    void Close();
    bool IsOpen() const;
    QString Path() const;

    // Runs a statement that changes rows or tables; returns the number of rows affected.
    long Execute(const QString& sql);

    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    sqlite3* Handle() const;
    ConnectionImpl* Impl() const { return d.get(); }

    // Creates a store file from schema and seed SQL (SQLite's own dialect), keeping the
    // password in it. Refuses (StoreError) when the file is already there.
    static void CreateStore(const QString& path, const QString& schemaSql, const QString& seedSql,
                            const QString& password);

private:
    std::unique_ptr<ConnectionImpl> d;
};
