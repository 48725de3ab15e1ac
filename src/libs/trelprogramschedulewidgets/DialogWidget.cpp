#include "DialogWidget.h"

#include "ScheduleText.h"
#include "TitleBar.h"
#include "ui_DialogWidget.h"

#include <QEvent>
#include <QFile>
#include <QMargins>
#include <QPointer>

#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr QMargins kTipMargins{10, 15, 10, 15};

} // namespace

DialogWidget::DialogWidget(QWidget* parent)
    : QDialog(parent)
{
    setUpWindow();
    buildForm();
    setTitle(scheduleText("zhtitleTip"));
    m_leftSpacer->setVisible(false);
    m_titleBar->hideTranslationCombo();
    loadStyleSheet();
    connectControls();
}

DialogWidget::~DialogWidget() = default;

void DialogWidget::setUpWindow()
{
    setWindowModality(Qt::ApplicationModal);
    setModal(true);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::CoverWindow);
    setAcceptDrops(true);
    setAttribute(Qt::WA_TranslucentBackground);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void DialogWidget::buildForm()
{
    Ui::DialogWidget ui;
    ui.setupUi(this);

    m_bottomLayout = ui.bottomLayout;
    m_mainLayout = ui.mainLayout;
    m_centerLayout = ui.centerLayout;
    m_leftSpacer = ui.leftSpacer;
    m_rightSpacer = ui.rightSpacer;
    m_acceptBtn = ui.dialogAcceptBtn;
    m_rejectBtn = ui.dialogRejectBtn;
    m_cancelBtn = ui.dialogCancelBtn;
    m_titleBar = ui.dialogTitle;
    m_bottomWidget = ui.dialogBottom;
    m_centerWidget = ui.dialogCenter;
    m_tipLabel = ui.dialogTipLabel;

    m_tipLabel->setText(scheduleText("zhtitleTip"));
    // A label that is no larger than its margins loses them at a change of style, and before it is
    // laid out it is just as high as these.
    m_tipLabel->resize(minimumSize());
    m_tipLabel->setContentsMargins(kTipMargins);
    m_titleBar->setMinVisible(false);
    m_titleBar->setMaxVisible(false);
    m_titleBar->setRestoreVisible(false);
    m_titleBar->setCloseVisible(false);
    m_titleBar->setDoubleClickEnabled(false);
    setButtonTexts();
}

void DialogWidget::setButtonTexts()
{
    m_acceptBtn->setText(scheduleText("zhFixAct"));
    m_rejectBtn->setText(scheduleText("zhRefuseAct"));
    m_cancelBtn->setText(scheduleText("zhCancelAct"));
}

void DialogWidget::loadStyleSheet()
{
    QFile file(QStringLiteral(":/qss/qss/dialog.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    // Read as a C string: a sheet that was padded with zero bytes ends at the first of them.
    const QString sheet = QString::fromLatin1(file.readAll().constData());
    setStyleSheet(sheet);
    m_titleBar->setStyleSheet(sheet);
}

void DialogWidget::connectControls()
{
    connect(m_acceptBtn, &QPushButton::clicked, this, &DialogWidget::slotAccept);
    connect(m_rejectBtn, &QPushButton::clicked, this, &DialogWidget::slotReject);
    connect(m_cancelBtn, &QPushButton::clicked, this, &DialogWidget::slotCancel);
    connect(m_titleBar, &TitleBar::signalButtonCloseClicked, this, &DialogWidget::slotCancel);
    connect(m_titleBar, &TitleBar::signalButtonMaxClicked, this, &DialogWidget::slotMaxBtn);
    connect(m_titleBar, &TitleBar::signalButtonRestoreClicked, this, &DialogWidget::slotRestoreBtn);
}

int DialogWidget::exec()
{
    const QPointer<DialogWidget> self(this);
    QDialog::exec();
    if (!self)
        return CancelResult; // An owner went away during the run and took the dialog along.
    // A box layout stands for no widget of its own, so nothing is taken out: the content stays for
    // the next run, and the toolkit notes a null widget in its log.
    m_centerLayout->removeWidget(m_centerLayout->widget());
    return m_result;
}

void DialogWidget::setTitle(QString text)
{
    m_titleBar->setTitleContent(std::move(text));
}

void DialogWidget::setTipText(QString text, int alignment)
{
    m_tipLabel->setText(text);
    m_tipLabel->setAlignment(Qt::Alignment(alignment));
}

void DialogWidget::setContentWidget(QWidget* widget)
{
    m_tipLabel->setVisible(false);
    m_centerLayout->addWidget(widget);
    m_centerLayout->setContentsMargins(1, 0, 1, 0);
}

void DialogWidget::setAcceptText(QString text)
{
    m_acceptBtn->setText(text);
}

void DialogWidget::setCancelText(QString text)
{
    m_cancelBtn->setText(text);
}

void DialogWidget::setAcceptVisible(bool show)
{
    m_acceptBtn->setVisible(show);
}

void DialogWidget::setRejectVisible(bool show)
{
    m_rejectBtn->setVisible(show);
    m_rightSpacer->setVisible(show);
    m_leftSpacer->setVisible(!show);
}

void DialogWidget::setCancelVisible(bool show)
{
    m_cancelBtn->setVisible(show);
    m_leftSpacer->setVisible(!show);
}

void DialogWidget::setButtons(int flags)
{
    switch (flags) {
    case 0:
        setAcceptVisible(false);
        setRejectVisible(false);
        setCancelVisible(false);
        break;
    case AcceptButton:
        setCancelVisible(false);
        setRejectVisible(false);
        break;
    case RejectButton:
        setAcceptVisible(false);
        setCancelVisible(false);
        break;
    case CancelButton:
        setAcceptVisible(false);
        setRejectVisible(false);
        break;
    case AcceptButton | RejectButton:
        setCancelVisible(false);
        break;
    case AcceptButton | CancelButton:
        setRejectVisible(false);
        break;
    case RejectButton | CancelButton:
        setAcceptVisible(false);
        break;
    default:
        break;
    }
}

void DialogWidget::setButtonEnabled(int button, bool enabled)
{
    switch (button) {
    case AcceptButton:
        m_acceptBtn->setEnabled(enabled);
        break;
    case RejectButton:
        m_rejectBtn->setEnabled(enabled);
        break;
    case CancelButton:
        m_cancelBtn->setEnabled(enabled);
        break;
    default:
        break;
    }
}

void DialogWidget::setCloseMode(int mode)
{
    m_closeMode = mode;
}

void DialogWidget::slotAccept()
{
    emit signalAccept();
    finish(AcceptResult);
}

void DialogWidget::slotReject()
{
    emit signalReject();
    finish(RejectResult);
}

void DialogWidget::slotCancel()
{
    emit signalCancel();
    finish(CancelResult);
}

void DialogWidget::finish(Result result)
{
    m_result = result;
    if (m_closeMode != kStayOpen)
        close();
}

void DialogWidget::slotMaxBtn()
{
    m_titleBar->setMaxVisible(false);
    m_titleBar->setRestoreVisible(true);
    emit signalMaxButtonCLicked();
}

void DialogWidget::slotRestoreBtn()
{
    m_titleBar->setMaxVisible(true);
    m_titleBar->setRestoreVisible(false);
    emit signalRestoreButtonCLicked();
}

void DialogWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setButtonTexts();
}

} // namespace trel::mediadispatch
