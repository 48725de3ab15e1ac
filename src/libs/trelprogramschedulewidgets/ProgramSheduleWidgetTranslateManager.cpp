#include "ProgramSheduleWidgetTranslateManager.h"

#include "tstranslate/Translator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace trel::mediadispatch {

namespace {

/// The folder of the library, or of the program, that holds this code; empty when it is unknown.
QString ownFolder()
{
    static const char here = 0;
    Dl_info info = {};
    if (dladdr(&here, &info) == 0 || info.dli_fname == nullptr) {
        return QString();
    }
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

} // namespace

ProgramSheduleWidgetTranslateManager& ProgramSheduleWidgetTranslateManager::instance()
{
    static ProgramSheduleWidgetTranslateManager manager;
    return manager;
}

ProgramSheduleWidgetTranslateManager::ProgramSheduleWidgetTranslateManager()
    : m_translator(std::make_unique<tessark::trans::Translator>())
{
    m_translator->acceptOnly(QStringLiteral("SheduleWidgets"));
}

ProgramSheduleWidgetTranslateManager::~ProgramSheduleWidgetTranslateManager() = default;

tessark::trans::Translator& ProgramSheduleWidgetTranslateManager::translator()
{
    return *m_translator;
}

QString ProgramSheduleWidgetTranslateManager::languageFolder()
{
    const QString own = ownFolder();
    // From where libraries are installed, and from where they and programs are built.
    for (const char* way : {LANGUAGES_FROM_LIBRARY, "../" LANGUAGES_FROM_PREFIX}) {
        QString folder = QDir::cleanPath(own + QLatin1Char('/') + QLatin1String(way));
        if (!own.isEmpty() && QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return QString();
}

} // namespace trel::mediadispatch
