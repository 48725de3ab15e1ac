#pragma once

namespace bench {

/// Enters what an operator waits for in an open editor, with the real host and service: how it
/// grows with the tasks, and that a long schedule adds no more than a frame of the screen to a
/// short one.
void addEditorWaits();

} // namespace bench
