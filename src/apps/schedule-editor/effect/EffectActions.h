#pragma once

#include <QObject>

namespace trel::mediadispatch {
struct StoreResult;
} // namespace trel::mediadispatch

namespace trel::desktop {

class EditorMenus;
class PendingNotices;

/// What the operator can do to the schedule in effect from the menu of the window: skip the play on
/// screen, cancel what is cut in, stop. Each can be chosen only while it does something. Tells what
/// of it, and of what the editor asks for, could not be written.
class EffectActions : public QObject
{
    Q_OBJECT

public:
    /// Menus and notices outlive it.
    EffectActions(const EditorMenus& menus, PendingNotices& notices, QObject* parent);

private:
    void update();
    void stop();
    void tell(const trel::mediadispatch::StoreResult& result);

    const EditorMenus& m_menus;
    PendingNotices& m_notices;
};

} // namespace trel::desktop
