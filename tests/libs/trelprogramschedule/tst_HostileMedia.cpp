#include "catalogue/ProgramImporter.h"
#include "faults/FaultWords.h"
#include "media/PictureRequest.h"
#include "support/MediaFiles.h"
#include "support/PngFile.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace trel::mediadispatch;

/// Files that are made to bring down or to keep busy who reads them: refused in a moment, with a
/// reason, and the next file is read as if nothing were.
class tst_HostileMedia : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listsOfFilesAreRefused_data();
    void listsOfFilesAreRefused();
    void whatIsNoFileIsRefusedAtOnce_data();
    void whatIsNoFileIsRefusedAtOnce();
    void brokenImages_data();
    void brokenImages();
    void drawingsLoadNothingFromElsewhere();
    void namesThatAreNotUtf8AreToldOf();
    void percentSignsStayInNames();
    void aTgaIsKnownByItsName();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString write(const QString& name, const QByteArray& content) const;
    /// The scan of a file and of a sound one behind it, in words.
    QString scan(const QString& name) const;

    const QTemporaryDir m_folder;
    std::atomic<bool> m_goOn{false};
};

void tst_HostileMedia::initTestCase()
{
    QVERIFY(media::makeVideo(path(QStringLiteral("part.avi")), 50, 25));
    QVERIFY(media::makeWav(path(QStringLiteral("next.wav")), 1000));
}

QString tst_HostileMedia::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? name
                                                                                    : QString();
}

QString tst_HostileMedia::scan(const QString& name) const
{
    QElapsedTimer time;
    time.start();
    const ImportScan found = scanMedia({path(name), path(QStringLiteral("next.wav"))});
    QStringList words;
    for (const ImportRefusal& refusal : found.refusals) {
        words.append(QFileInfo(refusal.path).fileName() + QStringLiteral(": ") +
                     englishSentence(refusal.fault));
    }
    for (const MediaSource& source : found.sources) {
        words.append(source.name);
    }
    if (time.elapsed() > 5000) {
        words.append(QStringLiteral("after %1 ms").arg(time.elapsed()));
    }
    return words.join(QStringLiteral("; "));
}

void tst_HostileMedia::listsOfFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char* name, const QByteArray& content) {
        QTest::newRow(name) << content;
    };
    const QByteArray head = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n";
    const QByteArray end = "\n#EXT-X-ENDLIST\n";
    const QByteArray absolute = QFile::encodeName(path(QStringLiteral("part.avi")));
    const QByteArray folder = QFileInfo(m_folder.path()).fileName().toUtf8();
    for (const char* name : {"x.mp4", "x.m3u8", "x"}) {
        row(name, head + name + end);
    }
    row("choice.m3u8", "#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=1\nchoice.m3u8\n");
    row("live.m3u8", head + "part.avi\n");
    row("absolute.m3u8", head + absolute + end);
    row("up.m3u8", head + "../" + folder + "/part.avi" + end);
    const QByteArray parts =
        "ffconcat version 1.0\n" + QByteArray("file part.avi\n").repeated(100000);
    row("parts.mp4", parts);
    row("parts", parts);
    row("session.sdp", "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\n"
                       "m=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n");
    row("manifest.mpd", "<?xml version=\"1.0\"?><MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
                        "profiles=\"urn:mpeg:dash:profile:isoff-main:2011\"></MPD>");
}

void tst_HostileMedia::listsOfFilesAreRefused()
{
    QFETCH(QByteArray, content);
    const QString name = write(QString::fromLatin1(QTest::currentDataTag()), content);

    QCOMPARE(scan(name), name + QStringLiteral(": Files of this format are not imported.; next"));
    QVERIFY(readPicture(path(name), ProgramKind::Video, QSize(64, 64), m_goOn).size.isEmpty());
}

void tst_HostileMedia::whatIsNoFileIsRefusedAtOnce_data()
{
    QTest::addColumn<QString>("file");

    const QString pipe = path(QStringLiteral("pipe.wav"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe;
    QVERIFY(QFile::link(pipe, path(QStringLiteral("link.wav"))));
    QTest::newRow("link to a pipe") << path(QStringLiteral("link.wav"));
    for (const char* device : {"/dev/zero", "/dev/null", "/dev/tty"}) {
        QTest::newRow(device) << QString::fromLatin1(device);
    }
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("folder.mp4")));
    QTest::newRow("folder") << path(QStringLiteral("folder.mp4"));
}

void tst_HostileMedia::whatIsNoFileIsRefusedAtOnce()
{
    QFETCH(QString, file);
    QElapsedTimer time;
    time.start();

    const ImportScan found = scanMedia({file});
    const bool hasPicture =
        !readPicture(file, ProgramKind::Video, QSize(64, 64), m_goOn).size.isEmpty() ||
        !readPicture(file, ProgramKind::Image, QSize(64, 64), m_goOn).size.isEmpty();

    QVERIFY2(time.elapsed() < 200, qPrintable(QString::number(time.elapsed())));
    QVERIFY(found.sources.empty() && !hasPicture);
    // A folder is gone through, and holds nothing.
    if (!QFileInfo(file).isDir()) {
        QCOMPARE(found.refusals.size(), std::size_t(1));
        QCOMPARE(englishSentence(found.refusals[0].fault), QStringLiteral("It is not a file."));
    }
}

void tst_HostileMedia::brokenImages_data()
{
    QTest::addColumn<QString>("found");

    const auto bytes = [this](const char* name) {
        media::makeImage(path(QLatin1String(name)));
        QFile file(path(QLatin1String(name)));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    };
    const QByteArray png = bytes("whole.png");
    const QByteArray jpeg = bytes("whole.jpg");
    QByteArray broken = png;
    broken.replace(20, 30, QByteArray(30, '\xa5'));
    write(QStringLiteral("cut.png"), png.left(20));
    write(QStringLiteral("broken.png"), broken);
    write(QStringLiteral("cut.jpg"), jpeg.left(30));
    write(QStringLiteral("empty.png"), {});
    PngFile::write(path(QStringLiteral("huge.png")), QSize(1000000, 1000000),
                   PngFile::Layout::Passes);
    const QString none = QStringLiteral("The picture in it cannot be read.");
    QTest::newRow("cut.png") << none;
    QTest::newRow("broken.png") << none;
    QTest::newRow("cut.jpg") << none;
    QTest::newRow("huge.png") << none;
    QTest::newRow("empty.png") << QStringLiteral("It is empty.");
}

void tst_HostileMedia::brokenImages()
{
    QFETCH(QString, found);
    const QString name = QString::fromLatin1(QTest::currentDataTag());

    QCOMPARE(scan(name), name + QStringLiteral(": ") + found + QStringLiteral("; next"));
    QVERIFY(readPicture(path(name), ProgramKind::Image, QSize(64, 64), m_goOn).size.isEmpty());
}

/// A red sheet on which a blue picture from another file, a pipe and a style sheet would lie.
void tst_HostileMedia::drawingsLoadNothingFromElsewhere()
{
    QImage blue(10, 10, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    QVERIFY(blue.save(path(QStringLiteral("blue.png"))));
    const QByteArray pipe = QFile::encodeName(path(QStringLiteral("drawing pipe")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    const QByteArray there = QFile::encodeName(path(QStringLiteral("blue.png")));
    const auto image = [](const QByteArray& address) {
        return "<image x='0' y='0' width='10' height='10' xlink:href='" + address + "'/>";
    };
    const QString name =
        write(QStringLiteral("drawing.svg"),
              "<?xml version='1.0'?><?xml-stylesheet type='text/css' href='" + pipe +
                  "'?><svg xmlns='http://www.w3.org/2000/svg' "
                  "xmlns:xlink='http://www.w3.org/1999/xlink' width='10' height='10'>"
                  "<rect width='10' height='10' fill='#ff0000'/>" +
                  image(there) + image("file://" + there) + image("blue.png") + image(pipe) +
                  "<text x='20' y='20'>Text</text></svg>");

    QCOMPARE(scan(name), QStringLiteral("drawing; next"));
    const MediaPicture picture = readPicture(path(name), ProgramKind::Image, QSize(64, 64), m_goOn);
    QCOMPARE(picture.size, QSize(10, 10));
    QCOMPARE(picture.dots, std::vector<quint32>(100, 0xffff0000));
}

void tst_HostileMedia::namesThatAreNotUtf8AreToldOf()
{
    const QTemporaryDir folder;
    QVERIFY(media::makeWav(folder.filePath(QStringLiteral("good.wav")), 100));
    const QByteArray good = QFile::encodeName(folder.filePath(QStringLiteral("good.wav")));
    const QByteArray root = QFile::encodeName(folder.path());
    QCOMPARE(::link(good.constData(), (root + "/caf\xe9.wav").constData()), 0);
    QCOMPARE(::mkdir((root + "/\xff\xfe").constData(), 0700), 0);
    QCOMPARE(::link(good.constData(), (root + "/.h\xe9").constData()), 0);
    const QString reason =
        QStringLiteral("Its name is not UTF-8; it can be imported under another one.");

    const ImportScan scan = scanMedia({folder.path()});
    // The toolkit does not find them when it clears the folder either.
    QCOMPARE(::unlink((root + "/caf\xe9.wav").constData()), 0);
    QCOMPARE(::rmdir((root + "/\xff\xfe").constData()), 0);
    QCOMPARE(::unlink((root + "/.h\xe9").constData()), 0);

    QCOMPARE(scan.sources.size(), std::size_t(1));
    QStringList refused;
    for (const ImportRefusal& refusal : scan.refusals) {
        QCOMPARE(englishSentence(refusal.fault), reason);
        refused.append(QDir(folder.path()).relativeFilePath(refusal.path));
    }
    refused.sort();
    QCOMPARE(refused, (QStringList{QStringLiteral("\\xff\\xfe"), QStringLiteral("caf\\xe9.wav")}));
    // Named itself, as the toolkit hands it over.
    const QString named = QString::fromUtf8(root + "/caf\xe9.wav");
    const ImportScan single = scanMedia({named});
    QCOMPARE(single.refusals.size(), std::size_t(1));
    QCOMPARE(englishSentence(single.refusals[0].fault), reason);
}

void tst_HostileMedia::percentSignsStayInNames()
{
    for (const char* name : {"50%2 off.wav", "%1.wav", "%L1 %99.wav"}) {
        QVERIFY(media::makeWav(path(QString::fromLatin1(name)), 100));
        QCOMPARE(scan(QString::fromLatin1(name)),
                 QFileInfo(QString::fromLatin1(name)).completeBaseName() +
                     QStringLiteral("; next"));
    }
}

void tst_HostileMedia::aTgaIsKnownByItsName()
{
    // Two dots, one above the other, 24 bits each, not packed.
    QByteArray tga(18, '\0');
    tga[2] = 2;
    tga[12] = 1;
    tga[14] = 2;
    tga[16] = 24;
    write(QStringLiteral("dots.tga"), tga + QByteArray("\x00\x00\xff\x00\x00\xff", 6));

    QCOMPARE(scan(QStringLiteral("dots.tga")), QStringLiteral("dots; next"));
    const MediaPicture picture =
        readPicture(path(QStringLiteral("dots.tga")), ProgramKind::Image, QSize(64, 64), m_goOn);
    QCOMPARE(picture.size, QSize(1, 2));
    QCOMPARE(picture.dots, std::vector<quint32>(2, 0xffff0000));
}

TREL_TEST(tst_HostileMedia, QCoreApplication)
#include "tst_HostileMedia.moc"
