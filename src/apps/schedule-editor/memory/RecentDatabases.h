#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QSettings;

namespace trel::desktop {

/// The databases that were open last, as a menu: paths, and addresses on servers. A remembered
/// value that is neither is left out.
class RecentDatabases : public QObject
{
    Q_OBJECT

public:
    /// Fills the menu, which can be opened only while there is something in it. Settings and menu
    /// outlive it.
    RecentDatabases(QSettings& settings, QMenu& menu, QObject* parent = nullptr);

    /// The one that was open last, if it is on a server or its file is still there; empty
    /// otherwise.
    QString last() const;
    /// A database has been opened: puts it on top.
    void add(const QString& path);

signals:
    /// The operator wants to open a database.
    void chosen(const QString& path);

private:
    QStringList paths() const;
    void fill();

    QSettings& m_settings;
    QMenu& m_menu;
};

} // namespace trel::desktop
