#include "FileSystemWatcher.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using trel::mediadispatch::FileSystemWatcher;

class tst_FileSystemWatcher : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void saysWhatItAdds();
    void tellsARename();
    void tellsARenameOfADirectory();
    void takesNamesWithPlaceMarksAsTheyAre();
    void tellsAnAddition();
    void tellsSeveralAdditionsInOneLine();
    void tellsADeletion();
    void saysNothingOfAMixedChange_data();
    void saysNothingOfAMixedChange();
    void comparesWithTheLastReading();
    void overlooksHiddenEntries();
    void aDirectoryThatGoesHasLostItsEntries();
    void aDirectoryEmitsNoSignal();
    void aFileEmitsItsSignal();
    void everyFurtherCallBringsEveryChangeOnceMore();
    void aFurtherCallReadsTheDirectoryAfresh();
    void anUnknownDirectoryCountsAsEmpty();
    void ignoresWhatItCannotWatch_data();
    void ignoresWhatItCannotWatch();
    void leavesTheWatcherToItsParent();

private:
    QString path(const char* name) const { return m_dir->filePath(QLatin1String(name)); }
    void write(const char* name, const char* text = "x") const;
    QString updated() const { return QStringLiteral("Directory updated: ") + m_dir->path(); }
    QFileSystemWatcher* inner() const { return m_owner->findChild<QFileSystemWatcher*>(); }
    /// Starts watching the directory, with a clean log.
    void watchDirectory();
    /// The lines since the last call, once there are some; the directory's path as "DIR".
    QStringList lines();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QObject> m_owner;
    std::unique_ptr<MessageLog> m_log;
    FileSystemWatcher* m_watcher = nullptr;
};

void tst_FileSystemWatcher::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_owner = std::make_unique<QObject>();
    m_watcher = new FileSystemWatcher(m_owner.get());
    m_log = std::make_unique<MessageLog>();
}

void tst_FileSystemWatcher::cleanup()
{
    m_owner.reset();
    const QStringList warnings = m_log->warnings();
    m_log.reset();
    QCOMPARE(warnings, QStringList());
}

void tst_FileSystemWatcher::write(const char* name, const char* text) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append));
    file.write(text);
}

void tst_FileSystemWatcher::watchDirectory()
{
    m_watcher->addWatchPath(m_dir->path());
    QVERIFY(inner()->directories().contains(m_dir->path()));
    m_log->clear();
}

QStringList tst_FileSystemWatcher::lines()
{
    [this] { QTRY_VERIFY(!m_log->messages().empty()); }();
    QStringList texts = m_log->texts();
    m_log->clear();
    texts.replaceInStrings(m_dir->path(), QStringLiteral("DIR"));
    return texts;
}

void tst_FileSystemWatcher::saysWhatItAdds()
{
    m_watcher->addWatchPath(m_dir->path());
    QCOMPARE(m_log->messages().size(), std::size_t(1));
    const MessageLog::Message& line = m_log->messages().front();
    QCOMPARE(line.text, QStringLiteral("Add to watch: ") + m_dir->path());
    QCOMPARE(line.type, QtDebugMsg);
    QVERIFY2(line.file.endsWith(QLatin1String("FileSystemWatcher.cpp")), qPrintable(line.file));
    QVERIFY(line.line > 0);
    QVERIFY2(line.function.contains(QLatin1String("addWatchPath")), qPrintable(line.function));
}

void tst_FileSystemWatcher::tellsARename()
{
    write("old.mp4");
    write("other.mp4");
    watchDirectory();
    QVERIFY(QFile::rename(path("old.mp4"), path("new.mp4")));
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("File Renamed from old.mp4 to new.mp4")}));
}

void tst_FileSystemWatcher::tellsARenameOfADirectory()
{
    QVERIFY(QDir().mkdir(path("spring")));
    watchDirectory();
    QVERIFY(QDir().rename(path("spring"), path("summer")));
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("File Renamed from spring to summer")}));
}

void tst_FileSystemWatcher::takesNamesWithPlaceMarksAsTheyAre()
{
    write("%2 \"a\".mp4");
    watchDirectory();
    QVERIFY(QFile::rename(path("%2 \"a\".mp4"), path("%1.mp4")));
    QCOMPARE(lines().last(), QStringLiteral("File Renamed from %2 \"a\".mp4 to %1.mp4"));
}

void tst_FileSystemWatcher::tellsAnAddition()
{
    write("one.mp4");
    watchDirectory();
    write("two.mp4");
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("New Files/Dirs added: (\"two.mp4\")")}));
}

void tst_FileSystemWatcher::tellsSeveralAdditionsInOneLine()
{
    watchDirectory();
    write("two.mp4");
    QVERIFY(QDir().mkdir(path("spring")));
    const QStringList told = lines();
    QCOMPARE(told.size(), 2);
    // The names come from a set, in no order to rely on.
    const QStringList either{QStringLiteral("New Files/Dirs added: (\"two.mp4\", \"spring\")"),
                             QStringLiteral("New Files/Dirs added: (\"spring\", \"two.mp4\")")};
    QVERIFY2(either.contains(told.last()), qPrintable(told.last()));
}

void tst_FileSystemWatcher::tellsADeletion()
{
    write("one.mp4");
    write("two.mp4");
    watchDirectory();
    QVERIFY(QFile::remove(path("one.mp4")));
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("Files/Dirs deleted: (\"one.mp4\")")}));
}

void tst_FileSystemWatcher::saysNothingOfAMixedChange_data()
{
    QTest::addColumn<int>("added");
    QTest::addColumn<int>("removed");
    QTest::newRow("two added, one removed") << 2 << 1;
    QTest::newRow("one added, two removed") << 1 << 2;
    QTest::newRow("two of each") << 2 << 2;
}

void tst_FileSystemWatcher::saysNothingOfAMixedChange()
{
    QFETCH(const int, added);
    QFETCH(const int, removed);
    write("gone0");
    write("gone1");
    watchDirectory();
    for (int i = 0; i < removed; ++i)
        QVERIFY(QFile::remove(m_dir->filePath(QStringLiteral("gone%1").arg(i))));
    for (int i = 0; i < added; ++i)
        write(qPrintable(QStringLiteral("come%1").arg(i)));
    QCOMPARE(lines(), QStringList(QStringLiteral("Directory updated: DIR")));

    // The list has moved on all the same.
    write("last.mp4");
    QCOMPARE(lines().last(), QStringLiteral("New Files/Dirs added: (\"last.mp4\")"));
}

void tst_FileSystemWatcher::comparesWithTheLastReading()
{
    watchDirectory();
    write("one.mp4");
    QCOMPARE(lines().last(), QStringLiteral("New Files/Dirs added: (\"one.mp4\")"));
    write("two.mp4");
    QCOMPARE(lines().last(), QStringLiteral("New Files/Dirs added: (\"two.mp4\")"));
    QVERIFY(QFile::rename(path("one.mp4"), path("three.mp4")));
    QCOMPARE(lines().last(), QStringLiteral("File Renamed from one.mp4 to three.mp4"));
    QVERIFY(QFile::remove(path("two.mp4")));
    QCOMPARE(lines().last(), QStringLiteral("Files/Dirs deleted: (\"two.mp4\")"));
}

void tst_FileSystemWatcher::overlooksHiddenEntries()
{
    watchDirectory();
    write(".hidden");
    QCOMPARE(lines(), QStringList(QStringLiteral("Directory updated: DIR")));
}

void tst_FileSystemWatcher::aDirectoryThatGoesHasLostItsEntries()
{
    write("one.mp4");
    watchDirectory();
    QVERIFY(m_dir->remove());
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("Files/Dirs deleted: (\"one.mp4\")")}));
}

void tst_FileSystemWatcher::aDirectoryEmitsNoSignal()
{
    QSignalSpy changed(m_watcher, &FileSystemWatcher::signalFileChange);
    QVERIFY(changed.isValid());
    watchDirectory();
    write("one.mp4");
    lines();
    QVERIFY(QFile::rename(path("one.mp4"), path("two.mp4")));
    lines();
    QCOMPARE(changed.count(), 0);
}

void tst_FileSystemWatcher::aFileEmitsItsSignal()
{
    write("a list.txt");
    m_watcher->addWatchPath(path("a list.txt"));
    m_log->clear();
    QStringList whenTold;
    connect(m_watcher, &FileSystemWatcher::signalFileChange, this,
            [&] { whenTold = m_log->texts(); });
    QSignalSpy changed(m_watcher, &FileSystemWatcher::signalFileChange);
    QVERIFY(changed.isValid());

    write("a list.txt");
    QTRY_COMPARE(changed.count(), 1);
    const QStringList expected(QStringLiteral("The file a list.txt at path DIR is updated"));
    QCOMPARE(whenTold.size(), 1);
    QCOMPARE(lines(), expected);
}

void tst_FileSystemWatcher::everyFurtherCallBringsEveryChangeOnceMore()
{
    write("list.txt");
    m_watcher->addWatchPath(path("list.txt"));
    m_watcher->addWatchPath(path("list.txt"));
    m_log->clear();
    QSignalSpy arrived(inner(), &QFileSystemWatcher::fileChanged);
    QSignalSpy changed(m_watcher, &FileSystemWatcher::signalFileChange);
    QVERIFY(arrived.isValid() && changed.isValid());
    write("list.txt");
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(arrived.count(), 1);
    lines();

    // A third call, for something else, counts for the file too; and the directory's change
    // arrives three times, of which the first finds something new.
    watchDirectory();
    write("list.txt");
    QTRY_COMPARE(changed.count(), 5);
    lines();
    write("other.txt");
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("New Files/Dirs added: (\"other.txt\")"),
                                   QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("Directory updated: DIR")}));
}

void tst_FileSystemWatcher::aFurtherCallReadsTheDirectoryAfresh()
{
    watchDirectory();
    write("one.mp4");
    m_watcher->addWatchPath(m_dir->path());
    m_log->clear();
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("Directory updated: DIR")}));
}

void tst_FileSystemWatcher::anUnknownDirectoryCountsAsEmpty()
{
    write("one.mp4");
    m_watcher->directoryUpdated(m_dir->path());
    QCOMPARE(lines(), QStringList({QStringLiteral("Directory updated: DIR"),
                                   QStringLiteral("New Files/Dirs added: (\"one.mp4\")")}));
    m_watcher->directoryUpdated(m_dir->path());
    QCOMPARE(lines(), QStringList(QStringLiteral("Directory updated: DIR")));
}

void tst_FileSystemWatcher::ignoresWhatItCannotWatch_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QDir::temp().filePath(QStringLiteral("no such directory/at all"));
    QTest::newRow("empty") << QString();
}

void tst_FileSystemWatcher::ignoresWhatItCannotWatch()
{
    QFETCH(const QString, path);
    m_watcher->addWatchPath(path);
    QCOMPARE(m_log->texts(), QStringList(QStringLiteral("Add to watch: ") + path));
    QCOMPARE(inner()->files() + inner()->directories(), QStringList());
}

void tst_FileSystemWatcher::leavesTheWatcherToItsParent()
{
    watchDirectory();
    QPointer<QFileSystemWatcher> toolkits = inner();
    QCOMPARE(toolkits->parent(), m_owner.get());
    QSignalSpy arrived(toolkits, &QFileSystemWatcher::directoryChanged);
    QVERIFY(arrived.isValid());
    delete m_watcher;
    QVERIFY(toolkits);
    write("one.mp4");
    QTRY_COMPARE(arrived.count(), 1);
    QCOMPARE(m_log->texts(), QStringList());
    m_owner.reset();
    QVERIFY(!toolkits);
    m_owner = std::make_unique<QObject>();
}

TREL_TEST(tst_FileSystemWatcher, QCoreApplication)

#include "tst_FileSystemWatcher.moc"
