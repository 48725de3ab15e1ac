#include "ProgramNames.h"

#include "ScheduleText.h"
#include "service/ProgramText.h"
#include "service/scheduleManage.h"

namespace trel::mediadispatch {

QString programNames(const std::vector<struProgInfo>& programs)
{
    const auto lookup = [](int progIndex) {
        auto& service = scheduleManage::getInstance();
        ProgramIten program = service.getProgramItemByIndex(progIndex);
        program.progName = service.getProgramNameByProgIndex(progIndex);
        return program;
    };
    return programListText(programs, lookup,
                           {scheduleText("szInvalidStr"), scheduleText("szProgNullStr")});
}

} // namespace trel::mediadispatch
