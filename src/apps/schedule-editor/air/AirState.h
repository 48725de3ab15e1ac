#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace trel::desktop {

class DraftKeeper;
class ElidedText;
class ScreenFollower;

namespace air {

class AirLight;

/// Whether a schedule is on air and since when, whether something is unsaved and when it was saved
/// last, and what the clock shows.
class AirState : public QWidget
{
    Q_OBJECT

public:
    /// Both outlive the widget.
    AirState(ScreenFollower& follower, const DraftKeeper& drafts, QWidget* parent);

    /// To be called after each opening of a store.
    void reload();

protected:
    void changeEvent(QEvent* event) override;

private:
    void showTime();
    void showLight();
    void showSaved();

    ScreenFollower& m_follower;
    const DraftKeeper& m_drafts;
    ElidedText* m_saved;
    AirLight* m_light;
    QLabel* m_time;
    QTimer m_reading;
    qint64 m_savedAt = 0; ///< 0 where nothing was saved yet, or it is not known when.
};

} // namespace air

} // namespace trel::desktop
