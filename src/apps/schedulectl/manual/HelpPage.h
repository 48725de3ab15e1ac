#pragma once

#include "ManualPage.h"

namespace trel::console {

/// The manual page of a program from what it answers to --help, in the form of the toolkit's
/// parser. The rest is what stands behind the options, in the macros of man(7). Empty where the
/// help is in another form.
QString helpPage(const QString& name, const QString& purpose, const QString& help,
                 const QString& rest, const ManualPage::Package& package);

} // namespace trel::console
