#pragma once

#include <QStyleOptionButton>
#include <QStyleOptionFrame>

class QWidget;

namespace trel::widgets {

/// Whether the style of a button shows an image there, besides what the option asks for. Text, icon
/// and focus of the option count for nothing.
bool paintsPictureOnButton(const QWidget& button, QStyleOptionButton option);

/// The same for a label, of whose option only the frame is drawn.
bool paintsPictureOnLabel(const QWidget& label, QStyleOptionFrame option);

} // namespace trel::widgets
