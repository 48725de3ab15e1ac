#include "FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace bench {

namespace {

/// Sees the first painting of a widget.
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_isPainted = m_isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    bool isPainted() const { return m_isPainted; }

private:
    bool m_isPainted = false;
};

} // namespace

void waitForPaint(QWidget& window)
{
    PaintWatch watch;
    window.installEventFilter(&watch);
    // Painting is not held up by what else there is to do, so the loop ends with it done.
    while (!watch.isPainted()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void reportStart()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    std::printf("%ld.%09ld\n", static_cast<long>(time.tv_sec), static_cast<long>(time.tv_nsec));
    std::fflush(stdout);
    std::_Exit(0);
}

} // namespace bench
