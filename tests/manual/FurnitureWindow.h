#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace trel::mediadispatch {
class DialogWidget;
class TitleBar;
} // namespace trel::mediadispatch

/// A frameless window under a title bar, with a button for each way to set up the dialog.
class FurnitureWindow : public QWidget
{
    Q_OBJECT

public:
    explicit FurnitureWindow(QWidget* parent = nullptr);

    /// Draws the window and the dialogs, each as it shows on the screen, into one picture.
    QImage picture();

private:
    using Dialog = std::unique_ptr<trel::mediadispatch::DialogWidget>;

    QWidget* buildContent();
    void connectTitleBar();
    void selectLanguage();
    void run(const QString& name, Dialog dialog);

    Dialog note();
    Dialog question();
    Dialog form();

    trel::mediadispatch::TitleBar* m_titleBar;
};
