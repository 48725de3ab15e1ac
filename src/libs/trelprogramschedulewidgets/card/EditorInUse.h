#pragma once

#include <QtGlobal>

class QWidget;

namespace trel::mediadispatch {

/// Stands in a slot for as long as the signal of an editor is being answered there.
///
/// A prompt runs an event loop inside such a signal, and everything may be destroyed in it. The
/// toolkit goes on with the editor when the signal returns, and, when the editor loses the focus,
/// with what was clicked and with what gets the focus: they have to outlive the signal, whatever
/// becomes of the part of the window that holds them. For the GUI thread only.
class EditorInUse
{
    Q_DISABLE_COPY(EditorInUse)

public:
    EditorInUse();
    ~EditorInUse();
};

/// Whether the signal of an editor is being answered anywhere.
bool isEditorInUse();

/// Call it first in the destructor of a part that holds editors. While one is in use anywhere, all
/// that the part holds is taken out of it, hidden, and destroyed when the outermost signal has
/// returned. The part hears of it no more. Windows that belong to the part go with it all the same.
void keepWhatIsInUse(QWidget& part);

/// Has the editor in this part that has the focus take over what is being typed, as it does when it
/// loses the focus. A prompt may appear; false when the part has gone meanwhile.
///
/// To be called before such an editor is hidden or removed: the toolkit would go on with what it
/// hides and removes after the prompt, whether it is still there or not.
bool takeOverTyping(QWidget& part);

/// The same before the work on the editors ends. False also when what was typed has been refused,
/// so that the operator can type it again.
bool takeOverTypingAtLast(QWidget& part);

/// Has a window do so each time it is asked to close. It may be destroyed meanwhile: the toolkit
/// can bear that when it asks, and no more when it hides the window.
void takeOverTypingAtClose(QWidget& window);

} // namespace trel::mediadispatch
