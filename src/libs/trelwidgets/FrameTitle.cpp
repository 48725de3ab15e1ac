#include "FrameTitle.h"

#include "ElidedLabel.h"
#include "TitleButton.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QVariant>
#include <QWindow>

namespace trel::widgets {

namespace {

/// So much of a window's width stays on the screen, as something to take hold of.
constexpr int kReach = 48;

} // namespace

FrameTitle::FrameTitle(QWidget* parent)
    : QWidget(parent)
    , m_title(new ElidedLabel(this))
    , m_minimise(new TitleButton(TitleButton::Minimise, QStringLiteral("ButtonMin"), this))
    , m_scale(new TitleButton(TitleButton::Expand, QStringLiteral("ButtonScale"), this))
    , m_close(new TitleButton(TitleButton::Close, QStringLiteral("ButtonClose"), this))
{
    setObjectName(QStringLiteral("dialogTitle"));
    setProperty("style", QStringLiteral("BG4"));
    setAttribute(Qt::WA_StyledBackground);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    m_title->setObjectName(QStringLiteral("TitleLabel"));
    m_title->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_scale->hide();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addSpacing(6);
    layout->addWidget(m_title, 1);
    for (TitleButton* button : {m_minimise, m_scale, m_close}) {
        layout->addWidget(button);
    }

    connect(m_minimise, &TitleButton::clicked, this, &FrameTitle::minimiseClicked);
    connect(m_scale, &TitleButton::clicked, this, &FrameTitle::scaleClicked);
    connect(m_close, &TitleButton::clicked, this, &FrameTitle::closeClicked);
}

void FrameTitle::setTitle(const QString& title)
{
    m_title->setText(title);
}

void FrameTitle::setMinimiseVisible(bool visible)
{
    m_minimise->setVisible(visible);
}

void FrameTitle::setScaleVisible(bool visible)
{
    m_scale->setVisible(visible);
}

void FrameTitle::setExpanded(bool expanded)
{
    m_scale->setSign(expanded ? TitleButton::Restore : TitleButton::Expand);
}

void FrameTitle::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_drag = Drag{event->globalPos(), window()->pos()};
}

void FrameTitle::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_drag || !(event->buttons() & Qt::LeftButton)) {
        return;
    }
    const QPoint way = event->globalPos() - m_drag->cursor;
    if (!m_drag->moving) {
        if (way.manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        // Asked only now and not at the press: a platform that moves the window keeps the release
        // to itself, and no click could become a double click.
        if (handOverToPlatform()) {
            m_drag.reset();
            return;
        }
        m_drag->moving = true;
    }
    moveWindow(m_drag->window + way);
}

void FrameTitle::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_drag.reset();
    }
}

void FrameTitle::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_drag.reset();
    emit doubleClicked();
}

void FrameTitle::hideEvent(QHideEvent* event)
{
    m_drag.reset();
    QWidget::hideEvent(event);
}

bool FrameTitle::handOverToPlatform() const
{
    QWindow* handle = window()->windowHandle();
    return handle && handle->startSystemMove();
}

void FrameTitle::moveWindow(const QPoint& position) const
{
    // With no window manager to help, a title that left the screen could never be fetched back.
    const QRect area = window()->screen()->availableVirtualGeometry();
    QWidget* moved = window();
    moved->move(
        qBound(area.left() + kReach - moved->width(), position.x(), area.right() + 1 - kReach),
        qBound(area.top(), position.y(), area.bottom() + 1 - height()));
}

} // namespace trel::widgets
