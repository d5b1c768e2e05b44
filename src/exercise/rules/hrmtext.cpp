#include "exercise/rules/hrmtext.h"

#include "core/store/value.h"

namespace hrm {

QStringList SplitLines(const QByteArray& bytes)
{
    QStringList lines;
    qsizetype start = 0;
    const qsizetype n = bytes.size();
    for (qsizetype i = 0; i < n; ++i) {
        const char c = bytes[i];
        if (c != '\r' && c != '\n')
            continue;
        lines.append(QString::fromLatin1(bytes.constData() + start, i - start));
        if (c == '\r' && i + 1 < n && bytes[i + 1] == '\n')
            ++i;
        start = i + 1;
    }
    if (start < n)
        lines.append(QString::fromLatin1(bytes.constData() + start, n - start));
    return lines;
}

TextImport ReadPolar(const QByteArray& bytes)
{
    TextImport out;
    bool data = false;
    for (const QString& line : SplitLines(bytes)) {
        // The interval is looked for on every line read, the data's lines and the one that
        // ends them included.
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq >= 0 && line.contains(QLatin1String("INTERVAL"), Qt::CaseInsensitive))
            out.interval = Val(line.mid(eq + 1));
        if (line.contains(QLatin1String("HRDATA"), Qt::CaseInsensitive)) {
            data = true;
            continue;
        }
        if (!data)
            continue;
        const QString first = line.section(QLatin1Char('\t'), 0, 0).trimmed();
        if (Val(line) > 0 || line.trimmed() == QLatin1String("0"))
            out.readings.append(first);
        else
            break;
    }
    return out;
}

TextImport ReadFixedColumns(const QByteArray& bytes)
{
    TextImport out;
    const QStringList lines = SplitLines(bytes);
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        if (line.contains(QLatin1String("SESSION"), Qt::CaseInsensitive)) {
            if (i + 1 >= lines.size())
                break;
            line = lines[++i];
        }
        const QString reading = line.mid(17).trimmed();
        if (!reading.isEmpty())
            out.readings.append(reading);
    }
    return out;
}

}  // namespace hrm
