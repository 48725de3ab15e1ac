#include "FolderTransfer.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// As much as is copied in one turn of the event loop.
constexpr qint64 kPiece = 1024LL * 1024;

} // namespace

FolderTransfer::FolderTransfer(QString folder, QObject* parent)
    : MediaTransfer(parent)
    , m_folder(std::move(folder))
    , m_turn(this)
{
    connect(&m_turn, &QTimer::timeout, this, [this] {
        if (m_isOpen) {
            copySome();
        } else {
            open();
        }
    });
}

void FolderTransfer::start(const ProgramContent& content, const QString& part)
{
    stop();
    m_from.setFileName(m_folder + QLatin1Char('/') + QString::fromLatin1(content.sha256));
    m_to.setFileName(part);
    m_turn.start(0);
}

void FolderTransfer::stop()
{
    m_turn.stop();
    m_isOpen = false;
    m_from.close();
    m_to.close();
}

void FolderTransfer::open()
{
    if (!m_from.exists()) {
        end(MediaTrouble::NotThere);
        return;
    }
    const bool isReadable = m_from.open(QIODevice::ReadOnly);
    if (isReadable && !m_to.open(QIODevice::WriteOnly | QIODevice::Append)) {
        end(MediaTrouble::NotWritable, m_to.errorString());
        return;
    }
    m_isOpen = isReadable && m_from.seek(m_to.size());
    if (!m_isOpen) {
        end(MediaTrouble::Broken, m_from.errorString());
    }
}

void FolderTransfer::copySome()
{
    const QByteArray piece = m_from.read(kPiece);
    if (piece.isEmpty()) {
        const bool isWhole = m_from.error() == QFileDevice::NoError;
        end(isWhole ? MediaTrouble::None : MediaTrouble::Broken,
            isWhole ? QString() : m_from.errorString());
        return;
    }
    if (m_to.write(piece) != piece.size() || !m_to.flush()) {
        end(m_to.error() == QFileDevice::ResourceError ? MediaTrouble::NoRoom
                                                       : MediaTrouble::NotWritable,
            m_to.errorString());
    }
}

void FolderTransfer::end(MediaTrouble trouble, const QString& words)
{
    stop();
    emit ended(trouble, words);
}

} // namespace trel::screen
