#include "ProgramNames.h"

#include "ScheduleText.h"
#include "service/scheduleManage.h"

namespace trel::mediadispatch {

ProgramSuffixes programSuffixes()
{
    return {scheduleText("szInvalidStr"), scheduleText("szProgNullStr")};
}

QString programNames(const std::vector<struProgInfo>& programs, const ProgramSuffixes& suffixes)
{
    const auto lookup = [](int progIndex) {
        auto& service = scheduleManage::getInstance();
        ProgramIten program = service.getProgramItemByIndex(progIndex);
        program.progName = service.getProgramNameByProgIndex(progIndex);
        return program;
    };
    return programListText(programs, lookup, suffixes);
}

QString programNames(const std::vector<struProgInfo>& programs)
{
    return programNames(programs, programSuffixes());
}

} // namespace trel::mediadispatch
