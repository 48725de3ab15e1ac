#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

namespace trel::player {

/// Tells the system's manager of services how the player is, where one has started it: that it is
/// ready, what it shows, and several times within the manager's patience that it is alive. The sign
/// of life comes from the event loop that puts the pictures on the screen, so that a player whose
/// screen stands still is started again.
class ServiceManager : public QObject
{
    Q_OBJECT

public:
    explicit ServiceManager(QObject* parent = nullptr);

    void tellReady() const;
    /// One line of plain text.
    void tellStatus(const QString& status) const;
    void tellStopping() const;

private:
    QTimer m_life;
};

} // namespace trel::player
