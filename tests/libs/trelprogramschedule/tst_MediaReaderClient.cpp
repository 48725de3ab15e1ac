#include "catalogue/ProgramImporter.h"
#include "faults/FaultWords.h"
#include "media/MediaReaderClient.h"
#include "media/PictureRequest.h"
#include "support/ChildProcesses.h"
#include "support/MediaLibraries.h"
#include "support/MessageLog.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

#include <csignal>
#include <unistd.h>

using namespace trel::mediadispatch;
using namespace std::chrono_literals;

/// The service's side of the program that reads media: how it is found, and what becomes of a file,
/// and of those behind it, when the program misbehaves.
class tst_MediaReaderClient : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setMediaReading({}); }
    void nothingRunsBeforeAFileIsLookedAt();
    void oneProgramServesAllFiles();
    void aMissingProgramIsNamedWithItsPlaces();
    void oneThatCannotStartIsNamed_data();
    void oneThatCannotStartIsNamed();
    void aFailureIsLoggedOnceAndNotTriedAgain();
    void misbehaviourCostsTheFileInHand_data();
    void misbehaviourCostsTheFileInHand();
    void whatIsSaidUnaskedIsNoAnswer();
    void anotherIsStartedForTheNextFile();
    void soundAnswersAreTaken();
    void badPicturesAreRefused_data();
    void badPicturesAreRefused();
    void cancelEndsTheWait_data();
    void cancelEndsTheWait();
    void anImportIsCancelledInTheMiddleOfAFile();
    void noProcessStays();
    void theProgramGoesWithItsParent();
    void aProgramFindsItInItsTree();
    void withoutItOtherWorkGoesOn();
    void startedByHandItSaysWhatItIs();

private:
    using Purpose = MediaReaderClient::Purpose;

    static QString film() { return QStringLiteral(DEMONSTRATION "/media/Opening.mp4"); }
    static QString address() { return QStringLiteral("udp://@239.0.0.1:1234"); }
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& content) const;
    /// The stub under the name of what it does.
    QString stub(const QByteArray& manner) const;
    static MediaReading reading(const QString& program, std::chrono::milliseconds deadline = 10s)
    {
        MediaReading given;
        given.program = program;
        given.deadline = deadline;
        return given;
    }
    /// A copy of the child in a tree of its own, and the file in which it looks for the program.
    struct Tree
    {
        explicit Tree(const QString& root);
        QStringList run(const QStringList& paths) const;

        QString reader;
        QString program;
    };

    const QTemporaryDir m_folder;
};

namespace {

/// Whether a process is there and does more than wait to be collected.
bool isAlive(int id)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(id));
    const QByteArray line = stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
    return !line.isEmpty() && line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

QStringList lines(const ImportScan& scan)
{
    QStringList list;
    for (const MediaSource& source : scan.sources) {
        list.append(source.name);
    }
    for (const ImportRefusal& refusal : scan.refusals) {
        list.append(englishSentence(refusal.fault));
    }
    return list;
}

} // namespace

QString tst_MediaReaderClient::write(const char* name, const QByteArray& content) const
{
    QFile target(file(name));
    target.open(QIODevice::WriteOnly);
    target.write(content);
    target.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return target.fileName();
}

QString tst_MediaReaderClient::stub(const QByteArray& manner) const
{
    const QString link = file(manner.constData());
    QFile::link(QStringLiteral(STUB_READER), link);
    return link;
}

tst_MediaReaderClient::Tree::Tree(const QString& root)
    : reader(root + QStringLiteral("/lib/trelprogramschedulewidgets/media-reader"))
    , program(root + QStringLiteral("/bin/media_child"))
{
    QDir().mkpath(root + QStringLiteral("/bin"));
    QDir().mkpath(root + QStringLiteral("/lib/trelprogramschedulewidgets"));
    QFile::copy(QStringLiteral(MEDIA_CHILD), program);
}

QStringList tst_MediaReaderClient::Tree::run(const QStringList& paths) const
{
    QProcess process;
    process.start(program, paths);
    process.waitForFinished(120000);
    const bool isWell = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isWell ? QString::fromUtf8(process.readAllStandardOutput())
                        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                  : QStringList{QString::fromUtf8(process.readAllStandardError())};
}

void tst_MediaReaderClient::nothingRunsBeforeAFileIsLookedAt()
{
    setMediaReading(reading(stub("stuck"), 1ms));

    const ImportScan scan = scanMedia({address(), file("gone.mp4"), QStringLiteral("/dev/null")});

    QCOMPARE(lines(scan), (QStringList{address(), QStringLiteral("There is no such file."),
                                       QStringLiteral("It is not a file.")}));
    QVERIFY(childProcesses().isEmpty());
}

void tst_MediaReaderClient::oneProgramServesAllFiles()
{
    MediaReaderClient client(Purpose::Facts, reading({}));
    QCOMPARE(client.facts(film(), true, {}).durationMs, 12000.0);
    const QStringList first = childProcesses();
    QCOMPARE(first.size(), 1);

    QCOMPARE(client.facts(film(), false, {}).durationMs, 12000.0);
    QVERIFY(client.facts(write("letter.txt", "Dear friend"), false, {}).fault);
    QVERIFY(client.facts(film(), true, {}).kind == ProgramKind::Video);

    QCOMPARE(childProcesses(), first);
    QVERIFY(!hasMediaLibraries());
}

void tst_MediaReaderClient::aMissingProgramIsNamedWithItsPlaces()
{
    const MessageLog log;
    MediaReaderClient client(Purpose::Facts, reading(file("nowhere")));

    const MediaFacts facts = client.facts(film(), true, {});

    QCOMPARE(englishSentence(facts.fault),
             QStringLiteral("Media cannot be read, for a file of this program is missing: ") +
                 file("nowhere") + QLatin1Char('.'));
    QCOMPARE(englishSentence(client.problem()), englishSentence(facts.fault));
}

void tst_MediaReaderClient::oneThatCannotStartIsNamed_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("problem");

    QTest::newRow("text") << write("text", "Dear friend") << "Exec format error";
    QTest::newRow("empty") << write("empty", {}) << "Exec format error";
    QTest::newRow("a folder") << m_folder.path() << "Permission denied";
    QTest::newRow("ends at once") << "/bin/true"
                                  << "it ends at once";
    QTest::newRow("of another version") << stub("old") << "it is of another version";
    QTest::newRow("says nothing") << stub("silent") << "it does not answer";
}

void tst_MediaReaderClient::oneThatCannotStartIsNamed()
{
    QFETCH(QString, program);
    QFETCH(QString, problem);
    const MessageLog log;
    MediaReading given = reading(program);
    if (problem == QLatin1String("it does not answer")) {
        given.startDeadline = 500ms;
    }
    MediaReaderClient client(Purpose::Facts, given);

    QCOMPARE(
        englishSentence(client.facts(film(), true, {}).fault),
        QStringLiteral("Media cannot be read, for a file of this program cannot be started: ") +
            program + QStringLiteral(": ") + problem + QLatin1Char('.'));
    QVERIFY(childProcesses().isEmpty());
}

void tst_MediaReaderClient::aFailureIsLoggedOnceAndNotTriedAgain()
{
    const MessageLog log;
    const QString late = file("late");
    MediaReaderClient client(Purpose::Facts, reading(late));
    const QString problem = englishSentence(client.facts(film(), true, {}).fault);
    QVERIFY(QFile::link(QStringLiteral(MEDIA_READER), late));

    QCOMPARE(englishSentence(client.facts(film(), true, {}).fault), problem);
    QCOMPARE(log.texts(), QStringList{problem});
    // The next import tries once more.
    QCOMPARE(MediaReaderClient(Purpose::Facts, reading(late)).facts(film(), true, {}).durationMs,
             12000.0);
}

void tst_MediaReaderClient::misbehaviourCostsTheFileInHand_data()
{
    QTest::addColumn<QString>("reason");

    const QString late = QStringLiteral("It could not be read within 0.3 seconds.");
    const QString broken = QStringLiteral("Reading it made the media reader crash.");
    const QString senseless = QStringLiteral("The media reader gave no valid answer about it.");
    QTest::newRow("stuck") << late;
    QTest::newRow("busy") << late;
    QTest::newRow("slow") << late;
    QTest::newRow("dying") << broken;
    for (const char* manner : {"garbage", "drawing", "magic", "number", "verdict", "kind",
                               "no-kind", "negative", "nan", "infinite", "huge", "picture"}) {
        QTest::newRow(manner) << senseless;
    }
}

void tst_MediaReaderClient::misbehaviourCostsTheFileInHand()
{
    QFETCH(QString, reason);
    MediaReaderClient client(Purpose::Facts, reading(stub(QTest::currentDataTag()), 300ms));
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer time;
        time.start();
        const MediaFacts facts = client.facts(film(), true, {});
        QVERIFY(facts.kind == ProgramKind::Other);
        QCOMPARE(englishSentence(facts.fault), reason);
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    }
    QCOMPARE(englishSentence(client.problem()), QString());
}

/// It may come at once, or only while the next file is at hand.
void tst_MediaReaderClient::whatIsSaidUnaskedIsNoAnswer()
{
    MediaReaderClient client(Purpose::Facts, reading(stub("talking"), 5s));
    for (int i = 0; i < 5; ++i) {
        const MediaFacts facts = client.facts(film(), true, {});
        if (!facts.fault) {
            QCOMPARE(facts.durationMs, 1000.0);
        } else {
            QCOMPARE(englishSentence(facts.fault),
                     QStringLiteral("The media reader gave no valid answer about it."));
        }
    }
}

void tst_MediaReaderClient::anotherIsStartedForTheNextFile()
{
    const QString program = file("changing");
    write("changing", "#!/bin/sh\nif mkdir \"$0.once\" 2>/dev/null; then exec '" +
                          stub("stuck").toUtf8() +
                          "' \"$@\"; fi\nexec '" MEDIA_READER "' \"$@\"\n");
    setMediaReading(reading(program, 3s));
    QVERIFY(QFile::copy(film(), file("a.mp4")) && QFile::copy(film(), file("b.mp4")));

    const ImportScan scan = scanMedia({file("a.mp4"), file("b.mp4")});

    QCOMPARE(lines(scan), (QStringList{QStringLiteral("b"),
                                       QStringLiteral("It could not be read within 3 seconds.")}));
    QCOMPARE(scan.refusals[0].path, file("a.mp4"));
}

/// The stub is refused for its faults, and for nothing else.
void tst_MediaReaderClient::soundAnswersAreTaken()
{
    MediaReaderClient facts(Purpose::Facts, reading(stub("sound")));
    MediaReaderClient pictures(Purpose::Pictures, reading(stub("sound")));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(facts.facts(film(), true, {}).durationMs, 1000.0);
        const MediaPicture picture = pictures.picture(film(), ProgramKind::Video, QSize(2, 2), {});
        QCOMPARE(picture.size, QSize(2, 1));
        QCOMPARE(picture.dots, (std::vector<quint32>{0xff112233, 0xff445566}));
    }
}

void tst_MediaReaderClient::badPicturesAreRefused_data()
{
    QTest::addColumn<int>("side");

    QTest::newRow("sound") << 1;
    for (const char* manner : {"huge", "flat", "drawing", "half", "number", "garbage"}) {
        QTest::newRow(manner) << 100;
    }
}

void tst_MediaReaderClient::badPicturesAreRefused()
{
    QFETCH(int, side);
    MediaReaderClient client(Purpose::Pictures, reading(stub(QTest::currentDataTag()), 5s));
    for (int i = 0; i < 2; ++i) {
        const MediaPicture picture =
            client.picture(film(), ProgramKind::Image, QSize(side, side), {});
        QVERIFY(picture.size.isEmpty() && picture.dots.empty());
    }
}

void tst_MediaReaderClient::cancelEndsTheWait_data()
{
    QTest::addColumn<QByteArray>("manner");

    QTest::newRow("before the greeting") << QByteArray("silent");
    QTest::newRow("in a file") << QByteArray("stuck");
    QTest::newRow("in a file that is being read") << QByteArray("busy");
    QTest::newRow("in the middle of an answer") << QByteArray("slow");
}

void tst_MediaReaderClient::cancelEndsTheWait()
{
    QFETCH(QByteArray, manner);
    MediaReaderClient client(Purpose::Facts, reading(stub(manner)));
    QElapsedTimer time;
    time.start();
    constexpr qint64 kCancelledAfter = 100;

    const MediaFacts facts =
        client.facts(film(), true, [&time] { return time.elapsed() >= kCancelledAfter; });

    QVERIFY(facts.kind == ProgramKind::Other);
    QCOMPARE(englishSentence(facts.fault), QString());
    QVERIFY2(time.elapsed() < kCancelledAfter + 200, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(englishSentence(client.problem()), QString());
    QVERIFY(childProcesses().isEmpty());
}

void tst_MediaReaderClient::anImportIsCancelledInTheMiddleOfAFile()
{
    setMediaReading(reading(stub("stuck")));
    std::atomic<bool> isCancelled{false};
    ImportScan scan;
    int told = 0;
    const auto progress = [&told](int, int, const QString&) { return ++told > 0; };
    std::thread thread([&] {
        scan = scanMedia({film(), QStringLiteral(DEMONSTRATION "/media/Weather.mp4")}, progress, {},
                         [&isCancelled] { return isCancelled.load(); });
    });
    QTRY_VERIFY(!childProcesses().isEmpty());
    QElapsedTimer time;
    time.start();
    isCancelled = true;
    thread.join();

    QVERIFY2(time.elapsed() < 200, qPrintable(QString::number(time.elapsed())));
    QVERIFY(scan.cancelled);
    QCOMPARE(lines(scan), QStringList());
    QCOMPARE(told, 1);
    QVERIFY(childProcesses().isEmpty());
}

void tst_MediaReaderClient::noProcessStays()
{
    QCOMPARE(scanMedia({film()}).sources.size(), std::size_t(1));
    const std::atomic<bool> goOn{false};
    QCOMPARE(readPicture(film(), ProgramKind::Video, QSize(160, 160), goOn).size, QSize(160, 90));

    QVERIFY(childProcesses().isEmpty());
}

/// Also when it does not come to notice that nobody is there any more.
void tst_MediaReaderClient::theProgramGoesWithItsParent()
{
    QProcess parent;
    parent.start(QStringLiteral(MEDIA_CHILD), {QStringLiteral("--wait"), film()});
    QVERIFY(parent.waitForReadyRead(60000));
    const int id = parent.readAllStandardOutput().trimmed().toInt();
    const QString process = QStringLiteral("/proc/%1").arg(id);
    QVERIFY(id > 0 && QFile::exists(process));
    QCOMPARE(::kill(id, SIGSTOP), 0);

    QCOMPARE(::kill(static_cast<pid_t>(parent.processId()), SIGKILL), 0);
    QVERIFY(parent.waitForFinished());

    QTRY_VERIFY(!isAlive(id));
}

void tst_MediaReaderClient::aProgramFindsItInItsTree()
{
    const Tree tree(file("whole"));
    QVERIFY(QFile::copy(QStringLiteral(MEDIA_READER), tree.reader));

    QCOMPARE(tree.run({film()}), (QStringList{QStringLiteral("source %1 12000").arg(film()),
                                              QStringLiteral("picture 160x90")}));
}

void tst_MediaReaderClient::withoutItOtherWorkGoesOn()
{
    const Tree tree(file("missing"));
    const QString root = QDir(m_folder.path()).canonicalPath();
    const QString problem =
        QStringLiteral("Media cannot be read, for a file of this program is missing: "
                       "%1/missing/bin/trelprogramschedulewidgets/media-reader, "
                       "%1/missing/lib/trelprogramschedulewidgets/media-reader.")
            .arg(root);

    QCOMPARE(tree.run({address(), film()}),
             (QStringList{QStringLiteral("source %1 0").arg(address()),
                          QStringLiteral("refusal %1: %2").arg(film(), problem),
                          QStringLiteral("picture -1x-1"), QStringLiteral("picture -1x-1")}));
}

void tst_MediaReaderClient::startedByHandItSaysWhatItIs()
{
    for (const QStringList& arguments :
         {QStringList(), QStringList{QStringLiteral("facts")}, QStringList{film()}}) {
        QProcess process;
        process.start(QStringLiteral(MEDIA_READER), arguments);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().startsWith("This program reads media files"));
    }
}

QTEST_GUILESS_MAIN(tst_MediaReaderClient)
#include "tst_MediaReaderClient.moc"
