#include "DeckFixture.h"
#include "StreamServer.h"
#include "deck/StreamPlayback.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QGuiApplication>

using trel::mediadispatch::ProgramKind;
using trel::player::PlayerDeck;
using trel::player::StreamPlayback;
using trel::screen::DeckLoad;
using trel::screen::DeckTrouble;

namespace {

/// Longer than a busy machine and the silence that is waited for, in milliseconds.
constexpr int kPatience = 20000;
/// The length of the packets that a stream consists of, in bytes.
constexpr int kPacket = 188;

struct Span
{
    int start = 0;
    int length = 0;
};

/// Where the pictures stand that need no other one, in a stream of pictures alone.
std::vector<Span> keyPictures(const QByteArray& stream)
{
    std::vector<Span> keys;
    for (int at = 0; at + kPacket <= stream.size(); at += kPacket) {
        const auto byte = [&](int place) { return static_cast<unsigned char>(stream[at + place]); };
        const bool begins = (byte(1) & 0x40) != 0;
        const bool isKey = (byte(3) & 0x20) != 0 && byte(4) > 0 && (byte(5) & 0x40) != 0;
        if (begins && !keys.empty() && keys.back().length == 0) {
            keys.back().length = at - keys.back().start;
        }
        if (begins && isKey) {
            keys.push_back({at, 0});
        }
    }
    return keys;
}

} // namespace

/// Streams: that they play, and what becomes of them when they do not.
class tst_DeckStreams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void playsAStream();
    void tellsWhenAStreamStalls();
    void tellsWhenAStreamEnds();
    void tellsWhenNobodyAnswers_data();
    void tellsWhenNobodyAnswers();
    void showsNoHalfPicture_data();
    void showsNoHalfPicture();
    void isBackAfterABreak();
    void isBackAfterASilence_data();
    void isBackAfterASilence();
    void waitsForASlowServer_data();
    void waitsForASlowServer();
    void asksASilentServerNowAndThen();
    void asksOnceWhereItIsAnswered();
    void asksOnceWhereItIsAnsweredSlowly();
    void keepsPasswordsToItself();
    void followsAListOfTheNetworkOnly();
    void refusesWhatIsNoStream_data();
    void refusesWhatIsNoStream();
    void leavesASilentOneAtOnce();
    void tellsAtOnceWhereItCannotBeSought();

private:
    static DeckLoad live(const QString& address)
    {
        return {address, ProgramKind::Live, 0, false, 0};
    }

    QTemporaryDir m_folder;
    QByteArray m_stream;
};

void tst_DeckStreams::initTestCase()
{
    media::ClipOrder order;
    order.program = 9;
    order.frames = 50;
    const QString path = m_folder.filePath(QStringLiteral("live.ts"));
    QVERIFY(media::makeClip(path, order));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_stream = file.readAll();
}

void tst_DeckStreams::playsAStream()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(screen.first.hasPicture());
    QVERIFY(screen.shows(9, 0));
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame > 20);
    const auto position = screen.first.position();
    QVERIFY(position);
    QTRY_VERIFY(screen.first.position() > position);
}

void tst_DeckStreams::tellsWhenAStreamStalls()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::Stalled);
    // The last picture that came stays.
    QVERIFY(screen.first.hasPicture());
    QCOMPARE(screen.record.last().content, RecordedFrame::Content::Clip);
    QVERIFY(screen.record.last().mark.frame > 40);
    const auto position = screen.first.position();
    QTest::qWait(200);
    QCOMPARE(screen.first.position(), position);
}

void tst_DeckStreams::tellsWhenAStreamEnds()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    QSignalSpy ended(&screen.first, &PlayerDeck::ended);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    server.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::BrokeOff);
    QCOMPARE(ended.count(), 0);
    QVERIFY(screen.first.hasPicture());
    QVERIFY(screen.record.last().mark.frame > 40);
}

void tst_DeckStreams::tellsWhenNobodyAnswers_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isStopped");
    QTest::newRow("nobody there") << QStringLiteral("/live") << true;
    QTest::newRow("not found") << QStringLiteral("/other") << false;
}

void tst_DeckStreams::tellsWhenNobodyAnswers()
{
    QFETCH(const QString, path);
    QFETCH(const bool, isStopped);
    StreamServer server;
    if (isStopped) {
        server.stop();
    }
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.first.load(live(server.address(path)));
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::Unreachable);
    QVERIFY(!faultIn(failed).words.isEmpty());
}

void tst_DeckStreams::showsNoHalfPicture_data()
{
    QTest::addColumn<int>("part");
    for (const int part : {30, 60, 90}) {
        QTest::addRow("%d %%", part) << part;
    }
}

/// Wherever in a picture that needs no other one the line breaks off.
void tst_DeckStreams::showsNoHalfPicture()
{
    QFETCH(const int, part);
    media::ClipOrder order;
    order.program = 9;
    order.frames = 20;
    // Its number has many digits that the one before has not.
    order.framesBetweenKeys = 16;
    order.size = QSize(1280, 720);
    const QString path = m_folder.filePath(QStringLiteral("half.ts"));
    QVERIFY(media::makeClip(path, order));
    QFile film(path);
    QVERIFY(film.open(QIODevice::ReadOnly));
    const QByteArray stream = film.readAll();
    const std::vector<Span> keys = keyPictures(stream);
    QVERIFY(keys.size() > 1);
    const int packets = keys[1].length / kPacket;
    QVERIFY2(packets > 4, qPrintable(QString::number(packets)));
    StreamServer server;
    server.serveWhole(QStringLiteral("/live"),
                      stream.left(keys[1].start + packets * part / 100 * kPacket));
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    for (const RecordedFrame& frame : screen.record.frames()) {
        QVERIFY(frame.content != RecordedFrame::Content::Other);
    }
    QVERIFY(screen.record.last().mark.frame >= 10);
}

void tst_DeckStreams::isBackAfterABreak()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    server.stop();
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    screen.first.load(live(server.address()));
    QTRY_COMPARE(failed.count(), 2);
    server.goOn();
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(screen.shows(9, 0));
}

void tst_DeckStreams::isBackAfterASilence_data()
{
    QTest::addColumn<bool>("begins");
    QTest::newRow("nothing has come") << false;
    QTest::newRow("broken off in the middle of the first picture") << true;
}

/// The line that it had made stays silent for good.
void tst_DeckStreams::isBackAfterASilence()
{
    QFETCH(const bool, begins);
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    if (begins) {
        server.setCutOff(5 * kPacket);
    } else {
        server.setSilent(true);
    }
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_COMPARE(server.requests(), 1);
    server.setCutOff(std::nullopt);
    server.setSilent(false);
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(server.requests(), 2);
    QCOMPARE(failed.count(), 0);
    QVERIFY(screen.shows(9, 0));
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame > 10);
    // The silent one has been left.
    QTRY_COMPARE(server.lines(), 1);
}

void tst_DeckStreams::waitsForASlowServer_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<int>("failures");
    QTest::addColumn<bool>("isReady");
    QTest::newRow("slow") << 3500 << 0 << true;
    QTest::newRow("slower than is believed at first") << 7000 << 0 << false;
    QTest::newRow("slower, and tried again") << 7000 << 1 << true;
}

/// Its first line is kept beside all others.
void tst_DeckStreams::waitsForASlowServer()
{
    QFETCH(const int, delay);
    QFETCH(const int, failures);
    QFETCH(const bool, isReady);
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    server.setDelay(delay);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    DeckLoad load = live(server.address());
    load.failures = failures;
    screen.first.load(load);
    QTRY_VERIFY_WITH_TIMEOUT(screen.first.isReady() || !failed.isEmpty(), kPatience);
    QCOMPARE(screen.first.isReady(), isReady);
    QCOMPARE(failed.count(), isReady ? 0 : 1);
    QCOMPARE(faultIn(failed).trouble, isReady ? DeckTrouble::None : DeckTrouble::Unreachable);
}

void tst_DeckStreams::asksASilentServerNowAndThen()
{
    StreamServer server;
    server.setSilent(true);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    QElapsedTimer timer;
    timer.start();
    DeckLoad load = live(server.address());
    load.failures = 1;
    screen.first.load(load);
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    const qint64 most = 1 + timer.elapsed() / StreamPlayback::kSilence;
    QVERIFY2(server.requests() <= most && server.requests() >= most / 2,
             qPrintable(QString::number(server.requests())));
    // With one that is just being left.
    QVERIFY2(server.mostLines() <= static_cast<int>(StreamPlayback::kMostLines) + 1,
             qPrintable(QString::number(server.mostLines())));
    QTRY_COMPARE(server.lines(), 0);
}

void tst_DeckStreams::asksOnceWhereItIsAnswered()
{
    StreamServer server;
    server.servePaced(QStringLiteral("/live"), m_stream, 2000);
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    QTest::qWait(2 * StreamPlayback::kSilence);
    QCOMPARE(server.requests(), 1);
}

/// The rest of the first picture comes later than a second line would be made beside a silent one.
void tst_DeckStreams::asksOnceWhereItIsAnsweredSlowly()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    server.setCutOff(15 * kPacket);
    DeckFixture screen;
    screen.show(screen.first);
    QElapsedTimer timer;
    timer.start();
    screen.first.load(live(server.address()));
    QTRY_VERIFY(timer.elapsed() >= (StreamPlayback::kSilence + StreamPlayback::kPause) / 2);
    QVERIFY(!screen.first.isReady());
    QCOMPARE(server.requests(), 1);
    server.sendRest();
    QTRY_VERIFY(screen.first.isReady());
}

void tst_DeckStreams::keepsPasswordsToItself()
{
    StreamServer server;
    server.stop();
    QString address = server.address();
    address.replace(QLatin1String("//"), QLatin1String("//somebody:secret-word@"));
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.first.load(live(address));
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    QVERIFY(!faultIn(failed).words.contains(QLatin1String("secret-word")));
}

void tst_DeckStreams::followsAListOfTheNetworkOnly()
{
    // The first piece lies on the disk of this machine, and shows another program.
    media::ClipOrder order;
    order.program = 66;
    order.frames = 50;
    const QString own = m_folder.filePath(QStringLiteral("own.ts"));
    QVERIFY(media::makeClip(own, order));
    StreamServer server;
    server.serveWhole(QStringLiteral("/live.m3u8"),
                      "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2,\nfile://" +
                          QFile::encodeName(own) + "\n#EXTINF:2,\npiece.ts\n#EXT-X-ENDLIST\n");
    server.serveWhole(QStringLiteral("/piece.ts"), m_stream);
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(live(server.address(QStringLiteral("/live.m3u8"))));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(server.paths().contains(QLatin1String("/piece.ts")));
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame > 5);
    for (const RecordedFrame& frame : screen.record.frames()) {
        QVERIFY(frame.content == RecordedFrame::Content::Black || frame.mark.program == 9);
    }
}

void tst_DeckStreams::refusesWhatIsNoStream_data()
{
    QTest::addColumn<QString>("address");
    const QString own = m_folder.filePath(QStringLiteral("live.ts"));
    for (const char* scheme : {"", "file://", "edl://", "concat:", "av://v4l2:", "pipe:", "fd://",
                               "lavf://", "memory://", "ytdl://", "dvd://", "slice://0@"}) {
        QTest::newRow(scheme) << QLatin1String(scheme) + own;
    }
}

void tst_DeckStreams::refusesWhatIsNoStream()
{
    QFETCH(const QString, address);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.first.load(live(address));
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, kPatience);
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::Refused);
}

void tst_DeckStreams::leavesASilentOneAtOnce()
{
    StreamServer server;
    server.setSilent(true);
    QElapsedTimer timer;
    {
        DeckFixture screen;
        screen.first.load(live(server.address()));
        QTRY_COMPARE(server.requests(), 1);
        timer.start();
        screen.first.clear();
        QVERIFY(timer.elapsed() < 100);
    }
    QVERIFY(timer.elapsed() < 1000);
}

/// It has no places that it could be sent to.
void tst_DeckStreams::tellsAtOnceWhereItCannotBeSought()
{
    StreamServer server;
    server.serve(QStringLiteral("/live"), m_stream);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    screen.first.load(live(server.address()));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame > 3);
    QElapsedTimer timer;
    timer.start();
    screen.first.seek(3'600'000);
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::Unreadable);
    QVERIFY2(faultIn(failed).words.startsWith(QStringLiteral("It cannot be sought: ")),
             qPrintable(faultIn(failed).words));
    QVERIFY(screen.first.hasPicture());
}

TREL_TEST(tst_DeckStreams, QGuiApplication)
#include "tst_DeckStreams.moc"
