#include "core/widgets/MonthCalendar.h"
#include "core/widgets/Theme.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTextCharFormat>
#include <algorithm>

namespace {
QDate g_justHandled;   // the date a click's selection change already handled
}

MonthCalendarPage::MonthCalendarPage(MonthCalendar* owner, QWidget* parent) : QCalendarWidget(parent), m_owner(owner)
{
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    setGridVisible(true);
    setMinimumSize(300, 250);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    if (auto* view = findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"))) {
        m_view = view;
        view->viewport()->installEventFilter(this);
    }
}

void MonthCalendarPage::paintCell(QPainter* p, const QRect& rect, QDate date) const
{
    m_cells.insert(date, rect);
    // A date shown twice (end of one month, start of the next page) keeps the cell of its own month.
    const bool inMonth = date.month() == monthShown() && date.year() == yearShown();
    const QPalette pal = palette();
    const bool selected = inMonth && m_owner->IsSelected(date);
    p->save();
    p->fillRect(rect, selected ? pal.color(QPalette::Highlight) : pal.color(QPalette::Base));
    if (inMonth && date == m_owner->Value() && m_view && m_view->hasFocus()) {
        p->setPen(QPen(pal.color(QPalette::Text), 1, Qt::DotLine));
        p->drawRect(rect.adjusted(1, 1, -2, -2));
    }
    if (date == QDate::currentDate()) {
        p->setPen(QPen(QColor(200, 40, 40), 2));
        p->drawRect(rect.adjusted(1, 1, -2, -2));
    }
    QColor ink = selected ? pal.color(QPalette::HighlightedText) : pal.color(QPalette::Text);
    if (!inMonth) ink = pal.color(QPalette::Disabled, QPalette::Text);
    p->setPen(ink);
    QFont f = font();
    if (m_owner->HasPicture(date) && inMonth) f.setBold(true);
    p->setFont(f);
    const QFontMetrics fm(f);
    const QRect textRect = rect.adjusted(3, 1, -3, 0);
    p->drawText(textRect, Qt::AlignRight | Qt::AlignTop, QString::number(date.day()));
    if (inMonth && m_owner->HasPicture(date)) {
        const QPixmap pic = m_owner->Picture(date);
        // Beside the day's number when the strip leaves it room, else under it.
        const int numberWidth = fm.horizontalAdvance(QString::number(date.day())) + 6;
        const int room = pic.width() <= rect.width() - numberWidth ? rect.height() - 4 : rect.height() - fm.height() - 1;
        const int h = qMin(pic.height(), qMax(8, room));
        const QRect clip = rect.adjusted(2, 0, -1, -1);
        p->setClipRect(clip);
        const QPixmap drawn = h == pic.height() ? pic : pic.scaledToHeight(h, Qt::SmoothTransformation);
        p->drawPixmap(clip.left(), rect.bottom() - 1 - h, drawn);
    }
    p->restore();
}

QDate MonthCalendarPage::DateAt(const QPoint& pos) const
{
    QDate found;
    for (auto it = m_cells.constBegin(); it != m_cells.constEnd(); ++it)
        if (it.value().contains(pos)) {
            // Prefer the date of the month shown when a stale cell shares the place.
            if (!found.isValid() || (it.key().month() == monthShown() && it.key().year() == yearShown())) found = it.key();
        }
    return found;
}

bool MonthCalendarPage::eventFilter(QObject* watched, QEvent* event)
{
    if (m_view && watched == static_cast<QAbstractItemView*>(m_view)->viewport()) {
        if (event->type() == QEvent::MouseButtonPress) {
            g_justHandled = QDate();
        } else if (event->type() == QEvent::ContextMenu) {
            auto* ce = static_cast<QContextMenuEvent*>(event);
            // From the keyboard the menu is for the current day, beside its cell.
            const bool keyboard = ce->reason() == QContextMenuEvent::Keyboard;
            const QDate d = keyboard ? m_owner->Value() : DateAt(ce->pos());
            if (keyboard && m_cells.contains(d)) {
                const QPoint at = static_cast<QAbstractItemView*>(m_view)->viewport()->mapToGlobal(m_cells.value(d).center());
                emit m_owner->DateRightClicked(d, at);
                return true;
            }
            if (d.isValid()) emit m_owner->DateRightClicked(d, ce->globalPos());
            return true;
        }
    }
    return QCalendarWidget::eventFilter(watched, event);
}

// ---------------------------------------------------------------- the calendar

MonthCalendar::MonthCalendar(QWidget* parent) : QWidget(parent)
{
    m_grid = new QGridLayout(this);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(4);
    const QDate today = QDate::currentDate();
    m_value = today;
    m_anchor = today;
    m_selection.insert(today);
    m_firstYear = today.year();
    m_firstMonth = today.month();
    SetMonths(1);
}

void MonthCalendar::SetMonths(int n)
{
    n = qBound(1, n, 12);
    while (m_pages.size() > n) delete m_pages.takeLast();
    while (m_pages.size() < n) {
        auto* page = new MonthCalendarPage(this, this);
        page->setFirstDayOfWeek(m_firstDay);
        const int index = int(m_pages.size());
        m_pages.append(page);
        connect(page, &QCalendarWidget::selectionChanged, this, [this, page] {
            if (m_syncing) return;
            const QDate d = page->selectedDate();
            if (d == m_value) return;
            g_justHandled = d;
            SelectDate(d, QGuiApplication::keyboardModifiers());
        });
        connect(page, &QCalendarWidget::clicked, this, [this, page](QDate d) { PageClicked(page, d); });
        connect(page, &QCalendarWidget::activated, this, [this](QDate d) { emit DateDoubleClicked(d); });
        connect(page, &QCalendarWidget::currentPageChanged, this,
                [this, page](int y, int m) { PageShown(page, y, m); });
        Q_UNUSED(index);
    }
    const int perRow = n <= 3 ? n : (n + 1) / 2;
    for (int i = 0; i < m_pages.size(); ++i) {
        m_grid->removeWidget(m_pages[i]);
        m_grid->addWidget(m_pages[i], i / perRow, i % perRow);
    }
    if (m_colour.isValid()) SetColor(m_colour);
    SyncPages();
}

void MonthCalendar::SetFirstMonth(int year, int month)
{
    if (!QDate(year, month, 1).isValid()) return;
    m_firstYear = year;
    m_firstMonth = month;
    SyncPages();
}

void MonthCalendar::SyncPages()
{
    {
        const QScopedValueRollback<bool> syncing(m_syncing, true);
        QDate first(m_firstYear, m_firstMonth, 1);
        for (int i = 0; i < m_pages.size(); ++i) {
            const QDate m = first.addMonths(i);
            MonthCalendarPage* page = m_pages[i];
            page->setCurrentPage(m.year(), m.month());
            // The page's own selected date marks the keyboard focus: the current date where shown.
            if (m_value.year() == m.year() && m_value.month() == m.month()) page->setSelectedDate(m_value);
            else page->setSelectedDate(m);
            page->setCurrentPage(m.year(), m.month());
        }
    }
    RefreshPages();
}

void MonthCalendar::RefreshPages()
{
    for (MonthCalendarPage* p : m_pages) {
        p->Refresh();
        if (p->View()) p->View()->update();
    }
}

void MonthCalendar::PageShown(MonthCalendarPage* page, int year, int month)
{
    if (m_syncing) return;
    const int index = int(m_pages.indexOf(page));
    if (index < 0) return;
    const QDate first = QDate(year, month, 1).addMonths(-index);
    if (first.year() == m_firstYear && first.month() == m_firstMonth) return;
    m_firstYear = first.year();
    m_firstMonth = first.month();
    SyncPages();
}

void MonthCalendar::PageClicked(MonthCalendarPage*, const QDate& d)
{
    if (g_justHandled == d) {
        g_justHandled = QDate();
        return;
    }
    SelectDate(d, QGuiApplication::keyboardModifiers());
}

void MonthCalendar::SetValue(const QDate& d)
{
    if (!d.isValid()) return;
    SelectDate(d, Qt::NoModifier);
}

void MonthCalendar::SelectDate(const QDate& d, Qt::KeyboardModifiers modifiers)
{
    if (!d.isValid()) return;
    const QDate old = m_value;
    const QSet<QDate> oldSelection = m_selection;
    if (modifiers & Qt::ShiftModifier) {
        const QDate from = m_anchor.isValid() ? m_anchor : m_value;
        QSet<QDate> range;
        for (QDate x = qMin(from, d); x <= qMax(from, d); x = x.addDays(1)) range.insert(x);
        if (modifiers & Qt::ControlModifier) m_selection.unite(range);
        else m_selection = range;
        m_value = d;
    } else if (modifiers & Qt::ControlModifier) {
        if (m_selection.contains(d) && m_selection.size() > 1) {
            m_selection.remove(d);
            if (m_value == d) {
                QList<QDate> rest = m_selection.values();
                m_value = *std::max_element(rest.begin(), rest.end());
            }
        } else {
            m_selection.insert(d);
            m_value = d;
        }
        m_anchor = d;
    } else {
        m_selection = {d};
        m_value = d;
        m_anchor = d;
    }
    // Keep the current date in view.
    const QDate first(m_firstYear, m_firstMonth, 1);
    const QDate last = first.addMonths(int(m_pages.size())).addDays(-1);
    if (m_value < first || m_value > last) {
        m_firstYear = m_value.year();
        m_firstMonth = m_value.month();
    }
    SyncPages();
    if (old != m_value || oldSelection != m_selection) emit SelectionChanged(m_value);
}

QList<QDate> MonthCalendar::SelectedDates() const
{
    QList<QDate> out = m_selection.values();
    std::sort(out.begin(), out.end());
    return out;
}

void MonthCalendar::SetPicture(const QDate& d, const QPixmap& picture)
{
    if (picture.isNull()) m_pictures.remove(d);
    else m_pictures.insert(d, picture);
    RefreshPages();
}

void MonthCalendar::ClearPicture(const QDate& d)
{
    if (m_pictures.remove(d)) RefreshPages();
}

void MonthCalendar::ClearPictures()
{
    m_pictures.clear();
    RefreshPages();
}

void MonthCalendar::SetFirstDayOfWeek(Qt::DayOfWeek day)
{
    // A value that is no day of the week (a damaged setting) leaves the first day as it is.
    if (day < Qt::Monday || day > Qt::Sunday) return;
    m_firstDay = day;
    for (MonthCalendarPage* p : m_pages) p->setFirstDayOfWeek(day);
    RefreshPages();
}

void MonthCalendar::SetColor(const QColor& c)
{
    m_colour = c;
    if (!c.isValid()) return;
    const QString css = QStringLiteral(
                            "QWidget#qt_calendar_navigationbar { background-color: %1; }"
                            "QToolButton#qt_calendar_prevmonth, QToolButton#qt_calendar_nextmonth,"
                            "QToolButton#qt_calendar_monthbutton, QToolButton#qt_calendar_yearbutton { color: %2; }"
                            // Styled, the month button's menu arrow comes out as a stray mark after the
                            // month's name; the month list still opens on a click.
                            "QToolButton#qt_calendar_monthbutton::menu-indicator { image: none; width: 0px; }"
                            "QToolButton#qt_calendar_monthbutton { padding-right: 2px; }"
                            // Under the pointer the buttons keep their text readable on the colour.
                            "QToolButton#qt_calendar_monthbutton:hover, QToolButton#qt_calendar_yearbutton:hover,"
                            "QToolButton#qt_calendar_monthbutton:pressed, QToolButton#qt_calendar_yearbutton:pressed"
                            " { background-color: %3; border: none; border-radius: 3px; }")
                            .arg(c.name(), theme::TextOn(c).name(),
                                 (theme::TextOn(c) == QColor(Qt::black) ? c.darker(115) : c.lighter(135)).name());
    // The day names on a pale tint of the colour, so that red weekend names stay readable.
    QTextCharFormat header;
    header.setBackground(theme::Tint(c));
    header.setForeground(QColor(30, 30, 30));
    for (MonthCalendarPage* p : m_pages) {
        p->setStyleSheet(css);
        p->setHeaderTextFormat(header);
    }
}
