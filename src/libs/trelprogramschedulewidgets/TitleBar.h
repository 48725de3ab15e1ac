#pragma once

#include <QMenuBar>
#include <QPoint>
#include <QSize>
#include <QString>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace trel::mediadispatch {

/// The drawn title bar of a frameless window: an icon, a centred title, a hidden language box and
/// the buttons for minimise, restore, maximise and close.
///
/// A drag on the bar moves its parent widget. Clicks are only told, by signals: the owner is the
/// one who minimises, maximises or closes its window. All looks come from the owner's style sheet,
/// by object names ("TitleIconLabel", "TitleLabel", "ButtonMin", "ButtonRestore", "ButtonMax",
/// "ComboxTrans"), by the property "style" of the bar, which is "BG4", and by the property
/// "imageBtn" of the close button, which is "close".
///
/// The layout of the bar does not widen the window: an owner with long titles gives its window a
/// minimum width.
class TitleBar : public QMenuBar
{
    Q_OBJECT

public:
    /// The layouts of the buttons, for setButtonType.
    enum ButtonType {
        MinimiseOnly = 0,    ///< Hides restore and maximise.
        NormalWindow = 1,    ///< Hides restore, shows maximise.
        MaximisedWindow = 2, ///< Hides maximise, shows restore.
        CloseOnly = 3,       ///< Hides minimise, restore and maximise.
    };

    /// The parent is the widget that a drag moves. A bar without one cannot be dragged.
    explicit TitleBar(QWidget* parent = nullptr);
    ~TitleBar() override;

    /// Takes one of the ButtonType values. What the layout does not name stays as it is. After
    /// setRestoreVisible(false) the layout of a maximised window hides restore and leaves maximise
    /// alone. Another value is kept, and changes nothing on screen.
    void setButtonType(int type);
    /// Shows the title; it is hidden until the first call.
    void setTitleContent(QString title);

    void setMinVisible(bool visible);
    void setMaxVisible(bool visible);
    void setRestoreVisible(bool visible);
    void setCloseVisible(bool visible);

    /// Whether a double click switches between the normal and the maximised layout; true at first.
    void setDoubleClickEnabled(bool enabled);

    void hideTranslationCombo();
    /// Selects an item of the language box, for an index of 0 to 3, and fetches the tool tips
    /// afresh, for any index. The box has no items of its own: the owner adds them.
    void setLanguageIndex(int index);
    /// Fetches the tool tips in the language now selected.
    void retranslate();

    /// Lets the filter see every event of the title and the four buttons, mouse moves without a
    /// pressed button included. The filter is not owned; null installs none.
    void setHoverFilter(QObject* filter);

signals:
    void signalButtonMinClicked();
    void signalButtonRestoreClicked();
    void signalButtonMaxClicked();
    void signalButtonCloseClicked();
    /// A drag has moved the parent to this pos().
    void signalMove(int x, int y);
    /// For owners that show their window in its normal size; the bar never emits it.
    void signalShowNormal();
    /// An item of the language box was selected.
    void signalTranslate();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void onButtonMinClicked();
    void onButtonRestoreClicked();
    void onButtonMaxClicked();
    void onButtonCloseClicked();
    void slotTransIndexChanged(int index);

private:
    void buildForm();
    void layOut();
    void connectControls();

    QLabel* m_iconLabel = nullptr;
    QLabel* m_titleLabel = nullptr;
    QPushButton* m_buttonMin = nullptr;
    QPushButton* m_buttonRestore = nullptr;
    QPushButton* m_buttonMax = nullptr;
    QPushButton* m_buttonClose = nullptr;
    QHBoxLayout* m_layout = nullptr;
    QComboBox* m_transCombo = nullptr;
    // Part of the bar's state that none of its operations reads.
    [[maybe_unused]] int m_count = 0;
    QSize m_size;
    bool m_pressed = false;
    bool m_ignoreDrag = false; ///< After a double click, until the release.
    QPoint m_startPos;         ///< Where the last step of a drag began, on the screen.
    QString m_title;
    int m_buttonType = MinimiseOnly;
    bool m_restoreHidden = false;
    bool m_maxHidden = false; ///< Kept beside m_restoreHidden; no layout asks for it.
    bool m_doubleClickEnabled = true;
};

} // namespace trel::mediadispatch
