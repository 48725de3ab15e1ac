#pragma once

#include <QString>

namespace trel::mediadispatch {

/// Who changes what others have before them too: "schedulectl@studio".
QString thisProgram();

} // namespace trel::mediadispatch
