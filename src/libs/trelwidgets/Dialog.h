#pragma once

#include <QDialog>
#include <QSize>

#include <memory>

namespace trel::widgets {

/// A window frame: a title bar of its own, by which the window moves, over a client area.
///
/// Put the content into dialogWidget(), with a layout of your own on it.
class Q_DECL_EXPORT Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    /// The client area, owned by the dialog.
    QWidget* dialogWidget() const;

    /// Sets the text of the title bar and the title that the window manager shows.
    void setTitle(const QString& title);

    /// Gives the window two sizes, between which a button of the title bar and a double click on
    /// the title switch. The window takes the compact size at once. Without a call there is no
    /// such button.
    void setScaleSwitch(const QSize& compact, const QSize& expanded);

signals:
    /// The operator has accepted the dialog from the keyboard, with Ctrl and Return.
    void signalAccept();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::widgets
