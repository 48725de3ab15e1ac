#pragma once

#include <QtGlobal>

namespace trel::mediadispatch {

/// Records of one screen by their numbers, both included.
struct AsRunNumbers
{
    qint64 first = 1;
    qint64 last = 0;

    bool isEmpty() const { return last < first; }
};

} // namespace trel::mediadispatch
