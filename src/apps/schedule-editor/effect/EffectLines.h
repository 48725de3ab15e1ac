#pragma once

#include <QTimer>
#include <QWidget>

namespace trel::desktop {

class ElidedText;
class ScreenFollower;

/// Since when a schedule has been in effect, from which save, and in which tasks what is saved now
/// differs from it. Follows the store, whichever program writes there. Shows nothing while nothing
/// is in effect.
class EffectLines : public QWidget
{
    Q_OBJECT

public:
    /// The follower outlives the lines.
    EffectLines(const ScreenFollower& follower, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showStart();
    /// Compares what is saved with what is in effect once the event loop has its turn.
    void compareSoon();
    void compare();

    const ScreenFollower& m_follower;
    ElidedText* m_since;
    ElidedText* m_differing;
    QTimer m_comparison;
};

} // namespace trel::desktop
