#pragma once

#include "trelprogramschedule/desks/DeskNote.h"

#include <QString>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

class DraftLock;

/// The notes of the desks that have a store open for editing: a small file for each program, beside
/// the store, so that no desk is ever in the way of another or of a save. A program holds a lock on
/// its file, which the system frees however the program ends; a file without one was left behind
/// and is removed by whoever sees it.
///
/// What stands beside the store is not trusted: what is no note is left out, and left alone. Any
/// one thread.
class DeskNotes
{
public:
    DeskNotes(const QString& store, QString desk);
    /// Takes the own note away.
    ~DeskNotes();
    Q_DISABLE_COPY(DeskNotes)

    /// Puts a note in the place of the former one. The desk is that of these notes; of the tasks
    /// the first ones are told. False where it cannot be written: it can be tried again.
    bool write(const DeskNote& note);
    /// Takes the own note away, if there is one.
    void withdraw();
    /// Those of all other programs that run, in the order of their desks, and within one of their
    /// files.
    std::vector<DeskNote> others() const;

    /// Where the own note stands while there is one.
    QString path() const { return m_path; }

private:
    QString m_store;
    QString m_desk;
    QString m_path;
    std::unique_ptr<DraftLock> m_lock; ///< While there is an own note.
};

} // namespace trel::mediadispatch
