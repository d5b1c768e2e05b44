#pragma once
// What the main shell (below the calendar subsystem) may ask of the open day planner. The
// calendar subsystem fills these when it registers its screens; each is a no-op while no
// planner is open.
#include <functional>

class QWidget;

struct PlannerLink {
    std::function<void()> LoadNetCalories;
    std::function<void()> LoadDayItems;
    std::function<void()> LoadDayView;
    std::function<void()> LoadMuscleGroups;          // refills the strength tab's muscle group list
    std::function<void(int tab)> SelectTab;          // tabs numbered from 1
    std::function<void(bool multi)> SetMultiCalendar; // the buttons Single and Multi
    std::function<void()> SetColor;                  // applies AppColor to the calendar and tab strip
    std::function<void(int index)> SetFirstDay;      // 0 = Sunday ... 6 = Saturday
    std::function<void()> ShowSportsList;            // the Exercise/Sports tab with its Sports list
};

PlannerLink& Planner();
