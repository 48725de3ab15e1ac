#pragma once

#include "trelprogramschedule/media/MediaReader.h"

namespace trel::mediadispatch {

/// As MediaReader::facts, which it carries out.
MediaFacts probeMedia(const QString& path, bool isNamedAsMedia);

} // namespace trel::mediadispatch
