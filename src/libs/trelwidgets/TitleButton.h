#pragma once

#include <QPushButton>

namespace trel::widgets {

/// A button of a window's title bar. It never takes the focus and is never pressed by Return.
///
/// Its sign is drawn in the colour that the palette gives to button texts, so it stays legible
/// under every theme; a style sheet may give another one with `qproperty-icon` or any image, and a
/// style by painting one.
///
/// Assistive software reads its name, "Minimize", "Maximize", "Restore" or "Close". A host that
/// speaks another language translates it in the context "trel::widgets::TitleButton".
class TitleButton : public QPushButton
{
    Q_OBJECT

public:
    enum Sign { Minimise, Expand, Restore, Close };

    TitleButton(Sign sign, const QString& objectName, QWidget* parent);

    /// Changes what the button shows, and its property "imageBtn" with it.
    void setSign(Sign sign);
    Sign sign() const { return m_sign; }

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Sign m_sign;
    qint64 m_ownIcon = 0;
};

} // namespace trel::widgets
