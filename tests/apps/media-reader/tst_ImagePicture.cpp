#include "ImagePicture.h"
#include "InputFile.h"
#include "MediaInput.h"
#include "support/PngFile.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <fcntl.h>
#include <sys/resource.h>

using namespace trel::mediareader;

/// Images as cameras and scanners make them: turned, mirrored, and larger than any screen.
class tst_ImagePicture : public QObject
{
    Q_OBJECT

private slots:
    void standsAsItWasTaken_data();
    void standsAsItWasTaken();
    void aHugeImageIsReadInStripes();
    void aHugePhotographIsScaledWhileItIsRead();
    void whatCostsTooMuchIsNotRead_data();
    void whatCostsTooMuchIsNotRead();
    void imagesInPassesAreRead();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    static QImage read(const QString& file, int side)
    {
        const InputFile input(::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC));
        return imagePicture(input, NameHint(), QSize(side, side));
    }
    /// The photograph of the corners, with what a camera says of its position.
    QString photograph(quint16 orientation) const;
    /// The first rows of a photograph that tells of very many.
    QString hugeJpeg(bool isProgressive) const;

    QTemporaryDir m_folder;
};

namespace {

/// The largest size that the process has had in memory, in kilobytes.
long peak()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// "red green / blue white", the corners as people read.
QString cornersOf(const QImage& image)
{
    const auto name = [&](double x, double y) {
        const QColor colour = image.pixelColor(int(image.width() * x), int(image.height() * y));
        const bool isRed = colour.red() > 127;
        const bool isGreen = colour.green() > 127;
        if (isRed && isGreen) {
            return QStringLiteral("white");
        }
        return isRed     ? QStringLiteral("red")
               : isGreen ? QStringLiteral("green")
                         : QStringLiteral("blue");
    };
    return QStringLiteral("%1 %2 / %3 %4")
        .arg(name(0.1, 0.1), name(0.9, 0.1), name(0.1, 0.9), name(0.9, 0.9));
}

QByteArray bytesOf(quint16 value)
{
    QByteArray bytes(2, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

} // namespace

QString tst_ImagePicture::photograph(quint16 orientation) const
{
    QImage image(800, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 800; ++x) {
            const QColor colour =
                y < 200 ? (x < 400 ? Qt::red : Qt::green) : (x < 400 ? Qt::blue : Qt::white);
            image.setPixelColor(x, y, colour);
        }
    }
    const QString file = path("photograph.jpg");
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    QImageWriter(&buffer, "jpeg").write(image);
    // One entry of a directory: the orientation, one short number.
    QByteArray exif("Exif\0\0MM\0\x2a\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01", 24);
    exif += bytesOf(orientation) + QByteArray(2 + 4, '\0');
    jpeg.insert(2, QByteArray("\xff\xe1") + bytesOf(static_cast<quint16>(exif.size() + 2)) + exif);
    QFile stored(file);
    [&] {
        QVERIFY(stored.open(QIODevice::WriteOnly));
        QCOMPARE(stored.write(jpeg), qint64(jpeg.size()));
    }();
    return file;
}

QString tst_ImagePicture::hugeJpeg(bool isProgressive) const
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(isProgressive);
    writer.write(image);
    // Height and width stand behind the marker of the frame, its length and the depth of a dot.
    const int frame = jpeg.indexOf(isProgressive ? "\xff\xc2" : "\xff\xc0");
    jpeg.replace(frame + 5, 4, bytesOf(20000) + bytesOf(20000));
    const QString file = path("huge.jpg");
    QFile stored(file);
    [&] {
        QVERIFY(frame > 0);
        QVERIFY(stored.open(QIODevice::WriteOnly));
        QCOMPARE(stored.write(jpeg), qint64(jpeg.size()));
    }();
    return file;
}

void tst_ImagePicture::standsAsItWasTaken_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("corners");
    const auto row = [](const char* name, int orientation, const char* corners) {
        QTest::newRow(name) << orientation << QString::fromLatin1(corners);
    };
    row("upright", 1, "red green / blue white");
    row("mirrored", 2, "green red / white blue");
    row("upside down", 3, "white blue / green red");
    row("upside down and mirrored", 4, "blue white / red green");
    row("on its side and mirrored", 5, "red blue / green white");
    row("to be turned to the right", 6, "blue red / white green");
    row("on the other side and mirrored", 7, "white green / blue red");
    row("to be turned to the left", 8, "green white / red blue");
}

void tst_ImagePicture::standsAsItWasTaken()
{
    QFETCH(int, orientation);
    const QString file = photograph(static_cast<quint16>(orientation));
    const bool isOnItsSide = orientation > 4;
    // Scaled down, scaled down a little, and as it is.
    for (const int side : {200, 600, 1000}) {
        const QImage image = read(file, side);
        const int length = std::min(side, 800);
        QCOMPARE(image.size(), isOnItsSide ? QSize(length / 2, length) : QSize(length, length / 2));
        QTEST(cornersOf(image), "corners");
    }
}

void tst_ImagePicture::aHugeImageIsReadInStripes()
{
    // Whole it would take more than half a gigabyte.
    const QString file = path("huge.png");
    QVERIFY(PngFile::write(file, QSize(12000, 12000)));
    const long before = peak();
    const QImage image = read(file, 480);
    QCOMPARE(image.size(), QSize(480, 480));
    QCOMPARE(image.pixelColor(240, 240), QColor(Qt::black));
    const long growth = peak() - before;
    QVERIFY2(growth < 100 * 1024, qPrintable(QString::number(growth)));
}

void tst_ImagePicture::whatCostsTooMuchIsNotRead_data()
{
    QTest::addColumn<QString>("file");
    const auto row = [this](const char* name, const QSize& size, PngFile::Layout layout) {
        const QString file = path(name) + QStringLiteral(".png");
        QTest::newRow(name) << file;
        QVERIFY(PngFile::write(file, size, layout));
    };
    row("interlaced", QSize(12000, 12000), PngFile::Layout::Passes);
    row("no end of rows", QSize(60000, 60000), PngFile::Layout::Stripes);
    QTest::newRow("progressive") << hugeJpeg(true);
}

void tst_ImagePicture::whatCostsTooMuchIsNotRead()
{
    QFETCH(QString, file);
    const long before = peak();
    QVERIFY(read(file, 480).isNull());
    const long growth = peak() - before;
    QVERIFY2(growth < 100 * 1024, qPrintable(QString::number(growth)));
}

/// Its data end early, and what there is of it is shown.
void tst_ImagePicture::aHugePhotographIsScaledWhileItIsRead()
{
    const QString file = hugeJpeg(false);
    const long before = peak();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Corrupt JPEG data")));
    QCOMPARE(read(file, 480).size(), QSize(480, 480));
    const long growth = peak() - before;
    QVERIFY2(growth < 100 * 1024, qPrintable(QString::number(growth)));
}

void tst_ImagePicture::imagesInPassesAreRead()
{
    QImage image(900, 300, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString file = path("small.jpg");
    QImageWriter writer(file, "jpeg");
    writer.setProgressiveScanWrite(true);
    QVERIFY(writer.write(image));
    QCOMPARE(read(file, 300).size(), QSize(300, 100));
}

TREL_TEST(tst_ImagePicture, QCoreApplication)
#include "tst_ImagePicture.moc"
