#pragma once

#include "trelprogramschedule/catalogue/ContentReader.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QString>

namespace trel::mediadispatch {

/// A folder that has files of programs under the hash of what they hold, so that a file is known
/// wherever it came from and under whatever name, and one that stands there never changes. Several
/// programs and machines may put files into it at the same time.
///
/// A file is made under another name, which begins with a dot, and moved to its own once it is
/// whole and on the disk. Members may be called on any thread, and take as long as the disk does.
class TRELPROGRAMSCHEDULE_EXPORT MediaFolder
{
public:
    explicit MediaFolder(QString path);

    QString path() const { return m_path; }
    bool isThere() const;

    /// Where the file stands that holds this, or would; for contents that are known.
    QString pathOf(const ProgramContent& content) const;
    /// Whether it is there, by its name and its size.
    bool holds(const ProgramContent& content) const;

    /// What became of a file that was to be put into the folder.
    enum class Outcome {
        Put,
        WasThere,    ///< And was not read.
        Changed,     ///< It holds something else than was known.
        NotReadable, ///< It cannot be read, or that was cancelled; the fault says why.
        NotWritable, ///< The folder does not take it; the fault says why.
    };
    struct Result
    {
        Outcome outcome = Outcome::Put;
        Fault fault;
    };

    /// Puts a copy of a file into the folder, whose content is known. Nothing is left there of what
    /// was not put.
    Result put(const QString& file, const ProgramContent& content,
               const ContentCancelled& isCancelled = {}) const;

    /// Takes a file of this file system that was made for this folder to its place, if it holds
    /// what it should; Put, Changed or NotReadable. It is on the disk then. One that holds
    /// something else is removed.
    Result adopt(const QString& file, const ProgramContent& content,
                 const ContentCancelled& isCancelled = {}) const;

    /// Removes what programs have left half made a day ago or longer.
    void removeLeftovers() const;

private:
    QString draftOf(const ProgramContent& content) const;

    QString m_path;
};

} // namespace trel::mediadispatch
