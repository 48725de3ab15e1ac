#include "week/moves/CopyDayMenu.h"

#include "week/WeekView.h"
#include "week/moves/CopyDayDialog.h"
#include "week/moves/MoveWords.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

namespace trel::desktop::week {

CopyDayMenu::CopyDayMenu(WeekView& view, EditTarget& target)
    : QObject(&view)
    , m_view(view)
    , m_target(target)
{
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
}

bool CopyDayMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu || !m_isEnabled) {
        return QObject::eventFilter(watched, event);
    }
    const auto& menu = static_cast<const QContextMenuEvent&>(*event);
    show(dayOf(watched, menu), menu.globalPos());
    return true;
}

QDate CopyDayMenu::dayOf(const QObject* watched, const QContextMenuEvent& event) const
{
    const WeekLayout& week = m_view.layoutOfWeek();
    if (event.reason() == QContextMenuEvent::Keyboard && m_view.selected()) {
        return m_view.selected()->date;
    }
    const QPoint place =
        watched == &m_view ? m_view.viewport()->mapFrom(&m_view, event.pos()) : event.pos();
    const int day = m_view.geometryOfWeek().dayAt(place.x() + m_view.offset().x());
    return week.days[static_cast<std::size_t>(day)].date;
}

void CopyDayMenu::show(const QDate& day, const QPoint& place)
{
    auto* menu = new QMenu(&m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy = menu->addAction(MoveWords::copyDay(day, m_view.locale()));
    const auto index = m_view.layoutOfWeek().dayOf(day);
    copy->setEnabled(index &&
                     !m_view.layoutOfWeek().days[static_cast<std::size_t>(*index)].blocks.empty());
    // When the menu has gone: the question has an event loop of its own.
    connect(
        copy, &QAction::triggered, this, [this, day] { ask(day); }, Qt::QueuedConnection);
    menu->popup(place);
}

void CopyDayMenu::ask(const QDate& day)
{
    if (!m_view.layoutOfWeek().dayOf(day)) {
        return;
    }
    const QPointer<CopyDayMenu> self(this);
    CopyDayDialog dialog(m_view.layoutOfWeek(), day, m_target, m_view.locale(), m_view.window());
    if (dialog.exec() == QDialog::Accepted && self) {
        m_target.file(dialog.edits());
    }
}

} // namespace trel::desktop::week
