#pragma once

#include <QObject>
#include <QString>

class QWindow;

namespace trel::player {

/// Keeps a window on its monitor, filling all of it: also when the monitor is pulled and comes
/// back, or is given another resolution or another place beside the others. While it is away the
/// window fills the first one there is.
class MonitorPlace : public QObject
{
    Q_OBJECT

public:
    /// The monitor is named as the system names it, such as HDMI-1, or by its number from 1; empty
    /// for the first. The window outlives it.
    MonitorPlace(QWindow& window, const QString& monitor, QObject* parent = nullptr);

    /// Whether there is such a monitor by now.
    bool isThere() const;

private:
    void follow();
    void place();

    QWindow& m_window;
    const QString m_monitor;
};

} // namespace trel::player
