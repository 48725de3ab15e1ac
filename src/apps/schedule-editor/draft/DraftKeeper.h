#pragma once

#include "trelprogramschedule/draft/DraftJournal.h"
#include "trelprogramschedule/store/StoreResult.h"

#include <QObject>

#include <map>
#include <utility>
#include <vector>

class QAction;
class QWidget;

namespace trel::mediadispatch {
class DeskWatch;
class scheduleControlUI;
} // namespace trel::mediadispatch

namespace trel::desktop {

namespace changes {
struct ChangesQuestion;
}

class PendingNotices;
class Themes;

/// Looks after what is edited and not saved: has it written down while it is edited, tells other
/// desks of it, offers what a former program has left, and brings back what was canceled.
class DraftKeeper : public QObject
{
    Q_OBJECT

public:
    /// The action brings back what was canceled. All of these outlive the keeper, but for the
    /// window, which owns it. Prompts stand over that one.
    DraftKeeper(trel::mediadispatch::scheduleControlUI& editor, QAction& bringBack,
                PendingNotices& notices, const Themes& themes, QWidget* window);

    /// To be called after each opening of a store.
    void begin();
    /// Asks what becomes of the changes that were left on the store that is open, if there are any.
    void offer();
    /// What is asked about a draft of which something can be read.
    changes::ChangesQuestion questionOf(const trel::mediadispatch::LeftDraft& left) const;
    /// The changes of the open editor stay in a file for the next time, and are not looked after
    /// any more. False, after the operator was told, where they cannot be kept.
    bool keep();
    /// They are given up.
    void discard();

    /// There are changes that are neither saved nor canceled.
    bool isUnsaved() const;
    /// What other desks have open for editing; they are told of this one.
    const trel::mediadispatch::DeskWatch& desks() const { return *m_desks; }
    /// What was saved last, as far as this program has read it; valid until something is saved or
    /// read.
    const std::map<int, trel::mediadispatch::PlayTask>& saved() const;

    /// Asks about changes, over the window; see changes::ChangesDialog::ask().
    int ask(const changes::ChangesQuestion& question) const;
    /// What is edited goes, for another save that has been read, once the event loop runs. These of
    /// the changes, as edits of that save, can be brought back.
    void giveUp(const trel::mediadispatch::DraftTasks& tasks);
    /// The working set keeps what was canceled until the editor is shown again. While it is hidden
    /// and nothing else is unsaved, this takes it out before.
    void takeCanceledOut();
    /// In the midst of a save: as ScheduleHost::mergeWith(), and the editor shows what comes of it.
    trel::mediadispatch::StoreResult
    mergeWith(qint64 number, const std::map<int, trel::mediadispatch::PlayTask>& merged);
    /// In the midst of a save: neither the editor nor the window closes because of it.
    void goOnEditing();
    /// Whether that was called in this turn of the event loop.
    bool isGoingOn() const { return m_isGoingOn; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// What isUnsaved() tells is another.
    void unsavedChanged();
    /// What becomes of the working set between these two is a merge with another save.
    void aboutToMerge();
    void merged();

private:
    void tellUnsaved();
    void bringBack();
    void updateAction();
    /// False when nothing more is to be asked.
    bool decide(const trel::mediadispatch::LeftDraft& left);
    void decideOnUnreadable(const trel::mediadispatch::LeftDraft& left);
    void takeCanceledOver(const trel::mediadispatch::LeftDraft& left);
    bool takeOver(const trel::mediadispatch::LeftDraft& left);
    bool putIntoFile(const trel::mediadispatch::LeftDraft& left);
    /// What it makes of the saved schedule.
    std::map<int, trel::mediadispatch::PlayTask>
    scheduleOf(const trel::mediadispatch::LeftDraft& left) const;
    void readAgain();
    void readAgainHidden();
    /// Has the editor show the tasks that are others than in a former working set.
    void showOthers(const std::map<int, trel::mediadispatch::PlayTask>& former);
    /// Puts tasks into the working set, and shows it.
    bool show(const trel::mediadispatch::DraftTasks& tasks);

    trel::mediadispatch::scheduleControlUI& m_editor;
    QAction& m_bringBack;
    PendingNotices& m_notices;
    const Themes& m_themes;
    QWidget* m_window;
    trel::mediadispatch::DraftJournal* m_journal;
    trel::mediadispatch::DeskWatch* m_desks;
    /// What the other desks were told last: how much was edited until then, and in which tasks.
    std::pair<int, std::vector<int>> m_told;
    bool m_wasUnsaved = false;
    bool m_isGoingOn = false;
};

} // namespace trel::desktop
