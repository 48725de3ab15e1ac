#include "DeckFixture.h"
#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QDataStream>
#include <QFile>
#include <QGuiApplication>

#include <sys/stat.h>
#include <unistd.h>

using trel::mediadispatch::ProgramKind;
using trel::player::PlayerDeck;
using trel::screen::DeckTrouble;

Q_DECLARE_METATYPE(trel::mediadispatch::ProgramKind)
Q_DECLARE_METATYPE(trel::screen::DeckTrouble)

namespace {

QByteArray chunk(const char* name, const QByteArray& content)
{
    QByteArray bytes(name, 4);
    QDataStream out(&bytes, QIODevice::Append);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(content.size());
    return bytes + content;
}

QByteArray list(const char* name, const QByteArray& content)
{
    return chunk("LIST", QByteArray(name, 4) + content);
}

QByteArray numbers(const std::vector<quint32>& values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    for (const quint32 value : values) {
        out << value;
    }
    return bytes;
}

/// A film of any size in a few bytes: its pictures end before their first dot, and are black.
QByteArray emptyFilm(int width, int height)
{
    const auto wide = static_cast<quint32>(width);
    const auto high = static_cast<quint32>(height);
    const QByteArray avih = numbers({40000, 0, 0, 0, 3, 0, 1, 0, wide, high, 0, 0, 0, 0});
    const QByteArray strh = QByteArray("vidsmrle") + numbers({0, 0, 0, 1, 25, 0, 3, 0, 0, 0, 0, 0});
    const quint32 oneLayerOfBytes = 1 + (8 << 16);
    const QByteArray strf =
        numbers({40, wide, high, oneLayerOfBytes, 1, 0, 0, 0, 256, 0}) + QByteArray(1024, '\0');
    const QByteArray picture = chunk("00dc", QByteArray("\0\1", 2));
    const QByteArray film =
        list("hdrl",
             chunk("avih", avih) + list("strl", chunk("strh", strh) + chunk("strf", strf))) +
        list("movi", picture + picture + picture);
    return chunk("RIFF", "AVI " + film);
}

} // namespace

/// What a deck says of a program that cannot be played, and what is on screen meanwhile.
class tst_DeckFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void saysWhyItDoesNotPlay_data();
    void saysWhyItDoesNotPlay();
    void neverShowsTheFormerPictureAgain();
    void plays_data();
    void plays();
    void endsWhereAFileIsCutShort();
    void goesOnWhereTheFileIsTakenAway();
    void playsWhatIsWrittenMeanwhile();
    void goesOnWhereTheMiddleIsDestroyed();
    void clearsWhileItLoads();
    void tellsWhatCannotBeDrawn();
    void decodesNoPictureThatIsTooLarge_data();
    void decodesNoPictureThatIsTooLarge();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QByteArray contentOf(const char* name) const;
    bool write(const char* name, const QByteArray& content) const;

    QTemporaryDir m_folder;
};

QByteArray tst_DeckFaults::contentOf(const char* name) const
{
    QFile source(file(name));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

bool tst_DeckFaults::write(const char* name, const QByteArray& content) const
{
    QFile target(file(name));
    return target.open(QIODevice::WriteOnly) && target.write(content) == content.size();
}

void tst_DeckFaults::initTestCase()
{
    media::ClipOrder order;
    order.frames = 100;
    QVERIFY(media::makeClip(file("film.mp4"), order));
    order.pictureCoder = QStringLiteral("mpeg2video");
    QVERIFY(media::makeClip(file("film.mpg"), order));
    QVERIFY(media::makeText(file("text.mp4")));
    QVERIFY(write("empty.mp4", {}));
    QVERIFY(write("noise.mp4", QByteArray("\x9c\x1b\x77").repeated(9000)));
    QVERIFY(write("head.mp4", contentOf("film.mp4").left(600)));
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("folder.mp4")));
    QCOMPARE(::mkfifo(QFile::encodeName(file("pipe.mp4")).constData(), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), file("device.mp4")));
    QVERIFY(QFile::link(file("nowhere"), file("dangling.mp4")));
    QVERIFY(QFile::copy(file("film.mp4"), file("closed.mp4")));
    QVERIFY(QFile::setPermissions(file("closed.mp4"), QFileDevice::Permissions()));
    // Lists, under the names of films, all of the film beside them.
    const QByteArray film = QFile::encodeName(file("film.mp4"));
    QVERIFY(write("list.mp4", "#EXTM3U\n#EXTINF:4,\n" + film + "\n"));
    QVERIFY(write("hls.mp4",
                  "#EXTM3U\n#EXT-X-TARGETDURATION:4\n#EXTINF:4,\n" + film + "\n#EXT-X-ENDLIST\n"));
    QVERIFY(write("hls.m3u8", contentOf("hls.mp4")));
    QVERIFY(write("list.m3u", contentOf("list.mp4")));
    QVERIFY(write("concat.mp4", "ffconcat version 1.0\nfile '" + film + "'\n"));
    QVERIFY(write("concat.ffconcat", contentOf("concat.mp4")));
    QVERIFY(write("edl.mp4", "# mpv EDL v0\n" + film + "\n"));
    QVERIFY(write("list.pls", "[playlist]\nFile1=" + film + "\nNumberOfEntries=1\n"));
    QVERIFY(write("sheet.cue", "FILE \"film.mp4\" MP4\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n"));
    QVERIFY(write("sdp.mp4", "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\n"
                             "m=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n"));
}

void tst_DeckFaults::saysWhyItDoesNotPlay_data()
{
    QTest::addColumn<QString>("media");
    QTest::addColumn<ProgramKind>("kind");
    QTest::addColumn<DeckTrouble>("trouble");
    const auto row = [this](const char* name, DeckTrouble trouble) {
        QTest::newRow(name) << file(name) << ProgramKind::Video << trouble;
    };
    row("missing.mp4", DeckTrouble::Missing);
    row("dangling.mp4", DeckTrouble::Missing);
    row("film.mp4/below", DeckTrouble::Missing);
    row("folder.mp4", DeckTrouble::Refused);
    row("pipe.mp4", DeckTrouble::Refused);
    row("device.mp4", DeckTrouble::Refused);
    for (const char* name : {"text.mp4", "empty.mp4", "noise.mp4", "head.mp4", "list.mp4",
                             "hls.mp4", "hls.m3u8", "list.m3u", "concat.mp4", "concat.ffconcat",
                             "edl.mp4", "list.pls", "sheet.cue", "sdp.mp4"}) {
        row(name, DeckTrouble::Unreadable);
    }
    QTest::newRow("image that is missing")
        << file("missing.png") << ProgramKind::Image << DeckTrouble::Missing;
    QTest::newRow("image that is none")
        << file("text.mp4") << ProgramKind::Image << DeckTrouble::Unreadable;
    QTest::newRow("image that is a pipe")
        << file("pipe.mp4") << ProgramKind::Image << DeckTrouble::Refused;
    // What the library would take for something else than a file.
    for (const char* name : {"edl://", "av://lavfi:testsrc", "memory://x", "fd://0", "-"}) {
        QTest::newRow(name) << QString::fromLatin1(name) + file("film.mp4") << ProgramKind::Video
                            << DeckTrouble::Missing;
    }
}

void tst_DeckFaults::saysWhyItDoesNotPlay()
{
    QFETCH(const QString, media);
    QFETCH(const ProgramKind, kind);
    QFETCH(const DeckTrouble, trouble);
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    QSignalSpy ready(&screen.first, &PlayerDeck::ready);
    screen.show(screen.first);
    const quint64 number = screen.first.load({media, kind, 0, false});
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.first().first().toULongLong(), number);
    QCOMPARE(faultIn(failed).trouble, trouble);
    QVERIFY(!faultIn(failed).words.isEmpty());
    QVERIFY(!faultIn(failed).words.contains(QLatin1Char('\n')));
    QCOMPARE(ready.count(), 0);
    QVERIFY(!screen.first.isReady());
    QVERIFY(!screen.first.hasPicture());
    for (const RecordedFrame& frame : screen.record.frames()) {
        QCOMPARE(frame.content, RecordedFrame::Content::Black);
    }
}

void tst_DeckFaults::neverShowsTheFormerPictureAgain()
{
    for (const char* name : {"missing.mp4", "text.mp4", "head.mp4", "folder.mp4"}) {
        DeckFixture screen;
        QSignalSpy failed(&screen.first, &PlayerDeck::failed);
        screen.show(screen.first);
        screen.first.load(filmOf(file("film.mp4")));
        QTRY_VERIFY(screen.first.isReady());
        screen.first.play();
        QTRY_VERIFY(screen.record.last().mark.frame >= 3);
        screen.record.clear();
        screen.first.load(filmOf(file(name)));
        QTRY_COMPARE(failed.count(), 1);
        QTest::qWait(200);
        screen.show(screen.first);
        QVERIFY(!screen.first.hasPicture());
        for (const RecordedFrame& frame : screen.record.frames()) {
            QCOMPARE(frame.content, RecordedFrame::Content::Black);
        }
    }
}

void tst_DeckFaults::plays_data()
{
    QTest::addColumn<QString>("name");
    // Only its content counts, which a name cannot change.
    for (const char* name : {"film.m3u8", "film.cue", "film.txt", "film", "film.mp3", "film.iso"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
    QTest::newRow("name with signs") << QStringLiteral("50%: \"a\\b\" #1 ü,x=y.mp4");
}

void tst_DeckFaults::plays()
{
    QFETCH(const QString, name);
    const QString path = m_folder.filePath(name);
    QVERIFY(QFile::copy(file("film.mp4"), path));
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(path, 1000));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(screen.shows(1, 25));
}

void tst_DeckFaults::endsWhereAFileIsCutShort()
{
    const QByteArray whole = contentOf("film.mpg");
    QVERIFY(write("cut.mpg", whole.left(whole.size() * 2 / 5)));
    DeckFixture screen;
    QSignalSpy ended(&screen.first, &PlayerDeck::ended);
    screen.show(screen.first);
    screen.first.load(filmOf(file("cut.mpg")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_COMPARE(ended.count(), 1);
    QVERIFY(*screen.first.position() < 2500);
    const RecordedFrame last = screen.record.last();
    QCOMPARE(last.content, RecordedFrame::Content::Clip);
    QVERIFY(last.mark.frame > 20 && last.mark.frame < 60);
    QTest::qWait(200);
    QVERIFY(screen.shows(1, screen.record.last().mark.frame));
    QVERIFY(screen.first.hasPicture());
}

void tst_DeckFaults::goesOnWhereTheFileIsTakenAway()
{
    QVERIFY(QFile::copy(file("film.mp4"), file("gone.mp4")));
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("gone.mp4"), 2000));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(QFile::remove(file("gone.mp4")));
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame == 99);
}

void tst_DeckFaults::playsWhatIsWrittenMeanwhile()
{
    const QByteArray whole = contentOf("film.mpg");
    QFile growing(file("growing.mpg"));
    QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    growing.write(whole.left(whole.size() / 2));
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("growing.mpg")));
    QTRY_VERIFY(screen.first.isReady());
    growing.write(whole.mid(whole.size() / 2));
    screen.first.play();
    screen.first.setSpeed(1.1);
    QTRY_VERIFY(screen.record.last().mark.frame > 80);
}

void tst_DeckFaults::goesOnWhereTheMiddleIsDestroyed()
{
    QByteArray broken = contentOf("film.mpg");
    const int from = broken.size() * 2 / 5;
    const int length = broken.size() / 5;
    broken.replace(from, length, QByteArray(length, '\x55'));
    QVERIFY(write("hole.mpg", broken));
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("hole.mpg")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame > 90);
    for (const RecordedFrame& frame : screen.record.frames()) {
        QVERIFY(frame.content != RecordedFrame::Content::Clip || frame.mark.program == 1);
    }
}

void tst_DeckFaults::clearsWhileItLoads()
{
    DeckFixture screen;
    QSignalSpy ready(&screen.first, &PlayerDeck::ready);
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    for (int turn = 0; turn < 10; ++turn) {
        screen.first.load(filmOf(file(turn % 2 == 0 ? "film.mp4" : "missing.mp4")));
        QTest::qWait(turn * 3);
        const int told = ready.count() + failed.count();
        screen.first.clear();
        QTest::qWait(5);
        QCOMPARE(ready.count() + failed.count(), told);
        QVERIFY(!screen.first.hasPicture());
    }
}

void tst_DeckFaults::tellsWhatCannotBeDrawn()
{
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    QSignalSpy drawingFailed(&screen.first, &PlayerDeck::drawingFailed);
    // No picture can be that wide.
    screen.first.setShape({QSize(100'000'000, 1), 0});
    screen.first.load(filmOf(file("film.mp4")));
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(faultIn(failed).trouble, DeckTrouble::Unreadable);
    QCOMPARE(faultIn(failed).words, QStringLiteral("Its pictures cannot be drawn"));
    QCOMPARE(drawingFailed.count(), 1);
    QVERIFY(!screen.first.isReady());
}

void tst_DeckFaults::decodesNoPictureThatIsTooLarge_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isTooLarge");
    QTest::newRow("large") << 4096 << 2160 << false;
    QTest::newRow("too large") << 16384 << 8208 << true;
}

void tst_DeckFaults::decodesNoPictureThatIsTooLarge()
{
    QFETCH(const int, width);
    QFETCH(const int, height);
    QFETCH(const bool, isTooLarge);
    QVERIFY(write("claims.avi", emptyFilm(width, height)));
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.first.load(filmOf(file("claims.avi")));
    QTRY_VERIFY(screen.first.isReady() || failed.count() == 1);
    QCOMPARE(failed.count(), isTooLarge ? 1 : 0);
    QCOMPARE(screen.first.hasPicture(), !isTooLarge);
    if (isTooLarge) {
        QCOMPARE(faultIn(failed).trouble, DeckTrouble::Unreadable);
    }
}

TREL_TEST(tst_DeckFaults, QGuiApplication)
#include "tst_DeckFaults.moc"
