#include "calendar/calendarstore.h"
#include "core/widgets/Theme.h"
#include "calendar/icons.h"
#include "calendar/planner.h"
#include "core/regional.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/IDayView.h"
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"

#include <QHash>
#include <QRegularExpression>

QDate FieldDate(const QVariant& v)
{
    if (!v.isValid() || v.isNull()) return QDate();
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    const QString s = v.toString().trimmed();
    QDate d = QDate::fromString(s.left(10), Qt::ISODate);
    if (!d.isValid()) d = regional::ParseDate(s);
    return d;
}

QString EntryTimeText(const QDateTime& dt)
{
    return SqlDate(dt.date()) + QLatin1Char(' ') + regional::FormatDate(dt, QStringLiteral("Long Time"));
}

QTime EntryTime(const QVariant& stored)
{
    if (!stored.isValid() || stored.isNull()) return QTime();
    if (stored.typeId() == QMetaType::QDateTime) return stored.toDateTime().time();
    if (stored.typeId() == QMetaType::QTime) return stored.toTime();
    if (stored.typeId() == QMetaType::QDate) return QTime(0, 0);
    static const QRegularExpression re(
        QStringLiteral("(\\d{1,2}):(\\d{2})(?::(\\d{2}))?(?:\\.\\d+)?\\s*([AaPp])?\\.?\\s*[Mm]?"));
    const QString s = stored.toString();
    // The last time in the text: a date in front of it may itself hold no colon.
    QRegularExpressionMatch m;
    auto it = re.globalMatch(s);
    while (it.hasNext()) m = it.next();
    if (!m.hasMatch()) return QTime();
    int h = m.captured(1).toInt();
    const int min = m.captured(2).toInt();
    const int sec = m.captured(3).isEmpty() ? 0 : m.captured(3).toInt();
    const QString ap = m.captured(4).toUpper();
    if (!ap.isEmpty()) {
        if (h == 12) h = 0;
        if (ap == QLatin1String("P")) h += 12;
    }
    return QTime(h, min, sec);
}

void SaveCalendarEntry(const QString& name, const QString& workoutType, const QDate& date, const QString& startTime,
                       const QString& endTime, int image)
{
    const QString d = SqlDate(date);
    {
        // The entry is replaced: the old row stays unless the new one is written.
        StoreTransaction transaction(UserConn);
        RecordsetScope scope(UserRS);
        SqlText = QStringLiteral("delete * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and date=#") + d
                  + QStringLiteral("# and key=") + SelectedKey + QStringLiteral(" and workouttype='") + workoutType
                  + QStringLiteral("'");
        UserConn.Execute(SqlText);

        UserRS.Open(QStringLiteral("calendar"));
        UserRS.AddNew();
        UserRS.SetField(QStringLiteral("User_ID"), CurrentUserID);
        UserRS.SetField(QStringLiteral("Date"), date);
        UserRS.SetField(QStringLiteral("Key"), SelectedKey);
        UserRS.SetField(QStringLiteral("Name"), name);
        UserRS.SetField(QStringLiteral("WorkoutType"), workoutType);
        UserRS.SetField(QStringLiteral("StartTime"), startTime);
        UserRS.SetField(QStringLiteral("EndTime"), endTime);
        UserRS.SetField(QStringLiteral("Image"), image);
        UserRS.Update();
        UserRS.Close();
        transaction.Commit();
    }

    LoadCalendarIcons(date, 1);
}

bool ScheduleEntry(const QString& name, const QString& workoutType, const QDate& date, const QTime& start,
                   const QTime& end, int image)
{
    const QDateTime s(date, start);
    const QDateTime e(date, end);
    DayView* view = PlannerDayView();
    int id = 0;
    if (view) {
        id = view->AddEntry(s, e, name, QString(), theme::Color());
    } else {
        DayViewModel day;
        day.SetKeyFloor([](const QDate& d) {
            int k = 0;
            Recordset rs(&UserConn);
            FirstRow(rs, QStringLiteral("select max(key) from calendar where User_ID='") + CurrentUserID
                             + QStringLiteral("' and date=#") + SqlDate(d) + QStringLiteral("#"),
                     [&k](Recordset& r) { k = int(Val(r.Field(0))); });
            return k;
        });
        id = day.Add(s, e, name, QString(), theme::Color());
    }
    if (!id) return false;
    SelectedKey = QString::number(id);
    if (view) view->SetHiddenText(id, SelectedKey + QLatin1Char('\t') + workoutType);
    SaveCalendarEntry(name, workoutType, date, EntryTimeText(s), EntryTimeText(e), image);
    return true;
}

void ReadEntryTimes(const QString& key, const QDate& date, QTime* start, QTime* end)
{
    *start = *end = QTime();
    SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and key=") +
              QString::number(qlonglong(Val(key))) + QStringLiteral(" and Date=#") + SqlDate(date) + QStringLiteral("#");
    FirstRow(UserRS, SqlText, [&](Recordset& rs) {
        *start = EntryTime(rs.Field(QStringLiteral("StartTime")));
        *end = EntryTime(rs.Field(QStringLiteral("EndTime")));
    });
}

long DayCalories()
{
    SqlText = QStringLiteral("select * from calendar where User_ID='") + CurrentUserID + QStringLiteral("' and date=#")
              + CalendarDate() + QStringLiteral("#");
    double sum = 0;
    ForEachRow(UserRS, SqlText, [&sum](Recordset& rs) { sum += Val(Str(rs.Field(QStringLiteral("Cals")))); });
    return long(regional::Round(sum, 0));
}

void LoadDayView(IDayView* view)
{
    if (!view) return;
    view->Clear();
    const QDate day = CalendarQDate();
    SqlText = QStringLiteral("select * from calendar where date=#") + CalendarDate() + QStringLiteral("# and User_ID='")
              + CurrentUserID + QStringLiteral("'");
    const QColor colour = theme::Color();
    ForEachRow(UserRS, SqlText, [&](Recordset& rs) {
        const QTime s = EntryTime(rs.Field(QStringLiteral("StartTime")));
        const QTime e = EntryTime(rs.Field(QStringLiteral("EndTime")));
        if (!s.isValid() || !e.isValid()) return;
        const QDateTime start(day, s);
        // An end at midnight closes the day.
        const QDateTime end = (e == QTime(0, 0) && s > e) ? QDateTime(day.addDays(1), e) : QDateTime(day, e);
        view->AddEntry(start, end, Str(rs.Field(QStringLiteral("Name"))),
                       Str(rs.Field(QStringLiteral("WorkoutType"))) + QLatin1Char('\t') + Str(rs.Field(QStringLiteral("Key"))),
                       colour);
    });
}

namespace {
// The icon a counted row draws, or a null pixmap for a row that draws none.
QPixmap RowIcon(const QVariant& image, const QString& workoutType)
{
    const int n = int(Val(image));
    if (workoutType == QLatin1String("Appointment")) return AppointmentIcon(n);
    if (n > 0) return ExerciseIcon(n);
    return QPixmap();
}
}  // namespace

void LoadCalendarIcons(MonthCalendar* calendar, const QDate& date, int mode)
{
    if (!calendar) return;
    if (mode == 1) calendar->ClearPicture(date);
    else calendar->ClearPictures();
    if (mode == 1)
        SqlText = QStringLiteral("select * from Calendar where User_ID='") + CurrentUserID + QStringLiteral("'and date=#")
                  + SqlDate(date) + QStringLiteral("# order by date");
    else
        SqlText = QStringLiteral("select * from Calendar where User_ID='") + CurrentUserID + QStringLiteral("' order by date");
    // Strips are shared between dates with the same icons.
    QHash<QString, QPixmap> strips;
    QDate current;
    QList<QPixmap> icons;
    QString signature;
    auto flush = [&] {
        if (!current.isValid() || icons.isEmpty()) return;
        auto it = strips.find(signature);
        if (it == strips.end()) it = strips.insert(signature, IconStrip(icons));
        calendar->SetPicture(current, *it);
    };
    ForEachRow(UserRS4, SqlText, [&](Recordset& rs) {
        const QDate d = FieldDate(rs.Field(QStringLiteral("Date")));
        if (d != current) {
            flush();
            current = d;
            icons.clear();
            signature.clear();
        }
        const QString type = Str(rs.Field(QStringLiteral("WorkoutType")));
        const QVariant image = rs.Field(QStringLiteral("Image"));
        const QPixmap icon = RowIcon(image, type);
        if (!icon.isNull()) {
            icons.append(icon);
            signature += (type == QLatin1String("Appointment") ? QStringLiteral("a") : QStringLiteral("e"))
                         + QString::number(int(Val(image))) + QLatin1Char(',');
        }
    });
    flush();
}

void LoadCalendarIcons(const QDate& date, int mode) { LoadCalendarIcons(PlannerCalendar(), date, mode); }
