#include "catalogue/MediaDrop.h"

#include "catalogue/DroppedMedia.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>

namespace trel::desktop {

MediaDrop::MediaDrop(QObject* parent)
    : QObject(parent)
{}

void MediaDrop::watch(QWidget& window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool MediaDrop::eventFilter(QObject* watched, QEvent* event)
{
    auto* window = qobject_cast<QWidget*>(watched);
    if (window == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::DragEnter: {
        auto* drag = static_cast<QDragEnterEvent*>(event);
        const DroppedMedia media(drag->mimeData());
        m_isTaken = !media.isEmpty();
        if (drag->mimeData()->hasUrls()) {
            tell(*window, media.words());
        }
        // What is refused is let in as well: nobody else is told when it leaves. It can be dropped
        // nowhere, as each of its moves is refused.
        drag->setDropAction(Qt::CopyAction);
        drag->setAccepted(drag->mimeData()->hasUrls());
        return true;
    }
    case QEvent::DragMove: {
        auto* drag = static_cast<QDragMoveEvent*>(event);
        drag->setDropAction(Qt::CopyAction);
        drag->setAccepted(m_isTaken);
        return true;
    }
    case QEvent::DragLeave:
        delete m_words;
        return true;
    case QEvent::Drop: {
        delete m_words;
        auto* drop = static_cast<QDropEvent*>(event);
        const DroppedMedia media(drop->mimeData());
        drop->setDropAction(Qt::CopyAction);
        drop->setAccepted(!media.isEmpty());
        if (!media.isEmpty()) {
            emit dropped(media.paths);
        }
        return true;
    }
    default:
        return false;
    }
}

void MediaDrop::tell(QWidget& window, const QString& words)
{
    constexpr int kMargin = 16;
    delete m_words;
    m_words = new QLabel(words, &window);
    m_words->setObjectName(QStringLiteral("dropWords"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setAlignment(Qt::AlignCenter);
    m_words->setWordWrap(true);
    m_words->setMargin(kMargin);
    m_words->setFrameShape(QFrame::Box);
    m_words->setAutoFillBackground(true);
    m_words->setBackgroundRole(QPalette::Highlight);
    m_words->setForegroundRole(QPalette::HighlightedText);
    // The pointer is meant for what lies below.
    m_words->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_words->resize(qMin(window.width() - 2 * kMargin, m_words->sizeHint().width()),
                    m_words->sizeHint().height());
    m_words->move((window.width() - m_words->width()) / 2,
                  window.height() - m_words->height() - 3 * kMargin);
    m_words->show();
    m_words->raise();
}

} // namespace trel::desktop
