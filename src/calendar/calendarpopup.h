#pragma once
// The popup menu of the planner's month calendar: copy a day's entries, paste them onto the
// selected day with their logs, delete all of a day's activities, and the first day of the
// week.
#include <QDate>
#include <QObject>

class QAction;
class QMenu;
class QPoint;
class frmSched2;

class CalendarPopup : public QObject {
    Q_OBJECT
public:
    explicit CalendarPopup(frmSched2* planner);
    ~CalendarPopup() override;

    QMenu* mnupopup = nullptr;
    QAction* itmCopy = nullptr;
    QAction* itmPaste = nullptr;
    QAction* itmDelete = nullptr;
    QMenu* mnuFirst = nullptr;
    QAction* itmDay[7] = {};

    // Enables the entries for a day and shows the menu.
    void Popup(const QDate& day, const QPoint& globalPos);
    void UpdateEntries(const QDate& day);

    // The commands, on the day of the last popup (the planner's selected day).
    void itmCopy_Click();
    void itmPaste_Click();
    void itmDelete_Click();
    void itmDay_Click(int index);

    bool CopyFlag() const { return m_copyFlag; }
    QDate CopyDate() const { return m_copyDate; }

private:
    frmSched2* m_planner;
    QDate m_day;
    QDate m_copyDate;
    bool m_copyFlag = false;
};
