#pragma once

#include "asrun/AsRunRecord.h"

#include <QByteArray>

#include <optional>

namespace trel::mediadispatch {

/// A record as a spool keeps it, without number and hash.
QByteArray asRunSpoolBytes(const AsRunRecord& record);

/// The way back; none for bytes that asRunSpoolBytes has not made.
std::optional<AsRunRecord> asRunSpoolRecord(const QByteArray& bytes);

} // namespace trel::mediadispatch
