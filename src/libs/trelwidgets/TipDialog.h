#pragma once

#include <QDialog>

#include <memory>

namespace trel::widgets {

/// How a prompt ended.
struct PromptBoxTriggerInfo
{
    int button = 0; ///< 1, 2 or 3 for the buttons in order; 0 for any other way out.
};

/// A prompt with a text and up to three buttons.
///
/// Made on the heap, run once, and gone afterwards: run() frees the dialog before control returns
/// to the event loop of the caller. Return and Enter press the first button; Escape and the close
/// control answer with none.
class Q_DECL_EXPORT TipDialog : public QDialog
{
    Q_OBJECT

public:
    enum TipType {
        Notice = 0,       ///< Something was refused.
        Confirmation = 1, ///< Something is about to be done.
    };

    /// A type other than those of TipType shows as a notice.
    explicit TipDialog(int tipType, QWidget* parent = nullptr);
    ~TipDialog() override;

    void setTipText(const QString& text);
    /// The texts of the buttons, in order; a button with an empty text is not shown.
    void setBtnText(const QString& first, const QString& second, const QString& third);
    /// Shows the prompt and blocks until it is answered.
    PromptBoxTriggerInfo run();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace trel::widgets
