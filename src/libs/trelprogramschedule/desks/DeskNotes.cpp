#include "DeskNotes.h"

#include "DeskNoteForm.h"
#include "draft/DraftLock.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

const QLatin1String kFormat("trel-desk");
constexpr int kVersion = 1;
/// Of each file, so that a note takes the place of a former one in one piece.
constexpr int kBytes = 4096;
/// Names of files have 255 bytes at most, and the store's is one of them already.
constexpr int kLongestDeskName = 100;
/// More programs than edit one store, so that a folder full of other things does no harm.
constexpr std::size_t kMostNotes = 1000;

QString startOf(const QString& store)
{
    return store + QLatin1String(".edited-");
}

QString fileNameOf(const QString& desk)
{
    const QByteArray name = desk.toUtf8().toPercentEncoding("@");
    return QString::fromLatin1(
        name.size() <= kLongestDeskName
            ? name
            : QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex());
}

QByteArray bytesOf(const DeskNote& note)
{
    QJsonArray tasks;
    for (std::size_t i = 0; i < std::min(note.taskIds.size(), kMostNoteTasks); ++i) {
        tasks.append(note.taskIds[i]);
    }
    // Instants go as texts, since the numbers of JSON do not hold all of them.
    const QJsonObject object{{QStringLiteral("format"), kFormat},
                             {QStringLiteral("version"), kVersion},
                             {QStringLiteral("desk"), note.desk},
                             {QStringLiteral("since"), QString::number(note.since)},
                             {QStringLiteral("changed"), QString::number(note.changed)},
                             {QStringLiteral("tasks"), tasks}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact).leftJustified(kBytes, ' ');
}

std::optional<DeskNote> noteOf(const QByteArray& bytes)
{
    const QJsonObject object = QJsonDocument::fromJson(bytes.trimmed()).object();
    const QString desk = object.value(QLatin1String("desk")).toString();
    if (object.value(QLatin1String("format")).toString() != kFormat ||
        object.value(QLatin1String("version")).toInt() != kVersion || !isDeskName(desk)) {
        return std::nullopt;
    }
    DeskNote note;
    note.desk = desk;
    note.since = object.value(QLatin1String("since")).toString().toLongLong();
    note.changed = object.value(QLatin1String("changed")).toString().toLongLong();
    const QJsonArray tasks = object.value(QLatin1String("tasks")).toArray();
    for (const QJsonValue& task : tasks) {
        if (note.taskIds.size() < kMostNoteTasks) {
            note.taskIds.push_back(task.toInt(-1));
        }
    }
    return note;
}

struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// A file of another program, which may be anything.
class OtherFile
{
public:
    explicit OtherFile(const QString& path)
        : m_path(QFile::encodeName(path))
        , m_handle(::open(m_path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK))
    {}
    ~OtherFile()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    Q_DISABLE_COPY(OtherFile)

    std::optional<DeskNote> note() const
    {
        struct stat status = {};
        if (m_handle < 0 || ::fstat(m_handle, &status) != 0 || !S_ISREG(status.st_mode) ||
            status.st_size != kBytes) {
            return std::nullopt;
        }
        std::array<char, kBytes> bytes = {};
        if (::pread(m_handle, bytes.data(), bytes.size(), 0) != kBytes) {
            return std::nullopt;
        }
        return noteOf(QByteArray(bytes.data(), kBytes));
    }

    /// Nobody holds it. Then nobody takes it until it is closed here.
    bool isLeft() const { return ::flock(m_handle, LOCK_SH | LOCK_NB) == 0; }
    void remove() const
    {
        struct stat here = {};
        struct stat there = {};
        if (::fstat(m_handle, &here) == 0 && ::lstat(m_path.constData(), &there) == 0 &&
            here.st_dev == there.st_dev && here.st_ino == there.st_ino) {
            ::unlink(m_path.constData());
        }
    }

private:
    QByteArray m_path;
    int m_handle;
};

} // namespace

DeskNotes::DeskNotes(const QString& store, QString desk)
    : m_store(store)
    , m_desk(std::move(desk).left(kLongestDesk))
    , m_path(startOf(store) + fileNameOf(m_desk) + QLatin1Char('.') + QString::number(::getpid()))
{}

DeskNotes::~DeskNotes()
{
    withdraw();
}

bool DeskNotes::write(const DeskNote& note)
{
    if (!m_lock || !m_lock->isInPlace()) {
        m_lock = DraftLock::of(m_path, DraftLock::Missing::IsMade);
    }
    if (!m_lock) {
        return false;
    }
    DeskNote own = note;
    own.desk = m_desk;
    const QByteArray bytes = bytesOf(own);
    // Other desks may be those of other users.
    return ::fchmod(m_lock->handle(), S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH) == 0 &&
           ::pwrite(m_lock->handle(), bytes.constData(), static_cast<std::size_t>(bytes.size()),
                    0) == bytes.size();
}

void DeskNotes::withdraw()
{
    if (m_lock) {
        m_lock->remove();
        m_lock.reset();
    }
}

bool DeskNotes::renew()
{
    return m_lock && m_lock->isInPlace();
}

std::vector<DeskNote> DeskNotes::others() const
{
    const QFileInfo info(startOf(m_store));
    const QByteArray start = QFile::encodeName(info.fileName());
    const std::unique_ptr<DIR, CloseFolder> folder(
        ::opendir(QFile::encodeName(info.path()).constData()));
    std::vector<QString> files;
    const dirent* entry = folder ? ::readdir(folder.get()) : nullptr;
    for (; entry != nullptr && files.size() < kMostNotes; entry = ::readdir(folder.get())) {
        if (QByteArray(entry->d_name).startsWith(start)) {
            files.push_back(info.path() + QLatin1Char('/') + QFile::decodeName(entry->d_name));
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<DeskNote> notes;
    for (const QString& path : files) {
        if (path == m_path) {
            continue;
        }
        const OtherFile file(path);
        std::optional<DeskNote> note = file.note();
        if (note && file.isLeft()) {
            file.remove();
        } else if (note) {
            notes.push_back(*std::move(note));
        }
    }
    std::stable_sort(notes.begin(), notes.end(),
                     [](const DeskNote& a, const DeskNote& b) { return a.desk < b.desk; });
    return notes;
}

} // namespace trel::mediadispatch
