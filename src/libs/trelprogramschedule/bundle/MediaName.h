#pragma once

#include "trelprogramschedule_export.h"

#include <QString>

#include <string>

namespace trel::mediadispatch {

/// The name of a file for a program that comes from elsewhere: its own name, as far as that can be
/// the name of a file on any system, with the suffix of its path where that is a plain one. What
/// could lead out of a folder, hide a file or is not seen has an underscore in its place. Never
/// empty, without a slash, not beginning with a dot, and of 180 bytes in UTF-8 at most. With a
/// mark, this stands in front of the suffix.
TRELPROGRAMSCHEDULE_EXPORT QString mediaFileName(const std::string& name, const std::string& path,
                                                 const QString& mark = {});

} // namespace trel::mediadispatch
