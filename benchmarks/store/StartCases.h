#pragma once

class QString;

namespace bench {

/// Starting the application until the demonstration schedule is painted.
void addStartCases();

/// What the started process does: everything that the application does, but for the second that the
/// editor waits before it shows itself.
[[noreturn]] void startEditor(int argc, char** argv, const QString& database);

} // namespace bench
