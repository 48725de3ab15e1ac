#include "undo/ListAtRest.h"

#include "scheduleControlUI.h"

namespace trel::desktop::undo {

namespace {

/// As many cards are built in sight within a few frames, and nothing flickers.
constexpr std::size_t kMostInSight = 8;

} // namespace

ListAtRest::ListAtRest(mediadispatch::scheduleControlUI& editor, std::size_t tasks)
{
    QWidget* const panel = editor.dialogWidget();
    if (tasks > kMostInSight && panel && panel->isVisible()) {
        m_list = panel;
        panel->hide();
    }
}

ListAtRest::~ListAtRest()
{
    if (m_list) {
        m_list->show();
    }
}

} // namespace trel::desktop::undo
