#pragma once

#include "screen/ElidedText.h"

namespace trel::desktop {

class ScreenFollower;

/// Says what the last insertion cuts off and what comes behind it, from the moment at which it is
/// taken until it is over or the next one comes. Hidden otherwise.
class CutInLine : public ElidedText
{
    Q_OBJECT

public:
    /// The follower outlives the line.
    CutInLine(const ScreenFollower& follower, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showCutIn();
    QString momentText(qint64 moment) const;

    const ScreenFollower& m_follower;
};

} // namespace trel::desktop
