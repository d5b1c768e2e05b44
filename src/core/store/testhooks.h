#pragma once
// What only the store's own tests reach: the engine's SQL run as it is on an open connection or
// on a file. No screen or routine includes this.
#include <QString>

class Connection;

namespace storetest {

// The first column of the first row of the engine's own SQL on the connection, as text;
// "<null>" for Null, "<none>" when there is no row, "<error>" when it does not run.
QString Raw(Connection& conn, const char* sql);

// Runs the engine's own SQL on a file through a plain engine connection: without the store's
// functions and its collation, as another program would. Creates the file when it is not there.
// Returns false when it fails.
bool ExecPlain(const QString& path, const char* sql);

}  // namespace storetest
