#pragma once

#include "EditorWindow.h"
#include "Languages.h"
#include "Samples.h"
#include "look/Themes.h"
#include "scheduleControlUI.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/draft/DraftJournal.h"

#include <QTemporaryDir>

#include <vector>

namespace bench {

/// The windows of the desktop host on a store in a folder of its own. One at a time.
class HostWindows
{
public:
    HostWindows();
    ~HostWindows();
    Q_DISABLE_COPY(HostWindows)

    /// Makes a store with so many programs and tasks. The programs are files of no bytes, or live
    /// sources, which need none.
    void fill(int programs, bool areFiles, const TaskMap& tasks);
    /// Closes the store and opens it again.
    void reopen();
    /// Shows the editor with all its cards, and handles what comes of that.
    void showEditor();
    /// Shows the changes of the clocks and the week, each in a window of its own.
    void showPanels();
    trel::mediadispatch::scheduleControlUI& editor() { return m_editor; }
    /// What writes down edits that are not saved.
    trel::mediadispatch::DraftJournal& journal() const;
    trel::desktop::Languages& languages() { return m_languages; }
    trel::desktop::Themes& themes() { return m_themes; }

private:
    QString path() const { return m_folder.filePath(QStringLiteral("schedule.db")); }

    QTemporaryDir m_folder;
    trel::mediadispatch::scheduleControlUI m_editor;
    trel::desktop::Languages m_languages;
    trel::desktop::Themes m_themes;
    trel::desktop::EditorWindow m_window;
};

} // namespace bench
