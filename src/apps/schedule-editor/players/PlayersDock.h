#pragma once

#include "follow/NewestWork.h"
#include "trelprogramschedule/screens/PlayerStatus.h"

#include <QDockWidget>

#include <vector>

class QLabel;
class QScrollArea;
class QStatusBar;
class QTableView;
class QToolButton;

namespace trel::desktop {

namespace look {
struct ThemeColours;
class ProgramSignDelegate;
} // namespace look

class ScreenFollower;

namespace players {

class PlayerModel;

/// The players that follow the database and what each of them shows, as a part of the host's
/// window; where there are none, what to do about it. Hidden at first; once there are any, their
/// number stands in the status bar, and a click on it shows the list.
///
/// Players tell of themselves in files beside the database, which may lie on a server that does not
/// answer: they are read every few seconds, as long as the screen is followed, in another thread.
class PlayersDock : public QDockWidget
{
    Q_OBJECT

public:
    /// Both outlive the dock.
    PlayersDock(ScreenFollower& follower, QStatusBar& bar, QWidget* parent);
    ~PlayersDock() override;

    /// Looks again at once. To be called when another database has been opened.
    void look();
    /// The colours by which programs are known in the week.
    void setColours(const look::ThemeColours& colours);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildTable();
    void tick();
    void take(const QString& store, std::vector<trel::mediadispatch::PlayerStatus> players);
    void showPlayers();
    void tellNumber();
    void reveal();
    void retranslate();

    PlayerModel* m_model;
    QTableView* m_table;
    look::ProgramSignDelegate* m_signs;
    QLabel* m_hint;
    QScrollArea* m_hintArea; ///< In the place of the table as long as it is empty.
    QToolButton* m_number;
    follow::NewestWork m_reading;
    int m_seconds = 0; ///< Since they were looked at.
};

} // namespace players
} // namespace trel::desktop
