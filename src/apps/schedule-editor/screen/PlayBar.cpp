#include "screen/PlayBar.h"

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
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal radius = height() / 2.0;
    painter.setBrush(palette().color(QPalette::Mid));
    painter.drawRoundedRect(rect(), radius, radius);
    if (value() <= minimum()) {
        return;
    }
    QRect done = rect();
    done.setWidth(qMax(height(), width() * value() / maximum()));
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(QStyle::visualRect(layoutDirection(), rect(), done), radius, radius);
}

} // namespace trel::desktop
