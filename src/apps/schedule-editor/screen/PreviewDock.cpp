#include "screen/PreviewDock.h"

#include "screen/PreviewScreen.h"

#include <QAction>
#include <QEvent>

namespace trel::desktop {

PreviewDock::PreviewDock(ScreenFollower& follower, QWidget* parent)
    : QDockWidget(parent)
    , m_follower(follower)
    , m_fullScreen(new QAction(this))
{
    setObjectName(QStringLiteral("previewDock"));
    auto* preview = new PreviewScreen(follower, this);
    preview->addAction(m_fullScreen);
    preview->setContextMenuPolicy(Qt::ActionsContextMenu);
    setWidget(preview);
    m_fullScreen->setCheckable(true);
    m_fullScreen->setShortcut(QKeySequence(Qt::Key_F11));
    connect(m_fullScreen, &QAction::toggled, this, &PreviewDock::setFullScreen);
    connect(preview, &PreviewScreen::doubleClicked, m_fullScreen, &QAction::toggle);
    retranslate();
}

void PreviewDock::setFullScreen(bool isFull)
{
    if (!isFull) {
        if (m_large != nullptr) {
            m_large->close();
        }
        return;
    }
    m_large = new PreviewScreen(m_follower, this);
    m_large->setObjectName(QStringLiteral("previewFullScreen"));
    m_large->setWindowFlag(Qt::Window);
    m_large->setAttribute(Qt::WA_DeleteOnClose);
    m_large->setWindowTitle(windowTitle());
    connect(m_large, &PreviewScreen::doubleClicked, m_large, &QWidget::close);
    connect(m_large, &PreviewScreen::closed, this, [this] {
        m_large = nullptr;
        m_fullScreen->setChecked(false);
    });
    m_large->showFullScreen();
}

void PreviewDock::retranslate()
{
    setWindowTitle(tr("Preview"));
    // The title becomes the text of the action, which has a letter besides.
    toggleViewAction()->setText(tr("&Preview"));
    m_fullScreen->setText(tr("&Full-screen preview"));
}

void PreviewDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QDockWidget::changeEvent(event);
}

} // namespace trel::desktop
