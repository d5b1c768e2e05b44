#pragma once
#include <QLabel>

// A field's caption, set as its buddy so that its accelerator reaches the field and screen
// readers know the field by it.
inline QLabel* Caption(const QString& text, QWidget* buddy)
{
    auto* l = new QLabel(text);
    if (buddy) l->setBuddy(buddy);
    return l;
}
