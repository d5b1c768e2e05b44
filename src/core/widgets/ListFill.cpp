#include "core/widgets/ListFill.h"
#include "core/rows.h"
#include "core/store/value.h"

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>

namespace listfill {

namespace {
// Adds entries without a repaint per entry. Signals still go out as entries are added (a
// screen that must not react tests its Loading flag).
template <class List, class Add>
long Fill(List* list, Recordset& rs, const QString& sql, Add add)
{
    const bool wasEnabled = list->updatesEnabled();
    list->setUpdatesEnabled(false);
    struct Restore {
        List* l;
        bool e;
        ~Restore() { l->setUpdatesEnabled(e); }
    } restore{list, wasEnabled};
    return ForEachRow(rs, sql, [&](Recordset& r) { add(r); });
}
}  // namespace

QString Text(const Recordset& rs, const QString& field)
{
    const QVariant v = rs.Field(field);
    return IsNull(v) ? QString() : Str(v);
}

long FillList(QComboBox* list, Recordset& rs, const QString& sql, const QString& textField,
              const QString& dataField, bool skipNull)
{
    return Fill(list, rs, sql, [&](Recordset& r) {
        if (skipNull && IsNull(r.Field(textField))) return;
        if (dataField.isEmpty()) list->addItem(Text(r, textField));
        else list->addItem(Text(r, textField), r.Field(dataField));
    });
}

long FillList(QListWidget* list, Recordset& rs, const QString& sql, const QString& textField,
              const QString& dataField, bool skipNull)
{
    return Fill(list, rs, sql, [&](Recordset& r) {
        if (skipNull && IsNull(r.Field(textField))) return;
        auto* item = new QListWidgetItem(Text(r, textField), list);
        if (!dataField.isEmpty()) item->setData(Qt::UserRole, r.Field(dataField));
    });
}

long FillList(QListWidget* list, Recordset& rs, const QString& sql,
              const std::function<void(QListWidget*, Recordset&)>& make)
{
    return Fill(list, rs, sql, [&](Recordset& r) { make(list, r); });
}

long FillList(QTreeWidget* list, Recordset& rs, const QString& sql,
              const std::function<void(QTreeWidget*, Recordset&)>& make)
{
    return Fill(list, rs, sql, [&](Recordset& r) { make(list, r); });
}

}  // namespace listfill
