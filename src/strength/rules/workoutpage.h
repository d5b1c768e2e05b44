#pragma once
// A strength workout as an exchange page: the comment tags that carry its name, description,
// levels, sets and the details of its exercises, written after a page's visible content, and
// read back from a downloaded page. No window and no store.
//
// A tag is "<!--" name "~" fields "-->" on a line of its own; a list tag ends every field with
// "~". "~" and "-->" cannot stand in a value and there is no escaping.
#include <QList>
#include <QString>
#include <QStringList>

namespace workoutpage {

// One set of the workout as the library's grid holds it.
struct SetRow {
    QString muscleGroup, exercise, set, reps, weight, intensity, goal, comments;
};

struct Workout {
    QString name, description;
    bool beginner = false, intermediate = false, advanced = false;
    QList<SetRow> rows;
    // The stored details of each row's exercise, every column of its strength_exercises row
    // in table order (a Null as ""); empty for a row whose exercise is not in the library,
    // which then gets no detail tag.
    QList<QStringList> exerciseInfo;
};

// The tags of a workout, each on its own line ending in "\n", in the order a page carries
// them: name, description, exercise, set, reps, weight, goal, comments, beg, int, adv, then an
// exerciseinfo tag per row that has details.
QString WriteTags(const Workout& workout);

// What a downloaded page says. The rows carry exercise, set, reps, weight, goal and comments;
// `infoTags` holds, for each row, the fields of the detail tag the reader pairs with it
// (field 1 is the tag's own "<!--exerciseinfo"), or an empty list when none is left: the
// detail tags are taken in turn, so a row written without one takes the next row's.
struct ReadPage {
    QString name, description, beg, intermediate, adv;
    QList<SetRow> rows;
    QList<QStringList> infoTags;
};
ReadPage ReadTags(const QString& page);

// Whether a page is a strength workout page (a multisport page is one too).
bool IsWorkoutPage(const QString& page);

// The number of `delimiter`s in the trimmed text: a list tag of N values has N + 1 of "~".
int GetCount(const QString& text, const QString& delimiter);

// The file of a workout's page: the name without "/" and "\", and ".htm".
QString PageFileName(const QString& workoutName);

}  // namespace workoutpage
