#include "CutTexts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QVariant>

namespace {

/// Whether a label or button has less room than its text takes. Where dots stand for what is left
/// out, a tool tip has it all; a sign is no text.
bool isCut(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool isMeasured =
        label != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    if (!isMeasured || textOf(widget).size() < 2 || widget.inherits("trel::desktop::ElidedText")) {
        return false;
    }
    return label != nullptr && label->wordWrap()
               ? label->heightForWidth(label->width()) > label->height()
               : widget.minimumSizeHint().width() > widget.width();
}

} // namespace

QString textOf(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget);
        bar != nullptr && !bar->isTextVisible()) {
        return {};
    }
    const QString text = widget.property("text").toString();
    return text.isEmpty() ? widget.property("placeholderText").toString() : text;
}

QList<QWidget*> visibleIn(QWidget& window)
{
    QList<QWidget*> visible;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (widget->isVisible() && widget->window() == window.window()) {
            visible.append(widget);
        }
    }
    return visible;
}

QStringList cutIn(QWidget& window)
{
    QStringList lines;
    const QList<QWidget*> widgets = visibleIn(window);
    for (const QWidget* const widget : widgets) {
        if (isCut(*widget)) {
            lines.append(QStringLiteral("%1: %2 needs %3 px of %4")
                             .arg(widget->objectName(), textOf(*widget))
                             .arg(widget->minimumSizeHint().width())
                             .arg(widget->width()));
        }
    }
    return lines;
}
