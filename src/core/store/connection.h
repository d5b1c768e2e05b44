#pragma once
#include <QString>
#include <memory>
#include "core/store/storeerror.h"

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
    // A store that cannot be written (its file or its folder, as in an installed program's folder
    // or on a read-only share), or one opened with "Mode=Read;", is opened read-only: every read
    // works, every change fails with StoreError ReadOnly.
    void Open(const QString& connectionString);
    void Close();
    bool IsOpen() const;
    bool IsReadOnly() const;
    QString Path() const;

    // Whether a store file must be opened read-only: the file or its folder cannot be written.
    static bool MustOpenReadOnly(const QString& path);

    // Runs a statement that changes rows or tables; returns the number of rows affected.
    long Execute(const QString& sql);

    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    // Creates a store file from schema and seed SQL (SQLite's own dialect), keeping the
    // password in it. Refuses (StoreError) when the file is already there.
    static void CreateStore(const QString& path, const QString& schemaSql, const QString& seedSql,
                            const QString& password);

private:
    friend class ConnectionAccess;
    std::unique_ptr<ConnectionImpl> d;
};
