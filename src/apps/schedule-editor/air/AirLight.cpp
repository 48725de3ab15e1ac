#include "air/AirLight.h"

#include "trelwidgets/PlainToolTip.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace trel::desktop::air {

namespace {

constexpr int kLamp = 12;
constexpr int kSpace = 6;
/// Stands out from the dark window and from the light one.
const QColor kRed(0xe0, 0x3b, 0x3b);

} // namespace

AirLight::AirLight(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("airLight"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    describe();
}

void AirLight::setOn(bool isOn)
{
    if (m_isOn != isOn) {
        m_isOn = isOn;
        describe();
        updateGeometry();
        update();
    }
}

QString AirLight::word() const
{
    return m_isOn ? tr("On air") : tr("Off air");
}

void AirLight::describe()
{
    setAccessibleName(word());
    setToolTip(trel::widgets::plainToolTip(m_isOn ? tr("A schedule is in effect.")
                                                  : tr("No schedule is in effect.")));
}

QSize AirLight::sizeHint() const
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold, this);
    return {kLamp + 3 * kSpace + metrics.horizontalAdvance(word()), metrics.height() + kSpace};
}

void AirLight::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect lamp = QStyle::visualRect(layoutDirection(), rect(),
                                          QRect(kSpace, (height() - kLamp) / 2, kLamp, kLamp));
    const QColor ring = palette().color(QPalette::PlaceholderText);
    painter.setPen(QPen(m_isOn ? kRed : ring, 2));
    painter.setBrush(m_isOn ? QBrush(kRed) : Qt::NoBrush);
    painter.drawEllipse(QRectF(lamp).adjusted(1, 1, -1, -1));
    QFont letters = font();
    letters.setBold(m_isOn);
    painter.setFont(letters);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(kLamp + 2 * kSpace, 0, 0, 0)),
        int(Qt::AlignVCenter) | int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)),
        word());
}

void AirLight::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        describe();
    }
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        updateGeometry();
        update();
    }
}

} // namespace trel::desktop::air
