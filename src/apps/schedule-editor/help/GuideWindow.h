#pragma once

#include <QWidget>

class QTextBrowser;
class QUrl;

namespace trel::desktop {

/// The guide, which the program carries with it: it is there whether documents are installed or
/// not, and on machines that have nothing to show them with.
class GuideWindow : public QWidget
{
    Q_OBJECT

public:
    /// A window of its own above the parent.
    explicit GuideWindow(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void follow(const QUrl& link);
    void recolourLinks();
    void retranslate();

    QTextBrowser* m_text;
};

} // namespace trel::desktop
