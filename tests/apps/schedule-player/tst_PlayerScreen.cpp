#include "FrameRecord.h"
#include "PlayerScreen.h"
#include "support/TestProgram.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using trel::player::PlayerScreen;
using trel::player::ScreenWishes;

namespace {

QWindow& windowOf(const PlayerScreen& screen)
{
    const QWindowList windows = QGuiApplication::allWindows();
    const int place = int(windows.indexOf(const_cast<QWindow*>(&screen.window())));
    return *windows.at(place);
}

ScreenWishes inAWindow()
{
    ScreenWishes wishes;
    wishes.isFullScreen = false;
    wishes.isMute = true;
    wishes.title = QStringLiteral("Screen 1");
    wishes.windowSize = QSize(400, 300);
    return wishes;
}

} // namespace

/// The window of a screen.
class tst_PlayerScreen : public QObject
{
    Q_OBJECT

private slots:
    void isABlackWindowWithoutAPointer();
    void fillsItsMonitor();
    void followsTheSizeOfTheWindow();
    void doesNotClose();
    void fillsTheFirstMonitorWhereItsOwnIsMissing();
    void takesAStandByPictureThatComesLater();
    void tellsWhatItsDecksLoad();
    void putsThePictureIntoItsWindow();
};

void tst_PlayerScreen::isABlackWindowWithoutAPointer()
{
    PlayerScreen screen(inAWindow());
    FrameRecord record;
    screen.add(record);
    QVERIFY(QTest::qWaitForWindowExposed(&windowOf(screen)));
    QCOMPARE(screen.window().cursor().shape(), Qt::BlankCursor);
    QCOMPARE(screen.window().title(), QStringLiteral("Screen 1"));
    QCOMPARE(record.last().content, RecordedFrame::Content::Black);
    QCOMPARE(record.lastPicture().size(), QSize(400, 300));
    QVERIFY(!screen.drawsByOpenGl());
    QCOMPARE(screen.droppedFrames(), qint64(0));
}

void tst_PlayerScreen::fillsItsMonitor()
{
    ScreenWishes wishes = inAWindow();
    wishes.isFullScreen = true;
    wishes.monitor = QGuiApplication::primaryScreen()->name();
    PlayerScreen screen(wishes);
    FrameRecord record;
    screen.add(record);
    QVERIFY(screen.hasItsMonitor());
    QTRY_COMPARE(screen.window().geometry(), QGuiApplication::primaryScreen()->geometry());
    QVERIFY(screen.window().windowStates() & Qt::WindowFullScreen);
    QTRY_COMPARE(record.lastPicture().size(), QGuiApplication::primaryScreen()->size());
}

void tst_PlayerScreen::followsTheSizeOfTheWindow()
{
    PlayerScreen screen(inAWindow());
    FrameRecord record;
    screen.add(record);
    windowOf(screen).resize(500, 200);
    QTRY_COMPARE(record.lastPicture().size(), QSize(500, 200));
}

void tst_PlayerScreen::doesNotClose()
{
    PlayerScreen screen(inAWindow());
    QSignalSpy asked(&screen, &PlayerScreen::closeAsked);
    QCloseEvent close;
    QCoreApplication::sendEvent(&windowOf(screen), &close);
    QVERIFY(!close.isAccepted());
    QVERIFY(screen.window().isVisible());
    QCOMPARE(asked.count(), 1);
}

void tst_PlayerScreen::fillsTheFirstMonitorWhereItsOwnIsMissing()
{
    ScreenWishes wishes = inAWindow();
    wishes.isFullScreen = true;
    wishes.monitor = QStringLiteral("HDMI-77");
    PlayerScreen screen(wishes);
    QVERIFY(!screen.hasItsMonitor());
    QTRY_COMPARE(screen.window().geometry(), QGuiApplication::primaryScreen()->geometry());
}

void tst_PlayerScreen::takesAStandByPictureThatComesLater()
{
    PlayerScreen screen(inAWindow());
    FrameRecord record;
    record.setPart(QRectF(0, 37, 400, 225));
    screen.add(record);
    trel::screen::StagePicture standBy;
    standBy.kind = trel::screen::StagePicture::Kind::StandBy;
    screen.stage().show(standBy);
    QCOMPARE(record.last().content, RecordedFrame::Content::Black);
    screen.setStandBy(media::clipPicture({7, 77}, QSize(320, 180)));
    QCOMPARE(record.last().content, RecordedFrame::Content::Clip);
    QCOMPARE(record.last().mark, (media::ClipMark{7, 77}));
}

void tst_PlayerScreen::tellsWhatItsDecksLoad()
{
    PlayerScreen screen(inAWindow());
    QStringList told;
    connect(&screen, &PlayerScreen::loadBegins, this, [&told](int deck, const QString& media) {
        told.append(QString::number(deck) + QLatin1Char(' ') + media);
    });
    screen.firstDeck().load({QStringLiteral("/a.mp4")});
    screen.secondDeck().load({QStringLiteral("/b.png"), trel::mediadispatch::ProgramKind::Image});
    screen.firstDeck().clear();
    QCOMPARE(told, QStringList({QStringLiteral("0 /a.mp4"), QStringLiteral("1 /b.png"),
                                QStringLiteral("0 ")}));
}

void tst_PlayerScreen::putsThePictureIntoItsWindow()
{
    PlayerScreen screen(inAWindow());
    QVERIFY(QTest::qWaitForWindowExposed(&windowOf(screen)));
    const auto shown = [&screen](const QRectF& part) {
        const QWindow& window = screen.window();
        return media::readClipMark(window.screen()->grabWindow(window.winId()).toImage(), part);
    };
    screen.setStandBy(media::clipPicture({7, 77}, QSize(320, 180)));
    trel::screen::StagePicture standBy;
    standBy.kind = trel::screen::StagePicture::Kind::StandBy;
    screen.stage().show(standBy);
    QCOMPARE(shown(QRectF(0, 37, 400, 225)), std::optional(media::ClipMark{7, 77}));
    windowOf(screen).resize(640, 360);
    QTRY_COMPARE(shown(QRectF(0, 0, 640, 360)), std::optional(media::ClipMark{7, 77}));
    screen.stage().show({});
    QVERIFY(!shown(QRectF(0, 0, 640, 360)));
}

TREL_TEST(tst_PlayerScreen, QGuiApplication)
#include "tst_PlayerScreen.moc"
