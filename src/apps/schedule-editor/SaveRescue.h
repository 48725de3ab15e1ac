#pragma once

#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"

#include <QObject>

#include <optional>

class QWidget;

namespace trel::desktop {

class DraftKeeper;

/// Stands by when a save fails.
///
/// The editor closes after a save, and its next refresh drops what was not stored. So the operator
/// is asked while the save still runs: try again, write the schedule to a file, or go on editing,
/// which is what closing the question does as well; then nothing closes. The question comes back
/// until one of the three has been done.
///
/// Where another program has saved meanwhile, the question tells what that one has changed. Both
/// can be merged and saved; of a task that was changed at both desks the operator chooses which of
/// the two stays, and what cannot be saved as it comes out stays in the editor. Or the other save
/// is saved over, or taken for what was edited. What is saved over stays among the versions, and
/// what was edited can be brought back until the next save. A save of a third program leads to the
/// same question once more, about what that one has changed.
///
/// When the program is to end while it asks, because it quits, the window is closed or the session
/// ends, the edits are kept in a file and nothing is asked any more.
class SaveRescue : public QObject
{
    Q_OBJECT

public:
    /// Listens to the host from now on. Prompts stand over the window. Host and keeper outlive it.
    SaveRescue(trel::mediadispatch::ScheduleHost& host, DraftKeeper& drafts, QWidget* window);

signals:
    /// The schedule was written to a file instead of the store.
    void written(const QString& file);
    /// The operator goes on editing; nothing was saved.
    void goesOn();
    /// The program is to end; the schedule stands in this file. Empty where it could be kept
    /// nowhere. The file is named in the log as well.
    void kept(const QString& file);

protected:
    /// Sees the window being closed while it asks.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Answer { TryAgain, Merge, SaveOver, TakeOther, WriteFile, GoOn };

    void rescue(const trel::mediadispatch::StoreResult& reason);
    void askUntilDone(const trel::mediadispatch::StoreResult& reason);
    /// Ends the question, and with it the program.
    void leave();
    bool isLeaving() const;
    void keep();
    void goOn();
    Answer ask(const trel::mediadispatch::StoreResult& reason);
    Answer askPlainly(const trel::mediadispatch::StoreResult& reason) const;
    /// What to do about what another program has saved.
    Answer askAboutOther() const;
    /// Saves what comes of both. Another question where the operator thinks better of it, and no
    /// outcome where it has to be put right before it can be saved.
    std::optional<trel::mediadispatch::StoreResult>
    merge(const trel::mediadispatch::StoreResult& movedOn);
    trel::mediadispatch::StoreResult saveOver();
    trel::mediadispatch::StoreResult takeOther();
    /// True when the schedule stands in a file of the operator's choice.
    bool writeFile();

    trel::mediadispatch::ScheduleHost& m_host;
    DraftKeeper& m_drafts;
    QWidget* m_window;
    trel::mediadispatch::ScheduleVersion m_other; ///< The save that the operator was told of.
    /// What comes of it and of what is edited.
    std::optional<trel::mediadispatch::ScheduleMerge> m_merge;
    /// What was chosen when it was asked about that save before.
    trel::mediadispatch::ScheduleMerge::Choices m_choices;
    bool m_isAsking = false;
    bool m_isLeft = false;
};

} // namespace trel::desktop
