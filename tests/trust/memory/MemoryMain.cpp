// Usage: trust_memory [--minutes N] [--seed S]
//
// Lets memory run out within the commands of the console that write, at an allocation that the seed
// decides, once or for good. The command has to end by itself, with the old contents or the new
// ones, whole. Where code of the toolkit ends it or holds it up, the contents are looked at all the
// same, and how often that was is told.

#include "ConsoleTrial.h"
#include "TrialProgram.h"
#include "WatchedProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <vector>

namespace {

/// A command takes hundredths of a second.
constexpr std::chrono::seconds kPatience{5};

/// What a line about a sudden end says behind its first words; empty where there is none.
QByteArray told(const ProcessEnd& end, const QByteArray& words)
{
    const int begin = end.errors.indexOf(words);
    if (begin < 0) {
        return {};
    }
    const QByteArray name = end.errors.mid(begin + words.size());
    return name.left(name.indexOf('\n'));
}

/// Whether a file is of the toolkit.
bool isOfToolkit(const QByteArray& file)
{
    return file.startsWith("libQt5") || file == "libqsqlite.so";
}

class MemoryTrial
{
public:
    MemoryTrial(TrialProgram& program, const TrialFolder& folder, const WritingCommand& command)
        : m_program(program)
        , m_folder(folder)
        , m_command(command)
        , m_console(QStringLiteral(SCHEDULECTL), folder.path(), kPatience)
    {
        const QTemporaryDir reports;
        const QString report = reports.filePath(QStringLiteral("count"));
        m_folder.reset(command);
        m_before = m_folder.contents(command);
        m_folder.reset(command);
        qputenv("TRUST_COUNT_INTO", QFile::encodeName(report));
        run(0, false);
        qunsetenv("TRUST_COUNT_INTO");
        m_after = m_folder.contents(command);
        QFile file(report);
        m_allocations = file.open(QIODevice::ReadOnly) ? file.readAll().toLong() : 0;
        if (m_allocations == 0 || m_before == m_after) {
            program.fault(QStringLiteral("%1 does not work with all the memory it wants")
                              .arg(QLatin1String(command.name)));
        }
    }

    void failAtSome()
    {
        std::uniform_int_distribution<long> which(1, std::max<long>(m_allocations, 1));
        const long nth = which(m_program.chance());
        const bool isForGood = m_program.chance()() % 2 == 0;
        m_folder.reset(m_command);
        const ProcessEnd end = run(nth, isForGood);
        m_program.count();
        const QByteArray found = m_folder.contents(m_command);
        const auto complain = [&](const char* what) {
            m_program.fault(
                QStringLiteral("%1, allocation %2 of %3 %4: %5; exit %6, signal %7, "
                               "said: %8; left: %9")
                    .arg(QLatin1String(m_command.name))
                    .arg(nth)
                    .arg(m_allocations)
                    .arg(isForGood ? QStringLiteral("for good") : QStringLiteral("once"),
                         QLatin1String(what))
                    .arg(end.status)
                    .arg(end.signal)
                    .arg(QString::fromUtf8(end.errors.trimmed()),
                         m_folder.leftovers().join(QLatin1Char(' '))));
        };
        const bool isSudden = end.isLate || end.signal != 0;
        const QByteArray place = isSudden ? told(end, "ended within ") : QByteArray();
        if (found != m_before && found != m_after) {
            complain("the contents are neither the old nor the new ones");
        } else if (isSudden && isOfToolkit(place)) {
            ++m_ends[place + (end.isLate ? " held up" : " ended")];
        } else if (isSudden) {
            complain("it did not end by itself");
        } else if (end.status > 1) {
            complain("the status is none of a refusal");
        } else if (end.status == 0 && found != m_after) {
            complain("it claims to have done what it has not");
        } else if (end.status != 0 && !end.errors.contains("schedulectl: ")) {
            complain("a refusal has no sentence");
        } else if (end.status != 0 && found != m_before &&
                   !end.errors.contains("tells what was done")) {
            complain("it was refused, and yet has done it");
        }
    }

    /// How often a library of the toolkit did what to the program.
    const std::map<QByteArray, int>& ends() const { return m_ends; }

private:
    ProcessEnd run(long nth, bool isForGood) const
    {
        // Taken over by the console alone.
        qputenv("LD_PRELOAD", PRELOADED_MEMORY);
        qputenv("TRUST_FAIL_AT", QByteArray::number(qlonglong(nth)));
        if (isForGood) {
            qputenv("TRUST_FAIL_FOR_GOOD", "1");
        } else {
            qunsetenv("TRUST_FAIL_FOR_GOOD");
        }
        ProcessEnd end =
            m_console.run(m_folder.argumentsOf(m_command), [](FileCall) { return CallFate(); });
        qunsetenv("LD_PRELOAD");
        return end;
    }

    TrialProgram& m_program;
    const TrialFolder& m_folder;
    const WritingCommand& m_command;
    WatchedProcess m_console;
    QByteArray m_before;
    QByteArray m_after;
    long m_allocations = 0;
    std::map<QByteArray, int> m_ends;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    TrialProgram program("memory");
    const TrialFolder folder(QStringLiteral(SCHEDULECTL));
    std::vector<MemoryTrial> trials;
    for (const WritingCommand& command : writingCommands()) {
        trials.emplace_back(program, folder, command);
    }
    std::uniform_int_distribution<std::size_t> which(0, trials.size() - 1);
    while (program.goesOn()) {
        trials[which(program.chance())].failAtSome();
    }
    std::map<QByteArray, int> ends;
    for (const MemoryTrial& trial : trials) {
        for (const auto& [place, count] : trial.ends()) {
            ends[place] += count;
        }
    }
    for (const auto& [deed, count] : ends) {
        std::fprintf(stderr, "%s the program %d times.\n", deed.constData(), count);
    }
    return program.finish();
}
