#pragma once

#include <QString>

namespace trel::mediadispatch {

// A file that is to be there whole or not at all is made as a draft beside its place, and moved
// there. The name of a draft says which program makes it, so that one which was stopped on the way
// can be told from one at work.

/// Where this program makes its draft of a file.
QString draftPath(const QString& path);

/// Removes the drafts of a file, and the logs beside them, of programs that have ended. Looks at
/// the folder by name alone, as it may hold thousands of files.
void removeLeftDrafts(const QString& path);

} // namespace trel::mediadispatch
