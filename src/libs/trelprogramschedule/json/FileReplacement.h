#pragma once

#include <QByteArray>
#include <QString>

namespace trel::mediadispatch {

/// Puts other contents into a file, in one step and on the disk when it returns; see
/// writeScheduleFile for what becomes of modes, links and what is no regular file. Returns an empty
/// text, or the reason why the file was left as it was, with neither a capital nor a full stop.
QString replaceFile(const QString& path, const QByteArray& content);

} // namespace trel::mediadispatch
