#pragma once

#include "trelprogramschedulewidgets_export.h"

#include <QString>

#include <memory>

namespace tessark::trans {
class Translator;
}

namespace trel::mediadispatch {

/// Owner of the one translator that every text of the editor comes from.
///
/// Language files are loaded into it and the language is selected on it; widgets that stand
/// already keep their texts until they are told to fetch them again. GUI thread only, apart from
/// the first call of instance().
class TRELPROGRAMSCHEDULEWIDGETS_EXPORT ProgramSheduleWidgetTranslateManager
{
public:
    /// The one manager of the process, made on first use and gone at process exit.
    static ProgramSheduleWidgetTranslateManager& instance();

    ~ProgramSheduleWidgetTranslateManager();
    ProgramSheduleWidgetTranslateManager(const ProgramSheduleWidgetTranslateManager&) = delete;
    ProgramSheduleWidgetTranslateManager&
    operator=(const ProgramSheduleWidgetTranslateManager&) = delete;

    /// The same object on every call, owned by the manager.
    tessark::trans::Translator& translator();

    /// The folder of the language files that come with the library: its absolute path, found from
    /// the place of the library, so that the installed tree can be moved. It holds nothing but
    /// files for this translator, a language each. Empty where it is not there. From any thread.
    static QString languageFolder();

private:
    ProgramSheduleWidgetTranslateManager();

    std::unique_ptr<tessark::trans::Translator> m_translator;
};

} // namespace trel::mediadispatch
