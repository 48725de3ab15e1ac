#pragma once

#include "service/ScheduleRecords.h"

#include <QtGlobal>

#include <string>

namespace trel::mediadispatch {

/// A program as a schedule that is carried elsewhere names it: with all by which it can be found
/// again in another catalogue.
struct NamedProgram
{
    int progIndex = -1;                    ///< What the entries beside it call it by.
    std::string name;                      ///< UTF-8.
    std::string path;                      ///< UTF-8: of its file, or its address without secrets.
    ProgramKind kind = ProgramKind::Other; ///< What it is made of.
    qint64 lengthMs = -1; ///< In whole milliseconds, 0 for images and live sources; negative when
                          ///< it is not known.
    qint64 size = -1;     ///< Of its file, in bytes; negative when nothing is known of it.
    std::string sha256;   ///< Of its file: 64 digits in small letters; empty when not known.
};

/// Whether all fields are the same.
inline bool operator==(const NamedProgram& a, const NamedProgram& b)
{
    return std::tie(a.progIndex, a.name, a.path, a.kind, a.lengthMs, a.size, a.sha256) ==
           std::tie(b.progIndex, b.name, b.path, b.kind, b.lengthMs, b.size, b.sha256);
}

} // namespace trel::mediadispatch
