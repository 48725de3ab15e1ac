#include "HostFixture.h"
#include "catalogue/ImportJob.h"
#include "support/ChildProcesses.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/media/MediaReading.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopeGuard>
#include <QSemaphore>
#include <QStatusBar>

#include <atomic>
#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Gets hold of the job of a window before it is started: while the window makes the progress for
/// it.
class JobCatcher : public QObject
{
public:
    using Take = std::function<void(ImportJob&)>;

    JobCatcher(EditorWindow& window, Take take)
        : m_window(window)
        , m_take(std::move(take))
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        auto* job =
            event->type() == QEvent::ChildAdded ? m_window.findChild<ImportJob*>() : nullptr;
        if (job != nullptr && m_take) {
            std::exchange(m_take, nullptr)(*job);
        }
        return false;
    }

private:
    EditorWindow& m_window;
    Take m_take;
};

/// Lets a thread go on step by step.
class Gate
{
public:
    /// For the thread: waits until it may pass.
    void pass()
    {
        m_arrived.release();
        m_opened.acquire();
    }

    void waitForArrival() { m_arrived.acquire(); }
    void open(int times = 1) { m_opened.release(times); }

private:
    QSemaphore m_arrived;
    QSemaphore m_opened;
};

constexpr int kAlways = 1000;

/// Has media read by a program that misbehaves in the manner that it is called by, as long as it
/// lives.
class StubbedReader
{
public:
    StubbedReader(const QString& manner, std::chrono::milliseconds deadline)
    {
        MediaReading reading;
        reading.program = m_folder.filePath(manner);
        reading.deadline = deadline;
        QFile::link(QStringLiteral(STUB_READER), reading.program);
        setMediaReading(reading);
    }
    ~StubbedReader() { setMediaReading({}); }
    Q_DISABLE_COPY(StubbedReader)

private:
    QTemporaryDir m_folder;
};

} // namespace

/// The search for files that comes before the first of them is imported, and its end by a cancel.
class tst_EditorImportCancel : public QObject
{
    Q_OBJECT

private slots:
    void theSearchIsToldStepByStep();
    void cancellingTheSearchTakesNothingIn();
    void cancellingTooLateTakesNothingIn();
    void anImportAfterACancelIsWhole();
    void aFileWithoutAnEndIsCancelledAtOnce();
    void aFileWithoutAnEndIsRefusedAndTheImportGoesOn();

private:
    /// A tree with four files in three folders below the first.
    static QString makeTree(const HostFixture& fixture)
    {
        const QDir tree(fixture.folder.filePath(QStringLiteral("tree")));
        const QString picture = QStringLiteral(DEMONSTRATION "/media/Lunch menu.png");
        for (const char* folder : {"a/deep", "b"}) {
            tree.mkpath(QLatin1String(folder));
        }
        for (const char* file : {"one.png", "a/two.png", "a/deep/three.png", "b/four.png"}) {
            QFile::copy(picture, tree.filePath(QLatin1String(file)));
        }
        return tree.path();
    }

    static QProgressDialog* progressOf(const EditorWindow& window)
    {
        return window.findChild<QProgressDialog*>(QStringLiteral("importProgress"));
    }

    static void cancel(const EditorWindow& window)
    {
        QTest::mouseClick(progressOf(window)->findChild<QPushButton*>(), Qt::LeftButton);
    }
};

void tst_EditorImportCancel::theSearchIsToldStepByStep()
{
    Gate gate;
    HostFixture fixture;
    const auto openAtEnd = qScopeGuard([&gate] { gate.open(kAlways); });
    fixture.window.openDatabase(fixture.database);
    const JobCatcher catcher(fixture.window, [&gate](ImportJob& job) {
        connect(
            &job, &ImportJob::searched, &job, [&gate] { gate.pass(); }, Qt::DirectConnection);
    });
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());

    fixture.window.importMedia({makeTree(fixture)});
    QProgressDialog* progress = progressOf(fixture.window);
    QVERIFY(progress != nullptr);
    QString atEnd;
    connect(&fixture.window, &EditorWindow::importEnded, progress, [&atEnd, progress] {
        atEnd = QStringLiteral("%1, %2 of %3")
                    .arg(progress->labelText())
                    .arg(progress->value())
                    .arg(progress->maximum());
    });
    QStringList told;
    // The folder itself, its seven entries, and the three folders among them once more.
    for (int step = 0; step < 1 + 7 + 3; ++step) {
        gate.waitForArrival();
        QCoreApplication::processEvents();
        QCOMPARE(progress->maximum(), 0);
        told.append(progress->labelText());
        gate.open();
    }

    told.removeDuplicates();
    QCOMPARE(told, (QStringList{QStringLiteral("Looking for files: 0 found"),
                                QStringLiteral("Looking for files: 1 found"),
                                QStringLiteral("Looking for files: 2 found"),
                                QStringLiteral("Looking for files: 3 found")}));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    QCOMPARE(atEnd, QStringLiteral("one.png, 3 of 4"));
    QCOMPARE(fixture.manager.getPrograms().size(), std::size_t(4));
}

void tst_EditorImportCancel::cancellingTheSearchTakesNothingIn()
{
    Gate gate;
    std::atomic<int> told{0};
    std::atomic<int> read{0};
    HostFixture fixture;
    const auto openAtEnd = qScopeGuard([&gate] { gate.open(kAlways); });
    const PromptAnswer nothing;
    fixture.window.openDatabase(fixture.database);
    const JobCatcher catcher(fixture.window, [&](ImportJob& job) {
        const auto search = [&gate, &told] {
            ++told;
            gate.pass();
        };
        connect(&job, &ImportJob::searched, &job, search, Qt::DirectConnection);
        connect(
            &job, &ImportJob::progressed, &job, [&read] { ++read; }, Qt::DirectConnection);
    });
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());

    fixture.window.importMedia({makeTree(fixture)});
    const QPointer<QProgressDialog> progress = progressOf(fixture.window);
    QVERIFY(progress != nullptr);
    gate.waitForArrival();
    QTRY_VERIFY(progress->isVisible());
    QCOMPARE(progress->findChild<QLabel*>()->text(), QStringLiteral("Looking for files: 0 found"));
    cancel(fixture.window);
    QVERIFY(!progress->isVisible());
    QCOMPARE(ended.count(), 0);
    gate.open(kAlways);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);

    // It ends where it is, with many entries before it.
    QCOMPARE(told.load(), 1);
    QCOMPARE(read.load(), 0);
    QVERIFY(fixture.manager.getPrograms().empty());
    QCOMPARE(fixture.window.statusBar()->currentMessage(),
             QStringLiteral("The import was canceled; nothing was imported."));
    QTRY_VERIFY(progress.isNull());
}

void tst_EditorImportCancel::cancellingTooLateTakesNothingIn()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    bool isLate = false;
    const JobCatcher catcher(fixture.window, [&](ImportJob& job) {
        connect(&job, &ImportJob::finished, &fixture.window, [&] {
            isLate = !job.scan().cancelled && job.scan().sources.size() == 4;
            cancel(fixture.window);
        });
    });
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());

    fixture.window.importMedia({makeTree(fixture)});
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);

    QVERIFY(isLate);
    QVERIFY(fixture.manager.getPrograms().empty());
    QCOMPARE(fixture.window.statusBar()->currentMessage(),
             QStringLiteral("The import was canceled; nothing was imported."));
}

void tst_EditorImportCancel::anImportAfterACancelIsWhole()
{
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    const QString tree = makeTree(fixture);
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());

    fixture.window.importMedia({tree});
    cancel(fixture.window);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    QVERIFY(fixture.manager.getPrograms().empty());
    fixture.window.importMedia({tree});
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 60000);

    QCOMPARE(fixture.manager.getPrograms().size(), std::size_t(4));
    QCOMPARE(fixture.window.statusBar()->currentMessage(),
             QStringLiteral("Imported: 4 new, 0 updated."));
}

void tst_EditorImportCancel::aFileWithoutAnEndIsCancelledAtOnce()
{
    const StubbedReader stub(QStringLiteral("stuck"), std::chrono::seconds(10));
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());
    fixture.window.importMedia({makeTree(fixture)});
    QTRY_VERIFY(!childProcesses().isEmpty());
    QTRY_VERIFY(progressOf(fixture.window)->isVisible());
    QElapsedTimer time;
    time.start();

    cancel(fixture.window);
    QVERIFY(ended.count() == 1 || ended.wait(5000));

    QVERIFY2(time.elapsed() < 200, qPrintable(QString::number(time.elapsed())));
    QVERIFY(fixture.manager.getPrograms().empty());
    QTRY_VERIFY(childProcesses().isEmpty());
}

void tst_EditorImportCancel::aFileWithoutAnEndIsRefusedAndTheImportGoesOn()
{
    const StubbedReader stub(QStringLiteral("stuck"), std::chrono::milliseconds(200));
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    PromptAnswer answer(1);
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());

    fixture.window.importMedia({makeTree(fixture)});
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);

    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.texts().at(0).count(QStringLiteral(".png: It could not be read in time.")), 4);
}

TREL_TEST(tst_EditorImportCancel, QApplication)
#include "tst_EditorImportCancel.moc"
