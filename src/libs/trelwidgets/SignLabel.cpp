#include "SignLabel.h"

#include "BarePainting.h"
#include "Sign.h"

#include <QPainter>
#include <QVariant>

namespace trel::widgets {

namespace {

Sign signOf(const QWidget& label)
{
    const QString image = label.property("labelImage").toString();
    if (image == QLatin1String("right")) {
        return Sign::Folded;
    }
    if (image == QLatin1String("down")) {
        return Sign::Unfolded;
    }
    return image == QLatin1String("warning") ? Sign::Warning : Sign::None;
}

} // namespace

SignLabel::SignLabel(QWidget* parent)
    : QLabel(parent)
{}

void SignLabel::paintEvent(QPaintEvent* event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    if (text().isEmpty() && paintsPictureOnLabel(*this, option)) {
        QPainter painter(this);
        drawFrame(&painter);
        return;
    }
    QLabel::paintEvent(event);
    if (!text().isEmpty() || !pixmap(Qt::ReturnByValue).isNull()) {
        return;
    }
    QPainter painter(this);
    paintSign(painter, rect(), signOf(*this),
              signColor(palette(), QPalette::WindowText, isEnabled()), layoutDirection());
}

} // namespace trel::widgets
