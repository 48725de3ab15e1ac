#pragma once

#include <QString>

/// Small real media files of a known length, for tests. Each call writes one file and returns true
/// when it stands on the disk.
namespace media {

/// Silence of this many milliseconds, to the sample.
bool makeWav(const QString& path, int milliseconds);

/// Frames of an MP3 stream, 44.1 kHz, without a head that states their number; 1152 samples each.
/// The cover is a picture that travels in front of the sound.
bool makeMp3(const QString& path, int frames, bool withCover = false);
/// How long so many frames of makeMp3 play, in milliseconds.
double mp3Length(int frames);

/// Pictures in the container that the suffix names (avi, mov), so many at this rate a second.
bool makeVideo(const QString& path, int frames, int framesPerSecond);

/// A picture in the format that the suffix names (png, jpg, bmp).
bool makeImage(const QString& path);

/// A square of noise as a JPEG file, which takes about as many bytes as it has dots.
bool makePhotograph(const QString& path, int side);

/// Bytes that are no media.
bool makeText(const QString& path);

} // namespace media
