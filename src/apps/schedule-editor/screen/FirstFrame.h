#pragma once

#include <QImage>
#include <QSize>

#include <atomic>

class QString;

/// The first picture of a film, upright and in its own shape, scaled down to fit into the bound.
/// A null image when the file holds none that can be read, or as soon as `isCancelled` is set.
/// Takes as long as the disk and the decoder do; for any thread but that of the windows.
QImage firstFrame(const QString& path, const QSize& bound, const std::atomic<bool>& isCancelled);
