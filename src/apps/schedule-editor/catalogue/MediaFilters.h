#pragma once

#include <QString>

namespace trel::desktop {

/// The kinds of media that a file dialog offers: all of them first, then each, then every file.
QString mediaFilters();

} // namespace trel::desktop
