#include "deck/StillPlayback.h"

#include "deck/PlaybackThreads.h"
#include "deck/PlayedFile.h"
#include "deck/ThreadMail.h"
#include "trelprogramschedule/media/PictureRequest.h"

#include <atomic>
#include <cstring>
#include <utility>

namespace trel::player {

using mediadispatch::MediaPicture;
using mediadispatch::ProgramKind;
using screen::DeckFault;
using screen::DeckTrouble;

namespace {

QImage imageOf(const MediaPicture& picture)
{
    if (picture.size.isEmpty()) {
        return {};
    }
    QImage image(picture.size, QImage::Format_ARGB32);
    const auto width = static_cast<std::size_t>(picture.size.width());
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(image.scanLine(y), &picture.dots[static_cast<std::size_t>(y) * width],
                    width * sizeof(quint32));
    }
    return image;
}

} // namespace

struct StillPlayback::Reading
{
    explicit Reading(QObject& receiver)
        : mail(receiver)
    {}

    ThreadMail mail;
    std::atomic<bool> isCancelled{false};
};

StillPlayback::StillPlayback(const QString& path, const ScreenShape& shape, PlaybackNews news,
                             PlaybackThreads& threads)
    : m_path(path)
    , m_shape(shape)
    , m_news(std::move(news))
    , m_threads(threads)
{
    read();
}

StillPlayback::~StillPlayback()
{
    giveUp();
}

void StillPlayback::setShape(const ScreenShape& shape)
{
    if (m_shape != shape) {
        m_shape = shape;
        read();
    }
}

void StillPlayback::read()
{
    giveUp();
    m_receiver = std::make_unique<QObject>();
    m_reading = std::make_shared<Reading>(*m_receiver);
    const auto failed = [this](const DeckFault& fault) { m_news.failed(fault); };
    m_threads.start([path = m_path, shape = m_shape, reading = m_reading, failed, this] {
        const DeckFault fault = PlayedFile(path).fault();
        if (fault) {
            reading->mail.post([failed, fault] { failed(fault); });
            return;
        }
        const QSize room = roomBeforeTurning(shape.size, shape.turned);
        const QImage image = imageOf(
            mediadispatch::readPicture(path, ProgramKind::Image, room, reading->isCancelled));
        if (image.isNull()) {
            const DeckFault unreadable{DeckTrouble::Unreadable,
                                       QStringLiteral("The image cannot be read")};
            reading->mail.post([failed, unreadable] { failed(unreadable); });
            return;
        }
        const QImage picture = turnedClockwise(fittedOnBlack(image, room), shape.turned);
        reading->mail.post([this, picture] { take(picture); });
    });
}

void StillPlayback::take(const QImage& picture)
{
    const bool isFirst = std::exchange(m_picture, picture).isNull();
    m_news.pictureChanged();
    if (isFirst) {
        m_news.ready();
    }
}

void StillPlayback::giveUp()
{
    if (m_reading != nullptr) {
        m_reading->isCancelled = true;
        m_reading->mail.close();
    }
}

} // namespace trel::player
