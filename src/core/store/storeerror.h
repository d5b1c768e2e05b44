#pragma once
#include <QString>
#include <QByteArray>
#include <exception>

// A failure of a store: every one carries a number and a text, so that handlers can
// follow the system's rules for errors (53 is a file that is not there).
class StoreError : public std::exception {
public:
    StoreError(int number, QString text) : m_number(number), m_text(std::move(text)), m_what(m_text.toUtf8()) {}
    int Number() const { return m_number; }
    const QString& Description() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

    // Numbers the system's handlers look at.
    enum : int {
        FileNotFound = 53,          // a store file that is not there
        NotADatabase = 3343,        // unrecognised database format
        InvalidPassword = 3031,     // not a valid password
        SyntaxError = 3075,         // syntax error in an expression or statement
        TableExists = 3010,         // "create table" of a table that is there
        FieldExists = 3380,         // "alter table ... add" of a column that is there
        NoCurrentRecord = 3021,     // EOF or BOF: no current record
        ItemNotFound = 3265,        // a field name that is not in the recordset
        NotUpdatable = 3251,        // the operation is not supported by this recordset
        NotOpen = 3704,             // the recordset is closed
        ConstraintViolation = 3022, // a duplicate key
        Generic = 3000,
        FileExists = 58,            // a store file to be created that is already there
        AlreadyOpen = 3705,         // opening a recordset or connection that is open
        NoSuchTable = 3078,         // a table the statement names is not in the store
        MissingValue = 3061,        // a name in the statement that is no column
        TypeMismatch = 3421,        // a value of the wrong type for a field
        NullNotAllowed = 3314,      // a Null into a field that requires a value
        ReadOnly = 3027             // a change to a store that is open read-only

    };

    // The error of a change to a store that is open read-only.
    static StoreError ReadOnlyStore(const QString& path)
    {
        return StoreError(ReadOnly, QStringLiteral("Cannot update. The store '%1' is read-only: changes cannot be saved.").arg(path));
    }

private:
    int m_number;
    QString m_text;
    QByteArray m_what;
};
