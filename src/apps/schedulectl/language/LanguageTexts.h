#pragma once

#include "LanguageText.h"

namespace trel::console {

/// Reads a source file (.ts) or a compiled one (.qm); the content tells which it is.
LanguageTexts readLanguageTexts(const QString& file);

} // namespace trel::console
