#pragma once
// The calendar table, the spine of every day: one row per thing planned or done, tied to
// its log by athlete, date and key. Saving an entry, the icons of the month view, the
// entries of the day view and the calories the day's entries burn.
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>
#include <QVariant>

class IDayView;
class MonthCalendar;

// Writes the entry whose key is SelectedKey: deletes any row of that key and type on the
// date, adds the new one and redraws the date's icons.
void SaveCalendarEntry(const QString& name, const QString& workoutType, const QDate& date, const QString& startTime,
                       const QString& endTime, int image);

// Schedules a new entry of a log on `date`: the planner's day view (or, with no planner open, a
// day of the store's own keys) places it from start to end; its key becomes SelectedKey, its
// hidden text the key, a tab and the type, and its calendar row is written. False, with
// nothing written, when the view refuses the times (the end not after the start, or outside
// the day).
bool ScheduleEntry(const QString& name, const QString& workoutType, const QDate& date, const QTime& start,
                   const QTime& end, int image);

// The times of day of the signed-in athlete's entry `key` on `date`; each stays invalid when
// the entry or its time is missing.
void ReadEntryTimes(const QString& key, const QDate& date, QTime* start, QTime* end);

// The sum of Cals over the entries of the selected day.
long DayCalories();

// Fills a day view with the entries of CalendarDate(); each entry's hidden text is
// WorkoutType + tab + Key and its colour AppColor.
void LoadDayView(IDayView* view);

// Redraws icons: mode 1 the given date only, otherwise every date of the athlete.
void LoadCalendarIcons(MonthCalendar* calendar, const QDate& date, int mode);
// The same on the open planner's calendar; nothing when no planner is open.
void LoadCalendarIcons(const QDate& date, int mode);

// A date and time as entries keep their times: "YYYY-MM-DD h:mm:ss AM".
QString EntryTimeText(const QDateTime& dt);
// The time of day in a stored StartTime or EndTime, whatever form it was written in
// ("9:00 AM", "2024-03-01 09:00:00", "3/1/2024 9:00:00 AM", a date-time value); invalid when
// there is none.
QTime EntryTime(const QVariant& stored);
// A stored date field as a date.
QDate FieldDate(const QVariant& v);
