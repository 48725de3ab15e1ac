#pragma once

#include <QObject>

class QMainWindow;
class QSettings;

namespace trel::desktop {

class LastFolders;

namespace week {
class WeekView;
}

/// What the operator has made of the window, from one start of the program to the next: its size
/// and place, where its panels are, the widths of the columns of its tables, the order of the
/// catalogue and its filter, how high an hour of its week is, and the folders of the files that
/// were chosen last. Each is remembered by the name of its widget. A value that is damaged, or of
/// another program, is as good as none; without a size the window is no larger than the screen, and
/// with that of a screen that has gone it is on one that there is.
class RememberedWindow : public QObject
{
    Q_OBJECT

public:
    /// Gives the window what is remembered, and lets those above it remember; to be made before it
    /// is shown, when all parts stand in it. What they are like is written down when the window
    /// closes and when the program ends. Both outlive it.
    RememberedWindow(QSettings& settings, QMainWindow& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restore();
    void restoreZoom(week::WeekView& view) const;
    void restoreFolders(LastFolders& folders) const;
    void save();

    QSettings& m_settings;
    QMainWindow& m_window;
};

} // namespace trel::desktop
