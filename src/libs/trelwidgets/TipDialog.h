#pragma once

#include "trelwidgets_export.h"

#include <QDialog>

#include <memory>

class QIcon;

namespace trel::widgets {

/// How a prompt ended.
struct PromptBoxTriggerInfo
{
    int button = 0; ///< 1, 2 or 3 for the buttons in order; 0 for any other way out.
};

/// A prompt with a text and up to three buttons, modal to the application.
///
/// Made on the heap, run once, and gone afterwards: run() frees the dialog before it returns.
/// The first button ends the row, on the right where one reads from the left, and the others stand
/// before it, the last one first.
/// Return and Enter press the first button, or the one of setEnterButton(), or that which the
/// operator has reached with Tab.
/// Escape and the close control answer with none. A key that was already held down when the prompt
/// appeared answers nothing.
///
/// Without a parent it stands over the window that is active when it runs. It takes that window's
/// title, or the name of the application, unless it was given a title of its own.
///
/// Style hooks beside those of Dialog, by object name: "dialogTipIcon" with the property
/// "labelImage" = "notice" or "question", "dialogTipLabel", in "dialogTipArea" where it scrolls,
/// and the buttons "tipButton1", "tipButton2" and "tipButton3", of which the first has the property
/// "style" = "general" and the others "assist".
class TRELWIDGETS_EXPORT TipDialog : public QDialog
{
    Q_OBJECT

public:
    /// What a prompt is for, which decides on its sign and its buttons.
    enum TipType {
        Notice = 0,       ///< Something was refused.
        Confirmation = 1, ///< Something is about to be done.
    };

    /// A type other than those of TipType shows as a notice.
    explicit TipDialog(int tipType, QWidget* parent = nullptr);
    ~TipDialog() override;

    /// Plain text; long lines are wrapped. What the screen is too low for is scrolled to.
    void setTipText(const QString& text);
    /// The texts of the buttons, in order; a button with an empty text is not shown.
    void setBtnText(const QString& first, const QString& second, const QString& third);
    /// Which button, from 1, has the focus at first, so that Return and Enter press it. For prompts
    /// whose first button takes something away. One that is not shown leaves it with the first.
    void setEnterButton(int number);
    /// Shows the prompt, blocks until it is answered and deletes it. The prompt may also die while
    /// it runs, with its parent, and then counts as not answered.
    PromptBoxTriggerInfo run();

    /// A picture of the host's own in the place of the type's sign, such as that of the program
    /// where it tells of itself; a null icon leaves the sign. Drawn for the screen that the prompt
    /// is on. Takes effect when it runs.
    void setSignIcon(const QIcon& icon);

protected:
    /// Fits icon and text to another style, font or palette.
    void changeEvent(QEvent* event) override;
    /// Keeps keys that are held down from its buttons.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::widgets
