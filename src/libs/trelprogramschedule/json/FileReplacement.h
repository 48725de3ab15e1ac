#pragma once

#include "faults/Fault.h"

#include <QByteArray>
#include <QString>

namespace trel::mediadispatch {

/// Puts other contents into a file, in one step and on the disk when it returns; see
/// writeScheduleFile for what becomes of modes, links and what is no regular file. Returns why the
/// file was left as it was, if it was.
Fault replaceFile(const QString& path, const QByteArray& content);

} // namespace trel::mediadispatch
