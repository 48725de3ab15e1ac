#include "versions/VersionsAction.h"

#include "Languages.h"
#include "look/Themes.h"
#include "versions/VersionsWindow.h"

#include <QAction>
#include <QLocale>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

VersionsAction::VersionsAction(QAction& action, scheduleControlUI& editor,
                               const Languages& languages, const Themes& themes, QWidget* window)
    : QObject(window)
    , m_editor(editor)
    , m_languages(languages)
    , m_themes(themes)
    , m_parent(window)
{
    connect(&action, &QAction::triggered, this, &VersionsAction::show);
    connect(&languages, &Languages::changed, this, &VersionsAction::takeLanguage);
    connect(&themes, &Themes::changed, this, &VersionsAction::takeColours);
}

void VersionsAction::show()
{
    if (m_window == nullptr) {
        m_window = new VersionsWindow(m_editor, m_parent);
        connect(m_window, &VersionsWindow::aboutToReplace, this, &VersionsAction::aboutToReplace);
        connect(m_window, &VersionsWindow::replaced, this, &VersionsAction::replaced);
        takeLanguage();
        takeColours();
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void VersionsAction::readAgain()
{
    if (m_window != nullptr && m_window->isVisible()) {
        m_window->readAgain();
    }
}

void VersionsAction::takeLanguage()
{
    if (m_window != nullptr) {
        m_window->setLanguage(QLocale(m_languages.current()));
    }
}

void VersionsAction::takeColours()
{
    if (m_window != nullptr) {
        m_window->setColours(m_themes.colours());
    }
}

} // namespace trel::desktop::versions
