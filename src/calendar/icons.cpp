#include "calendar/icons.h"
#include "core/shared.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <cmath>

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

int ExerciseIconCount() { return 17; }

namespace {
// The white figure of a sport's pictogram, in a square of 18 units.
void DrawSport(QPainter& p, int image)
{
    const QPen line(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(line);
    p.setBrush(Qt::NoBrush);
    auto head = [&p](double x, double y, double r = 1.7) {
        p.setBrush(Qt::white);
        p.drawEllipse(QPointF(x, y), r, r);
        p.setBrush(Qt::NoBrush);
    };
    auto poly = [&p](std::initializer_list<QPointF> pts) { p.drawPolyline(QPolygonF(QList<QPointF>(pts))); };
    switch (image) {
    case 1:  // running
        head(11.5, 3.8);
        poly({{10.5, 6}, {8.5, 10.5}});
        poly({{5.5, 8}, {8, 6.8}, {10.5, 6}, {12.5, 8.8}, {14.5, 8.2}});
        poly({{8.5, 10.5}, {11.5, 12.5}, {11, 15.5}});
        poly({{8.5, 10.5}, {6.5, 13.5}, {3.8, 13.5}});
        break;
    case 2:  // cycling
        p.drawEllipse(QPointF(5, 12), 3.2, 3.2);
        p.drawEllipse(QPointF(13, 12), 3.2, 3.2);
        poly({{5, 12}, {8.5, 12}, {11.5, 7.5}, {7.5, 7.5}, {5, 12}});
        poly({{11.5, 7.5}, {13, 12}});
        poly({{7, 6}, {8.5, 6}});
        poly({{7.5, 7.5}, {7.2, 6}});
        poly({{11.5, 7.5}, {11, 5.5}, {12.8, 5.5}});
        break;
    case 3: {  // swimming
        head(12.5, 6.2);
        poly({{3.5, 8.5}, {7, 5.5}, {10, 8}});
        QPainterPath wave;
        for (double y : {11.5, 14.5}) {
            wave.moveTo(2, y);
            wave.cubicTo(4, y - 1.6, 5, y - 1.6, 6.5, y);
            wave.cubicTo(8, y + 1.6, 9, y + 1.6, 11, y);
            wave.cubicTo(12.5, y - 1.6, 13.5, y - 1.6, 16, y);
        }
        p.drawPath(wave);
        break;
    }
    case 4: {  // rowing
        QPainterPath hull;
        hull.moveTo(2, 11);
        hull.lineTo(16, 11);
        hull.quadTo(13, 14.5, 9, 14.5);
        hull.quadTo(5, 14.5, 2, 11);
        p.fillPath(hull, Qt::white);
        head(9, 5);
        poly({{9, 7}, {9, 10.5}});
        poly({{3, 16}, {14.5, 4.5}});
        break;
    }
    case 5:  // walking
        head(9.5, 3.5);
        poly({{9.5, 5.8}, {9, 10.5}});
        poly({{6.5, 9}, {9.3, 6.8}, {11.8, 9.5}});
        poly({{9, 10.5}, {11.5, 15.5}});
        poly({{9, 10.5}, {7, 15.5}});
        break;
    case 6: {  // hiking: a mountain
        QPainterPath m;
        m.moveTo(1.5, 15.5);
        m.lineTo(7, 5);
        m.lineTo(10, 10);
        m.lineTo(12, 7.5);
        m.lineTo(16.5, 15.5);
        m.closeSubpath();
        p.fillPath(m, Qt::white);
        p.setPen(QPen(QColor(0, 0, 0, 70), 1));
        p.drawPolyline(QPolygonF({QPointF(5.3, 8.2), QPointF(7, 9.3), QPointF(8.6, 7.8)}));
        break;
    }
    case 7:  // cross-country skiing
        head(10, 3.5);
        poly({{10, 5.8}, {8.5, 10}});
        poly({{8.5, 10}, {11, 12.5}});
        poly({{8.5, 10}, {6, 12.5}});
        poly({{5.5, 7}, {9.5, 7.2}, {13, 8}});
        poly({{13, 8}, {15, 14}});
        poly({{5.5, 7}, {4, 13.5}});
        poly({{2, 14.5}, {16, 14.5}});
        break;
    case 8:  // intervals: a stopwatch
        p.drawEllipse(QPointF(9, 10.5), 5.5, 5.5);
        poly({{9, 2.5}, {9, 5}});
        poly({{7.3, 2.3}, {10.7, 2.3}});
        poly({{9, 10.5}, {11.5, 8}});
        break;
    case 9: {  // football
        p.drawEllipse(QPointF(9, 9), 6.5, 6.5);
        QPolygonF pent;
        for (int i = 0; i < 5; ++i) {
            const double a = -M_PI / 2 + i * 2 * M_PI / 5;
            pent << QPointF(9 + 2.6 * std::cos(a), 9 + 2.6 * std::sin(a));
        }
        p.setBrush(Qt::white);
        p.drawPolygon(pent);
        p.setBrush(Qt::NoBrush);
        for (const QPointF& c : pent) p.drawLine(c, QPointF(9 + (c.x() - 9) * 2.4, 9 + (c.y() - 9) * 2.4));
        break;
    }
    case 10: {  // basketball
        p.drawEllipse(QPointF(9, 9), 6.5, 6.5);
        p.drawLine(QPointF(2.5, 9), QPointF(15.5, 9));
        p.drawLine(QPointF(9, 2.5), QPointF(9, 15.5));
        p.drawArc(QRectF(-1.5, 3, 8, 12), -60 * 16, 120 * 16);
        p.drawArc(QRectF(11.5, 3, 8, 12), 120 * 16, 120 * 16);
        break;
    }
    case 11:  // racket sports
        p.drawEllipse(QRectF(3, 2, 8, 9.5));
        p.setPen(QPen(Qt::white, 0.7));
        for (double x : {5.0, 7.0, 9.0}) p.drawLine(QPointF(x, 3), QPointF(x, 10.5));
        for (double y : {4.5, 6.8, 9.0}) p.drawLine(QPointF(3.5, y), QPointF(10.5, y));
        p.setPen(line);
        poly({{8.5, 11}, {12.5, 16}});
        head(14, 4.5, 1.6);
        break;
    case 12: {  // volleyball
        p.drawEllipse(QPointF(9, 9), 6.5, 6.5);
        p.drawArc(QRectF(5, -2, 12, 12), 200 * 16, 100 * 16);
        p.drawArc(QRectF(-2, 5, 12, 12), 40 * 16, 100 * 16);
        p.drawArc(QRectF(7, 7, 12, 12), 100 * 16, 110 * 16);
        break;
    }
    case 13:  // skating: a boot on a blade
        poly({{5, 3}, {5, 11}, {14, 11}, {14, 9}, {9.5, 7.5}, {9, 3}, {5, 3}});
        poly({{3, 14}, {15, 14}});
        poly({{6, 11}, {6, 14}});
        poly({{12.5, 11}, {12.5, 14}});
        break;
    case 14: {  // cardio machines: a heart and a pulse
        QPainterPath heart;
        heart.moveTo(9, 15.5);
        heart.cubicTo(1, 9.5, 2.5, 2, 9, 5.5);
        heart.cubicTo(15.5, 2, 17, 9.5, 9, 15.5);
        p.fillPath(heart, Qt::white);
        p.setPen(QPen(QColor(0, 0, 0, 110), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        poly({{3.5, 9}, {6.5, 9}, {7.8, 6.5}, {9.5, 11.5}, {10.8, 9}, {14.5, 9}});
        break;
    }
    case 15:  // team sports: crossed sticks and a puck
        poly({{3, 3}, {11.5, 13}, {14.5, 13}});
        poly({{15, 3}, {6.5, 13}, {3.5, 13}});
        p.setBrush(Qt::white);
        p.drawRect(QRectF(7.5, 14.2, 3, 1.6));
        break;
    case 17:  // strength training: a dumbbell
        p.setBrush(Qt::white);
        p.drawRoundedRect(QRectF(3, 5, 3, 8), 0.8, 0.8);
        p.drawRoundedRect(QRectF(12, 5, 3, 8), 0.8, 0.8);
        p.drawRect(QRectF(1.5, 7, 1.5, 4));
        p.drawRect(QRectF(15, 7, 1.5, 4));
        p.setBrush(Qt::NoBrush);
        poly({{6, 9}, {12, 9}});
        break;
    case 16:  // golf: a flag on its pin
        poly({{7, 2.5}, {7, 15}});
        p.setBrush(Qt::white);
        p.drawPolygon(QPolygonF({QPointF(7, 2.5), QPointF(14, 5), QPointF(7, 7.5)}));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QRectF(3, 14, 9, 2.4));
        head(13.5, 13.8, 1.3);
        break;
    }
}
}  // namespace

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
    if (image >= 1 && image <= ExerciseIconCount()) {
        p.drawRoundedRect(QRectF(0.5, 0.5, 17, 17), 4, 4);
        DrawSport(p, image);
    } else {
        p.drawEllipse(QRectF(1, 1, 16, 16));
        QFont f = QApplication::font();
        f.setBold(true);
        f.setPixelSize(image >= 10 ? 8 : 10);
        p.setFont(f);
        p.setPen(Qt::white);
        p.drawText(QRect(0, 0, CalendarIconSize, CalendarIconSize), Qt::AlignCenter, QString::number(image));
    }
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
