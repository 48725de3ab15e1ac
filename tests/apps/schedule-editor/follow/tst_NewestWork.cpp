#include "follow/NewestWork.h"
#include "support/TestProgram.h"

#include "HeldPool.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QtTest>

#include <atomic>

using namespace trel::desktop::follow;
using namespace trel::desktop;

/// Work in another thread of which the newest alone counts.
class tst_NewestWork : public QObject
{
    Q_OBJECT

private slots:
    void outcomesComeInTheThreadThatGaveTheWork();
    void newerWorkCancelsOlder();
    void ofWhatWaitsTheNewestIsBegun();
    void anOutcomeThatIsOvertakenIsDropped();
    void onePieceIsCarriedOutAtATime();
    void workGoesOnWithoutItsOwner();
    void shortWorkIsDoneAtOnce();
};

namespace {

NewestWork::Work workThat(const std::function<void()>& outcome)
{
    return [outcome](const Cancellation&) { return outcome; };
}

/// Goes on until it is cancelled, or for so long that it has not been.
bool workUntilCancelled(const Cancellation& cancellation)
{
    const QDeadlineTimer deadline(10'000);
    while (!cancellation.isCancelled() && !deadline.hasExpired()) {
        QThread::yieldCurrentThread();
    }
    return cancellation.isCancelled();
}

void waitForPool()
{
    QThreadPool::globalInstance()->waitForDone();
}

} // namespace

void tst_NewestWork::outcomesComeInTheThreadThatGaveTheWork()
{
    NewestWork work;
    const QThread* worked = nullptr;
    const QThread* ended = nullptr;
    work.start([&](const Cancellation& cancellation) {
        worked = cancellation.isCancelled() ? nullptr : QThread::currentThread();
        return [&ended] { ended = QThread::currentThread(); };
    });
    waitForPool();
    QVERIFY(ended == nullptr);
    QVERIFY(!work.isBusy());
    QTRY_VERIFY(ended == QThread::currentThread());
    QVERIFY(worked != nullptr && worked != QThread::currentThread());
}

void tst_NewestWork::newerWorkCancelsOlder()
{
    NewestWork work;
    QSemaphore begun;
    std::atomic<bool> isCancelled = false;
    QStringList told;
    work.start([&](const Cancellation& cancellation) {
        begun.release();
        isCancelled = workUntilCancelled(cancellation);
        return [&told] { told.append(QStringLiteral("older")); };
    });
    begun.acquire();
    QVERIFY(work.isBusy());
    work.start(workThat([&told] { told.append(QStringLiteral("newer")); }));
    QTRY_COMPARE(told, QStringList(QStringLiteral("newer")));
    QVERIFY(isCancelled);
}

void tst_NewestWork::ofWhatWaitsTheNewestIsBegun()
{
    HeldPool pool;
    NewestWork work;
    std::atomic<int> begun = 0;
    int told = 0;
    for (int number = 1; number <= 5; ++number) {
        work.start([&begun, &told, number](const Cancellation&) {
            ++begun;
            return [&told, number] { told = number; };
        });
    }
    QVERIFY(work.isBusy());
    QCOMPARE(begun.load(), 0);
    pool.release();
    QTRY_COMPARE(told, 5);
    QCOMPARE(begun.load(), 1);
}

void tst_NewestWork::anOutcomeThatIsOvertakenIsDropped()
{
    NewestWork work;
    QStringList told;
    work.start(workThat([&told] { told.append(QStringLiteral("older")); }));
    waitForPool();
    // Its outcome waits in the event loop by now.
    work.start(workThat([&told] { told.append(QStringLiteral("newer")); }));
    waitForPool();
    QTRY_COMPARE(told, QStringList(QStringLiteral("newer")));
    QCoreApplication::processEvents();
    QCOMPARE(told.size(), 1);
}

void tst_NewestWork::onePieceIsCarriedOutAtATime()
{
    NewestWork work;
    std::atomic<int> atWork = 0;
    std::atomic<int> most = 0;
    int told = 0;
    for (int number = 1; number <= 200; ++number) {
        work.start([&, number](const Cancellation&) {
            most = std::max(most.load(), ++atWork);
            QThread::yieldCurrentThread();
            --atWork;
            return [&told, number] { told = number; };
        });
        if (number % 7 == 0) {
            QCoreApplication::processEvents();
        }
    }
    QTRY_COMPARE(told, 200);
    QCOMPARE(most.load(), 1);
}

void tst_NewestWork::workGoesOnWithoutItsOwner()
{
    QSemaphore begun;
    std::atomic<bool> isCancelled = false;
    bool isTold = false;
    {
        NewestWork work;
        work.start([&](const Cancellation& cancellation) {
            begun.release();
            isCancelled = workUntilCancelled(cancellation);
            return [&isTold] { isTold = true; };
        });
        begun.acquire();
    }
    waitForPool();
    QVERIFY(isCancelled);
    QCoreApplication::processEvents();
    QVERIFY(!isTold);
}

void tst_NewestWork::shortWorkIsDoneAtOnce()
{
    NewestWork work;
    QStringList told;
    work.start(workThat([&told] { told.append(QStringLiteral("older")); }));
    waitForPool();
    const QThread* worked = nullptr;
    work.carryOut([&](const Cancellation& cancellation) {
        worked = cancellation.isCancelled() ? nullptr : QThread::currentThread();
        return [&told] { told.append(QStringLiteral("newer")); };
    });
    QVERIFY(worked == QThread::currentThread());
    QCoreApplication::processEvents();
    QCOMPARE(told, QStringList(QStringLiteral("newer")));
}

TREL_TEST(tst_NewestWork, QCoreApplication)
#include "tst_NewestWork.moc"
