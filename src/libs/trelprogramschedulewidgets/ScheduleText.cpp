#include "ScheduleText.h"

#include "ProgramSheduleWidgetTranslateManager.h"
#include "tstranslate/Translator.h"

namespace trel::mediadispatch {

QString scheduleText(const char* key)
{
    return tessark::trans::translate(ProgramSheduleWidgetTranslateManager::instance().translator(),
                                     QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                                     QString::fromLatin1(key));
}

} // namespace trel::mediadispatch
