#pragma once

#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/effect/EffectStart.h"
#include "trelprogramschedule/mirror/MirrorNews.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace trel::mediadispatch {

class ProgramFileWatch;
class StoreEngine;
class StoreMirror;

/// The mirror that a screen keeps of a schedule on a server: a store in a file of the screen's own
/// disk, with what is in effect and the catalog; see decision 15.
///
/// It takes over what is new as a whole or not at all, so that it never holds a mixture, whatever
/// ends the program. What it tells is what it holds. It belongs to one thread, in which open and
/// all that follows are called.
class TRELPROGRAMSCHEDULE_EXPORT ScheduleMirror : public QObject
{
    Q_OBJECT

public:
    /// In that file, of the schedule at that address. An address with a flaw is no address of any
    /// schedule, and the mirror stays empty.
    ScheduleMirror(QString file, const QString& address);
    ~ScheduleMirror() override;

    /// Programs whose content is known are to be found in that folder of the screen's own disk,
    /// under the hash of what they hold, and not at the path that the catalog names. What comes
    /// there is told of within some seconds, all of it at a time. To be called before open.
    void setMediaFolder(const QString& folder) { m_mediaFolder = folder; }

    /// Opens the file, makes it where there is none, in a folder that may be missing too, and reads
    /// it. One that is damaged, or no store of this version, is put aside under the name with
    /// "-damaged" at its end. A store that is no mirror is refused with Foreign, and left alone.
    /// One that mirrors another schedule holds nothing until it has been given everything.
    ///
    /// A file that cannot be written is read all the same, where there is one. Where opening is
    /// refused it can be tried again, and what was told before stays.
    StoreResult open();

    /// In which state it is: what it takes has to be for that one, or to be whole.
    MirrorState state() const { return m_state; }
    /// Takes over what is new. Where that is refused, nothing has changed, but the state that it
    /// has may have turned out to be another; MovedOn where that is the reason.
    StoreResult take(const MirrorNews& news);

    // What it holds. Records that are shared stay as they are.

    /// None while nothing is in effect.
    const std::optional<EffectStart>& start() const { return m_start; }
    const ScreenInsertions& insertions() const { return m_insertions; }
    /// The tasks in effect, by their ids; another pointer for others. Never null.
    std::shared_ptr<const std::map<int, PlayTask>> tasks() const { return m_tasks; }
    /// The programs; null ones where the file of a program is not there. Never null.
    std::shared_ptr<const std::map<int, ProgramIten>> catalogue() const;
    /// What is known of the files of the programs, by their index.
    const ProgramContents& contents() const { return m_contents; }

signals:
    /// Files of programs have come or gone.
    void filesChanged();

private:
    StoreResult openToWrite();
    StoreResult openAs(StoreOpenMode mode);
    void look(const StoreMirror& mirror);
    void putAside() const;
    void watchFiles();
    StoreResult write(const MirrorNews& news) const;
    void hold(const MirrorNews& news);
    ProgramFiles ownFiles() const;
    ProgramMap withPlaces(const MirroredCatalogue& catalogue) const;
    StoreResult expectEverything();

    QString m_file;
    QString m_source; ///< Which schedule it mirrors, whoever asks for it.
    MirrorState m_state;
    std::unique_ptr<StoreEngine> m_engine; ///< Null while the file cannot be written.
    MirrorNews m_seen;                     ///< What opening has read last.

    std::optional<EffectStart> m_start;
    ScreenInsertions m_insertions;
    std::shared_ptr<const std::map<int, PlayTask>> m_tasks;
    ProgramCatalogue m_catalogue;
    ProgramContents m_contents;
    QString m_mediaFolder;                     ///< Empty for the paths of the catalog.
    std::unique_ptr<ProgramFileWatch> m_files; ///< From open on.
};

} // namespace trel::mediadispatch
