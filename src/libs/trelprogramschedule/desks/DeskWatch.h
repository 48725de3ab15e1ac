#pragma once

#include "trelprogramschedule/desks/DeskNote.h"
#include "trelprogramschedule_export.h"

#include <QObject>
#include <QThread>

#include <chrono>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

class DeskWorker;

/// Tells the other desks what this one has open for editing, and knows what they have: since when,
/// when they last changed it, and which tasks. Nobody is locked out by it, and what cannot be
/// written or read is left out. All of it is done in a thread of its own, which looks every few
/// seconds while a store is open.
///
/// A desk is told of while it has changes that are not saved, and no longer once it has none, or
/// has ended, however it has.
///
/// GUI thread only. The event loop has to run for what the others have to come.
class TRELPROGRAMSCHEDULE_EXPORT DeskWatch : public QObject
{
    Q_OBJECT

public:
    /// How often it looks for what the others have.
    static constexpr std::chrono::milliseconds kRound{4000};

    /// The name is what others see of this desk, as "anna@studio"; of long ones the first 100
    /// characters.
    explicit DeskWatch(const QString& desk, QObject* parent = nullptr,
                       std::chrono::milliseconds round = kRound);
    /// Nothing is told any more.
    ~DeskWatch() override;

    /// The store in this file is open from now on, and nothing of it is edited; an empty path for
    /// none. The same of a store at an address.
    void begin(const QString& store);
    /// These tasks are changed and not saved; none when all is saved or dropped. The moment counts
    /// as that of the last change.
    void tellEdited(const std::vector<int>& taskIds);

    /// What the others have open for editing, by desks.
    const std::vector<DeskNote>& others() const { return m_others; }

Q_SIGNALS:
    /// What others() tells is another.
    void changed();

private:
    void take(const QString& store, const std::vector<DeskNote>& others);

    QThread m_thread;
    std::unique_ptr<DeskWorker> m_worker; ///< Works in the thread.
    QString m_store;
    Instant m_since = 0; ///< Of the own changes; 0 while there are none.
    std::vector<DeskNote> m_others;
};

} // namespace trel::mediadispatch
