#pragma once

#include "ui_PlanTaskWidget.h"

class QEvent;
class QObject;

namespace trel::mediadispatch {

struct PlayTask;

/// The widgets of a card but for its rows, and what can be said of them without knowing the card.
class PlanTaskForm : public Ui::PlanTaskWidget
{
public:
    void setUp(QWidget& card);

    /// Shows the period of validity; a date that does not parse leaves its editor as it is.
    void showDates(const PlayTask& task);
    void showFolded(bool isFolded);
    /// Has the bar follow the direction of the card. By itself it runs from the left.
    void followDirection(const QWidget& card);
    void translate(const PlayTask& task);
    /// Shows the tool tip of a button of the title bar at once when the pointer enters it. To be
    /// told of the events of both buttons.
    void showToolTipOnEnter(const QObject* watched, const QEvent& event);

private:
    void nameControls();
};

} // namespace trel::mediadispatch
