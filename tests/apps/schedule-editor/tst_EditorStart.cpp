#include "HostFixture.h"
#include "screen/NowNextPanel.h"
#include "screen/ProgramPicture.h"
#include "support/MediaLibraries.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QProcess>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What a start leaves undone until somebody asks for it.
class tst_EditorStart : public QObject
{
    Q_OBJECT

private slots:
    void mediaLibrariesStayOutside();
    void theWindowIsPaintedWhenItsPartsAreInTheirPlaces();
    void aPanelTakenOutMeanwhileIsPaintedToo();
    void theProgramLoadsNoLibraryThatItDoesNotNeed();
    void anUnknownZoneIsAnError();

private:
    /// Counts how often a widget is painted.
    class PaintCounter : public QObject
    {
    public:
        explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

        bool eventFilter(QObject* watched, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }

        int count = 0;
    };

    /// The demonstration, stored without a look at its media.
    static void store(HostFixture& fixture);
};

void tst_EditorStart::store(HostFixture& fixture)
{
    QVERIFY(fixture.host.open(fixture.database));
    std::vector<MediaSource> sources;
    const QString folder = fixture.copyMedia(QStringLiteral("media"));
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        sources.push_back({name, QDir(folder).filePath(name), 10000.0, ProgramKind::Video});
    }
    QVERIFY(fixture.host.addPrograms(sources).store);
    QFile file(QStringLiteral(DEMONSTRATION "/schedule.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const ScheduleFromJson schedule = scheduleFromJson(file.readAll());
    QCOMPARE(englishText(schedule), QString());
    QVERIFY(fixture.host.replaceSchedule(schedule.tasks));
    fixture.host.close();
}

void tst_EditorStart::mediaLibrariesStayOutside()
{
    HostFixture fixture;
    store(fixture);
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    fixture.window.show();
    fixture.showEditor();
    QVERIFY(QTest::qWaitForWindowExposed(fixture.editor.get()));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.manager.getPrograms().size(), std::size_t(8));
    QVERIFY(!hasMediaLibraries());

    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());
    fixture.window.importMedia({fixture.folder.filePath(QStringLiteral("media"))});
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 60000);
    const std::atomic<bool> goOn{false};
    const QString film = fixture.folder.filePath(QStringLiteral("media/Opening.mp4"));
    QVERIFY(!programPicture(film, ProgramKind::Video, QSize(160, 160), goOn).isNull());

    QVERIFY(!hasMediaLibraries());
}

void tst_EditorStart::theWindowIsPaintedWhenItsPartsAreInTheirPlaces()
{
    HostFixture fixture;
    store(fixture);
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    PaintCounter paints(fixture.window);

    fixture.window.show();
    fixture.showEditor();
    QTRY_VERIFY(fixture.window.updatesEnabled());
    QVERIFY(QTest::qWaitForWindowExposed(fixture.editor.get()));

    // The toolkit paints the lines between the panels once more when it has moved them.
    QVERIFY2(paints.count >= 1 && paints.count <= 2, qPrintable(QString::number(paints.count)));
}

void tst_EditorStart::aPanelTakenOutMeanwhileIsPaintedToo()
{
    HostFixture fixture;
    auto* panel = fixture.window.findChild<QDockWidget*>(QStringLiteral("nowNextDock"));
    QVERIFY(panel != nullptr);
    PaintCounter paints(*panel->findChild<NowNextPanel*>());

    fixture.window.show();
    panel->setFloating(true);

    QTRY_VERIFY(paints.count > 0);
    QVERIFY(panel->updatesEnabled());
}

void tst_EditorStart::theProgramLoadsNoLibraryThatItDoesNotNeed()
{
    const QTemporaryDir folder;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The linker names each file that it opens, for every library.
    environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
    environment.insert(QStringLiteral("LD_DEBUG_OUTPUT"), folder.filePath(QStringLiteral("files")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EDITOR),
                  {QStringLiteral("--database"), folder.filePath(QStringLiteral("new.db")),
                   QStringLiteral("--screenshot"), folder.filePath(QStringLiteral("new.png"))});
    QVERIFY(process.waitForStarted());
    // Each process writes a file of its own: under the sanitizers the program starts another one,
    // which names the places of leaks.
    QFile list(folder.filePath(QStringLiteral("files.%1").arg(process.processId())));
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(list.open(QIODevice::ReadOnly));
    const QByteArray files = list.readAll();
    QVERIFY(files.contains("libQt5Sql"));
    for (const char* name : {"libav", "libsw", "media-reader", "libqsvgicon"}) {
        QVERIFY2(!files.contains(name), name);
    }
}

void tst_EditorStart::anUnknownZoneIsAnError()
{
    const QTemporaryDir folder;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TZ"), QStringLiteral("Nowhere/Land"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EDITOR),
                  {QStringLiteral("--language"), QStringLiteral("en_US"),
                   QStringLiteral("--database"), folder.filePath(QStringLiteral("new.db"))});
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitCode(), 1);
    const QString said = QString::fromUtf8(process.readAllStandardError());
    QVERIFY2(said.endsWith(
                 QStringLiteral("The system knows no time zone of the name “Nowhere/Land”, so that "
                                "the local time is not known.\n")),
             qPrintable(said));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("new.db"))));
}

TREL_TEST(tst_EditorStart, QApplication)
#include "tst_EditorStart.moc"
