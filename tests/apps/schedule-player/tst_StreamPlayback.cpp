#include "deck/StreamPlayback.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QtTest>

#include <algorithm>

using trel::player::DeckPicture;
using trel::player::Playback;
using trel::player::PlaybackNews;
using trel::player::ScreenShape;
using trel::player::StreamPlayback;
using trel::screen::DeckFault;
using trel::screen::DeckTrouble;

namespace {

constexpr int kSilence = 20; // milliseconds

/// What a stream is asked for, and what the test answers.
class Lines
{
public:
    /// One of them, which does nothing by itself.
    class Line : public Playback
    {
    public:
        Line(Lines& lines, int number)
            : m_lines(lines)
            , m_number(number)
        {}
        ~Line() override { m_lines.alive.removeOne(m_number); }
        void play() override { ++m_lines.plays; }
        void pause() override {}
        void seek(qint64 /*position*/) override {}
        void setSpeed(double /*speed*/) override {}
        void setShape(const ScreenShape& /*shape*/) override {}
        std::optional<qint64> position() const override { return m_number; }
        DeckPicture picture() const override
        {
            return {QImage(m_number + 1, 1, QImage::Format_RGB32), nullptr};
        }
        qint64 droppedFrames() const override { return m_number; }

    private:
        Lines& m_lines;
        const int m_number;
    };

    StreamPlayback::Line make()
    {
        return [this](const PlaybackNews& given) {
            const int number = static_cast<int>(news.size());
            news.push_back(given);
            alive.append(number);
            return std::make_unique<Line>(*this, number);
        };
    }
    PlaybackNews told()
    {
        PlaybackNews told;
        told.ready = [this] { heard.append(QStringLiteral("ready")); };
        told.failed = [this](const DeckFault& fault) { heard.append(fault.words); };
        told.ended = [this] { heard.append(QStringLiteral("ended")); };
        told.pictureChanged = [this] { heard.append(QStringLiteral("picture")); };
        told.drawingFailed = [this] { heard.append(QStringLiteral("drawing failed")); };
        return told;
    }
    void fail(std::size_t line, const char* words)
    {
        // As it is told from the event loop, it outlives what it is told to.
        const auto failed = news[line].failed;
        failed({DeckTrouble::Unreachable, QLatin1String(words)});
    }
    void getReady(std::size_t line)
    {
        const PlaybackNews of = news[line];
        of.pictureChanged();
        of.ready();
    }

    std::vector<PlaybackNews> news;
    QList<int> alive;
    QStringList heard;
    int plays = 0;
};

} // namespace

class tst_StreamPlayback : public QObject
{
    Q_OBJECT

private slots:
    void theFirstThatIsReadyWins();
    void asksNoMoreOnceItIsReady();
    void whatStirsKeepsOthersWaiting();
    void sharesAThinLineWithOneAtMost();
    void leavesNoneOnWhichSomethingHasCome();
    void keepsTheFirstAndTheNewest();
    void isOverWithTheFirst();
    void goesOnWithWhatStirsInThePlaceOfTheFirst();
    void aRefusalBesideASilentOneSaysNothing();
    void tellsWhatBreaksLater();
    void asksForNoMoreWithoutRoom();
};

void tst_StreamPlayback::theFirstThatIsReadyWins()
{
    Lines lines;
    StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence);
    QCOMPARE(lines.alive, QList<int>({0}));
    QTRY_VERIFY(lines.news.size() >= 2);
    stream.play();
    QCOMPARE(lines.plays, 0);
    QVERIFY(stream.picture().isNull() && !stream.position() && stream.droppedFrames() == 0);
    lines.getReady(1);
    QCOMPARE(lines.alive, QList<int>({1}));
    QCOMPARE(lines.heard, QStringList({QStringLiteral("picture"), QStringLiteral("ready")}));
    stream.play();
    QCOMPARE(lines.plays, 1);
    QCOMPARE(stream.position(), std::optional<qint64>(1));
    QCOMPARE(stream.picture().image.width(), 2);
    QCOMPARE(stream.droppedFrames(), 1);
    lines.news[1].pictureChanged();
    QCOMPARE(lines.heard.size(), 3);
}

void tst_StreamPlayback::asksNoMoreOnceItIsReady()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence);
    lines.getReady(0);
    QTest::qWait(5 * kSilence);
    QCOMPARE(lines.news.size(), std::size_t(1));
}

void tst_StreamPlayback::whatStirsKeepsOthersWaiting()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), 200, 300);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 600) {
        lines.news[0].stirred();
        QTest::qWait(20);
    }
    QCOMPARE(lines.news.size(), std::size_t(1));
    // It is silent from now on.
    timer.start();
    QTRY_COMPARE(lines.news.size(), std::size_t(2));
    QVERIFY(timer.elapsed() >= 250);
}

void tst_StreamPlayback::sharesAThinLineWithOneAtMost()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence, kSilence);
    lines.news[0].stirred();
    QTRY_VERIFY(lines.news.size() >= 5);
    QCOMPARE(lines.alive, QList<int>({0, static_cast<int>(lines.news.size()) - 1}));
}

void tst_StreamPlayback::leavesNoneOnWhichSomethingHasCome()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), 100, kSilence);
    QTRY_COMPARE(lines.news.size(), std::size_t(3));
    lines.news[1].stirred();
    QTRY_COMPARE(lines.alive, QList<int>({0, 1}));
    QTest::qWait(5 * kSilence);
    QCOMPARE(lines.alive, QList<int>({0, 1}));
    QCOMPARE(lines.news.size(), std::size_t(3));
}

void tst_StreamPlayback::keepsTheFirstAndTheNewest()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence);
    QTRY_VERIFY(lines.news.size() >= 7);
    const int newest = static_cast<int>(lines.news.size()) - 1;
    QCOMPARE(lines.alive, QList<int>({0, newest - 2, newest - 1, newest}));
    lines.getReady(0);
    QCOMPARE(lines.alive, QList<int>({0}));
}

void tst_StreamPlayback::isOverWithTheFirst()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence);
    QTRY_VERIFY(lines.news.size() >= 3);
    lines.fail(0, "no answer");
    QCOMPARE(lines.heard, QStringList({QStringLiteral("no answer")}));
    QVERIFY(lines.alive.isEmpty());
    const std::size_t asked = lines.news.size();
    QTest::qWait(5 * kSilence);
    QCOMPARE(lines.news.size(), asked);
}

void tst_StreamPlayback::goesOnWithWhatStirsInThePlaceOfTheFirst()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), 200, 200);
    QTRY_COMPARE(lines.news.size(), std::size_t(2));
    lines.news[1].stirred();
    lines.fail(0, "no answer");
    QVERIFY(lines.heard.isEmpty());
    QCOMPARE(lines.alive, QList<int>({1}));
    lines.getReady(1);
    QCOMPARE(lines.heard.last(), QStringLiteral("ready"));
}

void tst_StreamPlayback::aRefusalBesideASilentOneSaysNothing()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), 200, 200);
    QTRY_COMPARE(lines.news.size(), std::size_t(2));
    lines.fail(1, "only one at a time");
    QVERIFY(lines.heard.isEmpty());
    QCOMPARE(lines.alive, QList<int>({0}));
    // It asks again all the same.
    QTRY_COMPARE(lines.news.size(), std::size_t(3));
    lines.getReady(0);
    QCOMPARE(lines.heard.last(), QStringLiteral("ready"));
}

void tst_StreamPlayback::tellsWhatBreaksLater()
{
    Lines lines;
    const StreamPlayback stream(
        lines.make(), [] { return true; }, lines.told(), kSilence);
    lines.getReady(0);
    lines.heard.clear();
    lines.fail(0, "broke off");
    QCOMPARE(lines.heard, QStringList({QStringLiteral("broke off")}));
    // Its last picture stays.
    QCOMPARE(lines.alive, QList<int>({0}));
    QVERIFY(!stream.picture().isNull());
}

void tst_StreamPlayback::asksForNoMoreWithoutRoom()
{
    Lines lines;
    bool hasRoom = false;
    const StreamPlayback stream(
        lines.make(), [&hasRoom] { return hasRoom; }, lines.told(), kSilence);
    QTest::qWait(5 * kSilence);
    QCOMPARE(lines.news.size(), std::size_t(1));
    hasRoom = true;
    QTRY_VERIFY(lines.news.size() >= 2);
}

TREL_TEST(tst_StreamPlayback, QGuiApplication)
#include "tst_StreamPlayback.moc"
