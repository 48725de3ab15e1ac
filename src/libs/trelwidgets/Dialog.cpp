#include "trelwidgets/Dialog.h"

#include "FrameTitle.h"
#include "LookFollower.h"
#include "WindowFrame.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPointer>
#include <QScreen>

#include <optional>

namespace trel::widgets {

namespace {

struct ScaleSwitch
{
    QSize compact;
    QSize expanded;
    bool isExpanded = false;
};

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isWithControlAlone(const QKeyEvent& event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
}

/// A cell editor hands in its value when it loses the focus.
void commitOpenEditor(QWidget* window)
{
    const QPointer<QWidget> focused = window->focusWidget();
    if (!focused) {
        return;
    }
    focused->clearFocus();
    if (focused && focused->isVisible()) {
        focused->setFocus();
    }
}

void resizeOnScreen(QWidget* window, const QSize& wanted)
{
    const QRect area = window->screen()->availableGeometry();
    const QSize size = wanted.boundedTo(area.size());
    if (window->minimumSize() == window->maximumSize()) {
        window->setFixedSize(size);
    } else {
        window->resize(size);
    }
    if (!window->isVisible()) {
        return;
    }
    QRect placed(window->pos(), size);
    placed.moveBottom(qMin(placed.bottom(), area.bottom()));
    placed.moveRight(qMin(placed.right(), area.right()));
    placed.moveTop(qMax(placed.top(), area.top()));
    placed.moveLeft(qMax(placed.left(), area.left()));
    window->move(placed.topLeft());
}

/// The window that the whole chain of dialogs stands on.
QWidget* bottomWindow(QWidget* window)
{
    while (window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    return window;
}

} // namespace

class Dialog::Private
{
public:
    explicit Private(Dialog* dialog)
        : q(dialog)
        , frame(new WindowFrame(dialog))
        , look(*dialog)
    {}

    void switchScale()
    {
        if (scale) {
            setExpanded(!scale->isExpanded);
        }
    }

    void setExpanded(bool expanded)
    {
        scale->isExpanded = expanded;
        frame->title()->setExpanded(expanded);
        resizeOnScreen(q, expanded ? scale->expanded : scale->compact);
    }

    Dialog* q;
    WindowFrame* frame;
    LookFollower look;
    std::optional<ScaleSwitch> scale;
    bool acceptsByKey = false;
};

Dialog::Dialog(QWidget* parent)
    : QDialog(parent, WindowFrame::windowFlags())
    , d(std::make_unique<Private>(this))
{
    FrameTitle* title = d->frame->title();
    connect(title, &FrameTitle::minimiseClicked, this,
            [this] { bottomWindow(this)->showMinimized(); });
    connect(title, &FrameTitle::scaleClicked, this, [this] { d->switchScale(); });
    connect(title, &FrameTitle::doubleClicked, this, [this] { d->switchScale(); });
}

Dialog::~Dialog() = default;

QWidget* Dialog::dialogWidget() const
{
    return d->frame ? d->frame->client() : nullptr;
}

void Dialog::setTitle(const QString& title)
{
    setWindowTitle(title);
}

void Dialog::setScaleSwitch(const QSize& compact, const QSize& expanded)
{
    if (!d->frame) {
        return;
    }
    d->scale = ScaleSwitch{compact, expanded};
    d->frame->title()->setScaleVisible(true);
    d->setExpanded(false);
}

void Dialog::setAcceptsByKey(bool accepts)
{
    d->acceptsByKey = accepts;
}

bool Dialog::acceptsByKey() const
{
    return d->acceptsByKey;
}

void Dialog::dismantle()
{
    if (!d->frame) {
        return;
    }
    hide();
    destroy();
    d->frame->deleteLater();
    d->frame = nullptr;
    layout()->deleteLater();
}

void Dialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    // The frame is part of what is made first.
    if (d) {
        d->look.follow(*event);
    }
}

void Dialog::keyPressEvent(QKeyEvent* event)
{
    if (!isReturn(*event)) {
        QDialog::keyPressEvent(event);
        return;
    }
    const bool accepts = d->acceptsByKey && isWithControlAlone(*event);
    event->setAccepted(accepts);
    if (accepts && !event->isAutoRepeat()) {
        commitOpenEditor(this);
        emit signalAccept();
    }
}

} // namespace trel::widgets
