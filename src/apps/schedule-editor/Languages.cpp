#include "Languages.h"

#include "ProgramSheduleWidgetTranslateManager.h"
#include "scheduleControlUI.h"
#include "tstranslate/Translator.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <vector>

using namespace trel::mediadispatch;

namespace {

const QLatin1String kHostPrefix("schedule-editor_");

} // namespace

Languages::Languages(const QString& folder, scheduleControlUI& editor, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_editor(editor)
{
    std::vector<QString> files;
    const QFileInfoList found =
        QDir(folder).entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : found) {
        if (!file.fileName().startsWith(kHostPrefix)) {
            files.push_back(file.absoluteFilePath());
            m_names.append(file.completeBaseName());
        }
    }
    m_editor.loadLanguageFiles(files);
}

QString Languages::nativeName(const QString& name)
{
    const QLocale locale(name);
    return QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(), locale.nativeCountryName());
}

QString Languages::editorTitle()
{
    return tessark::trans::translate(ProgramSheduleWidgetTranslateManager::instance().translator(),
                                     QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                                     QStringLiteral("zhSchedulePlayStr"));
}

QString Languages::startLanguage(const QString& wanted) const
{
    QStringList candidates{wanted};
    for (const QString& language : QLocale::system().uiLanguages()) {
        candidates.append(QLocale(language).name());
    }
    candidates.append(QStringLiteral("en_US"));
    for (const QString& candidate : candidates) {
        if (m_names.contains(candidate)) {
            return candidate;
        }
    }
    return m_names.value(0);
}

void Languages::select(const QString& name)
{
    if (!m_names.contains(name)) {
        return;
    }
    m_current = name;
    QCoreApplication::removeTranslator(&m_hostTexts);
    // English is the language that the host is written in; it has no file.
    if (m_hostTexts.load(kHostPrefix + name, m_folder)) {
        QCoreApplication::installTranslator(&m_hostTexts);
    }
    m_editor.switchLanguage(name);
    m_editor.translate();
    emit changed();
}
