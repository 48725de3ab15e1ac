#include "JsonRecord.h"

namespace trel::mediadispatch {

namespace {

using Kind = JsonValue::Kind;

} // namespace

QString jsonKindName(Kind kind)
{
    switch (kind) {
    case Kind::Null:
        break;
    case Kind::Boolean:
        return QStringLiteral("boolean");
    case Kind::Number:
        return QStringLiteral("number");
    case Kind::Text:
        return QStringLiteral("text");
    case Kind::Array:
        return QStringLiteral("array");
    case Kind::Object:
        return QStringLiteral("object");
    }
    return QStringLiteral("null");
}

void refuse(const JsonValue& value, const Fault& fault)
{
    throw JsonRefusal{&value, fault};
}

QString shown(std::string_view utf8)
{
    return elided(QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size())));
}

void expect(const JsonValue& value, Kind kind, const QString& expected)
{
    if (value.kind != kind) {
        refuse(value, faultOf(FaultCode::OtherKind, expected, jsonKindName(value.kind)));
    }
}

void expect(const JsonValue& value, Kind kind)
{
    expect(value, kind, jsonKindName(kind));
}

void refuseMissing(const JsonValue& object, std::string_view name)
{
    refuse(object, faultOf(FaultCode::MemberMissing, shown(name)));
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
