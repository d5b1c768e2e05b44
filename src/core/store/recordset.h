#pragma once
#include <QString>
#include <QVariant>
#include <QStringList>
#include <memory>
#include "core/store/storeerror.h"
#include "core/store/value.h"

class Connection;
class RecordsetImpl;

// A client-side snapshot of a statement's rows, or a bare table name opened for adding.
// Rows read from one table can be changed (SetField + Update) and deleted; joins,
// groups and aggregates are read-only. All failures throw StoreError.
class Recordset {
public:
    Recordset();
    explicit Recordset(Connection* conn);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    void SetActiveConnection(Connection* conn);
    Connection* ActiveConnection() const;

    // A statement in the system's dialect, or a bare table name.
    void Open(const QString& source);
    void Open(const QString& source, Connection* conn);
    void Close();                 // closing a closed recordset does nothing
    bool IsOpen() const;

    bool Eof() const;             // true also when closed
    bool Bof() const;
    void MoveNext();
    void MovePrevious();
    void MoveFirst();
    void MoveLast();
    long RecordCount() const;

    int FieldCount() const;
    QString FieldName(int position) const;
    bool HasField(const QString& name) const;
    // Case-insensitive name, or position from 0. Throws ItemNotFound for a name not there.
    QVariant Field(const QString& name) const;
    QVariant Field(int position) const;
    QVariant operator()(const QString& name) const { return Field(name); }
    QVariant operator()(int position) const { return Field(position); }

    // Editing the current row, or the new row after AddNew. A value is stored as its column
    // wants it: text into a number column takes its value, a date goes in as ISO text,
    // true/false as -1/0.
    void SetField(const QString& name, const QVariant& value);
    void SetField(int position, const QVariant& value);
    void AddNew();
    void Update();
    void CancelUpdate();
    void Delete();                // deletes the current row

private:
    std::unique_ptr<RecordsetImpl> d;
};
