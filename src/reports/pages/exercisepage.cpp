#include "reports/pages/exercisepage.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/pagesections.h"
#include "reports/pages/reportheader.h"

namespace reportpages {

namespace {

// Positions of the Daily_Exercise columns the page reads.
enum Position {
    pName = 2, pCompetition = 4, pStart = 5, pEnd = 6, pLocation = 8, pFacility = 9, pEquipment = 10, pNotes = 11,
    pDistance = 12, pPlannedDistance = 13, pDistanceUnit = 14, pDuration = 15, pPlannedDuration = 16, pSpeed = 17,
    pPlannedSpeed = 18, pSpeedUnit = 19, pIntensity = 23, pZone1 = 26
};

const QString kTable = QStringLiteral("<table border=0 width=700 cellpadding=0>");
const QString kEnd = QStringLiteral("</table>");

QString TimeOf(const QVariant& v)
{
    const QDateTime t = v.toDateTime();
    return t.isValid() ? regional::FormatDate(t, QStringLiteral("Long Time")) : QString();
}

void SessionTables(page::PageWriter& out, const QVector<QVariant>& f)
{
    auto at = [&f](int p) { return FieldText(f.value(p)); };
    out.Line(kTable);
    out.Line(LabelRow(QStringLiteral("Competition:"), {at(pCompetition)}));
    out.Line(LabelRow(QStringLiteral("Location:"), {at(pLocation)}));
    out.Line(LabelRow(QStringLiteral("Facility/Course:"), {at(pFacility)}));
    out.Line(LabelRow(QStringLiteral("Equipment:"), {at(pEquipment)}));
    out.Line(LabelRow(QStringLiteral("Notes:"), {at(pNotes)}));
    out.Line(kEnd);

    Heading(out, QStringLiteral("Performance"));
    // Warm-up and recovery keep their places on the sheet, to be filled in by hand.
    out.Line(kTable);
    out.Line(LabelRow(QStringLiteral("Warmup:"), {QString()}));
    out.Line(LabelRow(QStringLiteral("Recovery:"), {QString()}));
    out.Line(kEnd);
    out.Line(kTable);
    out.Line(QStringLiteral("<tr><td width=150>&nbsp;</td><td align=left><font face=\"Arial\" size=\"2\"><b>Actual</b></font></td>"
                            "<td align=left><font face=\"Arial\" size=\"2\"><b>Planned</b></font></td><td>&nbsp;</td></tr>"));
    out.Line(LabelRow(QStringLiteral("Distance:"), {at(pDistance), at(pPlannedDistance), at(pDistanceUnit)}));
    out.Line(LabelRow(QStringLiteral("Duration:"), {at(pDuration), at(pPlannedDuration), QStringLiteral("hh:mm:ss")}));
    out.Line(LabelRow(QStringLiteral("Speed:"), {at(pSpeed), at(pPlannedSpeed), at(pSpeedUnit)}));
    out.Line(LabelRow(QStringLiteral("Intensity:"), {at(pIntensity)}));
    out.Line(kEnd);

    Heading(out, QStringLiteral("Heart Rate"));
    out.Line(kTable);
    out.Line(QStringLiteral("<tr><td colspan=2>&nbsp;</td></tr>"));
    for (int z = 0; z < 5; ++z)
        out.Line(LabelRow(QStringLiteral("Zone ") + QString::number(z + 1) + QLatin1Char(':'), {at(pZone1 + z)}));
    out.Line(kEnd);
}

void FieldsTable(page::PageWriter& out, const QString& key)
{
    SqlText = QStringLiteral("select * from Daily_Templates where User_ID='") + CurrentUserID + QStringLiteral("' and key='") +
              SqlQuote(key) + QLatin1Char('\'');
    QStringList rows;
    ForEachRow(UserRS, SqlText, [&rows](Recordset& rs) {
        // A formula row keeps its formula and no value.
        QString info = Str(rs.Field(QStringLiteral("Value")));
        if (info.isEmpty() && !Str(rs.Field(QStringLiteral("Formula"))).isEmpty())
            info = QLatin1Char('=') + Str(rs.Field(QStringLiteral("Formula")));
        rows << page::table::Row({Str(rs.Field(QStringLiteral("field_name"))), info, Str(rs.Field(QStringLiteral("Units"))),
                                  QString()},
                                 4);
    });
    if (rows.isEmpty())
        return;
    Heading(out, QStringLiteral("Fields"));
    out.Line(page::table::Open());
    out.Line(page::table::HeadingRow({QStringLiteral("Name"), QStringLiteral("Field Information"),
                                      QStringLiteral("Unit of Measure"), QStringLiteral("Notes")},
                                     4));
    out.Lines(rows);
    out.Line(page::table::Close());
}

void IntervalsTable(page::PageWriter& out, const QString& key)
{
    SqlText = QStringLiteral("select * from Daily_Intervals where User_ID='") + CurrentUserID + QStringLiteral("' and key='") +
              SqlQuote(key) + QLatin1Char('\'');
    QStringList rows;
    ForEachRow(UserRS, SqlText, [&rows](Recordset& rs) {
        rows << page::table::Row({Str(rs.Field(QStringLiteral("Set"))), Str(rs.Field(QStringLiteral("Description"))),
                                  Str(rs.Field(QStringLiteral("Instruction"))), Str(rs.Field(QStringLiteral("Rest"))),
                                  Str(rs.Field(QStringLiteral("Intensity")))},
                                 5);
    });
    if (rows.isEmpty())
        return;
    Heading(out, QStringLiteral("Intervals"));
    out.Line(page::table::Open());
    out.Line(page::table::HeadingRow({QStringLiteral("Set"), QStringLiteral("Description"), QStringLiteral("Instruction"),
                                      QStringLiteral("Recovery"), QStringLiteral("Intensity")},
                                     5));
    out.Lines(rows);
    out.Line(page::table::Close());
}

}  // namespace

void ReportExercise(const QDate& date, const QString& key, const QString& fileName)
{
    SqlText = QStringLiteral("Select *  from daily_exercise where User_ID='") + CurrentUserID +
              QStringLiteral("' and date between ") + SqlDay(date) + QStringLiteral(" and ") + SqlDay(date) +
              QStringLiteral(" and key='") + SqlQuote(key) + QStringLiteral("' order by date,starttime,endtime");
    QVector<QVariant> fields;
    FirstRow(UserRS, SqlText, [&fields](Recordset& rs) {
        for (int i = 0; i < rs.FieldCount(); ++i)
            fields << rs.Field(i);
    });

    page::PageWriter out(fileName);
    const QString name = fields.isEmpty() ? QString() : FieldText(fields.value(pName));
    const QString from = fields.isEmpty() ? QString() : TimeOf(fields.value(pStart));
    ReportHeader(out, QStringLiteral("training.jpg"), QStringLiteral("Exercise/Sports"), regional::LongDate(date), from,
                 fields.isEmpty() ? QString() : TimeOf(fields.value(pEnd)), name);
    if (!fields.isEmpty()) {
        SessionTables(out, fields);
        FieldsTable(out, key);
        IntervalsTable(out, key);
        WritePsych(out, date, name, key, PsychWording::ExerciseLog);
    }
    out.Close();
}

}  // namespace reportpages
