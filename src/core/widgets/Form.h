#pragma once
// Building a screen's fields: named controls, a caption set as the field's buddy (so its "&"
// accelerator reaches the field and screen readers know the field by it), a tooltip, and a
// row of a grid or form layout. Every screen builds its fields with these.
#include <QString>

class QCheckBox;
class QFormLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

class QDateEdit;

namespace form {

// A caption for `buddy`; the caption's "&" gives the accelerator.
QLabel* Caption(const QString& text, QWidget* buddy);
// A text field; `maxLength` is the column's size (0: no limit), `width` a maximum width.
QLineEdit* Edit(const QString& name, int maxLength = 0, int width = 0, const QString& tip = QString());
// A command button that does not take Enter by default.
QPushButton* Button(const QString& name, const QString& caption, const QString& tip = QString());
QCheckBox* Check(const QString& name, const QString& caption, const QString& tip = QString());
// A read-only label that a procedure fills.
QLabel* Label(const QString& name, const QString& text = QString());
// Names a widget as the system names the control, and gives it its tooltip; returns it.
template <class W>
W* Named(W* w, const QString& name, const QString& tip = QString());

// Caption in column `column`, field in the next one (spanning `span` columns); returns the
// caption.
QLabel* AddRow(QGridLayout* grid, int row, const QString& caption, QWidget* field, int column = 0, int span = 1);
QLabel* AddRow(QFormLayout* layout, const QString& caption, QWidget* field);

void SetTip(QWidget* w, const QString& tip);

// A date field showing the day in long words ("Wednesday, September 30, 2026"): named, with
// the calendar popup, and wide enough for the longest such day.
QDateEdit* LongDate(const QString& name, QWidget* parent);
template <class W>
W* Named(W* w, const QString& name, const QString& tip)
{
    w->setObjectName(name);
    if (!tip.isEmpty()) SetTip(w, tip);
    return w;
}

}  // namespace form
