#pragma once

#include "faults/Fault.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace trel::mediadispatch {

/// Puts other contents into a file, in one step and on the disk when it returns; see
/// writeScheduleFile for what becomes of modes, links and what is no regular file. Returns why the
/// file was left as it was, if it was.
Fault replaceFile(const QString& path, const QByteArray& content);

/// Sees the new file by its handle, once its contents are on the disk and before it takes its
/// place. False, with the reason in errno, leaves all as it was.
using FileInspection = std::function<bool(int handle)>;

/// The same, for who has something to do with the new file itself.
Fault replaceFile(const QString& path, const QByteArray& content, const FileInspection& inspect);

/// Has the name of a new file, too, outlast a power cut. Not all file systems can be asked for
/// that.
void syncFolder(const QString& target);

} // namespace trel::mediadispatch
