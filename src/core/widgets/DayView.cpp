#include "core/widgets/DayView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

// ---------------------------------------------------------------- model

DayViewModel::DayViewModel() : m_date(QDate::currentDate()) {}

void DayViewModel::SetScale(int minutes)
{
    static const int allowed[] = {60, 30, 15, 10, 5};
    for (int a : allowed)
        if (a == minutes) {
            m_scale = minutes;
            m_dayStart = (m_dayStart / m_scale) * m_scale;
            return;
        }
}

void DayViewModel::SetDayStart(const QTime& t)
{
    if (!t.isValid()) return;
    m_dayStart = ((t.hour() * 60 + t.minute()) / m_scale) * m_scale;
    if (m_dayStart >= m_dayEnd) m_dayStart = 0;
}

void DayViewModel::SetDayEnd(const QTime& t)
{
    if (!t.isValid()) return;
    const int m = t.hour() * 60 + t.minute();
    m_dayEnd = m == 0 ? 24 * 60 : m;
    if (m_dayEnd <= m_dayStart) m_dayEnd = 24 * 60;
}

int DayViewModel::RowCount() const { return (m_dayEnd - m_dayStart + m_scale - 1) / m_scale; }

void DayViewModel::Clear()
{
    m_entries.clear();
    m_lastId = 0;
}

int DayViewModel::MinuteOf(const QDateTime& dt, const QDate& day)
{
    if (!dt.isValid()) return -1;
    const qint64 days = day.daysTo(dt.date());
    return int(days * 24 * 60 + dt.time().hour() * 60 + dt.time().minute());
}

namespace {
// The clock time of a minute of a day (24:00 is midnight at its end), whatever the clocks do
// that day.
QDateTime WallTime(const QDate& day, int minute)
{
    const QDate d = day.addDays(minute / (24 * 60));
    const int m = minute % (24 * 60);
    return QDateTime(d, QTime(m / 60, m % 60));
}

// The numbers among the tab-separated fields of a hidden text: the keys the entry carries.
int HiddenKey(const QString& hidden)
{
    int best = 0;
    for (const QString& f : hidden.split('\t')) {
        bool ok = false;
        const int v = f.trimmed().toInt(&ok);
        if (ok) best = qMax(best, v);
    }
    return best;
}
}  // namespace

int DayViewModel::Add(const QDateTime& start, const QDateTime& end, const QString& text, const QString& hiddenText,
                      const QColor& colour)
{
    if (!start.isValid() || !end.isValid()) return 0;
    const QDate day = start.date();
    const int s = MinuteOf(start, day);
    const int e = MinuteOf(end, day);
    if (e <= s || s < m_dayStart || e > m_dayEnd) return 0;

    int id = m_lastId;
    for (const DayViewEntry& x : m_entries) {
        id = qMax(id, x.id);
        if (x.start.date() == day) id = qMax(id, HiddenKey(x.hiddenText));
    }
    if (m_keyFloor) id = qMax(id, m_keyFloor(day));
    ++id;
    m_lastId = id;
    DayViewEntry entry;
    entry.id = id;
    entry.start = start;
    entry.end = end;
    entry.text = text;
    entry.hiddenText = hiddenText;
    entry.colour = colour;
    m_entries.append(entry);
    return id;
}

bool DayViewModel::Remove(int id)
{
    for (int i = 0; i < m_entries.size(); ++i)
        if (m_entries[i].id == id) {
            m_entries.removeAt(i);
            return true;
        }
    return false;
}

const DayViewEntry* DayViewModel::Find(int id) const
{
    for (const DayViewEntry& e : m_entries)
        if (e.id == id) return &e;
    return nullptr;
}

DayViewEntry* DayViewModel::Find(int id)
{
    for (DayViewEntry& e : m_entries)
        if (e.id == id) return &e;
    return nullptr;
}

void DayViewModel::SetHiddenText(int id, const QString& hidden)
{
    if (DayViewEntry* e = Find(id)) e->hiddenText = hidden;
}

QList<const DayViewEntry*> DayViewModel::DayEntries() const
{
    QList<const DayViewEntry*> out;
    for (const DayViewEntry& e : m_entries)
        if (e.start.date() == m_date) out.append(&e);
    std::stable_sort(out.begin(), out.end(), [](const DayViewEntry* a, const DayViewEntry* b) {
        return a->start < b->start || (a->start == b->start && a->end > b->end);
    });
    return out;
}

int DayViewModel::Snap(int minute) const
{
    if (minute < 0) return 0;
    return (minute / m_scale) * m_scale;
}

QPair<int, int> DayViewModel::MovedSpan(int id, int newStartMinute) const
{
    const DayViewEntry* e = Find(id);
    if (!e) return {-1, -1};
    const int s = MinuteOf(e->start, e->start.date());
    const int d = MinuteOf(e->end, e->start.date()) - s;
    // The entry moves by whole rows, so that one at half past stays at half past.
    const int delta = newStartMinute - s;
    const int rows = delta >= 0 ? (delta + m_scale / 2) / m_scale : -((-delta + m_scale / 2) / m_scale);
    int ns = s + rows * m_scale;
    ns = qBound(m_dayStart, ns, qMax(m_dayStart, m_dayEnd - d));
    return {ns, ns + d};
}

QPair<int, int> DayViewModel::ResizedSpan(int id, int newEndMinute) const
{
    const DayViewEntry* e = Find(id);
    if (!e) return {-1, -1};
    const int s = MinuteOf(e->start, e->start.date());
    // To the nearest row boundary, at least one row long, never past the day.
    int ne = ((newEndMinute + m_scale / 2) / m_scale) * m_scale;
    ne = qMax(ne, s + m_scale);
    ne = qMin(ne, m_dayEnd);
    if (ne <= s) ne = qMin(s + 1, m_dayEnd);
    return {s, ne};
}

bool DayViewModel::ApplySpan(int id, int startMinute, int endMinute)
{
    DayViewEntry* e = Find(id);
    if (!e || endMinute <= startMinute || startMinute < 0) return false;
    const QDate day = e->start.date();
    const QDateTime ns = WallTime(day, startMinute);
    const QDateTime ne = WallTime(day, endMinute);
    if (ns == e->start && ne == e->end) return false;
    e->start = ns;
    e->end = ne;
    return true;
}

QPair<int, int> DayViewModel::FreeSpan(int fromMinute, int toMinute) const
{
    int a = qMin(fromMinute, toMinute), b = qMax(fromMinute, toMinute);
    a = qBound(m_dayStart, Snap(a), m_dayEnd - m_scale);
    b = qBound(a + m_scale, Snap(b) + m_scale, m_dayEnd);
    return {a, b};
}

QList<DayViewModel::Placed> DayViewModel::Layout() const
{
    const QList<const DayViewEntry*> day = DayEntries();
    QList<Placed> out;
    int i = 0;
    while (i < day.size()) {
        // A cluster: entries that overlap one another, directly or through others.
        int clusterEnd = i;
        QDateTime reach = day[i]->end;
        while (clusterEnd + 1 < day.size() && day[clusterEnd + 1]->start < reach) {
            ++clusterEnd;
            reach = qMax(reach, day[clusterEnd]->end);
        }
        QList<QDateTime> columnEnds;
        const int first = int(out.size());
        for (int k = i; k <= clusterEnd; ++k) {
            int col = 0;
            while (col < columnEnds.size() && columnEnds[col] > day[k]->start) ++col;
            if (col == columnEnds.size()) columnEnds.append(day[k]->end);
            else columnEnds[col] = day[k]->end;
            out.append({day[k], col, 0});
        }
        for (int k = first; k < out.size(); ++k) out[k].columns = int(columnEnds.size());
        i = clusterEnd + 1;
    }
    return out;
}

QDateTime DayViewModel::AtMinute(int minute) const { return WallTime(m_date, minute); }

// ---------------------------------------------------------------- canvas

class DayViewCanvas : public QWidget {
public:
    explicit DayViewCanvas(DayView* view) : QWidget(view), m_view(view)
    {
        setMouseTracking(true);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    static constexpr int Gutter = 64;

    QRect EntryRect(const DayViewModel::Placed& p) const
    {
        const DayViewModel& m = m_view->m_model;
        const int s = DayViewModel::MinuteOf(p.entry->start, m.Date());
        const int e = DayViewModel::MinuteOf(p.entry->end, m.Date());
        const int top = m_view->YOfMinute(s), bottom = m_view->YOfMinute(e);
        const int room = width() - Gutter - 6;
        const int colWidth = qMax(20, room / qMax(1, p.columns));
        return QRect(Gutter + 2 + p.column * colWidth, top + 1, colWidth - 3, qMax(6, bottom - top - 2));
    }

    // The entry under a point, with its rectangle.
    const DayViewEntry* EntryAt(const QPoint& pt, QRect* rect = nullptr) const
    {
        const auto placed = m_view->m_model.Layout();
        for (auto it = placed.rbegin(); it != placed.rend(); ++it) {
            const QRect r = EntryRect(*it);
            if (r.adjusted(0, 0, 0, 2).contains(pt)) {
                if (rect) *rect = r;
                return it->entry;
            }
        }
        return nullptr;
    }

protected:
    void paintEvent(QPaintEvent* ev) override
    {
        QPainter p(this);
        const DayViewModel& m = m_view->m_model;
        const QPalette pal = palette();
        p.fillRect(ev->rect(), pal.color(QPalette::Base));
        const int rowH = m_view->m_rowHeight;
        const int rows = m.RowCount();
        QFont small = font();
        small.setPointSizeF(qMax(6.0, font().pointSizeF() - 1));
        for (int r = 0; r < rows; ++r) {
            const int minute = m.DayStartMinute() + r * m.Scale();
            const QRect row(0, r * rowH, width(), rowH);
            if (!row.intersects(ev->rect())) continue;
            const bool work = minute >= 8 * 60 && minute < 18 * 60;
            p.fillRect(row.adjusted(Gutter, 0, 0, 0), work ? pal.color(QPalette::Base) : pal.color(QPalette::AlternateBase));
            p.fillRect(QRect(0, row.top(), Gutter, rowH), pal.color(QPalette::Window));
            p.setPen(minute % 60 == 0 ? pal.color(QPalette::Mid) : pal.color(QPalette::Midlight));
            p.drawLine(minute % 60 == 0 ? 0 : Gutter - 14, row.top(), width(), row.top());
            p.setPen(pal.color(QPalette::WindowText));
            if (minute % 60 == 0) {
                const QTime t(minute / 60 % 24, 0);
                p.drawText(QRect(2, row.top() + 1, Gutter - 8, rowH - 2), Qt::AlignRight | Qt::AlignTop,
                           QLocale().toString(t, QStringLiteral("h AP")));
            } else {
                p.setFont(small);
                p.drawText(QRect(2, row.top(), Gutter - 16, rowH), Qt::AlignRight | Qt::AlignVCenter,
                           QStringLiteral(":%1").arg(minute % 60, 2, 10, QLatin1Char('0')));
                p.setFont(font());
            }
        }
        p.setPen(pal.color(QPalette::Mid));
        p.drawLine(Gutter, 0, Gutter, height());

        // The span chosen over free time, or being dragged.
        QPair<int, int> free{-1, -1};
        if (m_mode == Mode::Free) free = m_preview;
        else if (m_view->m_freeStart.isValid() && m_view->m_freeStart.date() == m.Date())
            free = {DayViewModel::MinuteOf(m_view->m_freeStart, m.Date()), DayViewModel::MinuteOf(m_view->m_freeEnd, m.Date())};
        if (free.first >= 0) {
            QColor c = pal.color(QPalette::Highlight);
            c.setAlpha(60);
            p.fillRect(QRect(Gutter + 1, m_view->YOfMinute(free.first), width() - Gutter - 1,
                             m_view->YOfMinute(free.second) - m_view->YOfMinute(free.first)), c);
        }

        p.setRenderHint(QPainter::Antialiasing);
        for (const auto& placed : m.Layout()) {
            QRect r = EntryRect(placed);
            if ((m_mode == Mode::Move || m_mode == Mode::Resize) && placed.entry->id == m_dragId && m_preview.first >= 0)
                r = QRect(r.left(), m_view->YOfMinute(m_preview.first) + 1, r.width(),
                          qMax(6, m_view->YOfMinute(m_preview.second) - m_view->YOfMinute(m_preview.first) - 2));
            DrawEntry(p, *placed.entry, r, placed.entry->id == m_view->m_selected);
        }
    }

    void DrawEntry(QPainter& p, const DayViewEntry& e, const QRect& r, bool selected)
    {
        QColor fill = e.colour.isValid() ? e.colour : palette().color(QPalette::Highlight);
        QColor light = fill.lighter(170);
        if (light.lightness() > 235) light = fill.lighter(130);
        QPainterPath path;
        path.addRoundedRect(QRectF(r), 4, 4);
        p.fillPath(path, light);
        p.fillRect(QRect(r.left(), r.top() + 1, 5, r.height() - 2), fill);
        p.setPen(QPen(selected ? palette().color(QPalette::Text) : fill.darker(120), selected ? 2 : 1));
        p.drawPath(path);
        const QColor ink = light.lightness() > 128 ? QColor(20, 20, 20) : QColor(250, 250, 250);
        p.setPen(ink);
        const QString times = QLocale().toString(e.start.time(), QStringLiteral("h:mm AP")) + QStringLiteral(" - ")
                              + QLocale().toString(e.end.time(), QStringLiteral("h:mm AP"));
        const QRect textRect = r.adjusted(9, 2, -4, -2);
        QFont bold = font();
        bold.setBold(true);
        p.setFont(bold);
        const QFontMetrics fm(bold);
        if (textRect.height() >= 2 * fm.height()) {
            p.drawText(textRect, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, e.text + QStringLiteral("\n"));
            p.setFont(font());
            p.drawText(textRect.adjusted(0, fm.height(), 0, 0), Qt::AlignLeft | Qt::AlignTop, times);
        } else {
            p.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                       fm.elidedText(e.text + QStringLiteral("  ") + times, Qt::ElideRight, textRect.width()));
        }
        p.setFont(font());
    }

    void mousePressEvent(QMouseEvent* ev) override
    {
        if (ev->button() != Qt::LeftButton) return;
        const QPoint pt = ev->position().toPoint();
        m_pressPos = pt;
        m_moved = false;
        QRect r;
        if (const DayViewEntry* e = EntryAt(pt, &r)) {
            m_view->SelectEntry(e->id);
            emit m_view->EntrySelected(e->id);
            m_dragId = e->id;
            m_mode = pt.y() >= r.bottom() - 4 ? Mode::Resize : Mode::Move;
            m_grabOffset = m_view->MinuteAtY(pt.y()) - DayViewModel::MinuteOf(e->start, e->start.date());
            m_preview = {-1, -1};
        } else if (pt.x() > Gutter) {
            m_mode = Mode::Free;
            m_anchor = m_view->MinuteAtY(pt.y());
            m_preview = m_view->m_model.FreeSpan(m_anchor, m_anchor);
            update();
        }
    }

    void mouseMoveEvent(QMouseEvent* ev) override
    {
        const QPoint pt = ev->position().toPoint();
        if (m_mode == Mode::None) {
            QRect r;
            const DayViewEntry* e = EntryAt(pt, &r);
            setCursor(e && pt.y() >= r.bottom() - 4 ? Qt::SizeVerCursor : Qt::ArrowCursor);
            return;
        }
        if ((pt - m_pressPos).manhattanLength() >= 4) m_moved = true;
        if (!m_moved) return;
        const int minute = m_view->MinuteAtY(pt.y());
        const DayViewModel& m = m_view->m_model;
        if (m_mode == Mode::Move) m_preview = m.MovedSpan(m_dragId, minute - m_grabOffset);
        else if (m_mode == Mode::Resize) m_preview = m.ResizedSpan(m_dragId, minute);
        else if (m_mode == Mode::Free) m_preview = m.FreeSpan(m_anchor, minute);
        update();
    }

    void mouseReleaseEvent(QMouseEvent* ev) override
    {
        if (ev->button() != Qt::LeftButton) return;
        const Mode mode = m_mode;
        m_mode = Mode::None;
        DayViewModel& m = m_view->m_model;
        if ((mode == Mode::Move || mode == Mode::Resize) && m_moved && m_preview.first >= 0) {
            if (m.ApplySpan(m_dragId, m_preview.first, m_preview.second)) {
                const DayViewEntry* e = m.Find(m_dragId);
                emit m_view->EntryChanged(m_dragId, e->start, e->end);
            }
        } else if (mode == Mode::Free && m_preview.first >= 0) {
            m_view->SelectEntry(0);
            m_view->m_freeStart = m.AtMinute(m_preview.first);
            m_view->m_freeEnd = m.AtMinute(m_preview.second);
            emit m_view->FreeTimeSelected(m_view->m_freeStart, m_view->m_freeEnd);
        }
        m_preview = {-1, -1};
        update();
    }

    void mouseDoubleClickEvent(QMouseEvent* ev) override
    {
        if (const DayViewEntry* e = EntryAt(ev->position().toPoint())) {
            m_mode = Mode::None;
            emit m_view->EntryDoubleClicked(e->id);
        }
    }

private:
    enum class Mode { None, Move, Resize, Free };
    DayView* m_view;
    Mode m_mode = Mode::None;
    int m_dragId = 0;
    int m_grabOffset = 0;
    int m_anchor = 0;
    bool m_moved = false;
    QPoint m_pressPos;
    QPair<int, int> m_preview{-1, -1};
};

// ---------------------------------------------------------------- widget

DayView::DayView(QWidget* parent) : QScrollArea(parent)
{
    m_canvas = new DayViewCanvas(this);
    setWidget(m_canvas);
    setWidgetResizable(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(220);
    setAccessibleName(QStringLiteral("Day view"));
    setAccessibleDescription(QStringLiteral("The day's timed entries; up and down select, Enter opens"));
    // A scroll time asked for before the view has its size is applied once the day fits.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { ApplyScrollTime(); });
    Relayout();
}

QWidget* DayView::Canvas() const { return m_canvas; }

void DayView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    const int top = m_scrollMinute >= 0 ? m_scrollMinute : MinuteAtY(verticalScrollBar()->value());
    Relayout();
    verticalScrollBar()->setValue(YOfMinute(top));
    ApplyScrollTime();
}

void DayView::Relayout()
{
    // Rows grow to fill the view when the day has few of them.
    const int rows = qMax(1, m_model.RowCount());
    m_rowHeight = qMax(22, (viewport()->height() - 1) / rows);
    m_canvas->setMinimumHeight(rows * m_rowHeight + 1);
    m_canvas->update();
}

void DayView::SetDate(const QDate& d)
{
    m_model.SetDate(d);
    m_selected = 0;
    m_freeStart = m_freeEnd = QDateTime();
    m_canvas->update();
}

void DayView::SetScale(int minutes)
{
    // A scale that is none of the five (a damaged setting) leaves the view as it is.
    if (minutes != 60 && minutes != 30 && minutes != 15 && minutes != 10 && minutes != 5) return;
    const int top = m_scrollMinute >= 0 ? m_scrollMinute : MinuteAtY(verticalScrollBar()->value());
    m_scrollMinute = -1;
    m_model.SetScale(minutes);
    Relayout();
    verticalScrollBar()->setValue(YOfMinute(top));
}

void DayView::SetDayStart(const QTime& t)
{
    m_model.SetDayStart(t);
    Relayout();
}

void DayView::SetDayEnd(const QTime& t)
{
    m_model.SetDayEnd(t);
    Relayout();
}

void DayView::SetScrollTime(const QTime& t)
{
    if (!t.isValid()) return;
    m_canvas->adjustSize();
    m_scrollMinute = t.hour() * 60 + t.minute();
    ApplyScrollTime();
}

void DayView::ApplyScrollTime()
{
    if (m_scrollMinute < 0) return;
    const int y = YOfMinute(m_scrollMinute);
    verticalScrollBar()->setValue(y);
    // Kept until the view is tall enough to reach it, i.e. until it has been laid out.
    if (verticalScrollBar()->value() == y) m_scrollMinute = -1;
}

void DayView::SetColor(const QColor& c)
{
    m_headerColour = c;
    m_canvas->update();
}

void DayView::Clear()
{
    m_model.Clear();
    m_selected = 0;
    m_canvas->update();
}

int DayView::AddEntry(const QDateTime& start, const QDateTime& end, const QString& text, const QString& hiddenText,
                      const QColor& colour)
{
    const int id = m_model.Add(start, end, text, hiddenText, colour);
    if (id) m_canvas->update();
    return id;
}

bool DayView::RemoveEntry(int id)
{
    if (!m_model.Remove(id)) return false;
    if (m_selected == id) m_selected = 0;
    m_canvas->update();
    return true;
}

void DayView::keyPressEvent(QKeyEvent* event)
{
    const auto entries = m_model.DayEntries();
    int index = -1;
    for (int i = 0; i < entries.size(); ++i)
        if (entries[i]->id == m_selected) index = i;
    if ((event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) && !entries.isEmpty()) {
        // Up and down walk the day's entries.
        if (event->key() == Qt::Key_Down) index = index < 0 ? 0 : qMin(index + 1, int(entries.size()) - 1);
        else index = index < 0 ? int(entries.size()) - 1 : qMax(index - 1, 0);
        const int id = entries[index]->id;
        SelectEntry(id);
        ensureVisible(0, YOfMinute(DayViewModel::MinuteOf(entries[index]->start, m_model.Date())), 0, 3 * m_rowHeight);
        emit EntrySelected(id);
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && index >= 0) {
        emit EntryDoubleClicked(m_selected);
        return;
    }
    QScrollArea::keyPressEvent(event);
}

void DayView::SelectEntry(int id)
{
    m_selected = m_model.Find(id) ? id : 0;
    if (m_selected) m_freeStart = m_freeEnd = QDateTime();
    m_canvas->update();
}

int DayView::YOfMinute(int minute) const
{
    return (minute - m_model.DayStartMinute()) * m_rowHeight / m_model.Scale();
}

int DayView::MinuteAtY(int y) const
{
    return m_model.DayStartMinute() + qMax(0, y) * m_model.Scale() / m_rowHeight;
}
