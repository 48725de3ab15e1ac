#pragma once

#include "ProgramChoose.h"
#include "support/ChooserAnswer.h"
#include "support/RecordingService.h"

#include <QWidget>

#include <vector>

/// What a use of the chooser has left to its caller.
struct ChooserOutcome
{
    int result = -1;
    QString textBefore;
    QString text;
    std::vector<trel::mediadispatch::struProgInfo> programs;
    bool hasNoDuration = false;
};

/// A service with a task, a plan and a catalogue of six programs, A to F with the indexes 1 to 6
/// and ten minutes each, and the card's side of the chooser.
class ChooserFixture
{
public:
    using PlayPlan = trel::mediadispatch::PlayPlan;
    using PlayTask = trel::mediadispatch::PlayTask;
    using ProgramChoose = trel::mediadispatch::ProgramChoose;
    using struProgInfo = trel::mediadispatch::struProgInfo;

    static constexpr int kTask = 3;
    static constexpr int kPlan = 7;

    ChooserFixture();

    /// Gives the plan its programs, in the service and in the caller's copy.
    void setPrograms(const std::vector<struProgInfo>& programs);
    /// The plan in the service's working set.
    PlayPlan& plan();

    /// Opens the chooser for the plan, as it stands or as one that is new, and runs the steps.
    ChooserOutcome openExisting(const ChooserAnswer::Steps& steps);
    ChooserOutcome openNew(const ChooserAnswer::Steps& steps);

    RecordingService& service;
    QWidget caller;
    PlayTask task; ///< The caller's copy.

private:
    ChooserOutcome open(bool isNewPlan, const ChooserAnswer::Steps& steps);
};

/// An entry of a plan.
trel::mediadispatch::struProgInfo entry(int progIndex, const char* name, int playCount = 1);
/// An entry that has gone bad.
trel::mediadispatch::struProgInfo badEntry(int progIndex, const char* name);
/// "1 A x2, !65536 B x1": the entries with index, name and count, bad ones with a mark.
QString line(const std::vector<trel::mediadispatch::struProgInfo>& programs);
