#include "WindowFrame.h"

#include "FrameTitle.h"

#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QVBoxLayout>

namespace trel::widgets {

namespace {

/// Between background and text, so that the border stands out on light and on dark windows, and
/// also where one window lies over another of the same colour.
QColor borderColor(const QPalette& palette)
{
    const QColor& ground = palette.color(QPalette::Window);
    const QColor& text = palette.color(QPalette::WindowText);
    const auto mix = [](int first, int second) { return (first * 3 + second * 2) / 5; };
    return QColor(mix(ground.red(), text.red()), mix(ground.green(), text.green()),
                  mix(ground.blue(), text.blue()));
}

} // namespace

Qt::WindowFlags WindowFrame::windowFlags()
{
    return Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
}

WindowFrame::WindowFrame(QDialog* dialog)
    : QFrame(dialog)
    , m_title(new FrameTitle(this))
    , m_client(new QWidget(this))
{
    setObjectName(QStringLiteral("dialogFrame"));
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Plain);
    m_client->setObjectName(QStringLiteral("dialogCenter"));

    auto* inner = new QVBoxLayout(this);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(0);
    inner->addWidget(m_title);
    inner->addWidget(m_client, 1);

    auto* outer = new QVBoxLayout(dialog);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(this);

    connect(dialog, &QWidget::windowTitleChanged, m_title, &FrameTitle::setTitle);
    connect(m_title, &FrameTitle::closeClicked, dialog, &QWidget::close);
}

void WindowFrame::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    option.palette.setColor(QPalette::WindowText, borderColor(palette()));
    painter.drawControl(QStyle::CE_ShapedFrame, option);
}

} // namespace trel::widgets
