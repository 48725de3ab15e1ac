#pragma once

#include "trelwidgets_export.h"

#include <QLabel>

namespace trel::widgets {

/// A label that shows an image. What is on it follows its property "labelImage": an image that a
/// style sheet or a style shows for it, else the pixmap that it was given, else the sign that the
/// editor draws for this value, in the color of texts. A value without a sign and a label with a
/// text show what a label shows.
///
/// Style sheets and meta object see a QLabel.
class TRELWIDGETS_EXPORT SignLabel : public QLabel
{
public:
    explicit SignLabel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace trel::widgets
