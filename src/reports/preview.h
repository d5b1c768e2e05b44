#pragma once
// Showing a written page in the preview, and the print buttons of the logs and libraries.
#include <QString>

// Shows the page `fileName` of the program's folder in "Print Preview", modally, with the
// shared PreviewOpen flag set while it is open.
void ShowReport(const QString& fileName);

// Gives the print buttons of the exercise log, the strength log, the workout library and the
// weigh-in their pages.
void InstallReportLinks();
