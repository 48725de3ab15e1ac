#pragma once

#include "trelscreen/ScreenLog.h"

#include <QObject>
#include <QString>

#include <optional>

namespace trel::player {

/// Words what happens on the screen, and hands each line on without waiting for it to be written.
///
/// A play that comes back after a fault is told of once it has lasted: one that breaks again and
/// again fills no log.
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
    void write(const screen::ScreenEvent& event);

    std::optional<screen::ScreenEvent> m_again; ///< Shown again, and may break again at once.
    QString m_lastFault;
    mediadispatch::Instant m_lastFaultAt = 0;
};

} // namespace trel::player
