#include "ScheduleJson.h"

#include "FileReplacement.h"
#include "ScheduleForm.h"
#include "ScheduleLimits.h"

#include <QIODevice>

#include <utility>

namespace trel::mediadispatch {

QByteArray scheduleToJson(const std::map<int, PlayTask>& tasks)
{
    ScheduleForm form;
    form.tasks = tasks;
    return writeScheduleForm(form);
}

ScheduleFromJson scheduleFromJson(const QByteArray& json)
{
    ScheduleForm form = readScheduleForm(json);
    return {std::move(form.tasks), std::move(form.fault), std::move(form.place), form.line};
}

QByteArray readScheduleJson(QIODevice& device)
{
    constexpr qint64 part = 1024 * 1024;
    QByteArray json;
    while (json.size() <= kLargestJson) {
        const QByteArray read = device.read(part);
        if (read.isEmpty()) {
            break;
        }
        json += read;
    }
    return json;
}

Fault writeScheduleFile(const QString& path, const std::map<int, PlayTask>& tasks)
{
    return replaceFile(path, scheduleToJson(tasks));
}

} // namespace trel::mediadispatch
