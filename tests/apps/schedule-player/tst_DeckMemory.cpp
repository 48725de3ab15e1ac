#include "DeckFixture.h"
#include "StreamServer.h"
#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using trel::mediadispatch::ProgramKind;
using trel::player::PlayerDeck;
using trel::screen::DeckLoad;

Q_DECLARE_METATYPE(trel::mediadispatch::ProgramKind)

namespace {

int entriesOf(const char* folder)
{
    return QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
}

/// What the process has taken of the heap and not given back, in bytes, whatever the allocator
/// keeps besides; none where that cannot be told.
qint64 heapInUse()
{
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    const auto heap = ::mallinfo2();
    return static_cast<qint64>(heap.uordblks) + static_cast<qint64>(heap.hblkhd);
#else
    return 0;
#endif
}

} // namespace

/// What is loaded again and again, and cannot be played, leaves nothing behind: no thread, no open
/// file and no memory.
class tst_DeckMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void leavesNothing_data();
    void leavesNothing();

private:
    void loadOften(int times, const DeckLoad& load, bool isCleared);

    QTemporaryDir m_folder;
    StreamServer m_server;
};

void tst_DeckMemory::initTestCase()
{
    media::ClipOrder order;
    order.frames = 50;
    QVERIFY(media::makeClip(m_folder.filePath(QStringLiteral("film.mp4")), order));
    QVERIFY(media::makeClip(m_folder.filePath(QStringLiteral("film.ts")), order));
    QVERIFY(media::makeText(m_folder.filePath(QStringLiteral("text.mp4"))));
    QFile film(m_folder.filePath(QStringLiteral("film.ts")));
    QVERIFY(film.open(QIODevice::ReadOnly));
    m_server.serveWhole(QStringLiteral("/short"), film.readAll());
}

void tst_DeckMemory::leavesNothing_data()
{
    QTest::addColumn<QString>("media");
    QTest::addColumn<ProgramKind>("kind");
    QTest::addColumn<bool>("isSilent");
    QTest::newRow("whole") << m_folder.filePath(QStringLiteral("film.mp4")) << ProgramKind::Video
                           << false;
    QTest::newRow("missing") << m_folder.filePath(QStringLiteral("none.mp4")) << ProgramKind::Video
                             << false;
    QTest::newRow("text") << m_folder.filePath(QStringLiteral("text.mp4")) << ProgramKind::Video
                          << false;
    QTest::newRow("not found") << m_server.address(QStringLiteral("/none")) << ProgramKind::Live
                               << false;
    QTest::newRow("stream") << m_server.address(QStringLiteral("/short")) << ProgramKind::Live
                            << false;
    QTest::newRow("silent") << m_server.address(QStringLiteral("/short")) << ProgramKind::Live
                            << true;
}

void tst_DeckMemory::loadOften(int times, const DeckLoad& load, bool isCleared)
{
    const int threads = entriesOf("/proc/self/task");
    {
        DeckFixture screen;
        screen.show(screen.first);
        QSignalSpy failed(&screen.first, &PlayerDeck::failed);
        for (int time = 0; time < times; ++time) {
            failed.clear();
            const int asked = m_server.requests();
            screen.first.load(load);
            QTRY_VERIFY(screen.first.isReady() || !failed.isEmpty() ||
                        (isCleared && m_server.requests() > asked));
        }
    }
    QTRY_VERIFY(entriesOf("/proc/self/task") <= threads);
    QTRY_COMPARE(m_server.lines(), 0);
    // What was told to go later goes now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_DeckMemory::leavesNothing()
{
    QFETCH(const QString, media);
    QFETCH(const ProgramKind, kind);
    QFETCH(const bool, isSilent);
    m_server.setSilent(isSilent);
    const DeckLoad load{media, kind, 0, false, 0};
    constexpr int kTimes = 15;
    // A few hundred bytes are what the test and the libraries note of each.
    constexpr qint64 kNotes = 2000;
    loadOften(kTimes, load, isSilent);
    const int files = entriesOf("/proc/self/fd");
    const qint64 before = heapInUse();
    loadOften(kTimes, load, isSilent);
    QCOMPARE(entriesOf("/proc/self/fd"), files);
    const qint64 left = (heapInUse() - before) / kTimes;
    QVERIFY2(left < kNotes, qPrintable(QStringLiteral("%1 bytes a load").arg(left)));
}

TREL_TEST(tst_DeckMemory, QGuiApplication)
#include "tst_DeckMemory.moc"
