#include "DeskProcess.h"

#include "FlightRecorder.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

using namespace trel::mediadispatch;

namespace {

constexpr int kPatienceMSecs = 60000;

} // namespace

Tasks tasksOfJson(const QByteArray& json)
{
    ScheduleFromJson schedule = scheduleFromJson(json);
    if (schedule.fault) {
        FlightRecorder::fail(QStringLiteral("no schedule: ") + englishText(schedule));
    }
    for (auto& [id, task] : schedule.tasks) {
        for (PlayPlan& plan : task.plans) {
            plan.isConflict = false;
            if (plan.mode == FrequencyMode) {
                plan.endTime.clear();
            }
            for (struProgInfo& entry : plan.programs) {
                entry.isInvalid = false;
            }
        }
    }
    return schedule.tasks;
}

DeskProcess::DeskProcess(const QString& database)
    : m_database(database)
{
    start();
}

DeskProcess::~DeskProcess()
{
    m_process->closeWriteChannel();
    if (!m_process->waitForFinished(kPatienceMSecs) || m_process->exitCode() != 0) {
        FlightRecorder::fail(QStringLiteral("an editor did not end as it should"));
    }
}

void DeskProcess::start()
{
    m_process = std::make_unique<QProcess>();
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->start(QCoreApplication::applicationFilePath(),
                     {QStringLiteral("--desk"), m_database});
}

void DeskProcess::send(const QString& request)
{
    m_process->write(request.toUtf8() + '\n');
    m_process->waitForBytesWritten(kPatienceMSecs);
}

DeskProcess::Answer DeskProcess::answer()
{
    while (!m_process->canReadLine()) {
        if (!m_process->waitForReadyRead(kPatienceMSecs)) {
            FlightRecorder::fail(QStringLiteral("an editor did not answer"));
        }
    }
    const QJsonObject object = QJsonDocument::fromJson(m_process->readLine()).object();
    Answer answer;
    answer.result = object.value(QStringLiteral("result")).toString();
    answer.tasks = tasksOfJson(object.value(QStringLiteral("tasks")).toString().toUtf8());
    tasks = answer.tasks;
    return answer;
}

DeskProcess::Answer DeskProcess::ask(const QString& request)
{
    send(request);
    return answer();
}

void DeskProcess::killAndRestart()
{
    m_process->kill();
    m_process->waitForFinished(kPatienceMSecs);
    start();
}
