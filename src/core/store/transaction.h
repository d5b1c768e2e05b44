#pragma once
// Writes that belong together (a change made as a delete and an add) commit together or not
// at all. The transaction rolls back when it goes out of scope without Commit(), so a failing
// statement, an exception or a refused add leaves the old rows as they were. Nested scopes on
// one connection become savepoints. Never hold one across a dialog.
#include "core/store/connection.h"

class StoreTransaction {
public:
    explicit StoreTransaction(Connection& conn) : m_conn(conn) { m_conn.BeginTrans(); }
    ~StoreTransaction()
    {
        if (m_open) {
            try {
                m_conn.RollbackTrans();
            } catch (...) {
                // the connection is already gone; nothing was committed
            }
        }
    }
    StoreTransaction(const StoreTransaction&) = delete;
    StoreTransaction& operator=(const StoreTransaction&) = delete;

    void Commit()
    {
        if (!m_open) return;
        m_conn.CommitTrans();
        m_open = false;
    }

private:
    Connection& m_conn;
    bool m_open = true;
};
