#pragma once

#include "ProgramContent.h"
#include "trelprogramschedule_export.h"

#include <functional>

namespace trel::mediadispatch {

/// Asked many times a second while a file is read; true ends the reading.
using ContentCancelled = std::function<bool()>;

/// How a file compares with what is known of it.
enum class ContentState {
    NotKnown,   ///< Nothing is.
    Same,       ///< It holds what it held, whatever its time of change.
    Changed,    ///< It holds something else.
    Unreadable, ///< It is not there, cannot be read, or changes while it is, or that was cancelled.
};

/// Reads what a file holds, in constant memory; on any thread. What is known of it is given back
/// without a look at its bytes where size and time of change are those of the file. Nothing is
/// known then of what is no file on a disk, is empty, cannot be read to its end, is changed
/// meanwhile, or where it was cancelled.
TRELPROGRAMSCHEDULE_EXPORT ProgramContent readContent(const QString& path,
                                                      const ProgramContent& known = {},
                                                      const ContentCancelled& isCancelled = {});

/// Compares a file with what is known of it. Its bytes are read only where its size is the same and
/// its time of change another one.
TRELPROGRAMSCHEDULE_EXPORT ContentState contentState(const QString& path,
                                                     const ProgramContent& known,
                                                     const ContentCancelled& isCancelled = {});

} // namespace trel::mediadispatch
