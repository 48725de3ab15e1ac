#pragma once

#include <QDialog>
#include <QString>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace trel::mediadispatch {

class TitleBar;

/// A frameless modal dialog in three bands: a title bar, a tip text or a widget of the caller, and
/// up to three buttons, for accept, reject and cancel.
///
/// Build it, choose the buttons, run it with exec(). The window itself is see-through: its bands
/// get their look from the style sheet in the resource ":/qss/qss/dialog.qss", which the host
/// supplies, by the object names "dialogWidget", "dialogTitle", "dialogCenter", "dialogBottom",
/// "dialogTipLabel", "dialogAcceptBtn", "dialogRejectBtn" and "dialogCancelBtn". Without that
/// resource the dialog works unstyled.
class DialogWidget : public QDialog
{
    Q_OBJECT

public:
    /// What exec() answers; not to be mixed up with QDialog::DialogCode.
    enum Result {
        AcceptResult = 0,
        RejectResult = 1,
        CancelResult = 2, ///< Also for a dialog that was closed without a button.
    };

    /// The bits of setButtons; one of them names a button in setButtonEnabled.
    enum Button {
        AcceptButton = 4,
        CancelButton = 16384,
        RejectButton = 32768,
    };

    /// The mode of setCloseMode in which a button leaves the dialog open.
    static constexpr int kStayOpen = 3;

    explicit DialogWidget(QWidget* parent = nullptr);
    ~DialogWidget() override;

    /// Shows the dialog, blocks until it is closed, and returns a Result. The dialog can be run
    /// again, with the same content; a second run that ends without a button answers what the
    /// first did.
    int exec() override;

    void setTitle(QString text);
    /// The alignment is a combination of Qt::Alignment flags.
    void setTipText(QString text, int alignment);
    /// Shows the widget in the place of the tip text. The dialog becomes its owner. Widgets of
    /// earlier calls stay, above it.
    void setContentWidget(QWidget* widget);

    void setAcceptText(QString text);
    void setCancelText(QString text);
    void setAcceptVisible(bool show);
    void setRejectVisible(bool show);
    void setCancelVisible(bool show);

    /// Hides the buttons that the flags leave out. Takes nothing, one or two of the Button bits;
    /// any other value, all three bits included, changes nothing. Shows no button again: that is
    /// left to the setters of each button.
    void setButtons(int flags);
    /// Takes one Button bit; any other value changes nothing.
    void setButtonEnabled(int button, bool enabled);

    /// In the mode kStayOpen a button emits its signal and records the result, and the caller
    /// closes the dialog. In every other mode a button closes it.
    void setCloseMode(int mode);

signals:
    // Each of the first three is emitted before the result is recorded and the dialog closes.
    void signalAccept();
    void signalReject();
    void signalCancel();
    void signalMaxButtonCLicked();
    void signalRestoreButtonCLicked();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void slotAccept();
    void slotReject();
    void slotCancel();
    void slotMaxBtn();
    void slotRestoreBtn();

private:
    void setUpWindow();
    void buildForm();
    void setButtonTexts();
    void loadStyleSheet();
    void connectControls();
    void finish(Result result);

    QHBoxLayout* m_bottomLayout = nullptr;
    QVBoxLayout* m_mainLayout = nullptr;
    QVBoxLayout* m_centerLayout = nullptr;
    QLabel* m_leftSpacer = nullptr;
    QLabel* m_rightSpacer = nullptr;
    QPushButton* m_acceptBtn = nullptr;
    QPushButton* m_rejectBtn = nullptr;
    QPushButton* m_cancelBtn = nullptr;
    TitleBar* m_titleBar = nullptr;
    QWidget* m_bottomWidget = nullptr;
    QWidget* m_centerWidget = nullptr;
    QLabel* m_tipLabel = nullptr;
    int m_result = CancelResult;
    int m_closeMode = 0;
};

} // namespace trel::mediadispatch
