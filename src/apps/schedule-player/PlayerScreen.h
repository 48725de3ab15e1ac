#pragma once

#include "deck/PlayerDeck.h"
#include "stage/ScreenShape.h"
#include "stage/SoftwareStage.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

class QWindow;

namespace trel::player {

class FrameSink;
class GlSharing;
class GlWindow;
class MonitorPlace;
class PlayerWindow;
class ScreenAwake;

/// How a screen is to look.
struct ScreenWishes
{
    /// Fills a monitor; a window of windowSize otherwise.
    bool isFullScreen = true;
    /// The monitor, by the system's name for it or by its number from 1; empty for the first.
    QString monitor;
    /// By how much the picture is to be turned clockwise: 0, 90, 180 or 270 degrees.
    int turned = 0;
    bool isMute = false;
    QImage standBy;             ///< For when there is no picture; null for black.
    QString title;              ///< Of the window, and what is said to who would blank the screen.
    QSize windowSize{960, 540}; ///< Not of a full screen.
    /// How films are drawn.
    enum class Drawing {
        Best,     ///< By OpenGL where hardware does it, and in memory elsewhere.
        OpenGl,   ///< By OpenGL wherever there is any, be it by the processor.
        Software, ///< In memory.
    };
    Drawing drawing = Drawing::Best;
};

/// A screen with all that plays on it: the window, the stage and the two decks. GUI thread only,
/// and the application has to be there by then.
///
/// Going takes up to a third of a second, whatever the decks are about. See also
/// PlaybackThreads::areLeft.
class PlayerScreen : public QObject
{
    Q_OBJECT

public:
    /// Shows the window, black.
    explicit PlayerScreen(const ScreenWishes& wishes, QObject* parent = nullptr);
    ~PlayerScreen() override;

    screen::Stage& stage() { return *m_stage; }
    screen::Deck& firstDeck() { return *m_first; }
    screen::Deck& secondDeck() { return *m_second; }

    /// Gets each picture of the screen as well; those of films only as textures where OpenGL draws
    /// them. It outlives the screen.
    void add(FrameSink& sink);
    /// How many pictures of films came too late to be shown, since the beginning.
    qint64 droppedFrames() const;
    /// Whether films are drawn by OpenGL.
    bool drawsByOpenGl() const { return m_glWindow != nullptr; }
    /// Another one once OpenGL has failed.
    const QWindow& window() const;
    /// Another picture for when there is none; null for black.
    void setStandBy(const QImage& standBy);
    /// Whether the monitor that was wished for is there. The first one is filled while it is not.
    bool hasItsMonitor() const;

signals:
    /// Somebody tried to close the window, which stays.
    void closeAsked();
    /// OpenGL has failed: all is drawn in memory from now on, in a window of its own.
    void openGlLost();
    /// The first or the second deck, 0 or 1, is about to load that, or nothing.
    void loadBegins(int deck, const QString& media);

private:
    ScreenShape shape() const;
    void showWindow();
    void drawInMemory();

    const ScreenWishes m_wishes;
    std::unique_ptr<GlSharing> m_sharing; ///< None where films are drawn in memory.
    std::unique_ptr<PlayerWindow> m_window;
    GlWindow* m_glWindow = nullptr; ///< The same; none where films are drawn in memory.
    std::unique_ptr<MonitorPlace> m_place;
    std::unique_ptr<PlayerDeck> m_first;
    std::unique_ptr<PlayerDeck> m_second;
    std::unique_ptr<SoftwareStage> m_stage;
    std::unique_ptr<ScreenAwake> m_awake;
};

} // namespace trel::player
