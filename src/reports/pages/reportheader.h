#pragma once
// The head every report page starts with: the page's picture, then a small table of the
// title and the athlete's name, the date, the scheduled times and the description.
#include "core/pagewriter.h"

namespace reportpages {

// Writes the head of a page on `out`: "<html><head>", the body and font, the centred picture
// (a bare file name beside the program), and the rows "TITLE for: " with CurrentUserName,
// "Date: ", "Scheduled for: " (only when scheduledFrom is not empty, "FROM to TO") and
// "Description: ", then "<br>". Names and descriptions are escaped; the rest is written as
// the pages have always been written.
void ReportHeader(page::PageWriter& out, const QString& picture, const QString& title, const QString& dateText,
                  const QString& scheduledFrom, const QString& scheduledTo, const QString& description);

}  // namespace reportpages
