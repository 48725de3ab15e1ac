#include "screen/PlayBar.h"

#include "look/BoxPainting.h"

#include <QPainter>
#include <QStyle>

namespace trel::desktop {

namespace {

constexpr int kHeight = 6;
constexpr int kSteps = 1000;

} // namespace

PlayBar::PlayBar(QWidget* parent)
    : QProgressBar(parent)
{
    setRange(0, kSteps);
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void PlayBar::setPlay(qint64 gone, qint64 length)
{
    setValue(length <= 0 ? 0 : static_cast<int>(qBound<qint64>(0, gone * kSteps / length, kSteps)));
}

QSize PlayBar::sizeHint() const
{
    return {0, kHeight};
}

void PlayBar::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const qreal radius = height() / 2.0;
    look::paintBox(painter, rect(), palette().color(QPalette::Base),
                   palette().color(QPalette::Dark), radius);
    if (value() <= minimum()) {
        return;
    }
    QRect done = rect();
    done.setWidth(qMax(height(), width() * value() / maximum()));
    const QColor highlight = palette().color(QPalette::Highlight);
    look::paintBox(painter, QStyle::visualRect(layoutDirection(), rect(), done), highlight,
                   highlight, radius);
}

} // namespace trel::desktop
