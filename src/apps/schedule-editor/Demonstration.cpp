#include "Demonstration.h"

#include "ProblemWords.h"
#include "clock/Clock.h"
#include "common/PatientFile.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

struct Demonstration
{
    Q_DECLARE_TR_FUNCTIONS(Demonstration)

public:
    static QString unreadable(const QString& file, const QString& reason)
    {
        return tr("The demonstration could not be read: %1: %2").arg(file, reason);
    }
};

/// Copies the media beside the database; empty when one could not be copied.
QString copyMedia(const QString& folder)
{
    const QFileInfo database(ScheduleHost::instance().path());
    QDir target(database.absolutePath());
    const QString name = database.completeBaseName() + QStringLiteral("-demonstration");
    if (!target.mkpath(name) || !target.cd(name)) {
        return QString();
    }
    const QFileInfoList media =
        QDir(folder + QStringLiteral("/media")).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : media) {
        const QString copy = target.filePath(file.fileName());
        if (!QFile::exists(copy) && !QFile::copy(file.absoluteFilePath(), copy)) {
            return QString();
        }
    }
    return target.absolutePath();
}

QDate dateOf(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), kDateFormat);
}

void moveTo(const QDate& firstDay, std::map<int, PlayTask>& tasks)
{
    if (tasks.empty()) {
        return;
    }
    const auto earliest =
        std::min_element(tasks.begin(), tasks.end(), [](const auto& a, const auto& b) {
            return a.second.startDate < b.second.startDate;
        });
    const qint64 days = dateOf(earliest->second.startDate).daysTo(firstDay);
    const auto move = [days](std::string& date) {
        date = dateOf(date).addDays(days).toString(kDateFormat).toStdString();
    };
    for (auto& [id, task] : tasks) {
        move(task.startDate);
        move(task.endDate);
    }
}

} // namespace

QString fillWithDemonstration(const QString& folder)
{
    const QString name = folder + QStringLiteral("/schedule.json");
    hosts::PatientFile file(name, std::chrono::milliseconds(0));
    const QByteArray json = file.open(QIODevice::ReadOnly) ? readScheduleJson(file) : QByteArray();
    if (file.hasFailed()) {
        return Demonstration::unreadable(name, problems::sentence(file.fault()));
    }
    ScheduleFromJson schedule = scheduleFromJson(json);
    if (schedule.fault) {
        return Demonstration::unreadable(name, problems::sentence(schedule));
    }
    const QString media = copyMedia(folder);
    if (media.isEmpty()) {
        return Demonstration::tr(
            "The demonstration media could not be copied to the database folder.");
    }
    const ImportScan scan = scanMedia({media});
    if (!scan.refusals.empty()) {
        return Demonstration::unreadable(scan.refusals.front().path,
                                         problems::sentence(scan.refusals.front().fault));
    }
    ScheduleHost& host = ScheduleHost::instance();
    if (const ImportResult result = host.addPrograms(scan.sources); !result.store) {
        return problems::sentence(result.store);
    }
    moveTo(Clock::current().today(), schedule.tasks);
    return problems::sentence(host.replaceSchedule(schedule.tasks));
}

} // namespace trel::desktop
