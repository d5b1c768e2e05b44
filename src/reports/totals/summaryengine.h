#pragma once
// The Daily Summary's engine, without a window: the display tables, the working table tmpDate
// filled day by day for a range, the BMR carried between weigh-ins, the day table with its Total
// and Average rows, and the arithmetic of the balance strip. The screen copies the results into
// its grids. Statements run on the user store through UserRS and UserRS2.
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

#include "reports/totals/totalsviews.h"

namespace summary {

// What a computation has to tell the athlete: a failing statement's text (an error, shown
// titled "Error") or a plain message. The engine goes on with its next step after each; the
// screen shows them when the computation is over.
struct Message {
    QString text;
    bool error = false;
};
using Messages = QList<Message>;

// Creates and seeds Summary_Display (and, at every call, forces the exercise "Accomp Goals"
// off) and Nutrient_Display. Harmless when the tables exist.
void sdTableCreate(Messages* messages = nullptr);
void ndTableCreate(Messages* messages = nullptr);

// One shown column of the day table, from Summary_Display.
struct DisplayColumn {
    int fNumber = 0;
    QString name;
    int width = 0;     // twips
    QString fname;     // the tmpDate field
};

// The layout of the day table: the widths of "Date" and "BMR" set to 1000, then the rows
// with display = true in table order (the date column first).
QList<DisplayColumn> ShownColumns();

// The group heading over each shown column ("" over the date), shortened where the group's
// columns are too few or too narrow for it. The group's width is the sum of its columns' widths
// in twips; a heading needs about 100 twips a character.
QStringList GroupHeadings(const QList<DisplayColumn>& columns);

// The number of days of a range, both ends counted.
int tdays(const QDate& start, const QDate& end);

// The day table: one row per day (cells from column 1, the date), and the Total and Average
// rows (column 1 empty; a column without a numeric cell empty in both).
struct DayTable {
    QList<QStringList> rows;
    QStringList total, average;
};

// Fills tmpDate for the range and reads it back in the columns Summary_Display shows. `userId` is the signed-in
// athlete. "No BMR found" and the texts of failing statements go to `messages`.
DayTable summaryTable(const QString& userId, const QDate& start, const QDate& end, Messages* messages);

// The Total and Average rows of day rows as the grid holds them (cells from column 1).
void DayTotals(const QList<QStringList>& rows, QStringList* total, QStringList* average);

// The BMR for the days below `date` (see summaryTable); `first` for the first lookup of a
// computation, which may take the date's own BMR. 0 with "No BMR found" when there is none.
double getNextBMR(const QDate& date, bool first, Messages* messages);

// The balance strip: seven columns, a Total and an Average row of text. Each step reads back
// the text the step before wrote, as the grid would.
struct Strip {
    QString heading[7];
    QString cell[2][7];   // [0] Total, [1] Average; columns 0..6 are the strip's 1..7
};
enum StripColumn { colBurned, colBmr, colTotalBurned, colIntake, colNetCalories, colNetWeight, colTime };

// The headings and empty cells.
void SS2Set(Strip& strip);
// What the nutrition grid leaves in the strip: the Total of "- Total Caloric Intake".
void SetCaloriesEaten(Strip& strip, double caloriesEaten);
// The sum and mean of tmpDate's BMR over the range.
void BmrSums(const QDate& start, const QDate& end, double* total, double* average, Messages* messages);
// The strip from the balance and the BMR sums; column 4's Total is read as it stands.
void FillStrip(Strip& strip, const totals::Balance& balance, int daysInRange, double totalBmr, double averageBmr);
// The athlete's unit on column 6, and the Total of column 6 in kilograms when it is above 0.
void ApplyUnit(Strip& strip, const QString& userId, Messages* messages);

// A number cell's text read back as a number ("1,234.5" -> 1234.5).
double CellNumber(const QString& text);

}  // namespace summary
