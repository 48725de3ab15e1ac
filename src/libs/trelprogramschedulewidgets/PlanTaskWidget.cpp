#include "PlanTaskWidget.h"

#include "LineEditDelegate.h"
#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "ProgramChoose.h"
#include "ScheduleText.h"
#include "card/AnswerCatalogue.h"
#include "card/ConflictPass.h"
#include "card/EditorInUse.h"
#include "card/FocusInSight.h"
#include "card/FoldedRows.h"
#include "card/LatePlanModel.h"
#include "card/PlanColumns.h"
#include "card/PlanLabels.h"
#include "card/PlanRow.h"
#include "card/PlanRowState.h"
#include "card/PlanRowTexts.h"
#include "card/PlanRows.h"
#include "card/PlanTabOrder.h"
#include "card/PlanTable.h"
#include "card/PlanTaskForm.h"
#include "card/ProgramNames.h"
#include "card/Prompts.h"
#include "service/DateText.h"
#include "service/NewPlan.h"
#include "service/PlanTiming.h"
#include "service/TaskPlans.h"
#include "service/TimeText.h"
#include "service/scheduleManage.h"
#include "toolkit/BusyPointer.h"
#include "toolkit/NewWidgets.h"
#include "toolkit/StyleRecords.h"

#include "trelwidgets/ComboBox.h"
#include "trelwidgets/PlainToolTip.h"

#include <QDate>
#include <QDebug>
#include <QPointer>
#include <QSpinBox>
#include <QTimeEdit>

#include <algorithm>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

using widgets::ComboBox;

namespace {

constexpr int kLeastTimes = 1;
/// One more than the box of a row can show: what reaches the card in other ways may hold it.
constexpr int kMostTimes = 1000;
constexpr int kConfirmed = 0;
/// To build so many rows takes long enough to be noticed: about a tenth of a second.
constexpr std::size_t kNoticeableRows = 100;

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

bool hasNoDuration(int progIndex)
{
    return service().isNoDurationType(progIndex);
}

/// What the row of a plan of the task shows at first. A plan without an id gets one in its row.
PlanRowState rowOf(const PlayPlan& plan, const PlayTask& task, const ProgramSuffixes& suffixes)
{
    if (plan.id != kNoPlanId) {
        return {plan, suffixes};
    }
    PlayPlan completed = plan;
    // Without an id left it is shown as it is.
    completeNewPlan(completed, task);
    return {completed, suffixes};
}

bool areTimesTaken(int times)
{
    return times >= kLeastTimes && times <= kMostTimes;
}

} // namespace

PlanTaskWidget::PlanTaskWidget(const PlayTask& task, QWidget* parent)
    : PlanTaskWidget(task, parent, Rows::Built)
{}

PlanTaskWidget::PlanTaskWidget(const PlayTask& task, QWidget* parent, Rows rows)
    : QWidget(parent)
    , m_ui(std::make_unique<PlanTaskForm>())
    , m_task(task)
{
    qRegisterMetaType<ComBoxType>("ComBoxType");
    AnswerCatalogue::followService();
    auto* const model = new LatePlanModel(this);
    m_model = model;
    setUpForm();
    setUpTable();
    m_ui->showDates(m_task);
    makeConnections();
    loadPlans();
    if (rows == Rows::Built) {
        buildTable();
    } else if (m_foldedRows) {
        keepRowsUnasked(*m_ui->tableView);
        model->fillWhenAsked([card = QPointer<PlanTaskWidget>(this)] {
            if (card) {
                card->buildTable();
            }
        });
    }
}

PlanTaskWidget::~PlanTaskWidget()
{
    // No table that is kept asks for its rows any more.
    m_foldedRows.reset();
    keepWhatIsInUse(*this);
}

PlanTaskWidget* PlanTaskWidget::makeFolded(const PlayTask& task, QWidget* parent)
{
    auto* const card = new PlanTaskWidget(task, parent, Rows::Folded);
    card->setFolded(true);
    settleNewWidget(*card);
    return card;
}

void PlanTaskWidget::setUpForm()
{
    m_ui->setUp(*this);
    m_ui->followDirection(*this);
    releaseStyleRecords(*this);
    m_ui->translate(m_task);
    m_ui->pbtCreatCopy->installEventFilter(this);
    m_ui->pushButtonDelete->installEventFilter(this);
}

void PlanTaskWidget::setUpTable()
{
    LineEditDelegate* const programs = setUpPlanTable(*m_ui->tableView, *m_model, this);
    connect(programs, &LineEditDelegate::signalClicked, this, &PlanTaskWidget::slotAddProgram);
    m_ui->tableView->viewport()->installEventFilter(this);
}

void PlanTaskWidget::makeConnections()
{
    connect(m_ui->title, &QPushButton::toggled, this, &PlanTaskWidget::slotFold);
    connect(m_ui->pushButtonAdd, &QPushButton::clicked, this,
            &PlanTaskWidget::onPushButtonAddClicked);
    connect(m_ui->dateEditVaildStartTime, &QDateEdit::dateChanged, this,
            &PlanTaskWidget::slotUpdateStartTimeDate);
    connect(m_ui->dateEditVaildEndTime, &QDateEdit::dateChanged, this,
            &PlanTaskWidget::slotUpdateEndTimeDate);
    connect(m_ui->pushButtonDelete, &QPushButton::clicked, this, &PlanTaskWidget::slotDeleteTask);
    connect(m_ui->pbtCreatCopy, &QPushButton::clicked, this, &PlanTaskWidget::slotCopyTask);
    connect(m_model, &PlanStandardItemModel::itemChanged, this,
            &PlanTaskWidget::slotcurrentChanged);
    connect(&service(), &scheduleManage::signalReflushConflict, this,
            &PlanTaskWidget::slotReflushConflict);
    connect(&service(), &scheduleManage::signalUpdatePlanEndTime, this,
            &PlanTaskWidget::slotUpdateEndTime);
}

// Does for each plan what slotAddRowPlan does. While rows are all that is added the plans stay as
// they are, and so do their collisions: they are worked out once.
void PlanTaskWidget::loadPlans()
{
    if (m_task.plans.empty()) {
        return;
    }
    const std::unordered_set<int> colliding = markConflicts(m_task);
    const ProgramSuffixes suffixes = programSuffixes();
    m_foldedRows = std::make_unique<FoldedRows>(m_task.plans.size());
    for (const PlayPlan& plan : m_task.plans) {
        PlanRowState row = rowOf(plan, m_task, suffixes);
        const int planId = row.planId;
        enterPlan(planId, m_foldedRows->add(std::move(row)));
        service().addTask(m_task);
    }
    showStates(colliding);
}

void PlanTaskWidget::buildTable()
{
    const std::unique_ptr<FoldedRows> rows = std::move(m_foldedRows);
    if (!rows) {
        return;
    }
    letRowsBeAsked(*m_ui->tableView);
    m_ui->tableView->setUpdatesEnabled(false);
    int row = 0;
    for (const PlanRowEditors& editors : buildPlanRows(*m_ui->tableView, *m_model, *rows)) {
        enterEditors(row, editors);
        ++row;
    }
    if (rows->laterTexts()) {
        translateRows(*rows->laterTexts());
    }
    m_ui->tableView->setUpdatesEnabled(true);
}

void PlanTaskWidget::setFolded(bool folded)
{
    m_ui->title->setChecked(folded);
}

bool PlanTaskWidget::isFolded() const
{
    return m_ui->title->isChecked();
}

int PlanTaskWidget::rowOfPlan(int planId) const
{
    const auto found = m_rowByPlanId.find(planId);
    return found == m_rowByPlanId.end() ? -1 : found->second;
}

std::optional<int> PlanTaskWidget::planInTheWay(int row) const
{
    if (row < 0 || row >= static_cast<int>(m_task.plans.size())) {
        return std::nullopt;
    }
    // One who goes through the rows asks for each of them.
    if (m_firstCollisions.size() != m_task.plans.size()) {
        m_firstCollisions = firstCollisions(m_task.plans);
    }
    const int place = m_firstCollisions[static_cast<std::size_t>(row)];
    return place < 0 ? std::nullopt
                     : std::optional<int>(m_task.plans[static_cast<std::size_t>(place)].id);
}

void PlanTaskWidget::slotFold(bool isFold)
{
    const EditorInUse inUse;
    if (isFold && !takeOverTyping(*this)) {
        return;
    }
    std::optional<BusyPointer> busy;
    if (!isFold) {
        if (m_foldedRows && m_foldedRows->rows().size() >= kNoticeableRows) {
            busy.emplace(*this);
        }
        buildTable();
    }
    m_ui->showFolded(isFold);
    if (!isFold && isVisible()) {
        paintAsAWhole(*m_ui->widget);
    }
    adjustSize();
}

bool PlanTaskWidget::eventFilter(QObject* watched, QEvent* event)
{
    m_ui->showToolTipOnEnter(watched, *event);
    return QWidget::eventFilter(watched, event);
}

void PlanTaskWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        m_ui->followDirection(*this);
    }
}

std::string PlanTaskWidget::addDuration(const std::string& start, int seconds)
{
    return mediadispatch::addDuration(start, seconds);
}

void PlanTaskWidget::slotTranslation()
{
    AnswerCatalogue catalogue(sender());
    const PlanRowTexts texts(PlanRowTexts::RowsOnShow);
    if (m_foldedRows) {
        m_foldedRows->translate(texts);
    } else {
        translateRows(texts);
    }
    m_ui->translate(m_task);
    m_ui->pbtCreatCopy->setToolTip(widgets::plainToolTip(texts.copy));
    m_ui->pushButtonDelete->setToolTip(widgets::plainToolTip(texts.remove));
    refreshConflicts(catalogue);
}

void PlanTaskWidget::translateRows(const PlanRowTexts& texts)
{
    for (const auto& box : m_modeCombos) {
        if (box.widget) {
            translateModeBox(*box.widget, texts);
        }
    }
    for (const auto& box : m_weekCombos) {
        if (box.widget) {
            translateWeekBox(*box.widget, texts);
        }
    }
    for (const auto& box : m_endActionCombos) {
        if (box.widget) {
            translateEndActionBox(*box.widget, texts);
        }
    }
    for (int row = 0; row < m_model->rowCount(); ++row) {
        translatePlanRow(*m_ui->tableView, row, texts);
    }
}

void PlanTaskWidget::onPushButtonAddClicked()
{
    slotAddRowPlan(planTemplate(), false);
}

void PlanTaskWidget::slotAddRowPlan(PlayPlan plan, bool init)
{
    if (plan.id == kNoPlanId && !completeNewPlan(plan, m_task) && !init) {
        return;
    }
    if (!init && !choosePrograms(plan)) {
        return;
    }
    plan.isConflict = false;
    buildTable();
    const PlanRowState state(plan);
    const PlanRowTexts texts(PlanRowTexts::NewRows);
    state.correct(plan);
    const int row = appendPlanCells(*m_model, state, texts);
    enterPlan(plan.id, row);
    enterEditors(row, addPlanEditors(*m_ui->tableView, row, state, texts));
    if (!init) {
        service().addPlan(m_task.id, plan);
        m_task.plans.push_back(std::move(plan));
    }
    refreshConflicts();
    openRowEditors(*m_ui->tableView, row, texts);
}

bool PlanTaskWidget::choosePrograms(PlayPlan& plan)
{
    const QPointer<PlanTaskWidget> self(this);
    ProgramChoose chooser(&m_task, m_task.id, plan.id, this, true);
    if (chooser.execChoose() != kConfirmed || !self) {
        return false;
    }
    plan.hasNoDuration = chooser.hasNoDuration();
    plan.programs = chooser.getSelectedPrograms();
    return true;
}

void PlanTaskWidget::enterPlan(int planId, int row)
{
    // Neither takes the place of an entry that is there.
    m_rowByPlanId.emplace(planId, row);
    m_planIdByRow.emplace(row, planId);
}

template <typename T>
void PlanTaskWidget::enterWidget(std::vector<RowWidget<T>>& widgets, int row, T* widget)
{
    widgets.push_back({row, widget});
    connect(widget, &QObject::destroyed, m_editorWatch.get(),
            [&widgets](const QObject* gone) { loseWidget(widgets, gone); });
}

QWidget* PlanTaskWidget::lastField() const
{
    const auto last = std::find_if(m_endActionCombos.rbegin(), m_endActionCombos.rend(),
                                   [](const auto& entry) { return entry.widget; });
    if (last != m_endActionCombos.rend()) {
        return last->widget;
    }
    return m_ui->dateEditVaildEndTime;
}

void PlanTaskWidget::enterEditors(int row, const PlanRowEditors& editors)
{
    connect(editors.mode, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PlanTaskWidget::slotModeIndexChanged);
    connect(editors.startTime, &QTimeEdit::timeChanged, this,
            &PlanTaskWidget::slotStartTimeChanged);
    connect(editors.endTime, &QTimeEdit::timeChanged, this, &PlanTaskWidget::slotEndTimeChanged);
    connect(editors.times, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &PlanTaskWidget::slotTimesChanged);
    connect(editors.weeks, &MultiComboBox::signalSelectedText, this,
            &PlanTaskWidget::slotSelectedText);
    connect(editors.endAction, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PlanTaskWidget::slotEndActionIndexChanged);
    connect(editors.copy, &QPushButton::clicked, this, &PlanTaskWidget::slotCopyPlan);
    connect(editors.remove, &QPushButton::clicked, this, &PlanTaskWidget::slotDeletePlan);
    placeInTabOrder(editors, *lastField());
    keepFocusInSight(*m_ui->tableView, editors);

    enterWidget(m_modeCombos, row, editors.mode);
    enterWidget(m_startTimeEdits, row, editors.startTime);
    enterWidget(m_endTimeEdits, row, editors.endTime);
    enterWidget(m_timesSpins, row, editors.times);
    enterWidget(m_conflictLabels, row, editors.state);
    enterWidget(m_weekCombos, row, editors.weeks);
    enterWidget(m_endActionCombos, row, editors.endAction);
}

void PlanTaskWidget::slotAddProgram(int row)
{
    const auto found = m_planIdByRow.find(row);
    if (found == m_planIdByRow.end()) {
        return;
    }
    buildTable();
    const int planId = found->second;
    const QPointer<PlanTaskWidget> self(this);
    ProgramChoose chooser(&m_task, m_task.id, planId, this, false);
    QString text = chooser.getSelectedProgramText();
    const int result = chooser.execChoose();
    if (!self) {
        return;
    }
    if (result == kConfirmed) {
        text = chooser.getSelectedProgramText();
        m_model->setData(m_model->index(row, ProgramsColumn), text, ProgramTextRole);
        if (!lockModeOfRow(row, planId)) {
            return;
        }
    }
    service().setqstrSelectedProgram(text.toStdString());
    m_task = service().getTask(m_task.id);
    m_firstCollisions.clear();

    const PlayPlan* const plan = planOfRow(row);
    if (plan && plan->mode == FrequencyMode && recomputeEnd(row, service().getPrograms())) {
        refreshConflicts();
    }
}

// Allows a choice of the mode only as long as every program of the stored plan has a length.
bool PlanTaskWidget::lockModeOfRow(int row, int planId)
{
    ComboBox* const box = widgetOfRow(m_modeCombos, row);
    if (!box) {
        return true;
    }
    int index = -1;
    const bool isLocked = service().getPlan(m_task.id, planId, index).hasNoDuration;
    const QPointer<PlanTaskWidget> self(this);
    if (isLocked) {
        box->setCurrentIndex(TimeMode);
    }
    if (!self) {
        return false;
    }
    box->setDisabled(isLocked);
    return true;
}

PlayPlan* PlanTaskWidget::planOfRow(int row)
{
    // A task that was read from the service again may hold fewer plans than there are rows.
    return planAt(m_task, row);
}

PlayPlan* PlanTaskWidget::planByIdOfRow(int row)
{
    const auto id = m_planIdByRow.find(row);
    return id == m_planIdByRow.end() ? nullptr : firstPlanWithId(m_task, id->second);
}

void PlanTaskWidget::computeEndTime(int index, std::string& out)
{
    if (const PlayPlan* const plan = planOfRow(index)) {
        out = plannedEnd(*plan, service().getPrograms(), hasNoDuration);
    }
}

bool PlanTaskWidget::recomputeEnd(int row, const std::map<int, ProgramIten>& catalogue)
{
    PlayPlan* const plan = planOfRow(row);
    if (!plan || !showsEnd(row)) {
        return true;
    }
    // Written first: the editor comes back through slotEndTimeChanged, which has to find nothing
    // new.
    plan->endTime = plannedEnd(*plan, catalogue, hasNoDuration);
    return showEnd(row, timeFromText(plan->endTime));
}

int PlanTaskWidget::rowCount() const
{
    return m_foldedRows ? static_cast<int>(m_foldedRows->rows().size()) : m_model->rowCount();
}

bool PlanTaskWidget::showsEnd(int row) const
{
    return m_foldedRows ? m_foldedRows->isRow(row) : widgetOfRow(m_endTimeEdits, row) != nullptr;
}

bool PlanTaskWidget::showEnd(int row, const QTime& time)
{
    const QPointer<PlanTaskWidget> self(this);
    if (!m_foldedRows) {
        if (QTimeEdit* const editor = widgetOfRow(m_endTimeEdits, row)) {
            editor->setTime(time);
        }
    } else if (m_foldedRows->setEndTime(row, time)) {
        slotUpdateTime(row, EndTimeColumn, time);
    }
    return !self.isNull();
}

// Every card answers every signal of the service, and most of them have nothing that follows from
// the catalogue.
void PlanTaskWidget::slotUpdateEndTime()
{
    AnswerCatalogue catalogue(sender());
    // Rows may come and go while an end is refused.
    for (int row = 0; row < rowCount(); ++row) {
        const PlayPlan* const plan = planOfRow(row);
        if (plan && plan->mode == FrequencyMode && !recomputeEnd(row, catalogue.programs())) {
            return;
        }
    }
    // What has come while a refusal was on screen counts.
    catalogue.renew();
    refreshConflicts(catalogue);
}

void PlanTaskWidget::refreshConflicts()
{
    AnswerCatalogue ofTheMoment(nullptr);
    refreshConflicts(ofTheMoment);
}

void PlanTaskWidget::refreshConflicts(AnswerCatalogue& catalogue)
{
    m_firstCollisions.clear();
    showStates(markConflicts(
        m_task, [&]() -> const std::map<int, ProgramIten>& { return catalogue.programs(); }));
    m_ui->tableView->QWidget::update();
    service().addTask(m_task);
}

void PlanTaskWidget::showStates(const std::unordered_set<int>& colliding)
{
    if (m_foldedRows) {
        m_foldedRows->showStates(colliding, m_planIdByRow);
        return;
    }
    const PlanStateLook look;
    std::vector<QLabel*> changed;
    auto planId = m_planIdByRow.cbegin();
    for (const auto& state : m_conflictLabels) {
        // Labels stand in the order of their rows, so that it mostly is the next entry.
        if (planId == m_planIdByRow.cend() || planId->first != state.row) {
            planId = m_planIdByRow.find(state.row);
        }
        if (planId == m_planIdByRow.cend()) {
            continue;
        }
        if (state.widget) {
            if (look.show(*state.widget, colliding.count(planId->second) > 0)) {
                changed.push_back(state.widget);
            }
        }
        ++planId;
    }
    tellStates(*this, changed);
}

void PlanTaskWidget::slotReflushConflict(int)
{
    AnswerCatalogue catalogue(sender());
    m_task = service().getTask(m_task.id);
    refreshConflicts(catalogue);
}

void PlanTaskWidget::slotModeIndexChanged(int index)
{
    const EditorInUse inUse;
    const int row = rowOfWidget(m_modeCombos, sender());
    if (row != -1) {
        slotCurrentIndexChangeSignal(row, ModeCombo, index);
    }
}

void PlanTaskWidget::slotEndActionIndexChanged(int index)
{
    const int row = rowOfWidget(m_endActionCombos, sender());
    if (row != -1) {
        slotCurrentIndexChangeSignal(row, EndActionCombo, index);
    }
}

void PlanTaskWidget::slotCurrentIndexChangeSignal(int row, ComBoxType type, int value)
{
    switch (type) {
    case ModeCombo:
        if (!changeMode(row, value)) {
            return;
        }
        break;
    case EndActionCombo:
        if (PlayPlan* const plan = planOfRow(row)) {
            plan->endAction = value;
        }
        break;
    }
    refreshConflicts();
}

// The end is worked out in both directions, so that a plan that goes back to TimeMode starts from
// the end that it had in FrequencyMode.
bool PlanTaskWidget::changeMode(int row, int mode)
{
    buildTable();
    // An editor that is disabled takes over what is being typed in it.
    const QPointer<PlanTaskWidget> self(this);
    if (QSpinBox* const times = widgetOfRow(m_timesSpins, row)) {
        times->setDisabled(mode == TimeMode);
    }
    if (!self) {
        return false;
    }
    if (QTimeEdit* const end = widgetOfRow(m_endTimeEdits, row)) {
        end->setDisabled(mode != TimeMode);
        if (!self || !recomputeEnd(row, service().getPrograms())) {
            return false;
        }
    }
    qDebug() << "mode changed:" << 0 << mode;
    if (PlayPlan* const plan = planOfRow(row)) {
        plan->mode = mode;
    }
    return true;
}

void PlanTaskWidget::slotStartTimeChanged(QTime newTime)
{
    const EditorInUse inUse;
    const int row = rowOfWidget(m_startTimeEdits, sender());
    PlayPlan* const plan = planOfRow(row);
    if (!plan) {
        return;
    }
    if (plan->mode == FrequencyMode) {
        // The end follows the new start, while the check that comes after it has to compare with
        // the start from before the edit.
        const std::string formerStart = std::exchange(plan->startTime, timeToText(newTime));
        if (!recomputeEnd(row, service().getPrograms())) {
            return;
        }
        if (PlayPlan* const samePlan = planOfRow(row)) {
            samePlan->startTime = formerStart;
        }
    }
    slotUpdateTime(row, StartTimeColumn, newTime);
}

void PlanTaskWidget::slotEndTimeChanged(QTime newTime)
{
    const EditorInUse inUse;
    const int row = rowOfWidget(m_endTimeEdits, sender());
    if (row != -1) {
        slotUpdateTime(row, EndTimeColumn, newTime);
    }
}

void PlanTaskWidget::slotTimesChanged(int value)
{
    const EditorInUse inUse;
    const int row = rowOfWidget(m_timesSpins, sender());
    if (!areTimesTaken(value) || m_planIdByRow.count(row) == 0) {
        return;
    }
    if (PlayPlan* const plan = planByIdOfRow(row)) {
        plan->times = value;
    }
    if (recomputeEnd(row, service().getPrograms())) {
        refreshConflicts();
    }
}

// A number of runs that is written into the cell itself. The end and its editor are left to the
// next recalculation.
void PlanTaskWidget::slotcurrentChanged(QStandardItem* item)
{
    if (!item || item->column() != TimesColumn) {
        return;
    }
    const int times = item->text().toInt(nullptr, 10);
    if (!areTimesTaken(times)) {
        return;
    }
    if (PlayPlan* const plan = planByIdOfRow(item->row())) {
        plan->times = times;
        refreshConflicts();
    }
}

void PlanTaskWidget::slotSelectedText(QStringList newWeeks)
{
    const int row = rowOfWidget(m_weekCombos, sender());
    if (PlayPlan* const plan = planByIdOfRow(row)) {
        plan->weeks = weeksFromLabels(newWeeks);
        refreshConflicts();
    }
}

void PlanTaskWidget::refreshEditorrow(int row)
{
    buildTable();
    QAbstractItemDelegate* const delegate = m_ui->tableView->itemDelegateForColumn(ProgramsColumn);
    if (auto* const programs = qobject_cast<LineEditDelegate*>(delegate)) {
        programs->removeRow(row);
    }
}

// What is refused goes back through the editor's own signal with the stored value, which passes.
// A service or a host may act while a refusal is on screen: the card may be gone afterwards, or
// hold a task that was read again.

void PlanTaskWidget::slotUpdateStartTimeDate(QDate date)
{
    const EditorInUse inUse;
    const std::string text = dateToText(date);
    if (m_task.endDate < text) {
        if (isAliveAfterRefusal()) {
            m_ui->dateEditVaildStartTime->setDate(dateFromText(m_task.startDate));
        }
        return;
    }
    m_task.startDate = text;
    refreshConflicts();
}

void PlanTaskWidget::slotUpdateEndTimeDate(QDate date)
{
    const EditorInUse inUse;
    const std::string text = dateToText(date);
    if (text < m_task.startDate) {
        if (isAliveAfterRefusal()) {
            m_ui->dateEditVaildEndTime->setDate(dateFromText(m_task.endDate));
        }
        return;
    }
    m_task.endDate = text;
    refreshConflicts();
}

void PlanTaskWidget::slotUpdateTime(int row, int clo, QTime time)
{
    PlayPlan* const plan = planByIdOfRow(row);
    if (!plan) {
        return;
    }
    const std::string text = timeToText(time);
    if (clo == EndTimeColumn) {
        takeTime(row, *plan, &PlayPlan::endTime, text, text < plan->startTime);
    } else if (clo == StartTimeColumn) {
        takeTime(row, *plan, &PlayPlan::startTime, text, plan->endTime < text);
    } else {
        refreshConflicts();
    }
}

void PlanTaskWidget::takeTime(int row, PlayPlan& plan, std::string PlayPlan::*time,
                              const std::string& text, bool isRefused)
{
    // This is what ends the nested call when the card itself sets the editor.
    if (text == plan.*time) {
        return;
    }
    if (!isRefused) {
        plan.*time = text;
        refreshConflicts();
        return;
    }
    if (!isAliveAfterRefusal()) {
        return;
    }
    const PlayPlan* const stored = planByIdOfRow(row);
    const QPointer<PlanTaskWidget> self(this);
    if (stored && time == &PlayPlan::endTime) {
        showEnd(row, timeFromText(stored->endTime));
    } else if (stored) {
        buildTable();
        if (QTimeEdit* const editor = widgetOfRow(m_startTimeEdits, row)) {
            editor->setTime(timeFromText(stored->startTime));
        }
    }
    if (self) {
        refreshConflicts();
    }
}

bool PlanTaskWidget::isAliveAfterRefusal()
{
    const QPointer<PlanTaskWidget> self(this);
    showRefusal(scheduleText("zhStartVaildTimeError"));
    return !self.isNull();
}

void PlanTaskWidget::slotCopyTask()
{
    emit signalCopyTask(m_task.id);
}

void PlanTaskWidget::slotDeleteTask()
{
    if (isConfirmed("szDeleteTaskConfirmStr")) {
        emit signalDeleteTask(m_task.id);
    }
}

void PlanTaskWidget::slotCopyPlan()
{
    const auto* const button = qobject_cast<QPushButton*>(sender());
    if (!button) {
        return;
    }
    const int id = button->property("id").toInt();

    const auto found = m_rowByPlanId.find(id);
    const int row = found == m_rowByPlanId.end() ? -1 : found->second;
    const PlayPlan* const source = row == -1 ? nullptr : lastPlanWithId(m_task, id);
    const auto following = followingCopy(source ? *source : PlayPlan(), m_task);
    if (!following) {
        return;
    }
    PlayPlan copy = *following;
    m_task.plans.push_back(copy);
    if (copy.mode == FrequencyMode) {
        // The end comes from the plan below the source, which is the copy itself only when the
        // source was the last row. The next edit of the copy works out its own.
        computeEndTime(row + 1, copy.endTime);
        m_task.plans.back().endTime = copy.endTime;
    }
    service().addPlan(m_task.id, copy);
    slotAddRowPlan(copy, true);
    refreshConflicts();
}

void PlanTaskWidget::slotDeletePlan()
{
    if (!isConfirmed("szDeletePlanConfirmStr") || !takeOverTyping(*this)) {
        return;
    }
    const auto* const button = qobject_cast<QPushButton*>(sender());
    if (!button) {
        return;
    }
    const int id = button->property("id").toInt();
    const auto found = m_rowByPlanId.find(id);
    if (found != m_rowByPlanId.end()) {
        buildTable();
        removeFirstPlanWithId(m_task, id);
        const int row = found->second;
        m_model->removeRow(row);
        forgetRow(row);
    }
    refreshConflicts();
}

bool PlanTaskWidget::isConfirmed(const char* key)
{
    const QPointer<PlanTaskWidget> self(this);
    // First, or the question would take the focus from the field, and a refusal come over it.
    return takeOverTyping(*this) && askConfirmation(scheduleText(key)) && self;
}

void PlanTaskWidget::forgetRow(int row)
{
    m_rowByPlanId = withoutRowValue(m_rowByPlanId, row);
    m_planIdByRow = withoutRowKey(m_planIdByRow, row);
    dropRow(m_modeCombos, row);
    dropRow(m_endTimeEdits, row);
    dropRow(m_startTimeEdits, row);
    dropRow(m_timesSpins, row);
    dropRow(m_weekCombos, row);
    dropRow(m_conflictLabels, row);
    dropRow(m_endActionCombos, row);
    refreshEditorrow(row);
}

} // namespace trel::mediadispatch
