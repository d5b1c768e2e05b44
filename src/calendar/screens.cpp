#include "calendar/screens.h"
#include "calendar/frmSched2.h"
#include "calendar/planner.h"
#include "core/plannerlink.h"
#include "core/ui.h"
#include "core/widgets/MonthCalendar.h"

void RegisterCalendarScreens()
{
    ui::RegisterScreen(QStringLiteral("frmSched2"), [](QWidget* parent) { return new frmSched2(parent); });

    // The selected day of the open planner; without one the ui falls back on today.
    SetCalendarDateProvider([] {
        frmSched2* p = OpenPlanner();
        return p ? p->SelectedDate() : QDate();
    });

    PlannerLink& link = Planner();
    link.LoadNetCalories = [] { Guard([] { LoadNetCalories(); }); };
    link.LoadDayItems = [] { Guard([] { LoadDayItems(); }); };
    link.LoadDayView = [] { Guard([] { LoadDayView(); }); };
    link.LoadMuscleGroups = [] {
        if (frmSched2* p = OpenPlanner()) Guard([p] { p->LoadMuscleGroups(); });
    };
    link.SelectTab = [](int tab) {
        if (frmSched2* p = OpenPlanner()) p->SelectTab(tab);
    };
    link.SetMultiCalendar = [](bool multi) {
        if (frmSched2* p = OpenPlanner()) p->SetMultiCalendar(multi);
    };
    link.SetColor = [] {
        if (frmSched2* p = OpenPlanner()) p->SetColor();
    };
    link.SetFirstDay = [](int index) {
        if (frmSched2* p = OpenPlanner()) p->SetFirstDay(index);
    };
    link.ShowSportsList = [] {
        if (frmSched2* p = OpenPlanner()) p->ShowSportsList();
    };
}
