#pragma once

#include <QProgressDialog>

namespace trel::desktop {

/// The progress of an import. Once it is over it does not come back: the toolkit would show it
/// late, over what is told of the result.
class ImportProgress : public QProgressDialog
{
    Q_OBJECT

public:
    explicit ImportProgress(QWidget* parent);

    /// Hides it for good.
    void end();
    void setVisible(bool visible) override;

private:
    bool m_isOver = false;
};

} // namespace trel::desktop
