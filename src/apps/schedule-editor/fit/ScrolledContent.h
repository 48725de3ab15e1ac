#pragma once

#include <QScrollArea>

namespace trel::desktop::fit {

/// Holds the content of a window that a small screen may not have room for.
///
/// Where the screen has the room, it asks for as much as the content does at least, so that nothing
/// scrolls. Where it has not, it asks for what the screen leaves beside the panels, the bars or the
/// margins of the window, and has scroll bars.
class ScrolledContent : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes the content over, which becomes a child and goes with the area.
    ScrolledContent(QWidget& content, QWidget* parent);
    ~ScrolledContent() override;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void askAnew();

    QSize m_asked; ///< What the window was told last.
};

} // namespace trel::desktop::fit
