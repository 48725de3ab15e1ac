#pragma once

#include "store/StoreContents.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

namespace trel::mediadispatch {

class StoreConnection;

/// Looks once a second whether a schedule on a server is another than at the look before, on a
/// connection of its own: for the thread of a StoreFollower, since a server can keep one waiting.
class ServerLook : public QObject
{
    Q_OBJECT

public:
    explicit ServerLook(QString store);
    ~ServerLook() override;

    // In the thread that it lives in.

    void begin();
    void end();
    /// What is there was not taken over: it is told of with the next look once more.
    void expectNothing() { m_hasState = false; }

signals:
    /// The schedule is another, or can be read again.
    void changed();

private:
    void look();

    QString m_store;
    std::unique_ptr<StoreConnection> m_connection;
    QTimer* m_round;
    bool m_hasState = false; ///< What follows is that of the look before.
    StoreRevision m_revision;
    QString m_identity;
};

} // namespace trel::mediadispatch
