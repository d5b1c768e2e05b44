#pragma once
// What the calendar store needs of a day view: the timed entries of a day, each with a text,
// a hidden text (the entry's type and key, as the screens compose it), a colour and an
// identifier that the view gives on creation.
#include <QColor>
#include <QDateTime>
#include <QString>

class IDayView {
public:
    virtual ~IDayView() = default;
    // Removes every entry.
    virtual void Clear() = 0;
    // Places an entry and returns its identifier (above 0), or 0 when it can't be placed: the
    // end is not after the start, or the span lies outside the view's day.
    virtual int AddEntry(const QDateTime& start, const QDateTime& end, const QString& text,
                         const QString& hiddenText, const QColor& colour) = 0;
    virtual bool RemoveEntry(int id) = 0;
    virtual bool HasEntry(int id) const = 0;
    virtual void SetHiddenText(int id, const QString& hiddenText) = 0;
};
