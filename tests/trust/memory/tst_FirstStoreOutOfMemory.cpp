#include "FailEverywhere.h"
#include "QuickFolder.h"

#include "store/ScheduleDatabase.h"

#include <QSqlDatabase>

#include <csignal>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

/// Has the toolkit load its driver, which it does but once and under a lock, and make nothing else.
class LoadedDriver : public QSqlDatabase
{
public:
    LoadedDriver()
        : QSqlDatabase(QStringLiteral("QSQLITE"))
    {}
};

/// How a process that opens the first store of its life with failing memory ends.
enum Outcome { HadEnough = 0, IsWell, IsBadlyRefused };

bool isRefusedForMemory(const StoreResult& result)
{
    return result.problem == StoreProblem::Other && result.cause.code == FaultCode::NoMemory;
}

Outcome openAtFirst(const QString& path, long nth, FailingMemory::Lasting lasting)
{
    ScheduleDatabase store;
    FailingMemory::failAt(nth, lasting, FailingMemory::Kind::Objects);
    const StoreResult first = store.open(path, StoreOpenMode::MustExist);
    FailingMemory::heal();
    if (!FailingMemory::hasFailed()) {
        return first ? HadEnough : IsBadlyRefused;
    }
    if (!first && !isRefusedForMemory(first)) {
        return IsBadlyRefused;
    }
    // What the toolkit could not make once it may never make again.
    const StoreResult second = store.open(path, StoreOpenMode::MustExist);
    return second || isRefusedForMemory(second) ? IsWell : IsBadlyRefused;
}

/// Runs in a process of its own, whose toolkit has seen no store before. Returns how it ended, as
/// waitpid tells it.
template <typename Action>
int statusOf(const Action& action)
{
    const pid_t process = ::fork();
    if (process == 0) {
        for (const int signal : {SIGSEGV, SIGABRT, SIGBUS}) {
            std::signal(signal, SIG_DFL);
        }
        constexpr unsigned int secondsToHang = 20;
        ::alarm(secondsToHang);
        ::_exit(action());
    }
    int status = -1;
    ::waitpid(process, &status, 0);
    return status;
}

} // namespace

/// The first store that a process opens makes what the toolkit has but once. Memory may run out
/// there as well: the store is refused, and the process lives.
class tst_FirstStoreOutOfMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void opening_data() { addLastings(); }
    void opening();
};

void tst_FirstStoreOutOfMemory::initTestCase()
{
    // It stays: what the toolkit needs at the end of a connection is to be made in the test.
    static const LoadedDriver* const driver = new LoadedDriver;
    QVERIFY(driver->driver() != nullptr);
}

void tst_FirstStoreOutOfMemory::opening()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QuickFolder folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    QCOMPARE(statusOf([&] {
                 ScheduleDatabase store;
                 return store.open(path, StoreOpenMode::CreateIfMissing) ? EXIT_SUCCESS
                                                                         : EXIT_FAILURE;
             }),
             0);
    Outcome outcome = IsWell;
    for (long nth = 1; outcome == IsWell; ++nth) {
        const int status = statusOf([&] { return openAtFirst(path, nth, lasting); });
        QVERIFY2(
            WIFEXITED(status),
            qPrintable(QStringLiteral("allocation %1: signal %2").arg(nth).arg(WTERMSIG(status))));
        outcome = static_cast<Outcome>(WEXITSTATUS(status));
        QVERIFY2(outcome == IsWell || outcome == HadEnough,
                 qPrintable(QStringLiteral("allocation %1: %2").arg(nth).arg(outcome)));
    }
}

QTEST_GUILESS_MAIN(tst_FirstStoreOutOfMemory)
#include "tst_FirstStoreOutOfMemory.moc"
