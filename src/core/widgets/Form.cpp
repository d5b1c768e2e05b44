#include "core/widgets/Form.h"

#include <QDateEdit>
#include <QStyle>

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace form {

void SetTip(QWidget* w, const QString& tip)
{
    w->setToolTip(tip);
    if (w->accessibleDescription().isEmpty()) w->setAccessibleDescription(tip);
}

QLabel* Caption(const QString& text, QWidget* buddy)
{
    auto* l = new QLabel(text);
    if (buddy) l->setBuddy(buddy);
    return l;
}

QLineEdit* Edit(const QString& name, int maxLength, int width, const QString& tip)
{
    auto* e = Named(new QLineEdit, name, tip);
    if (maxLength > 0) e->setMaxLength(maxLength);
    if (width > 0) e->setMaximumWidth(width);
    return e;
}

QPushButton* Button(const QString& name, const QString& caption, const QString& tip)
{
    auto* b = Named(new QPushButton(caption), name, tip);
    b->setAutoDefault(false);
    return b;
}

QCheckBox* Check(const QString& name, const QString& caption, const QString& tip)
{
    return Named(new QCheckBox(caption), name, tip);
}

QLabel* Label(const QString& name, const QString& text)
{
    return Named(new QLabel(text), name);
}

QLabel* AddRow(QGridLayout* grid, int row, const QString& caption, QWidget* field, int column, int span)
{
    QLabel* l = Caption(caption, field);
    grid->addWidget(l, row, column);
    grid->addWidget(field, row, column + 1, 1, span);
    return l;
}

QLabel* AddRow(QFormLayout* layout, const QString& caption, QWidget* field)
{
    QLabel* l = Caption(caption, field);
    layout->addRow(l, field);
    return l;
}

QDateEdit* LongDate(const QString& name, QWidget* parent)
{
    auto* edit = Named(new QDateEdit(parent), name);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("dddd, MMMM d, yyyy"));
    // The text's width plus the arrow: the longest weekday and month.
    const int text = edit->fontMetrics().horizontalAdvance(QStringLiteral("Wednesday, September 30, 2026"));
    edit->setMinimumWidth(text + edit->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 24);
    return edit;
}

}  // namespace form
