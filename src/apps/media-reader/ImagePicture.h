#pragma once

#include <QImage>
#include <QSize>

namespace trel::mediareader {

class InputFile;
struct NameHint;

/// What an image looks like, upright as the camera's mark in it says, scaled down to fit into the
/// bound. Null when it cannot be read. It is read in the wanted size where its format allows that;
/// one that would have to be read in full and is larger than anyone's memory is not.
QImage imagePicture(const InputFile& file, const NameHint& hint, const QSize& bound);

/// Has the toolkit load what it needs for that, drawings included when there is a QGuiApplication,
/// and start the thread with which it shares the work on large images. The toolkit
/// does so with the first image otherwise.
void prepareImageFormats();

} // namespace trel::mediareader
