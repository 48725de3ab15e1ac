#include "SignButton.h"

#include "BarePainting.h"
#include "Sign.h"

#include <QPainter>
#include <QVariant>

namespace trel::widgets {

namespace {

struct NamedSign
{
    const char* image;
    Sign sign;
};

constexpr NamedSign kSigns[] = {
    {"add", Sign::Plus},         {"addPlan", Sign::Plus},          {"projectSaveAs", Sign::Copy},
    {"delete", Sign::Delete},    {"turnNext", Sign::Next},         {"moveUp", Sign::Up},
    {"moveDown", Sign::Down},    {"close", Sign::Close},           {"ButtonMin", Sign::Minimise},
    {"ButtonMax", Sign::Expand}, {"ButtonRestore", Sign::Restore},
};

Sign signOf(const QWidget& button)
{
    const QString property = button.property("imageBtn").toString();
    const QString image = property.isEmpty() ? button.objectName() : property;
    for (const NamedSign& named : kSigns) {
        if (image == QLatin1String(named.image)) {
            return named.sign;
        }
    }
    return Sign::None;
}

} // namespace

SignButton::SignButton(QWidget* parent)
    : QPushButton(parent)
{}

void SignButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (!text().isEmpty() || !icon().isNull()) {
        return;
    }
    const Sign sign = signOf(*this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (sign == Sign::None || paintsPictureOnButton(*this, option)) {
        return;
    }
    QPainter painter(this);
    paintSign(painter, rect(), sign, signColor(palette(), QPalette::ButtonText, isEnabled()),
              layoutDirection());
}

} // namespace trel::widgets
