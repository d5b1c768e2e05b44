#pragma once
// Reading the system's SQL dialect: tokens, and the constructs an engine must write its own way.
// The reader knows nothing of any engine; a SqlWriter (sqlwriter.h) turns what it reads into
// one engine's SQL.
#include <QString>
#include <vector>

namespace sqldialect {

// The column types of the dialect's "create table" and "alter table".
enum class DataType { Text, LongText, YesNo, DateTime, Byte, Short, Long, Single, Double, Currency, Counter, Binary };

// "text", "char", "memo", "yesno", "bit", "date", "long", "integer", "double", "currency", "counter" ...
// Returns false for a name that is no type of the dialect.
bool ParseDataType(const QString& name, DataType& type);

struct Node {
    enum Kind : unsigned char {
        Keyword,     // text: the word in upper case ("SELECT", "IS", "NOT", "NULL", ...)
        Identifier,  // text: a table, column or alias name as written, brackets removed
        Function,    // text: the function's name in lower case; the next node is its argument Group
        String,      // text: the value, quotes undone
        Number,      // text: as written
        Date,        // text: "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS"
        Boolean,     // flag: true or false
        Operator,    // text: = <> < > <= >= + - * / ^ (also the "*" of "select *"); "/" divides as real numbers
        Comma,
        Dot,
        Param,       // ?
        Group,       // children: what stands between "(" and ")"
        Concat,      // the dialect's "&": children are Groups, one per operand; Null counts as ""
        Limit,       // text: the row count of "top n", to be written at the end of its select
        IntDiv,      // the dialect's "\": children are two Groups, the operands; whole-number division
        Mod          // the dialect's "mod": children are two Groups, the operands; the remainder
    };
    Kind kind = Keyword;
    bool flag = false;
    QString text;
    std::vector<Node> children;

    bool Is(Kind k, const char* t) const { return kind == k && text == QLatin1String(t); }
    bool IsKeyword(const char* t) const { return Is(Keyword, t); }
};

struct ColumnDef {
    QString name;
    DataType type = DataType::Text;
    int size = 0;                   // text(n): n; 0 when not given
    std::vector<Node> constraints;  // what follows the type: NOT NULL, PRIMARY KEY, DEFAULT x ...
};

struct TableRef {
    QString table;
    QString alias;                  // empty when the table has none
};

struct Statement {
    enum Kind { Select, Insert, Update, Delete, CreateTable, AlterAdd, AlterColumn, AlterDrop, BareTable, Other };
    Kind kind = Other;
    // The statement's nodes (all kinds except CreateTable, AlterAdd and AlterColumn, which the
    // fields below describe).
    std::vector<Node> nodes;
    // The table the statement works on: the target of insert, update, delete and DDL, the one
    // table of an updatable select, the table of a bare name.
    QString table;
    QString alias;
    // A select of one table without grouping, aggregates, distinct or union: its rows can be
    // changed, and a writer can give each row's identity (see SqlWriter).
    bool updatable = false;
    int fromAt = -1;                // index in nodes of a select's FROM: the row identity goes before it
    std::vector<TableRef> from;     // a select's tables in the order of its FROM
    std::vector<ColumnDef> columns; // create table, alter table add / alter column
    std::vector<std::vector<Node>> tableConstraints;   // create table: PRIMARY KEY (a, b) ...
};

// Reads one statement (a trailing ";" is allowed). A single name is read as a bare table.
// Throws StoreError(SyntaxError) on text it cannot read: an undoubled quote, an unclosed
// bracket, a date that is no date, unbalanced parentheses, a second statement.
Statement Read(const QString& sql);

}  // namespace sqldialect
