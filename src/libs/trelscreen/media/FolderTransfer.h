#pragma once

#include "trelscreen/media/MediaTransfer.h"

#include <QFile>
#include <QTimer>

namespace trel::screen {

/// Fetches files from a folder, such as a share, that has them by their hash.
class FolderTransfer : public MediaTransfer
{
    Q_OBJECT

public:
    explicit FolderTransfer(QString folder, QObject* parent = nullptr);

    void start(const mediadispatch::ProgramContent& content, const QString& part) override;
    void stop() override;

private:
    void open();
    void copySome();
    void end(MediaTrouble trouble, const QString& words = {});

    QString m_folder;
    QFile m_from;
    QFile m_to;
    QTimer m_turn; ///< So that it can be stopped between two pieces.
    bool m_isOpen = false;
};

} // namespace trel::screen
