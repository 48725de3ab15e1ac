#pragma once

/// Has the usual fonts opened, for the writing in drawings. Needs a QGuiApplication. Writing that
/// asks for another font is drawn in one of these.
void prepareTextFonts();
