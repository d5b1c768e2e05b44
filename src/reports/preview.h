#pragma once
// The print buttons of the logs and libraries. ShowReport (core/frmWebView.h) shows a page.
#include "core/frmWebView.h"

// Gives the print buttons of the exercise log, the strength log, the workout library and the
// weigh-in their pages.
void InstallReportLinks();
