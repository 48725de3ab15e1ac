#include "centerWidget.h"

#include "PlanList.h"
#include "ScheduleText.h"
#include "card/CardKeyboard.h"
#include "card/EditorInUse.h"
#include "card/EditorKeys.h"
#include "card/Prompts.h"
#include "service/TaskPeriods.h"
#include "service/scheduleManage.h"
#include "toolkit/StyleAgain.h"
#include "ui_centerWidget.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>

namespace trel::mediadispatch {

namespace {

constexpr int kScrollBarWidth = 8;
constexpr int kSpaceAboveHint = 72;
constexpr int kListSpacing = 6;
constexpr int kListMargin = 11;

constexpr char kStyle[] = "style";
constexpr char kState[] = "state";

QString taskName(int taskId)
{
    return QStringLiteral("%1%2").arg(scheduleText("zhPlayTaskStr"), QString::number(taskId));
}

} // namespace

/// The form, and the layout that it holds for a list that brings none. PlanList brings its own, so
/// that this one is a child of the list by name only and lies idle.
class centerWidget::Form : public Ui::centerWidget
{
public:
    void setUp(QWidget& panel)
    {
        setupUi(&panel);
        list = widget;
        verticalLayout_2 = new QVBoxLayout;
        verticalLayout_2->setObjectName(QStringLiteral("verticalLayout_2"));
        verticalLayout_2->setSpacing(kListSpacing);
        verticalLayout_2->setContentsMargins(kListMargin, kListMargin, kListMargin, kListMargin);
        verticalLayout_2->addItem(
            new QSpacerItem(20, 349, QSizePolicy::Minimum, QSizePolicy::Expanding));
        // Last: a layout that is changed tells its parent, which it expects to be another layout,
        // but only once as long as it is not carried out.
        verticalLayout_2->setParent(widget);
    }

    QVBoxLayout* verticalLayout_2 = nullptr;
    QPointer<PlanList> list; ///< The widget, as long as it is there.
};

centerWidget::centerWidget(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Form>())
{
    m_ui->setUp(*this);
    setAttribute(Qt::WA_StyledBackground);
    setProperty(kState, QStringLiteral("default"));
    setUpScrollArea();
    setUpHint();
    setUpButtons();
    connectAll();
    m_keyboard = std::make_unique<CardKeyboard>(*this, *planList(), *m_ui->scrollArea);
}

centerWidget::~centerWidget()
{
    // The list tells its last count when it goes, which is after the panel's own members.
    if (m_ui->list) {
        m_ui->list->disconnect(this);
    }
    if (isEditorInUse()) {
        // The scroll area may just be getting the focus from the editor that asks. The cards in it
        // go with the panel all the same.
        const std::unique_ptr<PlanList> list(m_ui->list);
    }
    keepWhatIsInUse(*this);
}

PlanList* centerWidget::planList() const
{
    return m_ui->list;
}

void centerWidget::setUpScrollArea()
{
    m_ui->scrollArea->adjustSize();
    QScrollBar* bar = m_ui->scrollArea->verticalScrollBar();
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    m_ui->scrollArea->setWidget(m_ui->widget);
    bar->setFixedWidth(kScrollBarWidth);
}

void centerWidget::setUpHint()
{
    m_hintLabel = new QLabel(m_ui->scrollArea);
    m_hintLabel->setTextFormat(Qt::PlainText);
    m_hintLabel->setProperty(kStyle, QStringLiteral("grayHint"));
    m_hintLabel->installEventFilter(this);

    // A layout on the area itself, not on its viewport, so that the hint floats over the list.
    auto* layout = new QVBoxLayout(m_ui->scrollArea);
    layout->addStretch(0);
    layout->addSpacing(kSpaceAboveHint);
    layout->addWidget(m_hintLabel, 0, Qt::AlignHCenter);
    layout->addStretch(0);
    layout->setContentsMargins(0, 0, 0, 0);
}

void centerWidget::setUpButtons()
{
    m_ui->pushButtonAddTask->setProperty(kStyle, QStringLiteral("general"));
    m_ui->pushButtonSave->setProperty(kStyle, QStringLiteral("general"));
    m_ui->pushButtonStart->setProperty(kStyle, QStringLiteral("assist"));
    m_ui->pushButtonClose->setProperty(kStyle, QStringLiteral("assist"));
    for (QPushButton* button : {m_ui->pushButtonAddTask, m_ui->pushButtonSave,
                                m_ui->pushButtonStart, m_ui->pushButtonClose}) {
        button->setFocusPolicy(Qt::NoFocus);
    }
}

void centerWidget::connectAll()
{
    PlanList* list = planList();
    connect(m_ui->pushButtonAddTask, &QPushButton::clicked, list, &PlanList::slotAddOutput);
    connect(m_ui->pushButtonSave, &QPushButton::clicked, this, &centerWidget::slotSave);
    connect(m_ui->pushButtonStart, &QPushButton::clicked, this, &centerWidget::slotStart);
    connect(m_ui->pushButtonClose, &QPushButton::clicked, this, &centerWidget::signalCancel);
    connect(list, &PlanList::sigShowProcess, this, &centerWidget::slotShowProcess);
    connect(list, &PlanList::sigCloseProcess, this, &centerWidget::slotCloseProcess);
    connect(list, &PlanList::sigGetMapCount, this, &centerWidget::slotGetMapCount);
    connect(this, &centerWidget::signalTranslation, list, &PlanList::sigTranslation);
}

// The buttons take no focus, so that their keys are all that a keyboard has of them.
void centerWidget::nameKeys()
{
    m_ui->pushButtonAddTask->setToolTip(
        withKey(scheduleText("zhSchedulePlayStrAdd"), EditorKey::AddTask));
    m_ui->pushButtonSave->setToolTip(withKey(m_ui->pushButtonSave->text(), EditorKey::Save));
    m_ui->pushButtonStart->setToolTip(withKey(m_ui->pushButtonStart->text(), EditorKey::Start));
    m_ui->pushButtonClose->setToolTip(withKey(m_ui->pushButtonClose->text(), EditorKey::Cancel));
}

bool centerWidget::checkTaskPeriods(QString& message) const
{
    const auto overlap = firstTaskOverlap(scheduleManage::getInstance().getAllTask());
    if (!overlap) {
        return true;
    }
    message = QStringLiteral("%1,%2 %3")
                  .arg(taskName(overlap->first), taskName(overlap->second),
                       scheduleText("zhSegConflictStr"));
    return false;
}

bool centerWidget::mayBeSaved()
{
    // The buttons take no focus, so that no editor has lost it.
    if (!takeOverTypingAtLast(*this)) {
        return false;
    }
    QString message;
    if (checkTaskPeriods(message)) {
        return true;
    }
    showRefusal(message);
    return false;
}

void centerWidget::slotSave()
{
    if (mayBeSaved()) {
        emit signalSave();
    }
}

void centerWidget::slotStart()
{
    if (mayBeSaved()) {
        emit signalStart();
    }
}

void centerWidget::slotGetMapCount(int count)
{
    const bool empty = count < 1;
    m_hintLabel->setVisible(empty);
    const QString state = empty ? QStringLiteral("default") : QStringLiteral("busy");
    const bool isOther = property(kState).toString() != state;
    setProperty(kState, state);
    // Makes the style sheet look at the property again. Under one of a window that is to look at
    // all that lies in the panel, which would be once for each card of a list that is built.
    if (isOther || style() == QApplication::style()) {
        m_isStyleChanging = true;
        setStyleAgain(*this);
        m_isStyleChanging = false;
    }
}

void centerWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    noticeStyle(*event);
}

bool centerWidget::eventFilter(QObject* watched, QEvent* event)
{
    // What has been given a style is not told when the application takes another one. Its parts
    // are.
    noticeStyle(*event);
    return QWidget::eventFilter(watched, event);
}

void centerWidget::noticeStyle(const QEvent& event)
{
    // Dropping a style is such a change as well.
    if (event.type() == QEvent::StyleChange && !m_isStyleChanging) {
        m_isStyleChanging = true;
        dropFormerStyle(*this);
        m_isStyleChanging = false;
    }
}

void centerWidget::slotShowProcess()
{
    if (const PlanList* const list = planList()) {
        disconnect(m_ui->pushButtonAddTask, &QPushButton::clicked, list, &PlanList::slotAddOutput);
    }
    m_ui->pushButtonAddTask->setText(scheduleText("zhScheduleLoading"));
    m_ui->pushButtonAddTask->setDisabled(true);
}

void centerWidget::slotCloseProcess()
{
    if (const PlanList* const list = planList()) {
        connect(m_ui->pushButtonAddTask, &QPushButton::clicked, list, &PlanList::slotAddOutput);
    }
    m_ui->pushButtonAddTask->setText(scheduleText("zhSchedulePlayStrAdd"));
    m_ui->pushButtonAddTask->setEnabled(true);
}

void centerWidget::slotTranslation()
{
    m_ui->pushButtonClose->setText(scheduleText("zhCancelAct"));
    m_ui->pushButtonSave->setText(scheduleText("zhFixAct"));
    m_ui->pushButtonStart->setText(scheduleText("zhEnable"));
    m_ui->pushButtonAddTask->setText(scheduleText("zhSchedulePlayStrAdd"));
    m_hintLabel->setText(scheduleText("zhNoPlayTask"));
    m_ui->scrollArea->setAccessibleName(scheduleText("zhSchedulePlayStr"));
    nameKeys();
    emit signalTranslation();
}

} // namespace trel::mediadispatch
