#include "scheduleControlUI.h"

#include "CheckBoxImages.h"
#include "PlanList.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "ScheduleText.h"
#include "TitleBar.h"
#include "access/AccessibleFactory.h"
#include "card/EditorInUse.h"
#include "centerWidget.h"
#include "clock/Clock.h"
#include "service/scheduleManage.h"
#include "tstranslate/Translator.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include <memory>

namespace trel::mediadispatch {

namespace {

constexpr QSize kPanelSize(1140, 600);
constexpr int kShowLockMSecs = 1000;

tessark::trans::Translator& translator()
{
    return ProgramSheduleWidgetTranslateManager::instance().translator();
}

/// The editor that was shown last: the working set, of which a process has one, is that of its
/// cards.
QPointer<scheduleControlUI>& editorInWork()
{
    static QPointer<scheduleControlUI> editor;
    return editor;
}

/// The other editor that is at work; null where there is none.
scheduleControlUI* editorInTheWay(const scheduleControlUI* of)
{
    scheduleControlUI* const last = editorInWork();
    return last != of && last != nullptr && last->isVisible() ? last : nullptr;
}

} // namespace

scheduleControlUI::scheduleControlUI(QWidget* parent)
    : Dialog(parent)
    , m_menu(nullptr)
{
    installAccessibleFactory();
    m_centerWidget = new centerWidget(dialogWidget());
    m_centerWidget->setFixedSize(kPanelSize);

    m_layout = new QVBoxLayout(dialogWidget());
    m_layout->addWidget(m_centerWidget);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);

    connectAll();
    takeOverTypingAtClose(*this);
    m_showTimer.start();
}

scheduleControlUI::~scheduleControlUI()
{
    // Before the window hides: a field that loses the focus takes over what is typed in it, and a
    // refusal would wait here for an answer, after the end of the program even.
    const std::unique_ptr<centerWidget> panel(m_centerWidget);
}

void scheduleControlUI::connectAll()
{
    PlanList* list = m_centerWidget->planList();
    // The first and the last connection wait for a title bar. Without one the toolkit refuses both
    // with a line on the debug stream, which tells the developer of the host that its language
    // index goes nowhere.
    connect(m_titleBar, &TitleBar::signalButtonCloseClicked, this, &scheduleControlUI::slotCancel,
            Qt::DirectConnection);
    connect(m_centerWidget, &centerWidget::signalCancel, this, &scheduleControlUI::slotCancel,
            Qt::DirectConnection);
    connect(m_centerWidget, &centerWidget::signalSave, this, &scheduleControlUI::slotSave,
            Qt::DirectConnection);
    connect(m_centerWidget, &centerWidget::signalStart, this, &scheduleControlUI::slotStart,
            Qt::DirectConnection);
    connect(this, &scheduleControlUI::signalUpdatePlanList, list, &PlanList::refreshPlanList,
            Qt::DirectConnection);
    connect(this, &scheduleControlUI::sigclearPlanList, list, &PlanList::slotclearPlanList,
            Qt::DirectConnection);
    connect(this, &scheduleControlUI::signalTranslationByQz7, m_titleBar,
            &TitleBar::setLanguageIndex, Qt::DirectConnection);
}

void scheduleControlUI::clearAndInitialize()
{
    if (scheduleControlUI* const other = editorInTheWay(this)) {
        // It is the other's edits that are dropped. This one reads when it is shown.
        other->clearAndInitialize();
        return;
    }
    editorInWork() = this;
    const QPointer<scheduleControlUI> self(this);
    emit sigclearPlanList();
    scheduleManage::getInstance().resetUiTask();
    if (self) {
        emit signalUpdatePlanList();
    }
}

void scheduleControlUI::loadLanguageFiles(const std::vector<QString>& files) const
{
    for (const QString& file : files) {
        translator().load(file);
    }
    switchLanguage(QStringLiteral("zh_CN"));
}

void scheduleControlUI::switchLanguage(const QString& language) const
{
    translator().switchLanguage(language);
}

void scheduleControlUI::translate()
{
    setTitle(scheduleText("zhSchedulePlayStr"));
    if (m_centerWidget) {
        m_centerWidget->slotTranslation();
    }
}

void scheduleControlUI::setCheckBoxImagePath(const QString& checkedPath,
                                             const QString& uncheckedPath) const
{
    checkBoxImagePaths() = {checkedPath, uncheckedPath};
}

void scheduleControlUI::unsetScheduleManage() const {}

void scheduleControlUI::slotCancel()
{
    close();
}

void scheduleControlUI::slotSave()
{
    // A host may ask the operator what becomes of a save that fails.
    const QPointer<scheduleControlUI> self(this);
    scheduleManage::getInstance().save();
    if (self) {
        slotCancel();
    }
}

void scheduleControlUI::slotStart() const
{
    scheduleManage::getInstance().save();
    scheduleManage::getInstance().slotOpen();
}

bool scheduleControlUI::isLocked() const
{
    // Kept in 32 bits, so that the count wraps around after 24 days.
    const auto elapsed = static_cast<qint32>(Clock::current().elapsed(m_showTimer));
    return elapsed < kShowLockMSecs;
}

void scheduleControlUI::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void scheduleControlUI::slotShow(bool bUpdatePlanList)
{
    if (isLocked()) {
        return;
    }
    if (scheduleControlUI* const other = editorInTheWay(this)) {
        qWarning("A schedule editor is not shown, as another one of this process is open.");
        other->bringToFront();
        return;
    }
    // Pending events are handled while the list is built.
    const QPointer<scheduleControlUI> self(this);
    // What the cards of this one show may not be the working set any more.
    const bool wasOther = editorInWork() != nullptr && editorInWork() != this;
    editorInWork() = this;
    if (!isVisible()) {
        show();
        showNormal();
        raise();
        if (bUpdatePlanList || wasOther) {
            emit signalUpdatePlanList();
        }
    }
    if (self) {
        m_showTimer.restart();
    }
}

void scheduleControlUI::slotShow()
{
    slotShow(true);
}

void scheduleControlUI::slotShowTask(int taskId)
{
    if (scheduleControlUI* const other = editorInTheWay(this)) {
        other->slotShowTask(taskId);
    } else if (m_centerWidget && m_centerWidget->planList()) {
        m_centerWidget->planList()->slotShowTask(taskId);
    }
}

void scheduleControlUI::slotShowPlan(int taskId, int planId)
{
    if (scheduleControlUI* const other = editorInTheWay(this)) {
        other->slotShowPlan(taskId, planId);
        return;
    }
    // Pending events are handled while the list is built.
    const QPointer<scheduleControlUI> self(this);
    const QPointer<PlanList> list = m_centerWidget ? m_centerWidget->planList() : nullptr;
    if (!list) {
        return;
    }
    if (isVisible()) {
        if (!list->hasPlan(taskId, planId)) {
            return;
        }
        bringToFront();
    } else {
        // The cards will be those of the stored set, which is read by the list alone.
        slotShow();
    }
    if (self && isVisible() && list) {
        activateWindow();
        list->slotShowPlan(taskId, planId);
    }
}

void scheduleControlUI::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    // Not the frame's own handler: its short cuts are not for the editor.
    QDialog::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

} // namespace trel::mediadispatch
