#include "DraftFixture.h"
#include "draft/DraftRecords.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <cerrno>
#include <climits>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

/// Calls of the thread that writes, and which of them fail.
struct Failing
{
    std::atomic<int> calls{0};
    std::atomic<int> first{0}; ///< 0 for none.
    std::atomic<int> last{0};
    std::atomic<bool> isHalf{false}; ///< A write that fails has written a part.
    std::atomic<int> syncs{0};       ///< That were carried out.
};

Failing failing;
std::thread::id mainThread;

bool fails()
{
    if (std::this_thread::get_id() == mainThread) {
        return false;
    }
    const int call = ++failing.calls;
    const bool isDue = failing.first > 0 && call >= failing.first && call <= failing.last;
    if (isDue) {
        errno = EIO;
    }
    return isDue;
}

} // namespace

// In the place of the system's, for the code that this program links.

extern "C" ssize_t pwrite64(int handle, const void* from, size_t size, off64_t place)
{
    if (!fails()) {
        return ::syscall(SYS_pwrite64, handle, from, size, place);
    }
    if (failing.isHalf) {
        ::syscall(SYS_pwrite64, handle, from, size / 2, place);
    }
    errno = EIO;
    return -1;
}

extern "C" ssize_t pwrite(int handle, const void* from, size_t size, off_t place)
{
    return pwrite64(handle, from, size, place);
}

extern "C" int fdatasync(int handle)
{
    if (fails()) {
        return -1;
    }
    ++failing.syncs;
    return static_cast<int>(::syscall(SYS_fdatasync, handle));
}

extern "C" int rename(const char* from, const char* to)
{
    return fails() ? -1 : static_cast<int>(::syscall(SYS_rename, from, to));
}

extern "C" int unlink(const char* name)
{
    return fails() ? -1 : static_cast<int>(::syscall(SYS_unlink, name));
}

namespace {

void failFrom(int first, int last)
{
    failing.calls = 0;
    failing.first = first;
    failing.last = last;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What of a draft stands in its file.
QString onDisk(const DraftFixture& fixture)
{
    const QStringList files = fixture.files();
    return files.isEmpty() ? QString()
                           : DraftFixture::lineOf(readDraft(
                                 contentOf(fixture.store.folder.filePath(files.first()))));
}

/// A session with everything that a draft does: made, added to, written anew, edited back, emptied.
/// After each step what is on the disk, which has all edits of the steps before it at least.
class Session
{
public:
    Session()
        : m_spy(m_fixture.journal.get(), &DraftJournal::failed)
    {}

    /// Runs it; an empty text, or what was lost.
    QString run()
    {
        const PlayTask saved = m_fixture.store.manager.getTask(1);
        step([&] { m_fixture.edit(1, "2030.01.01"); }, {});
        step([&] { m_fixture.edit(2, "2030.01.01"); }, QStringLiteral("1"));
        step([&] { m_fixture.store.manager.deleteTask(3); }, QStringLiteral("1 2"));
        step([&] { m_fixture.journal->cancel(); }, QStringLiteral("1 2 -3"));
        step(
            [&] {
                m_fixture.store.manager.updateUItask();
                for (const auto& [id, task] : m_fixture.journal->takeCanceled()) {
                    file(id, task);
                }
                m_fixture.edit(4, "2030.01.01");
            },
            QStringLiteral("|1 2 -3"));
        if (!m_fixture.journal->flush() && !m_fixture.journal->flush()) {
            m_lost += QStringLiteral("never recovered");
        }
        return m_lost;
    }

    int failures()
    {
        QCoreApplication::processEvents();
        return m_spy.size();
    }
    DraftFixture& fixture() { return m_fixture; }

private:
    void file(int taskId, const std::optional<PlayTask>& task) const
    {
        if (task) {
            m_fixture.store.manager.addTask(*task);
        } else {
            m_fixture.store.manager.deleteTask(taskId);
        }
    }

    template <typename Action>
    void step(const Action& action, const QString& before)
    {
        action();
        const bool isWritten = m_fixture.journal->flush();
        const QString found = onDisk(m_fixture);
        // What was canceled, and is taken back, stands on one side of the bar or the other.
        const QString bare = QString(found).remove(QLatin1Char('|'));
        const bool isKept = bare.startsWith(QString(before).remove(QLatin1Char('|'))) || isWritten;
        if (!isKept) {
            m_lost += QStringLiteral("[%1] after [%2] ").arg(found, before);
        }
        // It goes on by itself.
        m_fixture.journal->flush();
        m_fixture.journal->flush();
    }

    DraftFixture m_fixture;
    QSignalSpy m_spy;
    QString m_lost;
};

} // namespace

/// A disk that fails keeps nobody from editing, is told once, and takes nothing away.
class tst_DraftFailures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { mainThread = std::this_thread::get_id(); }
    void init()
    {
        failFrom(0, 0);
        failing.isHalf = false;
    }
    void cleanup() { failFrom(0, 0); }
    void everyWriteIsPutOnTheDisk();
    void everyCallOnce_data();
    void everyCallOnce();
    void fromACallOnForGood_data();
    void fromACallOnForGood();
    void isToldOnceAndGoesOnByItself();
    void aFolderThatIsGoneIsTold();
};

void tst_DraftFailures::everyWriteIsPutOnTheDisk()
{
    DraftFixture fixture;
    for (int id = 1; id <= 4; ++id) {
        const int before = failing.syncs;
        fixture.edit(id, "2030.01.01");
        QVERIFY(fixture.journal->flush());
        QCOMPARE(failing.syncs - before, 1);
    }
}

void tst_DraftFailures::everyCallOnce_data()
{
    QTest::addColumn<bool>("isHalf");
    QTest::newRow("nothing written") << false;
    QTest::newRow("half written") << true;
}

void tst_DraftFailures::everyCallOnce()
{
    QFETCH(bool, isHalf);
    failing.isHalf = isHalf;
    int calls = 0;
    {
        Session session;
        failFrom(0, 0);
        QCOMPARE(session.run(), QString());
        QCOMPARE(session.failures(), 0);
        QCOMPARE(onDisk(session.fixture()), QStringLiteral("1 2 -3 4"));
        calls = failing.calls;
    }
    QVERIFY2(calls > 8, qPrintable(QString::number(calls)));
    for (int call = 1; call <= calls; ++call) {
        Session session;
        failFrom(call, call);
        const QString lost = session.run();
        QVERIFY2(lost.isEmpty(), qPrintable(QStringLiteral("call %1: %2").arg(call).arg(lost)));
        QVERIFY2(session.failures() <= 1, qPrintable(QString::number(call)));
        QCOMPARE(onDisk(session.fixture()), QStringLiteral("1 2 -3 4"));
        QCOMPARE(session.fixture().files().size(), 1);
    }
}

void tst_DraftFailures::fromACallOnForGood_data()
{
    everyCallOnce_data();
}

void tst_DraftFailures::fromACallOnForGood()
{
    QFETCH(bool, isHalf);
    failing.isHalf = isHalf;
    for (int call = 1; call <= 20; ++call) {
        DraftFixture fixture;
        QSignalSpy failed(fixture.journal.get(), &DraftJournal::failed);
        QSignalSpy recovered(fixture.journal.get(), &DraftJournal::recovered);
        failFrom(call, INT_MAX);
        QString kept;
        for (int id = 1; id <= 4; ++id) {
            fixture.edit(id, "2030.01.01");
            if (fixture.journal->flush()) {
                kept = onDisk(fixture);
            }
            QVERIFY2(onDisk(fixture).startsWith(kept), qPrintable(kept));
        }
        // Every edit is in the working set, whatever the disk does.
        for (int id = 1; id <= 4; ++id) {
            QCOMPARE(fixture.store.host.workingSet().at(id).startDate, std::string("2030.01.01"));
        }
        QCoreApplication::processEvents();
        const bool hasFailed = failing.calls >= call;
        QCOMPARE(failed.size(), hasFailed ? 1 : 0);
        failFrom(0, 0);
        if (hasFailed) {
            QTRY_COMPARE(recovered.size(), 1);
        }
        QCOMPARE(onDisk(fixture), QStringLiteral("1 2 3 4"));
        QCOMPARE(fixture.files().size(), 1);
    }
}

void tst_DraftFailures::isToldOnceAndGoesOnByItself()
{
    DraftFixture fixture;
    QSignalSpy failed(fixture.journal.get(), &DraftJournal::failed);
    QSignalSpy recovered(fixture.journal.get(), &DraftJournal::recovered);
    QSignalSpy written(fixture.journal.get(), &DraftJournal::written);
    Fault fault;
    connect(fixture.journal.get(), &DraftJournal::failed, this,
            [&fault](const Fault& told) { fault = told; });
    failFrom(1, INT_MAX);
    fixture.edit(1, "2030.01.01");
    QTRY_COMPARE(failed.size(), 1);
    // It is tried again, and not told again.
    const int tries = failing.calls;
    QTRY_VERIFY(failing.calls > tries + 3);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(written.size(), 0);
    QCOMPARE(fault.code, FaultCode::System);
    QCOMPARE(fault.number(0), EIO);
    failFrom(0, 0);
    QTRY_COMPARE(recovered.size(), 1);
    QCOMPARE(onDisk(fixture), QStringLiteral("1"));
    // The next failure is told again.
    failFrom(1, INT_MAX);
    fixture.edit(2, "2030.01.01");
    QTRY_COMPARE(failed.size(), 2);
}

void tst_DraftFailures::aFolderThatIsGoneIsTold()
{
    DraftFixture fixture;
    QSignalSpy failed(fixture.journal.get(), &DraftJournal::failed);
    const QString aside = fixture.store.folder.path() + QStringLiteral("-aside");
    QVERIFY(QDir().rename(fixture.store.folder.path(), aside));
    fixture.edit(1, "2030.01.01");
    QVERIFY(!fixture.journal->flush());
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(QDir().rename(aside, fixture.store.folder.path()));
    QVERIFY(fixture.journal->flush());
    QCOMPARE(onDisk(fixture), QStringLiteral("1"));
}

QTEST_GUILESS_MAIN(tst_DraftFailures)
#include "tst_DraftFailures.moc"
