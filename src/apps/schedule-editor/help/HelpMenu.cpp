#include "help/HelpMenu.h"

#include "HostPrompts.h"
#include "common/VersionText.h"
#include "help/EntryText.h"
#include "help/GuideWindow.h"
#include "help/KeySheet.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace trel::desktop {

HelpMenu::HelpMenu(QMainWindow& window, const QWidget& editor)
    : QObject(&window)
    , m_window(window)
    , m_editor(editor)
    , m_menu(window.menuBar()->addMenu(QString()))
    , m_guide(m_menu->addAction(QString()))
    , m_keys(m_menu->addAction(QString()))
    , m_about(nullptr)
{
    m_menu->addSeparator();
    m_about = m_menu->addAction(QString());
    m_guide->setShortcut(Qt::Key_F1);
    m_keys->setShortcut(QKeySequence(QStringLiteral("Ctrl+F1")));
    // On systems that collect such entries, they would leave the menu.
    m_about->setMenuRole(QAction::NoRole);
    connect(m_guide, &QAction::triggered, this, &HelpMenu::showGuide);
    connect(m_keys, &QAction::triggered, this, &HelpMenu::showKeys);
    connect(m_about, &QAction::triggered, this, [this] { showAbout(); });
    retranslate();
}

void HelpMenu::retranslate()
{
    m_menu->setTitle(tr("&Help"));
    m_guide->setText(tr("&Guide"));
    m_keys->setText(tr("&Keyboard shortcuts"));
    m_about->setText(tr("&About this program"));
}

void HelpMenu::showGuide()
{
    if (!m_guideWindow) {
        m_guideWindow = new GuideWindow(&m_window);
    }
    m_guideWindow->show();
    m_guideWindow->raise();
    m_guideWindow->activateWindow();
}

void HelpMenu::showKeys()
{
    auto* sheet = new KeySheet(KeyTable::sections(*m_window.menuBar(), m_editor), &m_window);
    sheet->show();
}

void HelpMenu::showAbout() const
{
    prompts::about(withoutLetter(m_about->text()),
                   tr("Schedules media programs on screens, edits the schedule and follows it.") +
                       QStringLiteral("\n\n") + hosts::versionText("schedule-editor"));
}

} // namespace trel::desktop
