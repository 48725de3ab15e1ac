#include "StyleAgain.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace trel::mediadispatch {

namespace {

bool isUnderSheet(const QWidget& widget)
{
    return widget.style()->inherits("QStyleSheetStyle");
}

} // namespace

void setStyleAgain(QWidget& widget)
{
    widget.setStyle(QApplication::style());
    // The toolkit looks after what has been polished and has no style by name.
    if (isUnderSheet(widget)) {
        widget.ensurePolished();
        widget.setAttribute(Qt::WA_SetStyle, false);
    }
}

void dropFormerStyle(QWidget& widget)
{
    if (!isUnderSheet(widget)) {
        widget.setStyle(nullptr);
    }
}

} // namespace trel::mediadispatch
