#pragma once

#include "trelwidgets_export.h"

#include <QDialog>
#include <QSize>

#include <memory>

namespace trel::widgets {

/// A window frame: a title bar of its own, by which the window moves, over a client area.
///
/// Put the content into dialogWidget(), with a layout of your own on it. The title bar has a
/// button to minimise and one to close, which ends the dialog as Escape does, with reject().
/// Closing hides the dialog; it can be shown again. A dialog over another window is minimised
/// together with that window, as nothing would lead back to it alone.
///
/// Keys that the content leaves over: Escape rejects; Return and Enter do nothing, so that no
/// button of the content is pressed from elsewhere. With setAcceptsByKey(), Control with Return or
/// Enter emits signalAccept().
///
/// Style hooks, by object name: "dialogFrame" (the border), "dialogTitle" with the property
/// "style" = "BG4" (the title bar), in it "TitleLabel" and the buttons "ButtonMin", "ButtonScale"
/// and "ButtonClose", and "dialogCenter" (the client area). The buttons carry the property
/// "imageBtn": "minimise"; "maximise" or "restore", as the window is compact or expanded; "close".
/// A style sheet replaces their signs with `qproperty-icon`.
class TRELWIDGETS_EXPORT Dialog : public QDialog
{
    Q_OBJECT
    /// See setAcceptsByKey().
    Q_PROPERTY(bool acceptsByKey READ acceptsByKey WRITE setAcceptsByKey)

public:
    /// A dialog with its title bar and an empty content.
    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    /// The client area, owned by the dialog. Null after dismantle().
    QWidget* dialogWidget() const;

    /// Sets the text of the title bar, which is cut with dots where it has no room, and the title
    /// that the window manager shows.
    void setTitle(const QString& title);

    /// Gives the window two sizes, title bar included, between which a button of the title bar and
    /// a double click on the title switch. The window takes the compact size at once. A window of
    /// fixed size is fixed at the other size then. It never gets larger than its screen, and is
    /// moved back onto it. Without a call there is no such button.
    void setScaleSwitch(const QSize& compact, const QSize& expanded);

    /// Whether Control with Return or Enter emits signalAccept(). Off by default: a receiver that
    /// has not asked for the key hears of it only when somebody else emits the signal.
    void setAcceptsByKey(bool accepts);
    /// See setAcceptsByKey().
    bool acceptsByKey() const;

    /// Ends a dialog that is not shown again but has to stay, as its parent's or others' object:
    /// hides it, gives back its window with the picture of it, and lets go of title bar and client
    /// area, with all that is still in there, as soon as control is back in the event loop.
    /// dialogWidget() is null from then on, and setScaleSwitch() does nothing.
    void dismantle();

Q_SIGNALS:
    /// The operator has accepted the dialog from the keyboard, with Control and Return.
    /// Emitted only with acceptsByKey(). A cell editor that was open has handed in its value
    /// before. The dialog does not close by itself.
    void signalAccept();

protected:
    /// See the keys above.
    void keyPressEvent(QKeyEvent* event) override;
    /// Has all that lies in the dialog follow another palette and another font, at once where it is
    /// in sight, also below a style sheet.
    void changeEvent(QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::widgets
