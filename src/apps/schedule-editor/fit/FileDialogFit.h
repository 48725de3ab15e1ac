#pragma once

class QFileDialog;

namespace trel::desktop::fit {

/// Gives a file dialog a size in which its places and the columns of its list can be read, the
/// names of files having what the others leave. To be called before it is shown. A dialog of the
/// desktop, which has none of the toolkit's widgets, is left alone.
void fitFileDialog(QFileDialog& dialog);

} // namespace trel::desktop::fit
