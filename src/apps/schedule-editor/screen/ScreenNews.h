#pragma once

#include <QObject>

namespace trel::desktop {

class ScreenFollower;

/// Tells when the screen shows another thing than before, in words: a program, a black picture, a
/// last frame, or what was cut in. The same thing once more, or time that goes by, is no news.
class ScreenNews : public QObject
{
    Q_OBJECT

public:
    /// The follower outlives it. What the screen shows at this time is no news.
    ScreenNews(const ScreenFollower& follower, QObject* parent);

signals:
    void told(const QString& text);

private:
    QString text() const;
    void compare();

    const ScreenFollower& m_follower;
    QString m_last;
};

} // namespace trel::desktop
