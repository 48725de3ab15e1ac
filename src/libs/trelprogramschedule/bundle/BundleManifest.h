#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <string>
#include <vector>

namespace trel::mediadispatch {

/// A media file in a bundle.
struct BundleMedia
{
    std::string sha256; ///< 64 digits in small letters.
    qint64 size = -1;   ///< In bytes, above zero.
};

/// What a bundle says of itself in its first entry: what comes behind it, in this order.
struct BundleManifest
{
    qint64 scheduleSize = -1;       ///< In bytes.
    std::string scheduleSha256;     ///< 64 digits in small letters.
    std::vector<BundleMedia> media; ///< No two with the same hash.
};

/// A manifest, or why it could not be read.
struct BundleManifestFromJson
{
    BundleManifest manifest;
    Fault fault;   ///< None on success.
    QString place; ///< Such as "media[2].size"; may be empty.
};

// The entries of the archive. All are plain ASCII.

inline const QByteArray kBundleManifest = QByteArrayLiteral("bundle.json");
inline const QByteArray kBundleSchedule = QByteArrayLiteral("schedule.json");
/// The entry of a media file.
TRELPROGRAMSCHEDULE_EXPORT QByteArray bundleEntry(const BundleMedia& media);

/// More than a manifest of as many media as there are numbers for programs.
constexpr qint64 kLargestManifest = 16 * 1024 * 1024;
/// In bytes: more than anybody plays from one file.
constexpr qint64 kLargestMedia = qint64(1) << 43;

/// In JSON. The same manifest always gives the same bytes.
QByteArray manifestToJson(const BundleManifest& manifest);
/// Reads all or nothing; what it does not know is an error.
BundleManifestFromJson manifestFromJson(const QByteArray& json);

} // namespace trel::mediadispatch
