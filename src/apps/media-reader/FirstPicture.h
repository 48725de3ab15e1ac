#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>

namespace trel::mediareader {

class InputFile;
struct NameHint;

/// The first picture of a film from a position on, in milliseconds, or its last one where there is
/// none so late or it cannot be found in time; upright and in its own shape, scaled down so that it
/// fits into the bound before it is turned; one that is turned by part of a right angle may be
/// larger. Null when there is none that can be read.
QImage firstPicture(const InputFile& file, const NameHint& hint, const QSize& bound,
                    std::int64_t positionMs = 0);

} // namespace trel::mediareader
