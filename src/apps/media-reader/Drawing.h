#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace trel::mediareader {

class InputFile;

/// The toolkit's name of the format.
constexpr char kDrawingFormat[] = "svg";

/// Whether a file looks like an SVG drawing.
bool isDrawing(const InputFile& file);

/// The drawing without all that would be loaded from elsewhere: references to files and addresses,
/// style sheets, definitions of the document's type. Its own parts and the images in it stay. Empty
/// when it is no well-formed drawing, or too large.
QByteArray readDrawing(const InputFile& file);

/// The drawing as an image, scaled down so that it fits into the bound. Null when it cannot be
/// read. Needs a QGuiApplication, for the fonts.
QImage drawingImage(const InputFile& file, const QSize& bound);

/// Has the usual fonts opened, for the writing in drawings. Needs a QGuiApplication. Writing that
/// asks for another font is drawn in one of these.
void prepareTextFonts();

} // namespace trel::mediareader
