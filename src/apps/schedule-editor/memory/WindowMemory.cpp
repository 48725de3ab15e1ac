#include "memory/WindowMemory.h"

#include <QWidget>

namespace trel::desktop {

WindowMemory::WindowMemory(QSettings& settings, QWidget& window)
    : QObject(&window)
    , m_settings(settings)
{}

WindowMemory::~WindowMemory() = default;

QSettings* WindowMemory::above(const QWidget& window)
{
    for (const QWidget* at = window.parentWidget(); at != nullptr; at = at->parentWidget()) {
        if (const auto* const memory =
                at->findChild<WindowMemory*>(QString(), Qt::FindDirectChildrenOnly)) {
            return &memory->m_settings;
        }
    }
    return nullptr;
}

} // namespace trel::desktop
