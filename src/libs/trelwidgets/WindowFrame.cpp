#include "WindowFrame.h"

#include "FrameTitle.h"

#include <QVBoxLayout>

namespace trel::widgets {

Qt::WindowFlags WindowFrame::windowFlags()
{
    return Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
}

WindowFrame::WindowFrame(QDialog* dialog)
    : QFrame(dialog)
    , m_title(new FrameTitle(this))
    , m_client(new QWidget(this))
{
    setObjectName(QStringLiteral("dialogFrame"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    m_client->setObjectName(QStringLiteral("dialogCenter"));

    auto* inner = new QVBoxLayout(this);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(0);
    inner->addWidget(m_title);
    inner->addWidget(m_client, 1);

    auto* outer = new QVBoxLayout(dialog);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(this);

    connect(dialog, &QWidget::windowTitleChanged, m_title, &FrameTitle::setTitle);
    connect(m_title, &FrameTitle::closeClicked, dialog, &QWidget::close);
}

} // namespace trel::widgets
