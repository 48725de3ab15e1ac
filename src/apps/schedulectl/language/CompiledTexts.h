#pragma once

#include "LanguageText.h"

#include <QByteArray>

/// How many bytes at the start of a file tell a compiled language.
inline constexpr int kCompiledMagicSize = 16;
bool isCompiledLanguage(const QByteArray& start);

/// Reads a compiled language. A file may leave the names of some texts away where others tell them
/// apart, and is refused then.
LanguageTexts readCompiledTexts(const QString& file);
