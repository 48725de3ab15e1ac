#include "DraftWriter.h"

#include "DraftFileWriter.h"

#include <QDateTime>
#include <QThread>

#include <algorithm>
#include <condition_variable>
#include <iterator>
#include <mutex>
#include <utility>

namespace trel::mediadispatch {

namespace {

using SteadyClock = std::chrono::steady_clock;

} // namespace

class DraftWriter::Private
{
public:
    Private(DraftHabits habits, Tell tell)
        : m_habits(habits)
        , m_tell(std::move(tell))
        , m_thread(QThread::create([this] { run(); }))
    {
        m_thread->start();
    }
    ~Private();
    Q_DISABLE_COPY(Private)

    void take(DraftEdits edits);
    bool flush();

private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void waitForWork(Lock& lock);
    void write(const DraftEdits& edits, qint64 at);
    void tryToWrite();

    DraftHabits m_habits;
    Tell m_tell;

    std::mutex m_mutex;
    std::condition_variable m_work;
    std::condition_variable m_done;
    DraftEdits m_edits; ///< Those that the thread has yet to take.
    bool m_isUrgent = false;
    bool m_isEnding = false;
    quint64 m_taken = 0;   ///< Rounds of edits, and calls of flush.
    quint64 m_written = 0; ///< Those that have been tried.
    bool m_hasFailed = false;

    // Of the thread alone.
    DraftFileWriter m_file;
    SteadyClock::time_point m_next; ///< Before this nothing is written, unless it is urgent.

    std::unique_ptr<QThread> m_thread;
};

DraftWriter::Private::~Private()
{
    {
        const Lock lock(m_mutex);
        m_isEnding = true;
        m_isUrgent = true;
    }
    m_work.notify_one();
    m_thread->wait();
}

void DraftWriter::Private::take(DraftEdits edits)
{
    {
        const Lock lock(m_mutex);
        std::move(edits.begin(), edits.end(), std::back_inserter(m_edits));
        ++m_taken;
    }
    m_work.notify_one();
}

bool DraftWriter::Private::flush()
{
    Lock lock(m_mutex);
    const quint64 taken = ++m_taken;
    m_isUrgent = true;
    m_work.notify_one();
    m_done.wait(lock, [this, taken] { return m_written >= taken; });
    return !m_hasFailed;
}

void DraftWriter::Private::waitForWork(Lock& lock)
{
    const auto isAsked = [this] { return m_isUrgent || m_written < m_taken; };
    if (m_file.isDue()) {
        m_work.wait_until(lock, m_next, isAsked);
    } else {
        m_work.wait(lock, isAsked);
    }
    // What comes meanwhile is written in the same go.
    m_work.wait_until(lock, m_next, [this] { return m_isUrgent; });
}

void DraftWriter::Private::run()
{
    Lock lock(m_mutex);
    for (;;) {
        waitForWork(lock);
        const DraftEdits edits = std::exchange(m_edits, {});
        const quint64 taken = m_taken;
        const bool isEnding = m_isEnding;
        m_isUrgent = isEnding;
        lock.unlock();
        write(edits, QDateTime::currentMSecsSinceEpoch());
        lock.lock();
        m_written = std::max(m_written, taken);
        m_hasFailed = m_file.isDue();
        m_done.notify_all();
        if (isEnding) {
            return;
        }
    }
}

void DraftWriter::Private::write(const DraftEdits& edits, qint64 at)
{
    // What belongs to the draft before is written before it is left.
    auto from = edits.begin();
    while (from != edits.end()) {
        const auto next = std::find_if(from, edits.end(), DraftFileWriter::isOfNext);
        m_file.take(DraftEdits(from, next), at);
        if (next == edits.end()) {
            break;
        }
        tryToWrite();
        m_file.take({*next}, at);
        from = std::next(next);
    }
    tryToWrite();
}

void DraftWriter::Private::tryToWrite()
{
    if (!m_file.isDue()) {
        return;
    }
    const SteadyClock::time_point begin = SteadyClock::now();
    const Fault fault = m_file.write();
    m_next = begin + (fault ? m_habits.retry : m_habits.gather);
    m_tell(fault);
}

DraftWriter::DraftWriter(DraftHabits habits, Tell tell)
    : m_d(std::make_unique<Private>(habits, std::move(tell)))
{}

DraftWriter::~DraftWriter() = default;

void DraftWriter::take(DraftEdits edits)
{
    m_d->take(std::move(edits));
}

bool DraftWriter::flush()
{
    return m_d->flush();
}

} // namespace trel::mediadispatch
