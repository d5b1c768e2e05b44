#pragma once
// A day of timed entries on a time scale (60, 30, 15, 10 or 5 minutes a row). Entries are
// made by dragging over free time, moved by dragging their body and resized by dragging
// their lower edge. The arithmetic lives in DayViewModel, which has no window; DayView draws
// it and turns the mouse into model calls.
#include <QColor>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QScrollArea>
#include <QString>
#include <QTime>
#include <functional>

#include "core/widgets/IDayView.h"

struct DayViewEntry {
    int id = 0;            // stable while the view holds the entry
    QDateTime start, end;
    QString text;
    QString hiddenText;
    QColor colour;
};

class DayViewModel {
public:
    DayViewModel();

    // The day shown. Entries of other days are held but not shown.
    void SetDate(const QDate& d) { m_date = d; }
    QDate Date() const { return m_date; }

    // Minutes of one row: 60, 30, 15, 10 or 5; any other value is ignored.
    void SetScale(int minutes);
    int Scale() const { return m_scale; }

    // Start and end of the day; an end of 00:00 is midnight at the end of the day.
    void SetDayStart(const QTime& t);
    void SetDayEnd(const QTime& t);
    int DayStartMinute() const { return m_dayStart; }   // floored to the row
    int DayEndMinute() const { return m_dayEnd; }
    int RowCount() const;

    // A floor under new identifiers for a date (e.g. the largest key stored for that day), so
    // that a new entry never takes a key that the day already has.
    void SetKeyFloor(std::function<int(const QDate&)> floor) { m_keyFloor = std::move(floor); }

    void Clear();
    int Add(const QDateTime& start, const QDateTime& end, const QString& text, const QString& hiddenText,
            const QColor& colour);
    bool Remove(int id);
    const DayViewEntry* Find(int id) const;
    DayViewEntry* Find(int id);
    void SetHiddenText(int id, const QString& hidden);
    const QList<DayViewEntry>& Entries() const { return m_entries; }
    // The entries of the shown day, in start order.
    QList<const DayViewEntry*> DayEntries() const;

    // Minutes of the day of a time; 24:00 for midnight at the end.
    static int MinuteOf(const QDateTime& dt, const QDate& day);
    int Snap(int minute) const;   // down to the row

    // Dragging: each returns the span the entry would take (minutes of the day), keeping it
    // inside the day and on the scale; Apply* stores it.
    QPair<int, int> MovedSpan(int id, int newStartMinute) const;
    QPair<int, int> ResizedSpan(int id, int newEndMinute) const;
    bool ApplySpan(int id, int startMinute, int endMinute);
    // The span of a drag over free time from one minute to another, whole rows, inside the day.
    QPair<int, int> FreeSpan(int fromMinute, int toMinute) const;

    // Side-by-side columns for overlapping entries of the shown day.
    struct Placed { const DayViewEntry* entry; int column; int columns; };
    QList<Placed> Layout() const;

    QDateTime AtMinute(int minute) const;

private:
    QDate m_date;
    int m_scale = 30;
    int m_dayStart = 0;
    int m_dayEnd = 24 * 60;
    int m_lastId = 0;
    QList<DayViewEntry> m_entries;
    std::function<int(const QDate&)> m_keyFloor;
};

class DayViewCanvas;

class DayView : public QScrollArea, public IDayView {
    Q_OBJECT
public:
    explicit DayView(QWidget* parent = nullptr);

    DayViewModel& Model() { return m_model; }
    const DayViewModel& Model() const { return m_model; }

    void SetDate(const QDate& d);
    QDate Date() const { return m_model.Date(); }
    void SetScale(int minutes);
    void SetDayStart(const QTime& t);
    void SetDayEnd(const QTime& t);
    // Scrolls so that this time of day is at the top.
    void SetScrollTime(const QTime& t);
    void SetColor(const QColor& c);

    // IDayView
    void Clear() override;
    int AddEntry(const QDateTime& start, const QDateTime& end, const QString& text, const QString& hiddenText,
                 const QColor& colour) override;
    bool RemoveEntry(int id) override;
    bool HasEntry(int id) const override { return m_model.Find(id) != nullptr; }
    void SetHiddenText(int id, const QString& hiddenText) override { m_model.SetHiddenText(id, hiddenText); }

    const DayViewEntry* Entry(int id) const { return m_model.Find(id); }
    int SelectedId() const { return m_selected; }
    void SelectEntry(int id);   // 0 for none
    // The span last selected over free time; invalid when none.
    QDateTime FreeStart() const { return m_freeStart; }
    QDateTime FreeEnd() const { return m_freeEnd; }

    // Pixels of one row and the y of a minute on the canvas.
    int RowHeight() const { return m_rowHeight; }
    int YOfMinute(int minute) const;
    int MinuteAtY(int y) const;
    QWidget* Canvas() const;

    // Writing the day's entries as a vCalendar file belongs here (the export of the calendar
    // menu): one event per entry of Entries(), with start, end and text.

signals:
    void EntrySelected(int id);
    void EntryDoubleClicked(int id);
    // An entry was moved or resized by the user; its new times are in the model.
    void EntryChanged(int id, const QDateTime& start, const QDateTime& end);
    // A drag over free time (or a click on it) chose a span.
    void FreeTimeSelected(const QDateTime& start, const QDateTime& end);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class DayViewCanvas;
    void Relayout();
    void ApplyScrollTime();
    DayViewModel m_model;
    DayViewCanvas* m_canvas = nullptr;
    int m_rowHeight = 22;
    int m_selected = 0;
    int m_scrollMinute = -1;   // a scroll time not yet reached, in minutes of the day
    QDateTime m_freeStart, m_freeEnd;
    QColor m_headerColour;
};
