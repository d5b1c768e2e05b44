#include "core/widgets/Theme.h"
#include "core/shared.h"
#include "core/widgets/MonthCalendar.h"

#include <QTabBar>
#include <QTabWidget>

namespace theme {

namespace {
constexpr unsigned long kSystemColour = 0x80000000ul;
bool IsColourValue(double v)
{
    if (!(v > 0) || v != v) return false;   // 0 is what an empty setting reads as
    if (v <= 0xFFFFFF) return true;
    // System colours 0x80000000 to 0x8000001E.
    return v >= double(kSystemColour) && v <= double(kSystemColour + 0x1E);
}
QString TabCss(const QColor& c)
{
    return QStringLiteral("QTabBar::tab:selected { background: %1; color: %2; }")
        .arg(c.name(), TextOn(c).name());
}
}  // namespace

QColor FromWinColor(long value)
{
    const unsigned long v = static_cast<unsigned long>(value) & 0xFFFFFFFFul;
    if (v & kSystemColour) {
        // System colours: 1 is the desktop's, which the back colours call Dark Blue.
        switch (v & 0xFF) {
        case 1: return QColor(10, 36, 106);
        case 5: return QColor(Qt::white);
        case 8: return QColor(Qt::black);
        case 15: return QColor(212, 208, 200);
        default: return QColor(128, 128, 128);
        }
    }
    return QColor(int(v & 0xFF), int((v >> 8) & 0xFF), int((v >> 16) & 0xFF));
}

long ColorFromSetting(const QString& text)
{
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok || !IsColourValue(v)) return DefaultAppColor;
    return static_cast<long>(v);
}

QColor Color()
{
    return FromWinColor(IsColourValue(double(AppColor)) ? AppColor : DefaultAppColor);
}

QColor TextOn(const QColor& background)
{
    // Relative luminance, as the contrast rules weigh the channels.
    const double l = 0.2126 * background.redF() + 0.7152 * background.greenF() + 0.0722 * background.blueF();
    return l > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
}

QColor Tint(const QColor& c)
{
    return QColor(c.red() / 5 + 204, c.green() / 5 + 204, c.blue() / 5 + 204);
}

void ApplyToTabs(QTabBar* tabs)
{
    if (tabs) tabs->setStyleSheet(TabCss(Color()));
}

void ApplyToTabs(QTabWidget* tabs)
{
    if (tabs) tabs->tabBar()->setStyleSheet(TabCss(Color()));
}

void ApplyToCalendar(MonthCalendar* calendar)
{
    if (calendar) calendar->SetColor(Color());
}

}  // namespace theme
