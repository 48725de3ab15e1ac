#pragma once

#include <QLabel>

namespace trel::widgets {

/// One line of plain text that shortens itself with dots where it has no room. It asks for no
/// width, so a long text never widens its window. text() is always the whole text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace trel::widgets
