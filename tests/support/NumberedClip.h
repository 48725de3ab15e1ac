#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

/// Real clips whose every picture tells which it is: the number of the program and that of the
/// frame stand in it as large black and white blocks, which survive coding with losses, scaling and
/// another range of colors.
namespace media {

/// What to make.
struct ClipOrder
{
    int program = 1; ///< 1 to 255.
    int frames = 50; ///< At most 65535.
    int framesPerSecond = 25;
    QSize size{320, 180}; ///< Even numbers.
    /// As libavcodec names its encoders.
    QString pictureCoder = QStringLiteral("libx264");
    /// Empty for none. The sound is a quiet tone, as long as the pictures.
    QString soundCoder;
    int framesBetweenKeys = 12;
    /// A mark in the file, as of a camera: the pictures are to be turned clockwise by 90, 180 or
    /// 270 degrees. Containers mov and mp4.
    int turned = 0;
};

/// Writes the clip, in the container that the suffix names. True when it stands on the disk.
bool makeClip(const QString& path, const ClipOrder& order);
/// Only the tone, so long, by a coder of libavcodec.
bool makeTone(const QString& path, int milliseconds, const QString& soundCoder);

/// A JPEG with a camera's mark: 6 for a picture that is to be turned clockwise by 90 degrees.
bool makeTurnedJpeg(const QString& path, const QImage& picture, int orientation);

/// What a picture of a clip tells of itself.
struct ClipMark
{
    int program = 0;
    int frame = 0; ///< From 0.

    bool operator==(const ClipMark& other) const
    {
        return program == other.program && frame == other.frame;
    }
};

/// The picture of a mark, as it stands in the clips.
QImage clipPicture(const ClipMark& mark, const QSize& size);
/// Reads a mark. The clip's picture fills the part of the image given, all of it by default; none
/// when no clip's picture, or a mixture of two, is there.
std::optional<ClipMark> readClipMark(const QImage& image, const QRectF& part = {});

} // namespace media
