#include "Utf8.h"

namespace trel::mediadispatch {

namespace {

unsigned char byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

bool isBetween(unsigned char byte, unsigned char first, unsigned char last)
{
    return first <= byte && byte <= last;
}

/// How a sequence goes on after its first byte. The second byte has bounds of its own, which keep
/// out overlong forms, surrogates and numbers that are too large.
struct Continuation
{
    std::size_t length;
    unsigned char secondFirst;
    unsigned char secondLast;
};

Continuation continuationOf(unsigned char lead)
{
    if (isBetween(lead, 0xC2, 0xDF)) {
        return {2, 0x80, 0xBF};
    }
    if (isBetween(lead, 0xE0, 0xEF)) {
        const unsigned char first = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned char last = lead == 0xED ? 0x9F : 0xBF;
        return {3, first, last};
    }
    if (isBetween(lead, 0xF0, 0xF4)) {
        const unsigned char first = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char last = lead == 0xF4 ? 0x8F : 0xBF;
        return {4, first, last};
    }
    return {0, 0, 0};
}

} // namespace

std::size_t utf8SequenceLength(std::string_view text)
{
    if (text.empty()) {
        return 0;
    }
    const unsigned char lead = byteAt(text, 0);
    if (lead < 0x80) {
        return 1;
    }
    const Continuation rest = continuationOf(lead);
    if (rest.length == 0 || text.size() < rest.length ||
        !isBetween(byteAt(text, 1), rest.secondFirst, rest.secondLast)) {
        return 0;
    }
    for (std::size_t at = 2; at < rest.length; ++at) {
        if (!isBetween(byteAt(text, at), 0x80, 0xBF)) {
            return 0;
        }
    }
    return rest.length;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = utf8SequenceLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

} // namespace trel::mediadispatch
