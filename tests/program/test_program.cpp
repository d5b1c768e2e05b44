// The built program itself, started as a user would: in a folder of its own, on the
// offscreen platform.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sqlite3.h>

namespace {

QString CopyProgram(const QTemporaryDir& dir)
{
    const QString target = QDir(dir.path()).filePath(QStringLiteral("orvantis"));
    QFile::copy(QStringLiteral(ORVANTIS_EXE), target);
    QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::ExeOwner);
    return target;
}

void StartProgram(QProcess& p, const QString& exe)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    p.setProcessEnvironment(env);
    p.setProgram(exe);
    p.setWorkingDirectory(QFileInfo(exe).path());
    p.start();
    ASSERT_TRUE(p.waitForStarted(5000));
}

bool WaitForFile(const QString& path, int ms)
{
    for (int waited = 0; waited < ms; waited += 100) {
        if (QFileInfo::exists(path)) return true;
        QThread::msleep(100);
    }
    return false;
}

QStringList Tables(const QString& path)
{
    QStringList out;
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        return out;
    }
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, "select name from sqlite_master where type='table'", -1, &st, nullptr);
    while (st && sqlite3_step(st) == SQLITE_ROW)
        out << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0))).toLower();
    sqlite3_finalize(st);
    sqlite3_close(db);
    return out;
}

}  // namespace

// First start: both stores appear in the program's folder with their tables; a second start
// while the first runs ends at once, silently.
TEST(Program, FirstStartCreatesStoresAndASecondStartEndsSilently)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString exe = CopyProgram(dir);

    QProcess first;
    StartProgram(first, exe);
    const QString library = QDir(dir.path()).filePath(QStringLiteral("orvantis.mdb"));
    const QString user = QDir(dir.path()).filePath(QStringLiteral("orvantisuser.mdb"));
    ASSERT_TRUE(WaitForFile(user, 15000));
    QThread::msleep(500);

    const QStringList lib = Tables(library);
    for (const char* t : {"units", "foods", "food_groups", "nutrients", "workouts", "workout_exercises",
                          "strength_exercises", "endurance_exercises", "endurance_templates", "web"})
        EXPECT_TRUE(lib.contains(QString::fromLatin1(t))) << t;
    const QStringList usr = Tables(user);
    for (const char* t : {"user_info", "calendar", "daily_log", "daily_water", "daily_exercise", "daily_weights",
                          "daily_nutrition", "weighin", "intensity", "hrm_info", "setup_meals", "wellness"})
        EXPECT_TRUE(usr.contains(QString::fromLatin1(t))) << t;

    QProcess second;
    StartProgram(second, exe);
    EXPECT_TRUE(second.waitForFinished(10000));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(second.readAllStandardOutput().isEmpty());
    EXPECT_EQ(first.state(), QProcess::Running);

    first.kill();
    first.waitForFinished(5000);
}

// A store file that is not a database is never overwritten: the program starts, says so,
// and leaves the file as it was.
TEST(Program, ACorruptStoreIsLeftAlone)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString exe = CopyProgram(dir);
    const QString user = QDir(dir.path()).filePath(QStringLiteral("orvantisuser.mdb"));
    const QByteArray junk("this is not a database, and it must stay as it is\n");
    {
        QFile f(user);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(junk);
    }
    QFile ini(QDir(dir.path()).filePath(QStringLiteral("orvantis.ini")));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("\x01\x02garbage line\n[Window\nState=\n=====\n[Program]\nnonsense\n");
    ini.close();

    QProcess p;
    StartProgram(p, exe);
    QThread::msleep(3000);
    EXPECT_EQ(p.state(), QProcess::Running);   // still up, showing its message
    p.kill();
    p.waitForFinished(5000);

    QFile f(user);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), junk);
}
