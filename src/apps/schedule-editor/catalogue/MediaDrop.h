#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QLabel;

namespace trel::desktop {

/// Lets media be dropped on windows, and says over a window what will be taken while they are
/// dragged over it. What nobody can import is refused.
class MediaDrop : public QObject
{
    Q_OBJECT

public:
    explicit MediaDrop(QObject* parent = nullptr);

    /// Takes what is dropped on a window, and on what in it takes nothing itself.
    void watch(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Files, folders and addresses were dropped.
    void dropped(const QStringList& paths);

private:
    void tell(QWidget& window, const QString& words);

    QPointer<QLabel> m_words; ///< Over the window that something is dragged over.
    bool m_isTaken = false;   ///< What is dragged.
};

} // namespace trel::desktop
