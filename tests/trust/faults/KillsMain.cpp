// Usage: trust_kills [--minutes N] [--seed S]
//
// Ends the writing commands of the console with SIGKILL, as a power cut would: first in front of
// every call that changes a file, and then at moments that the seed decides, as long as there is
// time. The contents have to be the old or the new ones, whole, and the same command has to work
// afterwards.

#include "ConsoleTrial.h"
#include "TrialProgram.h"
#include "WatchedProcess.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>

namespace {

bool changesFiles(FileCall call)
{
    switch (call) {
    case FileCall::Read:
    case FileCall::Lock:
    case FileCall::Look:
        return false;
    case FileCall::Open:
    case FileCall::Write:
    case FileCall::Sync:
    case FileCall::Truncate:
    case FileCall::Rename:
    case FileCall::Remove:
    case FileCall::Map:
    case FileCall::Mode:
        break;
    }
    return true;
}

CallFate passAll(FileCall)
{
    return {};
}

class KillTrial
{
public:
    KillTrial(TrialProgram& program, const TrialFolder& folder, const WritingCommand& command)
        : m_program(program)
        , m_folder(folder)
        , m_command(command)
        , m_console(QStringLiteral(SCHEDULECTL), folder.path())
    {
        m_folder.reset(command);
        m_before = m_folder.contents(command);
        m_folder.reset(command);
        const auto begin = std::chrono::steady_clock::now();
        run(passAll);
        m_length = std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now() - begin);
        m_after = m_folder.contents(command);
    }

    void killAtEveryCall()
    {
        for (int nth = 1; m_program.goesOn(); ++nth) {
            m_folder.reset(m_command);
            int count = 0;
            const ProcessEnd end = run([&](FileCall call) {
                count += changesFiles(call) ? 1 : 0;
                return changesFiles(call) && count == nth ? CallFate{CallFate::Kills, 0}
                                                          : CallFate();
            });
            judge(end, QStringLiteral("at call %1").arg(nth));
            if (end.signal == 0) {
                return;
            }
        }
    }

    void killAtSomeMoment()
    {
        std::uniform_int_distribution<long> moment(1, m_length.count());
        const std::chrono::microseconds after(moment(m_program.chance()));
        m_folder.reset(m_command);
        judge(run(passAll, after), QStringLiteral("after %1 us").arg(after.count()));
    }

private:
    ProcessEnd run(const WatchedProcess::Decide& decide, std::chrono::microseconds killAfter = {})
    {
        return m_console.run(m_folder.argumentsOf(m_command), decide, killAfter);
    }

    void judge(const ProcessEnd& end, const QString& when)
    {
        m_program.count();
        const QByteArray found = m_folder.contents(m_command);
        const auto complain = [&](const QString& what) {
            m_program.fault(QStringLiteral("%1, killed %2: %3; %4")
                                .arg(QLatin1String(m_command.name), when, what,
                                     QString::fromUtf8(found.left(200))));
        };
        if (found != m_before && found != m_after) {
            complain(QStringLiteral("the contents are neither the old nor the new ones"));
        }
        if (end.status == 0 && found != m_after) {
            complain(QStringLiteral("it had ended, and the contents are not the new ones"));
        }
        // A program that is removed is not there to be removed once more, and a second insertion
        // ends the first.
        const QString& word = m_command.words.first();
        const bool mayBeRefused = found != m_before && word == QLatin1String("remove-program");
        const bool isOther = found != m_before && word == QLatin1String("insert");
        const ProcessEnd again = run(passAll);
        const QByteArray after = m_folder.contents(m_command);
        if (!mayBeRefused && (again.status != 0 || (!isOther && after != m_after))) {
            complain(QStringLiteral("the command does not work afterwards: %1")
                         .arg(QString::fromUtf8(again.errors)));
        }
        if (const QStringList left = m_folder.leftovers(); !left.isEmpty()) {
            complain(QStringLiteral("there is left: %1").arg(left.join(QLatin1Char(' '))));
        }
    }

    TrialProgram& m_program;
    const TrialFolder& m_folder;
    const WritingCommand& m_command;
    WatchedProcess m_console;
    QByteArray m_before;
    QByteArray m_after;
    std::chrono::microseconds m_length{};
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    TrialProgram program("kills");
    if (!WatchedProcess::isPossible()) {
        std::fprintf(stderr, "This system does not tell of the calls of a process.\n");
        return 2;
    }
    const TrialFolder folder(QStringLiteral(SCHEDULECTL));
    std::vector<KillTrial> trials;
    for (const WritingCommand& command : writingCommands()) {
        trials.emplace_back(program, folder, command);
    }
    for (KillTrial& trial : trials) {
        trial.killAtEveryCall();
    }
    std::uniform_int_distribution<std::size_t> which(0, trials.size() - 1);
    while (program.goesOn()) {
        trials[which(program.chance())].killAtSomeMoment();
    }
    return program.finish();
}
