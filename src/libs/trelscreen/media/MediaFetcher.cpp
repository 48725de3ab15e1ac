#include "MediaFetcher.h"

#include "trelscreen/media/FolderTransfer.h"
#include "trelscreen/media/WebTransfer.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

MediaFetcher::Pauses::Pauses() = default;

MediaFetcher::MediaFetcher(QString place, QString cache, qint64 limit, Pauses pauses)
    : m_place(std::move(place))
    , m_folder(std::move(cache))
    , m_limit(limit)
    , m_pauses(pauses)
{
    qRegisterMetaType<NeededFiles>();
    qRegisterMetaType<MediaTrouble>();
}

MediaFetcher::~MediaFetcher() = default;

bool MediaFetcher::isWeb(const QString& place)
{
    return place.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
           place.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

void MediaFetcher::begin()
{
    m_cache = std::make_unique<MediaCache>(m_folder, m_limit);
    if (isWeb(m_place)) {
        m_transfer = std::make_unique<WebTransfer>(QUrl(m_place));
    } else {
        m_transfer = std::make_unique<FolderTransfer>(m_place);
    }
    connect(m_transfer.get(), &MediaTransfer::ended, this, &MediaFetcher::transferEnded);
    m_retry = std::make_unique<QTimer>();
    m_retry->setSingleShot(true);
    connect(m_retry.get(), &QTimer::timeout, this, &MediaFetcher::next);
}

void MediaFetcher::end()
{
    m_retry.reset();
    m_transfer.reset();
    m_cache.reset();
    m_current.reset();
}

void MediaFetcher::need(const NeededFiles& files)
{
    if (!m_cache) {
        return;
    }
    m_needed = files;
    forgetFailures();
    const std::size_t first = wanted();
    const bool goesOn = m_current && first < m_needed.size() &&
                        m_needed[first].content.sha256 == m_current->content.sha256;
    if (!goesOn) {
        m_transfer->stop();
        m_current.reset();
        next();
    }
}

/// Of those that nobody needs any more.
void MediaFetcher::forgetFailures()
{
    std::map<QByteArray, Failure> kept;
    for (const NeededFile& file : m_needed) {
        if (const auto failure = m_failures.find(file.content.sha256);
            failure != m_failures.end()) {
            kept.insert(*failure);
        }
    }
    m_failures = std::move(kept);
}

/// The first that is missing and may be tried; as many as are needed where there is none. Sees to
/// it that those that failed are tried again.
std::size_t MediaFetcher::wanted()
{
    qint64 soonest = -1;
    std::size_t place = 0;
    for (; place < m_needed.size(); ++place) {
        const ProgramContent& content = m_needed[place].content;
        if (m_cache->holds(content)) {
            continue;
        }
        const auto failure = m_failures.find(content.sha256);
        if (failure == m_failures.end() || failure->second.until.hasExpired()) {
            break;
        }
        const qint64 wait = failure->second.until.remainingTime();
        soonest = soonest < 0 ? wait : std::min(soonest, wait);
    }
    if (soonest >= 0) {
        m_retry->start(std::chrono::milliseconds(soonest + 1));
    }
    return place;
}

void MediaFetcher::next()
{
    // Another may have taken its place by now, which is asked for when that has come.
    if (m_current || m_isLeaving) {
        return;
    }
    for (;;) {
        const std::size_t place = wanted();
        if (place == m_needed.size() || m_isLeaving) {
            return;
        }
        const NeededFile file = m_needed[place];
        if (m_cache->makeRoom(m_needed, place)) {
            fetch(file);
            return;
        }
        note(file, MediaTrouble::NoRoom, {});
    }
}

void MediaFetcher::fetch(const NeededFile& file)
{
    m_current = file;
    const QString part = m_cache->partOf(file.content);
    const qint64 come = QFileInfo(part).size();
    if (come > file.content.size) {
        QFile::remove(part);
    }
    if (come == file.content.size && come > 0) {
        // All of it had come when the program ended.
        transferEnded(MediaTrouble::None, {});
        return;
    }
    m_transfer->start(file.content, part);
}

void MediaFetcher::transferEnded(MediaTrouble trouble, const QString& words)
{
    if (!m_current) {
        return;
    }
    const NeededFile file = *std::exchange(m_current, std::nullopt);
    if (trouble == MediaTrouble::None) {
        trouble = adopt(file);
    } else if (trouble == MediaTrouble::OtherContent) {
        QFile::remove(m_cache->partOf(file.content));
    }
    if (trouble == MediaTrouble::None) {
        m_failures.erase(file.content.sha256);
        emit arrived();
    } else {
        note(file, trouble, words);
    }
    // From the event loop, so that what is needed can be another by then.
    QMetaObject::invokeMethod(this, &MediaFetcher::next, Qt::QueuedConnection);
}

MediaTrouble MediaFetcher::adopt(const NeededFile& file)
{
    const auto isLeaving = [this] { return m_isLeaving.load(); };
    const MediaFolder::Result result =
        m_cache->folder().adopt(m_cache->partOf(file.content), file.content, isLeaving);
    switch (result.outcome) {
    case MediaFolder::Outcome::Put:
    case MediaFolder::Outcome::WasThere:
        return MediaTrouble::None;
    case MediaFolder::Outcome::Changed:
        return MediaTrouble::OtherContent;
    default:
        return MediaTrouble::NotWritable;
    }
}

void MediaFetcher::note(const NeededFile& file, MediaTrouble trouble, const QString& words)
{
    Failure& failure = m_failures[file.content.sha256];
    const qint64 come = QFileInfo(m_cache->partOf(file.content)).size();
    // A line that breaks again and again, and brings some of it each time, is no reason to wait.
    const bool isNearer = trouble == MediaTrouble::Broken && come > failure.come;
    failure.pause = failure.pause.count() == 0 || isNearer
                        ? m_pauses.first
                        : std::min(2 * failure.pause, m_pauses.most);
    failure.until = QDeadlineTimer(failure.pause);
    failure.come = come;
    const bool isNews = std::exchange(failure.trouble, trouble) != trouble;
    if (isNews && !m_isLeaving) {
        emit failed(file.program, trouble, words);
    }
}

} // namespace trel::screen
