#include "air/AirBar.h"

#include "EditorMenus.h"
#include "help/EntryText.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAction>
#include <QEvent>

namespace trel::desktop::air {

AirBar::AirBar(const EditorMenus& menus, QWidget* state, QWidget* parent)
    : QToolBar(parent)
    , m_menus(menus)
{
    setObjectName(QStringLiteral("airBar"));
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    addAction(menus.editSchedule());
    addAction(menus.importFiles());
    addAction(menus.undo());
    addSeparator();
    addAction(menus.startSchedule());
    addAction(menus.stopSchedule());
    addSeparator();
    addAction(menus.searchPrograms());
    state->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(state);
    retranslate();
    for (QAction* action :
         {menus.editSchedule(), menus.importFiles(), menus.undo(), menus.stopSchedule()}) {
        tellInWhole(*action);
    }
}

/// A tip says what the entry of the menu says. Left to itself, the toolkit would show the letters
/// that some languages have in brackets.
void AirBar::tellInWhole(QAction& action)
{
    const auto tell = [&action] {
        action.setToolTip(trel::widgets::plainToolTip(withoutLetter(action.text())));
    };
    connect(&action, &QAction::changed, this, tell);
    tell();
}

/// Shorter than in the menus, which say what is edited and imported.
void AirBar::retranslate()
{
    setWindowTitle(tr("Toolbar"));
    toggleViewAction()->setText(tr("Toolbar"));
    m_menus.editSchedule()->setIconText(tr("Edit"));
    m_menus.importFiles()->setIconText(tr("Import"));
    m_menus.undo()->setIconText(tr("Undo"));
    m_menus.stopSchedule()->setIconText(tr("Stop"));
    m_menus.searchPrograms()->setIconText(tr("Search"));
    m_menus.searchPrograms()->setToolTip(trel::widgets::plainToolTip(tr("Search the catalog")));
}

void AirBar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::air
