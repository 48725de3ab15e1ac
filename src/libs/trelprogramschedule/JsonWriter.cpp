#include "JsonWriter.h"

#include <array>
#include <charconv>
#include <limits>

namespace trel::mediadispatch {

namespace {

constexpr std::size_t kIndent = 2;

/// The escape of a byte that may not stand in a JSON text as it is; empty for all others. DEL is
/// escaped too, since no terminal shows it.
std::string escapeOf(char byte)
{
    switch (byte) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(byte);
    if (code >= 0x20 && code != 0x7F) {
        return {};
    }
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\u00") + digits[code / 16U] + digits[code % 16U];
}

} // namespace

void JsonWriter::begin(char opening, char closing, Layout layout)
{
    startValue();
    m_out.push_back(opening);
    const bool inOneLine = !m_levels.empty() && m_levels.back().layout == Layout::OneLine;
    m_levels.push_back({closing, inOneLine ? Layout::OneLine : layout, true});
}

void JsonWriter::end()
{
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (!level.isEmpty) {
        if (level.layout == Layout::Lines) {
            breakLine();
        } else if (level.closing == '}') {
            m_out.push_back(' ');
        }
    }
    m_out.push_back(level.closing);
}

void JsonWriter::name(std::string_view name)
{
    separate(m_levels.back());
    m_out.push_back('"');
    append(name);
    append("\": ");
    m_named = true;
}

void JsonWriter::number(std::int64_t value)
{
    startValue();
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 3> digits;
    const auto [last, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    m_out.append(digits.data(), last);
}

void JsonWriter::boolean(bool value)
{
    startValue();
    append(value ? "true" : "false");
}

void JsonWriter::text(std::string_view utf8)
{
    startValue();
    m_out.push_back('"');
    std::size_t written = 0;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const std::string escape = escapeOf(utf8[at]);
        if (!escape.empty()) {
            append(utf8.substr(written, at - written));
            append(escape);
            written = at + 1;
        }
    }
    append(utf8.substr(written));
    m_out.push_back('"');
}

QByteArray JsonWriter::take()
{
    m_out.push_back('\n');
    QByteArray bytes(m_out.data(), static_cast<int>(m_out.size()));
    m_out.clear();
    return bytes;
}

void JsonWriter::startValue()
{
    if (m_named) {
        m_named = false;
    } else if (!m_levels.empty()) {
        separate(m_levels.back());
    }
}

void JsonWriter::separate(Level& level)
{
    if (!level.isEmpty) {
        m_out.push_back(',');
    }
    if (level.layout == Layout::Lines) {
        breakLine();
    } else if (level.closing == '}' || !level.isEmpty) {
        m_out.push_back(' ');
    }
    level.isEmpty = false;
}

void JsonWriter::breakLine()
{
    m_out.push_back('\n');
    m_out.append(m_levels.size() * kIndent, ' ');
}

} // namespace trel::mediadispatch
