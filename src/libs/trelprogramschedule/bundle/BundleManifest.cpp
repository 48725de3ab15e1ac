#include "BundleManifest.h"

#include "catalogue/ProgramContent.h"
#include "service/ScheduleRecords.h"
#include "json/JsonValues.h"

#include <new>
#include <set>

namespace trel::mediadispatch {

namespace {

using Kind = JsonValue::Kind;

constexpr std::string_view kFormatName = "trel-schedule-bundle";
constexpr int kVersion = 1;

void readHash(const JsonValue& value, std::string& hash)
{
    expect(value, Kind::Text);
    ProgramContent content;
    content.size = 0;
    content.sha256 = QByteArray::fromStdString(value.text);
    if (!content.isKnown()) {
        refuse(value,
               faultOf(FaultCode::OtherKind, QStringLiteral("hash"), QStringLiteral("otherText")));
    }
    hash = value.text;
}

void readSize(const JsonValue& value, qint64 most, qint64& size)
{
    std::int64_t number = 0;
    readValue(value, number);
    if (number <= 0 || number > most) {
        refuse(value, faultOf(FaultCode::OtherKind, QStringLiteral("size"),
                              QStringLiteral("otherNumber")));
    }
    size = number;
}

JsonValue writeSize(qint64 size)
{
    return writeValue(static_cast<std::int64_t>(size));
}

constexpr JsonMember<BundleMedia> kMediaMembers[] = {
    {"sha256", [](const BundleMedia& media) { return jsonValue(Kind::Text, media.sha256); },
     [](const JsonValue& value, BundleMedia& media) { readHash(value, media.sha256); }},
    {"size", [](const BundleMedia& media) { return writeSize(media.size); },
     [](const JsonValue& value, BundleMedia& media) {
         readSize(value, kLargestMedia, media.size);
     }},
};

JsonValue writeMedia(const BundleManifest& manifest)
{
    JsonValue array = jsonValue(Kind::Array);
    array.children.reserve(manifest.media.size());
    for (const BundleMedia& media : manifest.media) {
        array.children.push_back(writeRecord(media, kMediaMembers));
    }
    return array;
}

void readMedia(const JsonValue& array, BundleManifest& manifest)
{
    expect(array, Kind::Array);
    std::set<std::string> known;
    for (const JsonValue& child : array.children) {
        BundleMedia& media = manifest.media.emplace_back();
        readRecord(child, media, kMediaMembers);
        if (!known.insert(media.sha256).second) {
            refuse(child, faultOf(FaultCode::MemberTwice, shown(media.sha256)));
        }
    }
    // Each is that of a program, of which there are no more.
    if (manifest.media.size() > std::size_t(kInvalidProgIndex)) {
        refuse(array, faultOf(FaultCode::TooManyPrograms, kInvalidProgIndex));
    }
}

void readFormat(const JsonValue& value, BundleManifest&)
{
    expect(value, Kind::Text);
    if (value.text != kFormatName) {
        refuse(value, faultOf(FaultCode::OtherFormat, shown(value.text), shown(kFormatName)));
    }
}

void readVersion(const JsonValue& value, BundleManifest&)
{
    int version = 0;
    readValue(value, version);
    if (version > kVersion) {
        refuse(value, faultOf(FaultCode::NewerVersion, version, kVersion));
    }
    if (version < kVersion) {
        refuse(value, faultOf(FaultCode::NoSuchVersion, version));
    }
}

constexpr JsonMember<BundleManifest> kTopMembers[] = {
    {"format",
     [](const BundleManifest&) { return jsonValue(Kind::Text, std::string(kFormatName)); },
     readFormat},
    {"version", [](const BundleManifest&) { return writeValue(kVersion); }, readVersion},
    {"scheduleSize",
     [](const BundleManifest& manifest) { return writeSize(manifest.scheduleSize); },
     [](const JsonValue& value, BundleManifest& manifest) {
         readSize(value, kLargestMedia, manifest.scheduleSize);
     }},
    {"scheduleSha256",
     [](const BundleManifest& manifest) { return jsonValue(Kind::Text, manifest.scheduleSha256); },
     [](const JsonValue& value, BundleManifest& manifest) {
         readHash(value, manifest.scheduleSha256);
     }},
    {"media", writeMedia, readMedia},
};

} // namespace

QByteArray bundleEntry(const BundleMedia& media)
{
    return "media/" + QByteArray::fromStdString(media.sha256);
}

QByteArray manifestToJson(const BundleManifest& manifest)
{
    return printJson(writeRecord(manifest, kTopMembers));
}

BundleManifestFromJson manifestFromJson(const QByteArray& json)
try {
    BundleManifestFromJson read;
    const ParsedJson parsed = parseJson(json);
    read.fault = parsed.fault;
    if (read.fault) {
        return read;
    }
    try {
        expect(parsed.top, Kind::Object);
        // Of a newer version nothing else can be known.
        if (const JsonValue* const version = parsed.top.member("version")) {
            readVersion(*version, read.manifest);
        }
        readRecord(parsed.top, read.manifest, kTopMembers);
    } catch (const JsonRefusal& refusal) {
        read.manifest = {};
        read.fault = refusal.fault;
        read.place = jsonPath(parsed.top, *refusal.value);
    }
    return read;
} catch (const std::bad_alloc&) {
    return {{}, {FaultCode::NoMemory, {}}, {}};
}

} // namespace trel::mediadispatch
