#include "DisplayText.h"

#include <QStringList>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace trel::hosts {

namespace {

struct Range
{
    uint first;
    uint last;
};

/// The characters that terminals draw two columns wide, in ascending order.
constexpr Range kWideRanges[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x1FA70, 0x1FAFF},
    {0x20000, 0x2FFFD}, {0x30000, 0x3FFFD},
};

/// The inner and final letters of Hangul syllables, which join the letter before.
constexpr Range kJoiningHangul = {0x1160, 0x11FF};

bool holds(const Range& range, uint character)
{
    return range.first <= character && character <= range.last;
}

bool isWide(uint character)
{
    const Range* const range =
        std::lower_bound(std::begin(kWideRanges), std::end(kWideRanges), character,
                         [](const Range& candidate, uint value) { return candidate.last < value; });
    return range != std::end(kWideRanges) && holds(*range, character);
}

bool isJoining(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return true;
    default:
        return holds(kJoiningHangul, character);
    }
}

int widthOf(uint character)
{
    if (isJoining(character)) {
        return 0;
    }
    return isWide(character) ? 2 : 1;
}

/// The marks that turn the direction of writing around, for what follows or beside them.
bool isDirectionMark(QChar character)
{
    constexpr ushort arabicLetterMark = 0x061C;
    constexpr Range marks = {0x200E, 0x200F};
    constexpr Range overrides = {0x202A, 0x202E};
    constexpr Range isolates = {0x2066, 0x2069};
    const ushort code = character.unicode();
    return code == arabicLetterMark || holds(marks, code) || holds(overrides, code) ||
           holds(isolates, code);
}

bool mustBeEscaped(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return isDirectionMark(character);
    }
}

QString escaped(QChar character)
{
    switch (character.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const int code = character.unicode();
    return code < 0x100 ? QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
}

} // namespace

int displayWidth(const QString& text)
{
    int width = 0;
    for (const uint character : text.toUcs4()) {
        width += widthOf(character);
    }
    return width;
}

QString printable(const QString& text)
{
    // No path that the system takes, but for some that were made for it, is longer.
    constexpr int longest = 512;
    return shortened(text, longest);
}

QString escapedText(const QString& text)
{
    QString shown;
    shown.reserve(text.size());
    for (const QChar character : text) {
        if (mustBeEscaped(character)) {
            shown += escaped(character);
        } else {
            shown += character;
        }
    }
    return shown;
}

QString escapedLines(const QString& lines)
{
    QStringList shown = lines.split(QLatin1Char('\n'));
    std::transform(shown.begin(), shown.end(), shown.begin(),
                   [](const QString& line) { return escapedText(line); });
    return shown.join(QLatin1Char('\n'));
}

QByteArray printableJson(const QByteArray& json)
{
    constexpr ushort lastOfAscii = 0x7E; // What stands below is escaped already, or form.
    QString shown;
    shown.reserve(json.size());
    for (const QChar character : QString::fromUtf8(json)) {
        if (character.unicode() > lastOfAscii && mustBeEscaped(character)) {
            shown += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            shown += character;
        }
    }
    return shown.toUtf8();
}

QString printable(const std::string& utf8)
{
    return printable(QString::fromStdString(utf8));
}

QString inQuotes(const QString& text)
{
    return QStringLiteral("\"%1\"").arg(printable(text));
}

QString shortened(const QString& text, int columns)
{
    QString shown = escapedText(text);
    if (displayWidth(shown) <= columns) {
        return shown;
    }
    const QVector<uint> characters = shown.toUcs4();
    // Half of the room goes to the front, the rest to the end, where a path has its file name.
    int head = 0;
    int tail = characters.size();
    int room = columns - 1;
    for (int width = 0; head < tail; ++head) {
        width += widthOf(characters[head]);
        if (width > (columns - 1) / 2) {
            break;
        }
        room -= widthOf(characters[head]);
    }
    while (tail > head && widthOf(characters[tail - 1]) <= room) {
        --tail;
        room -= widthOf(characters[tail]);
    }
    const auto part = [&characters](int from, int to) {
        return QString::fromUcs4(characters.constData() + from, to - from);
    };
    return part(0, head) + QChar(0x2026) + part(tail, characters.size());
}

QString durationText(double milliseconds)
{
    constexpr qint64 second = 1000;
    constexpr qint64 minute = 60 * second;
    constexpr qint64 hour = 60 * minute;
    const qint64 length = std::llround(milliseconds);
    return QStringLiteral("%1:%2:%3.%4")
        .arg(length / hour)
        .arg(length / minute % 60, 2, 10, QLatin1Char('0'))
        .arg(length / second % 60, 2, 10, QLatin1Char('0'))
        .arg(length % second, 3, 10, QLatin1Char('0'));
}

QString counted(qint64 number, const QString& noun)
{
    const QString ending = number == 1 ? QString() : QStringLiteral("s");
    return QStringLiteral("%1 %2%3").arg(QString::number(number), noun, ending);
}

} // namespace trel::hosts
