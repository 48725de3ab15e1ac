#include "week/WeekDock.h"

#include "Languages.h"
#include "look/Themes.h"
#include "week/WeekPanel.h"

#include <QAction>
#include <QEvent>

namespace trel::desktop {

WeekDock::WeekDock(follow::EditedSchedule& edited, const Languages& languages, const Themes& themes,
                   QWidget* parent)
    : QDockWidget(parent)
    , m_panel(new week::WeekPanel(edited, this))
{
    setObjectName(QStringLiteral("weekDock"));
    setWidget(m_panel);
    connect(m_panel, &week::WeekPanel::activated, this, &WeekDock::activated);

    const auto takeColours = [this, &themes] { m_panel->setColours(themes.colours()); };
    const auto takeLanguage = [this, &languages] {
        m_panel->setLanguage(QLocale(languages.current()));
    };
    connect(&themes, &Themes::changed, this, takeColours);
    connect(&languages, &Languages::changed, this, takeLanguage);
    takeColours();
    takeLanguage();
    retranslate();
    hide();
}

void WeekDock::retranslate()
{
    setWindowTitle(tr("Week"));
    // The title becomes the text of the action, which has a letter besides.
    toggleViewAction()->setText(tr("&Week"));
}

void WeekDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

} // namespace trel::desktop
