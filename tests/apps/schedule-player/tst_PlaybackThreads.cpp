#include "deck/PlaybackThreads.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <atomic>
#include <future>

using trel::player::PlaybackThreads;
using namespace std::chrono_literals;

class tst_PlaybackThreads : public QObject
{
    Q_OBJECT

private slots:
    void threadsThatHangAreBounded();
    void waitsNoLongerThanItShould();
    void leavesWhatHangs();
};

void tst_PlaybackThreads::threadsThatHangAreBounded()
{
    PlaybackThreads threads;
    std::promise<void> answer;
    const std::shared_future<void> disk = answer.get_future().share();
    const auto running = std::make_shared<std::atomic<int>>(0);
    const auto hang = [disk, running] {
        ++*running;
        disk.wait();
    };
    for (int thread = 0; thread < 40; ++thread) {
        threads.start(hang);
    }
    QTRY_COMPARE(running->load(), 16);
    QCOMPARE(threads.running(), 16);
    answer.set_value();
    QVERIFY(threads.wait(5s));
    QCOMPARE(running->load(), 16);
    threads.start(hang);
    QVERIFY(threads.wait(5s));
    QCOMPARE(running->load(), 17);
}

void tst_PlaybackThreads::waitsNoLongerThanItShould()
{
    PlaybackThreads threads;
    std::promise<void> answer;
    const std::shared_future<void> disk = answer.get_future().share();
    threads.start([disk] { disk.wait(); });
    QVERIFY(!threads.wait(10ms));
    answer.set_value();
    QVERIFY(threads.wait(5s));
}

void tst_PlaybackThreads::leavesWhatHangs()
{
    const auto now = [] { return std::chrono::steady_clock::now(); };
    {
        PlaybackThreads threads;
        threads.start([] {});
        QVERIFY(threads.leave(now() + 5s));
        const auto hasRun = std::make_shared<std::atomic<bool>>(false);
        threads.start([hasRun] { *hasRun = true; });
        QVERIFY(threads.wait(5s));
        QVERIFY(!*hasRun);
    }
    QVERIFY(!PlaybackThreads::areLeft());
    std::promise<void> answer;
    const std::shared_future<void> disk = answer.get_future().share();
    PlaybackThreads threads;
    threads.start([disk] { disk.wait(); });
    const auto begin = now();
    QVERIFY(!threads.leave(begin + 20ms));
    QVERIFY(now() - begin >= 20ms);
    // A moment that has passed is not waited for.
    QVERIFY(!threads.leave(begin));
    QVERIFY(PlaybackThreads::areLeft());
    answer.set_value();
    QVERIFY(threads.wait(5s));
}

TREL_TEST(tst_PlaybackThreads, QCoreApplication)
#include "tst_PlaybackThreads.moc"
