#pragma once

#include "trelprogramschedule/store/StoreResult.h"
#include "trelscreen/ScreenSchedule.h"

#include <QObject>

namespace trel::screen {

/// Where a screen in another thread learns what it is to show: as one record whenever something
/// else is in effect, cut in, or known of the programs.
///
/// It lives in a thread of its own, so that neither a large schedule nor a slow disk holds up a
/// picture. What was told last stays true for the screen for as long as nothing else is told.
class ScreenFeed : public QObject
{
    Q_OBJECT

public:
    explicit ScreenFeed(QObject* parent = nullptr);
    ~ScreenFeed() override;

    /// To be called once each, in the thread of the feed; stop before the thread ends.
    virtual void start() = 0;
    virtual void stop() = 0;

signals:
    /// Comes once after start, whether there is anything to be read or not, and with each change.
    void changed(const trel::screen::ScreenSchedule& schedule);
    /// What is followed cannot be read. Comes again for another reason alone.
    void lost(const trel::mediadispatch::StoreResult& reason);
    /// It is read again.
    void found();
};

} // namespace trel::screen
