#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <map>

namespace trel::mediadispatch {

/// What the file of a program held when it was read, so that another file at the same path can be
/// told from it, and the same one at another path be found.
struct ProgramContent
{
    qint64 size = -1;      ///< In bytes; negative when nothing is known.
    qint64 modifiedNs = 0; ///< The file's time of change then: nanoseconds since 1970, by UTC.
    QByteArray sha256;     ///< The hash of all its bytes: 64 digits, in small letters.

    /// Whether there is a size and a hash in its form.
    bool isKnown() const
    {
        constexpr int digits = 64;
        return size >= 0 && sha256.size() == digits &&
               std::all_of(sha256.begin(), sha256.end(), [](char digit) {
                   return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
               });
    }
};

/// What is known of programs, by their index. Those of which nothing is known are not in it.
using ProgramContents = std::map<int, ProgramContent>;

/// What is known of files, by their absolute path.
using FileContents = std::map<QString, ProgramContent>;

} // namespace trel::mediadispatch
