#include "ChooserFixture.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace {

constexpr double kTenMinutes = 600000.0;

} // namespace

ChooserFixture::ChooserFixture()
    : service(RecordingService::instance())
{
    service.reset();
    int index = 0;
    for (const char* name : {"A", "B", "C", "D", "E", "F"}) {
        service.addProgram(++index, name, kTenMinutes);
    }

    PlayPlan plan;
    plan.id = kPlan;
    plan.startTime = "08:00:00";
    plan.endTime = "09:00:00";
    plan.times = 1;
    plan.weeks = "1,2";
    plan.serviceList = {4, 5};
    task.id = kTask;
    task.startDate = "2024.01.01";
    task.endDate = "2024.12.31";
    task.plans = {plan};
    service.working[kTask] = task;
}

void ChooserFixture::setPrograms(const std::vector<struProgInfo>& programs)
{
    plan().programs = programs;
    task = service.working[kTask];
}

PlayPlan& ChooserFixture::plan()
{
    return service.working[kTask].plans.front();
}

ChooserOutcome ChooserFixture::openExisting(const ChooserAnswer::Steps& steps)
{
    return open(false, steps);
}

ChooserOutcome ChooserFixture::openNew(const ChooserAnswer::Steps& steps)
{
    return open(true, steps);
}

ChooserOutcome ChooserFixture::open(bool isNewPlan, const ChooserAnswer::Steps& steps)
{
    const ChooserAnswer answer(steps);
    ProgramChoose chooser(&task, kTask, kPlan, &caller, isNewPlan);
    ChooserOutcome outcome;
    outcome.textBefore = chooser.getSelectedProgramText();
    outcome.result = chooser.execChoose();
    outcome.text = chooser.getSelectedProgramText();
    outcome.programs = chooser.getSelectedPrograms();
    outcome.hasNoDuration = chooser.hasNoDuration();
    return outcome;
}

struProgInfo entry(int progIndex, const char* name, int playCount)
{
    return {progIndex, false, name, playCount};
}

struProgInfo badEntry(int progIndex, const char* name)
{
    return {progIndex, true, name, 1};
}

QString line(const std::vector<struProgInfo>& programs)
{
    QStringList texts;
    for (const struProgInfo& program : programs) {
        texts.append(QStringLiteral("%1%2 %3 x%4")
                         .arg(QLatin1String(program.isInvalid ? "!" : ""))
                         .arg(program.progIndex)
                         .arg(QString::fromStdString(program.progName))
                         .arg(program.playCount));
    }
    return texts.join(QStringLiteral(", "));
}
