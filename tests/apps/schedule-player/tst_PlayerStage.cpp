#include "DeckFixture.h"
#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QGuiApplication>

using trel::mediadispatch::ProgramKind;
using trel::player::ScreenShape;
using trel::player::SoftwareStage;
using trel::screen::StagePicture;

Q_DECLARE_METATYPE(trel::mediadispatch::ProgramKind)

/// How the picture of a screen is put together.
class tst_PlayerStage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void isBlackToBeginWith();
    void fillsTheScreenByTheSmallerSide_data();
    void fillsTheScreenByTheSmallerSide();
    void turnsWithTheScreen_data();
    void turnsWithTheScreen();
    void turnsAFilmAsItsMarkSays();
    void turnsAnImageAsItsMarkSays();
    void fitsItsStandByPicture();
    void writesTheCaption();
    void drawsEverythingAgainForAnotherShape();
    void handsOutNothingOfASpareDeck();
    void givesALateSinkWhatIsThere();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void tst_PlayerStage::initTestCase()
{
    media::ClipOrder order;
    order.frames = 25;
    QVERIFY(media::makeClip(file("film.mp4"), order));
    order.turned = 90;
    QVERIFY(media::makeClip(file("turned.mp4"), order));
    QVERIFY(media::clipPicture({5, 77}, QSize(320, 180)).save(file("image.png")));
    // As a camera that is held upright writes it: the picture lies, and the mark says so.
    const QImage lying =
        trel::player::turnedClockwise(media::clipPicture({6, 78}, QSize(180, 320)), 270);
    QVERIFY(media::makeTurnedJpeg(file("turned.jpg"), lying, 6));
}

void tst_PlayerStage::isBlackToBeginWith()
{
    DeckFixture screen;
    QCOMPARE(screen.record.frames().size(), std::size_t(1));
    QCOMPARE(screen.record.last().content, RecordedFrame::Content::Black);
    QCOMPARE(screen.record.lastPicture().size(), QSize(320, 180));
    // Black even where the deck that is shown has nothing, and has been given nothing.
    screen.show(screen.first);
    QCOMPARE(screen.record.last().content, RecordedFrame::Content::Black);
}

void tst_PlayerStage::fillsTheScreenByTheSmallerSide_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ProgramKind>("kind");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QRectF>("part");
    for (const bool isFilm : {true, false}) {
        const auto row = [isFilm](const char* what, const QSize& screen, const QRectF& part) {
            QTest::newRow(qPrintable(
                QString::fromLatin1(isFilm ? "film, %1" : "image, %1").arg(QLatin1String(what))))
                << QString::fromLatin1(isFilm ? "film.mp4" : "image.png")
                << (isFilm ? ProgramKind::Video : ProgramKind::Image) << screen << part;
        };
        row("same", QSize(320, 180), QRectF(0, 0, 320, 180));
        row("larger", QSize(800, 450), QRectF(0, 0, 800, 450));
        row("high", QSize(320, 400), QRectF(0, 110, 320, 180));
        row("wide", QSize(600, 180), QRectF(140, 0, 320, 180));
        row("odd", QSize(641, 363), QRectF(0, 1, 641, 361));
    }
}

void tst_PlayerStage::fillsTheScreenByTheSmallerSide()
{
    QFETCH(const QString, name);
    QFETCH(const ProgramKind, kind);
    QFETCH(const QSize, screen);
    QFETCH(const QRectF, part);
    DeckFixture fixture({screen, 0});
    fixture.record.setPart(part);
    fixture.show(fixture.first);
    fixture.first.load({m_folder.filePath(name), kind, 0, false});
    QTRY_VERIFY(fixture.first.isReady());
    QCOMPARE(fixture.record.last().content, RecordedFrame::Content::Clip);
    const QImage picture = fixture.record.lastPicture();
    QCOMPARE(picture.size(), screen);
    QVERIFY(!picture.hasAlphaChannel());
    // Around it is nothing.
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (!part.adjusted(-2, -2, 2, 2).contains(x, y)) {
                QCOMPARE(qGray(picture.pixel(x, y)), 0);
            }
        }
    }
}

void tst_PlayerStage::turnsWithTheScreen_data()
{
    QTest::addColumn<int>("turned");
    QTest::addColumn<QString>("name");
    QTest::addColumn<ProgramKind>("kind");
    for (const int turned : {90, 180, 270}) {
        QTest::newRow(qPrintable(QStringLiteral("film %1").arg(turned)))
            << turned << QStringLiteral("film.mp4") << ProgramKind::Video;
        QTest::newRow(qPrintable(QStringLiteral("image %1").arg(turned)))
            << turned << QStringLiteral("image.png") << ProgramKind::Image;
    }
}

void tst_PlayerStage::turnsWithTheScreen()
{
    QFETCH(const int, turned);
    QFETCH(const QString, name);
    QFETCH(const ProgramKind, kind);
    const QSize size = turned == 180 ? QSize(320, 180) : QSize(180, 320);
    DeckFixture screen({size, turned});
    screen.record.setTurned(turned);
    screen.show(screen.first);
    screen.first.load({m_folder.filePath(name), kind, 0, false});
    QTRY_VERIFY(screen.first.isReady());
    QCOMPARE(screen.record.lastPicture().size(), size);
    QCOMPARE(screen.record.last().content, RecordedFrame::Content::Clip);
}

void tst_PlayerStage::turnsAFilmAsItsMarkSays()
{
    for (const int turned : {0, 90}) {
        const QSize size = turned == 0 ? QSize(180, 320) : QSize(320, 180);
        DeckFixture screen({size, turned});
        // The clip was not drawn for its mark, so that it lies once it has been turned.
        screen.record.setTurned((turned + 90) % 360);
        screen.show(screen.first);
        screen.first.load(filmOf(file("turned.mp4")));
        QTRY_VERIFY(screen.first.isReady());
        QVERIFY(screen.shows(1, 0));
        screen.first.play();
        QTRY_VERIFY(screen.shows(1, 24));
    }
}

void tst_PlayerStage::turnsAnImageAsItsMarkSays()
{
    DeckFixture screen({QSize(180, 320), 0});
    screen.show(screen.first);
    screen.first.load({file("turned.jpg"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.first.isReady());
    QVERIFY(screen.shows(6, 78));
    QVERIFY(!screen.first.position());
}

void tst_PlayerStage::fitsItsStandByPicture()
{
    for (const int turned : {0, 90}) {
        const ScreenShape shape{turned == 0 ? QSize(320, 240) : QSize(240, 320), turned};
        SoftwareStage stage(shape, media::clipPicture({8, 80}, QSize(160, 90)));
        FrameRecord record;
        record.setTurned(turned);
        record.setPart(QRectF(0, 30, 320, 180));
        stage.add(record);
        StagePicture standBy;
        standBy.kind = StagePicture::Kind::StandBy;
        stage.show(standBy);
        QCOMPARE(record.last().content, RecordedFrame::Content::Clip);
        QCOMPARE(record.last().mark, (media::ClipMark{8, 80}));
        stage.show({});
        QCOMPARE(record.last().content, RecordedFrame::Content::Black);
    }
}

void tst_PlayerStage::writesTheCaption()
{
    SoftwareStage stage({QSize(320, 180), 0}, QImage());
    FrameRecord record;
    stage.add(record);
    StagePicture sounds;
    sounds.kind = StagePicture::Kind::StandBy;
    sounds.caption = QStringLiteral("<b>A song</b>");
    stage.show(sounds);
    QCOMPARE(record.last().content, RecordedFrame::Content::Other);
    const QImage first = record.lastPicture();
    // Signs are signs.
    sounds.caption = QStringLiteral("A song");
    stage.show(sounds);
    QVERIFY(record.lastPicture() != first);
    // What is too long stays within the picture, in one line.
    sounds.caption = QStringLiteral("A very long\nname ").repeated(20);
    stage.show(sounds);
    const QImage lines = record.lastPicture();
    for (int y = 0; y < lines.height(); ++y) {
        QCOMPARE(qGray(lines.pixel(0, y)), 0);
        QCOMPARE(qGray(lines.pixel(lines.width() - 1, y)), 0);
    }
    QCOMPARE(qGray(lines.pixel(160, 20)), 0);
    sounds.caption = QString();
    stage.show(sounds);
    QCOMPARE(record.last().content, RecordedFrame::Content::Black);
}

void tst_PlayerStage::drawsEverythingAgainForAnotherShape()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load(filmOf(file("film.mp4")));
    screen.second.load({file("image.png"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.first.isReady() && screen.second.isReady());
    screen.record.setTurned(90);
    screen.stage.setShape({QSize(360, 640), 90});
    QCOMPARE(screen.record.lastPicture().size(), QSize(360, 640));
    QTRY_VERIFY(screen.shows(1, 0));
    QTRY_COMPARE(screen.second.picture().image.size(), QSize(360, 640));
    screen.show(screen.second);
    QVERIFY(screen.shows(5, 77));
}

void tst_PlayerStage::handsOutNothingOfASpareDeck()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load({file("image.png"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.first.isReady());
    const std::size_t frames = screen.record.frames().size();
    screen.second.load(filmOf(file("film.mp4")));
    QTRY_VERIFY(screen.second.isReady());
    screen.second.play();
    QTest::qWait(200);
    QCOMPARE(screen.record.frames().size(), frames);
}

void tst_PlayerStage::givesALateSinkWhatIsThere()
{
    DeckFixture screen;
    screen.show(screen.first);
    screen.first.load({file("image.png"), ProgramKind::Image, 0, false});
    QTRY_VERIFY(screen.first.isReady());
    FrameRecord late;
    screen.stage.add(late);
    QCOMPARE(late.frames().size(), std::size_t(1));
    QCOMPARE(late.last().mark, (media::ClipMark{5, 77}));
}

TREL_TEST(tst_PlayerStage, QGuiApplication)
#include "tst_PlayerStage.moc"
