#include "catalogue/ImportProgress.h"

namespace trel::desktop {

ImportProgress::ImportProgress(QWidget* parent)
    : QProgressDialog(parent)
{
    setObjectName(QStringLiteral("importProgress"));
}

void ImportProgress::end()
{
    m_isOver = true;
    hide();
}

void ImportProgress::setVisible(bool visible)
{
    QProgressDialog::setVisible(visible && !m_isOver);
}

} // namespace trel::desktop
