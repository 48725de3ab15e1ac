#pragma once

#include "LanguageCheck.h"

namespace trel::console {

/// How many texts a host's file of a language has to hold. The host is written in English, so that
/// an English file needs its plurals alone.
int neededHostTexts(const QString& language);

/// Everything to put right in a translator's file of the desktop host, in the order of the kinds,
/// and within each in the order of the texts.
std::vector<LanguageFinding> checkHostLanguage(const LanguageTexts& file);

} // namespace trel::console
