#include "reports/pages/weighinpage.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/pagesections.h"
#include "reports/pages/reportheader.h"

#include <QHash>

namespace reportpages {

namespace {

using Row = QHash<QString, QString>;

Row ReadRow(const QString& sql)
{
    Row row;
    FirstRow(UserRS, sql, [&row](Recordset& rs) {
        for (int i = 0; i < rs.FieldCount(); ++i)
            row.insert(rs.FieldName(i).toLower(), FieldText(rs.Field(i)));
    });
    return row;
}

QString Cell(const QString& value, const QString& width = QString())
{
    return QStringLiteral("<td align=left") + (width.isEmpty() ? QString() : QStringLiteral(" width=") + width) +
           QLatin1Char('>') + page::table::CellText(value) + QStringLiteral("</td>");
}

QString Bold(const QString& caption, const QString& width = QString())
{
    return QStringLiteral("<td align=left") + (width.isEmpty() ? QString() : QStringLiteral(" width=") + width) +
           QStringLiteral("><b>") + caption + QStringLiteral("</b></td>");
}

}  // namespace

QString ReportWeighIn(const QString& date)
{
    const Row actual = ReadRow(QStringLiteral("Select * from WeighIn where User_ID='") + CurrentUserID +
                               QStringLiteral("' and date =#") + date + QLatin1Char('#'));
    const Row goal = ReadRow(QStringLiteral("Select * from WeighIn_goals where User_ID='") + CurrentUserID + QLatin1Char('\''));
    const Row profile = ReadRow(QStringLiteral("select personal_measurements from User_Info where User_ID=") + CurrentUserID);
    const bool lbs = profile.value(QStringLiteral("personal_measurements")).trimmed().compare(QLatin1String("lbs"), Qt::CaseInsensitive) == 0;
    const QString length = lbs ? QStringLiteral("inches") : QStringLiteral("centimeters");
    const QString weight = lbs ? QStringLiteral("lbs") : QStringLiteral("kg");
    auto a = [&actual](const char* c) { return actual.value(QString::fromLatin1(c).toLower()); };
    auto g = [&goal](const char* c) { return goal.value(QString::fromLatin1(c).toLower()); };

    const QString file = page::FileName(QStringLiteral("WeighIn"));
    page::PageWriter out(file);
    ReportHeader(out, QStringLiteral("WeighIn.jpg"), QStringLiteral("WeighIn"), regional::LongDate(regional::ParseDate(date)), QString(), QString(),
                 QString());

    out.Line(QStringLiteral("<table border=0 width=400 cellpadding=0>"));
    out.Line(QStringLiteral("<tr>") + Bold(QStringLiteral("Measurements - ") + length, QStringLiteral("200")) +
             Bold(QStringLiteral("Actual"), QStringLiteral("100")) + Bold(QStringLiteral("Goal"), QStringLiteral("100")) +
             QStringLiteral("</tr>"));
    for (const char* c : {"Neck", "Shoulders", "Chest", "Stomach", "Waist", "Hips"})
        out.Line(QStringLiteral("<tr>") + Cell(QString::fromLatin1(c)) + Cell(a(c)) + Cell(g(c)) + QStringLiteral("</tr>"));
    out.Line(QStringLiteral("</table><br>"));

    out.Line(QStringLiteral("<table Border = 0 Width = 400 cellpadding=0>"));
    out.Line(QStringLiteral("<tr>") + Bold(QStringLiteral("&nbsp;"), QStringLiteral("120")) + Bold(QStringLiteral("Left")) +
             Bold(QStringLiteral("Goal")) + Bold(QStringLiteral("Right")) + Bold(QStringLiteral("Goal")) +
             Bold(QStringLiteral("&nbsp;")) + QStringLiteral("</tr>"));
    const struct { const char *caption, *left, *right; } limbs[] = {{"Biceps", "Bicep_Left", "Bicep_Right"},
                                                                     {"Forearms", "Forearm_Left", "Forearm_Right"},
                                                                     {"Thighs", "Thigh_Left", "Thigh_Right"},
                                                                     {"Calves", "Calf_Left", "Calf_Right"}};
    for (const auto& l : limbs)
        out.Line(QStringLiteral("<tr>") + Cell(QString::fromLatin1(l.caption)) + Cell(a(l.left)) + Cell(g(l.left)) +
                 Cell(a(l.right)) + Cell(g(l.right)) + Cell(QString()) + QStringLiteral("</tr>"));
    out.Line(QStringLiteral("</table><br>"));

    out.Line(QStringLiteral("<table border=0 width=400 cellpadding=0>"));
    out.Line(QStringLiteral("<tr>") + Bold(QStringLiteral("Conditionning"), QStringLiteral("200")) +
             Bold(QStringLiteral("Actual"), QStringLiteral("100")) + Bold(QStringLiteral("Goal"), QStringLiteral("100")) +
             QStringLiteral("</tr>"));
    auto row = [&out](const QString& caption, const QString& value, const QString& target) {
        out.Line(QStringLiteral("<tr>") + Cell(caption) + Cell(value) + Cell(target) + QStringLiteral("</tr>"));
    };
    row(QStringLiteral("Weight - ") + weight, a("weight"), g("weight"));
    row(QStringLiteral("Height - ") + (lbs ? QStringLiteral("in") : QStringLiteral("cm")), a("Height"), QString());
    row(QStringLiteral("Bodyfat %"), a("BodyFat"), g("BodyFat"));
    row(QStringLiteral("Condition"), a("Condition"), QString());
    row(QStringLiteral("BMR"), a("BMR"), QString());
    row(QStringLiteral("BMI"), a("BMI"), QString());
    row(QStringLiteral("VO2max"), a("Vo2"), QString());
    out.Line(QStringLiteral("</table>"));
    out.Close();
    return file;
}

}  // namespace reportpages
