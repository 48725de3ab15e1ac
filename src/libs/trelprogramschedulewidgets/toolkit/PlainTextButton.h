#pragma once

#include <QPushButton>

namespace trel::mediadispatch {

/// A push button that shows a text which is no caption, such as a name that an operator has given:
/// an ampersand in it stands for itself. It is shown, read out by screen readers, and opens no
/// shortcut. text() returns the text as it was set.
///
/// Style sheets and meta object see a QPushButton.
class PlainTextButton : public QPushButton
{
public:
    explicit PlainTextButton(QWidget* parent = nullptr);

    /// Use this in the place of setText(), which would open a shortcut.
    void setPlainText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace trel::mediadispatch
