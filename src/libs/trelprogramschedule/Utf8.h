#pragma once

#include <cstddef>
#include <string_view>

namespace trel::mediadispatch {

/// The length in bytes, 1 to 4, of the well-formed UTF-8 sequence at the start of text; 0 when
/// there is none. Overlong forms, surrogates and numbers beyond U+10FFFF are not well-formed.
std::size_t utf8SequenceLength(std::string_view text);

/// True when all of the text is well-formed UTF-8.
bool isUtf8(std::string_view text);

} // namespace trel::mediadispatch
