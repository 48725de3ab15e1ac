#include "JsonValues.h"

#include "ScheduleLimits.h"

#include <QByteArray>
#include <QTextCodec>

#include <charconv>

namespace trel::mediadispatch {

namespace {

bool isUtf8(const std::string& text)
{
    constexpr int kMibOfUtf8 = 106;
    static const QTextCodec* const codec = QTextCodec::codecForMib(kMibOfUtf8);
    QTextCodec::ConverterState state;
    codec->toUnicode(text.data(), static_cast<int>(text.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

JsonValue writeBase64(const std::string& text)
{
    return jsonValue(JsonValue::Kind::Text,
                     QByteArray::fromStdString(text).toBase64().toStdString());
}

void readBase64(const JsonValue& value, std::string& text)
{
    expect(value, JsonValue::Kind::Text);
    const auto bytes = QByteArray::fromBase64Encoding(QByteArray::fromStdString(value.text),
                                                      QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes) {
        refuse(value, {FaultCode::NotBase64, {}});
    }
    text = bytes.decoded.toStdString();
}

/// A text that is no UTF-8 could not stand in JSON; its bytes travel in an object instead.
constexpr JsonMember<std::string> kEncodedTextMembers[] = {{"base64", writeBase64, readBase64}};

} // namespace

JsonValue writeValue(int number)
{
    return jsonValue(JsonValue::Kind::Number, std::to_string(number));
}

void readValue(const JsonValue& value, int& number)
{
    expect(value, JsonValue::Kind::Number, QStringLiteral("wholeNumber"));
    const std::string& digits = value.text;
    if (digits.find_first_of(".eE") != std::string::npos) {
        refuse(value, faultOf(FaultCode::NotWholeNumber, shown(digits)));
    }
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc()) {
        refuse(value, faultOf(FaultCode::Beyond32Bits, shown(digits)));
    }
}

JsonValue writeValue(bool isTrue)
{
    return jsonValue(JsonValue::Kind::Boolean, isTrue ? "true" : "false");
}

void readValue(const JsonValue& value, bool& isTrue)
{
    expect(value, JsonValue::Kind::Boolean);
    isTrue = value.text == "true";
}

JsonValue writeValue(const std::string& text)
{
    return isUtf8(text) ? jsonValue(JsonValue::Kind::Text, text)
                        : writeRecord(text, kEncodedTextMembers);
}

void readValue(const JsonValue& value, std::string& text)
{
    if (value.kind == JsonValue::Kind::Object) {
        readRecord(value, text, kEncodedTextMembers);
    } else {
        expect(value, JsonValue::Kind::Text);
        text = value.text;
    }
    if (text.size() > kLongestText) {
        refuse(value, faultOf(FaultCode::JsonTextTooLong, text.size(), kLongestText));
    }
}

JsonValue writeValue(std::int64_t number)
{
    return jsonValue(JsonValue::Kind::Text, std::to_string(number));
}

void readValue(const JsonValue& value, std::int64_t& number)
{
    expect(value, JsonValue::Kind::Text, QStringLiteral("wholeNumberText"));
    const char* const end = value.text.data() + value.text.size();
    const auto [last, error] = std::from_chars(value.text.data(), end, number);
    if (error == std::errc::result_out_of_range) {
        refuse(value, faultOf(FaultCode::Beyond64Bits, shown(value.text)));
    }
    if (error != std::errc() || last != end) {
        refuse(value, faultOf(FaultCode::NumberTextUnreadable, shown(value.text)));
    }
}

} // namespace trel::mediadispatch
