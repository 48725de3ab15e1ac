#include "support/ActiveAccessibility.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

// Only the platform can say that somebody listens.
QPlatformAccessibility& platform()
{
    return *QGuiApplicationPrivate::platformIntegration()->accessibility();
}

} // namespace

ActiveAccessibility::ActiveAccessibility()
{
    platform().setActive(true);
}

ActiveAccessibility::~ActiveAccessibility()
{
    platform().setActive(false);
}
