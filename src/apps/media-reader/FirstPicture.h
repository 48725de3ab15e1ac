#pragma once

#include <QImage>
#include <QSize>

namespace trel::mediareader {

class InputFile;
struct NameHint;

/// The first picture of a film, upright and in its own shape, scaled down so that it fits into the
/// bound before it is turned; one that is turned by part of a right angle may be larger. Null when
/// there is none that can be read.
QImage firstPicture(const InputFile& file, const NameHint& hint, const QSize& bound);

} // namespace trel::mediareader
