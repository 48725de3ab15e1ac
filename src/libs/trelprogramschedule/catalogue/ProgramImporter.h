#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

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
    QString path;                          ///< Absolute and clean, or the address of a live source.
    double durationMs = 0.0;               ///< 0 for images and live sources.
    ProgramKind kind = ProgramKind::Other; ///< What it is made of.
    ProgramContent content = {};           ///< What the file holds; not known of a live source.
};

/// A path that could not become a program.
struct ImportRefusal
{
    QString path; ///< The file or address.
    Fault fault;  ///< Why.
};

/// What a scan found.
struct ImportScan
{
    std::vector<MediaSource> sources;    ///< In the order of the paths; folders by name.
    std::vector<ImportRefusal> refusals; ///< In the order of the sources.
    bool cancelled = false; ///< The caller ended it; sources and refusals are incomplete.
};

/// Called before each file with its place, from 0, the number of files and the path; returning
/// false ends the scan.
using ImportProgress = std::function<bool(int done, int total, const QString& path)>;

/// Called while files are still looked for, at every path that was named and at every entry of a
/// folder, with the number of files found so far; returning false ends the scan.
using ImportSearch = std::function<bool(int found)>;

/// Asked many times a second while a file is read; true ends the scan in the middle of it.
using ImportCancelled = std::function<bool()>;

/// The suffixes, in small letters, by which films, images or sound are known; in no order that
/// means anything. Empty for other kinds. Files of other names can be media as well.
TRELPROGRAMSCHEDULE_EXPORT QStringList mediaSuffixes(ProgramKind kind);

/// Looks at files, folders with everything below them, and addresses of live sources, and reads
/// the lengths of media files. Files in folders that are no media are passed over; a file named
/// itself that is none is a refusal. Touches no store and may run on any thread.
///
/// All files are found before the first is read. A scan that is ended meanwhile has found nothing.
///
/// Files are read by a program of its own, as mediaReading() says, so that whatever a file holds
/// costs no more than that file, which is refused. A name that is not UTF-8, which no program could
/// be found by later, is a refusal as well, wherever it is found.
///
/// All bytes of what becomes a program are read for its hash, in constant memory, unless its size
/// and its time of change are those that are known. A file that is changed meanwhile, or cannot be
/// read to its end, becomes a program whose content is not known.
TRELPROGRAMSCHEDULE_EXPORT ImportScan scanMedia(const QStringList& paths,
                                                const ImportProgress& progress = {},
                                                const ImportSearch& search = {},
                                                const ImportCancelled& isCancelled = {},
                                                const FileContents& known = {});

} // namespace trel::mediadispatch
