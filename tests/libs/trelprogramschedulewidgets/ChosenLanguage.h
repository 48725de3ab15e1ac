#pragma once

#include "ProgramSheduleWidgetTranslateManager.h"
#include "tstranslate/Translator.h"

#include <QCoreApplication>
#include <QTranslator>

/// Selects the texts of languages/en_GB.ts for as long as it lives; before and after, a key stands
/// for itself. tell() lets the toolkit announce a change of language to every window.
class ChosenLanguage
{
public:
    ChosenLanguage()
        : m_loaded(m_announcement.load(file()) && texts().load(file()))
    {
        texts().switchLanguage(QStringLiteral("en_GB"));
    }

    ~ChosenLanguage()
    {
        texts().switchLanguage(QStringLiteral("zh_CN"));
        QCoreApplication::removeTranslator(&m_announcement);
    }

    ChosenLanguage(const ChosenLanguage&) = delete;
    ChosenLanguage& operator=(const ChosenLanguage&) = delete;

    bool isLoaded() const { return m_loaded; }
    bool tell() { return QCoreApplication::installTranslator(&m_announcement); }

private:
    static QString file() { return QStringLiteral(ENGLISH_TEST_LANGUAGE); }

    static tessark::trans::Translator& texts()
    {
        return trel::mediadispatch::ProgramSheduleWidgetTranslateManager::instance().translator();
    }

    QTranslator m_announcement;
    bool m_loaded;
};
