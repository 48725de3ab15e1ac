#pragma once

#include <QPoint>
#include <QWidget>

#include <optional>

namespace trel::widgets {

class ElidedLabel;
class TitleButton;

/// The title bar of a frameless window: the title, the window's buttons, and the handle by which
/// the left mouse button moves the window. It moves the window itself; what the buttons do is the
/// owner's.
///
/// Style hooks: object name "dialogTitle" with the property "style" = "BG4"; in it the label
/// "TitleLabel" and the buttons "ButtonMin", "ButtonScale" and "ButtonClose", whose property
/// "imageBtn" is "minimise", "maximise" or "restore", and "close".
class FrameTitle : public QWidget
{
    Q_OBJECT

public:
    explicit FrameTitle(QWidget* parent);

    void setTitle(const QString& title);
    void setMinimiseVisible(bool visible);
    void setScaleVisible(bool visible);
    /// Which way the scale button points: back to the small size, or on to the large one.
    void setExpanded(bool expanded);

signals:
    void minimiseClicked();
    void scaleClicked();
    void closeClicked();
    /// The left button was clicked twice on the title, beside the buttons.
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Where a drag began.
    struct Drag
    {
        QPoint cursor;
        QPoint window;
        bool moving = false;
    };

    bool handOverToPlatform() const;
    void moveWindow(const QPoint& position) const;

    ElidedLabel* m_title;
    TitleButton* m_minimise;
    TitleButton* m_scale;
    TitleButton* m_close;
    std::optional<Drag> m_drag;
};

} // namespace trel::widgets
