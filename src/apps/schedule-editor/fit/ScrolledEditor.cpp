#include "fit/ScrolledEditor.h"

#include "trelwidgets/Dialog.h"

#include <QEvent>
#include <QLayout>
#include <QLayoutItem>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include <memory>

namespace trel::desktop::fit {

namespace {

bool fits(const QSize& size, const QSize& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

} // namespace

ScrolledEditor::ScrolledEditor(trel::widgets::Dialog& dialog)
    : QObject(&dialog)
    , m_dialog(dialog)
{
    dialog.installEventFilter(this);
}

ScrolledEditor::~ScrolledEditor() = default;

bool ScrolledEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_dialog && event->type() == QEvent::Show && !event->spontaneous()) {
        fit();
    }
    return QObject::eventFilter(watched, event);
}

void ScrolledEditor::fit()
{
    const QSize room = m_dialog.screen()->availableGeometry().size();
    if (m_area == nullptr) {
        m_whole = m_dialog.sizeHint();
        if (fits(m_whole, room)) {
            return;
        }
        putIntoArea();
    }
    m_dialog.resize(wantedIn(room).boundedTo(room));
}

void ScrolledEditor::putIntoArea()
{
    QLayout& layout = *m_dialog.dialogWidget()->layout();
    QWidget* const content = layout.itemAt(0)->widget();
    m_area = new QScrollArea(m_dialog.dialogWidget());
    m_area->setObjectName(QStringLiteral("editorArea"));
    m_area->setFrameShape(QFrame::NoFrame);
    // Keys go to what is in it, and it follows the focus.
    m_area->setFocusPolicy(Qt::NoFocus);
    const std::unique_ptr<QLayoutItem> former(layout.replaceWidget(content, m_area));
    m_area->setWidget(content);
    // The ground is that of the dialog, as it was before.
    content->setAutoFillBackground(false);
    m_area->viewport()->setAutoFillBackground(false);
    content->show();
    m_area->show();
    renewLayouts();
}

/// From the inside out: the dialog may become smaller only once all of them know that they can.
void ScrolledEditor::renewLayouts() const
{
    for (QWidget* widget = m_dialog.dialogWidget(); widget != nullptr;
         widget = widget == &m_dialog ? nullptr : widget->parentWidget()) {
        if (QLayout* const layout = widget->layout()) {
            layout->activate();
        }
    }
}

/// A scroll bar takes its room across the other direction.
QSize ScrolledEditor::wantedIn(const QSize& room) const
{
    const int bar = m_dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_area);
    return m_whole + QSize(m_whole.height() > room.height() ? bar : 0,
                           m_whole.width() > room.width() ? bar : 0);
}

} // namespace trel::desktop::fit
