#include "core/ini.h"

#include "core/routines.h"

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// The profile functions read a value into a buffer of 2048 characters.
constexpr int MaxValue = 2047;

QByteArray TrimLine(const QByteArray& line)
{
    return line.trimmed();
}

// "[name]" gives name; anything else no section.
bool SectionName(const QByteArray& trimmed, QString& name)
{
    if (!trimmed.startsWith('['))
        return false;
    const int close = trimmed.indexOf(']');
    if (close < 0)
        return false;
    name = QString::fromUtf8(trimmed.mid(1, close - 1)).trimmed();
    return true;
}

// "key=value" gives key; comments and lines without '=' give nothing.
bool KeyName(const QByteArray& trimmed, QString& key)
{
    if (trimmed.isEmpty() || trimmed.startsWith(';'))
        return false;
    const int eq = trimmed.indexOf('=');
    if (eq <= 0)
        return false;
    key = QString::fromUtf8(trimmed.left(eq)).trimmed();
    return !key.isEmpty();
}

bool Same(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The whole file; `readable` is false only for a file that is there and cannot be read.
QByteArray ReadAll(const QString& path, bool& exists, bool& readable)
{
    QFile f(path);
    exists = f.exists();
    readable = true;
    if (!exists)
        return QByteArray();
    if (!f.open(QIODevice::ReadOnly)) {
        readable = false;
        return QByteArray();
    }
    return f.readAll();
}

// One line without its end; the end is kept apart so the file is written back as it was.
struct Line {
    QByteArray text;
    QByteArray eol;
};

QList<Line> SplitLines(const QByteArray& data)
{
    QList<Line> lines;
    qsizetype pos = 0;
    while (pos < data.size()) {
        qsizetype nl = data.indexOf('\n', pos);
        Line line;
        if (nl < 0) {
            line.text = data.mid(pos);
            pos = data.size();
        } else {
            line.text = data.mid(pos, nl - pos);
            line.eol = "\n";
            pos = nl + 1;
        }
        if (line.text.endsWith('\r')) {
            line.text.chop(1);
            line.eol.prepend('\r');
        }
        lines.append(line);
    }
    return lines;
}

}  // namespace

QString ReadIni(const QString& section, const QString& key, const QString& file)
{
    bool exists = false, readable = false;
    const QByteArray data = ReadAll(ProgramFile(file), exists, readable);
    if (data.isEmpty())
        return QString();
    const QString wantSection = section.trimmed();
    const QString wantKey = key.trimmed();
    bool inSection = false;
    bool sectionSeen = false;
    for (const Line& line : SplitLines(data)) {
        const QByteArray t = TrimLine(line.text);
        QString name;
        if (SectionName(t, name)) {
            if (sectionSeen && inSection)
                break;  // only the first section of that name is read
            inSection = Same(name, wantSection);
            sectionSeen = sectionSeen || inSection;
            continue;
        }
        if (!inSection || !KeyName(t, name) || !Same(name, wantKey))
            continue;
        QString value = QString::fromUtf8(t.mid(t.indexOf('=') + 1)).trimmed();
        if (value.size() >= 2
            && ((value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"')))
                || (value.startsWith(QLatin1Char('\'')) && value.endsWith(QLatin1Char('\'')))))
            value = value.mid(1, value.size() - 2);
        return value.left(MaxValue);
    }
    return QString();
}

bool WriteIni(const QString& section, const QString& key, const QString& value, const QString& file)
{
    const QString wantSection = section.trimmed();
    const QString wantKey = key.trimmed();
    if (wantSection.isEmpty() || wantKey.isEmpty())
        return false;
    const QString path = ProgramFile(file);
    bool exists = false, readable = false;
    const QByteArray data = ReadAll(path, exists, readable);
    if (exists) {
        // Never replace what could not be read, nor a file that is not to be written.
        const QFileInfo info(path);
        if (!readable || !info.isFile() || !info.isWritable())
            return false;
    }

    QList<Line> lines = SplitLines(data);
    // New lines end as the file's lines do.
    const QByteArray eol = data.contains("\r\n") ? QByteArray("\r\n") : QByteArray("\n");
    QString v = value;
    v.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));

    int sectionAt = -1;  // line of "[section]"
    int lastInSection = -1;  // last line of the section that is not blank
    int keyAt = -1;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray t = TrimLine(lines[i].text);
        QString name;
        if (SectionName(t, name)) {
            if (sectionAt >= 0)
                break;
            if (Same(name, wantSection))
                sectionAt = lastInSection = i;
            continue;
        }
        if (sectionAt < 0)
            continue;
        if (!t.isEmpty())
            lastInSection = i;
        if (KeyName(t, name) && Same(name, wantKey)) {
            keyAt = i;
            break;
        }
    }

    auto insertLine = [&](int at, const QByteArray& text) {
        // The line before the new one must end, or the two would run together.
        if (at > 0 && lines[at - 1].eol.isEmpty())
            lines[at - 1].eol = eol;
        lines.insert(at, Line{text, eol});
    };
    if (keyAt >= 0) {
        // The key keeps its spelling and its place; only the value changes.
        const QByteArray& old = lines[keyAt].text;
        const int eq = old.indexOf('=');
        const QByteArray keyPart = old.left(eq).trimmed();
        QByteArray lead;
        for (char c : old) {
            if (c != ' ' && c != '\t')
                break;
            lead += c;
        }
        lines[keyAt].text = lead + keyPart + '=' + v.toUtf8();
    } else if (sectionAt >= 0) {
        insertLine(lastInSection + 1, wantKey.toUtf8() + '=' + v.toUtf8());
    } else {
        insertLine(lines.size(), '[' + wantSection.toUtf8() + ']');
        insertLine(lines.size(), wantKey.toUtf8() + '=' + v.toUtf8());
    }

    QByteArray out;
    out.reserve(data.size() + v.size() + wantKey.size() + wantSection.size() + 8);
    for (const Line& line : lines)
        out += line.text + line.eol;

    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    if (f.write(out) != out.size()) {
        f.cancelWriting();
        return false;
    }
    return f.commit();
}
