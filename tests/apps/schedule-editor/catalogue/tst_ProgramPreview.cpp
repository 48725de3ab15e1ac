#include "catalogue/ProgramPreview.h"

#include "HostFixture.h"
#include "catalogue/PreviewPicture.h"
#include "support/NumberedClip.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QAction>
#include <QLabel>
#include <QSlider>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// A look at programs of the catalogue.
class tst_ProgramPreview : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDoubleClickShowsAFilm();
    void theBarChoosesThePosition();
    void keysOpenAndMoveIt();
    void anImageIsShownWhole();
    void whatHasNoPictureIsSaid_data();
    void whatHasNoPictureIsSaid();
    void aFileThatGoesIsSaid();

private:
    QTableView& table() const
    {
        return *m_fixture->window.findChild<QTableView*>(QStringLiteral("programTable"));
    }
    ProgramPreview& preview() const { return *m_fixture->window.findChild<ProgramPreview*>(); }
    const QImage& image() const { return preview().findChild<PreviewPicture*>()->image(); }
    QSlider& position() const { return *preview().findChild<QSlider*>(); }
    QString text(const char* label) const
    {
        return preview().findChild<QLabel*>(QLatin1String(label))->text();
    }
    int frame() const
    {
        const auto mark = media::readClipMark(image());
        return mark ? mark->frame : -1;
    }
    void open(int row) const
    {
        const QPoint place = table().visualRect(table().model()->index(row, 0)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, place);
        QVERIFY(preview().isVisible());
    }

    std::unique_ptr<HostFixture> m_fixture;
    QString m_clip;
};

/// The catalogue has a clip of ten seconds, an image, a tune and a live source.
void tst_ProgramPreview::init()
{
    m_fixture = std::make_unique<HostFixture>();
    QCOMPARE(m_fixture->window.openDatabase(m_fixture->database), QString());
    m_clip = m_fixture->folder.filePath(QStringLiteral("clip.mp4"));
    media::ClipOrder order;
    order.frames = 250;
    order.framesBetweenKeys = 50;
    QVERIFY(media::makeClip(m_clip, order));
    const QString wide = m_fixture->folder.filePath(QStringLiteral("wide.png"));
    QImage image(400, 100, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(wide));
    const QString tune = m_fixture->folder.filePath(QStringLiteral("tune.ogg"));
    QVERIFY(QFile::copy(QStringLiteral(DEMONSTRATION "/media/Evening music.ogg"), tune));
    QVERIFY(m_fixture->host
                .addPrograms({{QStringLiteral("Clip"), m_clip, 10000.0, ProgramKind::Video},
                              {QStringLiteral("Wide"), wide, 0.0, ProgramKind::Image},
                              {QStringLiteral("Tune"), tune, 60000.0, ProgramKind::Audio},
                              {QStringLiteral("Feed"), QStringLiteral("rtsp://feed"), 0.0,
                               ProgramKind::Live}})
                .store);
    m_fixture->window.show();
    QCoreApplication::processEvents();
}

void tst_ProgramPreview::cleanup()
{
    m_fixture.reset();
}

void tst_ProgramPreview::aDoubleClickShowsAFilm()
{
    open(0);
    QCOMPARE(preview().windowTitle(), QStringLiteral("Clip – Preview"));
    QTRY_COMPARE(frame(), 0);
    QVERIFY(position().isVisible());
    QCOMPARE(position().maximum(), 10000);
    QCOMPARE(text("previewTime"), QStringLiteral("00:00:00 of 00:00:10"));
    QCOMPARE(text("previewRemark"), QString());
}

void tst_ProgramPreview::theBarChoosesThePosition()
{
    open(0);
    QTRY_COMPARE(frame(), 0);
    position().setValue(4000);
    QTRY_COMPARE(frame(), 100);
    QCOMPARE(text("previewTime"), QStringLiteral("00:00:04 of 00:00:10"));
    // Between two pictures it is the one that follows.
    position().setValue(7410);
    QTRY_COMPARE(frame(), 186);
    // Behind the last one the last one stays.
    position().setValue(10000);
    QTRY_COMPARE(frame(), 249);
    // What the bar passes by while a picture is read is not read.
    for (int value = 0; value <= 2000; value += 40) {
        position().setValue(value);
    }
    QTRY_COMPARE(frame(), 50);
}

void tst_ProgramPreview::keysOpenAndMoveIt()
{
    table().selectRow(0);
    QTest::keyClick(&table(), Qt::Key_Return);
    QVERIFY(preview().isVisible());
    QTRY_COMPARE(frame(), 0);
    QTest::keyClick(&position(), Qt::Key_Right);
    QTRY_COMPARE(frame(), 25);
    QTest::keyClick(&preview(), Qt::Key_Escape);
    QVERIFY(!preview().isVisible());
    // Another one begins at its begin.
    table().selectRow(0);
    QTest::keyClick(&table(), Qt::Key_Enter);
    QTRY_COMPARE(frame(), 0);
    QCOMPARE(position().value(), 0);
}

void tst_ProgramPreview::anImageIsShownWhole()
{
    open(1);
    QTRY_COMPARE(image().size(), QSize(400, 100));
    QVERIFY(!position().isVisible());
    auto* picture = preview().findChild<PreviewPicture*>();
    const QImage shown = picture->grab().toImage();
    const QPoint middle = shown.rect().center();
    QCOMPARE(shown.pixelColor(middle), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(middle + QPoint(0, 60)), QColor(Qt::black));
    QCOMPARE(shown.pixelColor(middle + QPoint(190, 0)), QColor(Qt::red));
}

void tst_ProgramPreview::whatHasNoPictureIsSaid_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("remark");
    QTest::newRow("sound") << 2 << QStringLiteral("Sound has no picture.");
    QTest::newRow("live") << 3 << QStringLiteral("A live source is seen on the screens alone.");
}

void tst_ProgramPreview::whatHasNoPictureIsSaid()
{
    QFETCH(int, row);
    open(0);
    QTRY_COMPARE(frame(), 0);
    open(row);
    QTEST(text("previewRemark"), "remark");
    QVERIFY(image().isNull());
    QVERIFY(!position().isVisible());
}

void tst_ProgramPreview::aFileThatGoesIsSaid()
{
    open(0);
    QTRY_COMPARE(frame(), 0);
    QVERIFY(QFile::remove(m_clip));
    QTRY_COMPARE(text("previewRemark"), QStringLiteral("The file is not found."));
    QVERIFY(image().isNull());
}

TREL_TEST(tst_ProgramPreview, QApplication)
#include "tst_ProgramPreview.moc"
