#include "MirrorFeed.h"

#include "clock/Clock.h"
#include "trelprogramschedule/mirror/MirrorSource.h"
#include "trelprogramschedule/mirror/ScheduleMirror.h"
#include "trelscreen/media/MediaFetcher.h"
#include "trelscreen/media/NeededMedia.h"

#include <QDir>
#include <QFileInfo>
#include <QMetaObject>

#include <chrono>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// How soon another time zone of the machine is noticed.
constexpr std::chrono::seconds kRound{1};
/// How often it is worked out anew which files are needed soonest.
constexpr std::chrono::minutes kNeeds{60};

bool isSame(const std::optional<StoreResult>& one, const std::optional<StoreResult>& other)
{
    return one.has_value() == other.has_value() &&
           (!one || (one->problem == other->problem && one->cause.code == other->cause.code &&
                     one->cause.arguments == other->cause.arguments));
}

} // namespace

MirrorFeed::MirrorFeed(MirrorSettings settings, QString file)
    : m_settings(std::move(settings))
    , m_file(std::move(file))
    , m_thread(this)
    , m_mediaThread(this)
    , m_needs(this)
    , m_round(this)
    , m_publishing(this)
{
    m_thread.setObjectName(QStringLiteral("mirrored server"));
    m_mediaThread.setObjectName(QStringLiteral("media"));
    connect(&m_needs, &QTimer::timeout, this, &MirrorFeed::tellNeeds);
    m_publishing.setSingleShot(true);
    connect(&m_publishing, &QTimer::timeout, this, &MirrorFeed::publish);
    connect(&m_round, &QTimer::timeout, this, &MirrorFeed::look);
}

MirrorFeed::~MirrorFeed()
{
    MirrorFeed::stop();
}

void MirrorFeed::start()
{
    m_mirror = std::make_unique<ScheduleMirror>(m_file, m_settings.address);
    connect(m_mirror.get(), &ScheduleMirror::filesChanged, this, &MirrorFeed::publishSoon);
    const QString media = QFileInfo(m_file).absolutePath() + QStringLiteral("/media");
    if (!m_settings.media.isEmpty()) {
        // So that it is watched from the beginning.
        QDir().mkpath(media);
        m_mirror->setMediaFolder(media);
        m_fetcher = std::make_unique<MediaFetcher>(m_settings.media, media, m_settings.mediaLimit);
    }
    noteMirror(m_mirror->open());
    publish();
    m_round.start(kRound);
    startServer();
    startMedia();
}

void MirrorFeed::startServer()
{
    m_source = std::make_unique<MirrorSource>(m_settings.address);
    m_source->moveToThread(&m_thread);
    connect(m_source.get(), &MirrorSource::told, this, &MirrorFeed::take);
    connect(m_source.get(), &MirrorSource::lost, this, [this](const StoreResult& reason) {
        m_serverLoss = reason;
        tellLoss();
    });
    connect(m_source.get(), &MirrorSource::found, this, [this] {
        m_serverLoss.reset();
        tellLoss();
    });
    m_thread.start(QThread::LowPriority);
    QMetaObject::invokeMethod(m_source.get(), [source = m_source.get(), state = m_mirror->state()] {
        source->begin(state);
    });
}

void MirrorFeed::startMedia()
{
    if (!m_fetcher) {
        return;
    }
    m_fetcher->moveToThread(&m_mediaThread);
    connect(m_fetcher.get(), &MediaFetcher::failed, this, &MirrorFeed::mediaFailed);
    m_mediaThread.start(QThread::LowPriority);
    QMetaObject::invokeMethod(m_fetcher.get(), &MediaFetcher::begin);
    tellNeeds();
}

void MirrorFeed::stop()
{
    m_round.stop();
    m_publishing.stop();
    m_needs.stop();
    if (m_fetcher) {
        // What it is about ends while the server is waited for.
        m_fetcher->leave();
    }
    stopServer();
    stopMedia();
    m_mirror.reset();
}

void MirrorFeed::stopServer()
{
    if (m_source) {
        m_source->disconnect(this);
        QMetaObject::invokeMethod(m_source.get(), [this] {
            m_source->end();
            m_thread.quit();
        });
        m_thread.wait();
        m_source.reset();
    }
}

void MirrorFeed::stopMedia()
{
    if (m_fetcher && m_mediaThread.isRunning()) {
        m_fetcher->disconnect(this);
        QMetaObject::invokeMethod(m_fetcher.get(), [this] {
            m_fetcher->end();
            m_mediaThread.quit();
        });
        m_mediaThread.wait();
    }
    m_fetcher.reset();
}

/// Of what the mirror holds, whatever files there are already.
void MirrorFeed::tellNeeds()
{
    if (!m_fetcher) {
        return;
    }
    const NeededFiles files =
        filesNeeded(m_told, m_mirror->contents(), Clock::current().msecsSinceEpoch());
    QMetaObject::invokeMethod(m_fetcher.get(),
                              [fetcher = m_fetcher.get(), files] { fetcher->need(files); });
    m_needs.start(kNeeds);
}

void MirrorFeed::take(const MirrorNewsPointer& news)
{
    if (!m_mirror) {
        return; // It was on its way when the feed was stopped.
    }
    const StoreResult taken = m_mirror->take(*news);
    if (taken) {
        noteMirror(taken);
        publish();
        tellNeeds();
        return;
    }
    // News that are for another state come in the usual course of things, behind such a refusal.
    if (taken.problem != StoreProblem::MovedOn) {
        noteMirror(taken);
    }
    QMetaObject::invokeMethod(m_source.get(), [source = m_source.get(), state = m_mirror->state()] {
        source->restart(state);
    });
}

void MirrorFeed::look()
{
    if (Clock::current().zone() != m_told.zone) {
        publishSoon();
    }
}

void MirrorFeed::noteMirror(const StoreResult& result)
{
    m_mirrorLoss = result ? std::nullopt : std::make_optional(result);
    tellLoss();
}

/// That of the mirror first: without it the server is of no use.
void MirrorFeed::tellLoss()
{
    const std::optional<StoreResult>& loss = m_mirrorLoss ? m_mirrorLoss : m_serverLoss;
    if (isSame(loss, m_toldLoss)) {
        return;
    }
    m_toldLoss = loss;
    if (m_toldLoss) {
        emit lost(*m_toldLoss);
    } else {
        emit found();
    }
}

/// One record for all that has changed within a turn of the event loop.
void MirrorFeed::publishSoon()
{
    m_publishing.start(0);
}

void MirrorFeed::publish()
{
    ScreenSchedule next;
    m_publishing.stop();
    next.catalogue = m_mirror->catalogue();
    next.start = m_mirror->start();
    next.insertions = m_mirror->insertions();
    next.tasks = m_mirror->tasks();
    next.zone = Clock::current().zone();
    const bool isSameTimeline = m_told.timeline && next.catalogue == m_told.catalogue &&
                                next.tasks == m_told.tasks && next.zone == m_told.zone;
    next.timeline =
        isSameTimeline
            ? m_told.timeline
            : std::make_shared<const ScreenTimeline>(*next.tasks, *next.catalogue, next.zone);
    m_told = std::move(next);
    emit changed(m_told);
}

} // namespace trel::screen
