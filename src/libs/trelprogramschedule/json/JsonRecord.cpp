#include "JsonRecord.h"

namespace trel::mediadispatch {

namespace {

using Kind = JsonValue::Kind;

QString nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Null:
        break;
    case Kind::Boolean:
        return QStringLiteral("true or false");
    case Kind::Number:
        return QStringLiteral("a number");
    case Kind::Text:
        return QStringLiteral("a text");
    case Kind::Array:
        return QStringLiteral("an array");
    case Kind::Object:
        return QStringLiteral("an object");
    }
    return QStringLiteral("null");
}

} // namespace

void refuse(const JsonValue& value, const QString& reason)
{
    throw JsonRefusal{&value, reason};
}

QString quoted(std::string_view utf8)
{
    return QStringLiteral("\"%1\"").arg(
        elided(QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()))));
}

void expect(const JsonValue& value, Kind kind, const QString& expected)
{
    if (value.kind != kind) {
        refuse(value,
               QStringLiteral("%1 is expected here, not %2").arg(expected, nameOf(value.kind)));
    }
}

void expect(const JsonValue& value, Kind kind)
{
    expect(value, kind, nameOf(kind));
}

void refuseMissing(const JsonValue& object, std::string_view name)
{
    refuse(object, QStringLiteral("the member %1 is missing").arg(quoted(name)));
}

JsonValue jsonValue(JsonValue::Kind kind, std::string text)
{
    return {kind, 0, {}, std::move(text), {}};
}

void addMember(JsonValue& object, std::string_view name, JsonValue value)
{
    value.name = name;
    object.children.push_back(std::move(value));
}

} // namespace trel::mediadispatch
