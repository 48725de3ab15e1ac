#include "PlainTextButton.h"

#include <QKeySequence>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace trel::mediadispatch {

namespace {

const QLatin1Char kAmpersand('&');

} // namespace

PlainTextButton::PlainTextButton(QWidget* parent)
    : QPushButton(parent)
{}

void PlainTextButton::setPlainText(const QString& text)
{
    setText(text);
    setShortcut(QKeySequence());
    // Without a name of its own a button is read out by its text, less the ampersands.
    setAccessibleName(text.contains(kAmpersand) ? text : QString());
}

void PlainTextButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.replace(kAmpersand, QStringLiteral("&&"));
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace trel::mediadispatch
