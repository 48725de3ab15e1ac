#include "NamedSchedule.h"

#include "FileReplacement.h"
#include "ScheduleForm.h"

#include <utility>

namespace trel::mediadispatch {

QByteArray namedScheduleToJson(const std::map<int, PlayTask>& tasks,
                               const std::vector<NamedProgram>& programs)
{
    ScheduleForm form;
    form.version = ScheduleForm::kNamed;
    form.tasks = tasks;
    form.programs = programs;
    return writeScheduleForm(form);
}

NamedScheduleFromJson namedScheduleFromJson(const QByteArray& json)
{
    ScheduleForm form = readScheduleForm(json);
    NamedScheduleFromJson schedule;
    schedule.tasks = std::move(form.tasks);
    schedule.fault = std::move(form.fault);
    schedule.place = std::move(form.place);
    schedule.line = form.line;
    schedule.isNamed = form.version == ScheduleForm::kNamed;
    schedule.programs = std::move(form.programs);
    return schedule;
}

Fault writeNamedScheduleFile(const QString& path, const std::map<int, PlayTask>& tasks,
                             const std::vector<NamedProgram>& programs)
{
    return replaceFile(path, namedScheduleToJson(tasks, programs));
}

} // namespace trel::mediadispatch
