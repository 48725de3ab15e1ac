// Another program for the tests of drafts: it edits, a step of a walk every few milliseconds, until
// it is killed, and tells each step before it does it, with the moment.

#include "DraftWalk.h"
#include "ScheduleHost.h"
#include "draft/DraftJournal.h"
#include "service/scheduleManage.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimer>

#include <csignal>
#include <cstdio>

#include <sys/time.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

constexpr int kStepMSecs = 4;
constexpr int kStepsKept = 37;

void stopAfter(int milliseconds)
{
    std::signal(SIGALRM, [](int) { ::kill(::getpid(), SIGKILL); });
    itimerval timer = {};
    timer.it_value.tv_sec = milliseconds / 1000;
    timer.it_value.tv_usec = milliseconds % 1000 * 1000;
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}

void say(const char* what, int step)
{
    std::printf("%s %d %lld\n", what, step,
                static_cast<long long>(QDateTime::currentMSecsSinceEpoch()));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const unsigned seed = arguments.value(2).toUInt();
    if (!ScheduleHost::instance().open(arguments.value(1))) {
        return 1;
    }
    DraftJournal journal(QStringLiteral("walker"));
    journal.begin();
    stopAfter(arguments.value(3).toInt());
    int step = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        say("step", ++step);
        const DraftStep next = draftStep(seed, step);
        if (next.task) {
            scheduleManage::getInstance().addTask(*next.task);
        } else {
            scheduleManage::getInstance().deleteTask(next.taskId);
        }
        // Every other walk is never written down but by itself.
        if (seed % 2 == 0 && step % kStepsKept == 0 && journal.flush()) {
            say("kept", step);
        }
    });
    timer.start(kStepMSecs);
    return QCoreApplication::exec();
}
