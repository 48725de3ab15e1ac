#include "DeckFixture.h"
#include "support/TestProgram.h"

#include <QGuiApplication>

#include <algorithm>

using trel::player::PlayerDeck;
using trel::screen::DeckLoad;

namespace {

constexpr int kFrame = 40; ///< Milliseconds, at 25 frames a second.

} // namespace

/// What a deck shows of a film, and when.
class tst_DeckPlaying : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void showsItsFirstPictureAndWaits();
    void showsTheLoadedPosition_data();
    void showsTheLoadedPosition();
    void startsWithTheLoadedPicture();
    void playsEveryPictureInOrder();
    void keepsItsPictureWhenPaused();
    void keepsItsLastPictureAtTheEnd();
    void neverPlaysWhatStands();
    void goesElsewhereToTheFrame();
    void playsFasterAndSlower();
    void tellsWhereItIsBetweenPictures();
    void changesDecksWithoutAForeignPicture();
    void forgetsWhatItHad();
    void tellsNothingOfAReplacedLoad();
    void drawsEveryDotOpaque();
    void tellsHowLongAPictureStands();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    bool isMade(const char* name, int program, int frames, const char* sound = "");

    QTemporaryDir m_folder;
};

bool tst_DeckPlaying::isMade(const char* name, int program, int frames, const char* sound)
{
    media::ClipOrder order;
    order.program = program;
    order.frames = frames;
    order.soundCoder = QLatin1String(sound);
    return media::makeClip(file(name), order);
}

void tst_DeckPlaying::initTestCase()
{
    QVERIFY(isMade("one.mp4", 1, 100));
    QVERIFY(isMade("two.mp4", 2, 100, "aac"));
    QVERIFY(isMade("short.mp4", 3, 15));
}

void tst_DeckPlaying::showsItsFirstPictureAndWaits()
{
    DeckFixture screen;
    QSignalSpy ready(&screen.first, &PlayerDeck::ready);
    screen.show(screen.first);
    const quint64 number = screen.first.load(filmOf(file("one.mp4")));
    QVERIFY(!screen.first.isReady());
    QVERIFY(!screen.first.position());
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(ready.first().first().toULongLong(), number);
    QVERIFY(screen.first.isReady());
    QVERIFY(screen.first.hasPicture());
    QVERIFY(screen.shows(1, 0));
    QCOMPARE(*screen.first.position(), qint64(0));
    QTest::qWait(3 * kFrame);
    QVERIFY(screen.shows(1, 0));
    QCOMPARE(*screen.first.position(), qint64(0));
}

void tst_DeckPlaying::showsTheLoadedPosition_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("position");
    QTest::addColumn<int>("frame");
    for (const char* name : {"one.mp4", "two.mp4"}) {
        const auto row = [name](const char* what) { return QByteArray(name) + ", " + what; };
        QTest::newRow(row("at the beginning of a picture").constData())
            << QString::fromLatin1(name) << qint64(1000) << 25;
        QTest::newRow(row("just before the next").constData())
            << QString::fromLatin1(name) << qint64(1038) << 25;
        QTest::newRow(row("in the middle of a picture").constData())
            << QString::fromLatin1(name) << qint64(2020) << 50;
        QTest::newRow(row("the last").constData())
            << QString::fromLatin1(name) << qint64(3990) << 99;
        QTest::newRow(row("at the end").constData())
            << QString::fromLatin1(name) << qint64(4000) << 99;
        QTest::newRow(row("beyond the end").constData())
            << QString::fromLatin1(name) << qint64(9000) << 99;
    }
}

void tst_DeckPlaying::showsTheLoadedPosition()
{
    QFETCH(const QString, name);
    QFETCH(const qint64, position);
    QFETCH(const int, frame);
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(m_folder.filePath(name), position));
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(screen.shows(name == QLatin1String("one.mp4") ? 1 : 2, frame));
}

void tst_DeckPlaying::startsWithTheLoadedPicture()
{
    DeckFixture screen;
    screen.first.load(filmOf(file("one.mp4"), 1000));
    QTRY_VERIFY(screen.first.isReady());
    screen.record.clear();
    screen.show(screen.first);
    // At once, and not by the next picture that comes.
    QVERIFY(screen.shows(1, 25));
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame >= 30);
    QCOMPARE(screen.record.frames().front().mark.frame, 25);
}

void tst_DeckPlaying::playsEveryPictureInOrder()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("one.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    screen.record.clear();
    const qint64 begin = screen.record.elapsed();
    screen.first.play();
    QTRY_VERIFY(!screen.record.frames().empty() && screen.record.last().mark.frame >= 25);
    int former = 0;
    for (const RecordedFrame& frame : screen.record.frames()) {
        QCOMPARE(frame.content, RecordedFrame::Content::Clip);
        QCOMPARE(frame.mark.program, 1);
        QVERIFY(frame.mark.frame >= former);
        former = frame.mark.frame;
        // Never ahead of its time, by more than a machine's timers are out.
        const qint64 due = begin + qint64(frame.mark.frame) * kFrame * 1000000;
        QVERIFY(frame.elapsed > due - 10000000);
    }
}

void tst_DeckPlaying::keepsItsPictureWhenPaused()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("two.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_VERIFY(screen.record.last().mark.frame >= 5);
    screen.first.pause();
    QTest::qWait(2 * kFrame);
    const media::ClipMark mark = screen.record.last().mark;
    const qint64 position = *screen.first.position();
    QTest::qWait(5 * kFrame);
    QVERIFY(screen.shows(2, mark.frame));
    QCOMPARE(*screen.first.position(), position);
    // And from there it goes on.
    screen.record.clear();
    screen.first.play();
    QTRY_VERIFY(!screen.record.frames().empty() && screen.record.last().mark.frame > mark.frame);
    QVERIFY(screen.record.frames().front().mark.frame <= mark.frame + 1);
}

void tst_DeckPlaying::keepsItsLastPictureAtTheEnd()
{
    DeckFixture screen;
    QSignalSpy ended(&screen.first, &PlayerDeck::ended);
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    const quint64 number = screen.first.load(filmOf(file("short.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(ended.first().first().toULongLong(), number);
    QTRY_VERIFY(screen.shows(3, 14));
    QTest::qWait(5 * kFrame);
    QVERIFY(screen.shows(3, 14));
    QVERIFY(screen.first.hasPicture());
    QCOMPARE(ended.count(), 1);
    QCOMPARE(failed.count(), 0);
}

void tst_DeckPlaying::neverPlaysWhatStands()
{
    DeckFixture screen;
    screen.show(screen.first);
    DeckLoad load = filmOf(file("one.mp4"), 2000);
    load.stands = true;
    screen.first.load(load);
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    QTest::qWait(5 * kFrame);
    QVERIFY(screen.shows(1, 50));
}

void tst_DeckPlaying::goesElsewhereToTheFrame()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("two.mp4"), 400));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.seek(3015);
    QVERIFY(!screen.first.position());
    QTRY_VERIFY(screen.shows(2, 75));
    QTRY_COMPARE(screen.first.position().value_or(-1), qint64(3000));
    screen.first.seek(70);
    QTRY_VERIFY(screen.shows(2, 1));
    QCOMPARE(screen.record.frames().size(),
             std::size_t(std::count_if(screen.record.frames().begin(), screen.record.frames().end(),
                                       [](const RecordedFrame& frame) {
                                           return frame.content == RecordedFrame::Content::Black ||
                                                  frame.mark.frame == 10 ||
                                                  frame.mark.frame == 75 || frame.mark.frame == 1;
                                       })));
}

void tst_DeckPlaying::playsFasterAndSlower()
{
    for (const double speed : {0.9, 1.1}) {
        DeckFixture screen;
        screen.show(screen.first);
        screen.first.load(filmOf(file("two.mp4")));
        QTRY_VERIFY(screen.first.isReady());
        screen.first.setSpeed(speed);
        screen.first.play();
        QTRY_VERIFY(screen.record.last().mark.frame >= 5);
        const RecordedFrame from = screen.record.last();
        QTRY_VERIFY(screen.record.last().mark.frame >= from.mark.frame + 40);
        const RecordedFrame to = screen.record.last();
        const double played = double(to.mark.frame - from.mark.frame) * kFrame;
        const double took = double(to.elapsed - from.elapsed) / 1e6;
        QVERIFY2(std::abs(played / took - speed) < 0.05,
                 qPrintable(QString::number(played / took)));
    }
}

void tst_DeckPlaying::tellsWhereItIsBetweenPictures()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("one.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.play();
    const qint64 begin = screen.record.elapsed();
    qint64 worst = 0;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 800) {
        QTest::qWait(7);
        const qint64 since = (screen.record.elapsed() - begin) / 1000000;
        worst = qMax(worst, qAbs(*screen.first.position() - since));
    }
    QVERIFY2(worst < kFrame, qPrintable(QString::number(worst)));
}

void tst_DeckPlaying::changesDecksWithoutAForeignPicture()
{
    DeckFixture screen;
    PlayerDeck* on = &screen.first;
    PlayerDeck* spare = &screen.second;
    on->load(filmOf(file("one.mp4")));
    QTRY_VERIFY(on->isReady());
    screen.show(*on);
    on->play();
    int program = 1;
    for (int turn = 0; turn < 6; ++turn) {
        const int next = 3 - program;
        spare->load(filmOf(file(next == 1 ? "one.mp4" : "two.mp4"), 400 * turn));
        QTRY_VERIFY(spare->isReady());
        QTRY_VERIFY(screen.record.last().mark.frame >= 10 * qMax(turn - 1, 0) + 2);
        screen.record.clear();
        screen.show(*spare);
        spare->play();
        on->clear();
        QTRY_VERIFY(screen.record.last().mark.frame >= 10 * turn + 3);
        QCOMPARE(screen.record.frames().front().mark.frame, 10 * turn);
        for (const RecordedFrame& frame : screen.record.frames()) {
            QCOMPARE(frame.content, RecordedFrame::Content::Clip);
            QCOMPARE(frame.mark.program, next);
        }
        std::swap(on, spare);
        program = next;
    }
}

void tst_DeckPlaying::forgetsWhatItHad()
{
    DeckFixture screen;
    screen.first.load(filmOf(file("one.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    screen.first.clear();
    QVERIFY(!screen.first.isReady());
    QVERIFY(!screen.first.hasPicture());
    QVERIFY(!screen.first.position());
    screen.first.play();
    screen.first.pause();
    screen.first.seek(100);
    screen.show(screen.first);
    QCOMPARE(screen.record.last().content, RecordedFrame::Content::Black);
}

void tst_DeckPlaying::tellsNothingOfAReplacedLoad()
{
    DeckFixture screen;
    QSignalSpy ready(&screen.first, &PlayerDeck::ready);
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    screen.show(screen.first);
    quint64 number = 0;
    for (int turn = 0; turn < 5; ++turn) {
        screen.first.load(filmOf(file("missing.mp4")));
        number = screen.first.load(filmOf(file(turn % 2 == 0 ? "one.mp4" : "two.mp4")));
    }
    QCOMPARE(number, quint64(10));
    QTRY_COMPARE(ready.count(), 1);
    QTest::qWait(5 * kFrame);
    QCOMPARE(ready.count(), 1);
    QCOMPARE(ready.first().first().toULongLong(), number);
    QCOMPARE(failed.count(), 0);
    for (const RecordedFrame& frame : screen.record.frames()) {
        QVERIFY(frame.content == RecordedFrame::Content::Black || frame.mark.program == 1);
    }
}

/// A compositor may heed what a picture without transparency is said not to have.
void tst_DeckPlaying::drawsEveryDotOpaque()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("one.mp4")));
    QTRY_VERIFY(screen.first.isReady());
    const QImage picture = screen.record.lastPicture();
    QCOMPARE(picture.format(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* dots = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        QVERIFY(
            std::all_of(dots, dots + picture.width(), [](QRgb dot) { return qAlpha(dot) == 255; }));
    }
}

void tst_DeckPlaying::tellsHowLongAPictureStands()
{
    media::ClipOrder order;
    order.framesPerSecond = 10;
    QVERIFY(media::makeClip(file("slow.mp4"), order));
    QVERIFY(media::makeTone(file("tone.wav"), 500, QStringLiteral("pcm_s16le")));
    DeckFixture screen;
    for (const auto& [name, length] : {std::pair("slow.mp4", std::optional<qint64>(100)),
                                       std::pair("one.mp4", std::optional<qint64>(40)),
                                       std::pair("tone.wav", std::optional<qint64>())}) {
        screen.first.load({file(name), name[0] == 't' ? trel::mediadispatch::ProgramKind::Audio
                                                      : trel::mediadispatch::ProgramKind::Video});
        QVERIFY(!screen.first.pictureLength());
        QTRY_VERIFY(screen.first.isReady());
        QCOMPARE(screen.first.pictureLength(), length);
    }
}

TREL_TEST(tst_DeckPlaying, QGuiApplication)
#include "tst_DeckPlaying.moc"
