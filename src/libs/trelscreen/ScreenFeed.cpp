#include "ScreenFeed.h"

namespace trel::screen {

ScreenFeed::ScreenFeed(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<ScreenSchedule>();
    qRegisterMetaType<mediadispatch::StoreResult>();
}

ScreenFeed::~ScreenFeed() = default;

} // namespace trel::screen
