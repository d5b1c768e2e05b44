#include "reports/preview.h"

#include "body/frmWeighIn.h"
#include "core/shared.h"
#include "core/ui.h"
#include "exercise/frmExerciseLog.h"
#include "reports/pages/exercisepage.h"
#include "reports/pages/strengthpage.h"
#include "reports/pages/weighinpage.h"
#include "reports/pages/workoutlibrarypage.h"
#include "strength/frmStrengthLog.h"
#include "strength/frmStrengthWorkouts.h"

void InstallReportLinks()
{
    // The exercise log prints a saved session only: the planner's day and entry are the ones
    // the log has open.
    ReportExerciseLink() = [](const QString& fileName) {
        reportpages::ReportExercise(CalendarQDate(), SelectedKey, fileName);
        ShowReport(fileName);
    };
    ReportStrengthLink() = [](const QString& fileName, const StrengthLogPrint& print) {
        reportpages::StrengthSheet sheet;
        sheet.workout = print.workout;
        sheet.date = print.date;
        sheet.key = print.key;
        sheet.from = print.from;
        sheet.to = print.to;
        reportpages::ReportStrength(fileName, sheet);
        ShowReport(fileName);
    };
    ReportWorkoutLink() = [](const QString& fileName, const workoutpage::Workout& workout, const QString& tags) {
        reportpages::ReportWorkout(fileName, workout, tags);
        ShowReport(fileName);
    };
    ReportWeighInLink() = [](const QString& date) { ShowReport(reportpages::ReportWeighIn(date)); };
}
