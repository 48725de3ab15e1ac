#include "screen/PreviewScreen.h"

#include "BidiText.h"

#include "screen/PreviewDrawings.h"
#include "screen/ScreenFollower.h"
#include "screen/ScreenWords.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// The shape of the screens that most programs are made for.
constexpr int kAcross = 16;
constexpr int kDown = 9;

const QColor kWhyText(0xb4, 0xbb, 0xc7);
constexpr int kSmallestText = 11;
constexpr int kLargestText = 34;
/// The height of the widget over that of the band's text.
constexpr int kTextShare = 18;

} // namespace

PreviewScreen::PreviewScreen(ScreenFollower& follower, QWidget* parent)
    : QWidget(parent)
    , m_follower(follower)
{
    setObjectName(QStringLiteral("previewScreen"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMinimumSize(160, 90);
    m_follower.addViewer(*this);
    connect(&m_follower, &ScreenFollower::changed, this, &PreviewScreen::showChange);
    connect(&m_follower, &ScreenFollower::ticked, this, qOverload<>(&QWidget::update));
    connect(&m_pictures, &PreviewPictures::ready, this, qOverload<>(&QWidget::update));
    connect(&ScheduleHost::instance(), &ScheduleHost::catalogueChanged, this, [this] {
        m_pictures.clear();
        update();
    });
    describe();
}

QSize PreviewScreen::sizeHint() const
{
    constexpr int kWidth = 352;
    return {kWidth, heightForWidth(kWidth)};
}

int PreviewScreen::heightForWidth(int width) const
{
    return width * kDown / kAcross;
}

void PreviewScreen::showChange()
{
    describe();
    update();
}

void PreviewScreen::describe()
{
    // What is shown comes first for those who hear it, too.
    setAccessibleName(ScreenWords::shown(m_follower.now()));
    setAccessibleDescription(tr("Preview of the screen"));
}

void PreviewScreen::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::black);
    if (m_follower.now().state.picture == ScreenPicture::Black) {
        paintWhy(painter);
        return;
    }
    paintPicture(painter);
    paintBand(painter);
    if (m_follower.now().state.picture == ScreenPicture::Frozen) {
        paintFrozen(painter);
    }
}

/// A black picture alone could be a fault as well.
void PreviewScreen::paintWhy(QPainter& painter) const
{
    QFont letters = font();
    letters.setPixelSize(std::clamp(height() / kTextShare, kSmallestText, kLargestText));
    painter.setFont(letters);
    painter.setPen(kWhyText);
    const int margin = painter.fontMetrics().height();
    const ScreenScene& now = m_follower.now();
    painter.drawText(rect().adjusted(margin, margin / 2, -margin, -margin / 2),
                     int(Qt::AlignCenter) | Qt::TextWordWrap,
                     ScreenWords::picture(now.state.picture) + QLatin1Char('\n') +
                         ScreenWords::reason(now.state, &now.plan));
}

void PreviewScreen::paintPicture(QPainter& painter)
{
    const ProgramIten& program = m_follower.now().program;
    const QSize room = size() * devicePixelRatioF();
    const PreviewPictures::Answer answer = m_pictures.picture(program, room);
    if (!answer.isKnown) {
        return;
    }
    if (answer.image.isNull()) {
        paintPlaceholder(painter, rect(), program.kind);
        return;
    }
    const QPixmap& picture = fitted(answer.image);
    const QSizeF shown = QSizeF(picture.size()) / picture.devicePixelRatioF();
    const QPointF corner((width() - shown.width()) / 2, (height() - shown.height()) / 2);
    painter.drawPixmap(corner, picture);
}

const QPixmap& PreviewScreen::fitted(const QImage& image)
{
    const QSize room = size() * devicePixelRatioF();
    if (m_fittedImage != image.cacheKey() || m_fittedRoom != room) {
        m_fittedImage = image.cacheKey();
        m_fittedRoom = room;
        m_fitted =
            QPixmap::fromImage(image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        m_fitted.setDevicePixelRatio(devicePixelRatioF());
    }
    return m_fitted;
}

void PreviewScreen::paintBand(QPainter& painter) const
{
    QFont letters = font();
    letters.setPixelSize(std::clamp(height() / kTextShare, kSmallestText, kLargestText));
    letters.setBold(true);
    painter.setFont(letters);
    const QFontMetrics metrics(letters, this);
    const int padding = metrics.height() / 2;
    const int bandHeight = metrics.height() + padding;
    const QRect band(0, height() - bandHeight, width(), bandHeight);
    painter.fillRect(band, QColor(0, 0, 0, 190));

    const std::optional<qint64> toCome = m_follower.remaining();
    const qint64 gone = m_follower.position();
    QString time = ScreenWords::gone(gone);
    if (m_follower.now().state.isPlaying() && toCome) {
        time += QStringLiteral(" / ") + ScreenWords::gone(gone + *toCome);
    }
    const QRect text = band.adjusted(padding, 0, -padding, 0);
    const int timeWidth = metrics.horizontalAdvance(time);
    const int nameWidth = std::max(0, text.width() - timeWidth - padding);
    const QRect nameRoom(text.left(), text.top(), nameWidth, text.height());
    const QRect timeRoom(text.right() - timeWidth + 1, text.top(), timeWidth, text.height());
    painter.setPen(Qt::white);
    const auto draw = [&](const QRect& room, Qt::Alignment side, const QString& words) {
        const Qt::Alignment seen = QStyle::visualAlignment(layoutDirection(), side);
        painter.drawText(QStyle::visualRect(layoutDirection(), text, room),
                         int(seen | Qt::AlignVCenter) | Qt::TextSingleLine, words);
    };
    const QString name = isolated(QString::fromStdString(m_follower.now().program.progName));
    draw(nameRoom, Qt::AlignLeft, metrics.elidedText(name, Qt::ElideRight, nameWidth));
    draw(timeRoom, Qt::AlignRight, time);
}

void PreviewScreen::paintFrozen(QPainter& painter) const
{
    const int side = std::clamp(height() / 6, 24, 96);
    const int margin = side / 4;
    const QRect corner(width() - side - margin, margin, side, side);
    paintPause(painter, QStyle::visualRect(layoutDirection(), rect(), corner));
}

void PreviewScreen::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        emit doubleClicked();
        event->accept();
    }
}

void PreviewScreen::keyPressEvent(QKeyEvent* event)
{
    if (isWindow() && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F11)) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PreviewScreen::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    emit closed();
}

void PreviewScreen::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        describe();
    }
    QWidget::changeEvent(event);
}

} // namespace trel::desktop
