#include "DeskWatch.h"

#include "DeskWorker.h"
#include "clock/Clock.h"

#include <QMetaObject>

namespace trel::mediadispatch {

DeskWatch::DeskWatch(const QString& desk, QObject* parent, std::chrono::milliseconds round)
    : QObject(parent)
    , m_worker(std::make_unique<DeskWorker>(desk, round))
{
    m_worker->moveToThread(&m_thread);
    connect(m_worker.get(), &DeskWorker::found, this, &DeskWatch::take);
    m_thread.setObjectName(QStringLiteral("desks"));
}

DeskWatch::~DeskWatch()
{
    if (m_thread.isRunning()) {
        // Where the timer and the note are, and behind all that was asked for before.
        QMetaObject::invokeMethod(m_worker.get(), [this] {
            m_worker->begin(QString());
            m_thread.quit();
        });
        m_thread.wait();
    }
}

void DeskWatch::begin(const QString& store)
{
    m_store = store;
    m_since = 0;
    if (!m_thread.isRunning()) {
        if (m_store.isEmpty()) {
            return;
        }
        m_thread.start(QThread::LowPriority);
    }
    QMetaObject::invokeMethod(m_worker.get(),
                              [worker = m_worker.get(), place = m_store] { worker->begin(place); });
    take(m_store, {});
}

void DeskWatch::tellEdited(const std::vector<int>& taskIds)
{
    if (m_store.isEmpty() || (taskIds.empty() && m_since == 0)) {
        return;
    }
    const Instant now = Clock::current().msecsSinceEpoch();
    m_since = taskIds.empty() ? 0 : m_since == 0 ? now : m_since;
    DeskNote note;
    note.since = m_since;
    note.changed = now;
    note.taskIds = taskIds;
    QMetaObject::invokeMethod(m_worker.get(),
                              [worker = m_worker.get(), note] { worker->tell(note); });
}

void DeskWatch::take(const QString& store, const std::vector<DeskNote>& others)
{
    // What was found beside the former store may still be on its way.
    if (store == m_store && others != m_others) {
        m_others = others;
        emit changed();
    }
}

} // namespace trel::mediadispatch
