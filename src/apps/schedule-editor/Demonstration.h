#pragma once

#include <QString>

namespace trel::desktop {

/// Fills the open store with the demonstration: the media of FOLDER/media as programs, and the
/// schedule in FOLDER/schedule.json, moved so that its first task begins today. The media are
/// copied beside the database first, so that they stay when the folder goes.
///
/// Returns an empty text, or a sentence that says what went wrong.
QString fillWithDemonstration(const QString& folder);

} // namespace trel::desktop
