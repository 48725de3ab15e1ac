#include "EditorInUse.h"

#include <QAbstractSpinBox>
#include <QApplication>
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
    auto* const editor = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget());
    if (editor && part.isAncestorOf(editor)) {
        editor->interpretText();
    }
    return !self.isNull();
}

} // namespace trel::mediadispatch
