#pragma once

#include "EditorOptions.h"

namespace trel::desktop {

/// The editor as a program: application, store, languages, theme and windows, in the order in
/// which they need each other.
namespace EditorApplication {

/// Runs the editor; the result is the exit status of the process. Where no window can be seen
/// (no display, or a platform that draws off screen), and when a picture is asked for, it writes
/// the picture, prints a summary of the schedule and returns.
int run(int argc, char** argv, const EditorOptions& options);

} // namespace EditorApplication

} // namespace trel::desktop
