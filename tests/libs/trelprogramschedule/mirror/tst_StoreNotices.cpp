#include "mirror/StoreNotices.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using namespace trel::mediadispatch;
using namespace std::chrono_literals;

/// When a store is looked at, by a server and a clock of the test's.
class tst_StoreNotices : public QObject
{
    Q_OBJECT

private slots:
    void looksAtTheBeginning();
    void looksWhenItHears();
    void whatIsToldTogetherIsOneLook();
    void doubtNeedsNoNotice();
    void aLossIsFoundWithoutASignal();
    void aServerThatIsAwayIsTriedAgain();
    void whatIsRefusedIsLookedAtOnceMore();
    void endedItDoesNothing();
};

namespace {

/// A server that can be taken away, and who listens to it.
class Listener
{
public:
    Listener()
        : notices(
              [this] {
                  ++looks;
                  isConnected = isThere;
                  return isThere;
              },
              [this] { return isConnected; }, habits())
    {}
    Q_DISABLE_COPY(Listener)

    /// Begins, and waits for the first look.
    void begin()
    {
        notices.begin();
        QTRY_COMPARE(looks, 1);
    }

    /// Whether anything comes by itself.
    bool isWaiting() const
    {
        const auto timers = notices.findChildren<QTimer*>();
        return std::any_of(timers.begin(), timers.end(),
                           [](QTimer* one) { return one->isActive(); });
    }

    bool isThere = true;
    bool isConnected = false;
    int looks = 0;
    StoreNotices::Time now{1000};
    StoreNotices notices;

private:
    StoreNotices::Habits habits()
    {
        StoreNotices::Habits habits;
        habits.random = [] { return 0.0; };
        habits.now = [this] { return now; };
        return habits;
    }
};

} // namespace

void tst_StoreNotices::looksAtTheBeginning()
{
    Listener listener;
    listener.begin();
    // The next one that it waits for is far away.
    listener.notices.turn();
    QCOMPARE(listener.looks, 1);
}

void tst_StoreNotices::looksWhenItHears()
{
    Listener listener;
    listener.begin();
    listener.notices.hear();
    // Never from within the call.
    QCOMPARE(listener.looks, 1);
    QTRY_COMPARE(listener.looks, 2);
}

void tst_StoreNotices::whatIsToldTogetherIsOneLook()
{
    Listener listener;
    listener.begin();
    for (int notice = 0; notice < 100; ++notice) {
        listener.notices.hear();
    }
    QTRY_COMPARE(listener.looks, 2);
    listener.notices.turn();
    QCOMPARE(listener.looks, 2);
    QVERIFY(listener.isWaiting());
}

void tst_StoreNotices::doubtNeedsNoNotice()
{
    Listener listener;
    listener.begin();
    listener.now += 14s;
    listener.notices.turn();
    QCOMPARE(listener.looks, 1);
    listener.now += 1s;
    listener.notices.turn();
    QCOMPARE(listener.looks, 2);
}

void tst_StoreNotices::aLossIsFoundWithoutASignal()
{
    Listener listener;
    listener.begin();
    listener.isConnected = false;
    // Within the round of a second, by itself.
    QTRY_COMPARE(listener.looks, 2);
    QVERIFY(listener.isConnected);
}

void tst_StoreNotices::aServerThatIsAwayIsTriedAgain()
{
    Listener listener;
    listener.begin();
    listener.isThere = false;
    listener.isConnected = false;
    listener.notices.turn();
    QCOMPARE(listener.looks, 2);
    // A pause of a quarter of a second, by the clock.
    listener.now += 249ms;
    listener.notices.turn();
    QCOMPARE(listener.looks, 2);
    listener.now += 1ms;
    listener.notices.turn();
    QCOMPARE(listener.looks, 3);
    listener.isThere = true;
    listener.now += 500ms;
    listener.notices.turn();
    QCOMPARE(listener.looks, 4);
    listener.notices.turn();
    QCOMPARE(listener.looks, 4);
}

void tst_StoreNotices::whatIsRefusedIsLookedAtOnceMore()
{
    Listener listener;
    listener.begin();
    listener.notices.refuse();
    listener.notices.turn();
    QCOMPARE(listener.looks, 1);
    listener.now += 250ms;
    listener.notices.turn();
    QCOMPARE(listener.looks, 2);
}

void tst_StoreNotices::endedItDoesNothing()
{
    Listener listener;
    listener.begin();
    listener.notices.end();
    listener.notices.hear();
    listener.notices.refuse();
    listener.now += 1h;
    QVERIFY(!listener.isWaiting());
    QCOMPARE(listener.looks, 1);
}

TREL_TEST(tst_StoreNotices, QCoreApplication)
#include "tst_StoreNotices.moc"
