#include "ProgramReport.h"

#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

bool hasLength(const ProgramIten& program)
{
    return program.durationMs >= 0.0 &&
           !scheduleManage::getInstance().isNoDurationType(program.progIndex);
}

} // namespace

QString programLength(const ProgramIten& program)
{
    return hasLength(program) ? durationText(program.durationMs) : QStringLiteral("\u2013");
}

QString programPath(const ProgramIten& program)
{
    return printable(shownAddress(QString::fromStdString(program.mediaPath)));
}

QJsonObject programJson(const ProgramIten& program)
{
    return {
        {QStringLiteral("index"), program.progIndex},
        {QStringLiteral("name"), QString::fromStdString(program.progName)},
        {QStringLiteral("kind"), kindText(program.kind)},
        {QStringLiteral("durationMs"),
         hasLength(program) ? QJsonValue(program.durationMs) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("path"), QString::fromStdString(program.mediaPath)},
        {QStringLiteral("isGone"), program.isNull},
    };
}

QJsonArray programsJson(const std::vector<int>& indexes, const std::map<int, ProgramIten>& programs)
{
    QJsonArray array;
    for (const int index : indexes) {
        const auto found = programs.find(index);
        if (found != programs.end()) {
            array.append(programJson(found->second));
        }
    }
    return array;
}

} // namespace trel::console
