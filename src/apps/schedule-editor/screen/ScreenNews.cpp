#include "screen/ScreenNews.h"

#include "screen/ScreenFollower.h"
#include "screen/ScreenWords.h"

namespace trel::desktop {

ScreenNews::ScreenNews(const ScreenFollower& follower, QObject* parent)
    : QObject(parent)
    , m_follower(follower)
    , m_last(text())
{
    connect(&follower, &ScreenFollower::changed, this, &ScreenNews::compare);
}

QString ScreenNews::text() const
{
    const ScreenScene& now = m_follower.now();
    const QString shown = ScreenWords::shown(now);
    return now.state.isInserted() ? tr("Cut in: %1").arg(shown) : shown;
}

void ScreenNews::compare()
{
    const QString now = text();
    if (now != m_last) {
        m_last = now;
        emit told(now);
    }
}

} // namespace trel::desktop
