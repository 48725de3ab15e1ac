#include "LogWriter.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace trel::player {

namespace {

constexpr std::size_t kMostLines = 1000;
/// A player that is told to end has a second for all.
constexpr std::chrono::milliseconds kFarewell{100};

void put(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

struct LogWriter::Queue
{
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<QString> lines;
    int leftOut = 0;
    bool isClosed = false;
    bool isOver = false;
};

LogWriter::LogWriter()
    : m_queue(std::make_shared<Queue>())
{
    std::thread([queue = m_queue] { run(*queue); }).detach();
}

LogWriter::~LogWriter()
{
    finish();
}

bool LogWriter::finish()
{
    std::unique_lock lock(m_queue->mutex);
    m_queue->isClosed = true;
    m_queue->changed.notify_all();
    return m_queue->changed.wait_for(lock, kFarewell, [this] { return m_queue->isOver; });
}

void LogWriter::write(const QString& line)
{
    const std::lock_guard lock(m_queue->mutex);
    if (m_queue->isClosed) {
        return;
    }
    if (m_queue->lines.size() >= kMostLines) {
        ++m_queue->leftOut;
        return;
    }
    m_queue->lines.push_back(line);
    m_queue->changed.notify_all();
}

void LogWriter::run(Queue& queue)
{
    std::unique_lock lock(queue.mutex);
    for (;;) {
        queue.changed.wait(lock, [&queue] { return queue.isClosed || !queue.lines.empty(); });
        if (queue.lines.empty()) {
            break;
        }
        const QString line = std::move(queue.lines.front());
        queue.lines.pop_front();
        // They came after all that waits.
        const int leftOut = queue.lines.empty() ? std::exchange(queue.leftOut, 0) : 0;
        lock.unlock();
        put(line);
        if (leftOut > 0) {
            put(QStringLiteral("%1 lines were left out, as nothing took them").arg(leftOut));
        }
        lock.lock();
    }
    queue.isOver = true;
    queue.changed.notify_all();
}

} // namespace trel::player
