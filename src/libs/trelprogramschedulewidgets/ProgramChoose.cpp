#include "ProgramChoose.h"

#include "ChooserCells.h"
#include "ChooserRows.h"
#include "ChooserTables.h"
#include "CustomTableModel.h"
#include "ProgramNames.h"
#include "SHeaderView.h"
#include "ScheduleText.h"
#include "SpinBoxDelegate.h"
#include "service/InvalidEntries.h"
#include "service/PlanInsertion.h"
#include "service/ProgramTotal.h"
#include "service/scheduleManage.h"
#include "trelwidgets/Dialog.h"
#include "ui_ProgramChoose.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr int kConfirmed = 0;
constexpr int kNotConfirmed = 2;

constexpr QSize kFrameSize(610, 470);
constexpr QSize kTallFrameSize(610, 1000);

/// No row of the right table is being edited.
constexpr int kNoRow = -1;

constexpr char kStyle[] = "style";

/// The context menu of the right table, from the top.
enum MenuLine { CutLine = 0, DelayLine, MoveUpLine, MoveDownLine, MenuLineCount };
constexpr std::array<const char*, MenuLineCount> kMenuKeys = {"zhCutCurrentProg", "zhDelayInsert",
                                                              "zhProgMoveUp", "zhProgMoveDown"};

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

bool isNoDuration(int progIndex)
{
    return service().isNoDurationType(progIndex);
}

ProgramIten findProgram(int progIndex)
{
    return service().getProgramItemByIndex(progIndex);
}

double lengthOf(int progIndex)
{
    return service().getDurationByIndex(progIndex);
}

/// The entries of a plan for the programs of the catalogue that exist, in its order.
std::vector<struProgInfo> offeredPrograms()
{
    // The catalogue is a copy: its names are moved out of it, and it goes before the rows are made,
    // which then find their memory in its place.
    std::map<int, ProgramIten> catalogue = service().getPrograms();
    std::vector<struProgInfo> offers;
    offers.reserve(catalogue.size());
    for (auto& [key, program] : catalogue) {
        if (!program.isNull) {
            offers.push_back({program.progIndex, false, std::move(program.progName), 1});
        }
    }
    return offers;
}

} // namespace

ProgramChoose::ProgramChoose(PlayTask* task, int taskId, int planId, QWidget* parent,
                             bool isNewPlan)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ProgramChoose>())
    , m_task(task)
    , m_isNewPlan(isNewPlan)
    , m_taskId(taskId)
    , m_planId(planId)
    , m_dialog(new widgets::Dialog(parent))
    , m_result(kNotConfirmed)
{
    qRegisterMetaType<CheckType>("CheckType");
    ui->setupUi(this);
    setUpTables();
    ui->pushButtonDelete->setProperty(kStyle, QStringLiteral("assist"));
    ui->cancelBtn->setProperty(kStyle, QStringLiteral("assist"));
    ui->okBtn->setObjectName(QStringLiteral("comfirmBtn"));
    setUpFrame();
}

ProgramChoose::~ProgramChoose() = default;

void ProgramChoose::setUpFrame()
{
    m_dialog->setTitle(
        QStringLiteral("%1").arg(scheduleText("zhSelectProgramsStr"), 0, QLatin1Char(' ')));
    m_dialog->setScaleSwitch(kFrameSize, kTallFrameSize);
    m_dialog->setFixedSize(kFrameSize);

    auto* layout = new QVBoxLayout(m_dialog->dialogWidget());
    layout->addWidget(this);
    layout->setContentsMargins(0, 0, 0, 0);

    // A parent that goes while the dialog runs takes the frame along, but this object is its
    // caller's.
    connect(m_dialog, &QObject::destroyed, this, [this] { setParent(nullptr); });
}

void ProgramChoose::setUpTables()
{
    setUpTexts();
    ui->tipLab->setProperty(kStyle, QStringLiteral("errorHint"));
    ui->overTimeTip->setProperty(kStyle, QStringLiteral("errorHint"));
    m_programModel = new CustomTableModel(this);
    m_programHeader = setUpProgramTable(ui->tableViewProgramList, m_programModel);
    m_planModel = new CustomTableModel(this);
    m_planHeader = setUpPlanTable(ui->tableViewChoonse, m_planModel);
    hideTip();
    ui->overTimeTip->hide();
    ui->pushButtonChonse->setProperty("imageBtn", QStringLiteral("turnNext"));
    loadTables();
    connectAll();
}

void ProgramChoose::setUpTexts()
{
    ui->label->setText(scheduleText("szProgramLstStr"));
    ui->label_2->setText(scheduleText("szPlanLstStr"));
    ui->tipLab->setText(scheduleText("zhOnlyOne"));
    ui->pushButtonDelete->setText(scheduleText("szDeleteStr"));
    ui->label_timeWord->setText(scheduleText("zhTotalDuration"));
    ui->overTimeTip->setText(scheduleText("zhOverTimeTips"));
    ui->okBtn->setText(scheduleText("zhFixAct"));
    ui->cancelBtn->setText(scheduleText("zhCancelAct"));

    // For screen readers: the controls that show no text.
    ui->pushButtonChonse->setAccessibleName(scheduleText("zhSelectProgramsStr"));
    ui->UpBtn->setAccessibleName(scheduleText("zhProgMoveUp"));
    ui->DownBtn->setAccessibleName(scheduleText("zhProgMoveDown"));
    ui->tableViewProgramList->setAccessibleName(scheduleText("szProgramLstStr"));
    ui->tableViewChoonse->setAccessibleName(scheduleText("szPlanLstStr"));
}

void ProgramChoose::connectAll()
{
    connect(&service(), &scheduleManage::sigProgIndexChanged, this,
            &ProgramChoose::slotProgIndexChanged);
    connect(ui->tableViewProgramList->itemDelegateForColumn(OfferCheckColumn),
            SIGNAL(signalChecked(CheckType, int, bool)), this,
            SLOT(slotChecked(CheckType, int, bool)));
    connect(ui->tableViewChoonse->itemDelegateForColumn(ChoiceCheckColumn),
            SIGNAL(signalChecked(CheckType, int, bool)), this,
            SLOT(slotChecked(CheckType, int, bool)));
    connect(m_programHeader, &SHeaderView::signalSelectAll, this, &ProgramChoose::slotSelectAll);
    connect(m_planHeader, &SHeaderView::signalSelectAll, this, &ProgramChoose::slotSelectAll);
    connect(ui->pushButtonChonse, &QPushButton::clicked, this, &ProgramChoose::slotChose);
    connect(ui->pushButtonDelete, &QPushButton::clicked, this, &ProgramChoose::slotDelete);
    connect(m_dialog, SIGNAL(signalAccept()), this, SLOT(slotSave()));
    connect(ui->DownBtn, &QPushButton::clicked, this, &ProgramChoose::slotClicked);
    connect(ui->UpBtn, &QPushButton::clicked, this, &ProgramChoose::slotClicked);
    ui->tableViewChoonse->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui->tableViewChoonse, &QWidget::customContextMenuRequested, this,
            &ProgramChoose::onCustomContextMenuRequested);
    const auto* spinBox = qobject_cast<SpinBoxDelegate*>(
        ui->tableViewChoonse->itemDelegateForColumn(ChoiceCountColumn));
    connect(spinBox, &SpinBoxDelegate::valueChanged, this, &ProgramChoose::onSpinBoxValueChanged);
    connect(ui->okBtn, &QPushButton::clicked, this, &ProgramChoose::onOkBtnClicked);
    connect(ui->cancelBtn, &QPushButton::clicked, this, &ProgramChoose::onCancelBtnClicked);
}

// Filling the tables

void ProgramChoose::loadTables()
{
    ui->tableViewChoonse->setUpdatesEnabled(false);
    loadPrograms();
    if (!m_isNewPlan) {
        loadPlan();
    }
    enableConfirming();
    ui->tableViewChoonse->setUpdatesEnabled(true);
    updateTotalDuration(kNoRow, kNoRow);
}

void ProgramChoose::loadPrograms()
{
    m_allPrograms = offeredPrograms();
    appendOffers(*m_programModel, m_allPrograms);
}

void ProgramChoose::loadPlan()
{
    const std::string invalidSuffix = scheduleText("szInvalidStr").toStdString();
    const QString nullSuffix = scheduleText("szProgNullStr");
    int index = -1;
    PlayPlan plan = service().getPlan(m_taskId, m_planId, index);
    std::vector<ChoiceRow> rows;
    rows.reserve(plan.programs.size());
    for (struProgInfo& entry : plan.programs) {
        if (buryInvalidEntry(entry, invalidSuffix)) {
            service().addPlan(m_taskId, plan);
        }
        ChoiceRow row = choiceRowOf(entry, findProgram, nullSuffix);
        row.number = static_cast<int>(rows.size()) + 1;
        rows.push_back(std::move(row));
    }
    appendPlanRows(rows);
    m_selectedPrograms = std::move(plan.programs);
}

void ProgramChoose::appendPlanRows(const std::vector<ChoiceRow>& rows)
{
    if (rows.empty()) {
        return;
    }
    appendChoices(*m_planModel, rows);
    // These columns come into being with the first row.
    ui->tableViewChoonse->hideColumn(ChoiceIndexColumn);
    ui->tableViewChoonse->hideColumn(ChoiceNewColumn);
}

// Check marks

void ProgramChoose::slotChecked(CheckType type, int row, bool check)
{
    if (type == ProgramListCheck) {
        setRowChecked(*m_programModel, row, check);
        updateCheckOrder(row, check);
    } else if (type == PlanListCheck) {
        setRowChecked(*m_planModel, row, check);
        m_planHeader->setChecked(m_planModel->rowCount() == countCheckedPlanRows());
    }
}

void ProgramChoose::slotSelectAll(CheckType type, bool ischeck)
{
    if (type == ProgramListCheck) {
        checkAllPrograms(ischeck);
    } else if (type == PlanListCheck) {
        for (int row = 0; row < m_planModel->rowCount(); ++row) {
            setRowChecked(*m_planModel, row, ischeck);
        }
        m_planHeader->setChecked(ischeck);
    }
}

void ProgramChoose::checkAllPrograms(bool check)
{
    const int rowCount = m_programModel->rowCount();
    if (check) {
        m_checkOrder.checkAll(rowCount);
    } else {
        m_checkOrder.clearAll(rowCount);
    }
    for (int row = 0; row < rowCount; ++row) {
        setRowChecked(*m_programModel, row, check);
        showCheckNumber(row, check ? formatRowNumber(row + 1) : QString());
    }
    if (rowCount > 0) {
        m_programHeader->setChecked(check);
    }
}

void ProgramChoose::updateCheckOrder(int row, bool check)
{
    if (check) {
        showCheckNumber(row, formatRowNumber(m_checkOrder.check(row)));
        if (m_programModel->rowCount() == m_checkOrder.count()) {
            m_programHeader->setChecked(true);
        }
        return;
    }
    const std::vector<CheckedRow> moved = m_checkOrder.uncheck(row);
    showCheckNumber(row, QString());
    for (const CheckedRow& other : moved) {
        showCheckNumber(other.row, formatRowNumber(other.place));
    }
    m_programHeader->setChecked(false);
}

void ProgramChoose::showCheckNumber(int row, const QString& text)
{
    m_programModel->setData(m_programModel->index(row, OfferOrderColumn), text);
}

int ProgramChoose::countCheckedPlanRows() const
{
    return countCheckedRows(*m_planModel);
}

// Moving programs into, out of and within the plan

void ProgramChoose::slotChose()
{
    const std::vector<int> checked = m_checkOrder.rows();
    std::vector<ChoiceRow> rows;
    rows.reserve(checked.size());
    int number = m_planModel->rowCount();
    for (const int row : checked) {
        const auto position = static_cast<std::size_t>(row);
        if (position >= m_allPrograms.size()) {
            continue;
        }
        const struProgInfo& program = m_allPrograms[position];
        ChoiceRow added;
        added.number = ++number;
        added.name = QString::fromStdString(program.progName);
        added.progIndex = program.progIndex;
        added.isNew = true;
        rows.push_back(std::move(added));
        m_selectedPrograms.push_back(program);
        m_planChanged = true;
    }
    appendPlanRows(rows);
    updateTotalDuration(kNoRow, kNoRow);
    renumberPlanRows();
    enableConfirming();
}

void ProgramChoose::slotDelete()
{
    const std::vector<int> rows = checkedRows(*m_planModel);
    removeRows(*m_planModel, rows);
    removeEntries(m_selectedPrograms, rows);
    enableConfirming();
    m_planChanged = true;
    updateTotalDuration(kNoRow, kNoRow);
    renumberPlanRows();
}

void ProgramChoose::slotClicked()
{
    const int checked = countCheckedPlanRows();
    if (checked == 0) {
        return;
    }
    if (checked > 1) {
        showTip("zhOnlyOne");
        return;
    }
    const auto* button = qobject_cast<QPushButton*>(sender());
    if (button == ui->DownBtn) {
        moveRows(false, true);
    } else if (button == ui->UpBtn) {
        moveRows(true, true);
    }
    hideTip();
    updateTotalDuration(kNoRow, kNoRow);
}

void ProgramChoose::moveRows(bool up, bool byChecks)
{
    std::vector<int> rows;
    if (byChecks) {
        rows = checkedRows(*m_planModel);
    } else if (m_contextRow >= 0) {
        rows.push_back(m_contextRow);
    }
    auto* model = qobject_cast<QStandardItemModel*>(ui->tableViewChoonse->model());
    if (rows.empty() || !model) {
        return;
    }

    const int lastRow = model->rowCount() - 1;
    int target = std::clamp(up ? rows.front() - 1 : rows.back() + 1, 0, lastRow);
    if (rows.back() == lastRow && target == lastRow) {
        target = rows.front();
    }
    std::for_each(rows.rbegin(), rows.rend(),
                  [&](int row) { model->insertRow(target, model->takeRow(row)); });

    ui->tableViewChoonse->viewport()->update();
    m_planChanged = true;
    renumberPlanRows();
}

void ProgramChoose::renumberPlanRows()
{
    for (int row = 0; row < m_planModel->rowCount(); ++row) {
        m_planModel->setData(m_planModel->index(row, ChoiceNumberColumn), formatRowNumber(row + 1));
    }
}

void ProgramChoose::enableConfirming()
{
    ui->okBtn->setEnabled(!m_selectedPrograms.empty());
}

// The total and what stands below the tables

void ProgramChoose::onSpinBoxValueChanged(QModelIndex index, int value)
{
    // The value reaches the table only when the editor closes.
    updateTotalDuration(index.row(), value);
}

double ProgramChoose::updateTotalDuration(int editedRow, int editedCount)
{
    if (!m_planModel) {
        return 0.0;
    }
    const double total = totalDuration(*m_planModel, editedRow, editedCount, lengthOf);
    if (exceedsDay(total)) {
        hideTip();
        ui->overTimeTip->show();
    } else {
        ui->overTimeTip->hide();
    }
    ui->showTime_label->setText(totalText(total));
    return total;
}

void ProgramChoose::showTip(const char* key)
{
    ui->tipLab->setText(scheduleText(key));
    ui->overTimeTip->hide();
    ui->tipLab->show();
    ui->warningLab->show();
}

void ProgramChoose::hideTip()
{
    ui->tipLab->hide();
    ui->warningLab->hide();
}

// The records behind the right table

void ProgramChoose::readBackPlanRows()
{
    m_planChanged = true;
    syncSelectedPrograms();
}

void ProgramChoose::syncSelectedPrograms()
{
    if (!m_planChanged || !m_planModel) {
        return;
    }
    m_selectedPrograms.clear();
    for (int row = 0; row < m_planModel->rowCount(); ++row) {
        struProgInfo entry = choiceAt(*m_planModel, row);
        entry.isInvalid = isInvalidReadBack(entry.progIndex, findProgram(entry.progIndex).isNull);
        m_selectedPrograms.push_back(std::move(entry));
    }
    m_planChanged = false;
}

// Inserting into the plan in use

void ProgramChoose::onCustomContextMenuRequested(QPoint pos)
{
    if (service().getScheduleState()) {
        showInsertMenu(false, pos);
        return;
    }
    readBackPlanRows();
    const QModelIndex index = ui->tableViewChoonse->indexAt(pos);
    if (!index.isValid()) {
        showInsertMenu(false, pos);
        return;
    }
    m_contextRow = index.row();
    showInsertMenu(canInsert(m_contextRow), pos);
}

bool ProgramChoose::canInsert(int row) const
{
    const int progIndex = choiceIndexAt(*m_planModel, row);
    int index = -1;
    const PlayPlan inUse = service().getNowUsePlan(m_taskId, m_planId, index);
    if (index < 0 || isNewChoice(*m_planModel, row)) {
        return false;
    }
    return !findProgram(progIndex).isNull && !holdsAsInvalid(inUse, progIndex);
}

void ProgramChoose::showInsertMenu(bool enabled, QPoint pos)
{
    QMenu menu;
    for (const char* key : kMenuKeys) {
        const QAction* action = menu.addAction(scheduleText(key));
        if (enabled) {
            connect(action, &QAction::triggered, this,
                    &ProgramChoose::onActionInsertProgramTriggered, Qt::UniqueConnection);
        }
    }
    menu.setEnabled(enabled);
    menu.exec(ui->tableViewChoonse->viewport()->mapToGlobal(pos));
}

void ProgramChoose::onActionInsertProgramTriggered()
{
    const auto* action = qobject_cast<QAction*>(sender());
    if (!action) {
        return;
    }
    // The actions carry nothing but their text.
    const auto key = std::find_if(kMenuKeys.begin(), kMenuKeys.end(), [action](const char* k) {
        return action->text() == scheduleText(k);
    });
    switch (std::distance(kMenuKeys.begin(), key)) {
    case DelayLine:
        insertProgram(true);
        break;
    case MoveUpLine:
        moveRows(true, false);
        break;
    case MoveDownLine:
        moveRows(false, false);
        break;
    default:
        // Also for a text that is no longer known, as the language has changed under the menu.
        insertProgram(false);
        break;
    }
}

void ProgramChoose::insertProgram(bool delayed)
{
    int index = -1;
    PlayPlan plan = service().getPlan(m_taskId, m_planId, index);
    if (index < 0) {
        return;
    }
    const PlayTask task = service().getTask(m_taskId);
    const DataCompareType lastDay = service().comparisionDate(task.endDate);
    const bool endPassed = service().comparisonTime(plan.endTime);
    const InsertionScope scope = insertionScope(lastDay, endPassed);
    if (scope == InsertionScope::Refused) {
        showTip("zhCutProgWarnning");
        return;
    }
    hideTip();
    updateTotalDuration(kNoRow, kNoRow);

    struProgInfo target = choiceAt(*m_planModel, m_contextRow);
    target.playCount = 1;
    std::vector<struProgInfo> programs;
    if (scope == InsertionScope::OneProgram) {
        m_hasNoDuration = false;
        programs.push_back(std::move(target));
    } else {
        programs = listFromRow(m_selectedPrograms, target, m_contextRow);
        m_hasNoDuration = containsNoDuration(programs, isNoDuration);
        plan.hasNoDuration = m_hasNoDuration;
    }
    const PlayPlan newPlan = insertedPlan(std::move(plan), std::move(programs), scope);

    if (delayed) {
        service().setInsertPlanTaskDelayExcute(m_taskId, m_planId, newPlan);
    } else {
        service().setInsertPlanTask(m_taskId, m_planId, newPlan, true);
    }
    service().passOriginalPlanProgInfo(m_selectedPrograms);
}

// The end of the dialog

int ProgramChoose::execChoose()
{
    m_dialog->exec();
    return m_result;
}

QString ProgramChoose::getSelectedProgramText() const
{
    return programNames(m_selectedPrograms);
}

bool ProgramChoose::hasNoDuration() const
{
    return m_hasNoDuration;
}

std::vector<struProgInfo> ProgramChoose::getSelectedPrograms() const
{
    return m_selectedPrograms;
}

void ProgramChoose::slotSave()
{
    readBackPlanRows();
    if (m_isNewPlan) {
        m_hasNoDuration = containsNoDuration(m_selectedPrograms, isNoDuration);
        accept();
        return;
    }
    int index = -1;
    PlayPlan plan = service().getPlan(m_taskId, m_planId, index);
    if (index == -1) {
        accept();
        return;
    }
    m_hasNoDuration = containsNoDuration(m_selectedPrograms, isNoDuration);
    plan.serviceList.clear();
    plan.programs = m_selectedPrograms;
    plan.hasNoDuration = m_hasNoDuration;
    service().addPlan(m_taskId, plan);
    *m_task = service().getTask(m_taskId);
    accept();
}

void ProgramChoose::onOkBtnClicked()
{
    slotSave();
    m_result = kConfirmed;
    m_dialog->close();
}

void ProgramChoose::onCancelBtnClicked()
{
    m_dialog->close();
}

void ProgramChoose::slotCancel()
{
    m_dialog->close();
}

void ProgramChoose::slotProgIndexChanged() {}

void ProgramChoose::keyPressEvent(QKeyEvent* event)
{
    // The base class would answer Return and Escape itself.
    QWidget::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

} // namespace trel::mediadispatch
