#include "PlayCases.h"

#include "BareMpv.h"
#include "Comparison.h"
#include "PlayedScreen.h"
#include "support/NumberedClip.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace trel::mediadispatch;
using namespace trel::player;
using namespace trel::screen;

namespace bench {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr double kAgainstLibrary = 1.15;
constexpr double kAgainstFrame = 1.0;
constexpr double kAgainstHundredth = 1.0;
constexpr seconds kFilm{8};
constexpr seconds kStanding{5};
constexpr seconds kPunctuality{20};
constexpr int kScreens = 16;
const QSize kFullHd(1920, 1080);

void playFor(milliseconds length)
{
    QEventLoop loop;
    QTimer::singleShot(length, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void expect(bool isTrue, const char* what)
{
    if (!isTrue) {
        throw std::runtime_error(what);
    }
}

/// What a window would put on the screen.
class PictureCount : public FrameSink
{
public:
    void frame(const QImage& picture, Instant /*moment*/) override
    {
        m_pictures += picture.isNull() ? 0 : 1;
    }
    int pictures() const { return m_pictures; }

private:
    int m_pictures = 0;
};

/// A film and an image for a full-HD screen.
class FullHdMedia
{
public:
    FullHdMedia()
    {
        media::ClipOrder order;
        order.size = kFullHd;
        order.frames = static_cast<int>(kFilm.count() + 4) * order.framesPerSecond;
        order.soundCoder = QStringLiteral("aac");
        expect(media::makeClip(film(), order), "The film cannot be made.");
        expect(media::clipPicture({1, 0}, kFullHd).save(image()), "The image cannot be made.");
    }

    QString film() const { return m_folder.filePath(QStringLiteral("film.mp4")); }
    QString image() const { return m_folder.filePath(QStringLiteral("image.png")); }

private:
    QTemporaryDir m_folder;
};

/// A deck on a stage, loaded and shown.
class Shown
{
public:
    Shown(const QString& media, ProgramKind kind)
    {
        m_stage.add(m_deck);
        m_stage.add(m_count);
        QEventLoop loop;
        QObject::connect(&m_deck, &Deck::ready, &loop, &QEventLoop::quit);
        QObject::connect(&m_deck, &Deck::failed, &loop, &QEventLoop::quit);
        m_deck.load({media, kind, 0, false});
        loop.exec();
        expect(m_deck.isReady(), "The deck has not become ready.");
        m_stage.show({StagePicture::Kind::Deck, &m_deck, {}});
        m_deck.play();
    }

    int pictures() const { return m_count.pictures(); }

private:
    PlayerDeck m_deck{true};
    PictureCount m_count;
    SoftwareStage m_stage{{kFullHd, 0}, QImage()};
};

double playWithDeck(const FullHdMedia& media)
{
    return processorSeconds([&media] {
        const Shown shown(media.film(), ProgramKind::Video);
        playFor(kFilm);
        expect(shown.pictures() > 2, "The deck has not played.");
    });
}

double playBare(const FullHdMedia& media)
{
    return processorSeconds([&media] { playWithLibrary(media.film(), kFullHd, kFilm); });
}

double stand(const FullHdMedia& media)
{
    const Shown shown(media.image(), ProgramKind::Image);
    return processorSeconds([] { playFor(kStanding); });
}

double hundredthOfACore()
{
    return std::chrono::duration<double>(kStanding).count() / 100.0;
}

/// The lateness that 99 % of the switches of many screens do not exceed.
double latenessOfMany()
{
    static const PlayedPrograms programs;
    expect(programs.areMade(), "The clips cannot be made.");
    std::vector<std::unique_ptr<PlayedScreen>> screens;
    for (int number = 0; number < kScreens; ++number) {
        screens.push_back(std::make_unique<PlayedScreen>(
            QString::number(number), playedAllDay({Long, Middle, Longer}), programs.catalogue()));
    }
    playFor(kPunctuality);
    qint64 late = 0;
    for (const std::unique_ptr<PlayedScreen>& screen : screens) {
        expect(screen->tally().switches() > 2, "A screen has not played.");
        late = std::max(late, screen->tally().lateness(99));
    }
    return static_cast<double>(late) / 1000.0;
}

double frame()
{
    return static_cast<double>(kFrame) / 1000.0;
}

} // namespace

void addPlayCases()
{
    const auto media = [] {
        static const FullHdMedia made;
        return &made;
    };
    add({"Play a film, against the library itself", "1920 x 1080 H.264, in memory", kAgainstLibrary,
         [media] { return playWithDeck(*media()); }, [media] { return playBare(*media()); }, 5});
    add({"Stand on an image, against a hundredth of a core", "1920 x 1080", kAgainstHundredth,
         [media] { return stand(*media()); }, &hundredthOfACore, 5});
    add({"Lateness of 99 %, the worst of many screens, against a frame",
         "16 screens of 320 x 180, in memory", kAgainstFrame, &latenessOfMany, &frame, 3});
}

} // namespace bench
