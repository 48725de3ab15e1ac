#pragma once

#include "../StoreFixture.h"
#include "draft/DraftJournal.h"

#include <memory>

/// A store of four tasks, saved, whose edits are recorded. Nothing waits for a pause between
/// writes.
class DraftFixture
{
public:
    explicit DraftFixture(trel::mediadispatch::DraftHabits habits = {std::chrono::milliseconds(0),
                                                                     std::chrono::milliseconds(20)})
        : m_habits(habits)
    {
        // Without them the entries of the tasks would be marked as lost when they are read.
        store.host.addPrograms(samplePrograms(2));
        store.save(sampleSchedule(4, 2, 2));
        begin();
    }

    /// Records what is open now, as a host that has just started.
    void begin()
    {
        journal = std::make_unique<trel::mediadispatch::DraftJournal>(desk, nullptr, m_habits);
        journal->begin();
    }
    /// Ends the host without a save, as if it were killed, and starts it again.
    void restart()
    {
        journal.reset();
        store.restart();
        begin();
    }

    trel::mediadispatch::PlayTask edited(int taskId, const char* date) const
    {
        trel::mediadispatch::PlayTask task = store.manager.getTask(taskId);
        task.id = taskId;
        task.startDate = date;
        return task;
    }
    void edit(int taskId, const char* date) const { store.manager.addTask(edited(taskId, date)); }

    /// Which drafts are left: for each the ids, "-" before one that is taken out, and behind a bar
    /// those that were canceled.
    QStringList left() const
    {
        QStringList lines;
        for (const trel::mediadispatch::LeftDraft& left : journal->left()) {
            lines.append(lineOf(left.draft));
        }
        return lines;
    }
    static QString lineOf(const trel::mediadispatch::Draft& draft)
    {
        const QString line = idsOf(draft.tasks);
        return draft.canceled.empty() ? line : line + QStringLiteral("|") + idsOf(draft.canceled);
    }
    static QString idsOf(const trel::mediadispatch::DraftTasks& tasks)
    {
        QStringList ids;
        for (const auto& [id, task] : tasks) {
            ids.append((task ? QString() : QStringLiteral("-")) + QString::number(id));
        }
        return ids.join(QLatin1Char(' '));
    }

    /// The files of drafts beside the store.
    QStringList files() const
    {
        return QDir(store.folder.path()).entryList({QStringLiteral("*.unsaved-*")}, QDir::Files);
    }

    StoreFixture store;
    const QString desk = QStringLiteral("anna@desk");
    std::unique_ptr<trel::mediadispatch::DraftJournal> journal;

private:
    trel::mediadispatch::DraftHabits m_habits;
};
