#include "PostgresOpening.h"

#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>

namespace trel::mediadispatch {

namespace {

/// What the thread and whoever waits for it have in common; the one that goes last takes it along.
struct Attempt
{
    explicit Attempt(const QSqlDatabase& database)
        : connection(database)
    {}

    QSqlDatabase connection; ///< Of the thread alone until it has ended.
    std::mutex mutex;        ///< Of all that follows.
    std::condition_variable changed;
    bool hasEnded = false;
    std::exception_ptr failure; ///< What the driver threw instead of an answer.
    bool isOpen = false;
    bool isGivenUp = false;
};

void run(Attempt& attempt)
{
    bool isOpen = false;
    std::exception_ptr failure;
    try {
        isOpen = attempt.connection.open();
    } catch (...) {
        failure = std::current_exception();
    }
    bool isGivenUp = false;
    {
        const std::lock_guard lock(attempt.mutex);
        attempt.hasEnded = true;
        attempt.isOpen = isOpen;
        attempt.failure = failure;
        isGivenUp = attempt.isGivenUp;
        attempt.changed.notify_one();
    }
    if (isGivenUp) {
        // It is nobody else's any more.
        attempt.connection.close();
    }
}

std::thread started(const std::shared_ptr<Attempt>& attempt)
{
    try {
        return std::thread([attempt] { run(*attempt); });
    } catch (const std::system_error&) {
        // The system has no room for it.
        throw std::bad_alloc();
    }
}

/// False where it is given up.
bool hasEndedWithin(Attempt& attempt, std::chrono::milliseconds limit)
{
    std::unique_lock lock(attempt.mutex);
    attempt.isGivenUp =
        !attempt.changed.wait_for(lock, limit, [&attempt] { return attempt.hasEnded; });
    return !attempt.isGivenUp;
}

} // namespace

PostgresOpening::Outcome PostgresOpening::open(const QSqlDatabase& connection,
                                               std::chrono::milliseconds limit)
{
    const auto attempt = std::make_shared<Attempt>(connection);
    std::thread thread = started(attempt);
    if (!hasEndedWithin(*attempt, limit)) {
        thread.detach();
        return Outcome::GivenUp;
    }
    thread.join();
    if (attempt->failure) {
        std::rethrow_exception(attempt->failure);
    }
    return attempt->isOpen ? Outcome::Open : Outcome::Refused;
}

} // namespace trel::mediadispatch
