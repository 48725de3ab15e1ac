// Another program on a store, for the tests of what is in effect: an editor that changes it, or a
// follower that only shows it. It does what the lines of its input ask for, follows the store in
// between, and answers each with a line.
//
//   start | stop | cancel | insert TASK PLAN at-once|delayed | at MOMENT
//
// With "write" as its task it saves and starts one schedule after the other and cuts into each,
// until it is stopped, and tells of each that it has done so.

#include "EffectTexts.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <string>

#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

void say(const QString& line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

QString outcome(const StoreResult& result)
{
    return QString::number(static_cast<int>(result.problem));
}

PlayPlan planOf(int taskId, int planId)
{
    const auto& tasks = ScheduleHost::instance().dispatch().tasks();
    const auto task = tasks.find(taskId);
    if (task != tasks.end()) {
        for (const PlayPlan& plan : task->second.plans) {
            if (plan.id == planId) {
                return plan;
            }
        }
    }
    return {};
}

QString answerTo(const QStringList& words)
{
    ScheduleHost& host = ScheduleHost::instance();
    const QString what = words.value(0);
    if (what == QLatin1String("start")) {
        return outcome(host.startSchedule());
    }
    if (what == QLatin1String("stop")) {
        return outcome(host.stopSchedule());
    }
    if (what == QLatin1String("cancel")) {
        return outcome(host.cancelInsertion());
    }
    if (what == QLatin1String("insert")) {
        const int taskId = words.value(1).toInt();
        const int planId = words.value(2).toInt();
        PlayPlan plan = planOf(taskId, planId);
        plan.serviceFlagA = true;
        std::reverse(plan.programs.begin(), plan.programs.end());
        return outcome(
            host.insertPlan(taskId, planId, plan, words.value(3) == QLatin1String("delayed")));
    }
    const ScreenDispatch& dispatch = host.dispatch();
    return dispatch.isRunning() ? stateText(dispatch.timeline().at(words.value(1).toLongLong(),
                                                                   dispatch.insertions()))
                                : stateText(ScreenState());
}

int follow(const QString& path)
{
    ScheduleHost& host = ScheduleHost::instance();
    host.followStore();
    say(outcome(host.open(path, ScheduleHost::OpenMode::MustExist)));
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QCoreApplication::quit();
            return;
        }
        say(answerTo(QString::fromStdString(line).split(QLatin1Char(' '))));
    });
    return QCoreApplication::exec();
}

int write(const QString& path, int generation)
{
    ScheduleHost& host = ScheduleHost::instance();
    say(outcome(host.open(path, ScheduleHost::OpenMode::MustExist)));
    for (;; ++generation) {
        if (!host.replaceSchedule(generationTasks(generation)) || !host.startSchedule()) {
            return 1;
        }
        say(QStringLiteral("%1 started").arg(generation));
        if (!host.insertPlan(1, 1, generationInsertion(generation), false)) {
            return 1;
        }
        say(QStringLiteral("%1 inserted").arg(generation));
        if (generation % 3 == 0) {
            if (!host.stopSchedule()) {
                return 1;
            }
            say(QStringLiteral("%1 stopped").arg(generation));
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.value(1) == QLatin1String("write")
               ? write(arguments.value(2), arguments.value(3).toInt())
               : follow(arguments.value(2));
}
