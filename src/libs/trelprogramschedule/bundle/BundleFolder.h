#pragma once

#include "BundleReader.h"
#include "trelprogramschedule/catalogue/ProgramContent.h"

#include <map>
#include <string>

namespace trel::mediadispatch {

/// Puts media of a bundle into a folder, each under the name of its program. A file is written
/// under another name beside it, and gets its own once all of it is on the disk and has its hash. A
/// file that is there and holds the same is taken as it is; one that holds something else is left
/// alone, and the new one gets another name. What was put there goes again with the object, unless
/// it is to stay.
class TRELPROGRAMSCHEDULE_EXPORT BundleFolder final : public BundleSink
{
public:
    /// A file that is in the folder now.
    struct File
    {
        QString path;
        ProgramContent content;
        bool wasThere = false;
    };

    /// Takes what has one of these hashes, which are those of the programs. The folder is made with
    /// the first file, with the folders around it.
    BundleFolder(const QString& folder, std::map<std::string, NamedProgram> wanted);
    ~BundleFolder() override;

    BundleFault begin(const BundleMedia& media, bool& isWanted) override;
    BundleFault write(const char* bytes, std::size_t size) override;
    BundleFault end() override;

    /// By their hashes.
    const std::map<std::string, File>& files() const { return m_files; }
    /// From now on they stay.
    void keep() { m_isKept = true; }

private:
    /// Finds a name that is free, or that of a file with the same content.
    BundleFault choose(const BundleMedia& media, const NamedProgram& program);
    BundleFault makeDraft();
    void dropDraft();
    /// Why a file cannot be written, by the error of the system.
    BundleFault cannotWrite(int error) const;

    QString m_folder;
    std::map<std::string, NamedProgram> m_wanted;
    std::map<std::string, File> m_files;
    std::string m_hash; ///< Of what comes now.
    QString m_path;     ///< Where it is to be.
    QByteArray m_draft; ///< Where it is written.
    int m_handle = -1;  ///< Of that; -1 while nothing is written.
    bool m_isKept = false;
};

} // namespace trel::mediadispatch
