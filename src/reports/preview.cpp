#include "reports/preview.h"

void InstallReportLinks() {}
