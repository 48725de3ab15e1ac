#pragma once

#include <QCoreApplication>

namespace trel::desktop::week {

/// The words of the picture that no widget of its own speaks.
struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Week)
};

} // namespace trel::desktop::week
