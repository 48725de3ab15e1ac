#include "DeckFixture.h"
#include "catalogue/ProgramImporter.h"
#include "support/MediaFiles.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <random>

using trel::mediadispatch::ImportScan;
using trel::mediadispatch::MediaSource;
using trel::mediadispatch::ProgramKind;
using trel::player::PlayerDeck;

namespace {

constexpr int kProgram = 4;
constexpr int kFrames = 25;

/// A film as one container and two coders make it.
struct Film
{
    const char* name;
    const char* pictureCoder;
    const char* soundCoder;
    QSize size = QSize(320, 180);
};

const std::vector<Film>& films()
{
    static const std::vector<Film> all = {
        {"h264.mp4", "libx264", "aac"},
        {"hevc.mp4", "libx265", ""},
        {"mpeg4.mp4", "mpeg4", "libmp3lame"},
        {"mjpeg.mov", "mjpeg", "pcm_s16le"},
        {"h264.m4v", "libx264", ""},
        {"h264.mkv", "libx264", "libopus"},
        {"ffv1.mkv", "ffv1", "flac"},
        {"vp8.webm", "libvpx", "libvorbis"},
        {"vp9.webm", "libvpx-vp9", "libopus"},
        {"xvid.avi", "mpeg4", "libmp3lame"},
        {"msmpeg4.avi", "msmpeg4", "ac3"},
        {"huffyuv.avi", "ffvhuff", "pcm_s16le"},
        {"sorenson.flv", "flv", "libmp3lame"},
        {"h264.flv", "libx264", "aac"},
        {"mpeg1.mpg", "mpeg1video", "mp2"},
        {"mpeg2.vob", "mpeg2video", "ac3"},
        {"h264.ts", "libx264", "aac"},
        {"mpeg2.m2ts", "mpeg2video", "ac3"},
        {"wmv2.wmv", "wmv2", "wmav2"},
        {"theora.ogv", "libtheora", "libvorbis"},
        {"mpeg2.mxf", "mpeg2video", ""},
        {"mpeg4.nut", "mpeg4", "pcm_s16le"},
        // Their dots are not square in all players' eyes.
        {"rv20.rm", "rv20", "", QSize(352, 288)},
        {"h263.3gp", "h263", "", QSize(352, 288)},
        {"pal.dv", "dvvideo", "", QSize(720, 576)},
        {"raw.h264", "libx264", ""},
        {"raw.hevc", "libx265", ""},
        {"raw.m2v", "mpeg2video", ""},
        {"vp8.ivf", "libvpx", ""},
    };
    return all;
}

/// Nearly as wide as high, so that it leaves room on a wide screen.
bool isNarrow(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    return std::any_of(films().begin(), films().end(), [&name](const Film& film) {
        return film.size.width() * 3 < film.size.height() * 5 && name == QLatin1String(film.name);
    });
}

struct Sound
{
    const char* name;
    const char* coder;
};

const std::vector<Sound>& sounds()
{
    static const std::vector<Sound> all = {
        {"pcm.wav", "pcm_s16le"},  {"adpcm.wav", "pcm_alaw"}, {"tone.mp3", "libmp3lame"},
        {"tone.ogg", "libvorbis"}, {"tone.opus", "libopus"},  {"tone.oga", "flac"},
        {"tone.flac", "flac"},     {"adts.aac", "aac"},       {"tone.m4a", "aac"},
        {"tone.ac3", "ac3"},       {"tone.eac3", "eac3"},     {"tone.aiff", "pcm_s16be"},
        {"tone.au", "pcm_s16be"},  {"tone.caf", "pcm_s16be"}, {"tone.wma", "wmav2"},
        {"tone.wv", "wavpack"},    {"tone.tta", "tta"},       {"tone.w64", "pcm_s16le"},
        {"tone.voc", "pcm_u8"},    {"tone.mka", "libopus"},   {"tone.mp2", "mp2"},
    };
    return all;
}

} // namespace

/// Whatever an import takes can be played: one of each.
class tst_ImportedMedia : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void takesOneOfEach();
    void playsWhatWasTaken_data();
    void playsWhatWasTaken();

private:
    QString file(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    void makeFilms() const;
    void makeSounds() const;
    void makeImages() const;

    QTemporaryDir m_folder;
    ImportScan m_scan;
};

void tst_ImportedMedia::makeFilms() const
{
    for (const Film& film : films()) {
        media::ClipOrder order;
        order.program = kProgram;
        order.frames = kFrames;
        order.size = film.size;
        order.pictureCoder = QLatin1String(film.pictureCoder);
        order.soundCoder = QLatin1String(film.soundCoder);
        QVERIFY2(media::makeClip(file(film.name), order), film.name);
    }
}

void tst_ImportedMedia::makeSounds() const
{
    for (const Sound& sound : sounds()) {
        QVERIFY2(media::makeTone(file(sound.name), 1000, QLatin1String(sound.coder)), sound.name);
    }
    QVERIFY(media::makeMp3(file("few frames.mp3"), 6));
    QVERIFY(media::makeMp3(file("cover.mp3"), 40, true));
}

void tst_ImportedMedia::makeImages() const
{
    const QImage image = media::clipPicture({kProgram, 0}, QSize(320, 180));
    for (const char* suffix : {"png", "jpg", "bmp", "ppm", "pgm", "pbm", "xbm", "xpm"}) {
        QVERIFY2(image.save(file("image.") + QLatin1String(suffix)), suffix);
    }
    QVERIFY(
        media::makeTurnedJpeg(file("turned.jpg"), trel::player::turnedClockwise(image, 270), 6));
    // As large as a camera makes them.
    QImage large = image.scaled(1920, 1080).convertToFormat(QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < large.height(); ++y) {
        for (int x = 0; x < large.width(); ++x) {
            large.setPixel(x, y, large.pixel(x, y) ^ (static_cast<QRgb>(random()) & 0x3f3f3fU));
        }
    }
    QVERIFY(media::makeTurnedJpeg(file("large.jpg"), large, 1));
    QVERIFY(QFileInfo(file("large.jpg")).size() > 1024 * 1024);
    QFile drawing(file("drawing.svg"));
    QVERIFY(drawing.open(QIODevice::WriteOnly));
    drawing.write("<svg xmlns='http://www.w3.org/2000/svg' width='320' height='180'>"
                  "<rect width='320' height='180' fill='red'/></svg>");
}

void tst_ImportedMedia::initTestCase()
{
    makeFilms();
    makeSounds();
    makeImages();
    m_scan = trel::mediadispatch::scanMedia({m_folder.path()});
}

void tst_ImportedMedia::takesOneOfEach()
{
    for (const auto& refusal : m_scan.refusals) {
        qWarning("%s: %d", qPrintable(refusal.path), int(refusal.fault.code));
    }
    QCOMPARE(m_scan.refusals.size(), std::size_t(0));
    QCOMPARE(m_scan.sources.size(), films().size() + sounds().size() + 2 + 11);
}

void tst_ImportedMedia::playsWhatWasTaken_data()
{
    QTest::addColumn<int>("source");
    for (std::size_t place = 0; place < m_scan.sources.size(); ++place) {
        const QString name = QFileInfo(m_scan.sources[place].path).fileName();
        QTest::newRow(qPrintable(name)) << int(place);
    }
}

void tst_ImportedMedia::playsWhatWasTaken()
{
    QFETCH(const int, source);
    const MediaSource& taken = m_scan.sources[std::size_t(source)];
    DeckFixture screen;
    QSignalSpy failed(&screen.first, &PlayerDeck::failed);
    if (isNarrow(taken.path)) {
        screen.record.setPart(QRectF(45, 0, 230, 180));
    }
    screen.show(screen.first);
    screen.first.load({taken.path, taken.kind, 0, false});
    QSignalSpy ready(&screen.first, &PlayerDeck::ready);
    QVERIFY2(ready.wait() || !failed.isEmpty(), qPrintable(taken.path));
    QVERIFY2(failed.isEmpty(), qPrintable(faultIn(failed).words));
    QCOMPARE(screen.first.hasPicture(), taken.kind != ProgramKind::Audio);
    const bool isDrawing = taken.path.endsWith(QLatin1String(".svg"));
    if (taken.kind != ProgramKind::Audio && !isDrawing) {
        QVERIFY(screen.shows(kProgram, 0));
    }
    if (taken.kind == ProgramKind::Image) {
        return;
    }
    screen.first.play();
    QTRY_VERIFY(screen.first.position().value_or(0) >= 80);
}

TREL_TEST(tst_ImportedMedia, QGuiApplication)
#include "tst_ImportedMedia.moc"
