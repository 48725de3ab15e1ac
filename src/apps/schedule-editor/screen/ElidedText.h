#pragma once

#include <QLabel>

namespace trel::desktop {

/// A text of one or a few lines that ends in dots where it has no room; then a tool tip shows all
/// of it. It asks for no width, so that a long text never widens its window. text() is always the
/// whole text.
class ElidedText : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedText(QWidget* parent, int lines = 1);

    /// Lets the text have more lines than it has at least, as many as it takes and up to so many.
    /// Its place has to ask for its height by its width, as the layouts do.
    void setMostLines(int lines);

    /// Whether all of the text has room.
    bool isWhole() const { return shown(contentsRect().width()).isWhole; }

    /// Shown in place of the text where there is one, whether the text has room or not.
    void setLongText(const QString& text) { m_longText = text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return m_most > m_lines; }
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Shown
    {
        QStringList lines;
        bool isWhole = true;
    };
    Shown shown(int width) const;
    int heightOf(int lines) const;

    int m_lines; ///< At least.
    int m_most;
    QString m_longText;
};

} // namespace trel::desktop
