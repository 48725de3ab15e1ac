#pragma once

#include <QLabel>

namespace trel::desktop {

/// A short word on a rounded ground.
class Badge : public QLabel
{
    Q_OBJECT

public:
    explicit Badge(QWidget* parent);

    /// Ground and text, each a role of the palette, so that they follow the theme.
    void setRoles(QPalette::ColorRole ground, QPalette::ColorRole text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPalette::ColorRole m_ground = QPalette::Highlight;
    QPalette::ColorRole m_text = QPalette::HighlightedText;
};

} // namespace trel::desktop
