#include "help/GuideWindow.h"

#include "memory/RememberedDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QImage>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

#include <vector>

namespace trel::desktop {

namespace {

constexpr int kMargin = 16;
constexpr int kPictureWidth = 820;

/// Dots of a picture to a point: two where it says that it is for fine screens.
qreal dotsToAPoint(const QImage& picture)
{
    constexpr double kMetersPerInch = 0.0254;
    constexpr int kFine = 192;
    return qRound(picture.dotsPerMeterX() * kMetersPerInch) == kFine ? 2.0 : 1.0;
}

QImage fitted(QImage picture, qreal ratio)
{
    const int width = qMin(kPictureWidth, qRound(picture.width() / dotsToAPoint(picture)));
    const int dots = qRound(width * ratio);
    if (picture.width() > dots) {
        picture = picture.scaledToWidth(dots, Qt::SmoothTransformation);
    }
    picture.setDevicePixelRatio(static_cast<qreal>(picture.width()) / width);
    return picture;
}

/// Shows pictures no wider than the window is at first, with all dots that the finest screen has
/// for that.
class GuideText : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant resource = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource) {
            return resource;
        }
        QImage picture = resource.value<QImage>();
        if (picture.isNull()) {
            picture.loadFromData(resource.toByteArray());
        }
        return fitted(picture, qApp->devicePixelRatio());
    }
};

} // namespace

GuideWindow::GuideWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_text(new GuideText(this))
{
    setObjectName(QStringLiteral("guideWindow"));
    m_text->setObjectName(QStringLiteral("guideText"));
    // Links are followed here: those to the web leave the program.
    m_text->setOpenLinks(false);
    connect(m_text, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    m_text->document()->setDocumentMargin(kMargin);
    m_text->setSource(QUrl(QStringLiteral("qrc:/guide/guide.md")));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    resize(900, 700);
    new RememberedDialog(*this);
    retranslate();
}

void GuideWindow::follow(const QUrl& link)
{
    const QUrl whole = m_text->source().resolved(link);
    if (whole.scheme() == QLatin1String("qrc")) {
        m_text->setSource(whole);
    } else if (whole.scheme() == QLatin1String("https")) {
        QDesktopServices::openUrl(whole);
    }
}

void GuideWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    if (event->type() == QEvent::PaletteChange) {
        recolourLinks();
    }
}

/// A text has the colour of its links from when it is read. To read it again would take the time
/// that its pictures take.
void GuideWindow::recolourLinks()
{
    std::vector<QTextCursor> links;
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (fragment.charFormat().isAnchor()) {
                QTextCursor& link = links.emplace_back(m_text->document());
                link.setPosition(fragment.position());
                link.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
            }
        }
    }
    QTextCharFormat colour;
    // The text takes the palette over only after this.
    colour.setForeground(palette().link());
    for (QTextCursor& link : links) {
        link.mergeCharFormat(colour);
    }
}

void GuideWindow::keyPressEvent(QKeyEvent* event)
{
    // As in every other window that opens above this one's parent.
    if (event->matches(QKeySequence::Cancel)) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void GuideWindow::retranslate()
{
    setWindowTitle(tr("The guide"));
    m_text->setAccessibleName(windowTitle());
}

} // namespace trel::desktop
