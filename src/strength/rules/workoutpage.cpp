#include "strength/rules/workoutpage.h"

#include "core/routines.h"

namespace workoutpage {

namespace {

const QString kOpen = QStringLiteral("<!--");
const QString kClose = QStringLiteral("-->");
const QString kSep = QStringLiteral("~");
const QString kInfo = QStringLiteral("exerciseinfo");

// A value as a tag carries it: on one line.
QString OneLine(QString value)
{
    value.remove(QLatin1Char('\r'));
    value.remove(QLatin1Char('\n'));
    return value;
}

QString SingleTag(const QString& name, const QString& value)
{
    return kOpen + name + kSep + OneLine(value) + kSep + kClose + QLatin1Char('\n');
}

QString ListTag(const QString& name, const QList<SetRow>& rows, QString SetRow::*field)
{
    QString tag = kOpen + name + kSep;
    for (const SetRow& r : rows)
        tag += OneLine(r.*field) + kSep;
    return tag + kClose + QLatin1Char('\n');
}

QString YesNo(bool on) { return on ? QStringLiteral("Y") : QStringLiteral("N"); }

// The text of a tag from its start to the next "-->" (or the end), found from `from`; `at`
// receives where it starts, -1 when there is none.
QString CutTag(const QString& page, const QString& name, int from, int* at = nullptr)
{
    const int start = page.indexOf(kOpen + name + kSep, from);
    if (at)
        *at = start;
    if (start < 0)
        return QString();
    int end = page.indexOf(kClose, start);
    if (end < 0)
        end = page.size();
    return page.mid(start, end - start);
}

QString TagValue(const QString& page, const QString& name)
{
    return GetField(CutTag(page, name, 0), 2, kSep);
}

}  // namespace

QString WriteTags(const Workout& w)
{
    QString tags;
    tags += SingleTag(QStringLiteral("name"), w.name);
    tags += SingleTag(QStringLiteral("description"), w.description);
    tags += ListTag(QStringLiteral("exercise"), w.rows, &SetRow::exercise);
    tags += ListTag(QStringLiteral("set"), w.rows, &SetRow::set);
    tags += ListTag(QStringLiteral("reps"), w.rows, &SetRow::reps);
    tags += ListTag(QStringLiteral("weight"), w.rows, &SetRow::weight);
    tags += ListTag(QStringLiteral("goal"), w.rows, &SetRow::goal);
    tags += ListTag(QStringLiteral("comments"), w.rows, &SetRow::comments);
    tags += SingleTag(QStringLiteral("beg"), YesNo(w.beginner));
    tags += SingleTag(QStringLiteral("int"), YesNo(w.intermediate));
    tags += SingleTag(QStringLiteral("adv"), YesNo(w.advanced));
    for (const QStringList& info : w.exerciseInfo) {
        if (info.isEmpty())
            continue;
        QString tag = kOpen + kInfo + kSep;
        for (const QString& field : info)
            tag += OneLine(field) + kSep;
        tags += tag + kClose + QLatin1Char('\n');
    }
    return tags;
}

ReadPage ReadTags(const QString& page)
{
    ReadPage p;
    p.name = TagValue(page, QStringLiteral("name"));
    p.description = TagValue(page, QStringLiteral("description"));
    p.beg = TagValue(page, QStringLiteral("beg"));
    p.intermediate = TagValue(page, QStringLiteral("int"));
    p.adv = TagValue(page, QStringLiteral("adv"));

    const QString exercise = CutTag(page, QStringLiteral("exercise"), 0);
    const QString set = CutTag(page, QStringLiteral("set"), 0);
    const QString reps = CutTag(page, QStringLiteral("reps"), 0);
    const QString weight = CutTag(page, QStringLiteral("weight"), 0);
    const QString goal = CutTag(page, QStringLiteral("goal"), 0);
    const QString comments = CutTag(page, QStringLiteral("comments"), 0);

    const int count = GetCount(exercise, kSep) - 1;
    int infoFrom = 0;
    for (int r = 0; r < count; ++r) {
        const int field = r + 2;
        SetRow row;
        row.exercise = GetField(exercise, field, kSep);
        row.set = GetField(set, field, kSep);
        row.reps = GetField(reps, field, kSep);
        row.weight = GetField(weight, field, kSep);
        row.goal = GetField(goal, field, kSep);
        row.comments = GetField(comments, field, kSep);
        p.rows.append(row);

        int at = -1;
        const QString info = CutTag(page, kInfo, infoFrom, &at);
        if (at < 0) {
            p.infoTags.append(QStringList());
            infoFrom = page.size();
        } else {
            QStringList fields;
            const int n = int(info.count(kSep)) + 1;
            for (int i = 1; i <= n; ++i)
                fields << GetField(info, i, kSep);
            p.infoTags.append(fields);
            infoFrom = at + 1;
        }
    }
    return p;
}

bool IsWorkoutPage(const QString& page) { return page.contains(kInfo); }

int GetCount(const QString& text, const QString& delimiter)
{
    if (delimiter.isEmpty())
        return 0;
    return int(text.trimmed().count(delimiter));
}

QString PageFileName(const QString& workoutName)
{
    QString file = workoutName;
    file.remove(QLatin1Char('/'));
    file.remove(QLatin1Char('\\'));
    return file + QStringLiteral(".htm");
}

}  // namespace workoutpage
