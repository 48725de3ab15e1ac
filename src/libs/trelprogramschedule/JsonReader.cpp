#include "JsonReader.h"

#include "Utf8.h"

#include <algorithm>
#include <charconv>

namespace trel::mediadispatch {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// The value of a hexadecimal digit; -1 for anything else.
int hexValue(char byte)
{
    if (isDigit(byte)) {
        return byte - '0';
    }
    if (byte >= 'a' && byte <= 'f') {
        return byte - 'a' + 10;
    }
    if (byte >= 'A' && byte <= 'F') {
        return byte - 'A' + 10;
    }
    return -1;
}

QString nameOf(JsonReader::Kind kind)
{
    switch (kind) {
    case JsonReader::Kind::Object:
        return QStringLiteral("an object");
    case JsonReader::Kind::Array:
        return QStringLiteral("an array");
    case JsonReader::Kind::Text:
        return QStringLiteral("a text");
    case JsonReader::Kind::Number:
        return QStringLiteral("a number");
    case JsonReader::Kind::Boolean:
        return QStringLiteral("true or false");
    case JsonReader::Kind::Null:
        return QStringLiteral("null");
    case JsonReader::Kind::None:
        break;
    }
    return QStringLiteral("no value");
}

bool isHighSurrogate(unsigned unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(unsigned unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendUtf8(std::string& utf8, unsigned code)
{
    const auto append = [&utf8](unsigned byte) { utf8.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0U | (code >> 6U));
        append(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        append(0xE0U | (code >> 12U));
        append(0x80U | ((code >> 6U) & 0x3FU));
        append(0x80U | (code & 0x3FU));
    } else {
        append(0xF0U | (code >> 18U));
        append(0x80U | ((code >> 12U) & 0x3FU));
        append(0x80U | ((code >> 6U) & 0x3FU));
        append(0x80U | (code & 0x3FU));
    }
}

} // namespace

JsonReader::JsonReader(const QByteArray& json)
    : m_text(json.constData(), static_cast<std::size_t>(json.size()))
{
    if (m_text.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        m_text.remove_prefix(kByteOrderMark.size());
    }
}

JsonReader::Kind JsonReader::nextKind()
{
    skipBlanks();
    if (atEnd()) {
        return Kind::None;
    }
    const char byte = m_text[m_at];
    switch (byte) {
    case '{':
        return Kind::Object;
    case '[':
        return Kind::Array;
    case '"':
        return Kind::Text;
    case 't':
    case 'f':
        return Kind::Boolean;
    case 'n':
        return Kind::Null;
    default:
        return byte == '-' || isDigit(byte) ? Kind::Number : Kind::None;
    }
}

bool JsonReader::readInt(int& value)
{
    std::string_view digits;
    if (nextKind() != Kind::Number) {
        return failKind(QStringLiteral("a whole number"));
    }
    if (!takeNumber(digits)) {
        return false;
    }
    const QString shown = QString::fromLatin1(digits.data(), static_cast<int>(digits.size()));
    if (digits.find_first_of(".eE") != std::string_view::npos) {
        return fail(QStringLiteral("%1 is not written as a whole number").arg(shown));
    }
    const auto [last, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc()) {
        return fail(QStringLiteral("%1 does not fit into 32 bits").arg(shown));
    }
    return true;
}

bool JsonReader::readBoolean(bool& value)
{
    if (nextKind() != Kind::Boolean) {
        return failKind(nameOf(Kind::Boolean));
    }
    value = m_text[m_at] == 't';
    return skipScalar();
}

bool JsonReader::readText(std::string& utf8)
{
    if (nextKind() != Kind::Text) {
        return failKind(nameOf(Kind::Text));
    }
    return takeText(utf8);
}

bool JsonReader::skipValue()
{
    std::string closings; // one for each object and array that is open
    std::string name;
    bool first = true;
    do {
        if (!closings.empty()) {
            const bool inObject = closings.back() == '}';
            if (!(inObject ? nextMember(first, name) : nextElement(first))) {
                if (hasFailed()) {
                    return false;
                }
                closings.pop_back();
                first = false;
                continue;
            }
        }
        const Kind kind = nextKind();
        first = kind == Kind::Object || kind == Kind::Array;
        if (first) {
            closings.push_back(kind == Kind::Object ? '}' : ']');
            ++m_at;
        } else if (!skipScalar()) {
            return false;
        }
    } while (!closings.empty());
    return true;
}

bool JsonReader::readEnd()
{
    if (hasFailed()) {
        return false;
    }
    skipBlanks();
    return atEnd() || failForm(QStringLiteral("something stands behind the end of the JSON"));
}

std::size_t JsonReader::mark()
{
    skipBlanks();
    return m_at;
}

bool JsonReader::fail(const QString& reason, std::size_t mark)
{
    if (!hasFailed()) {
        m_at = mark;
        const QString where = place();
        m_error = where.isEmpty() ? QStringLiteral("%1: %2").arg(position(), reason)
                                  : QStringLiteral("%1 (%2): %3").arg(where, position(), reason);
    }
    return false;
}

bool JsonReader::failKind(const QString& expected)
{
    const Kind found = nextKind();
    if (found == Kind::None) {
        return failValue();
    }
    return fail(QStringLiteral("%1 is expected here, not %2").arg(expected, nameOf(found)), mark());
}

/// The text is no JSON at this place, whatever it was meant to be.
bool JsonReader::failForm(const QString& reason)
{
    if (!hasFailed()) {
        m_error = QStringLiteral("not JSON at %1: %2").arg(position(), reason);
    }
    return false;
}

/// No value of any kind begins at this place.
bool JsonReader::failValue()
{
    return failForm(atEnd() ? QStringLiteral("a value is expected, but the text ends here")
                            : QStringLiteral("a value is expected"));
}

void JsonReader::skipBlanks()
{
    while (!atEnd() && isBlank(m_text[m_at])) {
        ++m_at;
    }
}

bool JsonReader::expect(Kind kind)
{
    if (hasFailed()) {
        return false;
    }
    if (nextKind() != kind) {
        return failKind(nameOf(kind));
    }
    m_valueStart = m_at;
    ++m_at;
    return true;
}

bool JsonReader::take(char byte)
{
    if (atEnd() || m_text[m_at] != byte) {
        return false;
    }
    ++m_at;
    return true;
}

bool JsonReader::nextMember(bool first, std::string& name)
{
    if (!goesOn(first, '}')) {
        return false;
    }
    if (nextKind() != Kind::Text) {
        return failForm(QStringLiteral("the name of a member is expected"));
    }
    if (!takeText(name)) {
        return false;
    }
    skipBlanks();
    return take(':') || failForm(QStringLiteral("a colon is expected after the name of a member"));
}

bool JsonReader::nextElement(bool first)
{
    return goesOn(first, ']');
}

/// True when another member or element follows, which is then next; takes comma or closing.
bool JsonReader::goesOn(bool first, char closing)
{
    skipBlanks();
    if (take(closing)) {
        return false;
    }
    if (first || take(',')) {
        return true;
    }
    return failForm(QStringLiteral("a comma or \"%1\" is expected").arg(QLatin1Char(closing)));
}

bool JsonReader::skipScalar()
{
    std::string text;
    std::string_view digits;
    switch (nextKind()) {
    case Kind::Text:
        return takeText(text);
    case Kind::Number:
        return takeNumber(digits);
    case Kind::Boolean:
        return takeWord(m_text[m_at] == 't' ? "true" : "false");
    case Kind::Null:
        return takeWord("null");
    default:
        return failValue();
    }
}

bool JsonReader::takeText(std::string& utf8)
{
    m_valueStart = m_at;
    ++m_at;
    utf8.clear();
    while (!atEnd()) {
        const char byte = m_text[m_at];
        if (byte == '"') {
            ++m_at;
            return true;
        }
        if (byte == '\\') {
            if (!takeEscape(utf8)) {
                return false;
            }
            continue;
        }
        if (static_cast<unsigned char>(byte) < 0x20) {
            return failForm(
                QStringLiteral("a text holds a control character; it must be written as \\u%1")
                    .arg(static_cast<int>(byte), 4, 16, QLatin1Char('0')));
        }
        const std::size_t length = utf8SequenceLength(m_text.substr(m_at));
        if (length == 0) {
            return failForm(QStringLiteral("a text is not in UTF-8"));
        }
        utf8.append(m_text.substr(m_at, length));
        m_at += length;
    }
    m_at = m_valueStart;
    return failForm(QStringLiteral("the text that begins here has no end"));
}

bool JsonReader::takeEscape(std::string& utf8)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const std::size_t start = m_at;
    const char letter = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
    const std::size_t found = letters.find(letter);
    if (found != std::string_view::npos) {
        utf8.push_back(meanings[found]);
        m_at += 2;
        return true;
    }
    if (letter != 'u') {
        return failForm(QStringLiteral("an escape that JSON does not have"));
    }
    unsigned code = 0;
    if (!takeCodeUnit(code)) {
        return false;
    }
    if (isHighSurrogate(code) && m_text.substr(m_at, 2) == "\\u") {
        unsigned low = 0;
        if (!takeCodeUnit(low)) {
            return false;
        }
        if (isLowSurrogate(low)) {
            appendUtf8(utf8, 0x10000U + ((code - 0xD800U) << 10U) + (low - 0xDC00U));
            return true;
        }
    }
    if (isHighSurrogate(code) || isLowSurrogate(code)) {
        m_at = start;
        return failForm(QStringLiteral("half of a pair of surrogates is no character"));
    }
    appendUtf8(utf8, code);
    return true;
}

/// Takes a backslash, a u and four digits.
bool JsonReader::takeCodeUnit(unsigned& unit)
{
    constexpr std::size_t lead = 2;
    constexpr std::size_t digits = 4;
    const std::string_view text = m_text.substr(m_at, lead + digits);
    unit = 0;
    for (std::size_t at = lead; at < lead + digits; ++at) {
        const int value = at < text.size() ? hexValue(text[at]) : -1;
        if (value < 0) {
            return failForm(QStringLiteral("four hexadecimal digits are expected after \\u"));
        }
        unit = unit * 16U + static_cast<unsigned>(value);
    }
    m_at += lead + digits;
    return true;
}

bool JsonReader::takeNumber(std::string_view& digits)
{
    m_valueStart = m_at;
    take('-');
    if (!take('0') && !takeDigits()) {
        return false;
    }
    if (!atEnd() && isDigit(m_text[m_at])) {
        return failForm(QStringLiteral("a number begins with a zero too many"));
    }
    if (take('.') && !takeDigits()) {
        return false;
    }
    if (take('e') || take('E')) {
        if (!take('+')) {
            take('-');
        }
        if (!takeDigits()) {
            return false;
        }
    }
    digits = m_text.substr(m_valueStart, m_at - m_valueStart);
    return true;
}

bool JsonReader::takeDigits()
{
    const std::size_t start = m_at;
    while (!atEnd() && isDigit(m_text[m_at])) {
        ++m_at;
    }
    return m_at > start || failForm(QStringLiteral("a digit is expected"));
}

bool JsonReader::takeWord(std::string_view word)
{
    m_valueStart = m_at;
    if (m_text.substr(m_at, word.size()) != word) {
        return failValue();
    }
    m_at += word.size();
    return true;
}

QString JsonReader::place() const
{
    QString path;
    for (const Step& step : m_steps) {
        if (step.index >= 0) {
            path += QStringLiteral("[%1]").arg(step.index);
            continue;
        }
        if (!path.isEmpty()) {
            path += QLatin1Char('.');
        }
        path += QString::fromUtf8(step.member.data(), static_cast<int>(step.member.size()));
    }
    return path;
}

QString JsonReader::position() const
{
    const std::string_view before = m_text.substr(0, m_at);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t lineFeed = before.rfind('\n');
    const std::string_view onLine =
        lineFeed == std::string_view::npos ? before : before.substr(lineFeed + 1);
    // The bytes that go on a sequence of UTF-8 are no characters of their own.
    const auto column = std::count_if(onLine.begin(), onLine.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    });
    return QStringLiteral("line %1, column %2").arg(line).arg(column + 1);
}

} // namespace trel::mediadispatch
