#include "calendar/icons.h"
#include "core/shared.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {
QPixmap NewIcon()
{
    QPixmap pm(CalendarIconSize, CalendarIconSize);
    pm.fill(Qt::transparent);
    return pm;
}

QColor NumberColour(int n)
{
    return QColor::fromHsv((n * 47 + 200) % 360, 170, 190);
}
}  // namespace

int ExerciseIconCount() { return 16; }

QPixmap ExerciseIcon(int image)
{
    // Kept for the life of the process (never freed: pixmaps must not outlive the application).
    static auto& cache = *new QHash<int, QPixmap>;
    auto it = cache.constFind(image);
    if (it != cache.constEnd()) return *it;
    QPixmap pm = NewIcon();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor c = NumberColour(image);
    p.setPen(QPen(c.darker(140), 1));
    p.setBrush(c);
    p.drawEllipse(QRectF(1, 1, 16, 16));
    QFont f = QApplication::font();
    f.setBold(true);
    f.setPixelSize(image >= 10 ? 8 : 10);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRect(0, 0, CalendarIconSize, CalendarIconSize), Qt::AlignCenter, QString::number(image));
    p.end();
    cache.insert(image, pm);
    return pm;
}

QPixmap AppointmentIcon(int type)
{
    // Kept for the life of the process (never freed: pixmaps must not outlive the application).
    static auto& cache = *new QHash<int, QPixmap>;
    auto it = cache.constFind(type);
    if (it != cache.constEnd()) return *it;
    QPixmap pm = NewIcon();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor colours[] = {QColor(52, 101, 164), QColor(196, 160, 0), QColor(78, 154, 6)};
    const QColor c = colours[qBound(0, type, 2)];
    p.setPen(QPen(c.darker(140), 1));
    p.setBrush(c);
    p.drawRoundedRect(QRectF(1.5, 1.5, 15, 15), 3, 3);
    p.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    if (type == 1) {
        // Competition: a flag.
        p.drawLine(QPointF(5, 4), QPointF(5, 14.5));
        QPainterPath flag;
        flag.moveTo(5, 4.5);
        flag.lineTo(13, 6.5);
        flag.lineTo(5, 9.5);
        p.fillPath(flag, Qt::white);
    } else if (type == 2) {
        // Testing: a tick.
        p.drawPolyline(QPolygonF({QPointF(4.5, 9.5), QPointF(7.5, 12.5), QPointF(13.5, 5.5)}));
    } else {
        // Appointment: a clock.
        p.drawEllipse(QRectF(4, 4, 10, 10));
        p.drawLine(QPointF(9, 9), QPointF(9, 6));
        p.drawLine(QPointF(9, 9), QPointF(11.5, 9));
    }
    p.end();
    cache.insert(type, pm);
    return pm;
}

QPixmap IconStrip(const QList<QPixmap>& icons)
{
    if (icons.isEmpty()) return QPixmap();
    if (icons.size() == 1) return icons.first();
    QPixmap strip(int(icons.size()) * CalendarIconSize, CalendarIconSize);
    strip.fill(Qt::transparent);
    QPainter p(&strip);
    for (int n = 1; n <= icons.size(); ++n) p.drawPixmap((n - 1) * CalendarIconSize, 0, icons[n - 1]);
    return strip;
}

QPixmap ItemIcon(const QString& kind)
{
    // Kept for the life of the process (never freed: pixmaps must not outlive the application).
    static auto& cache = *new QHash<QString, QPixmap>;
    auto it = cache.constFind(kind);
    if (it != cache.constEnd()) return *it;
    QPixmap pm = NewIcon();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    if (kind == QLatin1String("Weigh In")) {
        p.setPen(QPen(QColor(85, 87, 83), 1));
        p.setBrush(QColor(186, 189, 182));
        p.drawRoundedRect(QRectF(2, 6, 14, 10), 2, 2);
        p.setBrush(Qt::white);
        p.drawEllipse(QRectF(5, 2, 8, 8));
        p.drawLine(QPointF(9, 6), QPointF(11, 4));
    } else if (kind == QLatin1String("Wellness")) {
        QPainterPath heart;
        heart.moveTo(9, 15);
        heart.cubicTo(1, 9, 2, 2, 9, 5.5);
        heart.cubicTo(16, 2, 17, 9, 9, 15);
        p.fillPath(heart, QColor(204, 0, 0));
    } else {
        // A meal: a plate with a fork.
        p.setPen(QPen(QColor(117, 80, 123), 1));
        p.setBrush(QColor(245, 235, 210));
        p.drawEllipse(QRectF(3, 3, 13, 13));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QRectF(6, 6, 7, 7));
        p.drawLine(QPointF(1.5, 2), QPointF(1.5, 16));
    }
    p.end();
    cache.insert(kind, pm);
    return pm;
}
