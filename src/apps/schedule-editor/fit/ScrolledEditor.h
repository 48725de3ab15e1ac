#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>

class QScrollArea;

namespace trel::widgets {
class Dialog;
}

namespace trel::desktop::fit {

/// Lets a dialog whose content has one size, such as the schedule editor, be worked on a screen
/// that is smaller than it.
///
/// Each time that it is shown there, it is made as large as the screen, and its content stands in
/// an area with scroll bars. Where the dialog fits it is left as it is.
class ScrolledEditor : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the dialog, in whose client area there is one widget, in a layout.
    explicit ScrolledEditor(trel::widgets::Dialog& dialog);
    ~ScrolledEditor() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    void putIntoArea();
    void renewLayouts() const;
    QSize wantedIn(const QSize& room) const;

    trel::widgets::Dialog& m_dialog;
    QPointer<QScrollArea> m_area; ///< Once a screen was too small.
    QSize m_whole;                ///< What the dialog takes without scroll bars.
};

} // namespace trel::desktop::fit
