#include "TitleButton.h"

#include "BarePainting.h"
#include "Sign.h"

#include <QEvent>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStylePainter>
#include <QVariant>

namespace trel::widgets {

namespace {

constexpr int kButtonSide = 26;
constexpr int kSignSide = 16;

Sign drawnSign(TitleButton::Sign sign)
{
    switch (sign) {
    case TitleButton::Minimise:
        return Sign::Minimise;
    case TitleButton::Expand:
        return Sign::Expand;
    case TitleButton::Restore:
        return Sign::Restore;
    case TitleButton::Close:
        break;
    }
    return Sign::Close;
}

/// Draws a sign for every size and palette, so that it is sharp on every screen.
class SignEngine : public QIconEngine
{
public:
    SignEngine(TitleButton::Sign sign, const QWidget* button)
        : m_sign(drawnSign(sign))
        , m_button(button)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor color =
            signColor(m_button->palette(), QPalette::ButtonText, mode != QIcon::Disabled);
        paintSign(*painter, rect, m_sign, color);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        // The size is in pixels of the screen, and the sign in units.
        const qreal scale = qMax(1.0, qMin(size.width(), size.height()) / qreal(kSignSide));
        painter.scale(scale, scale);
        paint(&painter, QRect(QPoint(), size / scale), mode, QIcon::Off);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(*this); }

private:
    Sign m_sign;
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
    m_ownIcon = icon().cacheKey();
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

void TitleButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool hasOwnIcon = option.icon.cacheKey() == m_ownIcon;
    if (hasOwnIcon) {
        option.icon = QIcon();
    }
    painter.drawControl(QStyle::CE_PushButton, option);
    // Past the icon, which styles ask for a picture in the size of another screen.
    if (hasOwnIcon && !paintsPictureOnButton(*this, option)) {
        paintSign(painter, rect(), drawnSign(m_sign),
                  signColor(palette(), QPalette::ButtonText, isEnabled()));
    }
}

QSize TitleButton::sizeHint() const
{
    ensurePolished();
    return QSize(kButtonSide, kButtonSide);
}

} // namespace trel::widgets
