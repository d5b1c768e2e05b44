#include "core/routines.h"

#include "core/regional.h"
#include "core/rows.h"
#include "core/shared.h"
#include "core/store/value.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

QString& ProgramFolderSetting()
{
    static QString folder;
    return folder;
}

// Trims blanks only, as the system does: tabs and other characters stay, since a field of
// one delimiter may hold fields of another ("\tcup\tflour\t").
QString TrimBlanks(const QString& s)
{
    int b = 0, e = s.size();
    while (b < e && s[b] == QLatin1Char(' '))
        ++b;
    while (e > b && s[e - 1] == QLatin1Char(' '))
        --e;
    return s.mid(b, e - b);
}

// The windows-style picture of the locale's short date ("M/d/yyyy").
QString ShortDatePicture(const QLocale& l)
{
    if (l.language() == QLocale::English && l.territory() == QLocale::UnitedStates)
        return QStringLiteral("M/d/yyyy");
    return l.dateFormat(QLocale::ShortFormat);
}

// The locale's long time as the system writes it ("h:mm:ss tt").
QString TimePicture(const QLocale& l)
{
    QString f = l.timeFormat(QLocale::LongFormat);
    f.remove(QRegularExpression(QStringLiteral("\\s*\\bt+\\b\\s*$")));
    f.replace(QRegularExpression(QStringLiteral("\\b(AP|ap|A|a)\\b")), QStringLiteral("tt"));
    return f.trimmed();
}

}  // namespace

QString ProgramFolder()
{
    const QString& set = ProgramFolderSetting();
    if (!set.isEmpty())
        return set;
    if (QCoreApplication::instance())
        return QCoreApplication::applicationDirPath();
    return QDir::currentPath();
}

void SetProgramFolder(const QString& folder)
{
    QString f = folder;
    while (f.size() > 1 && (f.endsWith(QLatin1Char('/')) || f.endsWith(QLatin1Char('\\'))))
        f.chop(1);
    ProgramFolderSetting() = f;
}

QString ProgramFile(const QString& name)
{
    // The system writes its folders with "\"; on this platform they are "/".
    QString n = name;
    n.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (n.isEmpty())
        return ProgramFolder();
    if (QDir::isAbsolutePath(n))
        return n;
    return QDir(ProgramFolder()).filePath(n);
}

QString GetProfile(const QString& key)
{
    const QLocale l = regional::Locale();
    const QString k = key.trimmed().toLower();
    const bool us = l.language() == QLocale::English && l.territory() == QLocale::UnitedStates;
    if (k == QLatin1String("sdecimal") || k == QLatin1String("smondecimalsep"))
        return l.decimalPoint();
    if (k == QLatin1String("sthousand") || k == QLatin1String("smonthousandsep"))
        return l.groupSeparator();
    if (k == QLatin1String("scurrency"))
        return l.currencySymbol(QLocale::CurrencySymbol);
    if (k == QLatin1String("sshortdate"))
        return ShortDatePicture(l);
    if (k == QLatin1String("slongdate"))
        return l.dateFormat(QLocale::LongFormat);
    if (k == QLatin1String("stimeformat"))
        return us ? QStringLiteral("h:mm:ss tt") : TimePicture(l);
    if (k == QLatin1String("imeasure"))
        return l.measurementSystem() == QLocale::ImperialUSSystem ? QStringLiteral("1") : QStringLiteral("0");
    if (k == QLatin1String("slist"))
        return l.decimalPoint() == QLatin1String(",") ? QStringLiteral(";") : QStringLiteral(",");
    if (k == QLatin1String("sdate")) {
        static const QRegularExpression sep(QStringLiteral("[^dMy]"));
        const auto m = sep.match(ShortDatePicture(l));
        return m.hasMatch() ? m.captured(0) : QStringLiteral("/");
    }
    if (k == QLatin1String("stime"))
        return QStringLiteral(":");
    if (k == QLatin1String("s1159"))
        return l.amText();
    if (k == QLatin1String("s2359"))
        return l.pmText();
    if (k == QLatin1String("snegativesign"))
        return l.negativeSign();
    if (k == QLatin1String("idigits") || k == QLatin1String("icurrdigits"))
        return QStringLiteral("2");
    if (k == QLatin1String("ilzero"))
        return QStringLiteral("1");
    if (k == QLatin1String("idate")) {
        const QString f = ShortDatePicture(l);
        const int y = f.indexOf(QLatin1Char('y')), m = f.indexOf(QLatin1Char('M')), d = f.indexOf(QLatin1Char('d'));
        if (y >= 0 && y < m)
            return QStringLiteral("2");
        return (d >= 0 && d < m) ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (k == QLatin1String("itime"))
        return l.timeFormat(QLocale::LongFormat).contains(QLatin1String("AP"), Qt::CaseInsensitive)
            ? QStringLiteral("0") : QStringLiteral("1");
    if (k == QLatin1String("scountry"))
        return QLocale::territoryToString(l.territory());
    return QString();
}

QString GetField(const QString& text, int n, const QString& delimiter)
{
    if (n < 1)
        return QString();
    if (delimiter.isEmpty() || !text.contains(delimiter))
        return n == 1 ? TrimBlanks(text) : QString();
    const QStringList fields = text.split(delimiter);
    if (n > fields.size())
        return QString();
    return TrimBlanks(fields[n - 1]);
}

QString GetTabField(const QString& text, int n)
{
    return GetField(text, n, QStringLiteral("\t"));
}

QString NextToken(QString& text, const QString& delimiter)
{
    const int at = delimiter.isEmpty() ? -1 : text.indexOf(delimiter);
    if (at < 0) {
        QString all = text;
        text.clear();
        return all;
    }
    QString token = text.left(at);
    text.remove(0, at + delimiter.size());
    return token;
}

bool FileExists(const QString& path)
{
    QString p = path;
    p.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (p.trimmed().isEmpty())
        return false;
    const QFileInfo info(p);
    const QString name = info.fileName();
    if (name.contains(QLatin1Char('*')) || name.contains(QLatin1Char('?'))) {
        // A pattern, as a directory lookup takes it: any file that matches.
        const QDir dir = info.dir();
        return !dir.entryList({name}, QDir::Files | QDir::Hidden).isEmpty();
    }
    return info.isFile();
}

double TimeToHours(const QString& text)
{
    const double h = Val(text.mid(0, 2));
    const double m = Val(text.mid(3, 2));
    double s = 0;
    if (text.size() > 5)
        s = regional::Round(Val(text.mid(6, 2)));
    // The seconds go over 360: stored durations and every total of hours rest on it.
    return regional::Round(h + m / 60.0 + s / 360.0, 2);
}

double GetConversion(const QString& unitName)
{
    double result = 1.0;
    SqlText = QStringLiteral("select conversion from units where name='") + SqlQuote(unitName) + QStringLiteral("'");
    LibraryRS2.Open(SqlText);
    if (!LibraryRS2.Eof()) {
        const QVariant v = LibraryRS2.Field(QStringLiteral("Conversion"));
        if (!IsNull(v))
            result = Val(v);
    }
    LibraryRS2.Close();
    return result;
}

namespace {

// `Conversion` of a unit through LibraryRS; false when the unit is not in `units`.
bool UnitFactor(const QString& unitName, double& factor)
{
    SqlText = QStringLiteral("select * from units where name='") + SqlQuote(unitName) + QStringLiteral("'");
    LibraryRS.Open(SqlText);
    if (LibraryRS.Eof()) {
        LibraryRS.Close();
        return false;
    }
    factor = Val(LibraryRS.Field(QStringLiteral("Conversion")));
    LibraryRS.Close();
    return true;
}

}  // namespace

double ConvertSpeed(double value, const QString& fromUnit, const QString& toUnit)
{
    if (value == 0 || fromUnit.isEmpty() || toUnit.isEmpty())
        return 0;
    double from = 0;
    if (!UnitFactor(fromUnit, from))
        return 0;
    double to = 0;
    if (toUnit == QLatin1String("kph"))
        to = 0.6288;  // kilometres a mile, as this conversion has always had it
    else if (toUnit == QLatin1String("mph"))
        to = 1.0;
    else if (!UnitFactor(toUnit, to))
        return 0;
    if (to == 0)
        return 0;
    return from * value / to;
}

QString GetCommentTag(const QString& name, int index)
{
    const int start = SelectedItem.indexOf(QStringLiteral("<!--") + name + QStringLiteral("~"));
    if (start < 0)
        return QString();
    int end = SelectedItem.indexOf(QStringLiteral("-->"), start);
    if (end < 0)
        end = SelectedItem.size();
    return GetField(SelectedItem.mid(start, end - start), index, QStringLiteral("~"));
}

QString SqlDate(const QDate& d)
{
    return d.isValid() ? d.toString(QStringLiteral("yyyy-MM-dd")) : QString();
}

QRect OnScreenRect(const QRect& frame, const QList<QRect>& screens)
{
    if (screens.isEmpty() || !frame.isValid()) return frame;
    // On a screen: enough of the frame's top (where its title bar is) to take it with the mouse.
    const QRect top(frame.left(), frame.top(), frame.width(), qMin(frame.height(), 30));
    for (const QRect& s : screens) {
        const QRect seen = s.intersected(top);
        if (seen.width() >= qMin(frame.width(), 100) && seen.height() >= qMin(top.height(), 20)) return frame;
    }
    // The nearest screen: the least distance from the frame's centre to a point of the screen.
    const QPoint c = frame.center();
    const QRect* nearest = nullptr;
    qint64 best = 0;
    for (const QRect& s : screens) {
        const qint64 dx = c.x() < s.left() ? qint64(s.left()) - c.x() : (c.x() > s.right() ? qint64(c.x()) - s.right() : 0);
        const qint64 dy = c.y() < s.top() ? qint64(s.top()) - c.y() : (c.y() > s.bottom() ? qint64(c.y()) - s.bottom() : 0);
        const qint64 d = dx * dx + dy * dy;
        if (!nearest || d < best) {
            nearest = &s;
            best = d;
        }
    }
    const QRect& s = *nearest;
    const int w = qMin(frame.width(), s.width()), h = qMin(frame.height(), s.height());
    const int left = qBound(qint64(s.left()), qint64(frame.left()), qint64(s.right()) - w + 1);
    const int top2 = qBound(qint64(s.top()), qint64(frame.top()), qint64(s.bottom()) - h + 1);
    return QRect(left, top2, w, h);
}

bool AthleteNameTaken(const QString& name, const QString& exceptId)
{
    const QString folded = name.trimmed().toCaseFolded();
    bool taken = false;
    UserRS.Close();
    ForEachRowWhile(UserRS, QStringLiteral("select User_ID, Name from User_Info"), [&](Recordset& rs) {
        const QVariant id = rs.Field(QStringLiteral("User_ID"));
        if (!exceptId.isEmpty() && QString::number(qlonglong(Val(id))) == exceptId) return true;
        taken = Str(rs.Field(QStringLiteral("Name"))).trimmed().toCaseFolded() == folded;
        return !taken;
    });
    return taken;
}
