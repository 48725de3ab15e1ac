#include "screen/PreviewPictures.h"

#include "screen/ProgramPicture.h"

#include <QMutex>
#include <QMutexLocker>
#include <QRunnable>

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kMostKilobytes = 64 * 1024;
/// How long a read is waited for at the end, in milliseconds.
constexpr int kPatience = 80;

/// Sizes in which pictures are read; the last for every room that is larger.
constexpr int kSides[] = {480, 960, 1920, 3840};

QSize boundFor(const QSize& room)
{
    const int wanted = std::max(room.width(), room.height());
    const auto* side = std::find_if(std::begin(kSides), std::end(kSides) - 1,
                                    [wanted](int known) { return known >= wanted; });
    return {*side, *side};
}

int kilobytes(const QImage& image)
{
    // What costs more than there is room for would not be kept at all.
    return std::min(static_cast<int>(image.sizeInBytes() / 1024) + 1, kMostKilobytes);
}

template <typename Work>
class Task : public QRunnable
{
public:
    explicit Task(Work work)
        : m_work(std::move(work))
    {}
    void run() override { m_work(); }

private:
    Work m_work;
};

} // namespace

/// Who is told of a picture, as long as it is there.
struct PreviewPictures::Receiver
{
    QMutex mutex;
    PreviewPictures* pictures = nullptr;
};

PreviewPictures::PreviewPictures(QObject* parent)
    : QObject(parent)
    , m_known(kMostKilobytes)
    , m_pool(std::make_unique<QThreadPool>())
    , m_receiver(std::make_shared<Receiver>())
{
    m_pool->setMaxThreadCount(1);
    m_receiver->pictures = this;
}

PreviewPictures::~PreviewPictures()
{
    cancelRunning();
    {
        const QMutexLocker lock(&m_receiver->mutex);
        m_receiver->pictures = nullptr;
    }
    if (!m_pool->waitForDone(kPatience)) {
        // It would wait in its own end as well.
        static_cast<void>(m_pool.release());
    }
}

PreviewPictures::Answer PreviewPictures::picture(const ProgramIten& program, const QSize& room,
                                                 qint64 positionMs)
{
    if (program.isNull || !hasPicture(program.kind)) {
        return {true, {}};
    }
    const QSize bound = boundFor(room);
    const QString path = QString::fromStdString(program.mediaPath);
    const QString key = QStringLiteral("%1 %2 %3")
                            .arg(QString::number(bound.width()), QString::number(positionMs), path);
    if (const QImage* known = m_known.object(key)) {
        return {true, *known};
    }
    const Request request{key, path, program.kind, bound, positionMs};
    if (!m_running) {
        start(request);
    } else if (m_running->key == key && !m_isCancelled->load()) {
        m_next.reset();
    } else {
        m_isCancelled->store(true);
        m_next = request;
    }
    return {};
}

void PreviewPictures::clear()
{
    m_known.clear();
    m_next.reset();
    cancelRunning();
}

void PreviewPictures::cancelRunning()
{
    if (m_isCancelled) {
        m_isCancelled->store(true);
    }
}

void PreviewPictures::start(const Request& request)
{
    m_running = request;
    m_isCancelled = std::make_shared<std::atomic<bool>>(false);
    const auto read = [receiver = m_receiver, request, isCancelled = m_isCancelled] {
        const QImage image = programPicture(request.path, request.kind, request.bound, *isCancelled,
                                            request.positionMs);
        const QMutexLocker lock(&receiver->mutex);
        if (PreviewPictures* pictures = receiver->pictures) {
            QMetaObject::invokeMethod(
                pictures, [=] { pictures->take(request, image, isCancelled); },
                Qt::QueuedConnection);
        }
    };
    m_pool->start(new Task<decltype(read)>(read));
}

void PreviewPictures::take(const Request& request, const QImage& image, const Flag& isCancelled)
{
    m_running.reset();
    const bool isWanted = !isCancelled->load();
    if (isWanted) {
        m_known.insert(request.key, new QImage(image), kilobytes(image));
    }
    if (m_next) {
        start(*std::exchange(m_next, std::nullopt));
    } else if (isWanted) {
        emit ready();
    }
}

} // namespace trel::desktop
