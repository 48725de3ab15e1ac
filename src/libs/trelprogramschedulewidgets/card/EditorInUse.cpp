#include "EditorInUse.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLayout>
#include <QPointer>

namespace trel::mediadispatch {

namespace {

/// How many signals are being answered inside each other, and what is kept until they have
/// returned.
struct InUse
{
    int signalCount = 0;
    QPointer<QWidget> kept;
};

InUse& inUse()
{
    static InUse state;
    return state;
}

void keep(QObject& child, QWidget& holder)
{
    if (!child.isWidgetType()) {
        child.setParent(&holder);
        return;
    }
    auto& widget = static_cast<QWidget&>(child);
    if (!widget.isWindow()) {
        widget.setParent(&holder);
    }
}

/// The editor in a part that has the focus; null without one.
QAbstractSpinBox* editorWithFocus(const QWidget& part)
{
    auto* const editor = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    return editor && part.isAncestorOf(editor) ? editor : nullptr;
}

class TypingAtClose : public QObject
{
public:
    explicit TypingAtClose(QWidget& window)
        : QObject(&window)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // What has gone is told of nothing any more.
        return event->type() == QEvent::Close && !takeOverTyping(*static_cast<QWidget*>(watched));
    }
};

} // namespace

EditorInUse::EditorInUse()
{
    ++inUse().signalCount;
}

EditorInUse::~EditorInUse()
{
    if (--inUse().signalCount == 0 && inUse().kept) {
        // Not at once: the signal has yet to return.
        inUse().kept->deleteLater();
        inUse().kept.clear();
    }
}

bool isEditorInUse()
{
    return inUse().signalCount > 0;
}

void keepWhatIsInUse(QWidget& part)
{
    if (!isEditorInUse()) {
        return;
    }
    for (const QObject* const child : part.findChildren<QObject*>()) {
        child->disconnect(&part);
    }
    if (!inUse().kept) {
        inUse().kept = new QWidget;
    }
    const QObjectList children = part.children();
    for (QObject* const child : children) {
        if (!qobject_cast<QLayout*>(child)) {
            keep(*child, *inUse().kept);
        }
    }
}

bool takeOverTyping(QWidget& part)
{
    const QPointer<QWidget> self(&part);
    if (QAbstractSpinBox* const editor = editorWithFocus(part)) {
        editor->interpretText();
    }
    return !self.isNull();
}

bool takeOverTypingAtLast(QWidget& part)
{
    const QPointer<QAbstractSpinBox> editor(editorWithFocus(part));
    if (!editor) {
        return true;
    }
    int changes = 0;
    QMetaObject::Connection count;
    if (const auto* const timed = qobject_cast<QDateTimeEdit*>(editor)) {
        count = QObject::connect(timed, &QDateTimeEdit::dateTimeChanged, [&changes] { ++changes; });
    }
    const bool isAlive = takeOverTyping(part);
    QObject::disconnect(count);
    // What is refused is set back, which is a second change, if there still is anything to set.
    return isAlive && editor && part.isAncestorOf(editor) && changes <= 1;
}

void takeOverTypingAtClose(QWidget& window)
{
    new TypingAtClose(window);
}

} // namespace trel::mediadispatch
