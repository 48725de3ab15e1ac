#include "DraftPlace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <map>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace trel::mediadispatch {

namespace {

/// Names of files have 255 bytes at most, and the store's is one of them already.
constexpr int kLongestDesk = 100;
constexpr QLatin1Char kBeforeNumber('+');

QString nameOf(const QString& desk)
{
    const QByteArray name = desk.toUtf8().toPercentEncoding("@");
    if (name.size() <= kLongestDesk) {
        return QString::fromLatin1(name);
    }
    return QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex());
}

struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// The number that a name ends with; 0 where it is none of a draft.
int numberIn(const QString& rest)
{
    if (rest.isEmpty()) {
        return 1;
    }
    bool isNumber = false;
    const int number = rest.startsWith(kBeforeNumber) ? rest.mid(1).toInt(&isNumber) : 0;
    return isNumber && number > 1 && rest.mid(1) == QString::number(number) ? number : 0;
}

} // namespace

QByteArray storeIdentity(const QString& store)
{
    struct statx status = {};
    if (::statx(AT_FDCWD, QFile::encodeName(store).constData(), 0, STATX_INO | STATX_BTIME,
                &status) != 0) {
        return {};
    }
    // Numbers of files are given out again. Where a file system knows no time of birth, the number
    // has to do; that of the device changes with a restart.
    const bool hasBirth = (status.stx_mask & STATX_BTIME) != 0;
    return QByteArray::number(static_cast<qulonglong>(status.stx_ino)) + '-' +
           QByteArray::number(static_cast<qlonglong>(hasBirth ? status.stx_btime.tv_sec : 0)) +
           '.' + QByteArray::number(hasBirth ? status.stx_btime.tv_nsec : 0U);
}

DraftPlace::DraftPlace(const QString& store, const QString& desk)
    : m_start(store + QLatin1String(".unsaved-") + nameOf(desk))
{}

QString DraftPlace::path(int number) const
{
    return number == 1 ? m_start : m_start + kBeforeNumber + QString::number(number);
}

QStringList DraftPlace::files() const
{
    const QFileInfo info(m_start);
    const QString start = info.fileName();
    const std::unique_ptr<DIR, CloseFolder> folder(
        ::opendir(QFile::encodeName(info.path()).constData()));
    std::map<int, QString> found;
    const dirent* entry = folder ? ::readdir(folder.get()) : nullptr;
    for (; entry != nullptr; entry = ::readdir(folder.get())) {
        const QString name = QFile::decodeName(entry->d_name);
        const int number = name.startsWith(start) ? numberIn(name.mid(start.size())) : 0;
        if (number > 0) {
            found.emplace(number, info.dir().filePath(name));
        }
    }
    QStringList files;
    for (const auto& [number, path] : found) {
        files.append(path);
    }
    return files;
}

} // namespace trel::mediadispatch
