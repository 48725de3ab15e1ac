#pragma once

#include "Command.h"
#include "ManualPage.h"

#include <vector>

namespace trel::console {

/// The manual page of schedulectl.
QString consolePage(const std::vector<Command>& commands, const ManualPage::Package& package);

} // namespace trel::console
