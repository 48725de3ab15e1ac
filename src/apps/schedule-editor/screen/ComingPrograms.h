#pragma once

#include "access/SpokenParts.h"
#include "look/ThemeColours.h"

#include <QWidget>

namespace trel::desktop {

class ScreenFollower;

/// The programs that come next, a line each with its time and its colour: those of the follower's
/// coming(). Takes no room while there are none.
class ComingPrograms : public QWidget, public access::SpokenParts
{
    Q_OBJECT

public:
    /// The follower outlives the widget.
    ComingPrograms(const ScreenFollower& follower, QWidget* parent);

    void setColours(const look::ThemeColours& colours);

    /// A line each.
    int spokenCount() const override;
    QString spokenName(int index) const override;
    QRect spokenPlace(int index) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showChange();
    QString momentOf(int index) const;
    int topOf(int index) const;
    QString nameOf(int index) const;

    const ScreenFollower& m_follower;
    look::ThemeColours m_colours;
};

} // namespace trel::desktop
