#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class QWidget;

namespace trel::desktop {

/// Where the files were that the operator chose last, by their kind: the next dialog for such files
/// begins there.
class LastFolders : public QObject
{
    Q_OBJECT

public:
    /// Belongs to a window, and serves all dialogs above it.
    explicit LastFolders(QWidget& window);

    /// Those of the window that a widget stands in or above; null where it has none.
    static LastFolders* of(const QWidget* widget);

    /// The folder for a kind; empty while none of it was chosen, or when it has gone.
    QString folder(const QString& kind) const;
    /// A file of a kind was chosen, or a folder of such files. One that is no absolute path is left
    /// out.
    void remember(const QString& kind, const QString& path);
    /// A folder that was remembered before, of a kind, as it was written down: it is not looked at,
    /// as its drive may be away for now, or answer late. One that is no absolute path is left out.
    void restore(const QString& kind, const QString& folder);

    /// All that is remembered, by kinds.
    const QMap<QString, QString>& all() const { return m_folders; }

private:
    QMap<QString, QString> m_folders;
};

} // namespace trel::desktop
