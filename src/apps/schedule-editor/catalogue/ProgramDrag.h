#pragma once

#include <QString>

#include <vector>

class QMimeData;

namespace trel::desktop {

/// Programs on their way from the catalogue to where they are dropped, by their indexes.
namespace programdrag {

/// The kind of data that they travel as.
QString mimeType();

/// The data for some programs, in this order. The caller owns it.
QMimeData* make(const std::vector<int>& programs);

/// The programs that some data names, in their order; empty when it names none. Another process
/// may work on another catalogue, where the same indexes are other programs: what comes from one
/// names none. A program may have left the catalogue since.
std::vector<int> programs(const QMimeData* data);

} // namespace programdrag

} // namespace trel::desktop
