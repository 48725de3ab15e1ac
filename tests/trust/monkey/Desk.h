#pragma once

#include "EditorWindow.h"
#include "Languages.h"
#include "SaveRescue.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"

#include <QObject>
#include <QString>

/// The windows of the editor as its program puts them up, on a database in a folder that is given.
class Desk : public QObject
{
    Q_OBJECT

public:
    explicit Desk(const QString& folder);
    ~Desk() override;

    /// Runs the event loop until the program would end.
    void run();

    trel::mediadispatch::scheduleControlUI& editor() { return m_editor; }
    trel::desktop::Languages& languages() { return m_languages; }
    trel::desktop::Themes& themes() { return m_themes; }
    trel::desktop::EditorWindow& window() { return m_window; }
    QString database() const { return m_database; }
    /// The list is being filled: what it shows is not complete.
    bool isRefreshing() const { return m_isRefreshing; }

private:
    QString m_database;
    bool m_isRefreshing = false;
    trel::mediadispatch::scheduleControlUI m_editor;
    trel::desktop::Languages m_languages;
    trel::desktop::Themes m_themes;
    trel::desktop::EditorWindow m_window;
    trel::desktop::SaveRescue m_rescue;
};
