#include "catalogue/ImportJob.h"
#include "screen/PreviewPictures.h"
#include "support/ChildProcesses.h"
#include "trelprogramschedule/media/MediaReading.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <cstring>
#include <memory>

#include <dlfcn.h>
#include <sys/stat.h>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// The name of a file on a server that does not answer.
constexpr char kHungName[] = "on a server that is gone";

/// What the calls that look at it wait for, and how many do.
QSemaphore& answers()
{
    static QSemaphore semaphore;
    return semaphore;
}
std::atomic<int> waiting{0};

/// Cancelling and quitting act within this time, in milliseconds.
constexpr qint64 kAtOnce = 200;

} // namespace

/// Takes the place of the system's in this program.
extern "C" int stat(const char* path, struct stat* result) noexcept
{
    using Stat = int (*)(const char*, struct stat*);
    static const auto real = reinterpret_cast<Stat>(dlsym(RTLD_NEXT, "stat"));
    if (std::strstr(path, kHungName) != nullptr) {
        ++waiting;
        answers().acquire();
        --waiting;
    }
    return real(path, result);
}

/// What does not come back, be it a disk or what reads a file: neither a cancel nor the end of the
/// program waits for it.
class tst_HungFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void cancelActsAtOnce_data() { addHangs(); }
    void cancelActsAtOnce();
    void theEndOfTheJobActsAtOnce_data() { addHangs(); }
    void theEndOfTheJobActsAtOnce();
    void theEndOfThePreviewActsAtOnce_data() { addHangs(); }
    void theEndOfThePreviewActsAtOnce();
    void anotherImportCanFollow();

private:
    static void addHangs();
    /// The file of the row, which hangs in its way.
    QString file() const;
    /// Waits until something hangs.
    static void waitForHang();

    QTemporaryDir m_folder;
};

void tst_HungFile::addHangs()
{
    QTest::addColumn<bool>("isDisk");

    QTest::newRow("the disk does not answer") << true;
    QTest::newRow("the file has no end") << false;
}

QString tst_HungFile::file() const
{
    QFETCH(bool, isDisk);
    return isDisk ? m_folder.filePath(QString::fromLatin1(kHungName))
                  : QStringLiteral(DEMONSTRATION "/media/Opening.mp4");
}

void tst_HungFile::waitForHang()
{
    QTRY_VERIFY(waiting > 0 || !childProcesses().isEmpty());
}

void tst_HungFile::init()
{
    const QString reader = m_folder.filePath(QStringLiteral("stuck"));
    QFile::link(QStringLiteral(STUB_READER), reader);
    MediaReading reading;
    reading.program = reader;
    setMediaReading(reading);
}

void tst_HungFile::cleanup()
{
    // Threads that were left to themselves end before the next test.
    answers().release(waiting);
    QTRY_VERIFY(waiting == 0);
    setMediaReading({});
}

void tst_HungFile::cancelActsAtOnce()
{
    ImportJob job({file(), file() + QStringLiteral(".mp4")});
    QSignalSpy finished(&job, &ImportJob::finished);
    QVERIFY(finished.isValid());
    job.start();
    waitForHang();
    QElapsedTimer time;
    time.start();

    job.cancel();
    QVERIFY(finished.count() == 1 || finished.wait(5000));

    QVERIFY2(time.elapsed() < kAtOnce, qPrintable(QString::number(time.elapsed())));
    QVERIFY(job.isCancelled() && job.scan().cancelled);
    QVERIFY(job.scan().sources.empty());
    // The thread that comes to its end later has nobody to tell.
    answers().release(waiting);
    QTRY_VERIFY(waiting == 0 && childProcesses().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 1);
}

void tst_HungFile::theEndOfTheJobActsAtOnce()
{
    auto job = std::make_unique<ImportJob>(QStringList{file()});
    job->start();
    waitForHang();
    QElapsedTimer time;
    time.start();

    job.reset();

    QVERIFY2(time.elapsed() < kAtOnce, qPrintable(QString::number(time.elapsed())));
}

void tst_HungFile::theEndOfThePreviewActsAtOnce()
{
    auto pictures = std::make_unique<PreviewPictures>();
    ProgramIten program;
    program.mediaPath = file().toStdString();
    program.kind = ProgramKind::Video;
    QVERIFY(!pictures->picture(program, QSize(100, 100)).isKnown);
    waitForHang();
    QElapsedTimer time;
    time.start();

    pictures.reset();

    QVERIFY2(time.elapsed() < kAtOnce, qPrintable(QString::number(time.elapsed())));
}

void tst_HungFile::anotherImportCanFollow()
{
    {
        ImportJob hung({m_folder.filePath(QString::fromLatin1(kHungName))});
        hung.start();
        QTRY_COMPARE(waiting.load(), 1);
    }
    setMediaReading({});
    ImportJob job({QStringLiteral(DEMONSTRATION "/media/Opening.mp4")});
    QSignalSpy finished(&job, &ImportJob::finished);
    QVERIFY(finished.isValid());

    job.start();

    QVERIFY(finished.count() == 1 || finished.wait(30000));
    QCOMPARE(job.scan().sources.size(), std::size_t(1));
    QCOMPARE(waiting.load(), 1);
}

QTEST_GUILESS_MAIN(tst_HungFile)
#include "tst_HungFile.moc"
