#include "FrameRecord.h"
#include "PlayerScreen.h"
#include "support/NumberedClip.h"
#include "support/TestProgram.h"
#include "window/GlWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

using trel::mediadispatch::ProgramKind;
using trel::player::GlWindow;
using trel::player::PlayerScreen;
using trel::player::ScreenWishes;
using trel::screen::Deck;
using trel::screen::StagePicture;

/// The way through OpenGL, on an X server in memory where the processor draws.
class tst_PlayerGl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void showsFilmsImagesAndStandBy_data();
    void showsFilmsImagesAndStandBy();
    void changesDecksWithoutAForeignPicture();
    void comesAndGoes();
    void goesOnInMemoryWhereTheWindowIsLost();
    void goesOnInMemoryWhereAFilmCannotBeDrawn();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    static ScreenWishes wishes(int turned);
    static void show(PlayerScreen& screen, const Deck& deck);
    static std::optional<media::ClipMark> markOn(PlayerScreen& screen, int turned);

    QTemporaryDir m_folder;
};

ScreenWishes tst_PlayerGl::wishes(int turned)
{
    ScreenWishes wishes;
    wishes.title = QStringLiteral("Lobby");
    wishes.isFullScreen = false;
    wishes.isMute = true;
    wishes.turned = turned;
    wishes.windowSize = turned % 180 == 0 ? QSize(640, 360) : QSize(360, 640);
    wishes.standBy = media::clipPicture({3, 33}, QSize(320, 180));
    wishes.drawing = ScreenWishes::Drawing::OpenGl;
    return wishes;
}

void tst_PlayerGl::show(PlayerScreen& screen, const Deck& deck)
{
    StagePicture picture;
    picture.kind = StagePicture::Kind::Deck;
    picture.deck = &deck;
    screen.stage().show(picture);
}

std::optional<media::ClipMark> tst_PlayerGl::markOn(PlayerScreen& screen, int turned)
{
    auto& window = const_cast<GlWindow&>(dynamic_cast<const GlWindow&>(screen.window()));
    return media::readClipMark(trel::player::turnedClockwise(window.shown(), (360 - turned) % 360));
}

void tst_PlayerGl::initTestCase()
{
    media::ClipOrder order;
    order.frames = 100;
    QVERIFY(media::makeClip(file("one.mp4"), order));
    order.program = 2;
    QVERIFY(media::makeClip(file("two.mp4"), order));
    QVERIFY(media::clipPicture({5, 55}, QSize(320, 180)).save(file("image.png")));
}

void tst_PlayerGl::showsFilmsImagesAndStandBy_data()
{
    QTest::addColumn<int>("turned");
    for (const int turned : {0, 90, 180, 270}) {
        QTest::newRow(qPrintable(QString::number(turned))) << turned;
    }
}

void tst_PlayerGl::showsFilmsImagesAndStandBy()
{
    QFETCH(const int, turned);
    PlayerScreen screen(wishes(turned));
    QVERIFY(screen.drawsByOpenGl());
    QTRY_VERIFY(screen.window().isExposed());
    screen.firstDeck().load({file("one.mp4"), ProgramKind::Video, 1000, false});
    screen.secondDeck().load({file("image.png"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.firstDeck().isReady() && screen.secondDeck().isReady());
    show(screen, screen.firstDeck());
    QCOMPARE(markOn(screen, turned), std::optional(media::ClipMark{1, 25}));
    show(screen, screen.secondDeck());
    QCOMPARE(markOn(screen, turned), std::optional(media::ClipMark{5, 55}));
    StagePicture standBy;
    standBy.kind = StagePicture::Kind::StandBy;
    screen.stage().show(standBy);
    QCOMPARE(markOn(screen, turned), std::optional(media::ClipMark{3, 33}));
    screen.stage().show({});
    QVERIFY(!markOn(screen, turned));
}

void tst_PlayerGl::changesDecksWithoutAForeignPicture()
{
    PlayerScreen screen(wishes(0));
    QTRY_VERIFY(screen.window().isExposed());
    Deck* on = &screen.firstDeck();
    Deck* spare = &screen.secondDeck();
    on->load({file("one.mp4"), ProgramKind::Video, 0, false});
    QTRY_VERIFY(on->isReady());
    show(screen, *on);
    on->play();
    for (int turn = 1; turn < 5; ++turn) {
        const int program = turn % 2 + 1;
        spare->load(
            {file(program == 1 ? "one.mp4" : "two.mp4"), ProgramKind::Video, 400 * turn, false});
        QTRY_VERIFY(spare->isReady());
        show(screen, *spare);
        spare->play();
        on->clear();
        std::swap(on, spare);
        QCOMPARE(markOn(screen, 0), std::optional(media::ClipMark{program, 10 * turn}));
        const auto frame = [&] {
            const auto mark = markOn(screen, 0);
            return mark && mark->program == program ? mark->frame : -1;
        };
        QTRY_VERIFY(frame() > 10 * turn + 3);
    }
}

void tst_PlayerGl::comesAndGoes()
{
    for (int turn = 0; turn < 3; ++turn) {
        PlayerScreen screen(wishes(0));
        screen.firstDeck().load({file("one.mp4"), ProgramKind::Video, 0, false});
        show(screen, screen.firstDeck());
        QTRY_VERIFY(screen.firstDeck().isReady());
        screen.firstDeck().play();
    }
}

void tst_PlayerGl::goesOnInMemoryWhereTheWindowIsLost()
{
    PlayerScreen screen(wishes(0));
    QTRY_VERIFY(screen.window().isExposed());
    QSignalSpy lost(&screen, &PlayerScreen::openGlLost);
    QSignalSpy failed(&screen.firstDeck(), &Deck::failed);
    QSignalSpy otherFailed(&screen.secondDeck(), &Deck::failed);
    const quint64 load = screen.firstDeck().load({file("one.mp4"), ProgramKind::Video, 0, false});
    screen.secondDeck().load({file("image.png"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.firstDeck().isReady() && screen.secondDeck().isReady());
    show(screen, screen.firstDeck());
    QVERIFY(screen.drawsByOpenGl());
    QCOMPARE(failed.count(), 0);
    const QPoint place(30, 40);
    auto& window = const_cast<QWindow&>(screen.window());
    window.setPosition(place);

    // A window of a kind that OpenGL does not draw into, as one whose driver has gone.
    window.setSurfaceType(QSurface::OpenVGSurface);
    screen.firstDeck().play();
    QTRY_COMPARE(lost.count(), 1);
    QVERIFY(!screen.drawsByOpenGl());
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.first().first().toULongLong(), load);
    QVERIFY(!screen.firstDeck().hasPicture());
    // An image has nothing to do with OpenGL.
    QCOMPARE(otherFailed.count(), 0);
    QVERIFY(screen.secondDeck().isReady());
    QTRY_VERIFY(screen.window().isExposed());
    QCOMPARE(screen.window().title(), wishes(0).title);

    FrameRecord record;
    screen.add(record);
    screen.firstDeck().load({file("one.mp4"), ProgramKind::Video, 1000, false});
    QTRY_VERIFY(screen.firstDeck().isReady());
    show(screen, screen.firstDeck());
    QCOMPARE(record.last().mark, (media::ClipMark{1, 25}));
    const auto inTheWindow = [&screen] {
        const QWindow& raster = screen.window();
        return media::readClipMark(raster.screen()->grabWindow(raster.winId()).toImage());
    };
    QTRY_COMPARE(inTheWindow(), std::optional(media::ClipMark{1, 25}));
    screen.firstDeck().play();
    QTRY_VERIFY(record.last().mark.frame > 30);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(lost.count(), 1);
}

void tst_PlayerGl::goesOnInMemoryWhereAFilmCannotBeDrawn()
{
    PlayerScreen screen(wishes(0));
    QTRY_VERIFY(screen.window().isExposed());
    QSignalSpy lost(&screen, &PlayerScreen::openGlLost);
    emit dynamic_cast<trel::player::PlayerDeck&>(screen.secondDeck()).drawingFailed();
    QTRY_COMPARE(lost.count(), 1);
    screen.secondDeck().load({file("one.mp4"), ProgramKind::Video, 1000, false});
    QTRY_VERIFY(screen.secondDeck().isReady());
    FrameRecord record;
    screen.add(record);
    show(screen, screen.secondDeck());
    QCOMPARE(record.last().mark, (media::ClipMark{1, 25}));
}

TREL_TEST(tst_PlayerGl, QGuiApplication)
#include "tst_PlayerGl.moc"
