#include "bundle/MediaName.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <random>

using namespace trel::mediadispatch;

/// Names of files for programs that come from elsewhere.
class tst_MediaName : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void theMarkStandsBeforeTheSuffix();
    void anyTextIsAName();
};

void tst_MediaName::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("file");
    const auto row = [](const char* name, const char* path, const char* file) {
        QTest::newRow(file) << QString::fromUtf8(name) << QString::fromUtf8(path)
                            << QString::fromUtf8(file);
    };
    row("Morning news", "/media/x.MP4", "Morning news.mp4");
    row("晚间新闻", "/media/x.mkv", "晚间新闻.mkv");
    row("a.b", "/media/x", "a.b");
    row("../../etc/passwd", "/media/x.sh", "_.._etc_passwd.sh");
    row("..", "/media/x.mp4", "media.mp4");
    row("/", "/media/.mp4", "_.mp4");
    row(" .hidden ", "/x.toolongasuffix", "hidden");
    row("a\\b:c*d?e\"f<g>h|i", "/x.m p", "a_b_c_d_e_f_g_h_i");
    row("line\nend\x7f", "/x.mp4/../../y", "line_end_");
    row("turned \u202e round", "/x.\u202emp4", "turned _ round");
    row("", "", "media");
}

void tst_MediaName::names()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(QString, file);
    QCOMPARE(mediaFileName(name.toStdString(), path.toStdString()), file);
}

void tst_MediaName::theMarkStandsBeforeTheSuffix()
{
    QCOMPARE(mediaFileName("News", "/x.mp4", QStringLiteral("-0123")),
             QStringLiteral("News-0123.mp4"));
}

void tst_MediaName::anyTextIsAName()
{
    std::mt19937 random(11);
    const auto text = [&random](int most) {
        std::string made;
        const int length = std::uniform_int_distribution<int>(0, most)(random);
        for (int i = 0; i < length; ++i) {
            const bool isOdd = std::uniform_int_distribution<int>(0, 3)(random) == 0;
            made += isOdd ? "./\\\n "[std::uniform_int_distribution<int>(0, 4)(random)]
                          : char(std::uniform_int_distribution<int>(-128, 127)(random));
        }
        return made;
    };
    for (int round = 0; round < 5000; ++round) {
        const QString name = mediaFileName(text(300), text(20), QString(65, QLatin1Char('-')));
        QVERIFY(!name.isEmpty() && !name.startsWith(QLatin1Char('.')));
        QVERIFY(!name.contains(QLatin1Char('/')) && !name.contains(QChar(0)));
        QVERIFY2(name.toUtf8().size() <= 215, qPrintable(name));
        QCOMPARE(QString::fromUtf8(name.toUtf8()), name);
    }
}

TREL_TEST(tst_MediaName, trel::tests::NoApplication)
#include "tst_MediaName.moc"
