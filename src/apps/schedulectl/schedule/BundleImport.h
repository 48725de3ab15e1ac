#pragma once

#include "FoundPrograms.h"
#include "trelprogramschedule/ScheduleImport.h"
#include "trelprogramschedule/bundle/BundleFolder.h"
#include "trelprogramschedule/bundle/BundleReader.h"

#include <QFile>
#include <QString>

#include <map>
#include <memory>
#include <set>
#include <vector>

namespace trel::console {

class Console;

/// A bundle that a schedule is read from, with the media that it brings.
class BundleImport
{
public:
    /// Whether the file at a path is an archive.
    static bool isBundle(const QString& path);

    explicit BundleImport(const QString& path);

    /// Reads all but the media. A part of a sentence that says why that failed; empty where it did
    /// not.
    QString open();
    const trel::mediadispatch::NamedScheduleFromJson& schedule() const;

    /// Has the bundle bring what the catalogue does not have, has only by its name, or has with
    /// another file or none. The media of these take a folder to go to; without one, true is given
    /// where a program is played whose media are in the bundle, and is not in the catalogue.
    bool choose(std::vector<FoundProgram>& programs, bool hasFolder) const;

    /// Puts the media that the bundle brings into the folder, looks at them, and adds what comes
    /// of them to the import. Tells what cannot become a program, which the bundle then does not
    /// bring. False where the bundle could not be read to its end, or a file not be written.
    bool bring(const QString& folder, std::vector<FoundProgram>& programs,
               trel::mediadispatch::ScheduleImport& import, Console& console);

    /// The import has been done: what was put into the folder stays there. It goes otherwise.
    void keep();
    /// Such as "2 media files written to /media, 1 was there"; empty for none.
    QString filesText() const;

private:
    /// Where the media of a program are now, or its address.
    QString placeOf(const trel::mediadispatch::NamedProgram& program) const;

    QString m_path;
    QFile m_file;
    trel::mediadispatch::BundleReader m_reader;
    std::set<std::string> m_hashes; ///< Of the media in the bundle.
    std::unique_ptr<trel::mediadispatch::BundleFolder> m_folder;
    QString m_folderPath;
};

} // namespace trel::console
