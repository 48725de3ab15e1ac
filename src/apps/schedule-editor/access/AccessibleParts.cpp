#include "access/AccessibleParts.h"

#include "access/AccessibleBox.h"
#include "access/AccessiblePicture.h"
#include "access/SpokenParts.h"

#include <QComboBox>

namespace trel::desktop::access {

namespace {

/// The cards have boxes and interfaces of their own.
bool isInCard(const QWidget& widget)
{
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (above->inherits("trel::mediadispatch::PlanTaskWidget")) {
            return true;
        }
    }
    return false;
}

// A class is asked for before those that it is derived from.
QAccessibleInterface* interfaceOf(const QString& className, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) {
        return nullptr;
    }
    if (className == QLatin1String("QComboBox")) {
        auto* const box = static_cast<QComboBox*>(widget);
        return box->isEditable() || isInCard(*box) ? nullptr : new AccessibleBox(*box);
    }
    if (!className.startsWith(QLatin1String("trel::desktop::"))) {
        return nullptr;
    }
    if (dynamic_cast<SpokenParts*>(widget) != nullptr) {
        return new AccessiblePicture(*widget);
    }
    if (className == QLatin1String("trel::desktop::PreviewScreen") ||
        className == QLatin1String("trel::desktop::PreviewPicture")) {
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    }
    if (className == QLatin1String("trel::desktop::access::Announcer")) {
        return new QAccessibleWidget(widget, QAccessible::Notification);
    }
    if (className == QLatin1String("trel::desktop::air::AirLight")) {
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    }
    return nullptr;
}

} // namespace

void installAccessibleParts()
{
    // A factory that is installed twice is asked twice.
    QAccessible::removeFactory(interfaceOf);
    QAccessible::installFactory(interfaceOf);
}

void tellCurrentPart(QWidget& widget)
{
    const auto* const parts = dynamic_cast<const SpokenParts*>(&widget);
    const int current = parts != nullptr ? parts->spokenCurrent() : -1;
    if (current < 0 || !widget.hasFocus() || !QAccessible::isActive()) {
        return;
    }
    // The toolkit's own interface of a widget looks for a child at any place, some without a check.
    // It stands where the factory has not been installed, or was only after somebody had asked.
    auto* const told = QAccessible::queryAccessibleInterface(&widget);
    if (dynamic_cast<AccessiblePicture*>(told) == nullptr) {
        return;
    }
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(current);
    QAccessible::updateAccessibility(&event);
}

} // namespace trel::desktop::access
