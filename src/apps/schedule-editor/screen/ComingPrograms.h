#pragma once

#include "look/ThemeColours.h"

#include <QWidget>

namespace trel::desktop {

class ScreenFollower;

/// The programs that come next, a line each with its time and its colour: those of the follower's
/// coming(). Takes no room while there are none.
class ComingPrograms : public QWidget
{
    Q_OBJECT

public:
    /// The follower outlives the widget.
    ComingPrograms(const ScreenFollower& follower, QWidget* parent);

    void setColours(const look::ThemeColours& colours);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showChange();
    QString momentText(int index) const;
    QString nameOf(int index) const;

    const ScreenFollower& m_follower;
    look::ThemeColours m_colours;
};

} // namespace trel::desktop
