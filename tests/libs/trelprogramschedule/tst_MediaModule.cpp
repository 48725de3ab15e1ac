#include "media/MediaModule.h"

#include "catalogue/ProgramImporter.h"
#include "support/MediaLibraries.h"
#include "support/MessageLog.h"

#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <vector>

using namespace trel::mediadispatch;

/// The module for media files: when it is loaded, and what becomes of everything without it.
class tst_MediaModule : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsLoadedBeforeAFileIsLookedAt();
    void theFirstFileLoadsIt();
    void aMissingOneIsNamedWithItsPlaces();
    void theFirstPlaceThatExistsIsTaken();
    void aBrokenOneIsNamed_data();
    void aBrokenOneIsNamed();
    void aFailureIsLoggedOnce();
    void oneThatComesIsTaken();
    void allThreadsGetOneReader();
    void aProgramFindsItInItsTree();
    void withoutItOtherWorkGoesOn();
    void withABrokenOneOtherWorkGoesOn();

private:
    static QString film() { return QStringLiteral(DEMONSTRATION "/media/Opening.mp4"); }
    static QString address() { return QStringLiteral("udp://@239.0.0.1:1234"); }
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& content) const;
    /// A copy of the child in a tree of its own, and the file in which it looks for the module.
    struct Tree
    {
        explicit Tree(const QString& root);
        QStringList run(const QStringList& paths) const;

        QString module;
        QString program;
    };

    const QTemporaryDir m_folder;
};

QString tst_MediaModule::write(const char* name, const QByteArray& content) const
{
    QFile target(file(name));
    target.open(QIODevice::WriteOnly);
    target.write(content);
    return target.fileName();
}

tst_MediaModule::Tree::Tree(const QString& root)
    : module(root + QStringLiteral("/lib/trelprogramschedulewidgets/trelmedia.so"))
    , program(root + QStringLiteral("/bin/media_child"))
{
    QDir().mkpath(root + QStringLiteral("/bin"));
    QDir().mkpath(root + QStringLiteral("/lib/trelprogramschedulewidgets"));
    QFile::copy(QStringLiteral(MEDIA_CHILD), program);
}

QStringList tst_MediaModule::Tree::run(const QStringList& paths) const
{
    QProcess process;
    process.start(program, paths);
    process.waitForFinished(120000);
    const bool isWell = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isWell ? QString::fromUtf8(process.readAllStandardOutput())
                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                  : QStringList{QString::fromUtf8(process.readAllStandardError())};
}

void tst_MediaModule::nothingIsLoadedBeforeAFileIsLookedAt()
{
    const ImportScan scan = scanMedia({address(), file("gone.mp4")});

    QCOMPARE(scan.sources.size(), std::size_t(1));
    QCOMPARE(scan.refusals.size(), std::size_t(1));
    QVERIFY(!hasMediaLibraries());
}

void tst_MediaModule::theFirstFileLoadsIt()
{
    const ImportScan scan = scanMedia({film()});

    QCOMPARE(scan.sources.size(), std::size_t(1));
    QCOMPARE(scan.sources.front().durationMs, 12000.0);
    QVERIFY(hasMediaLibraries());
}

void tst_MediaModule::aMissingOneIsNamedWithItsPlaces()
{
    const MessageLog log;
    MediaModule module({file("a/trelmedia.so"), file("b/trelmedia.so")});

    const MediaModule::Opened opened = module.open();

    QVERIFY(opened.reader == nullptr);
    QCOMPARE(opened.problem,
             QStringLiteral("Media cannot be read, for a file of this program is missing: ") +
                 file("a/trelmedia.so") + QStringLiteral(", ") + file("b/trelmedia.so"));
}

void tst_MediaModule::theFirstPlaceThatExistsIsTaken()
{
    MediaModule module({file("a/trelmedia.so"), QStringLiteral(MODULE), file("b/trelmedia.so")});

    const MediaModule::Opened opened = module.open();

    QVERIFY(opened.reader != nullptr);
    QCOMPARE(opened.problem, QString());
    QCOMPARE(opened.reader->facts(film(), true).durationMs, 12000.0);
}

void tst_MediaModule::aBrokenOneIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");

    const QString unloadable =
        QStringLiteral("Media cannot be read, for a file of this program cannot be loaded: %1: ");
    const QString text = write("text.so", "Dear friend");
    QTest::newRow("text") << text << unloadable.arg(text);
    QFile module(QStringLiteral(MODULE));
    module.open(QIODevice::ReadOnly);
    const QString half = write("half.so", module.read(module.size() / 2));
    QTest::newRow("half a module") << half << unloadable.arg(half);
    const QString empty = write("empty.so", {});
    QTest::newRow("empty") << empty << unloadable.arg(empty);
    const QString library = QStringLiteral(LIBRARY);
    QTest::newRow("a library") << library << unloadable.arg(library);
    const QString driver = QLibraryInfo::location(QLibraryInfo::PluginsPath) +
                           QStringLiteral("/sqldrivers/libqsqlite.so");
    QTest::newRow("another module")
        << driver
        << QStringLiteral("Media cannot be read, for a file of this program is of another version: "
                          "%1")
               .arg(driver);
}

void tst_MediaModule::aBrokenOneIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QString, problem);
    const MessageLog log;
    MediaModule module({path});

    const MediaModule::Opened opened = module.open();

    QVERIFY(opened.reader == nullptr);
    QVERIFY2(opened.problem.startsWith(problem), qPrintable(opened.problem));
    // What the loader found wrong stands behind the path.
    QVERIFY(!problem.endsWith(QLatin1Char(' ')) || opened.problem.size() > problem.size());
}

void tst_MediaModule::aFailureIsLoggedOnce()
{
    const MessageLog log;
    MediaModule module({file("a/trelmedia.so")});

    const QString problem = module.open().problem;
    module.open();

    QCOMPARE(log.texts(), QStringList{problem});
}

void tst_MediaModule::oneThatComesIsTaken()
{
    const MessageLog log;
    const QString late = file("late.so");
    MediaModule module({late});
    QVERIFY(module.open().reader == nullptr);
    QVERIFY(QFile::copy(QStringLiteral(MODULE), late));

    QVERIFY(module.open().reader != nullptr);
    // What is open stays so, whatever becomes of the file.
    QVERIFY(QFile::remove(late));
    QVERIFY(module.open().reader != nullptr);
}

void tst_MediaModule::allThreadsGetOneReader()
{
    MediaModule module({QStringLiteral(MODULE)});
    std::vector<const MediaReader*> readers(8, nullptr);
    std::vector<double> lengths(readers.size(), 0.0);
    std::vector<std::unique_ptr<QThread>> threads;
    for (std::size_t i = 0; i < readers.size(); ++i) {
        threads.emplace_back(QThread::create([&, i] {
            readers[i] = module.open().reader;
            lengths[i] = readers[i]->facts(film(), true).durationMs;
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads) {
        QVERIFY(thread->wait());
    }

    QVERIFY(readers.front() != nullptr);
    QCOMPARE(readers, std::vector<const MediaReader*>(readers.size(), readers.front()));
    QCOMPARE(lengths, std::vector<double>(readers.size(), 12000.0));
}

void tst_MediaModule::aProgramFindsItInItsTree()
{
    const Tree tree(file("whole"));
    QVERIFY(QFile::copy(QStringLiteral(MODULE), tree.module));

    QCOMPARE(tree.run({film()}), (QStringList{QStringLiteral("source %1 12000").arg(film()),
                                              QStringLiteral("picture 160x90")}));
}

void tst_MediaModule::withoutItOtherWorkGoesOn()
{
    const Tree tree(file("missing"));
    const QString problem =
        QStringLiteral("Media cannot be read, for a file of this program is missing: "
                       "%1/missing/bin/trelprogramschedulewidgets/trelmedia.so, "
                       "%1/missing/lib/trelprogramschedulewidgets/trelmedia.so");

    QCOMPARE(tree.run({address(), film()}),
             (QStringList{QStringLiteral("source %1 0").arg(address()),
                          QStringLiteral("refusal %1: %2")
                              .arg(film(), problem.arg(QDir(m_folder.path()).canonicalPath())),
                          QStringLiteral("picture -1x-1"), QStringLiteral("picture -1x-1")}));
}

void tst_MediaModule::withABrokenOneOtherWorkGoesOn()
{
    const Tree tree(file("broken"));
    QVERIFY(QFile::copy(write("junk", "no module"), tree.module));

    const QStringList lines = tree.run({address(), film()});

    QCOMPARE(lines.value(0), QStringLiteral("source %1 0").arg(address()));
    QVERIFY2(lines.value(1).startsWith(
                 QStringLiteral("refusal %1: Media cannot be read, for a file of this program "
                                "cannot be loaded: %2: ")
                     .arg(film(), tree.module)),
             qPrintable(lines.value(1)));
    const QString none = QStringLiteral("picture -1x-1");
    QCOMPARE(lines.mid(2), (QStringList{none, none}));
}

QTEST_GUILESS_MAIN(tst_MediaModule)
#include "tst_MediaModule.moc"
