#pragma once

#include "ConsoleTrial.h"
#include "TrialProgram.h"
#include "WatchedProcess.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <map>
#include <vector>

/// One call that fails within one command.
struct Fault
{
    const WritingCommand* command;
    FileCall call;
    int nth; ///< Of its kind, from 1.
    bool isForGood;
    int systemError;
};

/// Lets calls of the writing commands of the console fail, and judges what comes of it: the
/// contents are the old ones or the new ones, whole, what the command says of it is so, and nothing
/// lies around.
class FaultTrial
{
public:
    /// Faults are told to the program.
    FaultTrial(TrialProgram& program, const TrialFolder& folder);

    /// All that can fail within a command.
    std::vector<Fault> find(const WritingCommand& command);
    void attempt(const Fault& fault);

private:
    /// How a command goes without a fault.
    struct Usual
    {
        QByteArray before;
        QByteArray after;
        std::array<int, kFileCalls> calls = {};
    };

    /// Whether the command does its work where a former one has left things as they were.
    bool worksNow(const WritingCommand& command);
    void judge(const Fault& fault, const ProcessEnd& end);

    TrialProgram& m_program;
    const TrialFolder& m_folder;
    WatchedProcess m_console;
    std::map<const WritingCommand*, Usual> m_usual;
};
