#pragma once

#include "trelwidgets_export.h"

#include <QComboBox>

namespace trel::widgets {

/// A combo box for rows of a scrolling list: the wheel scrolls the list and never changes the
/// box, nor does it give it the focus.
class TRELWIDGETS_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// An empty box.
    explicit ComboBox(QWidget* parent = nullptr);

protected:
    /// Shows the whole of a text that the box has no room for, as a tool tip.
    bool event(QEvent* event) override;
    /// Cuts such a text, with dots.
    void paintEvent(QPaintEvent* event) override;
    /// Leaves the wheel to what the box stands in.
    void wheelEvent(QWheelEvent* event) override;

private:
    int roomForText() const;
    bool isCut() const;
};

} // namespace trel::widgets
