#pragma once

#include <QFileSystemWatcher>
#include <QString>

#include <functional>

namespace trel::mediadispatch {

/// Tells when the machine is moved to another time zone. The zone stands in a file, mostly a link
/// into the zones that the system knows, which is replaced as a whole.
class ZoneWatch
{
public:
    explicit ZoneWatch(std::function<void()> changed,
                       const QString& file = QStringLiteral("/etc/localtime"));

private:
    void look();
    /// What tells one zone from another without reading it.
    QString fingerprint() const;
    void follow();

    std::function<void()> m_changed;
    QString m_file;
    QString m_seen;
    QFileSystemWatcher m_watcher;
};

} // namespace trel::mediadispatch
