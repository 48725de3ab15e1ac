#pragma once

#include <QString>

namespace trel::hosts {

/// What a program answers to --version, in one line: its version, the commit that it was built from
/// where that is known, and the toolkit that it runs with.
QString versionText(const char* program);

} // namespace trel::hosts
