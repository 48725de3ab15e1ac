#pragma once

#include "toolkit/CutLine.h"
#include "toolkit/TypedValue.h"
#include "trelwidgets/CutTip.h"

#include <QDateEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace trel::mediadispatch {

/// A date, time or count field inside something that scrolls. The wheel steps its value only while
/// it has the focus; otherwise the event goes on to what the field lies in, which scrolls.
///
/// The wheel does not give it the focus either: the toolkit would do so before the field sees the
/// event. It has no meta-object of its own, so that style sheets and qobject_cast take it for a
/// plain Field.
template <typename Field>
class FocusedWheel : public Field
{
public:
    explicit FocusedWheel(QWidget* parent = nullptr)
        : Field(parent)
    {
        this->setFocusPolicy(Qt::StrongFocus);
        this->lineEdit()->installEventFilter(this);
    }

    /// A value that the field has no room for ends in dots, but while it has the focus: then it
    /// scrolls, as one types in it.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched == this->lineEdit() && !this->hasFocus() &&
            isCut(*this->lineEdit())) {
            paintCut(*this->lineEdit(), *this);
            return true;
        }
        return Field::eventFilter(watched, event);
    }

protected:
    /// Shows the whole of a value that the field has no room for.
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip && this->toolTip().isEmpty() &&
            isCut(*this->lineEdit())) {
            widgets::showCutTip(*static_cast<QHelpEvent*>(event), *this, this->text());
            return true;
        }
        return Field::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const TypedValue typed(*this, *event);
        Field::keyPressEvent(event);
        typed.tell();
    }

    void wheelEvent(QWheelEvent* event) override
    {
        if (this->hasFocus()) {
            Field::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

/// By this name a form can ask for it.
using CardDateEdit = FocusedWheel<QDateEdit>;

} // namespace trel::mediadispatch
