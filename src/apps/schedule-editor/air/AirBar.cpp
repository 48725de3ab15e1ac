#include "air/AirBar.h"

#include "EditorMenus.h"
#include "air/StartAction.h"
#include "trelwidgets/PlainToolTip.h"

#include <QAction>
#include <QEvent>

namespace trel::desktop::air {

AirBar::AirBar(const EditorMenus& menus, const StartAction& start, QWidget* state, QWidget* parent)
    : QToolBar(parent)
    , m_menus(menus)
    , m_search(new QAction(this))
{
    setObjectName(QStringLiteral("airBar"));
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_search->setShortcut(QKeySequence::Find);
    addAction(menus.editSchedule());
    addAction(menus.importFiles());
    addAction(menus.undo());
    addSeparator();
    addAction(start.action());
    addAction(menus.stopSchedule());
    addSeparator();
    addAction(m_search);
    state->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(state);
    retranslate();
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
    m_search->setText(tr("Search"));
    m_search->setToolTip(trel::widgets::plainToolTip(tr("Search the catalog")));
}

void AirBar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop::air
