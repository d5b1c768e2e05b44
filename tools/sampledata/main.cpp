// orvantis-sample: fills an athlete of a program folder with sample records.
//
//   orvantis-sample [--folder DIR] [--athlete NAME] [--years N | --from YYYY-MM-DD --to YYYY-MM-DD] [--seed N]
//
// The folder is the program's (its stores and settings file); by default the folder this tool
// was built into, beside the program. The athlete is created when there is none of that name.
// Without dates the years run up to today.
#include "sampledata.h"

#include "core/opendatabases.h"
#include "core/routines.h"
#include "core/shared.h"
#include "core/store/storeerror.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    // The day logs are rich text written from a text document: that needs a GUI application,
    // never a window.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orvantis-sample"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Fills an athlete with sample records."));
    parser.addHelpOption();
    const QCommandLineOption folderOpt(QStringLiteral("folder"), QStringLiteral("The program folder."), QStringLiteral("dir"));
    const QCommandLineOption athleteOpt(QStringLiteral("athlete"), QStringLiteral("The athlete's name (created when not there)."),
                                        QStringLiteral("name"), QStringLiteral("Sample Athlete"));
    const QCommandLineOption yearsOpt(QStringLiteral("years"), QStringLiteral("Years up to today (default 1)."),
                                      QStringLiteral("n"), QStringLiteral("1"));
    const QCommandLineOption fromOpt(QStringLiteral("from"), QStringLiteral("First day, YYYY-MM-DD."), QStringLiteral("date"));
    const QCommandLineOption toOpt(QStringLiteral("to"), QStringLiteral("Last day, YYYY-MM-DD."), QStringLiteral("date"));
    const QCommandLineOption seedOpt(QStringLiteral("seed"), QStringLiteral("The same seed gives the same records."),
                                     QStringLiteral("n"));
    parser.addOptions({folderOpt, athleteOpt, yearsOpt, fromOpt, toOpt, seedOpt});
    parser.process(app);

    QTextStream out(stdout), err(stderr);
    auto fail = [&err](const QString& text) {
        err << "orvantis-sample: " << text << Qt::endl;
        return 1;
    };

    QDate to = QDate::currentDate(), from;
    if (parser.isSet(toOpt)) {
        to = QDate::fromString(parser.value(toOpt), Qt::ISODate);
        if (!to.isValid()) return fail(QStringLiteral("--to is no date: ") + parser.value(toOpt));
    }
    if (parser.isSet(fromOpt)) {
        from = QDate::fromString(parser.value(fromOpt), Qt::ISODate);
        if (!from.isValid()) return fail(QStringLiteral("--from is no date: ") + parser.value(fromOpt));
    } else {
        bool ok = false;
        const int years = parser.value(yearsOpt).toInt(&ok);
        if (!ok || years < 1 || years > 50) return fail(QStringLiteral("--years wants a whole number from 1 to 50."));
        from = to.addYears(-years).addDays(1);
    }
    if (from > to) return fail(QStringLiteral("the first day comes after the last."));

    sampledata::Options options;
    options.from = from;
    options.to = to;
    if (parser.isSet(seedOpt)) {
        bool ok = false;
        options.seed = parser.value(seedOpt).toUInt(&ok);
        if (!ok) return fail(QStringLiteral("--seed wants a whole number."));
    }
    if (parser.isSet(folderOpt)) SetProgramFolder(parser.value(folderOpt));

    try {
        OpenDatabases();
        const QString name = parser.value(athleteOpt).trimmed();
        if (name.isEmpty()) return fail(QStringLiteral("--athlete wants a name."));
        options.userId = sampledata::FindAthlete(name);
        const bool created = options.userId.isEmpty();
        if (created) options.userId = sampledata::CreateAthlete(name, from);

        QElapsedTimer timer;
        timer.start();
        const sampledata::Counts c = sampledata::Fill(options);
        const qint64 ms = timer.elapsed();

        out << "Folder:        " << ProgramFolder() << Qt::endl
            << "Athlete:       " << name << " (User_ID " << options.userId << (created ? ", created" : "") << ")" << Qt::endl
            << "Days:          " << SqlDate(from) << " to " << SqlDate(to) << " (" << from.daysTo(to) + 1 << ")" << Qt::endl
            << "Diary rows:    " << c.diaryRows << Qt::endl
            << "Water days:    " << c.waterDays << Qt::endl
            << "Sessions:      " << c.sessions << Qt::endl
            << "Workouts:      " << c.workouts << Qt::endl
            << "Weigh-ins:     " << c.weighIns << Qt::endl
            << "Wellness days: " << c.wellnessDays << Qt::endl
            << "Readings:      " << c.readings << Qt::endl
            << "Day logs:      " << c.logs << Qt::endl
            << "Time:          " << ms << " ms" << Qt::endl;
        LibraryConn.Close();
        UserConn.Close();
    } catch (const StoreError& e) {
        return fail(QStringLiteral("error %1: %2").arg(e.Number()).arg(e.Description()));
    }
    return 0;
}
