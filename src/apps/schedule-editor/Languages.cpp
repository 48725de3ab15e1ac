#include "Languages.h"

#include "LanguageFont.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "scheduleControlUI.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

const QLatin1String kHostPrefix("schedule-editor_");
const QLatin1String kToolkitPrefix("qtbase_");

void exchange(QTranslator& texts, const QString& name, const QString& folder)
{
    QCoreApplication::removeTranslator(&texts);
    if (texts.load(name, folder)) {
        QCoreApplication::installTranslator(&texts);
    }
}

} // namespace

Languages::Languages(const QString& folder, scheduleControlUI& editor, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_editor(editor)
{
    auto& texts = ProgramSheduleWidgetTranslateManager::instance().translator();
    const QFileInfoList found =
        QDir(folder).entryInfoList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : found) {
        // What is refused is not offered.
        if (texts.load(file.absoluteFilePath())) {
            m_names.append(file.completeBaseName());
        }
    }
    m_editor.loadLanguageFiles({});
}

QString Languages::nativeName(const QString& name)
{
    // The names of countries are for speakers who have to choose between two of a language.
    static const QHash<QString, QString> known = {
        {QStringLiteral("de_DE"), QStringLiteral("Deutsch")},
        {QStringLiteral("en_US"), QStringLiteral("English")},
        {QStringLiteral("es_ES"), QStringLiteral("Español")},
        {QStringLiteral("fr_FR"), QStringLiteral("Français")},
        {QStringLiteral("ja_JP"), QStringLiteral("日本語")},
        {QStringLiteral("ko_KR"), QStringLiteral("한국어")},
        {QStringLiteral("pt_BR"), QStringLiteral("Português (Brasil)")},
        {QStringLiteral("ru_RU"), QStringLiteral("Русский")},
        {QStringLiteral("zh_CN"), QStringLiteral("简体中文")},
        {QStringLiteral("zh_TW"), QStringLiteral("繁體中文")},
    };
    const auto found = known.constFind(name);
    if (found != known.constEnd()) {
        return *found;
    }
    const QLocale locale(name);
    // A file may have any name.
    return locale.language() == QLocale::C
               ? name
               : QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(),
                                               locale.nativeCountryName());
}

QString Languages::editorTitle()
{
    return editorText("zhSchedulePlayStr");
}

QString Languages::editorText(const char* key)
{
    return tessark::trans::translate(ProgramSheduleWidgetTranslateManager::instance().translator(),
                                     QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                                     QLatin1String(key));
}

QString Languages::startLanguage(const QString& wanted) const
{
    QStringList candidates{wanted};
    for (const QString& language : QLocale::system().uiLanguages()) {
        candidates.append(QLocale(language).name());
    }
    candidates.append(QStringLiteral("en_US"));
    for (const QString& candidate : candidates) {
        QString match = bestMatch(candidate);
        if (!match.isEmpty()) {
            return match;
        }
    }
    return m_names.value(0);
}

QString Languages::bestMatch(const QString& candidate) const
{
    if (m_names.contains(candidate)) {
        return candidate;
    }
    const QLocale wanted(candidate);
    const auto isSameLanguage = [&wanted](const QString& name) {
        const QLocale locale(name);
        return locale.language() == wanted.language() && locale.script() == wanted.script();
    };
    auto match = std::find_if(m_names.begin(), m_names.end(), isSameLanguage);
    return wanted.language() == QLocale::C || match == m_names.end() ? QString() : *match;
}

void Languages::select(const QString& name)
{
    if (!m_names.contains(name)) {
        return;
    }
    m_current = name;
    QApplication::setFont(languageFont(QApplication::font(), name));
    // What is installed last is asked first. A file for the language alone, as in "qtbase_de", does
    // for every country.
    exchange(m_toolkitTexts, kToolkitPrefix + name,
             QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    exchange(m_hostTexts, kHostPrefix + name, m_folder + QStringLiteral("/../host-languages"));
    m_editor.switchLanguage(name);
    m_editor.translate();
    emit changed();
}

} // namespace trel::desktop
