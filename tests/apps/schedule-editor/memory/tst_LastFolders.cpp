#include "../FileDialogAnswer.h"
#include "../HostFixture.h"
#include "EditorMenus.h"
#include "memory/LastFolders.h"
#include "memory/RememberedWindow.h"
#include "support/PlatformNotes.h"
#include "support/TestProgram.h"

#include <QAction>
#include <QApplication>
#include <QSettings>

using namespace trel::desktop;

namespace {

/// The window of a start of the program, with the settings of the folder.
struct Start : HostFixture
{
    explicit Start(const QString& file)
        : settings(file, QSettings::IniFormat)
    {
        window.openDatabase(database);
        new RememberedWindow(settings, window);
        window.show();
        QCoreApplication::processEvents();
    }

    EditorMenus& menus() const { return *window.findChild<EditorMenus*>(); }
    /// Where the dialog of an entry begins; it is given up.
    QString beginOf(QAction& entry) const
    {
        QString begin;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                timer.stop();
                begin = dialog->directory().canonicalPath();
                dialog->reject();
            }
        });
        timer.start(10);
        entry.trigger();
        return begin;
    }
    QString make(const char* name) const
    {
        const QDir folder(this->folder.path());
        folder.mkpath(QLatin1String(name));
        return QFileInfo(folder.filePath(QLatin1String(name))).canonicalFilePath();
    }

    QSettings settings;
    NoPlatformNotes quiet;
};

} // namespace

/// A file dialog begins where the last one of its kind ended.
class tst_LastFolders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void eachKindHasItsOwn();
    void isThereAtTheNextStart();
    void staysWhileItsDriveIsAway();
    void whatHasGoneIsNoPlace();
    void takesNoPathThatIsNone();
};

void tst_LastFolders::eachKindHasItsOwn()
{
    const QTemporaryDir settings;
    const Start start(settings.filePath(QStringLiteral("settings.ini")));
    const QString schedules = start.make("schedules");
    const QString media = start.make("media");
    answerFileDialog(schedules + QStringLiteral("/week.json"));
    start.menus().exportSchedule()->trigger();
    QVERIFY(QFileInfo::exists(schedules + QStringLiteral("/week.json")));
    answerFileDialog(media);
    start.menus().importFolder()->trigger();

    QCOMPARE(start.beginOf(*start.menus().importSchedule()), schedules);
    QCOMPARE(start.beginOf(*start.menus().exportSchedule()), schedules);
    QCOMPARE(start.beginOf(*start.menus().importFiles()), media);
    QCOMPARE(start.beginOf(*start.menus().importFolder()), media);
    // Of the databases, none was chosen; they begin beside the one that is open.
    QCOMPARE(start.beginOf(*start.menus().openDatabase()),
             QFileInfo(start.folder.path()).canonicalFilePath());
}

void tst_LastFolders::isThereAtTheNextStart()
{
    const QTemporaryDir settings;
    const QString file = settings.filePath(QStringLiteral("settings.ini"));
    const QTemporaryDir kept;
    const QString folder = QFileInfo(kept.path()).canonicalFilePath();
    {
        Start start(file);
        answerFileDialog(folder + QStringLiteral("/other.db"));
        start.menus().newDatabase()->trigger();
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/other.db")));
        QVERIFY(start.window.close());
    }
    const Start next(file);
    QCOMPARE(next.beginOf(*next.menus().newDatabase()), folder);
    QCOMPARE(next.beginOf(*next.menus().openDatabase()), folder);
}

void tst_LastFolders::staysWhileItsDriveIsAway()
{
    const QTemporaryDir settings;
    const QString file = settings.filePath(QStringLiteral("settings.ini"));
    const QTemporaryDir kept;
    const QString folder = QFileInfo(kept.path()).canonicalFilePath() + QStringLiteral("/a/b");
    QVERIFY(QDir().mkpath(folder));
    {
        Start start(file);
        answerFileDialog(folder + QStringLiteral("/week.json"));
        start.menus().exportSchedule()->trigger();
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/week.json")));
        QVERIFY(start.window.close());
    }
    QVERIFY(QDir(folder).removeRecursively());
    for (int i = 0; i < 2; ++i) {
        Start without(file);
        const QString begin = without.beginOf(*without.menus().importSchedule());
        QVERIFY2(!begin.startsWith(kept.path()), qPrintable(begin));
        QVERIFY(without.window.close());
    }
    QVERIFY(QDir().mkpath(folder));
    const Start next(file);
    QCOMPARE(next.beginOf(*next.menus().importSchedule()), folder);
}

void tst_LastFolders::whatHasGoneIsNoPlace()
{
    QWidget window;
    LastFolders folders(window);
    QCOMPARE(LastFolders::of(&window), &folders);
    QString gone;
    {
        const QTemporaryDir folder;
        gone = folder.path();
        folders.remember(QStringLiteral("json"), gone + QStringLiteral("/week.json"));
        QCOMPARE(folders.folder(QStringLiteral("json")), gone);
    }
    QCOMPARE(folders.folder(QStringLiteral("json")), QString());
    QCOMPARE(folders.folder(QStringLiteral("db")), QString());
}

void tst_LastFolders::takesNoPathThatIsNone()
{
    QWidget window;
    LastFolders folders(window);
    folders.remember(QStringLiteral("json"), QStringLiteral("week.json"));
    folders.remember(QStringLiteral("json"), QString());
    folders.remember(QStringLiteral("json"), QLatin1Char('/') + QString(5000, QLatin1Char('x')));
    folders.restore(QStringLiteral("json"), QStringLiteral("weeks"));
    folders.restore(QStringLiteral("json"), QLatin1Char('/') + QString(5000, QLatin1Char('x')));
    QVERIFY(folders.all().isEmpty());
    // One that was remembered is not looked at before it is asked for.
    folders.restore(QStringLiteral("json"), QStringLiteral("/no/such/folder"));
    QCOMPARE(folders.all().value(QStringLiteral("json")), QStringLiteral("/no/such/folder"));
    QCOMPARE(folders.folder(QStringLiteral("json")), QString());
    QWidget other;
    QVERIFY(LastFolders::of(&other) == nullptr);
}

TREL_TEST(tst_LastFolders, QApplication)
#include "tst_LastFolders.moc"
