#pragma once
// What only the store's own tests and benchmarks reach: the engine's SQL run as it is on an open
// connection or on a file, and the raw engine doing a benchmark's work. No screen or routine
// includes this.
#include <QDate>
#include <QString>
#include <memory>
#include <vector>

class Connection;

namespace storetest {

// The first column of the first row of the engine's own SQL on the connection, as text;
// "<null>" for Null, "<none>" when there is no row, "<error>" when it does not run.
QString Raw(Connection& conn, const char* sql);

// Runs the engine's own SQL on a file through a plain engine connection: without the store's
// functions and its collation, as another program would. Creates the file when it is not there.
// Returns false when it fails.
bool ExecPlain(const QString& path, const char* sql);

// The engine without the store, for the benchmarks' yardstick: the same work done with the
// engine's own calls on a file of the benchmark's tables.
class RawStore {
public:
    explicit RawStore(const QString& path);
    ~RawStore();
    RawStore(const RawStore&) = delete;
    RawStore& operator=(const RawStore&) = delete;

    void Exec(const char* sql);
    // Walks "SELECT name, amount, visits, day, flag FROM walk", each column read into the type a
    // screen wants; returns the rows.
    long Walk();
    // Adds one row per name to "added", each committed on its own.
    void Add(const std::vector<QString>& names, const std::vector<QDate>& days);

private:
    struct Inside;
    std::unique_ptr<Inside> d;
};

}  // namespace storetest
