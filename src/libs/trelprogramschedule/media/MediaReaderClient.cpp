#include "media/MediaReaderClient.h"

#include "faults/FaultWords.h"
#include "media/MediaFile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

#include <dlfcn.h>

namespace trel::mediadispatch {

namespace {

using Transfer = ReaderProcess::Transfer;

const QLatin1String kFile("/trelprogramschedulewidgets/media-reader");

/// A program that has read so many files is replaced, so that what it may have lost of its memory
/// does not add up.
constexpr int kFilesPerProcess = 500;
/// No program plays for longer than ten years.
constexpr double kLongestMs = 10.0 * 366 * 24 * 3600 * 1000;

/// The folder of the library, or of the program, that holds this code; empty when it is unknown.
QString ownFolder()
{
    static const char here = 0;
    Dl_info info = {};
    if (dladdr(&here, &info) != 0 && info.dli_fname != nullptr) {
        const QString name = QFile::decodeName(info.dli_fname);
        // A program that the shell found goes by its bare name, which says nothing of its folder.
        return name.contains(QLatin1Char('/')) ? QFileInfo(name).canonicalPath() : QString();
    }
    return QString();
}

QStringList usualPlaces()
{
    QStringList places;
    if (const QString folder = ownFolder(); !folder.isEmpty()) {
        places.append(folder + kFile);
    }
    // For a program that holds the service itself, and so has no library beside the reader.
    if (QCoreApplication::instance() != nullptr) {
        places.append(
            QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../lib")) +
            kFile);
    }
    places.removeDuplicates();
    return places;
}

/// Puts a sentence into the log, once in the life of the process.
void tellOnce(const QString& sentence)
{
    static QMutex mutex;
    static QSet<QString> told;
    const QMutexLocker lock(&mutex);
    if (!told.contains(sentence)) {
        told.insert(sentence);
        qWarning().noquote() << sentence;
    }
}

FaultCode faultOfVerdict(wire::Verdict verdict)
{
    switch (verdict) {
    case wire::Verdict::Taken:
        return FaultCode::None;
    case wire::Verdict::NoMedia:
        return FaultCode::NoMedia;
    case wire::Verdict::OtherFormat:
        return FaultCode::FormatNotImported;
    case wire::Verdict::Unreadable:
        return FaultCode::ContentUnreadable;
    case wire::Verdict::UnreadablePicture:
        return FaultCode::PictureUnreadable;
    case wire::Verdict::NoContent:
        return FaultCode::NoPictureNorSound;
    case wire::Verdict::NoLength:
    case wire::Verdict::Drawing:
        break;
    }
    return FaultCode::LengthUnreadable;
}

ProgramKind kindOf(wire::Kind kind)
{
    switch (kind) {
    case wire::Kind::Video:
        return ProgramKind::Video;
    case wire::Kind::Audio:
        return ProgramKind::Audio;
    case wire::Kind::Image:
        return ProgramKind::Image;
    case wire::Kind::None:
        break;
    }
    return ProgramKind::Other;
}

bool hasSoundFacts(const wire::Answer& answer)
{
    if (answer.verdict != wire::Verdict::Taken) {
        return answer.kind == wire::Kind::None && answer.durationMs == 0.0 &&
               answer.verdict != wire::Verdict::Drawing;
    }
    // Written so that what is no number fails.
    const bool hasLength = answer.durationMs > 0.0 && answer.durationMs <= kLongestMs;
    switch (answer.kind) {
    case wire::Kind::Video:
    case wire::Kind::Audio:
        return hasLength;
    case wire::Kind::Image:
        return answer.durationMs == 0.0;
    case wire::Kind::None:
        break;
    }
    return false;
}

bool hasSoundSize(const wire::Question& question, const wire::Answer& answer)
{
    const bool isEmpty = answer.width == 0 && answer.height == 0;
    return isEmpty || (answer.width > 0 && answer.height > 0 && answer.width <= question.width &&
                       answer.height <= question.height);
}

/// Whether an answer can be one to the question.
bool isSound(const wire::Question& question, const wire::Answer& answer)
{
    if (answer.magic != wire::kMagic || answer.number != question.number ||
        answer.verdict < wire::Verdict::Taken || answer.verdict > wire::kLastVerdict ||
        answer.kind > wire::kLastKind) {
        return false;
    }
    return question.wish == wire::Wish::Facts
               ? hasSoundFacts(answer) && answer.width == 0 && answer.height == 0
               : hasSoundSize(question, answer);
}

void setSuffix(wire::Question& question, const QString& path)
{
    const QByteArray suffix = QFileInfo(path).suffix().toLower().toLatin1();
    const bool isPlain = std::all_of(suffix.begin(), suffix.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
    });
    if (isPlain && suffix.size() <= wire::kSuffixLetters) {
        std::copy(suffix.begin(), suffix.end(), question.suffix);
    }
}

quint32 sideOf(int length)
{
    return static_cast<quint32>(std::clamp(length, 1, static_cast<int>(wire::kLongestSide)));
}

} // namespace

MediaReaderClient::MediaReaderClient(Purpose purpose, const MediaReading& reading)
    : m_argument(purpose == Purpose::Facts ? wire::kFacts : wire::kPictures)
    , m_reading(reading)
    , m_places(reading.program.isEmpty() ? usualPlaces() : QStringList{reading.program})
{}

MediaFacts MediaReaderClient::facts(const QString& path, bool isNamedAsMedia,
                                    const Cancelled& isCancelled)
{
    const MediaFile file(path);
    if (file.descriptor() < 0) {
        return {ProgramKind::Other, 0.0, file.fault()};
    }
    wire::Question question;
    question.isNamedAsMedia = isNamedAsMedia ? 1 : 0;
    setSuffix(question, path);
    const Reply reply = ask(question, file, isCancelled);
    if (reply.isCancelled || reply.problem) {
        return {ProgramKind::Other, 0.0, reply.problem};
    }
    return {kindOf(reply.answer.kind),
            reply.answer.durationMs,
            {faultOfVerdict(reply.answer.verdict), {}}};
}

MediaPicture MediaReaderClient::picture(const QString& path, ProgramKind kind, const QSize& bound,
                                        const Cancelled& isCancelled, qint64 positionMs)
{
    const MediaFile file(path);
    if (file.descriptor() < 0) {
        return {};
    }
    wire::Question question;
    question.wish = kind == ProgramKind::Image ? wire::Wish::ImagePicture : wire::Wish::FilmPicture;
    // It became a program once, so that its name is not all that speaks for it.
    question.isNamedAsMedia = 1;
    question.width = sideOf(bound.width());
    question.height = sideOf(bound.height());
    question.positionMs = static_cast<std::uint32_t>(
        std::clamp<qint64>(positionMs, 0, std::numeric_limits<std::uint32_t>::max()));
    setSuffix(question, path);
    Reply reply = ask(question, file, isCancelled);
    if (reply.answer.verdict == wire::Verdict::Drawing && reply.dots.empty()) {
        m_process.kill();
        m_argument = wire::kDrawings;
        reply = ask(question, file, isCancelled);
    }
    if (reply.isCancelled || reply.dots.empty()) {
        return {};
    }
    return {QSize(static_cast<int>(reply.answer.width), static_cast<int>(reply.answer.height)),
            std::move(reply.dots)};
}

bool MediaReaderClient::start(const Cancelled& isCancelled)
{
    // Anything that was not asked for, an end among it.
    if (m_process.isRunning() && (m_filesLeft <= 0 || m_process.hasUnread())) {
        m_process.kill();
    }
    if (m_process.isRunning()) {
        return true;
    }
    if (m_problem) {
        return false;
    }
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [](const QString& place) { return QFileInfo::exists(place); });
    if (found == m_places.end()) {
        m_problem = faultOf(FaultCode::ReaderMissing, m_places.join(QLatin1String(", ")));
    } else {
        m_problem = greet(*found, isCancelled);
    }
    if (m_problem) {
        tellOnce(englishSentence(m_problem));
    }
    return m_process.isRunning();
}

Fault MediaReaderClient::greet(const QString& file, const Cancelled& isCancelled)
{
    if (const int error = m_process.start(file, m_argument); error != 0) {
        return faultOf(FaultCode::ReaderDoesNotStart, file, error);
    }
    wire::Greeting greeting;
    const Transfer transfer =
        m_process.receive(&greeting, sizeof greeting,
                          std::chrono::steady_clock::now() + m_reading.startDeadline, isCancelled);
    const bool isOwn = greeting.magic == wire::kMagic && greeting.version == wire::kVersion;
    if (transfer == Transfer::Done && isOwn && greeting.isFiltered <= 1) {
        m_filesLeft = kFilesPerProcess;
        if (greeting.isFiltered == 0) {
            tellOnce(QStringLiteral("Media are read without a filter of system calls, which this "
                                    "system or this build does not have; the limits hold."));
        }
        return {};
    }
    m_process.kill();
    switch (transfer) {
    case Transfer::Cancelled:
        return {};
    case Transfer::Late:
        return faultOf(FaultCode::ReaderDoesNotAnswer, file);
    case Transfer::Ended:
        return faultOf(FaultCode::ReaderEndsAtOnce, file);
    case Transfer::Done:
        break;
    }
    return faultOf(FaultCode::ReaderOfOtherVersion, file);
}

MediaReaderClient::Reply MediaReaderClient::ask(wire::Question question, const MediaFile& file,
                                                const Cancelled& isCancelled)
{
    using std::chrono::seconds;
    Reply reply;
    if (!start(isCancelled)) {
        reply.problem = m_problem;
        reply.isCancelled = !m_problem;
        return reply;
    }
    --m_filesLeft;
    question.number = ++m_number;
    constexpr seconds kMost{3600};
    question.seconds = static_cast<quint16>(
        std::clamp(std::chrono::ceil<seconds>(m_reading.deadline), seconds(1), kMost).count());
    if (!m_process.send(&question, sizeof question, file.descriptor())) {
        return failure(Transfer::Ended);
    }
    return read(question, isCancelled);
}

MediaReaderClient::Reply MediaReaderClient::read(const wire::Question& question,
                                                 const Cancelled& isCancelled)
{
    const ReaderProcess::Moment until = std::chrono::steady_clock::now() + m_reading.deadline;
    Reply reply;
    Transfer transfer = m_process.receive(&reply.answer, sizeof reply.answer, until, isCancelled);
    if (transfer == Transfer::Done && !isSound(question, reply.answer)) {
        return failure(Transfer::Done);
    }
    if (transfer == Transfer::Done && reply.answer.width > 0) {
        reply.dots.resize(std::size_t(reply.answer.width) * reply.answer.height);
        transfer = m_process.receive(reply.dots.data(), reply.dots.size() * sizeof(quint32), until,
                                     isCancelled);
    }
    if (transfer != Transfer::Done) {
        return failure(transfer);
    }
    return m_process.hasUnread() ? failure(Transfer::Done) : reply;
}

/// What comes of a file over which the program failed. One that came through to its end has said
/// something that makes no sense.
MediaReaderClient::Reply MediaReaderClient::failure(Transfer transfer)
{
    m_process.kill();
    Reply reply;
    switch (transfer) {
    case Transfer::Cancelled:
        reply.isCancelled = true;
        break;
    case Transfer::Late:
        reply.problem = faultOf(FaultCode::MediaTooSlow,
                                std::chrono::duration<double>(m_reading.deadline).count());
        break;
    case Transfer::Ended:
        reply.problem.code = FaultCode::ReaderCrashed;
        break;
    case Transfer::Done:
        reply.problem.code = FaultCode::ReaderAnswersBadly;
        break;
    }
    return reply;
}

} // namespace trel::mediadispatch
