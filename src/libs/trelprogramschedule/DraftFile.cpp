#include "DraftFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringRef>

#include <cerrno>
#include <csignal>
#include <memory>

#include <dirent.h>

namespace trel::mediadispatch {

namespace {

QLatin1String draftMark()
{
    return QLatin1String(".new-");
}

/// Whether what stands behind the mark of a draft is the number of a program that has ended.
bool isOfStoppedProgram(const QStringRef& rest)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+)(-journal|-wal|-shm)?$"));
    const QRegularExpressionMatch match = form.match(rest);
    const int program = match.captured(1).toInt();
    return program > 0 && ::kill(program, 0) != 0 && errno == ESRCH;
}

struct CloseFolder
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// Null behind the last name, and where there is no folder.
const dirent* next(DIR* folder)
{
    return folder == nullptr ? nullptr : ::readdir(folder);
}

} // namespace

QString draftPath(const QString& path)
{
    return path + draftMark() + QString::number(QCoreApplication::applicationPid());
}

void removeLeftDrafts(const QString& path)
{
    const QFileInfo info(path);
    const QString start = info.fileName() + draftMark();
    const std::unique_ptr<DIR, CloseFolder> folder(
        ::opendir(QFile::encodeName(info.path()).constData()));
    for (const dirent* entry = next(folder.get()); entry != nullptr; entry = next(folder.get())) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name.startsWith(start) && isOfStoppedProgram(name.midRef(start.size()))) {
            const QFileInfo draft(info.dir(), name);
            if (draft.isFile() && !draft.isSymLink()) {
                QFile::remove(draft.filePath());
            }
        }
    }
}

} // namespace trel::mediadispatch
