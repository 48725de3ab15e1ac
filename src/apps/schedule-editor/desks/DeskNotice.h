#pragma once

#include <QLabel>

namespace trel::mediadispatch {
class DeskWatch;
}

namespace trel::desktop {

/// Tells what other desks have open for editing, in the bar of the window; out of sight while there
/// is nothing.
class DeskNotice : public QLabel
{
    Q_OBJECT

public:
    /// The watch outlives the notice.
    DeskNotice(const trel::mediadispatch::DeskWatch& desks, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void tell();

    const trel::mediadispatch::DeskWatch& m_desks;
};

} // namespace trel::desktop
