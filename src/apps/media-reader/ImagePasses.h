#pragma once

#include <QByteArray>

class QIODevice;

namespace trel::mediareader {

/// Whether an image is stored in passes, each of which covers the whole of it, so that it has to be
/// read in full before it can be scaled: an interlaced PNG or a progressive JPEG. The device holds
/// nothing else, and keeps its place.
bool isStoredInPasses(QIODevice& device, const QByteArray& format);

} // namespace trel::mediareader
