#pragma once

#include "trelwidgets_export.h"

#include <QPushButton>

namespace trel::widgets {

/// A push button that shows an image and no caption. What is on it follows its property "imageBtn",
/// or its object name where it has none: an image that a style sheet or a style shows for it, else
/// the icon that it was given, else the sign that the editor draws for this value, in the color of
/// button texts. A value without a sign and a button with a text show what a push button shows.
///
/// Style sheets and meta object see a QPushButton.
class TRELWIDGETS_EXPORT SignButton : public QPushButton
{
public:
    explicit SignButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace trel::widgets
