#pragma once

namespace trel::mediareader {

/// Which formats are read. The libraries know hundreds, among them lists that name other files and
/// addresses, devices, and relics of old games that are hardly tested against hostile files; what
/// is not named here is not opened.
namespace formats {

/// Whether a format of the library for containers is one of them, by its name there.
bool isAccepted(const char* name);
/// Whether one of them is that of an image. Animated images run round and round, and so have no
/// length of their own either.
bool isImage(const char* name);

} // namespace formats

} // namespace trel::mediareader
