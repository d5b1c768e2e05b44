#pragma once
// A month calendar that draws a picture in a date's cell, shows one or several months side
// by side, and keeps a selection of several days (ctrl-click adds or removes a day,
// shift-click a range). One date is the current one: the last clicked.
#include <QCalendarWidget>
#include <QDate>
#include <QHash>
#include <QList>
#include <QPixmap>
#include <QSet>
#include <QWidget>

class MonthCalendar;
class QGridLayout;

// One month of the calendar.
class MonthCalendarPage : public QCalendarWidget {
    Q_OBJECT
public:
    MonthCalendarPage(MonthCalendar* owner, QWidget* parent);
    // The date of a point of the page's table, from the cells last painted.
    QDate DateAt(const QPoint& viewportPos) const;
    QWidget* View() const { return m_view; }
    void Refresh() { updateCells(); }

protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    MonthCalendar* m_owner;
    QWidget* m_view = nullptr;
    mutable QHash<QDate, QRect> m_cells;
};

class MonthCalendar : public QWidget {
    Q_OBJECT
public:
    explicit MonthCalendar(QWidget* parent = nullptr);

    // The current date and the selection.
    QDate Value() const { return m_value; }
    void SetValue(const QDate& d);              // selects that day alone
    // A click with its modifiers: none selects the day alone, ctrl toggles it, shift takes
    // the range from the current date.
    void SelectDate(const QDate& d, Qt::KeyboardModifiers modifiers);
    QList<QDate> SelectedDates() const;         // in date order
    bool IsSelected(const QDate& d) const { return m_selection.contains(d); }

    // Pictures per date.
    void SetPicture(const QDate& d, const QPixmap& picture);
    void ClearPicture(const QDate& d);
    void ClearPictures();
    bool HasPicture(const QDate& d) const { return m_pictures.contains(d); }
    QPixmap Picture(const QDate& d) const { return m_pictures.value(d); }
    int PictureCount() const { return int(m_pictures.size()); }

    // Number of months shown side by side.
    void SetMonths(int n);
    int Months() const { return int(m_pages.size()); }
    // The month shown first.
    void SetFirstMonth(int year, int month);
    int Year() const { return m_firstYear; }
    int Month() const { return m_firstMonth; }

    // Monday (1) to Sunday (7); anything else is ignored.
    void SetFirstDayOfWeek(Qt::DayOfWeek day);
    Qt::DayOfWeek FirstDayOfWeek() const { return m_firstDay; }
    // The colour of the month headers.
    void SetColor(const QColor& c);

    MonthCalendarPage* Page(int i) const { return m_pages.value(i); }

signals:
    // The current date or the selection changed.
    void SelectionChanged(const QDate& current);
    void DateDoubleClicked(const QDate& d);
    void DateRightClicked(const QDate& d, const QPoint& globalPos);

private:
    friend class MonthCalendarPage;
    void PageClicked(MonthCalendarPage* page, const QDate& d);
    void PageShown(MonthCalendarPage* page, int year, int month);
    void SyncPages();
    void RefreshPages();

    QGridLayout* m_grid = nullptr;
    QList<MonthCalendarPage*> m_pages;
    QHash<QDate, QPixmap> m_pictures;
    QSet<QDate> m_selection;
    QDate m_value;
    QDate m_anchor;
    int m_firstYear = 0, m_firstMonth = 0;
    Qt::DayOfWeek m_firstDay = Qt::Sunday;
    QColor m_colour;
    bool m_syncing = false;
};
