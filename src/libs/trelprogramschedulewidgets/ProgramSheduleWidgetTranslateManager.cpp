#include "ProgramSheduleWidgetTranslateManager.h"

#include "tstranslate/Translator.h"

namespace trel::mediadispatch {

ProgramSheduleWidgetTranslateManager& ProgramSheduleWidgetTranslateManager::instance()
{
    static ProgramSheduleWidgetTranslateManager manager;
    return manager;
}

ProgramSheduleWidgetTranslateManager::ProgramSheduleWidgetTranslateManager()
    : m_translator(std::make_unique<tessark::trans::Translator>())
{}

ProgramSheduleWidgetTranslateManager::~ProgramSheduleWidgetTranslateManager() = default;

tessark::trans::Translator& ProgramSheduleWidgetTranslateManager::translator()
{
    return *m_translator;
}

} // namespace trel::mediadispatch
