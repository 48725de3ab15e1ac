#pragma once

#include "DeskNoteBoard.h"

#include <QString>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

class DraftLock;

/// The notes of the desks that have a store in a file open for editing: a small file for each
/// program, beside the store, so that no desk is ever in the way of another or of a save. A program
/// holds a lock on its file, which the system frees however the program ends; a file without one
/// was left behind and is removed by whoever sees it.
///
/// What stands beside the store is not trusted: what is no note is left out, and left alone.
class DeskNotes final : public DeskNoteBoard
{
public:
    DeskNotes(const QString& store, QString desk);
    ~DeskNotes() override;
    Q_DISABLE_COPY(DeskNotes)

    bool write(const DeskNote& note) override;
    void withdraw() override;
    /// A lock needs no renewal.
    bool renew() override;
    std::vector<DeskNote> others() const override;

    /// Where the own note stands while there is one.
    QString path() const { return m_path; }

private:
    QString m_store;
    QString m_desk;
    QString m_path;
    std::unique_ptr<DraftLock> m_lock; ///< While there is an own note.
};

} // namespace trel::mediadispatch
