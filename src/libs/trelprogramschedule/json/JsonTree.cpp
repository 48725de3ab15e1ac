#include "JsonTree.h"

#include <nlohmann/json.hpp>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

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

/// Line and column, in characters, of the byte that was read last when count bytes had been.
QString positionOf(const QByteArray& json, std::size_t count)
{
    const QByteArray before = json.left(static_cast<int>(count) - 1);
    const QByteArray onLine = before.mid(before.lastIndexOf('\n') + 1);
    return QStringLiteral("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(onLine).toUcs4().size() + 1);
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

    ParsedJson take() { return {std::move(m_top), std::move(m_error)}; }

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
    bool string(string_t& value) override { return add(Kind::Text, std::move(value)); }
    bool binary(binary_t&) override { return false; } // no part of JSON as text
    bool key(string_t& name) override
    {
        m_name = std::move(name);
        return true;
    }
    bool start_object(std::size_t) override { return open(Kind::Object); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(Kind::Array); }
    bool end_array() override { return close(); }

    bool parse_error(std::size_t position, const std::string& lastRead,
                     const Json::exception& error) override
    {
        m_error = QStringLiteral("not JSON at %1: %2")
                      .arg(positionOf(m_json, position), reasonOf(error, lastRead));
        return false;
    }

private:
    bool isTooDeep() const { return m_depth > kDeepestJson; }

    JsonValue value(Kind kind, std::string text = {})
    {
        return {kind, m_line, std::move(m_name), std::move(text), {}};
    }

    bool add(Kind kind, std::string text)
    {
        if (!isTooDeep()) {
            place(value(kind, std::move(text)));
        }
        return true;
    }

    bool open(Kind kind)
    {
        ++m_depth;
        if (!isTooDeep()) {
            m_open.push_back(value(kind));
        }
        return true;
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
    QString m_error;
    std::vector<JsonValue> m_open; ///< The arrays and objects around the value that comes next.
    std::size_t m_depth = 0;       ///< How many there are, those that are too deep included.
    std::string m_name;            ///< The name of the member whose value comes next.
    int m_line = 1;
};

void print(std::string& out, const JsonValue& value, const std::string& lineStart)
{
    const bool isObject = value.kind == Kind::Object;
    if (value.kind == Kind::Text) {
        out += Json(value.text).dump();
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
                             : QLatin1Char('.') + QString::fromStdString(child.name));
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

ParsedJson parseJson(const QByteArray& json)
{
    TreeBuilder builder(json);
    builder.parse();
    return builder.take();
}

QByteArray printJson(const JsonValue& top)
{
    std::string out;
    print(out, top, "\n");
    out += '\n';
    // No terminal shows DEL, which JSON would let stand as it is; it can only stand in a text.
    return QByteArray::fromStdString(out).replace('\x7F', "\\u007f");
}

QString jsonPath(const JsonValue& top, const JsonValue& value)
{
    QString path;
    findPath(top, value, path);
    return path.startsWith(QLatin1Char('.')) ? path.mid(1) : path;
}

} // namespace trel::mediadispatch
