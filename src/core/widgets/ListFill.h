#pragma once
// Filling a list from a statement: one routine for combo boxes, list boxes and tree lists.
// Each opens the statement on the given shared recordset, adds an entry per row and closes
// the recordset on every exit. The list is not cleared first: clear it when that is wanted.
// Each returns the number of rows read.
#include <QString>
#include <QVariant>
#include <functional>

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QTreeWidget;
class QTreeWidgetItem;
class Recordset;

namespace listfill {

// A field of the current row as the list shows it: the text of the value, "" for Null.
QString Text(const Recordset& rs, const QString& field);

// An entry per row with the text of `textField` and, when given, the value of `dataField`
// kept as the entry's data (Qt::UserRole). A Null text is skipped when `skipNull`.
long FillList(QComboBox* list, Recordset& rs, const QString& sql, const QString& textField,
              const QString& dataField = QString(), bool skipNull = false);
long FillList(QListWidget* list, Recordset& rs, const QString& sql, const QString& textField,
              const QString& dataField = QString(), bool skipNull = false);

// For lists whose entries need more than a text and a value: `make` is called for every row
// with the list and the row and adds what it wants (it may add nothing).
long FillList(QListWidget* list, Recordset& rs, const QString& sql,
              const std::function<void(QListWidget*, Recordset&)>& make);
long FillList(QTreeWidget* list, Recordset& rs, const QString& sql,
              const std::function<void(QTreeWidget*, Recordset&)>& make);

}  // namespace listfill
