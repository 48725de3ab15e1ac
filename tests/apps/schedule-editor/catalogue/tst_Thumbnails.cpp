#include "catalogue/Thumbnails.h"

#include "HostFixture.h"
#include "support/ChildProcesses.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QDockWidget>
#include <QScrollBar>
#include <QSignalSpy>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

ProgramIten program(const QString& path, ProgramKind kind, int index = 1)
{
    ProgramIten program;
    program.progIndex = index;
    program.mediaPath = path.toStdString();
    program.kind = kind;
    return program;
}

} // namespace

/// Small pictures of programs: read where they can be seen, and nowhere else.
class tst_Thumbnails : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aPictureStandsInItsFrame();
    void aSignStandsForWhatHasNone_data();
    void aSignStandsForWhatHasNone();
    void whatIsNotWishedForAnyMoreIsNotRead();
    void aRenewedPictureStandsUntilItIsReadAgain();
    void onlyRowsInSightAreRead();
    void nothingIsReadWhileThePanelIsHidden();

private:
    /// An image of one colour, as wide and high as it says.
    QString image(const char* name, const QSize& size, const QColor& colour) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = m_folder->filePath(QLatin1String(name));
        return image.save(path) ? path : QString();
    }
    static QColor dot(const QPixmap& picture, int x, int y)
    {
        return picture.toImage().pixelColor(x, y);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_Thumbnails::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_Thumbnails::aPictureStandsInItsFrame()
{
    Thumbnails pictures;
    QSignalSpy ready(&pictures, &Thumbnails::ready);
    QVERIFY(ready.isValid());
    const ProgramIten high = program(image("high.png", {50, 100}, Qt::red), ProgramKind::Image, 7);
    pictures.wish({high});
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(ready[0][0].toInt(), 7);
    const QPixmap picture = pictures.picture(high);
    QCOMPARE(picture.size(), Thumbnails::frame());
    QCOMPARE(dot(picture, 24, 13), QColor(Qt::red));
    QCOMPARE(dot(picture, 2, 13), QColor(Qt::black));
    // Known: nothing is read for it.
    pictures.wish({high});
    pictures.setDotsPerPoint(2.0);
    QCOMPARE(pictures.known(), 0);
    pictures.wish({high});
    QTRY_COMPARE(ready.count(), 2);
    QCOMPARE(pictures.picture(high).size(), Thumbnails::frame() * 2);
    QCOMPARE(pictures.picture(high).devicePixelRatio(), 2.0);
}

void tst_Thumbnails::aSignStandsForWhatHasNone_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("sound") << static_cast<int>(ProgramKind::Audio) << false;
    QTest::newRow("live") << static_cast<int>(ProgramKind::Live) << false;
    QTest::newRow("missing") << static_cast<int>(ProgramKind::Image) << true;
}

void tst_Thumbnails::aSignStandsForWhatHasNone()
{
    QFETCH(int, kind);
    QFETCH(bool, isMissing);
    Thumbnails pictures;
    QSignalSpy ready(&pictures, &Thumbnails::ready);
    QVERIFY(ready.isValid());
    ProgramIten item = program(image("a.png", {64, 36}, Qt::red), static_cast<ProgramKind>(kind));
    item.isNull = isMissing;
    pictures.wish({item});
    QVERIFY(childProcesses().isEmpty());
    const QPixmap sign = pictures.picture(item);
    QCOMPARE(sign.size(), Thumbnails::frame());
    QVERIFY(dot(sign, 24, 13) != QColor(Qt::red));
    // No two kinds have the same.
    QVERIFY(sign.toImage() != pictures.picture(program(QString(), ProgramKind::Other)).toImage());
    QCOMPARE(ready.count(), 0);
}

void tst_Thumbnails::whatIsNotWishedForAnyMoreIsNotRead()
{
    Thumbnails pictures;
    QSignalSpy ready(&pictures, &Thumbnails::ready);
    QVERIFY(ready.isValid());
    std::vector<ProgramIten> programs;
    for (int i = 0; i < 20; ++i) {
        const QByteArray name = QByteArray::number(i) + ".png";
        programs.push_back(
            program(image(name.constData(), {64, 36}, Qt::red), ProgramKind::Image, i));
    }
    pictures.wish(programs);
    const ProgramIten last = programs.back();
    pictures.wish({last});
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(ready[0][0].toInt(), 19);
    pictures.wish(programs);
    pictures.wish({});
    QTRY_VERIFY(childProcesses().isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(pictures.known() <= 2);
}

void tst_Thumbnails::aRenewedPictureStandsUntilItIsReadAgain()
{
    Thumbnails pictures;
    QSignalSpy ready(&pictures, &Thumbnails::ready);
    QVERIFY(ready.isValid());
    const ProgramIten item = program(image("a.png", {64, 36}, Qt::red), ProgramKind::Image);
    pictures.wish({item});
    QTRY_COMPARE(ready.count(), 1);
    image("a.png", {64, 36}, Qt::blue);
    pictures.renew();
    QCOMPARE(dot(pictures.picture(item), 24, 13), QColor(Qt::red));
    pictures.wish({item});
    QTRY_COMPARE(ready.count(), 2);
    QCOMPARE(dot(pictures.picture(item), 24, 13), QColor(Qt::blue));
}

void tst_Thumbnails::onlyRowsInSightAreRead()
{
    HostFixture fixture;
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    std::vector<MediaSource> sources;
    for (int i = 0; i < 200; ++i) {
        const QByteArray name = QByteArray::number(i) + ".png";
        sources.push_back({QString::number(i), image(name.constData(), {64, 36}, Qt::red), 0.0,
                           ProgramKind::Image});
    }
    QVERIFY(fixture.host.addPrograms(sources).store);
    fixture.window.resize(1180, 720);
    fixture.window.show();
    auto* table = fixture.window.findChild<QTableView*>(QStringLiteral("programTable"));
    auto* pictures = fixture.window.findChild<Thumbnails*>();
    QVERIFY(pictures != nullptr);
    const int inSight = table->rowAt(table->viewport()->height() - 1) + 1;
    QVERIFY(inSight > 3 && inSight < 100);
    QTRY_COMPARE(pictures->known(), inSight);
    QTRY_VERIFY(childProcesses().isEmpty());
    QCOMPARE(pictures->known(), inSight);
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    QTRY_COMPARE(pictures->known(), 2 * inSight);
    const QRect cell = table->visualRect(table->model()->index(199, 0));
    const QImage shown = table->viewport()->grab(cell).toImage();
    QCOMPARE(shown.pixelColor(24, cell.height() / 2), QColor(Qt::red));
}

void tst_Thumbnails::nothingIsReadWhileThePanelIsHidden()
{
    HostFixture fixture;
    QCOMPARE(fixture.window.openDatabase(fixture.database), QString());
    fixture.window.show();
    auto* panel = fixture.window.findChild<QWidget*>(QStringLiteral("cataloguePanel"));
    panel->hide();
    QCoreApplication::processEvents();
    QVERIFY(fixture.host
                .addPrograms({{QStringLiteral("a"), image("a.png", {64, 36}, Qt::red), 0.0,
                               ProgramKind::Image}})
                .store);
    auto* pictures = fixture.window.findChild<Thumbnails*>();
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::processEvents();
        QVERIFY(childProcesses().isEmpty());
    }
    QCOMPARE(pictures->known(), 0);
    panel->show();
    QTRY_COMPARE(pictures->known(), 1);
}

TREL_TEST(tst_Thumbnails, QApplication)
#include "tst_Thumbnails.moc"
