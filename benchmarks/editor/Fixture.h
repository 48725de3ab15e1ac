#pragma once

#include "Samples.h"

#include <memory>
#include <string>

class QWidget;

namespace bench {

/// Loads the texts of the editor and chooses English.
void loadLanguage();

enum class Look {
    Plain, ///< The toolkit's own style.
    Theme, ///< The dark theme that is shipped.
};

/// Puts a look in force for all widgets.
void setLook(Look look);

/// "100 plans, FrequencyMode"
std::string planCount(int plans, trel::mediadispatch::PlanMode mode);
/// "20,000 rows"
std::string count(int number, const char* of);

/// What a size ten times as large may cost and still be called linear: the same allowance that 3.5
/// times for three times the size is.
constexpr double linear(double growth)
{
    return growth * 3.5 / 3.0;
}

} // namespace bench
