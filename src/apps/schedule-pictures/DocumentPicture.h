#pragma once

#include <QString>

namespace trel::pictures {

/// Writes a picture that was drawn with two dots to each point for a document: in 256 colors at
/// most, so that it stays small, and with its fineness, so that it is shown as large as the window
/// was. False when it cannot be read or written.
bool writeDocumentPicture(const QString& from, const QString& to);

} // namespace trel::pictures
