#pragma once

#include <QFileSystemWatcher>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace trel::mediadispatch {

/// The file of a program, and whether it is there.
struct ProgramFile
{
    int progIndex = -1;
    QString path;
    bool isThere = false;
};

using ProgramFiles = std::vector<ProgramFile>;

/// How files are looked at, and how eagerly.
struct FileScanHabits
{
    /// Whether there is a file. May take as long as it likes.
    std::function<bool(const QString& path)> isThere;
    /// What happens within this time is looked at in one go.
    std::chrono::milliseconds gather{200};
    /// How often everything is looked at. This finds what the system does not tell: changes on a
    /// server, file systems that are unmounted, folders beyond the bound below.
    std::chrono::milliseconds round{15000};
    /// A look is followed by a rest of this many times as long as it took.
    int rest = 20;
    /// How many folders the system is asked to watch, those with the most files first.
    std::size_t mostFolders = 512;

    FileScanHabits();
};

/// Finds out which files come and go. Every call may wait for a disk or a network, so that it lives
/// in a thread of its own; see ProgramFileWatch.
class ProgramFileScan : public QObject
{
    Q_OBJECT

public:
    explicit ProgramFileScan(FileScanHabits habits);

    /// Looks at these files from now on, all of them at once. Their isThere says what is known of
    /// them; the generation comes back with what is found.
    void take(int generation, ProgramFiles files);
    /// Looks at all of them as soon as the thread is free, once for all calls until then.
    void lookSoon();

signals:
    /// These files have come or gone. Receivers know it from then on.
    void found(int generation, const trel::mediadispatch::ProgramFiles& files);

private:
    struct Folder
    {
        QString path;
        ProgramFiles files;
    };
    using Due = std::set<std::size_t>;

    void noteChange(const QString& watched);
    void lookAtAll();
    void look(const Due& due);
    void lookAt(Folder& folder, ProgramFiles& changed) const;
    void watchFolders();

    FileScanHabits m_habits;
    int m_generation = 0;
    std::vector<Folder> m_folders; ///< Those with the most files first.
    /// Made in the thread that it is used in.
    std::unique_ptr<QFileSystemWatcher> m_system;
    /// Which folders are to be looked at when one that is watched changes.
    std::multimap<QString, std::size_t> m_watched;
    Due m_due;
    QTimer* m_pause;
    QTimer* m_round;
    std::chrono::milliseconds m_rest{0};
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::ProgramFiles)
