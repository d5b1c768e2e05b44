#include "calendar/calendarpopup.h"
#include "core/widgets/Theme.h"
#include "calendar/calendarstore.h"
#include "calendar/frmSched2.h"
#include "core/ini.h"
#include "core/routines.h"
#include "core/rows.h"
#include "core/store/transaction.h"
#include "core/shared.h"
#include "core/ui.h"
#include "core/widgets/DayView.h"
#include "core/widgets/MonthCalendar.h"
#include "calendar/icons.h"

#include <QMenu>

CalendarPopup::CalendarPopup(frmSched2* planner) : QObject(planner), m_planner(planner)
{
    mnupopup = new QMenu(planner);
    mnupopup->setObjectName(QStringLiteral("mnupopup"));
    itmCopy = mnupopup->addAction(QStringLiteral("&Copy"));
    itmCopy->setObjectName(QStringLiteral("itmCopy"));
    itmPaste = mnupopup->addAction(QStringLiteral("&Paste"));
    itmPaste->setObjectName(QStringLiteral("itmPaste"));
    itmDelete = mnupopup->addAction(QStringLiteral("&Delete"));
    itmDelete->setObjectName(QStringLiteral("itmDelete"));
    mnupopup->addSeparator();
    mnuFirst = mnupopup->addMenu(QStringLiteral("First Day of Week"));
    mnuFirst->setObjectName(QStringLiteral("mnuFirst"));
    const char* days[7] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thrusday", "Friday", "Saturday"};
    for (int i = 0; i < 7; ++i) {
        itmDay[i] = mnuFirst->addAction(QString::fromLatin1(days[i]));
        itmDay[i]->setObjectName(QStringLiteral("itmDay%1").arg(i));
        connect(itmDay[i], &QAction::triggered, this, [this, i] { itmDay_Click(i); });
    }
    itmPaste->setEnabled(false);
    connect(itmCopy, &QAction::triggered, this, [this] { itmCopy_Click(); });
    connect(itmPaste, &QAction::triggered, this, [this] { Guard([this] { itmPaste_Click(); }); });
    connect(itmDelete, &QAction::triggered, this, [this] { Guard([this] { itmDelete_Click(); }); });
}

CalendarPopup::~CalendarPopup() = default;

void CalendarPopup::UpdateEntries(const QDate& day)
{
    m_day = day;
    const bool scheduled = m_planner->CalView->HasPicture(day);
    itmCopy->setEnabled(scheduled);
    itmDelete->setEnabled(scheduled);
    itmPaste->setEnabled(m_copyFlag);
}

void CalendarPopup::Popup(const QDate& day, const QPoint& globalPos)
{
    UpdateEntries(day);
    mnupopup->popup(globalPos);
}

void CalendarPopup::itmCopy_Click()
{
    const QDate day = m_day.isValid() ? m_day : m_planner->SelectedDate();
    if (m_planner->CalView->HasPicture(day)) {
        m_copyDate = day;
        m_copyFlag = true;
    } else {
        m_copyFlag = false;
    }
    itmPaste->setEnabled(m_copyFlag);
}

void CalendarPopup::itmPaste_Click()
{
    if (!m_copyFlag) return;
    const QString id = CurrentUserID;
    const QDate target = m_planner->SelectedDate();
    const QString copyDate = SqlDate(m_copyDate);
    DayView* view = m_planner->DayView;

    // The day's entries and their logs arrive together or not at all.
    StoreTransaction transaction(UserConn);
    SqlText = QStringLiteral("select * from calendar where User_ID='") + id + QStringLiteral("' and date=#") + copyDate
              + QStringLiteral("#");
    ForEachRow(UserRS3, SqlText, [&](Recordset& entry) {
        const QString type = Str(entry.Field(QStringLiteral("WorkoutType")));
        const QString key = Str(entry.Field(QStringLiteral("Key")));
        const QString logTable = type == QLatin1String("Strength") ? QStringLiteral("daily_weights")
                                                                    : QStringLiteral("daily_exercise");
        const QTime s = EntryTime(entry.Field(QStringLiteral("StartTime")));
        const QTime e = EntryTime(entry.Field(QStringLiteral("EndTime")));
        const QDateTime start(target, s);
        const QDateTime end = (e == QTime(0, 0) && s > e) ? QDateTime(target.addDays(1), e) : QDateTime(target, e);
        const int newId = (s.isValid() && e.isValid())
                              ? view->AddEntry(start, end, Str(entry.Field(QStringLiteral("Name"))), QString(), theme::Color())
                              : 0;
        if (newId == 0) return;   // an entry whose times can't be placed on the day is not copied
        SelectedKey = QString::number(newId);
        view->SetHiddenText(newId, type + QLatin1Char('\t') + SelectedKey);

        SqlText = QStringLiteral("select * from ") + logTable + QStringLiteral(" where User_ID='") + id
                  + QStringLiteral("' and date=#") + copyDate + QStringLiteral("# and key='") + key + QStringLiteral("'");
        RecordsetScope adding(UserRS2);
        ForEachRow(UserRS, SqlText, [&](Recordset& log) {
            if (!UserRS2.IsOpen()) UserRS2.Open(logTable);
            UserRS2.AddNew();
            for (int i = 0; i < log.FieldCount(); ++i) {
                const QString f = log.FieldName(i);
                if (f.compare(QLatin1String("Date"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, target);
                else if (f.compare(QLatin1String("Key"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, SelectedKey);
                else if (f.compare(QLatin1String("StartTime"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, start);
                else if (f.compare(QLatin1String("EndTime"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, end);
                else UserRS2.SetField(f, log.Field(i));
            }
            UserRS2.Update();
        });
        UserRS2.Close();

        UserRS2.Open(QStringLiteral("calendar"));
        UserRS2.AddNew();
        for (int i = 0; i < entry.FieldCount(); ++i) {
            const QString f = entry.FieldName(i);
            if (f.compare(QLatin1String("Date"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, target);
            else if (f.compare(QLatin1String("Key"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, SelectedKey);
            else if (f.compare(QLatin1String("StartTime"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, EntryTimeText(start));
            else if (f.compare(QLatin1String("EndTime"), Qt::CaseInsensitive) == 0) UserRS2.SetField(f, EntryTimeText(end));
            else UserRS2.SetField(f, entry.Field(i));
        }
        UserRS2.Update();
        UserRS2.Close();
    });
    transaction.Commit();
    LoadCalendarIcons(m_planner->CalView, target, 1);
    m_planner->LoadNetCalories();
}

void CalendarPopup::itmDelete_Click()
{
    if (MsgBox(QStringLiteral("Delete all activities scheduled on this day?"), vbYesNo + vbQuestion,
               QStringLiteral("Action")) != vbYes)
        return;
    const QString id = CurrentUserID;
    const QDate day = m_day.isValid() ? m_day : m_planner->SelectedDate();
    const QString date = SqlDate(day);
    DayView* view = m_planner->DayView;

    SqlText = QStringLiteral("select * from calendar where User_ID='") + id + QStringLiteral("' and date=#") + date
              + QStringLiteral("#");
    // The day's activities leave every table at once or stay in all of them.
    StoreTransaction transaction(UserConn);
    ForEachRow(UserRS3, SqlText, [&](Recordset& entry) {
        const QString type = Str(entry.Field(QStringLiteral("WorkoutType")));
        const QString key = Str(entry.Field(QStringLiteral("Key")));
        const QString name = SqlQuote(Str(entry.Field(QStringLiteral("Name"))));
        // 1. The entry leaves the day view.
        for (const DayViewEntry& e : view->Model().Entries()) {
            QString t, k;
            ParseHiddenText(e.hiddenText, &t, &k);
            if (e.start.date() == day && k == key) {
                view->RemoveEntry(e.id);
                break;
            }
        }
        if (type == QLatin1String("Exercise")) {
            UserConn.Execute(QStringLiteral("delete * from Daily_Exercise where User_ID='") + id + QStringLiteral("' and Date=#")
                             + date + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key
                             + QStringLiteral("'"));
            UserConn.Execute(QStringLiteral("delete * from Daily_Intervals where User_ID='") + id + QStringLiteral("' and date=#")
                             + date + QStringLiteral("# and key='") + key + QStringLiteral("'"));
        }
        if (type == QLatin1String("Strength")) {
            UserConn.Execute(QStringLiteral("delete * from Daily_Weights where User_ID='") + id + QStringLiteral("' and Date=#")
                             + date + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key
                             + QStringLiteral("'"));
        }
        UserConn.Execute(QStringLiteral("delete * from calendar where date=#") + date + QStringLiteral("# and User_ID='") + id
                         + QStringLiteral("' and key=") + key);
        UserConn.Execute(QStringLiteral("delete * from HRM where User_ID='") + id + QStringLiteral("' and HRM_date=#") + date
                         + QStringLiteral("# and key='") + key + QStringLiteral("' and SPORT='") + name + QStringLiteral("'"));
        UserConn.Execute(QStringLiteral("delete * from Daily_Psych where User_ID='") + id + QStringLiteral("' and Date=#") + date
                         + QStringLiteral("# and name='") + name + QStringLiteral("' and key='") + key + QStringLiteral("'"));
    });
    transaction.Commit();
    LoadCalendarIcons(m_planner->CalView, day, 1);
    m_planner->LoadNetCalories();
}

void CalendarPopup::itmDay_Click(int index)
{
    WriteIni(QStringLiteral("Program"), QStringLiteral("FirstDay"), QString::number(index), IniFile);
    m_planner->SetFirstDay(index);
}
