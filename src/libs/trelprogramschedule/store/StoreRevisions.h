#pragma once

#include "StoreContents.h"

namespace trel::mediadispatch {

class StoreConnection;

/// Which state a store is in. Throws StoreError.
StoreRevision revisionOf(const StoreConnection& connection);

} // namespace trel::mediadispatch
