#include "TitleButton.h"

#include <QEvent>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QVariant>

namespace trel::widgets {

namespace {

constexpr int kButtonSide = 26;
constexpr int kSignSide = 16;

/// Draws a sign for every size and palette, so that it is sharp on every screen.
class SignEngine : public QIconEngine
{
public:
    SignEngine(TitleButton::Sign sign, const QWidget* button)
        : m_sign(sign)
        , m_button(button)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette::ColorGroup group =
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const qreal unit = qMin(rect.width(), rect.height()) / qreal(kSignSide);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(unit, unit);
        painter->setPen(QPen(m_button->palette().color(group, QPalette::ButtonText), 1.3));
        painter->setBrush(Qt::NoBrush);
        drawSign(painter);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(*this); }

private:
    /// In a square of 16 units with its origin in the middle.
    void drawSign(QPainter* painter) const
    {
        switch (m_sign) {
        case TitleButton::Minimise:
            painter->drawLine(QPointF(-4.5, 0.0), QPointF(4.5, 0.0));
            break;
        case TitleButton::Expand:
            painter->drawRect(QRectF(-4.5, -4.5, 9.0, 9.0));
            break;
        case TitleButton::Restore:
            painter->drawRect(QRectF(-4.5, -2.5, 7.0, 7.0));
            painter->drawPolyline(
                QPolygonF({{-2.0, -2.5}, {-2.0, -4.8}, {4.8, -4.8}, {4.8, 2.0}, {2.5, 2.0}}));
            break;
        case TitleButton::Close:
            painter->drawLine(QPointF(-4.2, -4.2), QPointF(4.2, 4.2));
            painter->drawLine(QPointF(-4.2, 4.2), QPointF(4.2, -4.2));
            break;
        }
    }

    TitleButton::Sign m_sign;
    const QWidget* m_button; // Owns the icon, and so outlives it.
};

struct SignWords
{
    QString image;
    QString spoken;
};

SignWords wordsOf(TitleButton::Sign sign)
{
    switch (sign) {
    case TitleButton::Minimise:
        return {QStringLiteral("minimise"), TitleButton::tr("Minimize")};
    case TitleButton::Expand:
        return {QStringLiteral("maximise"), TitleButton::tr("Maximize")};
    case TitleButton::Restore:
        return {QStringLiteral("restore"), TitleButton::tr("Restore")};
    case TitleButton::Close:
        break;
    }
    return {QStringLiteral("close"), TitleButton::tr("Close")};
}

} // namespace

TitleButton::TitleButton(Sign sign, const QString& objectName, QWidget* parent)
    : QPushButton(parent)
    , m_sign(sign)
{
    setObjectName(objectName);
    setFocusPolicy(Qt::NoFocus);
    setAutoDefault(false);
    setFlat(true);
    setIconSize(QSize(kSignSide, kSignSide));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSign(sign);
}

void TitleButton::setSign(Sign sign)
{
    m_sign = sign;
    const SignWords words = wordsOf(sign);
    setIcon(QIcon(new SignEngine(sign, this)));
    setAccessibleName(words.spoken);
    setProperty("imageBtn", words.image);
    // A style sheet looks at a property only when the widget is polished.
    style()->unpolish(this);
    style()->polish(this);
}

void TitleButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(wordsOf(m_sign).spoken);
    }
    QPushButton::changeEvent(event);
}

QSize TitleButton::sizeHint() const
{
    ensurePolished();
    return QSize(kButtonSide, kButtonSide);
}

} // namespace trel::widgets
