#include "Drawing.h"
#include "InputFile.h"
#include "support/TestProgram.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QTemporaryFile>
#include <QtTest>

#include <fcntl.h>

using namespace trel::mediareader;

/// Drawings, and what is left out of them before anything is drawn.
class tst_Drawing : public QObject
{
    Q_OBJECT

private slots:
    void isRecognised_data();
    void isRecognised();
    void referencesToElsewhereAreLeftOut_data();
    void referencesToElsewhereAreLeftOut();
    void innerPartsStay();
    void whatIsNoDrawingIsEmpty_data();
    void whatIsNoDrawingIsEmpty();
    void isScaledDownAndNeverUp();
    void writingIsDrawn();

private:
    /// A file with this in it, which stays open for the test.
    std::unique_ptr<InputFile> file(const QByteArray& content);
    QByteArray read(const QByteArray& content) { return readDrawing(*file(content)); }

    static QByteArray svg(const QByteArray& inner, const QByteArray& attributes = {})
    {
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" "
               "xmlns:xlink=\"http://www.w3.org/1999/xlink\" " +
               attributes + ">" + inner + "</svg>";
    }
};

std::unique_ptr<InputFile> tst_Drawing::file(const QByteArray& content)
{
    QTemporaryFile stored;
    stored.open();
    stored.write(content);
    stored.flush();
    return std::make_unique<InputFile>(
        ::open(QFile::encodeName(stored.fileName()).constData(), O_RDONLY | O_CLOEXEC));
}

void tst_Drawing::isRecognised_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("result");

    QTest::newRow("bare") << QByteArray("<svg/>") << true;
    QTest::newRow("with a head")
        << QByteArray("\xef\xbb\xbf<?xml version=\"1.0\"?>\n<!-- a -->\n<!DOCTYPE svg>\n<svg:svg "
                      "xmlns:svg=\"http://www.w3.org/2000/svg\">")
        << true;
    QTest::newRow("another document") << QByteArray("<html><svg/></html>") << false;
    QTest::newRow("text") << QByteArray("svg") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("zeros") << QByteArray(5000, '\0') << false;
}

void tst_Drawing::isRecognised()
{
    QFETCH(QByteArray, content);
    QTEST(isDrawing(*file(content)), "result");
}

void tst_Drawing::referencesToElsewhereAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("content");

    for (const char* address :
         {"secret.png", "/etc/secret.png", "../secret.png", "file:///secret.png", " secret.png",
          "http://host/secret.png", "//host/secret.png", "datasecret.png", "qrc:/secret.png"}) {
        QTest::newRow(address) << svg(QByteArray("<image xlink:href=\"") + address + "\"/>");
    }
    QTest::newRow("without a prefix") << svg("<image href=\"secret.png\"/>");
    QTest::newRow("under another prefix")
        << svg("<image x:href=\"secret.png\"/>", "xmlns:x=\"http://www.w3.org/1999/xlink\"");
    QTest::newRow("through an entity")
        << "<!DOCTYPE svg [<!ENTITY e \"secret.png\">]>" + svg("<image xlink:href=\"&e;\"/>");
    QTest::newRow("a style sheet")
        << "<?xml-stylesheet type=\"text/css\" href=\"secret.css\"?>" + svg("<g/>");
    QTest::newRow("a type") << "<!DOCTYPE svg SYSTEM \"secret.dtd\">" + svg("<g/>");
}

void tst_Drawing::referencesToElsewhereAreLeftOut()
{
    QFETCH(QByteArray, content);
    const QByteArray drawing = read(content);

    QVERIFY(!drawing.isEmpty());
    QVERIFY2(!drawing.contains("secret"), drawing.constData());
}

void tst_Drawing::innerPartsStay()
{
    QImage blue(4, 4, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(blue.save(&buffer, "PNG"));
    const QByteArray content =
        svg("<defs><rect id=\"half\" width=\"10\" height=\"20\" fill=\"#00ff00\"/></defs>"
            "<use xlink:href=\"#half\"/>"
            "<image x=\"10\" y=\"0\" width=\"10\" height=\"20\" preserveAspectRatio=\"none\" "
            "xlink:href=\"data:image/png;base64," +
                png.toBase64() + "\"/>",
            "width=\"20\" height=\"20\"");

    const QImage image = drawingImage(*file(content), QSize(100, 100));

    QCOMPARE(image.size(), QSize(20, 20));
    QCOMPARE(image.pixelColor(5, 10), QColor(Qt::green));
    QCOMPARE(image.pixelColor(15, 10), QColor(Qt::blue));
}

void tst_Drawing::whatIsNoDrawingIsEmpty_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("cut short") << svg("<g/>").chopped(3);
    QTest::newRow("not well formed") << svg("<g>");
    QTest::newRow("another root") << QByteArray("<html/>");
    QTest::newRow("empty") << QByteArray();
    QByteArray laughs = "<!DOCTYPE svg [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    QTest::newRow("entities without end") << laughs + "]>" + svg("<text>&a29;</text>");
}

void tst_Drawing::whatIsNoDrawingIsEmpty()
{
    QFETCH(QByteArray, content);
    QCOMPARE(read(content), QByteArray());
    QVERIFY(drawingImage(*file(content), QSize(10, 10)).isNull());
}

void tst_Drawing::isScaledDownAndNeverUp()
{
    const QByteArray content = svg("<g/>", "width=\"400\" height=\"100\"");
    QCOMPARE(drawingImage(*file(content), QSize(200, 200)).size(), QSize(200, 50));
    QCOMPARE(drawingImage(*file(content), QSize(800, 800)).size(), QSize(400, 100));
}

void tst_Drawing::writingIsDrawn()
{
    const QByteArray content =
        svg("<text x=\"10\" y=\"40\" font-size=\"40\">Words</text>", "width=\"200\" height=\"50\"");
    const QImage image = drawingImage(*file(content), QSize(200, 200));

    int dots = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            dots += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
        }
    }
    QVERIFY2(dots > 300, qPrintable(QString::number(dots)));
}

TREL_TEST(tst_Drawing, QGuiApplication)
#include "tst_Drawing.moc"
