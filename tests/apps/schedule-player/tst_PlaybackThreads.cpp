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

TREL_TEST(tst_PlaybackThreads, QCoreApplication)
#include "tst_PlaybackThreads.moc"
