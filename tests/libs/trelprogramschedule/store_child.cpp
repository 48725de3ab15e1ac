// Another program for the tests of the store: one that can be stopped, that keeps a file to itself
// or that runs out of space. What it finds it writes line by line to its output.

#include "DiskLimit.h"
#include "ScheduleHost.h"
#include "service/scheduleManage.h"
#include "store/sqlite/SqliteConnection.h"
#include "support/FaultyDisk.h"
#include "support/SampleSchedule.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/time.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

void say(const QString& line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

void say(const char* what, const StoreResult& result)
{
    say(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(int(result.problem)));
}

/// Keeps the file to itself until its input ends.
int hold(const QString& path)
{
    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    connection.run(QStringLiteral("BEGIN EXCLUSIVE"));
    connection.run(QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
    say(QStringLiteral("ready"));
    QFile input;
    if (input.open(stdin, QIODevice::ReadOnly)) {
        input.readAll();
    }
    return 0;
}

/// Ends the process as a power cut would, after a time in microseconds.
void stopAfter(int microseconds)
{
    std::signal(SIGALRM, [](int) { ::kill(::getpid(), SIGKILL); });
    itimerval timer = {};
    timer.it_value.tv_sec = microseconds / 1000000;
    timer.it_value.tv_usec = microseconds % 1000000;
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}

StoreResult saveGeneration(int generation)
{
    scheduleManage& manager = scheduleManage::getInstance();
    for (const auto& [id, task] : manager.getAllTask()) {
        manager.deleteTask(id);
    }
    for (const auto& [id, task] : sampleSchedule(20 + generation % 20, 3, 3, generation)) {
        manager.addTask(task);
    }
    return ScheduleHost::instance().trySave();
}

/// Saves one generation after the other until it is stopped, and names each that was saved. It is
/// stopped after the first one, in so many thousandths of the time that this one took.
int saveOn(const QString& path, int generation, qint64 thousandths)
{
    StoreResult result = ScheduleHost::instance().open(path);
    QElapsedTimer timer;
    timer.start();
    for (bool isFirst = true; result; isFirst = false, ++generation) {
        result = saveGeneration(generation);
        if (result) {
            say(QString::number(generation));
        }
        if (isFirst) {
            stopAfter(int(qMax<qint64>(1, timer.nsecsElapsed() / 1000 * thousandths / 1000)));
        }
    }
    say(englishText(result));
    return 1;
}

/// What another program finds in the store.
std::size_t tasksInFile(const QString& path)
{
    const SqliteConnection connection(path, SqliteConnection::Access::ReadOnly);
    return connection.value(QStringLiteral("SELECT count(*) FROM task")).toUInt();
}

/// Fills the disk under an open store, and finds space again.
int runOutOfSpace(const QString& folder)
{
    DiskLimit disk(folder);
    say(disk.kind());
    const QString path = folder + QStringLiteral("/schedule.db");
    ScheduleHost& host = ScheduleHost::instance();
    scheduleManage& manager = scheduleManage::getInstance();
    say("open", host.open(path));
    say("programs", host.addPrograms(samplePrograms(5)).store);
    say("small", host.replaceSchedule(sampleSchedule(3, 2, 5)));

    disk.fill();
    for (const auto& [id, task] : sampleSchedule(2000, 3, 5, 1)) {
        manager.addTask(task);
    }
    QObject::connect(&host, &ScheduleHost::saveFailed, &host, [](const StoreResult& reason) {
        say("failed", reason);
        say(englishText(reason));
    });
    manager.save();
    say(QStringLiteral("stored %1 working %2 file %3 unsaved %4")
            .arg(manager.getgTaskMap().size())
            .arg(manager.getAllTask().size())
            .arg(tasksInFile(path))
            .arg(host.hasUnsavedChanges()));
    say("import", host.addPrograms(samplePrograms(5000, 100)).store);
    say(QStringLiteral("programs %1").arg(manager.getPrograms().size()));

    disk.free();
    say("again", host.trySave());
    host.close();
    say("reopen", host.open(path));
    say(QStringLiteral("stored %1").arg(manager.getgTaskMap().size()));
    host.close();

    disk.fill();
    const QString fresh = folder + QStringLiteral("/fresh.db");
    say("fresh", host.open(fresh));
    say(QStringLiteral("left %1").arg(QFile::exists(fresh)));
    return 0;
}

/// Is refused a save by a disk that does not synchronise the log, and ends as in a crash.
int beRefused(const QString& path, bool isForGood)
{
    FaultyDisk disk;
    ScheduleHost& host = ScheduleHost::instance();
    say("open", host.open(path));
    say("first", host.replaceSchedule(sampleSchedule(1, 1, 0, 2)));
    disk.fail(FaultyDisk::Sync, 1,
              isForGood ? FaultyDisk::Lasting::ForGood : FaultyDisk::Lasting::Once, EIO);
    say("second", host.replaceSchedule(sampleSchedule(1, 1, 0, 3)));
    ::_exit(0);
}

/// Leaves with an open store behind, in one of the ways in which programs end.
int leave(const QString& path, bool byExit)
{
    say("open", ScheduleHost::instance().open(path));
    say("saved", ScheduleHost::instance().replaceSchedule(sampleSchedule(2, 1, 0)));
    if (byExit) {
        std::exit(0);
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.value(1);
    if (task == QLatin1String("hold")) {
        return hold(arguments.value(2));
    }
    if (task == QLatin1String("save")) {
        return saveOn(arguments.value(2), arguments.value(3).toInt(), arguments.value(4).toInt());
    }
    if (task == QLatin1String("return") || task == QLatin1String("exit")) {
        return leave(arguments.value(2), task == QLatin1String("exit"));
    }
    if (task == QLatin1String("refused")) {
        return beRefused(arguments.value(2), arguments.value(3) == QLatin1String("for-good"));
    }
    if (task == QLatin1String("fill")) {
        return runOutOfSpace(arguments.value(2));
    }
    return 2;
}
