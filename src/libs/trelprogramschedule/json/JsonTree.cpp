#include "JsonTree.h"

#include "ScheduleLimits.h"

#include <nlohmann/json.hpp>

#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace trel::mediadispatch {

namespace {

using Json = nlohmann::json;
using Kind = JsonValue::Kind;

/// Goes through the bytes and counts the line of the last one taken, which the parser keeps to
/// itself.
class LineCounter
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineCounter(const char* at, int& line)
        : m_at(at)
        , m_line(&line)
    {}

    reference operator*() const { return *m_at; }
    LineCounter& operator++()
    {
        // A line feed counts once the parser goes on behind it: it looks one byte ahead to see a
        // number end.
        *m_line += m_wasLineFeed ? 1 : 0;
        m_wasLineFeed = *m_at++ == '\n';
        return *this;
    }
    bool operator==(const LineCounter& other) const { return m_at == other.m_at; }
    bool operator!=(const LineCounter& other) const { return m_at != other.m_at; }

private:
    const char* m_at;
    int* m_line;
    bool m_wasLineFeed = false;
};

/// Why a text is no JSON, in the parser's words without its own name and numbers of errors, and
/// without what it read last, which may be of any length.
QString reasonOf(const Json::exception& error, const std::string& lastRead)
{
    std::string reason = error.what();
    for (const char* const lead : {"; last read: '", " parsing '"}) {
        const std::string quotation = lead + lastRead + '\'';
        if (const std::size_t at = reason.find(quotation); at != std::string::npos) {
            reason.erase(at, quotation.size());
        }
    }
    static const QRegularExpression preamble(
        QStringLiteral(R"(^\[[^]]*\] (parse error at line \d+, column \d+: )?)"));
    return QString::fromStdString(reason).remove(preamble);
}

/// A fault at the byte that was read last when count bytes had been, with its column in characters.
Fault notJson(const QByteArray& json, std::size_t count, const QString& reason)
{
    const QByteArray before = json.left(static_cast<int>(count) - 1);
    const QByteArray onLine = before.mid(before.lastIndexOf('\n') + 1);
    return faultOf(FaultCode::NotJson, before.count('\n') + 1,
                   QString::fromUtf8(onLine).toUcs4().size() + 1, reason);
}

/// Builds the tree from what the parser meets.
class TreeBuilder final : public nlohmann::json_sax<Json>
{
public:
    explicit TreeBuilder(const QByteArray& json)
        : m_json(json)
    {}

    bool parse()
    {
        const char* const begin = m_json.constData();
        return Json::sax_parse(LineCounter(begin, m_line),
                               LineCounter(begin + m_json.size(), m_line), this);
    }

    ParsedJson take() { return {std::move(m_top), std::move(m_fault)}; }

    bool null() override { return add(Kind::Null, "null"); }
    bool boolean(bool value) override { return add(Kind::Boolean, value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override
    {
        return add(Kind::Number, std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override
    {
        return add(Kind::Number, std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& written) override
    {
        return add(Kind::Number, written);
    }
    bool string(string_t& value) override
    {
        return expectLength(value, FaultCode::JsonStringTooLong) &&
               add(Kind::Text, std::move(value));
    }
    bool binary(binary_t&) override { return false; } // no part of JSON as text
    bool key(string_t& name) override
    {
        m_name = std::move(name);
        return expectLength(m_name, FaultCode::JsonNameTooLong);
    }
    bool start_object(std::size_t) override { return open(Kind::Object); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Kind::Array); }
    bool end_array() override { return close(); }

    bool parse_error(std::size_t position, const std::string& lastRead,
                     const Json::exception& error) override
    {
        m_fault = notJson(m_json, position, reasonOf(error, lastRead));
        return false;
    }

private:
    bool isTooDeep() const { return m_depth > kDeepestJson; }

    bool expectLength(const std::string& text, FaultCode excess)
    {
        // In Base64, a text takes four bytes for three.
        constexpr std::size_t most = kLongestText / 3 * 4 + 4;
        if (text.size() > most) {
            m_fault = faultOf(excess, m_line, most);
        }
        return !m_fault;
    }

    bool expectRoom()
    {
        if (++m_count > kMostJsonValues) {
            m_fault = faultOf(FaultCode::JsonTooManyValues, kMostJsonValues);
        }
        return !m_fault;
    }

    JsonValue value(Kind kind, std::string text = {})
    {
        return {kind, m_line, std::move(m_name), std::move(text), {}};
    }

    bool add(Kind kind, std::string text)
    {
        if (!isTooDeep()) {
            place(value(kind, std::move(text)));
        }
        return expectRoom();
    }

    bool open(Kind kind)
    {
        ++m_depth;
        if (!isTooDeep()) {
            m_open.push_back(value(kind));
        }
        return expectRoom();
    }

    bool close()
    {
        if (!isTooDeep()) {
            JsonValue closed = std::move(m_open.back());
            m_open.pop_back();
            place(std::move(closed));
        }
        --m_depth;
        return true;
    }

    void place(JsonValue value)
    {
        if (m_open.empty()) {
            m_top = std::move(value);
        } else {
            m_open.back().children.push_back(std::move(value));
        }
    }

    const QByteArray& m_json;
    JsonValue m_top;
    Fault m_fault;
    std::vector<JsonValue> m_open; ///< The arrays and objects around the value that comes next.
    std::size_t m_count = 0;       ///< Of all values so far.
    std::size_t m_depth = 0;       ///< How many there are, those that are too deep included.
    std::string m_name;            ///< The name of the member whose value comes next.
    int m_line = 1;
};

/// The bytes with which the characters begin that a terminal would obey: DEL, the controls above
/// it, separators of lines, and the marks that turn the direction of writing around.
constexpr std::string_view kSuspects("\x7F\xC2\xD8\xE2");

bool isObeyed(char32_t character)
{
    return (character >= 0x7F && character <= 0x9F) || character == 0x61C || character == 0x200E ||
           character == 0x200F || (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

/// The character that begins at a suspect byte, and its length in bytes.
std::pair<char32_t, std::size_t> characterAt(const std::string& text, std::size_t at)
{
    const auto part = [&](std::size_t offset, unsigned mask) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[at + offset]) & mask);
    };
    if (text[at] == '\x7F') {
        return {0x7F, 1};
    }
    if (text[at] == '\xE2') {
        return {part(0, 0x0F) << 12 | part(1, 0x3F) << 6 | part(2, 0x3F), 3};
    }
    return {part(0, 0x1F) << 6 | part(1, 0x3F), 2};
}

/// A text in quotation marks. What a terminal would obey is written by its number.
std::string quotedText(const std::string& text)
{
    const std::string whole = Json(text).dump();
    std::string quoted;
    std::size_t begin = 0;
    for (std::size_t at = whole.find_first_of(kSuspects); at != std::string::npos;
         at = whole.find_first_of(kSuspects, at)) {
        const auto [character, size] = characterAt(whole, at);
        if (isObeyed(character)) {
            char number[8] = {};
            std::snprintf(number, sizeof number, "\\u%04x", static_cast<unsigned>(character));
            quoted.append(whole, begin, at - begin).append(number);
            begin = at + size;
        }
        at += size;
    }
    return quoted.append(whole, begin, std::string::npos);
}

void print(std::string& out, const JsonValue& value, const std::string& lineStart)
{
    const bool isObject = value.kind == Kind::Object;
    if (value.kind == Kind::Text) {
        out += quotedText(value.text);
        return;
    }
    if (!isObject && value.kind != Kind::Array) {
        out += value.text;
        return;
    }
    out += isObject ? '{' : '[';
    if (!value.children.empty()) {
        const auto isArray = [](const JsonValue& child) { return child.kind == Kind::Array; };
        const bool onOneLine =
            isObject && std::none_of(value.children.begin(), value.children.end(), isArray);
        const std::string childStart = onOneLine ? " " : lineStart + "  ";
        const char* separator = "";
        for (const JsonValue& child : value.children) {
            out.append(separator).append(childStart);
            if (isObject) {
                out.append(1, '"').append(child.name).append("\": ");
            }
            print(out, child, childStart);
            separator = ",";
        }
        out += onOneLine ? " " : lineStart;
    }
    out += isObject ? '}' : ']';
}

bool findPath(const JsonValue& from, const JsonValue& value, QString& path)
{
    if (&from == &value) {
        return true;
    }
    for (std::size_t at = 0; at < from.children.size(); ++at) {
        const JsonValue& child = from.children[at];
        if (findPath(child, value, path)) {
            path.prepend(from.kind == Kind::Array
                             ? QStringLiteral("[%1]").arg(at)
                             : QLatin1Char('.') + elided(QString::fromStdString(child.name)));
            return true;
        }
    }
    return false;
}

} // namespace

const JsonValue* JsonValue::member(std::string_view memberName) const
{
    const auto found =
        std::find_if(children.begin(), children.end(),
                     [memberName](const JsonValue& child) { return child.name == memberName; });
    return kind == Kind::Object && found != children.end() ? &*found : nullptr;
}

QString elided(const QString& text)
{
    constexpr int longest = 60;
    return text.size() <= longest ? text : text.left(longest - 1) + QChar(0x2026);
}

ParsedJson parseJson(const QByteArray& json)
{
    if (json.size() > kLargestJson) {
        return {{}, faultOf(FaultCode::JsonTooLarge, kLargestJson)};
    }
    TreeBuilder builder(json);
    builder.parse();
    return builder.take();
}

QByteArray printJson(const JsonValue& top)
{
    std::string out;
    print(out, top, "\n");
    out += '\n';
    return QByteArray::fromStdString(out);
}

QString jsonPath(const JsonValue& top, const JsonValue& value)
{
    QString path;
    findPath(top, value, path);
    return path.startsWith(QLatin1Char('.')) ? path.mid(1) : path;
}

} // namespace trel::mediadispatch
