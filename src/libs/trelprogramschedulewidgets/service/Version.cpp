#include "service/Version.h"

namespace trel::mediadispatch {

const char* loadedVersion()
{
    return TREL_VERSION_STRING;
}

} // namespace trel::mediadispatch
