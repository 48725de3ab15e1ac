#include "store/StoreSchema.h"

#include "store/StoreConnection.h"
#include "store/StoreInserts.h"
#include "store/StoreRows.h"
#include "support/TestProgram.h"

#include <QDeadlineTimer>
#include <QSqlError>
#include <QtTest>

#include <atomic>
#include <functional>
#include <thread>
#include <utility>

using namespace trel::mediadispatch;

namespace {

/// An engine whose stores can be of any version, and hold nothing in each.
class AnyEngine final : public StoreConnection
{
public:
    explicit AnyEngine(int version, std::function<void()> onMake = {})
        : StoreConnection(QStringLiteral("place"), QSqlDatabase())
        , m_version(version)
        , m_onMake(std::move(onMake))
    {}

    std::unique_ptr<StoreInserts> inserts(const QString& statement,
                                          StoreInserts* before) const override
    {
        Q_UNUSED(statement)
        Q_UNUSED(before)
        return nullptr;
    }
    std::unique_ptr<StoreRows> rows(const QString& path, const char* sql) const override
    {
        Q_UNUSED(path)
        Q_UNUSED(sql)
        return nullptr;
    }
    qint64 applicationId() const override { return StoreSchema::kApplicationId; }
    int schemaVersion() const override { return m_version; }
    void seal(qint64 applicationId, int schemaVersion) const override
    {
        Q_UNUSED(applicationId)
        Q_UNUSED(schemaVersion)
    }
    StoreElements elements() const override { return {}; }
    StoreElements elementsMadeBy(const QStringList& statements) const override
    {
        Q_UNUSED(statements)
        if (m_onMake) {
            m_onMake();
        }
        return {};
    }
    void expectSound(const QString& path) const override { Q_UNUSED(path) }

private:
    void expectOpen() const override {}
    StoreError errorOf(const QSqlError& error) const override
    {
        Q_UNUSED(error)
        return {};
    }
    void setDeadline(StoreDeadline* deadline) const override { Q_UNUSED(deadline) }
    void begin(StorePurpose purpose) const override { Q_UNUSED(purpose) }
    void commit() const override {}
    void rollBack() const override {}

    int m_version;
    std::function<void()> m_onMake;
};

/// Where two threads wait for each other, without going to sleep, as often as they like, until a
/// time has run out that they have for all of it.
class Meeting
{
public:
    explicit Meeting(int milliseconds)
        : m_patience(milliseconds)
    {}

    void wait()
    {
        constexpr int turnsOfOthers = 100;
        const int arrived = ++m_arrived;
        const int both = arrived + arrived % 2;
        for (int turn = 1; m_isKept && m_arrived < both; ++turn) {
            if (turn % turnsOfOthers == 0) {
                std::this_thread::yield();
                m_isKept = !m_patience.hasExpired();
            }
        }
    }
    /// False where one waited in vain.
    bool isKept() const { return m_isKept; }

private:
    std::atomic<int> m_arrived{0};
    std::atomic<bool> m_isKept{true};
    QDeadlineTimer m_patience;
};

/// Whether a store is found to hold what it has to.
bool isFound(const AnyEngine& engine)
{
    try {
        StoreSchema::checkElements(engine, QStringLiteral("place"));
        return true;
    } catch (const StoreError&) {
        return false;
    }
}

} // namespace

/// What a store has to hold, as threads ask for it that open stores at the same time.
class tst_StoreSchema : public QObject
{
    Q_OBJECT

private slots:
    void threadsAskAtOnce();
    void nobodyWaitsWhileItIsMade();
};

// Both put something in at the same instant, time and again: unguarded, that ends in a crash sooner
// or later.
void tst_StoreSchema::threadsAskAtOnce()
{
    constexpr int rounds = 4000;
    // On a machine that is busy otherwise, fewer have to do.
    Meeting meeting(3000);
    std::atomic<int> found{0};
    const auto ask = [&meeting, &found](int first) {
        for (int round = 0; round < rounds; ++round) {
            const AnyEngine engine(first - 2 * round, [&meeting] { meeting.wait(); });
            found += isFound(engine) ? 1 : 0;
        }
    };
    // Versions below the first have no steps, so that little else takes time.
    std::thread other(ask, -1);
    ask(-2);
    other.join();
    QCOMPARE(found.load(), 2 * rounds);
}

// Two that make the same meet in it; both go on with what the first has put in.
void tst_StoreSchema::nobodyWaitsWhileItIsMade()
{
    constexpr int version = 1000;
    Meeting meeting(20000);
    std::atomic<int> found{0};
    const auto ask = [&meeting, &found] {
        const AnyEngine engine(version, [&meeting] { meeting.wait(); });
        found += isFound(engine) ? 1 : 0;
    };
    std::thread other(ask);
    ask();
    other.join();
    QVERIFY(meeting.isKept());
    QCOMPARE(found.load(), 2);
}

TREL_TEST(tst_StoreSchema, trel::tests::NoApplication)
#include "tst_StoreSchema.moc"
