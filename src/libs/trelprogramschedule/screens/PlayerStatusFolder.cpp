#include "PlayerStatusFolder.h"

#include "media/MediaFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <optional>

namespace trel::mediadispatch {

namespace {

const QLatin1String kFormat("trel-screen");
constexpr int kVersion = 1;
const QLatin1String kSuffix(".json");
/// More than any status has.
constexpr qint64 kMostBytes = 65536;
/// More screens than one store has, so that a folder full of other things does no harm.
constexpr int kMostScreens = 10000;
constexpr int kLongestText = 1000;
/// Of the name of a file, without the suffix, which systems cut at 255.
constexpr int kLongestName = 240;

/// A file's name for any name of a screen, in any locale: a name cannot lead elsewhere, and two
/// names never lead to one file.
QString fileName(const QString& screen)
{
    QByteArray name;
    for (const char byte : screen.toUtf8()) {
        const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                             (byte >= '0' && byte <= '9') || byte == '-' || byte == '_';
        name += isPlain ? QByteArray(1, byte) : '+' + QByteArray(1, byte).toHex();
    }
    return QString::fromLatin1(name);
}

QString textOf(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toString().left(kLongestText);
}

/// Instants go as texts, since the numbers of JSON do not hold all of them.
QJsonValue instantJson(Instant instant)
{
    return QString::number(instant);
}

Instant instantOf(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toString().toLongLong();
}

int numberOf(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name)).toInt(-1);
}

double measureOf(const QJsonObject& object, const char* name)
{
    const double measure = object.value(QLatin1String(name)).toDouble();
    return std::isfinite(measure) ? measure : 0.0;
}

qint64 countOf(const QJsonObject& object, const char* name)
{
    constexpr double most = 1e15;
    return static_cast<qint64>(std::clamp(measureOf(object, name), 0.0, most));
}

QJsonObject stateJson(const ScreenState& state)
{
    return {
        {QStringLiteral("picture"), static_cast<int>(state.picture)},
        {QStringLiteral("reason"), static_cast<int>(state.reason)},
        {QStringLiteral("task"), state.taskId},
        {QStringLiteral("plan"), state.planId},
        {QStringLiteral("row"), state.planRow},
        {QStringLiteral("entry"), state.entry},
        {QStringLiteral("program"), state.progIndex},
        {QStringLiteral("play"), state.play},
        {QStringLiteral("run"), instantJson(state.run)},
        {QStringLiteral("position"), instantJson(state.position)},
        {QStringLiteral("since"), instantJson(state.since)},
        {QStringLiteral("until"), instantJson(state.until)},
        {QStringLiteral("spanUntil"), instantJson(state.spanUntil)},
    };
}

/// None for numbers that no state has.
std::optional<ScreenState> stateOf(const QJsonObject& object)
{
    const int picture = numberOf(object, "picture");
    const int reason = numberOf(object, "reason");
    if (picture < 0 || picture > static_cast<int>(ScreenPicture::Frozen) || reason < 0 ||
        reason > static_cast<int>(ScreenReason::InsertionRanOut)) {
        return std::nullopt;
    }
    ScreenState state;
    state.picture = static_cast<ScreenPicture>(picture);
    state.reason = static_cast<ScreenReason>(reason);
    state.taskId = numberOf(object, "task");
    state.planId = numberOf(object, "plan");
    state.planRow = numberOf(object, "row");
    state.entry = numberOf(object, "entry");
    state.progIndex = numberOf(object, "program");
    state.play = numberOf(object, "play");
    state.run = instantOf(object, "run");
    state.position = instantOf(object, "position");
    state.since = instantOf(object, "since");
    state.until = instantOf(object, "until");
    state.spanUntil = instantOf(object, "spanUntil");
    return state;
}

QByteArray bytesOf(const PlayerStatus& status)
{
    const QJsonObject object{
        {QStringLiteral("format"), kFormat},
        {QStringLiteral("version"), kVersion},
        {QStringLiteral("screen"), status.screen},
        {QStringLiteral("player"), status.player.left(kLongestText)},
        {QStringLiteral("started"), instantJson(status.started)},
        {QStringLiteral("heard"), instantJson(status.heard)},
        {QStringLiteral("shown"), stateJson(status.shown)},
        {QStringLiteral("name"), status.program.left(kLongestText)},
        {QStringLiteral("standIn"), status.isStandIn},
        {QStringLiteral("lastPicture"), status.keepsLastPicture},
        {QStringLiteral("switches"), status.switches},
        {QStringLiteral("medianLateness"), status.medianLateness},
        {QStringLiteral("worstLateness"), status.worstLateness},
        {QStringLiteral("faults"), status.faults},
        {QStringLiteral("lastFault"), status.lastFault.left(kLongestText)},
        {QStringLiteral("lastFaultAt"), instantJson(status.lastFaultAt)},
    };
    return QJsonDocument(object).toJson();
}

/// None for what is no status of the screen whose file it stands in.
std::optional<PlayerStatus> statusOf(const QByteArray& bytes, const QString& file)
{
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    const std::optional<ScreenState> shown =
        stateOf(object.value(QLatin1String("shown")).toObject());
    PlayerStatus status;
    status.screen = textOf(object, "screen");
    if (object.value(QLatin1String("format")).toString() != kFormat ||
        object.value(QLatin1String("version")).toInt() != kVersion || !shown ||
        !PlayerStatusFolder::takesName(status.screen) ||
        fileName(status.screen) + kSuffix != file) {
        return std::nullopt;
    }
    status.shown = *shown;
    status.player = textOf(object, "player");
    status.started = instantOf(object, "started");
    status.heard = instantOf(object, "heard");
    status.program = textOf(object, "name");
    status.isStandIn = object.value(QLatin1String("standIn")).toBool();
    status.keepsLastPicture = object.value(QLatin1String("lastPicture")).toBool();
    status.switches = countOf(object, "switches");
    status.medianLateness = measureOf(object, "medianLateness");
    status.worstLateness = measureOf(object, "worstLateness");
    status.faults = countOf(object, "faults");
    status.lastFault = textOf(object, "lastFault");
    status.lastFaultAt = instantOf(object, "lastFaultAt");
    return status;
}

/// Nothing of what is no regular file.
QByteArray contentOf(const QString& path)
{
    const MediaFile media(path);
    QFile file;
    if (media.descriptor() < 0 || !file.open(media.descriptor(), QIODevice::ReadOnly)) {
        return {};
    }
    return file.read(kMostBytes);
}

} // namespace

PlayerStatusFolder::PlayerStatusFolder(const QString& store)
    : m_folder(store + QStringLiteral("-screens"))
{}

bool PlayerStatusFolder::takesName(const QString& screen)
{
    const auto isControl = [](QChar letter) { return !letter.isPrint() && !letter.isSurrogate(); };
    return !screen.isEmpty() && std::none_of(screen.begin(), screen.end(), isControl) &&
           fileName(screen).size() <= kLongestName;
}

QString PlayerStatusFolder::statusPath(const QString& screen) const
{
    return m_folder + QLatin1Char('/') + fileName(screen) + kSuffix;
}

QString PlayerStatusFolder::lockPath(const QString& screen) const
{
    QDir().mkpath(m_folder);
    return m_folder + QLatin1Char('/') + fileName(screen) + QStringLiteral(".lock");
}

Fault PlayerStatusFolder::write(const PlayerStatus& status) const
{
    QDir().mkpath(m_folder);
    const QString path = statusPath(status.screen);
    if (QFileInfo(path).isSymLink()) {
        // What it leads to would be written in its stead.
        QFile::remove(path);
    }
    errno = 0;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytesOf(status));
        if (file.commit()) {
            return {};
        }
    }
    return faultOf(FaultCode::System, errno);
}

void PlayerStatusFolder::remove(const QString& screen) const
{
    QFile::remove(statusPath(screen));
}

std::vector<PlayerStatus> PlayerStatusFolder::read() const
{
    const QStringList files =
        QDir(m_folder).entryList({QLatin1Char('*') + kSuffix}, QDir::Files, QDir::Name);
    std::vector<PlayerStatus> found;
    for (const QString& file : files.mid(0, kMostScreens)) {
        if (auto status = statusOf(contentOf(m_folder + QLatin1Char('/') + file), file)) {
            found.push_back(*std::move(status));
        }
    }
    std::sort(found.begin(), found.end(), [](const PlayerStatus& one, const PlayerStatus& other) {
        return one.screen.localeAwareCompare(other.screen) < 0;
    });
    return found;
}

} // namespace trel::mediadispatch
