// Usage: trust_faults [--minutes N] [--seed S]
//
// Lets every call by which a writing command of the console touches files fail in turn, once and
// for good, as a disk that is full, broken or taken away does. Each time the contents have to be
// the old ones or the new ones, whole, and what the command says has to be so. As many as there is
// time for are tried, in an order that the seed decides; with enough time all are.

#include "FaultTrial.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    TrialProgram program("faults");
    if (!WatchedProcess::isPossible()) {
        std::fprintf(stderr, "This system does not tell of the calls of a process.\n");
        return 2;
    }
    const TrialFolder folder(QStringLiteral(SCHEDULECTL));
    FaultTrial trial(program, folder);
    std::vector<Fault> faults;
    for (const WritingCommand& command : writingCommands()) {
        const std::vector<Fault> ofCommand = trial.find(command);
        faults.insert(faults.end(), ofCommand.begin(), ofCommand.end());
    }
    std::fprintf(stderr, "%zu faults are possible.\n", faults.size());
    std::shuffle(faults.begin(), faults.end(), program.chance());
    // A lock that cannot be taken is waited for, which takes a hundred times as long.
    std::stable_partition(faults.begin(), faults.end(),
                          [](const Fault& fault) { return fault.call != FileCall::Lock; });
    for (auto fault = faults.begin(); fault != faults.end() && program.goesOn(); ++fault) {
        trial.attempt(*fault);
    }
    return program.finish();
}
