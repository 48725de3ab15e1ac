#include "deck/MpvWork.h"

#include "deck/MpvFile.h"
#include "deck/MpvTracks.h"
#include "deck/PlayedAddress.h"
#include "deck/PlayedFile.h"
#include "stage/ScreenShape.h"

#include <cmath>
#include <utility>

namespace trel::player {

using mediadispatch::ProgramKind;
using screen::DeckFault;
using screen::DeckTrouble;

namespace {

constexpr int kMostLettersOfWords = 200;
/// A file tells its times in whole thousandths, so that those of its pictures are rounded.
constexpr double kRounding = 0.001;
constexpr std::chrono::milliseconds kLook{250};
/// How long a stream may be silent that is being connected to, and how long it may take in all.
constexpr int kFirstPatience = 5; // seconds
constexpr int kLaterPatience = 10;
constexpr std::chrono::seconds kFirstConnecting{10};
constexpr std::chrono::seconds kLaterConnecting{15};
constexpr std::chrono::seconds kLongestSilence{2};
/// From the library's word that it plays to the first picture, which is on its way by then.
constexpr std::chrono::milliseconds kLongestDrawing{500};

enum Observed : std::uint64_t {
    Place = 1,
    ReadUntil,
    IsAtEnd,
    DroppedOnScreen,
    DroppedDecoding,
};

/// What is asked of the library, where a refusal matters.
enum Asked : std::uint64_t {
    Nothing,
    Loading,
    Playing,
    Seeking,
};

QString oneLine(const QString& text)
{
    QString line = text.simplified();
    line.truncate(kMostLettersOfWords);
    return line;
}

} // namespace

MpvWork::MpvWork(const screen::DeckLoad& load, bool isMute, const ScreenShape& shape,
                 QObject& receiver, PlaybackNews news, std::unique_ptr<PictureMaker> maker,
                 bool copiesDecoded)
    : m_load(load)
    , m_isMute(isMute)
    , m_isStream(load.kind == ProgramKind::Live)
    , m_copiesDecoded(copiesDecoded)
    , m_news(std::move(news))
    , m_mail(receiver)
    , m_maker(std::move(maker))
    , m_shape(shape)
{}

MpvWork::~MpvWork() = default;

void MpvWork::run()
{
    m_begun = std::chrono::steady_clock::now();
    if (open()) {
        startLoading();
        loop();
    }
    {
        const std::lock_guard lock(m_commandMutex);
        m_commanded = nullptr;
    }
    m_renderer.reset();
    m_maker->finish();
    m_handle.reset();
}

bool MpvWork::open()
{
    if (m_isStream && !isStreamAddress(m_load.media)) {
        fail(DeckTrouble::Refused, QStringLiteral("Not the address of a stream"));
        return false;
    }
    if (!m_isStream && !openFile()) {
        return false;
    }
    MpvWishes wishes;
    wishes.isStream = m_isStream;
    // What does not answer in time at first may only be slow.
    wishes.streamPatience = isTriedAgain() ? kLaterPatience : kFirstPatience;
    wishes.onlySounds = m_load.kind == ProgramKind::Audio;
    wishes.isMute = m_isMute;
    wishes.copiesDecoded = m_copiesDecoded;
    m_handle = startMpv(wishes);
    if (m_handle == nullptr) {
        fail(DeckTrouble::Unreadable, QStringLiteral("libmpv does not start"));
        return false;
    }
    m_renderer = m_maker->start(m_handle.get());
    if (m_renderer == nullptr) {
        cannotDraw();
        return false;
    }
    return true;
}

bool MpvWork::openFile()
{
    m_file = std::make_unique<PlayedFile>(m_load.media);
    const DeckFault fault = m_file->fault();
    if (fault) {
        fail(fault.trouble, fault.words);
    }
    return !fault;
}

void MpvWork::cannotDraw()
{
    if (!m_isOver) {
        m_mail.post(m_news.drawingFailed);
    }
    fail(DeckTrouble::Unreadable, QStringLiteral("Its pictures cannot be drawn"));
}

void MpvWork::startLoading()
{
    mpv_handle* handle = m_handle.get();
    mpv_set_wakeup_callback(handle, &MpvWork::eventsCame, this);
    mpv_render_context_set_update_callback(m_renderer.get(), &MpvWork::drawingIsDue, this);
    mpv_request_log_messages(handle, tellsOfItsReading() ? "v" : "error");
    mpv_observe_property(handle, Place, "time-pos", MPV_FORMAT_DOUBLE);
    mpv_observe_property(handle, ReadUntil, "demuxer-cache-time", MPV_FORMAT_DOUBLE);
    mpv_observe_property(handle, IsAtEnd, "eof-reached", MPV_FORMAT_FLAG);
    mpv_observe_property(handle, DroppedOnScreen, "frame-drop-count", MPV_FORMAT_INT64);
    mpv_observe_property(handle, DroppedDecoding, "decoder-frame-drop-count", MPV_FORMAT_INT64);
    QByteArray address = m_load.media.toUtf8();
    if (!m_isStream) {
        mpv_hook_add(handle, 0, "on_preloaded", 0);
        address = offerFile(handle, *m_file, m_load.media);
    }
    const char* command[] = {"loadfile", address.constData(), nullptr};
    mpv_command_async(handle, Loading, command);
    const std::lock_guard lock(m_commandMutex);
    m_commanded = handle;
}

void MpvWork::loop()
{
    while (waitForWork()) {
        handleEvents();
        bool isDue = false;
        bool hasNewShape = false;
        ScreenShape shape;
        {
            const std::lock_guard lock(m_mutex);
            isDue = std::exchange(m_hasDrawing, false);
            hasNewShape = std::exchange(m_hasNewShape, false);
            shape = m_shape;
        }
        const bool hasFrame =
            isDue && (mpv_render_context_update(m_renderer.get()) & MPV_RENDER_UPDATE_FRAME) != 0;
        if (hasFrame || hasNewShape) {
            draw(shape);
        }
        lookForStall();
    }
}

bool MpvWork::waitForWork()
{
    std::unique_lock lock(m_mutex);
    const auto hasWork = [this] {
        return m_isStopped || m_hasEvents || m_hasDrawing || m_hasNewShape;
    };
    if (m_isStream || (m_hasRestarted && !m_isReady)) {
        m_work.wait_for(lock, kLook, hasWork);
    } else {
        m_work.wait(lock, hasWork);
    }
    m_hasEvents = false;
    return !m_isStopped;
}

void MpvWork::handleEvents()
{
    for (;;) {
        const mpv_event* event = mpv_wait_event(m_handle.get(), 0.0);
        if (event->event_id == MPV_EVENT_NONE) {
            return;
        }
        handle(*event);
    }
}

void MpvWork::handle(const mpv_event& event)
{
    switch (event.event_id) {
    case MPV_EVENT_HOOK:
        chooseStart(static_cast<const mpv_event_hook*>(event.data)->id);
        return;
    case MPV_EVENT_FILE_LOADED:
        fileLoaded();
        return;
    case MPV_EVENT_PLAYBACK_RESTART:
        restarted();
        return;
    case MPV_EVENT_PROPERTY_CHANGE:
        handleProperty(event.reply_userdata, *static_cast<const mpv_event_property*>(event.data));
        return;
    case MPV_EVENT_COMMAND_REPLY:
        if (event.error < 0) {
            refused(event.reply_userdata, event.error);
        }
        return;
    case MPV_EVENT_END_FILE:
        fileEnded(*static_cast<const mpv_event_end_file*>(event.data));
        return;
    case MPV_EVENT_LOG_MESSAGE:
        handleLog(*static_cast<const mpv_event_log_message*>(event.data));
        return;
    default:
        return;
    }
}

void MpvWork::handleProperty(std::uint64_t observed, const mpv_event_property& property)
{
    if (property.format == MPV_FORMAT_NONE) {
        return;
    }
    switch (observed) {
    case Place:
        reached(*static_cast<const double*>(property.data));
        return;
    case ReadUntil: {
        stir();
        const std::lock_guard lock(m_mutex);
        m_position.readUntil(*static_cast<const double*>(property.data) * 1000.0);
        return;
    }
    case IsAtEnd:
        if (*static_cast<const int*>(property.data) != 0) {
            reachedEnd();
        }
        return;
    default:
        m_droppedFrames = numberOf(m_handle.get(), "frame-drop-count") +
                          numberOf(m_handle.get(), "decoder-frame-drop-count");
        return;
    }
}

/// The connection itself is made beneath what reads, which has nothing to tell before it is there;
/// but for this kind, which what reads connects to by itself.
bool MpvWork::tellsOfItsReading() const
{
    return m_isStream && !m_load.media.startsWith(QLatin1String("rtsp"), Qt::CaseInsensitive);
}

void MpvWork::handleLog(const mpv_event_log_message& message)
{
    if (message.log_level > MPV_LOG_LEVEL_ERROR) {
        // The library has no other sign of what has come before it knows all about a stream.
        const QByteArray from(message.prefix);
        if (from == "demux" || from == "lavf") {
            stir();
        }
        return;
    }
    m_lastLog = QByteArray(message.prefix) + ": " + message.text;
    // The command itself is done by then, as the library seeks some time after it.
    if (isSeeking() && m_lastLog.startsWith("cplayer: Cannot seek")) {
        seekRefused(QString::fromUtf8(m_lastLog));
    }
}

bool MpvWork::isSeeking() const
{
    const std::lock_guard lock(m_mutex);
    return m_isSeeking;
}

void MpvWork::chooseStart(std::uint64_t hook)
{
    // The library would show the first picture that begins after the place; on screen at that time
    // is the one before it. Only by now the file has told how long a picture stands.
    readTracks();
    const double start = toFrame(m_load.position);
    // The beginning is where it begins; bare streams of pictures do not let themselves be sought.
    if (start > 0.0) {
        mpv_set_property_string(m_handle.get(), "start",
                                QByteArray::number(start, 'f', 6).constData());
    }
    mpv_hook_continue(m_handle.get(), hook);
}

void MpvWork::readTracks()
{
    if (const std::optional<FilmTrack> film = filmTrackOf(m_handle.get())) {
        m_fileTurned = film->turned;
        m_framesPerSecond = film->framesPerSecond;
    }
}

void MpvWork::refused(std::uint64_t asked, int error)
{
    switch (static_cast<Asked>(asked)) {
    case Nothing:
        return;
    case Loading:
    case Playing:
        fail(DeckTrouble::Unreadable, lastWords(error));
        return;
    case Seeking:
        seekRefused(QString::fromUtf8(mpv_error_string(error)));
        return;
    }
}

void MpvWork::seekRefused(const QString& words)
{
    fail(DeckTrouble::Unreadable, QStringLiteral("It cannot be sought: %1").arg(words));
}

void MpvWork::stir()
{
    if (m_isStream && !m_isReady && !m_isOver) {
        m_mail.post(m_news.stirred);
    }
}

void MpvWork::fileLoaded()
{
    stir();
    readTracks();
    m_hasVideo = numberOf(m_handle.get(), "current-tracks/video/id") > 0;
    if (!m_hasVideo && m_load.kind == ProgramKind::Video) {
        // Noise is easily taken for sound, as it has so little to be known by.
        fail(DeckTrouble::Unreadable, QStringLiteral("The film holds no picture"));
    }
}

void MpvWork::restarted()
{
    if (!std::exchange(m_hasRestarted, true)) {
        m_restartedAt = std::chrono::steady_clock::now();
    }
    {
        const std::lock_guard lock(m_mutex);
        m_isSeeking = false;
    }
    if (const std::optional<double> place = decimalOf(m_handle.get(), "time-pos")) {
        reached(*place);
    }
    tellReadyOnce();
}

void MpvWork::reached(double seconds)
{
    const Moment now = std::chrono::steady_clock::now();
    const std::lock_guard lock(m_mutex);
    m_lastProgress = now;
    if (!m_isSeeking) {
        m_position.reached(seconds * 1000.0, now);
    }
}

void MpvWork::reachedEnd()
{
    bool plays = false;
    {
        const std::lock_guard lock(m_mutex);
        m_position.stand(std::chrono::steady_clock::now());
        plays = std::exchange(m_plays, false);
    }
    if (m_isStream) {
        fail(DeckTrouble::BrokeOff, QStringLiteral("The stream has ended"));
    } else if (plays && !std::exchange(m_isOver, true)) {
        m_mail.post(m_news.ended);
    }
}

void MpvWork::fileEnded(const mpv_event_end_file& end)
{
    const bool isBroken = end.reason == MPV_END_FILE_REASON_ERROR;
    if (m_isReady) {
        fail(DeckTrouble::BrokeOff, lastWords(isBroken ? end.error : 0));
    } else if (m_isStream && (!isBroken || end.error == MPV_ERROR_LOADING_FAILED)) {
        fail(DeckTrouble::Unreachable, lastWords(end.error));
    } else {
        fail(DeckTrouble::Unreadable, lastWords(end.error));
    }
}

void MpvWork::draw(const ScreenShape& shape)
{
    mpv_render_frame_info info = {};
    const mpv_render_param asked{MPV_RENDER_PARAM_NEXT_FRAME_INFO, &info};
    const bool isNew = mpv_render_context_get_info(m_renderer.get(), asked) >= 0 &&
                       (info.flags & MPV_RENDER_FRAME_INFO_PRESENT) != 0;
    // Until the first has come there is only black; from then on the last one is drawn again.
    const bool hasPicture = isNew || m_hasDrawn;
    const int turned = (shape.turned + m_fileTurned) % 360;
    const QSize room = roomBeforeTurning(shape.size, turned);
    const DeckPicture picture = m_maker->draw(m_renderer.get(), room, turned);
    mpv_render_context_report_swap(m_renderer.get());
    if (picture.isNull() && !room.isEmpty()) {
        cannotDraw();
    }
    if (picture.isNull() || !hasPicture) {
        return;
    }
    m_hasDrawn = true;
    if (m_pictures.put(picture)) {
        m_mail.post(m_news.pictureChanged);
    }
    tellReadyOnce();
}

void MpvWork::tellReadyOnce()
{
    if (m_isReady || m_isOver || !m_hasRestarted || (m_hasVideo && !m_hasDrawn)) {
        return;
    }
    m_isReady = true;
    mpv_request_log_messages(m_handle.get(), "error");
    m_mail.post(m_news.ready);
}

void MpvWork::lookForStall()
{
    if (m_isOver) {
        return;
    }
    const Moment now = std::chrono::steady_clock::now();
    if (m_hasRestarted && !m_isReady && now - m_restartedAt > kLongestDrawing) {
        // None of its pictures can be decoded.
        m_hasVideo = false;
        if (numberOf(m_handle.get(), "current-tracks/audio/id") > 0) {
            tellReadyOnce();
        } else {
            fail(DeckTrouble::Unreadable, lastWords(0));
        }
    } else if (m_isStream && !m_isReady &&
               now - m_begun > (isTriedAgain() ? kLaterConnecting : kFirstConnecting)) {
        fail(DeckTrouble::Unreachable, QStringLiteral("No answer"));
    } else if (m_isStream && m_isReady && silence(now) > kLongestSilence) {
        fail(DeckTrouble::Stalled, QStringLiteral("Nothing has come for two seconds"));
    }
}

MpvWork::Moment::duration MpvWork::silence(Moment now) const
{
    const std::lock_guard lock(m_mutex);
    return m_plays ? now - m_lastProgress : Moment::duration::zero();
}

void MpvWork::fail(DeckTrouble trouble, const QString& words)
{
    if (std::exchange(m_isOver, true)) {
        return;
    }
    const DeckFault fault{trouble, oneLine(m_isStream ? withoutSecrets(words) : words)};
    m_mail.post([failed = m_news.failed, fault] { failed(fault); });
}

QString MpvWork::lastWords(int error) const
{
    if (!m_lastLog.isEmpty()) {
        return QString::fromUtf8(m_lastLog);
    }
    return error < 0 ? QString::fromUtf8(mpv_error_string(error))
                     : QStringLiteral("No picture and no sound in it can be decoded");
}

double MpvWork::toFrame(qint64 position) const
{
    const double seconds = static_cast<double>(position) / 1000.0;
    const double frames = m_framesPerSecond;
    if (frames <= 0.0) {
        return seconds;
    }
    return std::floor((seconds + kRounding) * frames) / frames;
}

void MpvWork::stop()
{
    m_mail.close();
    const char* command[] = {"stop", nullptr};
    // Gets it out of a connection that is still being made.
    commandAsync(command, Nothing);
    const std::lock_guard lock(m_mutex);
    m_isStopped = true;
    m_work.notify_one();
}

void MpvWork::play()
{
    setPlays(true);
    setAsync("pause", "no", Playing);
}

void MpvWork::pause()
{
    setPlays(false);
    setAsync("pause", "yes", Nothing);
}

void MpvWork::setPlays(bool plays)
{
    const Moment now = std::chrono::steady_clock::now();
    const std::lock_guard lock(m_mutex);
    m_plays = plays;
    if (plays) {
        m_position.run(now);
        m_lastProgress = now;
    } else {
        m_position.stand(now);
    }
}

void MpvWork::seek(qint64 position)
{
    {
        const std::lock_guard lock(m_mutex);
        m_isSeeking = true;
        m_position.forget();
    }
    const QByteArray place = QByteArray::number(toFrame(position), 'f', 6);
    const char* command[] = {"seek", place.constData(), "absolute+exact", nullptr};
    commandAsync(command, Seeking);
}

void MpvWork::setSpeed(double speed)
{
    {
        const std::lock_guard lock(m_mutex);
        m_position.setSpeed(speed, std::chrono::steady_clock::now());
    }
    setAsync("speed", QByteArray::number(speed, 'f', 6).constData(), Nothing);
}

void MpvWork::setAsync(const char* property, const char* value, std::uint64_t asked)
{
    const char* command[] = {"set", property, value, nullptr};
    commandAsync(command, asked);
}

void MpvWork::commandAsync(const char** command, std::uint64_t asked)
{
    const std::lock_guard lock(m_commandMutex);
    if (m_commanded != nullptr && mpv_command_async(m_commanded, asked, command) < 0) {
        // Only what is no command at all, or a library that has no room for one more.
        qWarning("libmpv does not take %s", command[0]);
    }
}

void MpvWork::setShape(const ScreenShape& shape)
{
    const std::lock_guard lock(m_mutex);
    if (m_shape != shape) {
        m_shape = shape;
        m_hasNewShape = true;
        m_work.notify_one();
    }
}

std::optional<qint64> MpvWork::position() const
{
    const std::lock_guard lock(m_mutex);
    const std::optional<double> place = m_position.at(std::chrono::steady_clock::now());
    return place ? std::optional(qRound64(*place)) : std::nullopt;
}

std::optional<qint64> MpvWork::pictureLength() const
{
    const double frames = m_framesPerSecond;
    return frames > 0.0 ? std::optional(qRound64(1000.0 / frames)) : std::nullopt;
}

void MpvWork::eventsCame(void* self)
{
    auto& work = *static_cast<MpvWork*>(self);
    const std::lock_guard lock(work.m_mutex);
    work.m_hasEvents = true;
    work.m_work.notify_one();
}

void MpvWork::drawingIsDue(void* self)
{
    auto& work = *static_cast<MpvWork*>(self);
    const std::lock_guard lock(work.m_mutex);
    work.m_hasDrawing = true;
    work.m_work.notify_one();
}

} // namespace trel::player
