#include "reports/pages/reportheader.h"

#include "core/shared.h"

namespace reportpages {

void ReportHeader(page::PageWriter& out, const QString& picture, const QString& title, const QString& dateText,
                  const QString& scheduledFrom, const QString& scheduledTo, const QString& description)
{
    out.Line(QStringLiteral("<html><head>"));
    out.Line(QStringLiteral("<body bgcolor=\"#ffffff\">"));
    out.Line(QStringLiteral("<font color=\"#000000\" size=\"3\" face=\"Arial\">"));
    out.Line(QStringLiteral("<div align=center> <img src=\"") + picture + QStringLiteral("\">"));
    out.Line(QStringLiteral("<table border=0 width=400 cellpadding=0>"));
    out.Line(QStringLiteral("<tr><td align=left width=150><b>") + page::Escape(title) +
             QStringLiteral(" for: </td><td align=left width=250>") + page::Escape(CurrentUserName) +
             QStringLiteral("</b></td></tr>"));
    out.Line(QStringLiteral("<tr><td align=left><b>Date: </td><td align=left>") + page::Escape(dateText) +
             QStringLiteral("</b></td></tr>"));
    if (!scheduledFrom.isEmpty())
        out.Line(QStringLiteral("<tr><td align=left><b>Scheduled for: </td><td align=left>") +
                 page::Escape(scheduledFrom) + QStringLiteral(" to ") + page::Escape(scheduledTo) +
                 QStringLiteral("</b></td></tr>"));
    out.Line(QStringLiteral("<tr><td align=left><b>Description: </td><td align=left>") + page::Escape(description) +
             QStringLiteral("</b></td></tr></table>"));
    out.Line(QStringLiteral("<br>"));
}

}  // namespace reportpages
