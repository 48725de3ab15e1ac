#pragma once

#include <QProgressBar>

namespace trel::desktop {

/// How far a play has got: a thin line without a text, from the side on which reading begins.
class PlayBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit PlayBar(QWidget* parent);

    /// In milliseconds. A play without an end has no length, and its bar stays empty.
    void setPlay(qint64 gone, qint64 length);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace trel::desktop
