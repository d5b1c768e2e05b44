#pragma once
// The dialect's functions that SQLite lacks or has with another meaning, registered on every
// connection: val, jet_isnull, jet_concat (the "&" operator), nz, jet_left, jet_right,
// jet_instr, jet_round, jet_int, jet_fix, cint, clng, cdbl, csng, cstr, cbool, cdate, datevalue,
// dateserial, year, month, day, hour, minute, second, weekday, datepart, dateadd, datediff,
// jet_format, and the aggregates jet_first and jet_last. The writer (sqlitewriter.cpp) maps the
// dialect's names onto these.
struct sqlite3;

void RegisterSqlFunctions(sqlite3* db);
