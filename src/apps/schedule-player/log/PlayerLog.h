#pragma once

#include "trelscreen/ScreenLog.h"

#include <QObject>
#include <QString>

namespace trel::player {

/// Words what happens on the screen, and hands each line on without waiting for it to be written.
class PlayerLog : public QObject, public screen::ScreenLog
{
    Q_OBJECT

public:
    using QObject::QObject;

    void note(const screen::ScreenEvent& event) override;
    /// A line about something else than the screen: the store, for instance.
    void tell(const QString& what);

    /// The last fault in words and its moment; empty before the first one.
    const QString& lastFault() const { return m_lastFault; }
    mediadispatch::Instant lastFaultAt() const { return m_lastFaultAt; }

signals:
    void line(const QString& line);

private:
    QString m_lastFault;
    mediadispatch::Instant m_lastFaultAt = 0;
};

} // namespace trel::player
