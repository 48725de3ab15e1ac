#pragma once

#include "service/ScheduleRecords.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace trel::mediadispatch {

/// Something that can become a program.
struct MediaSource
{
    QString
        name; ///< As it will be shown: the file's base name, or the address without its password.
    QString path;            ///< Absolute and clean, or the address of a live source.
    double durationMs = 0.0; ///< 0 for images and live sources.
    ProgramKind kind = ProgramKind::Other;
};

/// A path that could not become a program.
struct ImportRefusal
{
    QString path;
    QString reason; ///< A sentence for the operator.
};

/// What a scan found.
struct ImportScan
{
    std::vector<MediaSource> sources; ///< In the order of the paths; folders by name.
    std::vector<ImportRefusal> refusals;
    bool cancelled = false; ///< The caller stopped it; sources and refusals are incomplete.
};

/// Called before each file with its place, from 0, the number of files and the path; returning
/// false ends the scan.
using ImportProgress = std::function<bool(int done, int total, const QString& path)>;

/// Looks at files, folders with everything below them, and addresses of live sources, and reads
/// the lengths of media files. Files in folders that are no media are passed over; a file named
/// itself that is none is a refusal. Touches no store and may run on any thread.
Q_DECL_EXPORT ImportScan scanMedia(const QStringList& paths, const ImportProgress& progress = {});

} // namespace trel::mediadispatch
