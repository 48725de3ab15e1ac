#pragma once

#include "trelprogramschedule/draft/DraftHabits.h"
#include "trelprogramschedule/draft/LeftDrafts.h"
#include "trelprogramschedule_export.h"

#include <QMetaType>
#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <set>
#include <vector>

namespace trel::mediadispatch {

class DraftWriter;
struct DraftEdit;

/// Keeps what is edited and not saved in a file beside the store, its draft, or for a store on a
/// server in a folder of the user's, so that neither a kill nor a power cut loses it. Writes in a
/// thread of its own: on the disk within 250 milliseconds, where the disk is that quick, and no
/// edit waits for it.
///
/// A desk, of a name that the host chooses, has drafts of its own on each store; another process of
/// the same desk writes another file. There is a file only while there is something in it: what is
/// edited, and what was canceled since the last save. A file that is left behind is offered by
/// left().
///
/// GUI thread only, and beside the one ScheduleHost. One at a time.
class TRELPROGRAMSCHEDULE_EXPORT DraftJournal : public QObject
{
    Q_OBJECT

public:
    explicit DraftJournal(QString desk, QObject* parent = nullptr, DraftHabits habits = {});
    /// Writes down what is not yet, and leaves the file.
    ~DraftJournal() override;

    /// In which folder the drafts of stores on a server stand, since there is none beside them;
    /// made if it is missing. To be called before begin(); without it the edits of such a store are
    /// not recorded. A store has drafts of its own there by the id that it has, wherever the server
    /// is and whatever the schedule is called.
    void keepAside(const QString& folder) { m_aside = folder; }

    /// Records the edits of the store that is open now, from its next one on. To be called after
    /// each opening of a store; what was recorded of the former one is left as it is.
    void begin();
    /// Records nothing any more, and leaves what was recorded as it is.
    void end();
    /// Everything unsaved is given up, that which was canceled included: the file goes.
    void drop();
    /// What is unsaved now was canceled. It stays in the draft until the next save, and in the
    /// place of what was canceled before. Where nothing is unsaved, nothing happens.
    void cancel();

    /// What is edited was given up for another save, which has been read. It stays in the working
    /// set until that is read again, but nothing of it is unsaved any more. These tasks, as edits
    /// of that save, count as canceled in the place of what was canceled before; where there are
    /// none, that stays.
    void giveUp(const DraftTasks& tasks);

    /// Whether anything that is recorded is unsaved, and was not canceled. Asked with every edit it
    /// costs nothing.
    bool isUnsaved() const { return !m_unsaved.empty(); }
    /// The ids of the tasks that it is in, ascending.
    std::vector<int> unsavedTasks() const;
    /// How often a task has become unsaved, or an unsaved one another: the same number while
    /// nothing was edited, whatever was shown, hidden or read meanwhile.
    int edits() const { return m_edits; }
    /// What was canceled since the last save.
    const DraftTasks& canceled() const { return m_canceled; }
    /// Hands it out to be filed in the working set, and counts it as unsaved from now on.
    DraftTasks takeCanceled();
    /// Tasks out of a draft that was left count as canceled here, unless some are already.
    void adoptCanceled(const DraftTasks& tasks);

    /// Records everything that is unsaved at this moment and waits until it is on the disk. False
    /// where it could not be put there.
    bool flush();

    /// What was saved last, as it was read; valid until something is saved or read.
    const std::map<int, PlayTask>& saved() const;
    /// The drafts that this desk has left on the store that is open; see leftDrafts().
    std::vector<LeftDraft> left() const;

Q_SIGNALS:
    /// Edits cannot be written down. Comes once, until they can be again; it is tried again by
    /// itself. What was on the disk stays there.
    void failed(const trel::mediadispatch::Fault& fault);
    /// Everything is on the disk again that could not be put there.
    void recovered();
    /// What was handed over has been written down.
    void written();
    /// Something was canceled, or what was is gone or in work again.
    void canceledChanged();

private:
    using SharedTask = std::shared_ptr<const PlayTask>;
    using SharedTasks = std::map<int, SharedTask>;
    using Edits = std::vector<DraftEdit>;

    bool isRecording() const;
    /// Of the store that is open now: the path that the names of its drafts begin with; empty where
    /// they have no place.
    QString start() const;
    void note(const std::set<int>& taskIds);
    void noteSave();
    /// Adds what has changed with a task.
    void addEdit(Edits& edits, int taskId);
    void addEverything(Edits& edits);
    void put(Edits& edits, int taskId, SharedTask task);
    bool isInPlace(int taskId) const;
    void hand(Edits edits);
    void setCanceled(DraftTasks tasks);
    void hear(const Fault& fault);

    QString m_desk;
    DraftHabits m_habits;
    QString m_aside;       ///< For drafts of stores on a server; empty for none.
    QString m_store;       ///< Empty while nothing is recorded.
    SharedTasks m_unsaved; ///< As it was handed over; null for a task that is taken out.
    DraftTasks m_canceled;
    /// What was canceled or given up and is in the working set until that is read again; null for a
    /// task that is taken out.
    SharedTasks m_inPlace;
    int m_edits = 0;
    bool m_hasFailed = false;
    std::unique_ptr<DraftWriter> m_writer; ///< Made with the first edit.
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::Fault)
