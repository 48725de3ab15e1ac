#pragma once

#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QObject>
#include <QString>

namespace trel::player {

/// Writes what the player tells of itself beside the store, in the thread that it lives in.
class PlayerStatusWriter : public QObject
{
    Q_OBJECT

public:
    explicit PlayerStatusWriter(const QString& store);

    void write(const trel::mediadispatch::PlayerStatus& status);
    void remove(const QString& screen);

signals:
    /// It cannot be written, as a sentence. Comes again for another reason alone, or when it could
    /// be written in between.
    void failed(const QString& reason);

private:
    mediadispatch::PlayerStatusFolder m_folder;
    QString m_reason;
};

} // namespace trel::player
