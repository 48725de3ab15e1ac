#include "ScheduleImporter.h"

#include "ScheduleService.h"

namespace trel::mediadispatch {

StoreResult importSchedule(const ScheduleImport& import)
{
    ScheduleService& service = ScheduleService::instance();
    service.noteWorkingSet();
    return service.importSchedule(import);
}

} // namespace trel::mediadispatch
