#pragma once

#include <QObject>
#include <QTimer>

namespace trel::desktop::week {

/// Tells when a minute of the clock in force begins, for as long as it runs.
class MinuteTimer : public QObject
{
    Q_OBJECT

public:
    explicit MinuteTimer(QObject* parent = nullptr);

    void start();
    void stop();
    bool isRunning() const { return m_timer.isActive(); }
    /// Milliseconds to the beginning of the next minute.
    static int untilNextMinute();

signals:
    void minuteBegan();

private:
    QTimer m_timer;
};

} // namespace trel::desktop::week
