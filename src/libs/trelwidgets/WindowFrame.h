#pragma once

#include <QDialog>
#include <QFrame>

namespace trel::widgets {

class FrameTitle;

/// What a frameless dialog is dressed in: a border, a title bar and a client area under it. The
/// title shows the dialog's window title and follows its changes.
///
/// Style hooks: the border has the object name "dialogFrame", the client area "dialogCenter".
class WindowFrame : public QFrame
{
    Q_OBJECT

public:
    /// The window flags of a dialog that wears this frame.
    static Qt::WindowFlags windowFlags();

    /// Dresses the dialog, which must have no layout yet, and becomes its child.
    explicit WindowFrame(QDialog* dialog);

    FrameTitle* title() const { return m_title; }
    QWidget* client() const { return m_client; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FrameTitle* m_title;
    QWidget* m_client;
};

} // namespace trel::widgets
