#pragma once
// The open day planner, for the screens that work over it: the logs add their entries to its
// day view and schedule on the days selected in its calendar; the main shell and the other
// screens refresh the day. Every routine does nothing (or gives a neutral value) while no
// planner is open.
#include <QDate>
#include <QList>
#include <QTime>
#include <functional>

class frmSched2;
class DayView;
class MonthCalendar;

frmSched2* OpenPlanner();
DayView* PlannerDayView();
MonthCalendar* PlannerCalendar();

// The module routines of the planner.
void LoadDayItems();
void LoadNetCalories();
void LoadDayView();

// The start and end for the next new entry: the span last dragged over free time, else
// 9:00 AM and 9:30 AM.
QTime PlannerStartTime();
QTime PlannerEndTime();

// The adding flag: true while a log opened by the planner's add buttons schedules its item
// on the selected days. Tests of the logs may set it themselves.
bool PlannerAdding();
void SetPlannerAdding(bool adding);

// The year shown in the planner's calendar and the days selected in it (the selected day
// alone when no planner is open).
int PlannerYear();
bool PlannerDateSelected(const QDate& d);
QList<QDate> PlannerSelectedDates();
// Runs `fn` on every day of the planner's year selected in its calendar, in date order; stops at
// the first day `fn` refuses and returns false then.
bool ForEachSelectedDay(const std::function<bool(const QDate&)>& fn);

// Asks the planner to redraw its day (entries, icons, figures) once the screen over it closes.
void RefreshPlanner();
