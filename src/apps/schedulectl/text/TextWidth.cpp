#include "TextWidth.h"

#include <array>

namespace trel::console {

namespace {

constexpr int kEm = 1000; ///< The unit of the tables is a part of the em.
constexpr int kPixelSize = 12;
constexpr int kHangul = 920;

// What another font, called in for an accented letter, may need beyond the bare letter.
constexpr int kForeignAccent = 120;

// clang-format off
/// U+0020 to U+007E.
constexpr std::array<int, 95> kAscii = {
    224, 323, 474, 555, 555, 921, 680, 278, 338, 338, 467, 555, 278, 347, 278, 392,
    555, 555, 555, 555, 555, 555, 555, 555, 555, 555, 278, 278, 555, 555, 555, 474,
    946, 608, 657, 638, 688, 589, 552, 689, 728, 293, 535, 646, 543, 812, 723, 742,
    633, 742, 635, 596, 599, 721, 575, 878, 573, 531, 603, 338, 392, 338, 555, 559,
    606, 563, 618, 510, 620, 554, 325, 564, 607, 275, 275, 552, 284, 926, 610, 606,
    620, 620, 388, 468, 377, 607, 521, 802, 498, 521, 475, 338, 270, 338, 555,
};

/// U+00A0 to U+00FF.
constexpr std::array<int, 96> kLatin = {
    224, 323, 555, 555, 555, 555, 270, 1000, 606, 832, 386, 479, 555, 347, 473, 606,
    370, 1000, 411, 411, 606, 628, 1000, 561, 606, 411, 407, 479, 873, 903, 889, 474,
    608, 608, 608, 608, 608, 608, 918, 638, 589, 589, 589, 589, 293, 293, 293, 293,
    712, 723, 742, 742, 742, 742, 742, 1000, 742, 721, 721, 721, 721, 531, 652, 643,
    563, 563, 563, 563, 563, 563, 877, 510, 554, 554, 554, 554, 275, 275, 275, 275,
    608, 610, 606, 606, 606, 606, 606, 1000, 606, 607, 607, 607, 607, 521, 620, 521,
};

/// U+0400 to U+045F.
constexpr std::array<int, 96> kCyrillic = {
    1000, 589, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000,
    608, 648, 657, 557, 712, 589, 898, 620, 733, 733, 648, 704, 812, 728, 742, 721,
    633, 638, 599, 575, 818, 573, 718, 668, 966, 976, 805, 891, 648, 638, 1014, 650,
    563, 608, 567, 459, 594, 554, 760, 510, 631, 631, 556, 593, 707, 629, 606, 618,
    620, 510, 514, 521, 820, 498, 619, 572, 837, 845, 665, 753, 548, 510, 825, 574,
    1000, 554, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000,
};
// clang-format on

template <std::size_t Size>
bool lookUp(const std::array<int, Size>& table, ushort first, ushort code, int& width)
{
    const bool isInside = code >= first && code < first + Size;
    if (isInside) {
        width = table.at(static_cast<std::size_t>(code - first));
    }
    return isInside;
}

bool isHangul(ushort code)
{
    return code >= 0xac00 && code <= 0xd7a3;
}

int advance(QChar character)
{
    const ushort code = character.unicode();
    int width = kEm;
    if (lookUp(kAscii, 0x20, code, width) || lookUp(kLatin, 0xa0, code, width) ||
        lookUp(kCyrillic, 0x400, code, width)) {
        return width;
    }
    if (character.category() == QChar::Mark_NonSpacing || character.isLowSurrogate()) {
        return 0;
    }
    if (isHangul(code)) {
        return kHangul;
    }
    if (character.decompositionTag() == QChar::Canonical) {
        return advance(character.decomposition().at(0)) + kForeignAccent;
    }
    return kEm;
}

} // namespace

int textWidth(const QString& text)
{
    int width = 0;
    for (const QChar character : text) {
        width += advance(character);
    }
    return (width * kPixelSize + kEm - 1) / kEm;
}

} // namespace trel::console
