#include "HostFixture.h"
#include "support/MediaLibraries.h"
#include "trelprogramschedule/ProgramImporter.h"
#include "trelprogramschedule/ScheduleJson.h"

#include <QDir>

using namespace trel::mediadispatch;

/// What a start leaves undone until somebody asks for it.
class tst_EditorStart : public QObject
{
    Q_OBJECT

private slots:
    void mediaLibrariesAwaitTheFirstFile();

private:
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
    QCOMPARE(schedule.error, QString());
    QVERIFY(fixture.host.replaceSchedule(schedule.tasks));
    fixture.host.close();
}

void tst_EditorStart::mediaLibrariesAwaitTheFirstFile()
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

    QVERIFY(hasMediaLibraries());
}

QTEST_MAIN(tst_EditorStart)
#include "tst_EditorStart.moc"
