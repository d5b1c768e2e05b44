#include "reports/pages/dailynutrition.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"
#include "reports/pages/pagesections.h"
#include "reports/pages/reportheader.h"

#include <array>

namespace reportpages {

namespace {

// The five summed figures of a food, a meal or a day: calories, protein, fat, carbs, points.
using Sums = std::array<double, 5>;

struct Food {
    QDate date;
    long mealId = 0;
    QString meal, name, amount;
    Sums figures{};
};

QList<Food> ReadDiary(const QDate& start, const QDate& end)
{
    SqlText = QStringLiteral("Select *  from daily_nutrition a, setup_meals b where a.User_ID='") + CurrentUserID +
              QStringLiteral("' and a.date between ") + SqlDay(start) + QStringLiteral(" and ") + SqlDay(end) +
              QStringLiteral(" and a.meal_id=b.meal_id and a.meal_id <> 9999 order by a.date, a.meal_id");
    QList<Food> foods;
    ForEachRow(UserRS, SqlText, [&foods](Recordset& rs) {
        Food f;
        f.date = rs.Field(QStringLiteral("Date")).toDate();
        f.mealId = long(Val(rs.Field(QStringLiteral("Meal_ID"))));
        f.meal = Str(rs.Field(QStringLiteral("meal")));
        f.name = Str(rs.Field(QStringLiteral("Name")));
        f.amount = Str(rs.Field(QStringLiteral("amount"))) + QLatin1Char(' ') + Str(rs.Field(QStringLiteral("Measure")));
        int i = 0;
        for (const char* c : {"calories", "protein", "Fat", "Carbs", "points"})
            f.figures[i++] = Val(rs.Field(QString::fromLatin1(c)));
        foods << f;
    });
    return foods;
}

QStringList Figures(const Sums& s)
{
    QStringList out;
    for (double v : s)
        out << NumberText(v);
    return out;
}

void Add(Sums& to, const Sums& s)
{
    for (size_t i = 0; i < to.size(); ++i)
        to[i] += s[i];
}

// A bold total row whose caption stands at the right of the first `span` columns.
QString TotalRow(const QString& caption, int span, const Sums& s)
{
    QString row = QStringLiteral("<tr><td align=right colspan=") + QString::number(span) +
                  QStringLiteral("><font size=\"1\"><b>") + caption + QStringLiteral("</b></font></td>");
    const QString cells = page::table::BoldRow(Figures(s), 0);
    return row + cells.mid(4);   // the cells without their own "<tr>"
}

QString DateRange(const QDate& start, const QDate& end)
{
    return start == end ? regional::LongDate(start) : regional::LongDate(start) + QStringLiteral(" to ") + regional::LongDate(end);
}

const QStringList kFigures = {QStringLiteral("Cals"), QStringLiteral("Protein (g)"), QStringLiteral("Fat (g)"),
                              QStringLiteral("Carbs (g)"), QStringLiteral("Points")};

}  // namespace

QString ReportDailyNutrition(const QDate& start, const QDate& end)
{
    const QList<Food> foods = ReadDiary(start, end);
    const QString file = page::FileName(QStringLiteral("DailyNutrition"));
    page::PageWriter out(file);
    ReportHeader(out, QStringLiteral("nutrition.jpg"), QStringLiteral("Nutrition"), DateRange(start, end), QString(),
                 QString(), QStringLiteral("Daily Nutrition"));
    for (qsizetype i = 0; i < foods.size();) {
        const Food& first = foods[i];
        if (i > 0 && foods[i - 1].date != first.date)
            out.Break();
        out.Line(QStringLiteral("<p align=left><strong>") + page::Escape(first.meal) + QStringLiteral(" for ") +
                 regional::LongDate(first.date) + QStringLiteral("</strong></p>"));
        out.Line(page::table::Open());
        out.Line(page::table::HeadingRow(QStringList{QStringLiteral("Food"), QStringLiteral("Amount")} + kFigures, 2));
        Sums meal{};
        for (; i < foods.size() && foods[i].date == first.date && foods[i].mealId == first.mealId; ++i) {
            out.Line(page::table::Row(QStringList{foods[i].name, foods[i].amount} + Figures(foods[i].figures), 2));
            Add(meal, foods[i].figures);
        }
        out.Line(TotalRow(QStringLiteral("Meal Total"), 2, meal));
        out.Line(page::table::Close());
    }
    out.Close();
    return file;
}

QString ReportDailyTotals(const QDate& start, const QDate& end)
{
    const QList<Food> foods = ReadDiary(start, end);
    const QString file = page::FileName(QStringLiteral("DailyTotals"));
    page::PageWriter out(file);
    ReportHeader(out, QStringLiteral("nutrition.jpg"), QStringLiteral("Nutrition"), DateRange(start, end), QString(),
                 QString(), QStringLiteral("Daily Totals"));
    for (qsizetype i = 0; i < foods.size();) {
        const QDate day = foods[i].date;
        out.Line(QStringLiteral("<p align=left><strong>") + regional::LongDate(day) + QStringLiteral("</strong></p>"));
        out.Line(page::table::Open());
        out.Line(page::table::HeadingRow(QStringList{QStringLiteral("Meal")} + kFigures, 1));
        Sums total{};
        while (i < foods.size() && foods[i].date == day) {
            const Food& first = foods[i];
            Sums meal{};
            for (; i < foods.size() && foods[i].date == day && foods[i].mealId == first.mealId; ++i)
                Add(meal, foods[i].figures);
            out.Line(page::table::Row(QStringList{first.meal} + Figures(meal), 1));
            Add(total, meal);
        }
        out.Line(TotalRow(QStringLiteral("Meals Total"), 1, total));
        out.Line(page::table::Close());
        out.Break();
    }
    out.Close();
    return file;
}

}  // namespace reportpages
