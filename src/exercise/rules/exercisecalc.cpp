#include "exercise/rules/exercisecalc.h"

namespace {
// A piece of the duration as a 16-bit whole number, as the field is read: leading digits.
int Part(const QString& s)
{
    bool ok = false;
    const int v = s.trimmed().toInt(&ok);
    return ok ? qint16(v) : 0;
}
}  // namespace

double gethours(const QString& duration)
{
    QString t = duration;
    t.replace(QLatin1Char(' '), QLatin1Char('0'));
    const int h = Part(t.left(2));
    const int m = Part(t.mid(3, 2));
    const int s = Part(t.right(2));
    return h + m / 60.0 + s / 3600.0;
}
