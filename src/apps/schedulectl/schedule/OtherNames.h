#pragma once

#include "trelprogramschedule/json/OtherNames.h"

#include <QStringList>

#include <vector>

namespace trel::console {

/// A sentence for each of the first eight, and one for how many more there are.
QStringList otherNamesTexts(const std::vector<trel::mediadispatch::OtherName>& names);

} // namespace trel::console
