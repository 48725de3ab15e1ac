#include "TitleBar.h"

#include "ScheduleText.h"
#include "trelwidgets/PlainToolTip.h"
#include "trelwidgets/SignButton.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>

#include <array>
#include <cstdlib>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr int kBarHeight = 30;
constexpr int kSideMargin = 7;
constexpr int kSpaceBeforeTitle = 120;
constexpr int kSpaceAfterTitle = 100;
constexpr int kSpaceBeforeButtons = 8;
constexpr int kTransComboWidth = 190;
constexpr int kResizeEdge = 3; ///< Left to the window that is resized by its edges.
constexpr int kDragStep = 16;
constexpr int kLanguages = 4;

bool isRightButton(const QMouseEvent* event)
{
    return event->button() == Qt::RightButton;
}

/// The bottom edge belongs to the window below the bar, so it starts a drag like the middle.
bool startsDrag(const QPoint& pos, int barWidth)
{
    return pos.x() >= kResizeEdge && pos.y() >= kResizeEdge && pos.x() <= barWidth - kResizeEdge;
}

bool isShortOfStep(const QPoint& way)
{
    return std::abs(way.x()) < kDragStep && std::abs(way.y()) < kDragStep;
}

QPushButton* newButton(const QString& objectName)
{
    auto* button = new widgets::SignButton;
    button->setObjectName(objectName);
    return button;
}

} // namespace

TitleBar::TitleBar(QWidget* parent)
    : QMenuBar(parent)
{
    setProperty("style", QStringLiteral("BG4"));
    buildForm();
    layOut();
    connectControls();
    setAttribute(Qt::WA_MouseTracking);
    setButtonType(m_buttonType);
}

TitleBar::~TitleBar() = default;

void TitleBar::buildForm()
{
    // A desktop with one menu bar for all windows would take this one away and show nothing.
    if (platformMenuBar())
        setNativeMenuBar(false);

    m_buttonMin = newButton(QStringLiteral("ButtonMin"));
    m_buttonRestore = newButton(QStringLiteral("ButtonRestore"));
    m_buttonMax = newButton(QStringLiteral("ButtonMax"));
    m_buttonClose = new widgets::SignButton;
    m_buttonClose->setProperty("imageBtn", QStringLiteral("close"));

    m_transCombo = new QComboBox;
    m_transCombo->setObjectName(QStringLiteral("ComboxTrans"));
    m_transCombo->setFixedWidth(kTransComboWidth);
    m_transCombo->setVisible(false);

    m_titleLabel = new QLabel;
    m_titleLabel->setTextFormat(Qt::PlainText);
    m_titleLabel->setObjectName(QStringLiteral("TitleLabel"));
    m_titleLabel->setContextMenuPolicy(Qt::NoContextMenu);
    m_titleLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_titleLabel->setAlignment(Qt::AlignCenter);
    m_titleLabel->setStyleSheet(
        QStringLiteral("font-size: 16px;color: #FFFFFF; background:transparent"));
    m_titleLabel->setVisible(false);

    m_iconLabel = new QLabel(this);
    m_iconLabel->setObjectName(QStringLiteral("TitleIconLabel"));

    retranslate();
}

void TitleBar::layOut()
{
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    m_layout->addWidget(m_iconLabel);
    m_layout->addSpacing(kSpaceBeforeTitle);
    m_layout->addWidget(m_titleLabel);
    m_layout->addSpacing(kSpaceAfterTitle);
    m_layout->addWidget(m_transCombo);
    m_layout->addSpacing(kSpaceBeforeButtons);
    for (QPushButton* button : {m_buttonMin, m_buttonRestore, m_buttonMax, m_buttonClose})
        m_layout->addWidget(button);

    setFixedHeight(kBarHeight);
    setWindowFlags(Qt::FramelessWindowHint);
}

void TitleBar::connectControls()
{
    // By signature, so that the private slots stay reachable by their names for owners that
    // disconnect one of them.
    connect(m_buttonMin, SIGNAL(clicked()), this, SLOT(onButtonMinClicked()));
    connect(m_buttonRestore, SIGNAL(clicked()), this, SLOT(onButtonRestoreClicked()));
    connect(m_buttonMax, SIGNAL(clicked()), this, SLOT(onButtonMaxClicked()));
    connect(m_buttonClose, SIGNAL(clicked()), this, SLOT(onButtonCloseClicked()));
    connect(m_transCombo, SIGNAL(currentIndexChanged(int)), this, SLOT(slotTransIndexChanged(int)));
}

void TitleBar::setButtonType(int type)
{
    m_buttonType = type;
    switch (type) {
    case MinimiseOnly:
        m_buttonRestore->setVisible(false);
        m_buttonMax->setVisible(false);
        break;
    case NormalWindow:
        m_buttonRestore->setVisible(false);
        m_buttonMax->setVisible(true);
        break;
    case MaximisedWindow:
        if (m_restoreHidden) {
            m_buttonRestore->setVisible(false);
        } else {
            m_buttonMax->setVisible(false);
            m_buttonRestore->setVisible(true);
        }
        break;
    case CloseOnly:
        m_buttonMin->setVisible(false);
        m_buttonRestore->setVisible(false);
        m_buttonMax->setVisible(false);
        break;
    default:
        break;
    }
}

void TitleBar::setTitleContent(QString title)
{
    m_title = std::move(title);
    m_titleLabel->setText(m_title);
    m_titleLabel->setVisible(true);
}

void TitleBar::setMinVisible(bool visible)
{
    m_buttonMin->setVisible(visible);
}

void TitleBar::setMaxVisible(bool visible)
{
    m_buttonMax->setVisible(visible);
    m_maxHidden = !visible;
}

void TitleBar::setRestoreVisible(bool visible)
{
    m_buttonRestore->setVisible(visible);
    m_restoreHidden = !visible;
}

void TitleBar::setCloseVisible(bool visible)
{
    m_buttonClose->setVisible(visible);
}

void TitleBar::setDoubleClickEnabled(bool enabled)
{
    m_doubleClickEnabled = enabled;
}

void TitleBar::hideTranslationCombo()
{
    m_transCombo->setVisible(false);
}

void TitleBar::setLanguageIndex(int index)
{
    if (index >= 0 && index < kLanguages)
        m_transCombo->setCurrentIndex(index);
    retranslate();
}

void TitleBar::retranslate()
{
    const std::array<std::pair<QPushButton*, const char*>, 4> toolTips{{
        {m_buttonMin, "zhMinAct"},
        {m_buttonRestore, "zhReductionAct"},
        {m_buttonMax, "zhMaxAct"},
        {m_buttonClose, "zhCloseAct"},
    }};
    for (const auto& [button, key] : toolTips) {
        if (button) {
            button->setToolTip(widgets::plainToolTip(scheduleText(key)));
            button->setAccessibleName(scheduleText(key));
        }
    }
}

void TitleBar::setHoverFilter(QObject* filter)
{
    const std::array<QWidget*, 5> hovered{m_titleLabel, m_buttonMin, m_buttonRestore, m_buttonMax,
                                          m_buttonClose};
    for (QWidget* widget : hovered) {
        widget->setAttribute(Qt::WA_MouseTracking);
        widget->installEventFilter(filter);
    }
}

void TitleBar::onButtonMinClicked()
{
    emit signalButtonMinClicked();
}

void TitleBar::onButtonRestoreClicked()
{
    setButtonType(NormalWindow);
    emit signalButtonRestoreClicked();
}

void TitleBar::onButtonMaxClicked()
{
    setButtonType(MaximisedWindow);
    emit signalButtonMaxClicked();
}

void TitleBar::onButtonCloseClicked()
{
    emit signalButtonCloseClicked();
}

void TitleBar::slotTransIndexChanged(int)
{
    retranslate();
    emit signalTranslate();
}

// The handlers pass on to QWidget, past QMenuBar, which would take every press and move for a
// choice among its menus, and would paint its panel and items.
// NOLINTBEGIN(bugprone-parent-virtual-call): the menu bar is left out on purpose, see above.

void TitleBar::mousePressEvent(QMouseEvent* event)
{
    if (isRightButton(event))
        return;
    if (startsDrag(event->pos(), width())) {
        m_pressed = true;
        m_startPos = event->globalPos();
    }
    QWidget::mousePressEvent(event);
}

void TitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    m_pressed = false;
    m_ignoreDrag = false;
    QWidget::mouseReleaseEvent(event);
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (isRightButton(event) || !m_doubleClickEnabled)
        return;
    if (m_buttonType == NormalWindow) {
        onButtonMaxClicked();
        // Whatever layout a receiver of the signal asked for, the next double click restores.
        m_buttonType = MaximisedWindow;
    } else if (m_buttonType == MaximisedWindow) {
        onButtonRestoreClicked();
    }
    m_ignoreDrag = true;
    QWidget::mouseDoubleClickEvent(event);
}

void TitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (isRightButton(event))
        return;
    QWidget* window = parentWidget();
    if (m_pressed && !m_ignoreDrag && window) {
        const QPoint way = event->globalPos() - m_startPos;
        // Asked of every step, so the window follows in steps and does not tremble with the hand.
        if (isShortOfStep(way))
            return;
        const QPoint target = window->pos() + way;
        m_startPos = event->globalPos();
        window->move(target);
        emit signalMove(target.x(), target.y());
    }
    QWidget::mouseMoveEvent(event);
}

void TitleBar::paintEvent(QPaintEvent* event)
{
    // The background that a style sheet gives, without the panel and items of a menu bar.
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    option.rect = rect();
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    QWidget::paintEvent(event);
}

void TitleBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

// NOLINTEND(bugprone-parent-virtual-call)

} // namespace trel::mediadispatch
