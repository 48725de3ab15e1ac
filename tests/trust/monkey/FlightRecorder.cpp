#include "FlightRecorder.h"

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <thread>

#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>

// Of the sanitizers, where the program is built with them.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace {

constexpr std::size_t kKept = 30;
constexpr std::size_t kLength = 240;
constexpr int kMostFrames = 60;

using Line = std::array<char, kLength>;

// Plain memory, so that a handler of a signal may read it.
struct Record
{
    const char* target = "";
    TrialOptions options;
    std::array<Line, kKept> lines{};
    std::atomic<qint64> count{0};
    std::atomic<qint64> signs{0};
    std::atomic<bool> isOver{false};
    std::chrono::steady_clock::time_point start;
    pthread_t mainThread{};
};

Record& record()
{
    static Record instance;
    return instance;
}

void write(int file, const char* text)
{
    if (::write(file, text, std::strlen(text)) < 0) {
        return;
    }
}

void writeFigures(int faults)
{
    Line line{};
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
                             std::chrono::steady_clock::now() - record().start)
                             .count();
    std::snprintf(line.data(), line.size(),
                  "{\"target\": \"%s\", \"seed\": %llu, \"executions\": %lld, \"faults\": %d, "
                  "\"seconds\": %lld}\n",
                  record().target, static_cast<unsigned long long>(record().options.seed),
                  static_cast<long long>(record().count), faults, static_cast<long long>(seconds));
    write(STDOUT_FILENO, line.data());
}

void tellActions()
{
    Line line{};
    std::snprintf(line.data(), line.size(), "%s: seed %llu, action %lld; the last actions:\n",
                  record().target, static_cast<unsigned long long>(record().options.seed),
                  static_cast<long long>(record().count));
    write(STDERR_FILENO, line.data());
    const auto count = static_cast<std::size_t>(record().count);
    for (std::size_t i = count < kKept ? 0 : count - kKept; i < count; ++i) {
        write(STDERR_FILENO, record().lines[i % kKept].data());
        write(STDERR_FILENO, "\n");
    }
}

void die()
{
    if (!record().isOver.exchange(true)) {
        tellActions();
        writeFigures(1);
    }
}

[[noreturn]] void dieOfSignal(int number)
{
    Line line{};
    std::snprintf(line.data(), line.size(), "%s: signal %d\n", record().target, number);
    write(STDERR_FILENO, line.data());
    std::array<void*, kMostFrames> frames{};
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), kMostFrames), STDERR_FILENO);
    die();
    _exit(1);
}

void watch()
{
    using std::chrono::steady_clock;
    qint64 seen = -1;
    auto since = steady_clock::now();
    while (!record().isOver) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        const qint64 signs = record().signs;
        if (signs != seen) {
            seen = signs;
            since = steady_clock::now();
        } else if (steady_clock::now() - since > record().options.patience) {
            write(STDERR_FILENO, "it stands still; this is where:\n");
            // Its own stack is what is looked for.
            pthread_kill(record().mainThread, SIGABRT);
            return;
        }
    }
}

} // namespace

void FlightRecorder::start(const char* target, const TrialOptions& options)
{
    record().target = target;
    record().options = options;
    record().start = std::chrono::steady_clock::now();
    record().mainThread = pthread_self();
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(&die);
        std::signal(SIGABRT, &dieOfSignal);
    } else {
        for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
            std::signal(number, &dieOfSignal);
        }
    }
    std::thread(&watch).detach();
}

void FlightRecorder::note(const QString& action)
{
    const QByteArray text =
        QByteArray::number(record().count.load()) + ' ' + action.toUtf8().left(kLength - 30);
    Line& line = record().lines[static_cast<std::size_t>(record().count.load()) % kKept];
    std::snprintf(line.data(), line.size(), "%s", text.constData());
    ++record().count;
    stillAtIt();
    if (record().options.isTold) {
        std::fprintf(stderr, "%s\n", text.constData());
    }
}

void FlightRecorder::stillAtIt()
{
    ++record().signs;
}

qint64 FlightRecorder::count()
{
    return record().count;
}

void FlightRecorder::fail(const QString& fault)
{
    std::fprintf(stderr, "%s: %s\n", record().target, qUtf8Printable(fault));
    die();
    _exit(1);
}

void FlightRecorder::finish()
{
    if (!record().isOver.exchange(true)) {
        writeFigures(0);
    }
}
